// AcGePoint2d: transforming and mirroring points in the plane.
#include "gepnt2d.h"

#include "GeFormat.h"
#include "gemat2d.h"
#include "geline2d.h"
#include "headless/HostError.h"

const AcGePoint2d AcGePoint2d::kOrigin(0.0, 0.0);

AcGePoint2d operator*(const AcGeMatrix2d& mat, const AcGePoint2d& pnt)
{
    const auto& e = mat.entry;
    const AcGePoint2d mapped(e[0][0] * pnt.x + e[0][1] * pnt.y + e[0][2],
                             e[1][0] * pnt.x + e[1][1] * pnt.y + e[1][2]);
    const double w = e[2][0] * pnt.x + e[2][1] * pnt.y + e[2][2];
    // Affine maps leave w at 1; a point that a perspective map sends to infinity keeps its
    // undivided coordinates rather than becoming infinite.
    if (w == 1.0 || w == 0.0)
        return mapped;
    return mapped / w;
}

AcGePoint2d& AcGePoint2d::setToProduct(const AcGeMatrix2d& mat, const AcGePoint2d& pnt)
{
    return *this = mat * pnt;
}

AcGePoint2d& AcGePoint2d::transformBy(const AcGeMatrix2d& leftSide)
{
    return *this = leftSide * *this;
}

AcGePoint2d& AcGePoint2d::rotateBy(double angle, const AcGePoint2d& wrtPoint)
{
    return *this = wrtPoint + (*this - wrtPoint).rotateBy(angle);
}

AcGePoint2d& AcGePoint2d::mirror(const AcGeLine2d& line)
{
    const AcGePoint2d foot = line.closestPointTo(*this);
    return *this = foot + (foot - *this);
}

AcGePoint2d& AcGePoint2d::scaleBy(double scaleFactor, const AcGePoint2d& wrtPoint)
{
    return *this = wrtPoint + (*this - wrtPoint) * scaleFactor;
}

double AcGePoint2d::distanceTo(const AcGePoint2d& pnt) const
{
    return (*this - pnt).length();
}

bool AcGePoint2d::operator==(const AcGePoint2d& pnt) const
{
    return isEqualTo(pnt);
}

Adesk::Boolean AcGePoint2d::isEqualTo(const AcGePoint2d& pnt, const AcGeTol& tol) const
{
    return distanceTo(pnt) <= tol.equalPoint();
}

double AcGePoint2d::operator[](unsigned int i) const
{
    return const_cast<AcGePoint2d&>(*this)[i];
}

double& AcGePoint2d::operator[](unsigned int i)
{
    switch (i) {
    case 0: return x;
    case 1: return y;
    default: headless::raiseHostError(L"AcGePoint2d::operator[]: index %u is outside 0..1", i);
    }
}

std::ostream& operator<<(std::ostream& os, const AcGePoint2d& pnt)
{
    hostge::writeCoordinates(os, {pnt.x, pnt.y});
    return os;
}
