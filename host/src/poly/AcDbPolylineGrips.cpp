// AcDbPolyline: grips and stretch points, transformation and explosion.
#include <cmath>
#include <set>

#include "AcDbArc.h"
#include "AcDbLine.h"
#include "AcDbPolyline.h"
#include "PolylineView.h"
#include "ents/EntityFiling.h"
#include "ge/GeMath.h"

namespace {

// Axis lengths and the cosine between the transformed plane axes within this (relatively)
// count as a uniform scale of the plane: circles stay circles.
constexpr double kUniformScaleTolerance = 1e-9;

}  // namespace

Acad::ErrorStatus AcDbPolyline::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray&, AcDbIntArray&) const
{
    assertReadEnabled();
    const hostpoly::PolylineView view(*this);
    for (int i = 0; i < view.numVerts(); ++i)
        gripPoints.append(view.worldPoint(i));
    return Acad::eOk;
}

// The offset's part in the polyline's plane moves each vertex named (each once).
Acad::ErrorStatus AcDbPolyline::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    assertWriteEnabled();
    if (!hostents::isFinite(offset))
        return Acad::eInvalidInput;
    std::set<int> moving;
    for (int i = 0; i < indices.length(); ++i) {
        if (indices[i] < 0 || static_cast<size_t>(indices[i]) >= m_vertices.size())
            return Acad::eInvalidIndex;
        moving.insert(indices[i]);
    }
    const AcGeVector2d shift = hostpoly::PolylineView(*this).frame().toPlane(offset);
    for (int i : moving)
        m_vertices[i].point += shift;
    if (!moving.empty())
        recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbPolyline::subGetStretchPoints(AcGePoint3dArray& stretchPoints) const
{
    AcDbIntArray modes;
    AcDbIntArray ids;
    return subGetGripPoints(stretchPoints, modes, ids);
}

Acad::ErrorStatus AcDbPolyline::subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    return subMoveGripPointsAt(indices, offset);
}

// The transformed plane's normal keeps the side the transformed old normal points to; a
// transform that turns the plane over (a mirror) therefore runs every arc the other way
// round seen from it, and the bulges change sign. Widths scale with the plane's length
// scale (for an uneven scale of a polyline with only lines, its geometric mean).
Acad::ErrorStatus AcDbPolyline::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    const hostpoly::PolylineView view(*this);
    const hostpoly::OcsFrame& frame = view.frame();
    const AcGeVector3d u = xform * frame.xAxis;
    const AcGeVector3d v = xform * frame.yAxis;
    const AcGeVector3d n = xform * frame.normal;
    const AcGeVector3d across = u.crossProduct(v);
    const double area = across.length();
    if (!std::isfinite(area) || area == 0.0)
        return Acad::eCannotScaleNonUniformly;
    const double lu = u.length();
    const double lv = v.length();
    const bool uniform = std::fabs(lu - lv) <= kUniformScaleTolerance * std::max(lu, lv) &&
                         std::fabs(u.dotProduct(v)) <= kUniformScaleTolerance * lu * lv;
    if (!uniform && hasBulges())
        return Acad::eCannotScaleNonUniformly;
    const bool flips = across.dotProduct(n) < 0.0;
    const AcGeVector3d newNormal = flips ? -across / area : across / area;
    const double scale = uniform ? lu : std::sqrt(area);
    const hostpoly::OcsFrame target(newNormal, 0.0);

    std::vector<Vertex> moved = m_vertices;
    double elevation = target.heightOf(xform * frame.origin);
    for (size_t i = 0; i < moved.size(); ++i) {
        const AcGePoint3d p = xform * view.worldPoint(static_cast<int>(i));
        moved[i].point = target.toPlane(p);
        if (i == 0)
            elevation = target.heightOf(p);
        if (flips)
            moved[i].bulge = -moved[i].bulge;
        if (moved[i].startWidth > 0.0)
            moved[i].startWidth *= scale;
        if (moved[i].endWidth > 0.0)
            moved[i].endWidth *= scale;
    }
    m_vertices.swap(moved);
    m_normal = newNormal;
    m_elevation = elevation;
    m_constantWidth *= scale;
    m_thickness *= n.dotProduct(newNormal);
    recordGraphicsModified();
    return Acad::eOk;
}

// Lines and arcs carry the polyline's properties, normal and thickness; widths are not
// kept. An arc segment runs counter-clockwise from its start (bulge above zero) or from
// its end (below zero), as every AcDbArc does.
Acad::ErrorStatus AcDbPolyline::subExplode(AcDbVoidPtrArray& entitySet) const
{
    assertReadEnabled();
    const hostpoly::PolylineView view(*this);
    const hostpoly::OcsFrame& frame = view.frame();
    for (int i = 0; i < view.numSegments(); ++i) {
        const hostpoly::BulgeSegment seg = view.segment(i);
        if (seg.isDegenerate())
            continue;
        AcDbCurve* piece = nullptr;
        if (!seg.isArc()) {
            auto* line = new AcDbLine(frame.toWorld(seg.start()), frame.toWorld(seg.end()));
            line->setNormal(m_normal);
            line->setThickness(m_thickness);
            piece = line;
        } else {
            const AcGePoint2d c = seg.center();
            const AcGePoint2d from = seg.sweep() > 0.0 ? seg.start() : seg.end();
            const AcGePoint2d to = seg.sweep() > 0.0 ? seg.end() : seg.start();
            auto* arc = new AcDbArc(frame.toWorld(c), m_normal, seg.radius(),
                                    hostge::angleInFullTurn(std::atan2(from.y - c.y, from.x - c.x)),
                                    hostge::angleInFullTurn(std::atan2(to.y - c.y, to.x - c.x)));
            arc->setThickness(m_thickness);
            piece = arc;
        }
        piece->setPropertiesFrom(this);
        entitySet.append(piece);
    }
    return Acad::eOk;
}
