// ArcGeometry: the curve interface over circles and arcs (parameters are angles).
#include <algorithm>
#include <cmath>

#include "ArcGeometry.h"
#include "gi/PlaneMath.h"

namespace hostents {
namespace {

// The coarse search for the nearest point seen along a direction, then its refinement.
constexpr int kAlongSamples = 720;
constexpr int kAlongRefinements = 100;

}  // namespace

Acad::ErrorStatus ArcGeometry::pointAtParam(double param, AcGePoint3d& point) const
{
    double dist = 0.0;
    const Acad::ErrorStatus es = distAtParam(param, dist);
    if (es != Acad::eOk)
        return es;
    point = pointAtAngle(param);
    return Acad::eOk;
}

Acad::ErrorStatus ArcGeometry::paramAtPoint(const AcGePoint3d& point, double& param) const
{
    if (!isOn(point))
        return Acad::eInvalidInput;
    if (isFull()) {
        param = angleOf(point);
        return Acad::eOk;
    }
    const double offset = offsetOf(angleOf(point));
    // Within tolerance before the start the offset wraps to nearly 2 pi.
    param = startAngle + (offset > sweep ? (offset > hostgi::kPi + sweep / 2.0 ? 0.0 : sweep) : offset);
    return Acad::eOk;
}

Acad::ErrorStatus ArcGeometry::distAtParam(double param, double& dist) const
{
    if (!std::isfinite(param))
        return Acad::eInvalidInput;
    const double angularTol = radius > 0.0 ? kOnCurveTolerance / radius : 0.0;
    if (!isFull() && (param < startAngle - angularTol || param > endAngle() + angularTol))
        return Acad::eInvalidInput;
    dist = radius * (isFull() ? param - startAngle : std::min(std::max(param, startAngle), endAngle()) - startAngle);
    return Acad::eOk;
}

Acad::ErrorStatus ArcGeometry::paramAtDist(double dist, double& param) const
{
    if (!std::isfinite(dist) || radius <= 0.0)
        return Acad::eInvalidInput;
    if (!isFull() && (dist < -kOnCurveTolerance || dist > length() + kOnCurveTolerance))
        return Acad::eInvalidInput;
    param = startAngle + (isFull() ? dist : std::min(std::max(dist, 0.0), length())) / radius;
    return Acad::eOk;
}

Acad::ErrorStatus ArcGeometry::firstDeriv(double param, AcGeVector3d& deriv) const
{
    double dist = 0.0;
    const Acad::ErrorStatus es = distAtParam(param, dist);
    if (es != Acad::eOk)
        return es;
    deriv = firstDerivAtAngle(param);
    return Acad::eOk;
}

Acad::ErrorStatus ArcGeometry::secondDeriv(double param, AcGeVector3d& deriv) const
{
    double dist = 0.0;
    const Acad::ErrorStatus es = distAtParam(param, dist);
    if (es != Acad::eOk)
        return es;
    deriv = secondDerivAtAngle(param);
    return Acad::eOk;
}

Acad::ErrorStatus ArcGeometry::closestPointAlong(const AcGePoint3d& given, const AcGeVector3d& direction, bool full,
                                                 AcGePoint3d& point) const
{
    const double dirLength = direction.length();
    if (dirLength == 0.0 || !std::isfinite(dirLength))
        return Acad::eInvalidInput;
    const AcGeVector3d view = direction / dirLength;
    // Seen along the normal the arc keeps its shape: the plain nearest point.
    if (view.crossProduct(normal).length() <= kOnCurveTolerance) {
        point = closestPoint(given, full);
        return Acad::eOk;
    }
    // Otherwise the arc is seen as part of an ellipse: search its angle numerically.
    auto seenDistance = [&](double angle) {
        const AcGeVector3d v = pointAtAngle(angle) - given;
        return (v - view * v.dotProduct(view)).lengthSqrd();
    };
    const double from = full ? 0.0 : startAngle;
    const double span = full ? hostgi::kTwoPi : sweep;
    double best = from;
    double bestValue = seenDistance(from);
    for (int i = 1; i <= kAlongSamples; ++i) {
        const double angle = from + span * i / kAlongSamples;
        const double value = seenDistance(angle);
        if (value < bestValue) {
            bestValue = value;
            best = angle;
        }
    }
    // Golden-section refinement within one sample step either side.
    const double step = span / kAlongSamples;
    double lo = full ? best - step : std::max(from, best - step);
    double hi = full ? best + step : std::min(from + span, best + step);
    const double ratio = 0.6180339887498949;
    for (int i = 0; i < kAlongRefinements && hi - lo > 1e-15; ++i) {
        const double a = hi - (hi - lo) * ratio;
        const double b = lo + (hi - lo) * ratio;
        if (seenDistance(a) < seenDistance(b))
            hi = b;
        else
            lo = a;
    }
    point = pointAtAngle((lo + hi) / 2.0);
    return Acad::eOk;
}

double ArcGeometry::area() const
{
    if (isFull())
        return hostgi::kPi * radius * radius;
    return radius * radius * (sweep - std::sin(sweep)) / 2.0;
}

void ArcGeometry::osnapPoints(AcDb::OsnapMode mode, const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                              AcGePoint3dArray& snapPoints) const
{
    switch (mode) {
    case AcDb::kOsModeEnd:
        if (!isFull()) {
            snapPoints.append(pointAtAngle(startAngle));
            snapPoints.append(pointAtAngle(endAngle()));
        }
        break;
    case AcDb::kOsModeMid:
        if (!isFull())
            snapPoints.append(pointAtAngle(startAngle + sweep / 2.0));
        break;
    case AcDb::kOsModeCen:
        snapPoints.append(center);
        break;
    case AcDb::kOsModeQuad: {
        AcGePoint3d quads[4];
        int count = 0;
        quadrantPoints(quads, count);
        for (int i = 0; i < count; ++i)
            snapPoints.append(quads[i]);
        break;
    }
    case AcDb::kOsModeNear:
        snapPoints.append(closestPoint(pickPoint));
        break;
    case AcDb::kOsModePerp: {
        // The foot of the perpendicular from the last point: where the line through the
        // centre meets the arc, the nearer side first.
        const AcGeVector3d v = lastPoint - center;
        const AcGeVector3d inPlane = v - normal * v.dotProduct(normal);
        if (inPlane.length() <= kOnCurveTolerance)
            break;
        const double angle = angleOf(lastPoint);
        for (double candidate : {angle, angle + hostgi::kPi}) {
            if (containsAngle(hostgi::normalizeAngle(candidate)))
                snapPoints.append(pointAtAngle(candidate));
        }
        break;
    }
    case AcDb::kOsModeTan: {
        AcGePoint3d tangents[2];
        const int count = tangentPoints(lastPoint, tangents);
        for (int i = 0; i < count; ++i)
            snapPoints.append(tangents[i]);
        break;
    }
    default:
        break;
    }
}

bool ArcGeometry::splitOffsets(const double* params, int count, std::vector<double>& offsets) const
{
    const double angularTol = radius > 0.0 ? kOnCurveTolerance / radius : 0.0;
    offsets.clear();
    for (int i = 0; i < count; ++i) {
        double offset = 0.0;
        if (isFull()) {
            if (!std::isfinite(params[i]))
                return false;
            offset = offsetOf(params[i]);
        } else {
            if (!std::isfinite(params[i]) || params[i] < startAngle - angularTol || params[i] > endAngle() + angularTol)
                return false;
            offset = std::min(std::max(params[i] - startAngle, 0.0), sweep);
        }
        offsets.push_back(offset);
    }
    std::sort(offsets.begin(), offsets.end());
    std::vector<double> distinct;
    for (double offset : offsets) {
        if (distinct.empty() || offset - distinct.back() > angularTol)
            distinct.push_back(offset);
    }
    offsets = distinct;
    return true;
}

}  // namespace hostents
