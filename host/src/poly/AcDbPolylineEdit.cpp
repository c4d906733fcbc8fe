// AcDbPolyline: the curve edits that make new polylines or reshape this one: offsets,
// splits, extension, reversal, and conversion to and from the geometry library's curves.
#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "AcDbPolyline.h"
#include "PolylineOffset.h"
#include "PolylineView.h"
#include "gearc3d.h"
#include "gecomp3d.h"
#include "ge/GeMath.h"
#include "gelnsg3d.h"

namespace {

using hostpoly::BulgeSegment;
using hostpoly::PolylineView;

// Parameters this close are the same cut.
constexpr double kSameCut = 1e-10;
// Arcs of a curve given to the polyline may tilt this much (sine) off its plane, and a
// plane normal given for an offset this much off the polyline's: the rounding of
// directions computed from points far from the origin.
constexpr double kArcNormalTolerance = 1e-8;

double lerp(double a, double b, double t)
{
    return a + (b - a) * t;
}

}  // namespace

AcDbPolyline* AcDbPolyline::newLike() const
{
    auto* made = new AcDbPolyline();
    made->setPropertiesFrom(this);
    made->m_normal = m_normal;
    made->m_elevation = m_elevation;
    made->m_thickness = m_thickness;
    made->m_constantWidth = m_constantWidth;
    made->m_plinegen = m_plinegen;
    return made;
}

Acad::ErrorStatus AcDbPolyline::getOffsetCurves(double offsetDist, AcDbVoidPtrArray& offsetCurves) const
{
    assertReadEnabled();
    std::vector<hostpoly::OffsetChain> chains;
    const Acad::ErrorStatus es = hostpoly::offsetPolyline(PolylineView(*this), offsetDist, chains);
    if (es != Acad::eOk)
        return es;
    for (const hostpoly::OffsetChain& chain : chains) {
        AcDbPolyline* made = newLike();
        for (const hostpoly::OffsetVertex& v : chain.vertices) {
            Vertex vertex;
            vertex.point = v.point;
            vertex.bulge = v.bulge;
            made->m_vertices.push_back(vertex);
        }
        made->m_closed = chain.closed;
        offsetCurves.append(made);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getOffsetCurvesGivenPlaneNormal(const AcGeVector3d& normal, double offsetDist,
                                                                AcDbVoidPtrArray& offsetCurves) const
{
    assertReadEnabled();
    const double len = normal.length();
    if (len == 0.0 || normal.crossProduct(m_normal).length() > kArcNormalTolerance * len)
        return Acad::eInvalidInput;
    return getOffsetCurves(normal.dotProduct(m_normal) > 0.0 ? offsetDist : -offsetDist, offsetCurves);
}

Acad::ErrorStatus AcDbPolyline::getSplitCurves(const AcGeDoubleArray& params, AcDbVoidPtrArray& curveSegments) const
{
    assertReadEnabled();
    const PolylineView view(*this);
    const int count = view.numSegments();
    if (params.length() == 0 || count == 0)
        return Acad::eInvalidInput;
    const double end = view.endParam();
    std::vector<double> cuts;
    for (int i = 0; i < params.length(); ++i) {
        int segment = 0;
        double fraction = 0.0;
        if (!view.locate(params[i], segment, fraction))
            return Acad::eInvalidInput;
        double cut = segment + fraction;
        if (m_closed && cut >= end - kSameCut)
            cut = 0.0;  // the end of a closed polyline is its start
        cuts.push_back(cut);
    }
    std::sort(cuts.begin(), cuts.end());
    cuts.erase(std::unique(cuts.begin(), cuts.end(), [](double a, double b) { return b - a <= kSameCut; }),
               cuts.end());

    // Widths stay "not set" when the polyline sets none; otherwise pieces get them explicitly.
    const bool widthsUnset = std::all_of(m_vertices.begin(), m_vertices.end(),
                                         [](const Vertex& v) { return v.startWidth < 0.0 && v.endWidth < 0.0; });
    auto piece = [&](double from, double to) {
        AcDbPolyline* made = newLike();
        AcGePoint2d lastPoint;
        double lastWidth = -1.0;
        Adesk::Int32 lastId = 0;
        for (int s = static_cast<int>(std::floor(from)); s < to - kSameCut; ++s) {
            const int index = s % count;
            const double t0 = std::max(from - s, 0.0);
            const double t1 = std::min(to - s, 1.0);
            if (t1 - t0 <= kSameCut)
                continue;
            const BulgeSegment part = view.segment(index).part(t0, t1);
            Vertex vertex;
            vertex.point = part.start();
            vertex.bulge = part.bulge();
            if (!widthsUnset) {
                vertex.startWidth = lerp(view.startWidth(index), view.endWidth(index), t0);
                vertex.endWidth = lerp(view.startWidth(index), view.endWidth(index), t1);
            }
            vertex.identifier = t0 == 0.0 ? view.identifier(index) : 0;
            made->m_vertices.push_back(vertex);
            lastPoint = part.end();
            lastWidth = vertex.endWidth;
            lastId = t1 == 1.0 ? view.identifier((index + 1) % view.numVerts()) : 0;
        }
        Vertex last;
        last.point = lastPoint;
        last.startWidth = lastWidth;
        last.endWidth = lastWidth;
        last.identifier = lastId;
        made->m_vertices.push_back(last);
        curveSegments.append(made);
    };

    if (m_closed) {
        for (size_t i = 0; i < cuts.size(); ++i)
            piece(cuts[i], i + 1 < cuts.size() ? cuts[i + 1] : cuts[0] + end);
        return Acad::eOk;
    }
    double from = 0.0;
    for (double cut : cuts) {
        if (cut - from > kSameCut && end - cut > kSameCut) {
            piece(from, cut);
            from = cut;
        }
    }
    piece(from, end);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getSplitCurves(const AcGePoint3dArray& points, AcDbVoidPtrArray& curveSegments) const
{
    assertReadEnabled();
    AcGeDoubleArray params;
    for (int i = 0; i < points.length(); ++i) {
        double param = 0.0;
        if (getParamAtPoint(points[i], param) != Acad::eOk)
            return Acad::eInvalidInput;
        params.append(param);
    }
    return getSplitCurves(params, curveSegments);
}

// Beyond the start the first segment's start vertex moves back along its line or circle;
// beyond the end the last vertex moves on. The segment's bulge grows with its sweep.
Acad::ErrorStatus AcDbPolyline::extend(double newParam)
{
    assertWriteEnabled();
    const PolylineView view(*this);
    if (m_closed)
        return Acad::eNotApplicable;
    const int count = view.numSegments();
    if (count == 0 || !std::isfinite(newParam))
        return Acad::eInvalidInput;
    const bool atStart = newParam < 0.0;
    if (!atStart && newParam <= count)
        return Acad::eInvalidInput;
    const int index = atStart ? 0 : count - 1;
    const BulgeSegment seg = view.segment(index);
    if (seg.isDegenerate())
        return Acad::eDegenerateGeometry;
    const double t0 = atStart ? newParam : 0.0;
    const double t1 = atStart ? 1.0 : newParam - index;
    if (seg.isArc() && (t1 - t0) * std::fabs(seg.sweep()) >= hostge::kTwoPi)
        return Acad::eInvalidInput;
    const BulgeSegment longer = seg.part(t0, t1);
    if (atStart)
        m_vertices[0].point = longer.start();
    else
        m_vertices[index + 1].point = longer.end();
    if (seg.isArc())
        m_vertices[index].bulge = longer.bulge();
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::extend(Adesk::Boolean extendStart, const AcGePoint3d& toPoint)
{
    assertWriteEnabled();
    if (m_closed)
        return Acad::eNotApplicable;
    const PolylineView view(*this);
    const int count = view.numSegments();
    if (count == 0)
        return Acad::eInvalidInput;
    const int index = extendStart ? 0 : count - 1;
    const BulgeSegment seg = view.segment(index);
    if (seg.isDegenerate() || std::fabs(view.frame().heightOf(toPoint)) > hostpoly::kOnCurveTolerance)
        return Acad::eInvalidInput;
    const AcGePoint2d p = view.frame().toPlane(toPoint);
    const double lowest = extendStart && seg.isArc() ? 1.0 - seg.fullTurnFraction() : 0.0;
    const double t = seg.nearestFractionExtended(p, lowest);
    if (seg.pointAt(t).distanceTo(p) > hostpoly::kOnCurveTolerance)
        return Acad::eInvalidInput;
    if (extendStart ? t >= 0.0 : t <= 1.0)
        return Acad::eInvalidInput;
    return extend(extendStart ? t : index + t);
}

Acad::ErrorStatus AcDbPolyline::reverseCurve()
{
    assertWriteEnabled();
    const size_t n = m_vertices.size();
    if (n < 2)
        return Acad::eOk;
    std::vector<Vertex> reversed(n);
    for (size_t j = 0; j < n; ++j) {
        reversed[j].point = m_vertices[n - 1 - j].point;
        reversed[j].identifier = m_vertices[n - 1 - j].identifier;
    }
    // Segment j of the result is the old segment n - 2 - j run backwards; a closed
    // polyline's closing segment stays the closing segment. An open polyline's last
    // vertex carries its unused bulge and widths along unchanged, so that reversing twice
    // gives back every stored value.
    for (size_t j = 0; j + 1 < n; ++j) {
        const Vertex& old = m_vertices[n - 2 - j];
        reversed[j].bulge = -old.bulge;
        reversed[j].startWidth = old.endWidth;
        reversed[j].endWidth = old.startWidth;
    }
    const Vertex& lastOld = m_vertices[n - 1];
    reversed[n - 1].bulge = m_closed ? -lastOld.bulge : lastOld.bulge;
    reversed[n - 1].startWidth = m_closed ? lastOld.endWidth : lastOld.startWidth;
    reversed[n - 1].endWidth = m_closed ? lastOld.startWidth : lastOld.endWidth;
    m_vertices.swap(reversed);
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::getAcGeCurve(AcGeCurve3d*& curve, const AcGeTol&) const
{
    assertReadEnabled();
    curve = nullptr;
    const PolylineView view(*this);
    std::vector<std::unique_ptr<AcGeCurve3d>> pieces;
    for (int i = 0; i < view.numSegments(); ++i) {
        const BulgeSegment seg = view.segment(i);
        if (seg.isDegenerate())
            continue;
        if (!seg.isArc()) {
            pieces.push_back(std::make_unique<AcGeLineSeg3d>(view.frame().toWorld(seg.start()),
                                                             view.frame().toWorld(seg.end())));
            continue;
        }
        const AcGeVector3d normal = seg.sweep() > 0.0 ? view.frame().normal : -view.frame().normal;
        pieces.push_back(std::make_unique<AcGeCircArc3d>(view.frame().toWorld(seg.center()), normal,
                                                         view.frame().toWorld(seg.start() - seg.center()),
                                                         seg.radius(), 0.0, std::fabs(seg.sweep())));
    }
    if (pieces.empty())
        return Acad::eDegenerateGeometry;
    AcGeVoidPointerArray list;
    for (const auto& piece : pieces)
        list.append(piece.get());
    curve = new AcGeCompositeCurve3d(list);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::setFromAcGeCurve(const AcGeCurve3d& curve, AcGeVector3d* normal, const AcGeTol& tol)
{
    assertWriteEnabled();
    std::vector<const AcGeCurve3d*> pieces;
    if (curve.type() == AcGe::kCompositeCrv3d) {
        AcGeVoidPointerArray list;
        static_cast<const AcGeCompositeCurve3d&>(curve).getCurveList(list);
        for (int i = 0; i < list.length(); ++i)
            pieces.push_back(static_cast<const AcGeCurve3d*>(list[i]));
    } else {
        pieces.push_back(&curve);
    }
    if (pieces.empty())
        return Acad::eInvalidInput;
    for (const AcGeCurve3d* piece : pieces) {
        if (piece->type() == AcGe::kCircArc3d) {
            double period = 0.0;
            if (piece->isPeriodic(period))
                return Acad::eInvalidInput;  // a whole circle has no place in a polyline
        } else if (piece->type() != AcGe::kLineSeg3d) {
            return Acad::eInvalidInput;
        }
    }

    // The plane: the normal asked for, else the first arc's, else the curve's own plane
    // (for a straight curve, the present normal when the curve lies across it).
    AcGeVector3d n;
    if (normal != nullptr && !normal->isZeroLength()) {
        n = normal->normal();
    } else {
        for (const AcGeCurve3d* piece : pieces) {
            if (piece->type() == AcGe::kCircArc3d) {
                n = static_cast<const AcGeCircArc3d*>(piece)->normal();
                break;
            }
        }
        if (n.isZeroLength()) {
            AcGePlane plane;
            if (!curve.isPlanar(plane, tol))
                return Acad::eInvalidInput;
            n = plane.normal();
            bool acrossPresent = true;
            for (const AcGeCurve3d* piece : pieces) {
                AcGePoint3d s;
                AcGePoint3d e;
                AcGeInterval intrvl;
                piece->getInterval(intrvl, s, e);
                if (std::fabs((e - s).dotProduct(m_normal)) > hostpoly::kOnCurveTolerance)
                    acrossPresent = false;
            }
            if (acrossPresent)
                n = m_normal;
            else if (n.dotProduct(m_normal) < 0.0)
                n = -n;
        }
    }
    const hostpoly::OcsFrame frame(n, 0.0);
    const double within = std::max(tol.equalPoint(), hostpoly::kOnCurveTolerance);

    std::vector<Vertex> vertices;
    double elevation = 0.0;
    AcGePoint3d start;
    AcGePoint3d end;
    for (size_t i = 0; i < pieces.size(); ++i) {
        AcGeInterval intrvl;
        AcGePoint3d s;
        AcGePoint3d e;
        pieces[i]->getInterval(intrvl, s, e);
        if (i == 0) {
            elevation = frame.heightOf(s);
            start = s;
        }
        const AcGePoint3d mid = pieces[i]->evalPoint((intrvl.lowerBound() + intrvl.upperBound()) / 2.0);
        for (const AcGePoint3d& p : {s, mid, e}) {
            if (std::fabs(frame.heightOf(p) - elevation) > within)
                return Acad::eInvalidInput;
        }
        Vertex vertex;
        vertex.point = frame.toPlane(s);
        if (pieces[i]->type() == AcGe::kCircArc3d) {
            const auto* arc = static_cast<const AcGeCircArc3d*>(pieces[i]);
            if (arc->normal().crossProduct(n).length() > kArcNormalTolerance)
                return Acad::eInvalidInput;
            const double quarter = std::tan((arc->endAng() - arc->startAng()) / 4.0);
            vertex.bulge = arc->normal().dotProduct(n) > 0.0 ? quarter : -quarter;
        }
        vertices.push_back(vertex);
        end = e;
    }
    const bool closed = end.isEqualTo(start, tol) || end.distanceTo(start) <= within;
    if (!closed) {
        Vertex last;
        last.point = frame.toPlane(end);
        vertices.push_back(last);
    }
    m_vertices.swap(vertices);
    m_normal = n;
    m_elevation = elevation;
    m_closed = closed;
    recordGraphicsModified();
    return Acad::eOk;
}
