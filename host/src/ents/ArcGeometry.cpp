// ArcGeometry: angles, points, extents and transforms of circles and arcs.
#include "ArcGeometry.h"

#include <algorithm>
#include <cmath>
#include <ostream>

#include "gi/PlaneMath.h"

namespace hostents {
namespace {

// Ratios of axis lengths within this count as equal for a uniform in-plane scale.
constexpr double kUniformScaleTolerance = 1e-9;

}  // namespace

ArcGeometry::ArcGeometry(const AcGePoint3d& c, double r, const AcGeVector3d& n, double start, double sw)
    : center(c), radius(r), normal(n), startAngle(hostgi::normalizeAngle(start)), sweep(sw)
{
}

ArcGeometry ArcGeometry::fromAngles(const AcGePoint3d& c, double r, const AcGeVector3d& n, double start, double end)
{
    const double sweep = hostgi::normalizeAngle(end - start);
    return ArcGeometry(c, r, n, start, sweep == 0.0 ? hostgi::kTwoPi : sweep);
}

bool ArcGeometry::isFull() const
{
    return sweep >= hostgi::kTwoPi;
}

AcGeVector3d ArcGeometry::xAxis() const
{
    return hostgi::ocsXAxis(normal);
}

AcGeVector3d ArcGeometry::yAxis() const
{
    return hostgi::ocsYAxis(normal);
}

AcGePoint3d ArcGeometry::pointAtAngle(double angle) const
{
    return center + (xAxis() * std::cos(angle) + yAxis() * std::sin(angle)) * radius;
}

AcGeVector3d ArcGeometry::firstDerivAtAngle(double angle) const
{
    return (xAxis() * -std::sin(angle) + yAxis() * std::cos(angle)) * radius;
}

AcGeVector3d ArcGeometry::secondDerivAtAngle(double angle) const
{
    return (xAxis() * std::cos(angle) + yAxis() * std::sin(angle)) * -radius;
}

double ArcGeometry::angleOf(const AcGePoint3d& point) const
{
    return hostgi::angleAbout(xAxis(), point - center, normal);
}

double ArcGeometry::offsetOf(double angle) const
{
    return hostgi::normalizeAngle(angle - startAngle);
}

bool ArcGeometry::containsAngle(double angle) const
{
    if (isFull())
        return true;
    const double angularTol = radius > 0.0 ? kOnCurveTolerance / radius : 0.0;
    const double offset = offsetOf(angle);
    return offset <= sweep + angularTol || offset >= hostgi::kTwoPi - angularTol;
}

bool ArcGeometry::isOn(const AcGePoint3d& point, bool full) const
{
    const AcGeVector3d v = point - center;
    const double height = v.dotProduct(normal);
    if (std::fabs(height) > kOnCurveTolerance)
        return false;
    const AcGeVector3d inPlane = v - normal * height;
    if (std::fabs(inPlane.length() - radius) > kOnCurveTolerance)
        return false;
    return full || containsAngle(angleOf(point));
}

AcGePoint3d ArcGeometry::closestPoint(const AcGePoint3d& point, bool full) const
{
    const AcGeVector3d v = point - center;
    const AcGeVector3d inPlane = v - normal * v.dotProduct(normal);
    // Every point of the circle is nearest to the centre's axis; the start point stands for them.
    const double angle = inPlane.length() == 0.0 ? startAngle : angleOf(point);
    if (full || containsAngle(angle))
        return pointAtAngle(angle);
    const AcGePoint3d start = pointAtAngle(startAngle);
    const AcGePoint3d end = pointAtAngle(endAngle());
    return point.distanceTo(start) <= point.distanceTo(end) ? start : end;
}

AcDbExtents ArcGeometry::extents() const
{
    AcDbExtents ext;
    if (isFull()) {
        // A circle's half-extent along a world axis is r sqrt(1 - n_i^2).
        const AcGeVector3d half(radius * std::sqrt(std::max(0.0, 1.0 - normal.x * normal.x)),
                                radius * std::sqrt(std::max(0.0, 1.0 - normal.y * normal.y)),
                                radius * std::sqrt(std::max(0.0, 1.0 - normal.z * normal.z)));
        ext.addPoint(center - half);
        ext.addPoint(center + half);
        return ext;
    }
    ext.addPoint(pointAtAngle(startAngle));
    ext.addPoint(pointAtAngle(endAngle()));
    const AcGeVector3d x = xAxis();
    const AcGeVector3d y = yAxis();
    const AcGeVector3d worldAxes[3] = {AcGeVector3d::kXAxis, AcGeVector3d::kYAxis, AcGeVector3d::kZAxis};
    for (const AcGeVector3d& axis : worldAxes) {
        // Extremes along an axis lie where the tangent is perpendicular to it.
        const double a = axis.dotProduct(x);
        const double b = axis.dotProduct(y);
        if (a == 0.0 && b == 0.0)
            continue;
        const double angle = std::atan2(b, a);
        for (double candidate : {angle, angle + hostgi::kPi}) {
            if (containsAngle(hostgi::normalizeAngle(candidate)))
                ext.addPoint(pointAtAngle(candidate));
        }
    }
    return ext;
}

void ArcGeometry::quadrantPoints(AcGePoint3d out[4], int& count) const
{
    count = 0;
    for (int i = 0; i < 4; ++i) {
        const double angle = i * hostgi::kPi / 2.0;
        if (containsAngle(angle))
            out[count++] = pointAtAngle(angle);
    }
}

int ArcGeometry::tangentPoints(const AcGePoint3d& from, AcGePoint3d out[2]) const
{
    const AcGeVector3d v = from - center;
    const AcGeVector3d inPlane = v - normal * v.dotProduct(normal);
    const double d = inPlane.length();
    if (d <= radius || d == 0.0)
        return 0;
    // The tangent points lie at acos(r/d) either side of the direction to the point.
    const double base = angleOf(from);
    const double offset = std::acos(radius / d);
    int count = 0;
    for (double angle : {base + offset, base - offset}) {
        if (containsAngle(hostgi::normalizeAngle(angle)))
            out[count++] = pointAtAngle(angle);
    }
    return count;
}

Acad::ErrorStatus ArcGeometry::transformBy(const AcGeMatrix3d& xform, double* thickness)
{
    if (hostgi::isTranslationOnly(xform)) {
        center.transformBy(xform);
        return Acad::eOk;
    }
    AcGeVector3d tx = xAxis();
    AcGeVector3d ty = yAxis();
    tx.transformBy(xform);
    ty.transformBy(xform);
    const double sx = tx.length();
    const double sy = ty.length();
    if (sx == 0.0 || sy == 0.0)
        return Acad::eCannotScaleNonUniformly;
    if (std::fabs(sx - sy) > kUniformScaleTolerance * std::max(sx, sy) ||
        std::fabs(tx.dotProduct(ty)) > kUniformScaleTolerance * sx * sy)
        return Acad::eCannotScaleNonUniformly;

    AcGePoint3d start = pointAtAngle(startAngle);
    start.transformBy(xform);
    AcGePoint3d newCenter = center;
    newCenter.transformBy(xform);
    AcGeVector3d newNormal = tx.crossProduct(ty);
    newNormal = newNormal / newNormal.length();
    if (thickness != nullptr) {
        AcGeVector3d extrusion = normal;
        extrusion.transformBy(xform);
        *thickness *= extrusion.dotProduct(newNormal);
    }
    center = newCenter;
    radius *= sx;
    normal = newNormal;
    if (!isFull())
        startAngle = angleOf(start);
    return Acad::eOk;
}

std::ostream& operator<<(std::ostream& os, const ArcGeometry& arc)
{
    return os << "arc center " << arc.center << " radius " << arc.radius << " normal " << arc.normal << " start "
              << arc.startAngle << " sweep " << arc.sweep;
}

}  // namespace hostents
