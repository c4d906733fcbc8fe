// AcGeLine2d: construction, comparison and transformation of unbounded lines in the plane.
#include "geline2d.h"

#include <ostream>

#include "headless/HostError.h"

const AcGeLine2d AcGeLine2d::kXAxis;
const AcGeLine2d AcGeLine2d::kYAxis(AcGeVector2d(0, 1), 0);

AcGeLine2d::AcGeLine2d(const AcGePoint2d& pnt, const AcGeVector2d& vec) : AcGeLinearEnt2d(pnt, vec)
{
    set(pnt, vec);
}

AcGeLine2d::AcGeLine2d(const AcGePoint2d& pnt1, const AcGePoint2d& pnt2) : AcGeLinearEnt2d(pnt1, pnt2 - pnt1)
{
    set(pnt1, pnt2);
}

AcGeLine2d& AcGeLine2d::set(const AcGePoint2d& pnt, const AcGeVector2d& vec)
{
    if (vec.isZeroLength())
        headless::raiseHostError(L"AcGeLine2d::set: the direction has zero length");
    mPoint = pnt;
    mVector = vec;
    return *this;
}

AcGeLine2d& AcGeLine2d::set(const AcGePoint2d& pnt1, const AcGePoint2d& pnt2)
{
    if (pnt1.isEqualTo(pnt2))
        headless::raiseHostError(L"AcGeLine2d::set: the two points are equal");
    mPoint = pnt1;
    mVector = pnt2 - pnt1;
    return *this;
}

Adesk::Boolean AcGeLine2d::isEqualTo(const AcGeLine2d& line, const AcGeTol& tol) const
{
    return mPoint.isEqualTo(line.mPoint, tol) && mVector.isEqualTo(line.mVector, tol);
}

Adesk::Boolean AcGeLine2d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kLine2d || AcGeLinearEnt2d::isKindOf(entType);
}

AcGeEntity2d* AcGeLine2d::copy() const
{
    return new AcGeLine2d(*this);
}

Adesk::Boolean AcGeLine2d::isEqualTo(const AcGeEntity2d& entity, const AcGeTol& tol) const
{
    return entity.type() == AcGe::kLine2d && isEqualTo(static_cast<const AcGeLine2d&>(entity), tol);
}

AcGeLine2d& AcGeLine2d::transformBy(const AcGeMatrix2d& xfm)
{
    transformLinear(xfm, L"AcGeLine2d::transformBy");
    return *this;
}

void AcGeLine2d::print(std::ostream& os) const
{
    os << "AcGeLine2d(" << mPoint << ", " << mVector << ')';
}

void AcGeLine2d::getInterval(AcGeInterval& intrvl) const
{
    intrvl.set();
}

AcGeLine2d& AcGeLine2d::reverseParam()
{
    mVector = -mVector;
    return *this;
}

void AcGeLine2d::getSplitCurves(double, AcGeCurve2d*& piece1, AcGeCurve2d*& piece2) const
{
    piece1 = nullptr;
    piece2 = nullptr;
}

std::ostream& operator<<(std::ostream& os, const AcGeLine2d& line)
{
    line.print(os);
    return os;
}
