// AcGeLineSeg2d: bounded line segments of the plane.
#include "gelnsg2d.h"

#include <ostream>

#include "geline2d.h"
#include "headless/HostError.h"

AcGeLineSeg2d::AcGeLineSeg2d(const AcGePoint2d& pnt1, const AcGePoint2d& pnt2) : AcGeLinearEnt2d(pnt1, pnt2 - pnt1) {}

AcGeLineSeg2d::AcGeLineSeg2d(const AcGePoint2d& pnt, const AcGeVector2d& vec) : AcGeLinearEnt2d(pnt, vec) {}

AcGeLineSeg2d& AcGeLineSeg2d::set(const AcGePoint2d& pnt1, const AcGePoint2d& pnt2)
{
    mPoint = pnt1;
    mVector = pnt2 - pnt1;
    return *this;
}

AcGeLineSeg2d& AcGeLineSeg2d::set(const AcGePoint2d& pnt, const AcGeVector2d& vec)
{
    mPoint = pnt;
    mVector = vec;
    return *this;
}

void AcGeLineSeg2d::getBisector(AcGeLine2d& line) const
{
    if (mVector.isZeroLength())
        headless::raiseHostError(L"AcGeLineSeg2d::getBisector: the segment has zero length");
    line.set(midPoint(), mVector.perpVector());
}

Adesk::Boolean AcGeLineSeg2d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kLineSeg2d || AcGeLinearEnt2d::isKindOf(entType);
}

AcGeEntity2d* AcGeLineSeg2d::copy() const
{
    return new AcGeLineSeg2d(*this);
}

Adesk::Boolean AcGeLineSeg2d::isEqualTo(const AcGeEntity2d& entity, const AcGeTol& tol) const
{
    if (entity.type() != AcGe::kLineSeg2d)
        return false;
    const auto& other = static_cast<const AcGeLineSeg2d&>(entity);
    return startPoint().isEqualTo(other.startPoint(), tol) && endPoint().isEqualTo(other.endPoint(), tol);
}

AcGeLineSeg2d& AcGeLineSeg2d::transformBy(const AcGeMatrix2d& xfm)
{
    transformLinear(xfm, L"AcGeLineSeg2d::transformBy");
    return *this;
}

void AcGeLineSeg2d::print(std::ostream& os) const
{
    os << "AcGeLineSeg2d(" << startPoint() << ", " << endPoint() << ')';
}

void AcGeLineSeg2d::getInterval(AcGeInterval& intrvl) const
{
    intrvl.set(0.0, 1.0);
}

AcGeLineSeg2d& AcGeLineSeg2d::reverseParam()
{
    mPoint = endPoint();
    mVector = -mVector;
    return *this;
}

void AcGeLineSeg2d::getSplitCurves(double param, AcGeCurve2d*& piece1, AcGeCurve2d*& piece2) const
{
    piece1 = param > 0.0 ? new AcGeLineSeg2d(startPoint(), evalPoint(param < 1.0 ? param : 1.0)) : nullptr;
    piece2 = param < 1.0 ? new AcGeLineSeg2d(evalPoint(param > 0.0 ? param : 0.0), endPoint()) : nullptr;
}

std::ostream& operator<<(std::ostream& os, const AcGeLineSeg2d& seg)
{
    seg.print(os);
    return os;
}
