// AcGeLine3d: construction, comparison and transformation of unbounded lines in space.
#include "geline3d.h"

#include <ostream>

#include "headless/HostError.h"

const AcGeLine3d AcGeLine3d::kXAxis;
const AcGeLine3d AcGeLine3d::kYAxis(AcGeVector3d(0, 1, 0), 0);
const AcGeLine3d AcGeLine3d::kZAxis(AcGeVector3d(0, 0, 1), 0);

AcGeLine3d::AcGeLine3d(const AcGePoint3d& pnt, const AcGeVector3d& vec) : AcGeLinearEnt3d(pnt, vec)
{
    set(pnt, vec);
}

AcGeLine3d::AcGeLine3d(const AcGePoint3d& pnt1, const AcGePoint3d& pnt2) : AcGeLinearEnt3d(pnt1, pnt2 - pnt1)
{
    set(pnt1, pnt2);
}

AcGeLine3d& AcGeLine3d::set(const AcGePoint3d& pnt, const AcGeVector3d& vec)
{
    if (vec.isZeroLength())
        headless::raiseHostError(L"AcGeLine3d::set: the direction has zero length");
    mPoint = pnt;
    mVector = vec;
    return *this;
}

AcGeLine3d& AcGeLine3d::set(const AcGePoint3d& pnt1, const AcGePoint3d& pnt2)
{
    if (pnt1.isEqualTo(pnt2))
        headless::raiseHostError(L"AcGeLine3d::set: the two points are equal");
    mPoint = pnt1;
    mVector = pnt2 - pnt1;
    return *this;
}

Adesk::Boolean AcGeLine3d::isEqualTo(const AcGeLine3d& line, const AcGeTol& tol) const
{
    return mPoint.isEqualTo(line.mPoint, tol) && mVector.isEqualTo(line.mVector, tol);
}

Adesk::Boolean AcGeLine3d::isKindOf(AcGe::EntityId entType) const
{
    return entType == AcGe::kLine3d || AcGeLinearEnt3d::isKindOf(entType);
}

AcGeEntity3d* AcGeLine3d::copy() const
{
    return new AcGeLine3d(*this);
}

Adesk::Boolean AcGeLine3d::isEqualTo(const AcGeEntity3d& entity, const AcGeTol& tol) const
{
    return entity.type() == AcGe::kLine3d && isEqualTo(static_cast<const AcGeLine3d&>(entity), tol);
}

AcGeLine3d& AcGeLine3d::transformBy(const AcGeMatrix3d& xfm)
{
    transformLinear(xfm, L"AcGeLine3d::transformBy");
    return *this;
}

void AcGeLine3d::print(std::ostream& os) const
{
    os << "AcGeLine3d(" << mPoint << ", " << mVector << ')';
}

void AcGeLine3d::getInterval(AcGeInterval& intrvl) const
{
    intrvl.set();
}

AcGeLine3d& AcGeLine3d::reverseParam()
{
    mVector = -mVector;
    return *this;
}

void AcGeLine3d::getSplitCurves(double, AcGeCurve3d*& piece1, AcGeCurve3d*& piece2) const
{
    piece1 = nullptr;
    piece2 = nullptr;
}

std::ostream& operator<<(std::ostream& os, const AcGeLine3d& line)
{
    line.print(os);
    return os;
}
