// AcGeCurve2d: what every curve of the plane answers from its interval, its evaluation
// and its closest points.
#include "gecurv2d.h"

#include <algorithm>
#include <limits>
#include <vector>

namespace {

// Higher derivatives are not asked of the host's curves; the cap keeps a stray count
// from allocating without bound.
constexpr int kMaxDerivatives = 8;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

}  // namespace

Adesk::Boolean AcGeCurve2d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kCurve2d || AcGeEntity2d::isKindOf(entType);
}

void AcGeCurve2d::getInterval(AcGeInterval& intrvl, AcGePoint2d& start, AcGePoint2d& end) const
{
    getInterval(intrvl);
    if (intrvl.isBoundedBelow())
        start = evalPoint(intrvl.lowerBound());
    if (intrvl.isBoundedAbove())
        end = evalPoint(intrvl.upperBound());
}

double AcGeCurve2d::distanceTo(const AcGePoint2d& pnt, const AcGeTol& tol) const
{
    return pnt.distanceTo(closestPointTo(pnt, tol));
}

Adesk::Boolean AcGeCurve2d::isOn(const AcGePoint2d& pnt, const AcGeTol& tol) const
{
    return distanceTo(pnt, tol) <= tol.equalPoint();
}

Adesk::Boolean AcGeCurve2d::isOn(const AcGePoint2d& pnt, double& param, const AcGeTol& tol) const
{
    if (!isOn(pnt, tol))
        return false;
    param = paramOf(pnt, tol);
    return true;
}

Adesk::Boolean AcGeCurve2d::isOn(double param, const AcGeTol&) const
{
    AcGeInterval intrvl;
    getInterval(intrvl);
    return intrvl.contains(param);
}

Adesk::Boolean AcGeCurve2d::isClosed(const AcGeTol& tol) const
{
    AcGeInterval intrvl;
    getInterval(intrvl);
    if (!intrvl.isBounded())
        return false;
    return evalPoint(intrvl.lowerBound()).isEqualTo(evalPoint(intrvl.upperBound()), tol);
}

Adesk::Boolean AcGeCurve2d::isPeriodic(double&) const
{
    return false;
}

Adesk::Boolean AcGeCurve2d::hasStartPoint(AcGePoint2d& startPnt) const
{
    AcGeInterval intrvl;
    getInterval(intrvl);
    if (!intrvl.isBoundedBelow())
        return false;
    startPnt = evalPoint(intrvl.lowerBound());
    return true;
}

Adesk::Boolean AcGeCurve2d::hasEndPoint(AcGePoint2d& endPnt) const
{
    AcGeInterval intrvl;
    getInterval(intrvl);
    if (!intrvl.isBoundedAbove())
        return false;
    endPnt = evalPoint(intrvl.upperBound());
    return true;
}

AcGePoint2d AcGeCurve2d::evalPoint(double param) const
{
    AcGePoint2d point;
    evaluate(param, 0, point, nullptr);
    return point;
}

AcGePoint2d AcGeCurve2d::evalPoint(double param, int numDeriv, AcGeVector2dArray& derivArray) const
{
    const int count = std::clamp(numDeriv, 0, kMaxDerivatives);
    std::vector<AcGeVector2d> derivs(static_cast<size_t>(count));
    AcGePoint2d point;
    evaluate(param, count, point, derivs.data());
    derivArray.removeAll();
    for (const AcGeVector2d& d : derivs)
        derivArray.append(d);
    return point;
}

void AcGeCurve2d::getSamplePoints(int numSample, AcGePoint2dArray& pointArray) const
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

AcGeBoundBlock2d AcGeCurve2d::boundBlock() const
{
    AcGeInterval intrvl;
    getInterval(intrvl);
    return boundBlock(intrvl);
}

AcGeBoundBlock2d AcGeCurve2d::boundBlock(const AcGeInterval& range) const
{
    const double from = range.isBoundedBelow() ? range.lowerBound() : -kInfinity;
    const double to = range.isBoundedAbove() ? range.upperBound() : kInfinity;
    return boxOver(from, to);
}

AcGeBoundBlock2d AcGeCurve2d::orthoBoundBlock() const
{
    return boundBlock();
}

AcGeBoundBlock2d AcGeCurve2d::orthoBoundBlock(const AcGeInterval& range) const
{
    return boundBlock(range);
}

Adesk::Boolean AcGeCurve2d::explode(AcGeVoidPointerArray&, AcGeIntArray&, const AcGeInterval*) const
{
    return false;
}
