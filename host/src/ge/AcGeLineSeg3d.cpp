// AcGeLineSeg3d: bounded line segments in space.
#include "gelnsg3d.h"

#include <ostream>

#include "geplane.h"
#include "headless/HostError.h"

AcGeLineSeg3d::AcGeLineSeg3d(const AcGePoint3d& pnt1, const AcGePoint3d& pnt2) : AcGeLinearEnt3d(pnt1, pnt2 - pnt1) {}

AcGeLineSeg3d::AcGeLineSeg3d(const AcGePoint3d& pnt, const AcGeVector3d& vec) : AcGeLinearEnt3d(pnt, vec) {}

AcGeLineSeg3d& AcGeLineSeg3d::set(const AcGePoint3d& pnt1, const AcGePoint3d& pnt2)
{
    mPoint = pnt1;
    mVector = pnt2 - pnt1;
    return *this;
}

AcGeLineSeg3d& AcGeLineSeg3d::set(const AcGePoint3d& pnt, const AcGeVector3d& vec)
{
    mPoint = pnt;
    mVector = vec;
    return *this;
}

void AcGeLineSeg3d::getBisector(AcGePlane& plane) const
{
    if (mVector.isZeroLength())
        headless::raiseHostError(L"AcGeLineSeg3d::getBisector: the segment has zero length");
    plane.set(midPoint(), mVector);
}

Adesk::Boolean AcGeLineSeg3d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kLineSeg3d || AcGeLinearEnt3d::isKindOf(entType);
}

AcGeEntity3d* AcGeLineSeg3d::copy() const
{
    return new AcGeLineSeg3d(*this);
}

Adesk::Boolean AcGeLineSeg3d::isEqualTo(const AcGeEntity3d& entity, const AcGeTol& tol) const
{
    if (entity.type() != AcGe::kLineSeg3d)
        return false;
    const auto& other = static_cast<const AcGeLineSeg3d&>(entity);
    return startPoint().isEqualTo(other.startPoint(), tol) && endPoint().isEqualTo(other.endPoint(), tol);
}

AcGeLineSeg3d& AcGeLineSeg3d::transformBy(const AcGeMatrix3d& xfm)
{
    transformLinear(xfm, L"AcGeLineSeg3d::transformBy");
    return *this;
}

void AcGeLineSeg3d::print(std::ostream& os) const
{
    os << "AcGeLineSeg3d(" << startPoint() << ", " << endPoint() << ')';
}

void AcGeLineSeg3d::getInterval(AcGeInterval& intrvl) const
{
    intrvl.set(0.0, 1.0);
}

AcGeLineSeg3d& AcGeLineSeg3d::reverseParam()
{
    mPoint = endPoint();
    mVector = -mVector;
    return *this;
}

void AcGeLineSeg3d::getSplitCurves(double param, AcGeCurve3d*& piece1, AcGeCurve3d*& piece2) const
{
    piece1 = param > 0.0 ? new AcGeLineSeg3d(startPoint(), evalPoint(param < 1.0 ? param : 1.0)) : nullptr;
    piece2 = param < 1.0 ? new AcGeLineSeg3d(evalPoint(param > 0.0 ? param : 0.0), endPoint()) : nullptr;
}

std::ostream& operator<<(std::ostream& os, const AcGeLineSeg3d& seg)
{
    seg.print(os);
    return os;
}
