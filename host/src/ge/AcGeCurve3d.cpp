// AcGeCurve3d: what every curve in space answers from its interval, its evaluation
// and its closest points.
#include "gecurv3d.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace {

// Higher derivatives are not asked of the host's curves; the cap keeps a stray count
// from allocating without bound.
constexpr int kMaxDerivatives = 8;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

}  // namespace

Adesk::Boolean AcGeCurve3d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kCurve3d || AcGeEntity3d::isKindOf(entType);
}

void AcGeCurve3d::getInterval(AcGeInterval& intrvl, AcGePoint3d& start, AcGePoint3d& end) const
{
    getInterval(intrvl);
    if (intrvl.isBoundedBelow())
        start = evalPoint(intrvl.lowerBound());
    if (intrvl.isBoundedAbove())
        end = evalPoint(intrvl.upperBound());
}

double AcGeCurve3d::distanceTo(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    return pnt.distanceTo(closestPointTo(pnt, tol));
}

Adesk::Boolean AcGeCurve3d::isOn(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    return distanceTo(pnt, tol) <= tol.equalPoint();
}

Adesk::Boolean AcGeCurve3d::isOn(const AcGePoint3d& pnt, double& param, const AcGeTol& tol) const
{
    if (!isOn(pnt, tol))
        return false;
    param = paramOf(pnt, tol);
    return true;
}

Adesk::Boolean AcGeCurve3d::isOn(double param, const AcGeTol&) const
{
    AcGeInterval intrvl;
    getInterval(intrvl);
    return intrvl.contains(param);
}

Adesk::Boolean AcGeCurve3d::isClosed(const AcGeTol& tol) const
{
    AcGeInterval intrvl;
    getInterval(intrvl);
    if (!intrvl.isBounded())
        return false;
    return evalPoint(intrvl.lowerBound()).isEqualTo(evalPoint(intrvl.upperBound()), tol);
}

Adesk::Boolean AcGeCurve3d::isPeriodic(double&) const
{
    return false;
}

Adesk::Boolean AcGeCurve3d::hasStartPoint(AcGePoint3d& startPnt) const
{
    AcGeInterval intrvl;
    getInterval(intrvl);
    if (!intrvl.isBoundedBelow())
        return false;
    startPnt = evalPoint(intrvl.lowerBound());
    return true;
}

Adesk::Boolean AcGeCurve3d::hasEndPoint(AcGePoint3d& endPnt) const
{
    AcGeInterval intrvl;
    getInterval(intrvl);
    if (!intrvl.isBoundedAbove())
        return false;
    endPnt = evalPoint(intrvl.upperBound());
    return true;
}

AcGePoint3d AcGeCurve3d::evalPoint(double param) const
{
    AcGePoint3d point;
    evaluate(param, 0, point, nullptr);
    return point;
}

AcGePoint3d AcGeCurve3d::evalPoint(double param, int numDeriv, AcGeVector3dArray& derivArray) const
{
    const int count = std::clamp(numDeriv, 0, kMaxDerivatives);
    std::vector<AcGeVector3d> derivs(static_cast<size_t>(count));
    AcGePoint3d point;
    evaluate(param, count, point, derivs.data());
    derivArray.removeAll();
    for (const AcGeVector3d& d : derivs)
        derivArray.append(d);
    return point;
}

void AcGeCurve3d::getSamplePoints(int numSample, AcGePoint3dArray& pointArray) const
{
    AcGeInterval intrvl;
    getInterval(intrvl);
    if (!intrvl.isBounded() || numSample < 2)
        return;
    const double step = intrvl.length() / (numSample - 1);
    for (int i = 0; i < numSample; ++i) {
        const double param = i + 1 == numSample ? intrvl.upperBound() : intrvl.lowerBound() + step * i;
        pointArray.append(evalPoint(param));
    }
}

AcGeBoundBlock3d AcGeCurve3d::boundBlock() const
{
    AcGeInterval intrvl;
    getInterval(intrvl);
    return boundBlock(intrvl);
}

AcGeBoundBlock3d AcGeCurve3d::boundBlock(const AcGeInterval& range) const
{
    const double from = range.isBoundedBelow() ? range.lowerBound() : -kInfinity;
    const double to = range.isBoundedAbove() ? range.upperBound() : kInfinity;
    return boxOver(from, to);
}

AcGeBoundBlock3d AcGeCurve3d::orthoBoundBlock() const
{
    return boundBlock();
}

AcGeBoundBlock3d AcGeCurve3d::orthoBoundBlock(const AcGeInterval& range) const
{
    return boundBlock(range);
}

Adesk::Boolean AcGeCurve3d::explode(AcGeVoidPointerArray&, AcGeIntArray&, const AcGeInterval*) const
{
    return false;
}
