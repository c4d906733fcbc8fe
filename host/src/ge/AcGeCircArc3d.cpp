// AcGeCircArc3d: circular arcs in space: construction, evaluation by angle about the
// normal, closest points, intersections and transformation.
#include "gearc3d.h"

#include <algorithm>
#include <cmath>
#include <ostream>

#include "GeFormat.h"
#include "GeMath.h"
#include "gelent3d.h"
#include "geplane.h"
#include "headless/HostError.h"

AcGeCircArc3d::AcGeCircArc3d()
{
    set(AcGePoint3d::kOrigin, AcGeVector3d::kZAxis, 1.0);
}

AcGeCircArc3d::AcGeCircArc3d(const AcGePoint3d& cent, const AcGeVector3d& nrm, double radius)
{
    set(cent, nrm, radius);
}

AcGeCircArc3d::AcGeCircArc3d(const AcGePoint3d& cent, const AcGeVector3d& nrm, const AcGeVector3d& refVec,
                             double radius, double startAngle, double endAngle)
{
    set(cent, nrm, refVec, radius, startAngle, endAngle);
}

AcGeCircArc3d::AcGeCircArc3d(const AcGePoint3d& startPoint, const AcGePoint3d& pnt, const AcGePoint3d& endPoint)
{
    set(startPoint, pnt, endPoint);
}

AcGeCircArc3d& AcGeCircArc3d::set(const AcGePoint3d& cent, const AcGeVector3d& nrm, double radius)
{
    if (nrm.isZeroLength())
        headless::raiseHostError(L"AcGeCircArc3d::set: the normal has zero length");
    return set(cent, nrm, nrm.perpVector(), radius, 0.0, hostge::kTwoPi);
}

AcGeCircArc3d& AcGeCircArc3d::set(const AcGePoint3d& cent, const AcGeVector3d& nrm, const AcGeVector3d& refVec,
                                  double radius, double startAngle, double endAngle)
{
    if (!(radius >= 0.0) || !std::isfinite(radius))
        headless::raiseHostError(L"AcGeCircArc3d::set: the radius must be a finite number not below zero");
    setAxes(nrm, refVec);
    mCenter = cent;
    mRadius = radius;
    mStartAng = startAngle;
    mEndAng = startAngle + hostge::sweepBetween(startAngle, endAngle);
    return *this;
}

AcGeCircArc3d& AcGeCircArc3d::set(const AcGePoint3d& startPoint, const AcGePoint3d& pnt, const AcGePoint3d& endPoint)
{
    const AcGeVector3d a = pnt - startPoint;
    const AcGeVector3d b = endPoint - startPoint;
    const AcGeVector3d axb = a.crossProduct(b);
    const double axbSq = axb.lengthSqrd();
    const double scale = a.lengthSqrd() * b.lengthSqrd();
    if (scale == 0.0 || axbSq <= scale * hostge::kParallelSine * hostge::kParallelSine)
        headless::raiseHostError(L"AcGeCircArc3d::set: the three points are collinear");
    const AcGeVector3d toCenter = (axb.crossProduct(a) * b.lengthSqrd() + b.crossProduct(axb) * a.lengthSqrd()) /
                                  (2.0 * axbSq);
    // Seen from a x b the three points run counter-clockwise round their circle.
    mNormal = axb / std::sqrt(axbSq);
    mCenter = startPoint + toCenter;
    mRadius = toCenter.length();
    mRefVec = -toCenter / mRadius;
    mStartAng = 0.0;
    mEndAng = hostge::sweepBetween(0.0, angleOf(endPoint));
    return *this;
}

AcGePoint3d AcGeCircArc3d::startPoint() const
{
    return mCenter + directionAt(mStartAng) * mRadius;
}

AcGePoint3d AcGeCircArc3d::endPoint() const
{
    return mCenter + directionAt(mEndAng) * mRadius;
}

void AcGeCircArc3d::getPlane(AcGePlane& plane) const
{
    plane.set(mCenter, mRefVec, mNormal.crossProduct(mRefVec));
}

AcGeCircArc3d& AcGeCircArc3d::setCenter(const AcGePoint3d& cent)
{
    mCenter = cent;
    return *this;
}

AcGeCircArc3d& AcGeCircArc3d::setAxes(const AcGeVector3d& normal, const AcGeVector3d& refVec)
{
    if (normal.isZeroLength())
        headless::raiseHostError(L"AcGeCircArc3d::setAxes: the normal has zero length");
    const AcGeVector3d n = normal / normal.length();
    const AcGeVector3d inPlane = refVec - n * refVec.dotProduct(n);
    if (inPlane.isZeroLength())
        headless::raiseHostError(L"AcGeCircArc3d::setAxes: the reference vector runs along the normal");
    mNormal = n;
    mRefVec = inPlane / inPlane.length();
    return *this;
}

AcGeCircArc3d& AcGeCircArc3d::setRadius(double radius)
{
    if (!(radius >= 0.0) || !std::isfinite(radius))
        headless::raiseHostError(L"AcGeCircArc3d::setRadius: the radius must be a finite number not below zero");
    mRadius = radius;
    return *this;
}

AcGeCircArc3d& AcGeCircArc3d::setAngles(double startAngle, double endAngle)
{
    mStartAng = startAngle;
    mEndAng = startAngle + hostge::sweepBetween(startAngle, endAngle);
    return *this;
}

Adesk::Boolean AcGeCircArc3d::isInside(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    const AcGeVector3d v = pnt - mCenter;
    return std::fabs(v.dotProduct(mNormal)) <= tol.equalPoint() && v.length() < mRadius - tol.equalPoint();
}

Adesk::Boolean AcGeCircArc3d::intersectWith(const AcGeLinearEnt3d& line, int& intn, AcGePoint3d& p1,
                                            AcGePoint3d& p2, const AcGeTol& tol) const
{
    intn = 0;
    const AcGeVector3d d = line.direction();
    if (d.isZeroLength())
        return false;
    const AcGePoint3d base = line.pointOnLine();
    AcGePoint3d candidates[2];
    int count = 0;
    const double across = d.dotProduct(mNormal);
    if (std::fabs(across) <= hostge::kParallelSine) {
        // In the arc's plane or never meeting it.
        if (std::fabs((base - mCenter).dotProduct(mNormal)) > tol.equalPoint())
            return false;
        const AcGeVector3d f = base - mCenter;
        const double half = f.dotProduct(d);
        const double foot = (f - d * half).length();
        if (foot > mRadius + tol.equalPoint())
            return false;
        const double reach = std::sqrt(std::max(0.0, mRadius * mRadius - foot * foot));
        candidates[count++] = base + d * (-half - reach);
        if (reach > tol.equalPoint())
            candidates[count++] = base + d * (-half + reach);
    } else {
        candidates[count++] = base + d * ((mCenter - base).dotProduct(mNormal) / across);
    }
    for (int i = 0; i < count; ++i) {
        if (!isOn(candidates[i], tol) || !line.isOn(candidates[i], tol))
            continue;
        (intn == 0 ? p1 : p2) = candidates[i];
        ++intn;
    }
    return intn > 0;
}

Adesk::Boolean AcGeCircArc3d::intersectWith(const AcGeCircArc3d& arc, int& intn, AcGePoint3d& p1, AcGePoint3d& p2,
                                            const AcGeTol& tol) const
{
    intn = 0;
    AcGePoint3d candidates[2];
    int count = 0;
    const AcGeVector3d axis = mNormal.crossProduct(arc.mNormal);
    if (axis.length() <= hostge::kParallelSine) {
        AcGeVector3d between = arc.mCenter - mCenter;
        if (std::fabs(between.dotProduct(mNormal)) > tol.equalPoint())
            return false;
        between -= mNormal * between.dotProduct(mNormal);
        const double d = between.length();
        if (d <= tol.equalPoint() || d > mRadius + arc.mRadius + tol.equalPoint() ||
            d < std::fabs(mRadius - arc.mRadius) - tol.equalPoint())
            return false;
        const AcGeVector3d u = between / d;
        const AcGeVector3d w = mNormal.crossProduct(u);
        const double x = (mRadius * mRadius - arc.mRadius * arc.mRadius + d * d) / (2.0 * d);
        const double h = std::sqrt(std::max(0.0, mRadius * mRadius - x * x));
        candidates[count++] = mCenter + u * x + w * h;
        if (h > tol.equalPoint())
            candidates[count++] = mCenter + u * x - w * h;
    } else {
        // The circles can only meet on the line where their planes cross.
        const double h1 = mNormal.dotProduct(mCenter.asVector());
        const double h2 = arc.mNormal.dotProduct(arc.mCenter.asVector());
        const double n12 = mNormal.dotProduct(arc.mNormal);
        const double den = 1.0 - n12 * n12;
        const AcGePoint3d onBoth =
            AcGePoint3d::kOrigin + (mNormal * (h1 - h2 * n12) + arc.mNormal * (h2 - h1 * n12)) / den;
        const AcGeVector3d d = axis / axis.length();
        const AcGeVector3d f = onBoth - mCenter;
        const double half = f.dotProduct(d);
        const double foot = (f - d * half).length();
        if (foot > mRadius + tol.equalPoint())
            return false;
        const double reach = std::sqrt(std::max(0.0, mRadius * mRadius - foot * foot));
        candidates[count++] = onBoth + d * (-half - reach);
        if (reach > tol.equalPoint())
            candidates[count++] = onBoth + d * (-half + reach);
    }
    for (int i = 0; i < count; ++i) {
        if (!isOn(candidates[i], tol) || !arc.isOn(candidates[i], tol))
            continue;
        (intn == 0 ? p1 : p2) = candidates[i];
        ++intn;
    }
    return intn > 0;
}

Adesk::Boolean AcGeCircArc3d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kCircArc3d || AcGeCurve3d::isKindOf(entType);
}

AcGeEntity3d* AcGeCircArc3d::copy() const
{
    return new AcGeCircArc3d(*this);
}

Adesk::Boolean AcGeCircArc3d::isEqualTo(const AcGeEntity3d& entity, const AcGeTol& tol) const
{
    if (entity.type() != AcGe::kCircArc3d)
        return false;
    const auto& other = static_cast<const AcGeCircArc3d&>(entity);
    if (!mCenter.isEqualTo(other.mCenter, tol) || std::fabs(mRadius - other.mRadius) > tol.equalPoint())
        return false;
    // Points at the same fractions of both sweeps tell the sense and the size of the sweep apart.
    const double mine = mEndAng - mStartAng;
    const double theirs = other.mEndAng - other.mStartAng;
    for (int i = 0; i <= 4; ++i) {
        const double f = i / 4.0;
        if (!evalPoint(mStartAng + mine * f).isEqualTo(other.evalPoint(other.mStartAng + theirs * f), tol))
            return false;
    }
    return true;
}

AcGeCircArc3d& AcGeCircArc3d::transformBy(const AcGeMatrix3d& xfm)
{
    const AcGeVector3d u = xfm * mRefVec;
    const AcGeVector3d v = xfm * mNormal.crossProduct(mRefVec);
    const double lu = u.length();
    const double lv = v.length();
    if (lu == 0.0 || lv == 0.0 || std::fabs(lu - lv) > hostge::kSimilarityTolerance * std::max(lu, lv) ||
        std::fabs(u.dotProduct(v)) > hostge::kSimilarityTolerance * lu * lv)
        headless::raiseHostError(L"AcGeCircArc3d::transformBy: the matrix does not keep the circle a circle");
    const AcGeVector3d n = u.crossProduct(v);
    mCenter = xfm * mCenter;
    mRadius *= lu;
    mRefVec = u / lu;
    mNormal = n / n.length();
    return *this;
}

void AcGeCircArc3d::print(std::ostream& os) const
{
    os << "AcGeCircArc3d(center " << mCenter << ", normal " << mNormal << ", ref " << mRefVec << ", radius ";
    hostge::writeNumber(os, mRadius);
    os << ", angles [";
    hostge::writeNumber(os, mStartAng);
    os << ", ";
    hostge::writeNumber(os, mEndAng);
    os << "])";
}

void AcGeCircArc3d::getInterval(AcGeInterval& intrvl) const
{
    intrvl.set(mStartAng, mEndAng);
}

AcGeCircArc3d& AcGeCircArc3d::reverseParam()
{
    const double sweep = mEndAng - mStartAng;
    mRefVec = directionAt(mEndAng);
    mNormal = -mNormal;
    mStartAng = 0.0;
    mEndAng = sweep;
    return *this;
}

AcGePoint3d AcGeCircArc3d::closestPointTo(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    return evalPoint(paramOf(pnt, tol));
}

double AcGeCircArc3d::paramOf(const AcGePoint3d& pnt, const AcGeTol&) const
{
    AcGeVector3d inPlane = pnt - mCenter;
    inPlane -= mNormal * inPlane.dotProduct(mNormal);
    if (inPlane.length() == 0.0)
        return mStartAng;
    const double sweep = mEndAng - mStartAng;
    const double offset = hostge::angleInFullTurn(angleOf(pnt) - mStartAng);
    if (offset <= sweep)
        return mStartAng + offset;
    return pnt.distanceTo(startPoint()) <= pnt.distanceTo(endPoint()) ? mStartAng : mEndAng;
}

Adesk::Boolean AcGeCircArc3d::isClosed(const AcGeTol& tol) const
{
    return mEndAng - mStartAng >= hostge::kTwoPi || AcGeCurve3d::isClosed(tol);
}

Adesk::Boolean AcGeCircArc3d::isPeriodic(double& period) const
{
    if (mEndAng - mStartAng < hostge::kTwoPi)
        return false;
    period = hostge::kTwoPi;
    return true;
}

Adesk::Boolean AcGeCircArc3d::isPlanar(AcGePlane& plane, const AcGeTol&) const
{
    getPlane(plane);
    return true;
}

double AcGeCircArc3d::length(double fromParam, double toParam, double) const
{
    return mRadius * std::fabs(toParam - fromParam);
}

double AcGeCircArc3d::paramAtLength(double datumParam, double length, Adesk::Boolean posParamDir, double) const
{
    if (mRadius == 0.0)
        return datumParam;
    return datumParam + (posParamDir ? length : -length) / mRadius;
}

Adesk::Boolean AcGeCircArc3d::area(double startParam, double endParam, double& value, const AcGeTol&) const
{
    const double phi = endParam - startParam;
    value = 0.5 * mRadius * mRadius * (phi - std::sin(phi));
    return true;
}

void AcGeCircArc3d::getSplitCurves(double param, AcGeCurve3d*& piece1, AcGeCurve3d*& piece2) const
{
    piece1 = nullptr;
    piece2 = nullptr;
    if (param > mStartAng) {
        auto* first = new AcGeCircArc3d(*this);
        first->mEndAng = std::min(param, mEndAng);
        piece1 = first;
    }
    if (param < mEndAng) {
        auto* second = new AcGeCircArc3d(*this);
        second->mStartAng = std::max(param, mStartAng);
        piece2 = second;
    }
}

void AcGeCircArc3d::evaluate(double param, int numDeriv, AcGePoint3d& point, AcGeVector3d* derivs) const
{
    point = mCenter + directionAt(param) * mRadius;
    // Each derivative by the angle turns the radius vector a further quarter.
    for (int i = 0; i < numDeriv; ++i)
        derivs[i] = directionAt(param + (i + 1) * hostge::kTwoPi / 4.0) * mRadius;
}

AcGeBoundBlock3d AcGeCircArc3d::boxOver(double fromParam, double toParam) const
{
    const double from = std::clamp(std::min(fromParam, toParam), mStartAng, mEndAng);
    const double to = std::clamp(std::max(fromParam, toParam), mStartAng, mEndAng);
    AcGeBoundBlock3d box(evalPoint(from), evalPoint(to));
    const AcGeVector3d across = mNormal.crossProduct(mRefVec);
    const AcGeVector3d axes[3] = {AcGeVector3d::kXAxis, AcGeVector3d::kYAxis, AcGeVector3d::kZAxis};
    for (const AcGeVector3d& axis : axes) {
        const double a = mRefVec.dotProduct(axis);
        const double b = across.dotProduct(axis);
        if (a == 0.0 && b == 0.0)
            continue;  // the plane is level in this axis
        // cos(t) a + sin(t) b is extreme where tan(t) = b / a, and half a turn on.
        const double first = std::atan2(b, a);
        for (double extreme : {first, first + hostge::kTwoPi / 2.0}) {
            const double at = from + hostge::angleInFullTurn(extreme - from);
            if (at <= to)
                box.extend(evalPoint(at));
        }
    }
    return box;
}

AcGeVector3d AcGeCircArc3d::directionAt(double angle) const
{
    return mRefVec * std::cos(angle) + mNormal.crossProduct(mRefVec) * std::sin(angle);
}

double AcGeCircArc3d::angleOf(const AcGePoint3d& pnt) const
{
    const AcGeVector3d v = pnt - mCenter;
    return hostge::angleInFullTurn(std::atan2(v.dotProduct(mNormal.crossProduct(mRefVec)), v.dotProduct(mRefVec)));
}

std::ostream& operator<<(std::ostream& os, const AcGeCircArc3d& arc)
{
    arc.print(os);
    return os;
}
