// AcGeLinearEnt3d: projection, intersection and lengths of straight curves in space.
#include "gelent3d.h"

#include <algorithm>
#include <cmath>

#include "geline3d.h"
#include "geplane.h"
#include "headless/HostError.h"

namespace {

// One coordinate of the point at t; a zero component stays put even for an infinite t.
double coordinateAt(double base, double component, double t)
{
    return component == 0.0 ? base : base + component * t;
}

}  // namespace

Adesk::Boolean AcGeLinearEnt3d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kLinearEnt3d || AcGeCurve3d::isKindOf(entType);
}

Adesk::Boolean AcGeLinearEnt3d::intersectWith(const AcGeLinearEnt3d& line, AcGePoint3d& intPnt,
                                              const AcGeTol& tol) const
{
    if (mVector.isZeroLength(tol) || line.mVector.isZeroLength(tol) || isParallelTo(line, tol))
        return false;
    // The nearest points of the two lines; they must coincide for the lines to meet.
    const AcGeVector3d w = mPoint - line.mPoint;
    const double a = mVector.dotProduct(mVector);
    const double b = mVector.dotProduct(line.mVector);
    const double c = line.mVector.dotProduct(line.mVector);
    const double d = mVector.dotProduct(w);
    const double e = line.mVector.dotProduct(w);
    const double den = a * c - b * b;
    const double s = (b * e - c * d) / den;
    const double t = (a * e - b * d) / den;
    const AcGePoint3d p = evalPoint(s);
    const AcGePoint3d q = line.evalPoint(t);
    if (p.distanceTo(q) > tol.equalPoint())
        return false;
    AcGeInterval mine;
    AcGeInterval theirs;
    getInterval(mine);
    line.getInterval(theirs);
    const double sTol = tol.equalPoint() / std::sqrt(a);
    const double tTol = tol.equalPoint() / std::sqrt(c);
    if ((mine.isBoundedBelow() && s < mine.lowerBound() - sTol) || (mine.isBoundedAbove() && s > mine.upperBound() + sTol))
        return false;
    if ((theirs.isBoundedBelow() && t < theirs.lowerBound() - tTol) ||
        (theirs.isBoundedAbove() && t > theirs.upperBound() + tTol))
        return false;
    intPnt = p + (q - p) * 0.5;
    return true;
}

Adesk::Boolean AcGeLinearEnt3d::isParallelTo(const AcGeLinearEnt3d& line, const AcGeTol& tol) const
{
    return mVector.isParallelTo(line.mVector, tol);
}

Adesk::Boolean AcGeLinearEnt3d::isPerpendicularTo(const AcGeLinearEnt3d& line, const AcGeTol& tol) const
{
    return mVector.isPerpendicularTo(line.mVector, tol);
}

Adesk::Boolean AcGeLinearEnt3d::isColinearTo(const AcGeLinearEnt3d& line, const AcGeTol& tol) const
{
    if (!isParallelTo(line, tol))
        return false;
    const double dd = mVector.lengthSqrd();
    const AcGePoint3d foot = mPoint + mVector * ((line.mPoint - mPoint).dotProduct(mVector) / dd);
    return foot.distanceTo(line.mPoint) <= tol.equalPoint();
}

AcGeVector3d AcGeLinearEnt3d::direction() const
{
    const double len = mVector.length();
    return len == 0.0 ? AcGeVector3d() : mVector / len;
}

void AcGeLinearEnt3d::getLine(AcGeLine3d& line) const
{
    line.set(mPoint, mVector);
}

double AcGeLinearEnt3d::clampedProjection(const AcGePoint3d& pnt) const
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

AcGePoint3d AcGeLinearEnt3d::closestPointTo(const AcGePoint3d& pnt, const AcGeTol&) const
{
    return evalPoint(clampedProjection(pnt));
}

double AcGeLinearEnt3d::paramOf(const AcGePoint3d& pnt, const AcGeTol&) const
{
    return clampedProjection(pnt);
}

Adesk::Boolean AcGeLinearEnt3d::isPlanar(AcGePlane& plane, const AcGeTol&) const
{
    const AcGeVector3d normal = mVector.isZeroLength() ? AcGeVector3d::kZAxis : mVector.perpVector();
    plane.set(mPoint, normal);
    return true;
}

double AcGeLinearEnt3d::length(double fromParam, double toParam, double) const
{
    return std::fabs(toParam - fromParam) * mVector.length();
}

double AcGeLinearEnt3d::paramAtLength(double datumParam, double length, Adesk::Boolean posParamDir, double) const
{
    const double speed = mVector.length();
    if (speed == 0.0)
        return datumParam;
    return datumParam + (posParamDir ? length : -length) / speed;
}

Adesk::Boolean AcGeLinearEnt3d::area(double, double, double& value, const AcGeTol&) const
{
    value = 0.0;
    return true;
}

void AcGeLinearEnt3d::evaluate(double param, int numDeriv, AcGePoint3d& point, AcGeVector3d* derivs) const
{
    point.set(coordinateAt(mPoint.x, mVector.x, param), coordinateAt(mPoint.y, mVector.y, param),
              coordinateAt(mPoint.z, mVector.z, param));
    for (int i = 0; i < numDeriv; ++i)
        derivs[i] = i == 0 ? mVector : AcGeVector3d();
}

AcGeBoundBlock3d AcGeLinearEnt3d::boxOver(double fromParam, double toParam) const
{
    AcGePoint3d a;
    AcGePoint3d b;
    evaluate(fromParam, 0, a, nullptr);
    evaluate(toParam, 0, b, nullptr);
    return AcGeBoundBlock3d(a, b);
}

void AcGeLinearEnt3d::transformLinear(const AcGeMatrix3d& xfm, const ACHAR* call)
{
    const AcGeVector3d vec = xfm * mVector;
    if (!mVector.isZeroLength() && vec.isZeroLength())
        headless::raiseHostError(L"%s: the matrix collapses the line to a point", call);
    mPoint = xfm * mPoint;
    mVector = vec;
}
