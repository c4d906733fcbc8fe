// AcGePoint3d: transforming, mirroring and projecting points in space.
#include "gepnt3d.h"

#include "GeFormat.h"
#include "gemat3d.h"
#include "geplane.h"
#include "headless/HostError.h"

const AcGePoint3d AcGePoint3d::kOrigin(0.0, 0.0, 0.0);

AcGePoint3d::AcGePoint3d(const AcGePlane& pln, const AcGePoint2d& pnt)
{
    set(pln, pnt);
}

AcGePoint3d operator*(const AcGeMatrix3d& mat, const AcGePoint3d& pnt)
{
    const auto& e = mat.entry;
    const AcGePoint3d mapped(e[0][0] * pnt.x + e[0][1] * pnt.y + e[0][2] * pnt.z + e[0][3],
                             e[1][0] * pnt.x + e[1][1] * pnt.y + e[1][2] * pnt.z + e[1][3],
                             e[2][0] * pnt.x + e[2][1] * pnt.y + e[2][2] * pnt.z + e[2][3]);
    const double w = e[3][0] * pnt.x + e[3][1] * pnt.y + e[3][2] * pnt.z + e[3][3];
    // Affine maps leave w at 1; a point that a perspective map sends to infinity keeps its
    // undivided coordinates rather than becoming infinite.
    if (w == 1.0 || w == 0.0)
        return mapped;
    return mapped / w;
}

AcGePoint3d& AcGePoint3d::setToProduct(const AcGeMatrix3d& mat, const AcGePoint3d& pnt)
{
    return *this = mat * pnt;
}

AcGePoint3d& AcGePoint3d::transformBy(const AcGeMatrix3d& leftSide)
{
    return *this = leftSide * *this;
}

AcGePoint3d& AcGePoint3d::rotateBy(double angle, const AcGeVector3d& vec, const AcGePoint3d& wrtPoint)
{
    if (vec.isZeroLength())
        headless::raiseHostError(L"AcGePoint3d::rotateBy: the axis has zero length");
    return *this = AcGeMatrix3d::rotation(angle, vec, wrtPoint) * *this;
}

AcGePoint3d& AcGePoint3d::mirror(const AcGePlane& pln)
{
    return *this -= pln.normal() * (2.0 * pln.signedDistanceTo(*this));
}

AcGePoint3d& AcGePoint3d::scaleBy(double scaleFactor, const AcGePoint3d& wrtPoint)
{
    return *this = wrtPoint + (*this - wrtPoint) * scaleFactor;
}

AcGePoint3d AcGePoint3d::project(const AcGePlane& pln, const AcGeVector3d& vec) const
{
    const AcGeVector3d n = pln.normal();
    if (vec.isZeroLength() || vec.isPerpendicularTo(n))
        return *this;
    return *this - vec * (pln.signedDistanceTo(*this) / vec.dotProduct(n));
}

AcGePoint3d AcGePoint3d::orthoProject(const AcGePlane& pln) const
{
    return pln.closestPointTo(*this);
}

AcGePoint2d AcGePoint3d::convert2d(const AcGePlane& pln) const
{
    return pln.paramOf(*this);
}

double AcGePoint3d::distanceTo(const AcGePoint3d& pnt) const
{
    return (*this - pnt).length();
}

bool AcGePoint3d::operator==(const AcGePoint3d& pnt) const
{
    return isEqualTo(pnt);
}

Adesk::Boolean AcGePoint3d::isEqualTo(const AcGePoint3d& pnt, const AcGeTol& tol) const
{
    return distanceTo(pnt) <= tol.equalPoint();
}

double AcGePoint3d::operator[](unsigned int i) const
{
    return const_cast<AcGePoint3d&>(*this)[i];
}

double& AcGePoint3d::operator[](unsigned int i)
{
    switch (i) {
    case 0: return x;
    case 1: return y;
    case 2: return z;
    default: headless::raiseHostError(L"AcGePoint3d::operator[]: index %u is outside 0..2", i);
    }
}

AcGePoint3d& AcGePoint3d::set(const AcGePlane& pln, const AcGePoint2d& pnt)
{
    return *this = pln.evalPoint(pnt);
}

std::ostream& operator<<(std::ostream& os, const AcGePoint3d& pnt)
{
    hostge::writeCoordinates(os, {pnt.x, pnt.y, pnt.z});
    return os;
}
