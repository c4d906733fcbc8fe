// PrimitiveGeometry: transforming, measuring and replaying recorded primitives.
#include "PrimitiveGeometry.h"

#include <algorithm>
#include <cmath>

#include "AcDbPolyline.h"
#include "AcGiWorldGeometry.h"

namespace hostfile {

namespace {

using headless::PrimitiveKind;
using headless::RecordedPrimitive;

constexpr double kPi = 3.14159265358979323846;
// Arcs flatten into segments of at most this angle when their extents are measured.
constexpr double kExtentsStep = kPi / 36.0;

// Scaled by its largest component first: the length of (1e200, 1e200, 0) overflows to
// infinity and would make a zero "unit" vector, which no plane can be built on.
AcGeVector3d unitOr(const AcGeVector3d& v, const AcGeVector3d& fallback)
{
    const double largest = std::max({std::fabs(v.x), std::fabs(v.y), std::fabs(v.z)});
    if (!(largest > 0.0) || !std::isfinite(largest))
        return fallback;
    const AcGeVector3d scaled = v / largest;
    return scaled / scaled.length();
}

AcGeVector3d moved(const AcGeVector3d& v, const AcGeMatrix3d& xform)
{
    AcGeVector3d out = v;
    return out.transformBy(xform);
}

// A unit vector in the plane of normal, and the one a quarter turn after it.
void planeAxes(const AcGeVector3d& normal, AcGeVector3d& u, AcGeVector3d& v)
{
    const AcGeVector3d n = unitOr(normal, AcGeVector3d::kZAxis);
    u = unitOr(n.perpVector(), AcGeVector3d::kXAxis);
    v = n.crossProduct(u);
}

double numberAt(const RecordedPrimitive& p, std::size_t i, double fallback)
{
    return i < p.numbers.size() ? p.numbers[i] : fallback;
}

// A lightweight polyline is drawn again from a polyline made of its record: vertices in
// the plane of its normal, with their bulges and widths.
// A pline's vertices and, for every bulged segment, points along its arc: an arc bows
// beyond its end points, and the box must hold its apex.
void addPlineExtents(const RecordedPrimitive& p, AcDbExtents& box)
{
    const std::size_t count = p.points.size();
    for (const AcGePoint3d& point : p.points)
        box.addPoint(point);
    if (count < 2 || p.vectors.empty())
        return;
    const AcGeVector3d normal = unitOr(p.vectors[0], AcGeVector3d::kZAxis);
    const bool closed = p.integers.size() >= 3 && p.integers[2] != 0;
    const std::size_t segments = closed ? count : count - 1;
    for (std::size_t i = 0; i < segments; ++i) {
        const double bulge = numberAt(p, 1 + 3 * i, 0.0);
        if (!std::isfinite(bulge) || std::fabs(bulge) < 1e-12)
            continue;
        const AcGePoint3d& from = p.points[i];
        const AcGePoint3d& to = p.points[(i + 1) % count];
        const AcGeVector3d chord = to - from;
        const double length = chord.length();
        if (length <= 0.0)
            continue;
        // A positive bulge turns anticlockwise about the normal: the centre lies on the left
        // of the chord when the arc is less than a half circle.
        const AcGeVector3d left = normal.crossProduct(chord / length);
        const AcGePoint3d middle = from + chord * 0.5;
        const AcGePoint3d center = middle + left * (length * (1.0 - bulge * bulge) / (4.0 * bulge));
        const double sweep = 4.0 * std::atan(bulge);
        const AcGeVector3d radial = from - center;
        const int steps = static_cast<int>(std::ceil(std::fabs(sweep) / kExtentsStep));
        for (int k = 1; k < steps; ++k) {
            const double angle = sweep * k / steps;
            box.addPoint(center + radial * std::cos(angle) + normal.crossProduct(radial) * std::sin(angle));
        }
    }
}

void replayPline(const RecordedPrimitive& p, AcGiWorldGeometry& geometry)
{
    const std::size_t count = p.points.size();
    if (count == 0 || p.vectors.empty() || p.numbers.size() < 1 + 3 * count || p.integers.size() < 2)
        return;
    const AcGeVector3d normal = unitOr(p.vectors[0], AcGeVector3d::kZAxis);
    const AcGeMatrix3d toPlane = AcGeMatrix3d::worldToPlane(normal);
    AcDbPolyline polyline;
    polyline.setNormal(normal);
    polyline.setElevation(p.numbers[0]);
    for (std::size_t i = 0; i < count; ++i) {
        AcGePoint3d inPlane = p.points[i];
        inPlane.transformBy(toPlane);
        polyline.addVertexAt(static_cast<unsigned>(i), AcGePoint2d(inPlane.x, inPlane.y), p.numbers[1 + 3 * i],
                             p.numbers[2 + 3 * i], p.numbers[3 + 3 * i]);
    }
    polyline.setClosed(p.integers.size() >= 3 && p.integers[2] != 0);
    const auto from = p.integers[0];
    const auto segments = p.integers[1];
    if (from < 0 || segments < 0 || from > static_cast<Adesk::Int64>(count) || segments > static_cast<Adesk::Int64>(count))
        return;
    geometry.pline(polyline, static_cast<Adesk::UInt32>(from), static_cast<Adesk::UInt32>(segments));
}

}  // namespace

void PrimitiveGeometry::transform(RecordedPrimitive& p, const AcGeMatrix3d& xform)
{
    for (AcGePoint3d& point : p.points)
        point.transformBy(xform);
    switch (p.kind) {
    case PrimitiveKind::kCircle:
        if (!p.vectors.empty() && !p.numbers.empty()) {
            AcGeVector3d u, v;
            planeAxes(p.vectors[0], u, v);
            const AcGeVector3d mu = moved(u, xform);
            p.vectors[0] = unitOr(mu.crossProduct(moved(v, xform)), p.vectors[0]);
            p.numbers[0] *= mu.length();
        }
        break;
    case PrimitiveKind::kArc:
        if (p.vectors.size() >= 2 && !p.numbers.empty()) {
            const AcGeVector3d u = unitOr(p.vectors[1], AcGeVector3d::kXAxis);
            const AcGeVector3d v = unitOr(p.vectors[0], AcGeVector3d::kZAxis).crossProduct(u);
            const AcGeVector3d mu = moved(u, xform);
            p.vectors[0] = unitOr(mu.crossProduct(moved(v, xform)), p.vectors[0]);
            p.vectors[1] = unitOr(mu, u);
            p.numbers[0] *= mu.length();
        }
        break;
    case PrimitiveKind::kPolyline:
        if (!p.vectors.empty()) {
            AcGeVector3d u, v;
            planeAxes(p.vectors[0], u, v);
            p.vectors[0] = unitOr(moved(u, xform).crossProduct(moved(v, xform)), p.vectors[0]);
        }
        break;
    case PrimitiveKind::kPline:
        // numbers: the elevation, then per vertex bulge, start width and end width.
        if (!p.vectors.empty() && !p.numbers.empty()) {
            AcGeVector3d u, v;
            planeAxes(p.vectors[0], u, v);
            const AcGeVector3d mu = moved(u, xform);
            p.vectors[0] = unitOr(mu.crossProduct(moved(v, xform)), p.vectors[0]);
            for (std::size_t i = 2; i < p.numbers.size(); i += 3) {
                p.numbers[i] *= mu.length();
                if (i + 1 < p.numbers.size())
                    p.numbers[i + 1] *= mu.length();
            }
            if (!p.points.empty())
                p.numbers[0] = p.points[0].asVector().dotProduct(p.vectors[0]);
        }
        break;
    case PrimitiveKind::kText:
        if (p.vectors.size() >= 2) {
            const AcGeVector3d dir = unitOr(p.vectors[1], AcGeVector3d::kXAxis);
            const AcGeVector3d up = unitOr(p.vectors[0], AcGeVector3d::kZAxis).crossProduct(dir);
            const AcGeVector3d md = moved(dir, xform);
            const AcGeVector3d mu = moved(up, xform);
            p.vectors[0] = unitOr(md.crossProduct(mu), p.vectors[0]);
            p.vectors[1] = unitOr(md, dir);
            const double upScale = mu.length();
            if (upScale > 0.0) {
                p.style.setTextSize(p.style.textSize() * upScale);
                p.style.setXScale(p.style.xScale() * md.length() / upScale);
                if (p.numbers.size() >= 2) {
                    p.numbers[0] = p.style.textSize();
                    p.numbers[1] = p.style.xScale();
                }
            }
        }
        break;
    default:
        break;
    }
}

std::vector<AcGePoint3d> PrimitiveGeometry::curvePoints(const RecordedPrimitive& p, double maxStep)
{
    std::vector<AcGePoint3d> points;
    if (p.points.empty() || p.vectors.empty() || p.numbers.empty())
        return points;
    const AcGePoint3d center = p.points[0];
    const double radius = p.numbers[0];
    AcGeVector3d u, v;
    double sweep = 2.0 * kPi;
    if (p.kind == PrimitiveKind::kArc && p.vectors.size() >= 2) {
        u = unitOr(p.vectors[1], AcGeVector3d::kXAxis);
        v = unitOr(p.vectors[0], AcGeVector3d::kZAxis).crossProduct(u);
        sweep = numberAt(p, 1, 0.0);
    } else {
        planeAxes(p.vectors[0], u, v);
    }
    if (!std::isfinite(sweep) || !std::isfinite(radius) || !(maxStep > 0.0))
        return points;
    const double span = std::min(std::fabs(sweep), 2.0 * kPi);
    const int segments = std::max(1, static_cast<int>(std::ceil(span / maxStep)));
    const double step = (sweep < 0 ? -span : span) / segments;
    points.reserve(static_cast<std::size_t>(segments) + 1);
    for (int i = 0; i <= segments; ++i) {
        const double angle = step * i;
        points.push_back(center + (u * std::cos(angle) + v * std::sin(angle)) * radius);
    }
    return points;
}

std::array<AcGePoint3d, 4> PrimitiveGeometry::textBox(const RecordedPrimitive& p)
{
    const AcGePoint3d origin = p.points.empty() ? AcGePoint3d::kOrigin : p.points[0];
    AcGeVector3d dir = AcGeVector3d::kXAxis;
    AcGeVector3d up = AcGeVector3d::kYAxis;
    if (p.vectors.size() >= 2) {
        dir = unitOr(p.vectors[1], AcGeVector3d::kXAxis);
        up = unitOr(p.vectors[0], AcGeVector3d::kZAxis).crossProduct(dir);
    }
    const bool raw = !p.integers.empty() && p.integers[0] != 0;
    const AcGePoint2d size = p.style.extents(p.text.c_str(), Adesk::kTrue, -1, raw);
    const double width = std::isfinite(size.x) ? size.x : 0.0;
    const double height = std::isfinite(size.y) ? size.y : 0.0;
    return {origin, origin + dir * width, origin + dir * width + up * height, origin + up * height};
}

bool PrimitiveGeometry::addExtents(const RecordedPrimitive& p, AcDbExtents& box)
{
    switch (p.kind) {
    case PrimitiveKind::kCircle:
    case PrimitiveKind::kArc:
        for (const AcGePoint3d& point : curvePoints(p, kExtentsStep))
            box.addPoint(point);
        return true;
    case PrimitiveKind::kText:
        for (const AcGePoint3d& corner : textBox(p))
            box.addPoint(corner);
        return true;
    case PrimitiveKind::kPline:
        addPlineExtents(p, box);
        return !p.points.empty();
    case PrimitiveKind::kPolyline:
    case PrimitiveKind::kPolygon:
    case PrimitiveKind::kMesh:
    case PrimitiveKind::kShell:
    case PrimitiveKind::kWorldLine:
        for (const AcGePoint3d& point : p.points)
            box.addPoint(point);
        return !p.points.empty();
    default:
        return false;
    }
}

void PrimitiveGeometry::replay(const RecordedPrimitive& p, AcGiWorldGeometry& geometry)
{
    const auto count = static_cast<Adesk::UInt32>(p.points.size());
    switch (p.kind) {
    case PrimitiveKind::kCircle:
        if (count >= 1 && !p.vectors.empty() && !p.numbers.empty())
            geometry.circle(p.points[0], p.numbers[0], p.vectors[0]);
        break;
    case PrimitiveKind::kArc:
        if (count >= 1 && p.vectors.size() >= 2 && p.numbers.size() >= 2) {
            // A kept arc of a type the host does not know is damaged and not drawn.
            const Adesk::Int64 type = p.integers.empty() ? Adesk::Int64{kAcGiArcSimple} : p.integers[0];
            if (type >= kAcGiArcSimple && type <= kAcGiArcChord) {
                geometry.circularArc(p.points[0], p.numbers[0], p.vectors[0], p.vectors[1], p.numbers[1],
                                     static_cast<AcGiArcType>(type));
            }
        }
        break;
    case PrimitiveKind::kPolyline:
        if (count >= 2) {
            const Adesk::LongPtr marker = !p.integers.empty() ? p.integers[0] : -1;
            geometry.polyline(count, p.points.data(), p.vectors.empty() ? nullptr : &p.vectors[0], marker);
        }
        break;
    case PrimitiveKind::kPline:
        replayPline(p, geometry);
        break;
    case PrimitiveKind::kPolygon:
        if (count >= 3)
            geometry.polygon(count, p.points.data());
        break;
    case PrimitiveKind::kMesh:
        if (p.integers.size() >= 2 && p.integers[0] > 0 && p.integers[1] > 0 && p.integers[0] <= count &&
            p.integers[1] <= count &&
            static_cast<std::uint64_t>(p.integers[0]) * static_cast<std::uint64_t>(p.integers[1]) == count) {
            geometry.mesh(static_cast<Adesk::UInt32>(p.integers[0]), static_cast<Adesk::UInt32>(p.integers[1]),
                          p.points.data());
        }
        break;
    case PrimitiveKind::kShell: {
        std::vector<Adesk::Int32> faces(p.integers.begin(), p.integers.end());
        geometry.shell(count, p.points.data(), static_cast<Adesk::UInt32>(faces.size()),
                       faces.empty() ? nullptr : faces.data());
        break;
    }
    case PrimitiveKind::kText:
        if (count >= 1 && p.vectors.size() >= 2) {
            const bool raw = !p.integers.empty() && p.integers[0] != 0;
            geometry.text(p.points[0], p.vectors[0], p.vectors[1], p.text.c_str(), -1, raw, p.style);
        }
        break;
    case PrimitiveKind::kXline:
        if (count >= 2)
            geometry.xline(p.points[0], p.points[1]);
        break;
    case PrimitiveKind::kRay:
        if (count >= 2)
            geometry.ray(p.points[0], p.points[1]);
        break;
    case PrimitiveKind::kWorldLine:
        if (count >= 2)
            geometry.worldLine(p.points.data());
        break;
    case PrimitiveKind::kExtents:
        if (count >= 2) {
            AcGePoint3d corners[2] = {p.points[0], p.points[1]};
            geometry.setExtents(corners);
        }
        break;
    case PrimitiveKind::kClip:
    case PrimitiveKind::kClipEnd:
        break;
    }
}

}  // namespace hostfile
