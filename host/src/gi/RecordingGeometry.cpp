// The recording draw's primitives: each call becomes one record in world coordinates.
#include "RecordingGeometry.h"

#include <cmath>
#include <cwchar>
#include <type_traits>

#include "AcDbPolyline.h"
#include "AcGiDrawable.h"
#include "AcGiDrawableTraits.h"
#include "PlaneMath.h"
#include "headless/HostError.h"
#include "headless/RecordingWorldDraw.h"
#include "poly/PolylineView.h"

// A regen records tens of thousands of primitives into one vector: they must move, not be
// copied, when it grows.
static_assert(std::is_nothrow_move_constructible_v<headless::RecordedPrimitive>,
              "recorded primitives are copied whenever the recording grows");

using headless::PrimitiveKind;
using headless::RecordedPrimitive;

namespace hostgi {
namespace {

AcGeVector3d unitOr(const AcGeVector3d& v, const AcGeVector3d& fallback)
{
    const double len = v.length();
    return len == 0.0 ? fallback : v / len;
}

AcGeVector3d transformed(const AcGeMatrix3d& xform, const AcGeVector3d& v)
{
    AcGeVector3d out = v;
    out.transformBy(xform);
    return out;
}

AcGePoint3d transformed(const AcGeMatrix3d& xform, const AcGePoint3d& p)
{
    AcGePoint3d out = p;
    out.transformBy(xform);
    return out;
}

}  // namespace

void RecordingGeometry::getModelToWorldTransform(AcGeMatrix3d& xform) const
{
    xform = m_state.modelToWorld();
}

void RecordingGeometry::getWorldToModelTransform(AcGeMatrix3d& xform) const
{
    xform = m_state.modelToWorld().inverse();
}

Adesk::Boolean RecordingGeometry::pushModelTransform(const AcGeVector3d& normal)
{
    return pushModelTransform(AcGeMatrix3d::planeToWorld(normal));
}

Adesk::Boolean RecordingGeometry::pushModelTransform(const AcGeMatrix3d& xform)
{
    m_state.modelTransforms.push_back(m_state.modelToWorld() * xform);
    return m_state.aborted();
}

Adesk::Boolean RecordingGeometry::popModelTransform()
{
    if (m_state.modelTransforms.empty())
        headless::raiseHostError(L"AcGiGeometry::popModelTransform: no model transform is pushed");
    m_state.modelTransforms.pop_back();
    return m_state.aborted();
}

Adesk::Boolean RecordingGeometry::circle(const AcGePoint3d& center, const double radius,
                                         const AcGeVector3d& normal) const
{
    const AcGeMatrix3d xform = m_state.modelToWorld();
    RecordedPrimitive* prim = m_state.startRecord(PrimitiveKind::kCircle);
    if (prim == nullptr)
        return true;
    prim->points = {transformed(xform, center)};
    prim->vectors = {transformNormal(xform, normal)};
    // A circle stays a circle only under uniform scaling; the scale along the plane's
    // x axis is the one recorded.
    prim->numbers = {radius * transformed(xform, ocsXAxis(normal)).length()};
    return false;
}

Adesk::Boolean RecordingGeometry::circle(const AcGePoint3d& p1, const AcGePoint3d& p2, const AcGePoint3d& p3) const
{
    AcGePoint3d center;
    double radius = 0.0;
    AcGeVector3d normal;
    if (!circleThrough(p1, p2, p3, center, radius, normal))
        return m_state.aborted();
    return circle(center, radius, normal);
}

Adesk::Boolean RecordingGeometry::circularArc(const AcGePoint3d& center, const double radius,
                                              const AcGeVector3d& normal, const AcGeVector3d& startVector,
                                              const double sweepAngle, const AcGiArcType arcType) const
{
    const AcGeMatrix3d xform = m_state.modelToWorld();
    const AcGeVector3d n = unitOr(normal, AcGeVector3d::kZAxis);
    // The start vector is taken in the arc's plane.
    const AcGeVector3d inPlane = startVector - n * n.dotProduct(startVector);
    const AcGeVector3d u = unitOr(inPlane, ocsXAxis(n));
    const AcGeVector3d v = n.crossProduct(u);
    const AcGePoint3d start = center + u * radius;
    const AcGePoint3d end = center + (u * std::cos(sweepAngle) + v * std::sin(sweepAngle)) * radius;

    const AcGeVector3d worldU = transformed(xform, u);
    const AcGeVector3d worldV = transformed(xform, v);
    RecordedPrimitive* prim = m_state.startRecord(PrimitiveKind::kArc);
    if (prim == nullptr)
        return true;
    prim->points = {transformed(xform, center), transformed(xform, start), transformed(xform, end)};
    prim->vectors = {unitOr(worldU.crossProduct(worldV), n), unitOr(worldU, u)};
    prim->numbers = {radius * worldU.length(), sweepAngle};
    prim->integers = {static_cast<Adesk::Int64>(arcType)};
    return false;
}

Adesk::Boolean RecordingGeometry::circularArc(const AcGePoint3d& start, const AcGePoint3d& point,
                                              const AcGePoint3d& end, const AcGiArcType arcType) const
{
    AcGePoint3d center;
    double radius = 0.0;
    AcGeVector3d normal;
    if (!circleThrough(start, point, end, center, radius, normal))
        return m_state.aborted();
    const AcGeVector3d startVector = start - center;
    const double sweep = angleAbout(startVector / radius, end - center, normal);
    return circularArc(center, radius, normal, startVector, sweep == 0.0 ? kTwoPi : sweep, arcType);
}

Adesk::Boolean RecordingGeometry::recordPoints(PrimitiveKind kind, Adesk::UInt32 count, const AcGePoint3d* points,
                                               const char* call) const
{
    if (count > 0 && points == nullptr)
        headless::raiseHostError(L"AcGiGeometry::%S: %u vertices announced but no vertex list given", call,
                                 static_cast<unsigned>(count));
    const AcGeMatrix3d xform = m_state.modelToWorld();
    RecordedPrimitive* prim = m_state.startRecord(kind);
    if (prim == nullptr)
        return true;
    prim->points.reserve(count);
    for (Adesk::UInt32 i = 0; i < count; ++i)
        prim->points.push_back(transformed(xform, points[i]));
    return false;
}

Adesk::Boolean RecordingGeometry::polyline(const Adesk::UInt32 nbPoints, const AcGePoint3d* vertexList,
                                           const AcGeVector3d* normal, Adesk::LongPtr baseSubEntMarker) const
{
    if (nbPoints > 0 && vertexList == nullptr)
        headless::raiseHostError(L"AcGiGeometry::polyline: %u vertices announced but no vertex list given",
                                 static_cast<unsigned>(nbPoints));
    const AcGeMatrix3d xform = m_state.modelToWorld();
    RecordedPrimitive* prim = m_state.startRecord(PrimitiveKind::kPolyline);
    if (prim == nullptr)
        return true;
    prim->points.reserve(nbPoints);
    for (Adesk::UInt32 i = 0; i < nbPoints; ++i)
        prim->points.push_back(transformed(xform, vertexList[i]));
    if (normal != nullptr)
        prim->vectors = {transformNormal(xform, *normal)};
    prim->integers = {static_cast<Adesk::Int64>(baseSubEntMarker)};
    return false;
}

Adesk::Boolean RecordingGeometry::polyline(const AcGiPolyline& polylineObj) const
{
    return polyline(polylineObj.points(), polylineObj.vertexList(), polylineObj.normal(),
                    polylineObj.baseSubEntMarker());
}

Adesk::Boolean RecordingGeometry::polygon(const Adesk::UInt32 nbPoints, const AcGePoint3d* vertexList) const
{
    return recordPoints(PrimitiveKind::kPolygon, nbPoints, vertexList, "polygon");
}

Adesk::Boolean RecordingGeometry::pline(const AcDbPolyline& lwBuf, Adesk::UInt32 fromIndex, Adesk::UInt32 numSegs) const
{
    const AcGeMatrix3d xform = m_state.modelToWorld();
    const AcGeVector3d normal = lwBuf.normal();
    // Widths scale as a circle's radius does; the normal is carried as an arc's, so that
    // the bulges keep their sense about it.
    const double scale = transformed(xform, ocsXAxis(normal)).length();
    // One view of the polyline for all its vertices: the vertex queries each build the
    // plane's axes anew.
    const hostpoly::PolylineView view(lwBuf);
    const int count = view.numVerts();
    RecordedPrimitive* prim = m_state.startRecord(PrimitiveKind::kPline);
    if (prim == nullptr)
        return true;
    prim->vectors = {transformNormal(xform, normal)};
    prim->points.reserve(static_cast<std::size_t>(count));
    prim->numbers.reserve(1 + 3 * static_cast<std::size_t>(count));
    prim->numbers = {0.0};
    for (int i = 0; i < count; ++i) {
        prim->points.push_back(transformed(xform, view.worldPoint(i)));
        prim->numbers.insert(prim->numbers.end(),
                             {view.bulge(i), view.startWidth(i) * scale, view.endWidth(i) * scale});
    }
    prim->numbers[0] =
        prim->points.empty() ? lwBuf.elevation() : prim->points[0].asVector().dotProduct(prim->vectors[0]);
    prim->integers = {static_cast<Adesk::Int64>(fromIndex), static_cast<Adesk::Int64>(numSegs),
                      lwBuf.isClosed() ? 1 : 0};
    return false;
}

Adesk::Boolean RecordingGeometry::mesh(const Adesk::UInt32 rows, const Adesk::UInt32 columns,
                                       const AcGePoint3d* vertexList, const AcGiEdgeData*, const AcGiFaceData*,
                                       const AcGiVertexData*, const bool) const
{
    const Adesk::UInt64 count = static_cast<Adesk::UInt64>(rows) * columns;
    if (count > 0xFFFFFFFFu)
        headless::raiseHostError(L"AcGiGeometry::mesh: %u x %u vertices is too many", static_cast<unsigned>(rows),
                                 static_cast<unsigned>(columns));
    if (recordPoints(PrimitiveKind::kMesh, static_cast<Adesk::UInt32>(count), vertexList, "mesh"))
        return true;
    m_state.primitives.back().integers = {static_cast<Adesk::Int64>(rows), static_cast<Adesk::Int64>(columns)};
    return false;
}

Adesk::Boolean RecordingGeometry::shell(const Adesk::UInt32 nbVertex, const AcGePoint3d* vertexList,
                                        const Adesk::UInt32 faceListSize, const Adesk::Int32* faceList,
                                        const AcGiEdgeData*, const AcGiFaceData*, const AcGiVertexData*,
                                        const struct resbuf*, const bool) const
{
    if (faceListSize > 0 && faceList == nullptr)
        headless::raiseHostError(L"AcGiGeometry::shell: a face list of %u entries announced but none given",
                                 static_cast<unsigned>(faceListSize));
    if (recordPoints(PrimitiveKind::kShell, nbVertex, vertexList, "shell"))
        return true;
    m_state.primitives.back().integers.assign(faceList, faceList + faceListSize);
    return false;
}

Adesk::Boolean RecordingGeometry::recordText(const AcGePoint3d& position, const AcGeVector3d& normal,
                                             const AcGeVector3d& direction, std::wstring text, bool raw,
                                             const AcGiTextStyle& style) const
{
    const AcGeMatrix3d xform = m_state.modelToWorld();
    const AcGeVector3d n = unitOr(normal, AcGeVector3d::kZAxis);
    const AcGeVector3d inPlane = direction - n * n.dotProduct(direction);
    const AcGeVector3d dir = unitOr(inPlane, ocsXAxis(n));
    const AcGeVector3d up = n.crossProduct(dir);
    const AcGeVector3d worldDir = transformed(xform, dir);
    const AcGeVector3d worldUp = transformed(xform, up);
    const double dirScale = worldDir.length();
    const double upScale = worldUp.length();

    RecordedPrimitive* prim = m_state.startRecord(PrimitiveKind::kText);
    if (prim == nullptr)
        return true;
    prim->points = {transformed(xform, position)};
    prim->vectors = {unitOr(worldDir.crossProduct(worldUp), n), unitOr(worldDir, dir)};
    prim->style = style;
    // The text keeps its proportions in world terms: the height follows the scale across
    // the text, the width factor the ratio of the scales along and across it.
    if (upScale > 0.0) {
        prim->style.setTextSize(style.textSize() * upScale);
        prim->style.setXScale(style.xScale() * dirScale / upScale);
    }
    prim->numbers = {prim->style.textSize(), prim->style.xScale(), prim->style.obliquingAngle(),
                     prim->style.trackingPercent()};
    prim->text = std::move(text);
    prim->integers = {raw ? 1 : 0};
    return false;
}

Adesk::Boolean RecordingGeometry::text(const AcGePoint3d& position, const AcGeVector3d& normal,
                                       const AcGeVector3d& direction, const double height, const double width,
                                       const double oblique, const ACHAR* msg) const
{
    AcGiTextStyle style;
    style.setTextSize(height);
    style.setXScale(width);
    style.setObliquingAngle(oblique);
    return recordText(position, normal, direction, msg == nullptr ? std::wstring() : std::wstring(msg), false, style);
}

Adesk::Boolean RecordingGeometry::text(const AcGePoint3d& position, const AcGeVector3d& normal,
                                       const AcGeVector3d& direction, const ACHAR* msg, const Adesk::Int32 length,
                                       const Adesk::Boolean raw, const AcGiTextStyle& textStyle) const
{
    std::wstring str;
    if (msg != nullptr) {
        const size_t full = std::wcslen(msg);
        str.assign(msg, length < 0 ? full : std::min(full, static_cast<size_t>(length)));
    }
    return recordText(position, normal, direction, std::move(str), raw, textStyle);
}

Adesk::Boolean RecordingGeometry::xline(const AcGePoint3d& p1, const AcGePoint3d& p2) const
{
    const AcGePoint3d points[2] = {p1, p2};
    return recordPoints(PrimitiveKind::kXline, 2, points, "xline");
}

Adesk::Boolean RecordingGeometry::ray(const AcGePoint3d& base, const AcGePoint3d& through) const
{
    const AcGePoint3d points[2] = {base, through};
    return recordPoints(PrimitiveKind::kRay, 2, points, "ray");
}

Adesk::Boolean RecordingGeometry::worldLine(const AcGePoint3d points[2])
{
    RecordedPrimitive* prim = m_state.startRecord(PrimitiveKind::kWorldLine);
    if (prim == nullptr)
        return true;
    prim->points = {points[0], points[1]};
    return false;
}

void RecordingGeometry::setExtents(AcGePoint3d* newExtents) const
{
    if (newExtents == nullptr)
        return;
    recordPoints(PrimitiveKind::kExtents, 2, newExtents, "setExtents");
}

Adesk::Boolean RecordingGeometry::pushClipBoundary(AcGiClipBoundary* boundary)
{
    if (boundary == nullptr)
        headless::raiseHostError(L"AcGiGeometry::pushClipBoundary: no boundary given");
    ++m_state.clipDepth;
    RecordedPrimitive* prim = m_state.startRecord(PrimitiveKind::kClip);
    if (prim == nullptr)
        return true;
    prim->points.reserve(static_cast<std::size_t>(boundary->m_aptPoints.length()));
    for (int i = 0; i < boundary->m_aptPoints.length(); ++i)
        prim->points.emplace_back(boundary->m_aptPoints[i].x, boundary->m_aptPoints[i].y, 0.0);
    return false;
}

void RecordingGeometry::popClipBoundary()
{
    if (m_state.clipDepth == 0)
        headless::raiseHostError(L"AcGiGeometry::popClipBoundary: no clip boundary is pushed");
    --m_state.clipDepth;
    m_state.startRecord(PrimitiveKind::kClipEnd);
}

Adesk::Boolean RecordingGeometry::draw(AcGiDrawable* drawable) const
{
    if (drawable == nullptr || m_state.aborted())
        return m_state.aborted();
    const headless::RecordedTraits saved = m_state.traits;
    ++m_state.depth;
    runDrawable(drawable);
    --m_state.depth;
    m_state.traits = saved;
    return m_state.aborted();
}

Adesk::Boolean RecordingGeometry::runDrawable(AcGiDrawable* drawable) const
{
    const size_t transforms = m_state.modelTransforms.size();
    const int clips = m_state.clipDepth;
    auto* traits = static_cast<AcGiDrawableTraits*>(&m_state.owner->subEntityTraits());
    const Adesk::UInt32 flags = drawable->setAttributes(traits);
    Adesk::Boolean done = Adesk::kTrue;
    if ((flags & AcGiDrawable::kDrawableIsInvisible) == 0) {
        done = drawable->worldDraw(m_state.owner);
        if (!done)
            ++m_state.viewportDrawRequests;
    }
    // A drawable must leave the transform and clip stacks as it found them.
    if (m_state.modelTransforms.size() != transforms || m_state.clipDepth != clips) {
        const AcRxClass* cls = drawable->isA();
        headless::raiseHostError(L"worldDraw of %s left %d model transforms and %d clip boundaries pushed",
                                 cls != nullptr ? cls->name() : L"a drawable",
                                 static_cast<int>(m_state.modelTransforms.size()) - static_cast<int>(transforms),
                                 m_state.clipDepth - clips);
    }
    return done;
}

}  // namespace hostgi
