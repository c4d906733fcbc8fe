// AcGeLine3d: distances, projection and comparison of unbounded lines in space.
#include "geline3d.h"

#include <ostream>

#include "gemat3d.h"
#include "headless/HostError.h"

const AcGeLine3d AcGeLine3d::kXAxis;
const AcGeLine3d AcGeLine3d::kYAxis(AcGeVector3d(0, 1, 0), 0);
const AcGeLine3d AcGeLine3d::kZAxis(AcGeVector3d(0, 0, 1), 0);

AcGeLine3d::AcGeLine3d(const AcGePoint3d& pnt, const AcGeVector3d& vec)
{
    set(pnt, vec);
}

AcGeLine3d::AcGeLine3d(const AcGePoint3d& pnt1, const AcGePoint3d& pnt2)
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

AcGeVector3d AcGeLine3d::direction() const
{
    return mVector / mVector.length();
}

double AcGeLine3d::paramOf(const AcGePoint3d& pnt, const AcGeTol&) const
{
    return (pnt - mPoint).dotProduct(mVector) / mVector.lengthSqrd();
}

AcGePoint3d AcGeLine3d::closestPointTo(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    return evalPoint(paramOf(pnt, tol));
}

double AcGeLine3d::distanceTo(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    return pnt.distanceTo(closestPointTo(pnt, tol));
}

Adesk::Boolean AcGeLine3d::isOn(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    return distanceTo(pnt, tol) <= tol.equalPoint();
}

Adesk::Boolean AcGeLine3d::isParallelTo(const AcGeLine3d& line, const AcGeTol& tol) const
{
    return mVector.isParallelTo(line.mVector, tol);
}

Adesk::Boolean AcGeLine3d::isColinearTo(const AcGeLine3d& line, const AcGeTol& tol) const
{
    return isParallelTo(line, tol) && isOn(line.mPoint, tol);
}

Adesk::Boolean AcGeLine3d::isEqualTo(const AcGeLine3d& line, const AcGeTol& tol) const
{
    return mPoint.isEqualTo(line.mPoint, tol) && mVector.isEqualTo(line.mVector, tol);
}

AcGeLine3d& AcGeLine3d::transformBy(const AcGeMatrix3d& xfm)
{
    const AcGeVector3d vec = xfm * mVector;
    if (vec.isZeroLength())
        headless::raiseHostError(L"AcGeLine3d::transformBy: the matrix collapses the line to a point");
    mPoint = xfm * mPoint;
    mVector = vec;
    return *this;
}

std::ostream& operator<<(std::ostream& os, const AcGeLine3d& line)
{
    return os << "AcGeLine3d(" << line.mPoint << ", " << line.mVector << ')';
}
