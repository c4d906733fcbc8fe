// AcGeLinearEnt2d: projection, intersection and lengths of straight curves in the plane.
#include "gelent2d.h"

#include <algorithm>
#include <cmath>

#include "geline2d.h"
#include "headless/HostError.h"

namespace {

// One coordinate of the point at t; a zero component stays put even for an infinite t.
double coordinateAt(double base, double component, double t)
{
    return component == 0.0 ? base : base + component * t;
}

}  // namespace

Adesk::Boolean AcGeLinearEnt2d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kLinearEnt2d || AcGeCurve2d::isKindOf(entType);
}

Adesk::Boolean AcGeLinearEnt2d::intersectWith(const AcGeLinearEnt2d& line, AcGePoint2d& intPnt,
                                              const AcGeTol& tol) const
{
    if (mVector.isZeroLength(tol) || line.mVector.isZeroLength(tol) || isParallelTo(line, tol))
        return false;
    const AcGeVector2d w = line.mPoint - mPoint;
    const double den = mVector.x * line.mVector.y - mVector.y * line.mVector.x;
    const double s = (w.x * line.mVector.y - w.y * line.mVector.x) / den;
    const double t = (w.x * mVector.y - w.y * mVector.x) / den;
    const AcGePoint2d p = evalPoint(s);
    AcGeInterval mine;
    AcGeInterval theirs;
    getInterval(mine);
    line.getInterval(theirs);
    // The interval checks allow equalPoint of distance along each entity.
    const double sTol = tol.equalPoint() / mVector.length();
    const double tTol = tol.equalPoint() / line.mVector.length();
    if ((mine.isBoundedBelow() && s < mine.lowerBound() - sTol) || (mine.isBoundedAbove() && s > mine.upperBound() + sTol))
        return false;
    if ((theirs.isBoundedBelow() && t < theirs.lowerBound() - tTol) ||
        (theirs.isBoundedAbove() && t > theirs.upperBound() + tTol))
        return false;
    intPnt = p;
    return true;
}

Adesk::Boolean AcGeLinearEnt2d::isParallelTo(const AcGeLinearEnt2d& line, const AcGeTol& tol) const
{
    return mVector.isParallelTo(line.mVector, tol);
}

Adesk::Boolean AcGeLinearEnt2d::isPerpendicularTo(const AcGeLinearEnt2d& line, const AcGeTol& tol) const
{
    return mVector.isPerpendicularTo(line.mVector, tol);
}

Adesk::Boolean AcGeLinearEnt2d::isColinearTo(const AcGeLinearEnt2d& line, const AcGeTol& tol) const
{
    if (!isParallelTo(line, tol))
        return false;
    const double dd = mVector.lengthSqrd();
    const AcGePoint2d foot = mPoint + mVector * ((line.mPoint - mPoint).dotProduct(mVector) / dd);
    return foot.distanceTo(line.mPoint) <= tol.equalPoint();
}

AcGeVector2d AcGeLinearEnt2d::direction() const
{
    const double len = mVector.length();
    return len == 0.0 ? AcGeVector2d() : mVector / len;
}

void AcGeLinearEnt2d::getLine(AcGeLine2d& line) const
{
    line.set(mPoint, mVector);
}

double AcGeLinearEnt2d::clampedProjection(const AcGePoint2d& pnt) const
{
    const double dd = mVector.lengthSqrd();
    double t = dd == 0.0 ? 0.0 : (pnt - mPoint).dotProduct(mVector) / dd;
    AcGeInterval intrvl;
    getInterval(intrvl);
    if (intrvl.isBoundedBelow())
        t = std::max(t, intrvl.lowerBound());
    if (intrvl.isBoundedAbove())
        t = std::min(t, intrvl.upperBound());
    return t;
}

AcGePoint2d AcGeLinearEnt2d::closestPointTo(const AcGePoint2d& pnt, const AcGeTol&) const
{
    return evalPoint(clampedProjection(pnt));
}

double AcGeLinearEnt2d::paramOf(const AcGePoint2d& pnt, const AcGeTol&) const
{
    return clampedProjection(pnt);
}

double AcGeLinearEnt2d::length(double fromParam, double toParam, double) const
{
    return std::fabs(toParam - fromParam) * mVector.length();
}

double AcGeLinearEnt2d::paramAtLength(double datumParam, double length, Adesk::Boolean posParamDir, double) const
{
    const double speed = mVector.length();
    if (speed == 0.0)
        return datumParam;
    return datumParam + (posParamDir ? length : -length) / speed;
}

Adesk::Boolean AcGeLinearEnt2d::area(double, double, double& value, const AcGeTol&) const
{
    value = 0.0;
    return true;
}

void AcGeLinearEnt2d::evaluate(double param, int numDeriv, AcGePoint2d& point, AcGeVector2d* derivs) const
{
    point.set(coordinateAt(mPoint.x, mVector.x, param), coordinateAt(mPoint.y, mVector.y, param));
    for (int i = 0; i < numDeriv; ++i)
        derivs[i] = i == 0 ? mVector : AcGeVector2d();
}

AcGeBoundBlock2d AcGeLinearEnt2d::boxOver(double fromParam, double toParam) const
{
    AcGePoint2d a;
    AcGePoint2d b;
    evaluate(fromParam, 0, a, nullptr);
    evaluate(toParam, 0, b, nullptr);
    return AcGeBoundBlock2d(a, b);
}

void AcGeLinearEnt2d::transformLinear(const AcGeMatrix2d& xfm, const ACHAR* call)
{
    const AcGeVector2d vec = xfm * mVector;
    if (!mVector.isZeroLength() && vec.isZeroLength())
        headless::raiseHostError(L"%s: the matrix collapses the line to a point", call);
    mPoint = xfm * mPoint;
    mVector = vec;
}
