// AcGeLine2d: distances, projection and comparison of unbounded lines in the plane.
#include "geline2d.h"

#include <ostream>

#include "gemat2d.h"
#include "headless/HostError.h"

const AcGeLine2d AcGeLine2d::kXAxis;
const AcGeLine2d AcGeLine2d::kYAxis(AcGeVector2d(0, 1), 0);

AcGeLine2d::AcGeLine2d(const AcGePoint2d& pnt, const AcGeVector2d& vec)
{
    set(pnt, vec);
}

AcGeLine2d::AcGeLine2d(const AcGePoint2d& pnt1, const AcGePoint2d& pnt2)
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

AcGeVector2d AcGeLine2d::direction() const
{
    return mVector / mVector.length();
}

double AcGeLine2d::paramOf(const AcGePoint2d& pnt, const AcGeTol&) const
{
    return (pnt - mPoint).dotProduct(mVector) / mVector.lengthSqrd();
}

AcGePoint2d AcGeLine2d::closestPointTo(const AcGePoint2d& pnt, const AcGeTol& tol) const
{
    return evalPoint(paramOf(pnt, tol));
}

double AcGeLine2d::distanceTo(const AcGePoint2d& pnt, const AcGeTol& tol) const
{
    return pnt.distanceTo(closestPointTo(pnt, tol));
}

Adesk::Boolean AcGeLine2d::isOn(const AcGePoint2d& pnt, const AcGeTol& tol) const
{
    return distanceTo(pnt, tol) <= tol.equalPoint();
}

Adesk::Boolean AcGeLine2d::isParallelTo(const AcGeLine2d& line, const AcGeTol& tol) const
{
    return mVector.isParallelTo(line.mVector, tol);
}

Adesk::Boolean AcGeLine2d::isColinearTo(const AcGeLine2d& line, const AcGeTol& tol) const
{
    return isParallelTo(line, tol) && isOn(line.mPoint, tol);
}

Adesk::Boolean AcGeLine2d::isEqualTo(const AcGeLine2d& line, const AcGeTol& tol) const
{
    return mPoint.isEqualTo(line.mPoint, tol) && mVector.isEqualTo(line.mVector, tol);
}

AcGeLine2d& AcGeLine2d::transformBy(const AcGeMatrix2d& xfm)
{
    const AcGeVector2d vec = xfm * mVector;
    if (vec.isZeroLength())
        headless::raiseHostError(L"AcGeLine2d::transformBy: the matrix collapses the line to a point");
    mPoint = xfm * mPoint;
    mVector = vec;
    return *this;
}

std::ostream& operator<<(std::ostream& os, const AcGeLine2d& line)
{
    return os << "AcGeLine2d(" << line.mPoint << ", " << line.mVector << ')';
}
