// AcGeCircArc2d: circular arcs of the plane: construction from centres, three points or a
// bulge, evaluation by angle, closest points, intersections and transformation.
#include "gearc2d.h"

#include <algorithm>
#include <cmath>
#include <ostream>

#include "GeFormat.h"
#include "GeMath.h"
#include "geline2d.h"
#include "gelent2d.h"
#include "headless/HostError.h"

namespace {

double cross(const AcGeVector2d& a, const AcGeVector2d& b)
{
    return a.x * b.y - a.y * b.x;
}

}  // namespace

AcGeCircArc2d::AcGeCircArc2d()
{
    set(AcGePoint2d::kOrigin, 1.0);
}

AcGeCircArc2d::AcGeCircArc2d(const AcGePoint2d& cent, double radius)
{
    set(cent, radius);
}

AcGeCircArc2d::AcGeCircArc2d(const AcGePoint2d& cent, double radius, double startAngle, double endAngle,
                             const AcGeVector2d& refVec, Adesk::Boolean isClockWise)
{
    set(cent, radius, startAngle, endAngle, refVec, isClockWise);
}

AcGeCircArc2d::AcGeCircArc2d(const AcGePoint2d& startPoint, const AcGePoint2d& point, const AcGePoint2d& endPoint)
{
    set(startPoint, point, endPoint);
}

AcGeCircArc2d::AcGeCircArc2d(const AcGePoint2d& startPoint, const AcGePoint2d& endPoint, double bulge,
                             Adesk::Boolean bulgeFlag)
{
    set(startPoint, endPoint, bulge, bulgeFlag);
}

AcGeCircArc2d& AcGeCircArc2d::set(const AcGePoint2d& cent, double radius)
{
    return set(cent, radius, 0.0, hostge::kTwoPi);
}

AcGeCircArc2d& AcGeCircArc2d::set(const AcGePoint2d& cent, double radius, double startAngle, double endAngle,
                                  const AcGeVector2d& refVec, Adesk::Boolean isClockWise)
{
    if (!(radius >= 0.0) || !std::isfinite(radius))
        headless::raiseHostError(L"AcGeCircArc2d::set: the radius must be a finite number not below zero");
    if (refVec.isZeroLength())
        headless::raiseHostError(L"AcGeCircArc2d::set: the reference vector has zero length");
    mCenter = cent;
    mRadius = radius;
    mRefVec = refVec / refVec.length();
    mClockWise = isClockWise;
    mStartAng = startAngle;
    mEndAng = startAngle + hostge::sweepBetween(startAngle, endAngle);
    return *this;
}

AcGeCircArc2d& AcGeCircArc2d::set(const AcGePoint2d& startPoint, const AcGePoint2d& point, const AcGePoint2d& endPoint)
{
    const AcGeVector2d a = point - startPoint;
    const AcGeVector2d b = endPoint - startPoint;
    const double turn = cross(a, b);
    if (std::fabs(turn) <= hostge::kParallelSine * a.length() * b.length() || a.isZeroLength() || b.isZeroLength())
        headless::raiseHostError(L"AcGeCircArc2d::set: the three points are collinear");
    const double d = 2.0 * turn;
    const AcGeVector2d toCenter((b.y * a.lengthSqrd() - a.y * b.lengthSqrd()) / d,
                                (a.x * b.lengthSqrd() - b.x * a.lengthSqrd()) / d);
    mCenter = startPoint + toCenter;
    mRadius = toCenter.length();
    mRefVec = AcGeVector2d::kXAxis;
    // Counter-clockwise when start, point and end turn to the left.
    mClockWise = turn < 0.0;
    mStartAng = angleOf(startPoint);
    mEndAng = mStartAng + hostge::sweepBetween(mStartAng, angleOf(endPoint));
    return *this;
}

AcGeCircArc2d& AcGeCircArc2d::set(const AcGePoint2d& startPoint, const AcGePoint2d& endPoint, double bulge,
                                  Adesk::Boolean bulgeFlag)
{
    const AcGeVector2d chord = endPoint - startPoint;
    const double c = chord.length();
    if (startPoint.isEqualTo(endPoint) || c == 0.0)
        headless::raiseHostError(L"AcGeCircArc2d::set: the start and end points are equal");
    // The sagitta s of a chord c belongs to the bulge 2 s / c.
    const double b = bulgeFlag ? 2.0 * bulge / c : bulge;
    if (b == 0.0 || !std::isfinite(b))
        headless::raiseHostError(L"AcGeCircArc2d::set: a zero bulge makes no arc");
    const AcGeVector2d u = chord / c;
    // Signed distance from the chord's middle to the centre, to the chord's left.
    const double h = c * (1.0 - b * b) / (4.0 * b);
    mCenter = startPoint + chord * 0.5 + u.perpVector() * h;
    mRadius = c * (1.0 + b * b) / (4.0 * std::fabs(b));
    mRefVec = AcGeVector2d::kXAxis;
    mClockWise = b < 0.0;
    mStartAng = angleOf(startPoint);
    mEndAng = mStartAng + 4.0 * std::atan(std::fabs(b));
    return *this;
}

AcGePoint2d AcGeCircArc2d::startPoint() const
{
    return mCenter + directionAt(mStartAng) * mRadius;
}

AcGePoint2d AcGeCircArc2d::endPoint() const
{
    return mCenter + directionAt(mEndAng) * mRadius;
}

AcGeCircArc2d& AcGeCircArc2d::setCenter(const AcGePoint2d& cent)
{
    mCenter = cent;
    return *this;
}

AcGeCircArc2d& AcGeCircArc2d::setRadius(double radius)
{
    if (!(radius >= 0.0) || !std::isfinite(radius))
        headless::raiseHostError(L"AcGeCircArc2d::setRadius: the radius must be a finite number not below zero");
    mRadius = radius;
    return *this;
}

AcGeCircArc2d& AcGeCircArc2d::setAngles(double startAng, double endAng)
{
    mStartAng = startAng;
    mEndAng = startAng + hostge::sweepBetween(startAng, endAng);
    return *this;
}

AcGeCircArc2d& AcGeCircArc2d::setRefVec(const AcGeVector2d& vec)
{
    if (vec.isZeroLength())
        headless::raiseHostError(L"AcGeCircArc2d::setRefVec: the reference vector has zero length");
    mRefVec = vec / vec.length();
    return *this;
}

AcGeCircArc2d& AcGeCircArc2d::setToComplement()
{
    const double sweep = mEndAng - mStartAng;
    if (sweep < hostge::kTwoPi) {
        const double start = mEndAng;
        mEndAng = start + (hostge::kTwoPi - sweep);
        mStartAng = start;
    }
    return *this;
}

Adesk::Boolean AcGeCircArc2d::isInside(const AcGePoint2d& pnt, const AcGeTol& tol) const
{
    return pnt.distanceTo(mCenter) < mRadius - tol.equalPoint();
}

Adesk::Boolean AcGeCircArc2d::tangent(const AcGePoint2d& pnt, AcGeLine2d& line, const AcGeTol& tol) const
{
    double param = 0.0;
    if (mRadius == 0.0 || !isOn(pnt, param, tol))
        return false;
    AcGeVector2dArray derivs;
    const AcGePoint2d at = evalPoint(param, 1, derivs);
    line.set(at, derivs[0]);
    return true;
}

Adesk::Boolean AcGeCircArc2d::intersectWith(const AcGeLinearEnt2d& line, int& intn, AcGePoint2d& p1,
                                            AcGePoint2d& p2, const AcGeTol& tol) const
{
    intn = 0;
    const AcGeVector2d d = line.direction();
    if (d.isZeroLength())
        return false;
    const AcGeVector2d f = line.pointOnLine() - mCenter;
    // |f + s d| = r with d a unit vector.
    const double half = f.dotProduct(d);
    const double foot = (f - d * half).length();
    if (foot > mRadius + tol.equalPoint())
        return false;
    const double reach = std::sqrt(std::max(0.0, mRadius * mRadius - foot * foot));
    const double candidates[2] = {-half - reach, -half + reach};
    const int count = reach <= tol.equalPoint() ? 1 : 2;
    for (int i = 0; i < count; ++i) {
        const AcGePoint2d q = count == 1 ? mCenter + (f - d * half) : line.pointOnLine() + d * candidates[i];
        if (!isOn(q, tol) || !line.isOn(q, tol))
            continue;
        (intn == 0 ? p1 : p2) = q;
        ++intn;
    }
    return intn > 0;
}

Adesk::Boolean AcGeCircArc2d::intersectWith(const AcGeCircArc2d& arc, int& intn, AcGePoint2d& p1, AcGePoint2d& p2,
                                            const AcGeTol& tol) const
{
    intn = 0;
    const AcGeVector2d between = arc.mCenter - mCenter;
    const double d = between.length();
    if (d <= tol.equalPoint())
        return false;
    if (d > mRadius + arc.mRadius + tol.equalPoint() || d < std::fabs(mRadius - arc.mRadius) - tol.equalPoint())
        return false;
    const AcGeVector2d u = between / d;
    const double x = (mRadius * mRadius - arc.mRadius * arc.mRadius + d * d) / (2.0 * d);
    const double h = std::sqrt(std::max(0.0, mRadius * mRadius - x * x));
    const AcGePoint2d candidates[2] = {mCenter + u * x + u.perpVector() * h, mCenter + u * x - u.perpVector() * h};
    const int count = h <= tol.equalPoint() ? 1 : 2;
    for (int i = 0; i < count; ++i) {
        if (!isOn(candidates[i], tol) || !arc.isOn(candidates[i], tol))
            continue;
        (intn == 0 ? p1 : p2) = candidates[i];
        ++intn;
    }
    return intn > 0;
}

Adesk::Boolean AcGeCircArc2d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kCircArc2d || AcGeCurve2d::isKindOf(entType);
}

AcGeEntity2d* AcGeCircArc2d::copy() const
{
    return new AcGeCircArc2d(*this);
}

Adesk::Boolean AcGeCircArc2d::isEqualTo(const AcGeEntity2d& entity, const AcGeTol& tol) const
{
    if (entity.type() != AcGe::kCircArc2d)
        return false;
    const auto& other = static_cast<const AcGeCircArc2d&>(entity);
    if (!mCenter.isEqualTo(other.mCenter, tol) || std::fabs(mRadius - other.mRadius) > tol.equalPoint())
        return false;
    // Points at the same fractions of both sweeps: the ends, and three between them that
    // tell the sense and the size of the sweep apart.
    const double mine = mEndAng - mStartAng;
    const double theirs = other.mEndAng - other.mStartAng;
    for (int i = 0; i <= 4; ++i) {
        const double f = i / 4.0;
        if (!evalPoint(mStartAng + mine * f).isEqualTo(other.evalPoint(other.mStartAng + theirs * f), tol))
            return false;
    }
    return true;
}

AcGeCircArc2d& AcGeCircArc2d::transformBy(const AcGeMatrix2d& xfm)
{
    const AcGeVector2d perpRef = mClockWise ? -mRefVec.perpVector() : mRefVec.perpVector();
    const AcGeVector2d u = xfm * mRefVec;
    const AcGeVector2d v = xfm * perpRef;
    const double lu = u.length();
    const double lv = v.length();
    if (lu == 0.0 || lv == 0.0 || std::fabs(lu - lv) > hostge::kSimilarityTolerance * std::max(lu, lv) ||
        std::fabs(u.dotProduct(v)) > hostge::kSimilarityTolerance * lu * lv)
        headless::raiseHostError(L"AcGeCircArc2d::transformBy: the matrix does not keep the circle a circle");
    mCenter = xfm * mCenter;
    mRadius *= lu;
    mRefVec = u / lu;
    // The image of the arc's own quarter turn decides its new sense.
    mClockWise = cross(u, v) < 0.0;
    return *this;
}

void AcGeCircArc2d::print(std::ostream& os) const
{
    os << "AcGeCircArc2d(center " << mCenter << ", radius ";
    hostge::writeNumber(os, mRadius);
    os << ", angles [";
    hostge::writeNumber(os, mStartAng);
    os << ", ";
    hostge::writeNumber(os, mEndAng);
    os << "], ref " << mRefVec << (mClockWise ? ", cw)" : ", ccw)");
}

void AcGeCircArc2d::getInterval(AcGeInterval& intrvl) const
{
    intrvl.set(mStartAng, mEndAng);
}

AcGeCircArc2d& AcGeCircArc2d::reverseParam()
{
    const double sweep = mEndAng - mStartAng;
    mRefVec = directionAt(mEndAng);
    mClockWise = !mClockWise;
    mStartAng = 0.0;
    mEndAng = sweep;
    return *this;
}

AcGePoint2d AcGeCircArc2d::closestPointTo(const AcGePoint2d& pnt, const AcGeTol& tol) const
{
    return evalPoint(paramOf(pnt, tol));
}

double AcGeCircArc2d::paramOf(const AcGePoint2d& pnt, const AcGeTol&) const
{
    if (pnt.distanceTo(mCenter) == 0.0)
        return mStartAng;
    const double sweep = mEndAng - mStartAng;
    const double offset = hostge::angleInFullTurn(angleOf(pnt) - mStartAng);
    if (offset <= sweep)
        return mStartAng + offset;
    return pnt.distanceTo(startPoint()) <= pnt.distanceTo(endPoint()) ? mStartAng : mEndAng;
}

Adesk::Boolean AcGeCircArc2d::isClosed(const AcGeTol& tol) const
{
    return mEndAng - mStartAng >= hostge::kTwoPi || AcGeCurve2d::isClosed(tol);
}

Adesk::Boolean AcGeCircArc2d::isPeriodic(double& period) const
{
    if (mEndAng - mStartAng < hostge::kTwoPi)
        return false;
    period = hostge::kTwoPi;
    return true;
}

double AcGeCircArc2d::length(double fromParam, double toParam, double) const
{
    return mRadius * std::fabs(toParam - fromParam);
}

double AcGeCircArc2d::paramAtLength(double datumParam, double length, Adesk::Boolean posParamDir, double) const
{
    if (mRadius == 0.0)
        return datumParam;
    return datumParam + (posParamDir ? length : -length) / mRadius;
}

Adesk::Boolean AcGeCircArc2d::area(double startParam, double endParam, double& value, const AcGeTol&) const
{
    const double phi = endParam - startParam;
    const double segment = 0.5 * mRadius * mRadius * (phi - std::sin(phi));
    value = mClockWise ? -segment : segment;
    return true;
}

void AcGeCircArc2d::getSplitCurves(double param, AcGeCurve2d*& piece1, AcGeCurve2d*& piece2) const
{
    piece1 = nullptr;
    piece2 = nullptr;
    if (param > mStartAng) {
        auto* first = new AcGeCircArc2d(*this);
        first->mEndAng = std::min(param, mEndAng);
        piece1 = first;
    }
    if (param < mEndAng) {
        auto* second = new AcGeCircArc2d(*this);
        second->mStartAng = std::max(param, mStartAng);
        piece2 = second;
    }
}

void AcGeCircArc2d::evaluate(double param, int numDeriv, AcGePoint2d& point, AcGeVector2d* derivs) const
{
    point = mCenter + directionAt(param) * mRadius;
    // Each derivative by the angle turns the radius vector a further quarter.
    for (int i = 0; i < numDeriv; ++i)
        derivs[i] = directionAt(param + (i + 1) * hostge::kTwoPi / 4.0) * mRadius;
}

AcGeBoundBlock2d AcGeCircArc2d::boxOver(double fromParam, double toParam) const
{
    double from = std::clamp(std::min(fromParam, toParam), mStartAng, mEndAng);
    double to = std::clamp(std::max(fromParam, toParam), mStartAng, mEndAng);
    AcGeBoundBlock2d box(evalPoint(from), evalPoint(to));
    const AcGeVector2d perpRef = mClockWise ? -mRefVec.perpVector() : mRefVec.perpVector();
    const AcGeVector2d axes[2] = {AcGeVector2d::kXAxis, AcGeVector2d::kYAxis};
    for (const AcGeVector2d& axis : axes) {
        // cos(a) A + sin(a) B is extreme where tan(a) = B / A, and half a turn on.
        const double first = std::atan2(perpRef.dotProduct(axis), mRefVec.dotProduct(axis));
        for (double extreme : {first, first + hostge::kTwoPi / 2.0}) {
            const double at = from + hostge::angleInFullTurn(extreme - from);
            if (at <= to)
                box.extend(evalPoint(at));
        }
    }
    return box;
}

AcGeVector2d AcGeCircArc2d::directionAt(double angle) const
{
    const AcGeVector2d perpRef = mClockWise ? -mRefVec.perpVector() : mRefVec.perpVector();
    return mRefVec * std::cos(angle) + perpRef * std::sin(angle);
}

double AcGeCircArc2d::angleOf(const AcGePoint2d& pnt) const
{
    const AcGeVector2d perpRef = mClockWise ? -mRefVec.perpVector() : mRefVec.perpVector();
    const AcGeVector2d v = pnt - mCenter;
    return hostge::angleInFullTurn(std::atan2(v.dotProduct(perpRef), v.dotProduct(mRefVec)));
}

std::ostream& operator<<(std::ostream& os, const AcGeCircArc2d& arc)
{
    arc.print(os);
    return os;
}
