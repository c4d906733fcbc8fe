// AcGeMatrix2d: products, inverse and the tolerance queries of 3x3 matrices, and the
// matrices of the usual maps of the plane.
#include "gemat2d.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <utility>

#include "GeFormat.h"
#include "geline2d.h"
#include "headless/HostError.h"

const AcGeMatrix2d AcGeMatrix2d::kIdentity;

namespace {

bool isAffine(const AcGeMatrix2d& mat)
{
    const auto& e = mat.entry;
    return e[2][0] == 0.0 && e[2][1] == 0.0 && e[2][2] == 1.0;
}

AcGeVector2d linearColumn(const AcGeMatrix2d& mat, int column)
{
    return AcGeVector2d(mat.entry[0][column], mat.entry[1][column]);
}

}  // namespace

AcGeMatrix2d AcGeMatrix2d::operator*(const AcGeMatrix2d& mat) const
{
    AcGeMatrix2d product;
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 3; ++col) {
            double sum = 0.0;
            for (int k = 0; k < 3; ++k)
                sum += entry[row][k] * mat.entry[k][col];
            product.entry[row][col] = sum;
        }
    }
    return product;
}

AcGeMatrix2d AcGeMatrix2d::inverse(const AcGeTol& tol) const
{
    AcGeMatrix2d inv;
    if (!inverse(inv, tol.equalVector()))
        headless::raiseHostError(L"AcGeMatrix2d::inverse: the matrix is singular");
    return inv;
}

bool AcGeMatrix2d::inverse(AcGeMatrix2d& inv, double tol) const
{
    AcGeTol singularTol;
    singularTol.setEqualVector(tol);
    if (isSingular(singularTol))
        return false;
    // The adjugate over the determinant.
    const auto& m = entry;
    const double d = det();
    AcGeMatrix2d result;
    result.entry[0][0] = (m[1][1] * m[2][2] - m[1][2] * m[2][1]) / d;
    result.entry[0][1] = (m[0][2] * m[2][1] - m[0][1] * m[2][2]) / d;
    result.entry[0][2] = (m[0][1] * m[1][2] - m[0][2] * m[1][1]) / d;
    result.entry[1][0] = (m[1][2] * m[2][0] - m[1][0] * m[2][2]) / d;
    result.entry[1][1] = (m[0][0] * m[2][2] - m[0][2] * m[2][0]) / d;
    result.entry[1][2] = (m[0][2] * m[1][0] - m[0][0] * m[1][2]) / d;
    result.entry[2][0] = (m[1][0] * m[2][1] - m[1][1] * m[2][0]) / d;
    result.entry[2][1] = (m[0][1] * m[2][0] - m[0][0] * m[2][1]) / d;
    result.entry[2][2] = (m[0][0] * m[1][1] - m[0][1] * m[1][0]) / d;
    if (isAffine(*this)) {
        result.entry[2][0] = result.entry[2][1] = 0.0;
        result.entry[2][2] = 1.0;
    }
    inv = result;
    return true;
}

Adesk::Boolean AcGeMatrix2d::isSingular(const AcGeTol& tol) const
{
    // Relative to the column lengths, so that a small but regular scale is not singular.
    const int size = isAffine(*this) ? 2 : 3;
    double product = 1.0;
    for (int col = 0; col < size; ++col) {
        double sum = 0.0;
        for (int row = 0; row < size; ++row)
            sum += entry[row][col] * entry[row][col];
        const double length = std::sqrt(sum);
        if (length <= tol.equalVector())
            return true;
        product *= length;
    }
    return std::fabs(det()) <= tol.equalVector() * product;
}

AcGeMatrix2d& AcGeMatrix2d::transposeIt()
{
    for (int row = 0; row < 3; ++row) {
        for (int col = row + 1; col < 3; ++col)
            std::swap(entry[row][col], entry[col][row]);
    }
    return *this;
}

AcGeMatrix2d AcGeMatrix2d::transpose() const
{
    AcGeMatrix2d copy = *this;
    return copy.transposeIt();
}

bool AcGeMatrix2d::operator==(const AcGeMatrix2d& mat) const
{
    return isEqualTo(mat);
}

Adesk::Boolean AcGeMatrix2d::isEqualTo(const AcGeMatrix2d& mat, const AcGeTol& tol) const
{
    for (int col = 0; col < 2; ++col) {
        if (!linearColumn(*this, col).isEqualTo(linearColumn(mat, col), tol))
            return false;
    }
    if ((translation() - mat.translation()).length() > tol.equalPoint())
        return false;
    for (int col = 0; col < 3; ++col) {
        if (std::fabs(entry[2][col] - mat.entry[2][col]) > tol.equalVector())
            return false;
    }
    return true;
}

Adesk::Boolean AcGeMatrix2d::isUniScaledOrtho(const AcGeTol& tol) const
{
    if (!isScaledOrtho(tol))
        return false;
    const double lx = linearColumn(*this, 0).length();
    const double ly = linearColumn(*this, 1).length();
    return std::fabs(lx - ly) <= tol.equalVector() * std::max(lx, ly);
}

Adesk::Boolean AcGeMatrix2d::isScaledOrtho(const AcGeTol& tol) const
{
    return isAffine(*this) && linearColumn(*this, 0).isPerpendicularTo(linearColumn(*this, 1), tol);
}

double AcGeMatrix2d::det() const
{
    const auto& m = entry;
    return m[0][0] * (m[1][1] * m[2][2] - m[1][2] * m[2][1]) - m[0][1] * (m[1][0] * m[2][2] - m[1][2] * m[2][0]) +
           m[0][2] * (m[1][0] * m[2][1] - m[1][1] * m[2][0]);
}

double AcGeMatrix2d::scale() const
{
    return std::max(linearColumn(*this, 0).length(), linearColumn(*this, 1).length());
}

AcGeMatrix2d& AcGeMatrix2d::setTranslation(const AcGeVector2d& vec)
{
    entry[0][2] = vec.x;
    entry[1][2] = vec.y;
    return *this;
}

AcGeMatrix2d& AcGeMatrix2d::setCoordSystem(const AcGePoint2d& origin, const AcGeVector2d& e0,
                                           const AcGeVector2d& e1)
{
    setToIdentity();
    entry[0][0] = e0.x;
    entry[1][0] = e0.y;
    entry[0][1] = e1.x;
    entry[1][1] = e1.y;
    return setTranslation(origin.asVector());
}

void AcGeMatrix2d::getCoordSystem(AcGePoint2d& origin, AcGeVector2d& e0, AcGeVector2d& e1) const
{
    origin = AcGePoint2d::kOrigin + translation();
    e0 = linearColumn(*this, 0);
    e1 = linearColumn(*this, 1);
}

AcGeMatrix2d& AcGeMatrix2d::setToTranslation(const AcGeVector2d& vec)
{
    setToIdentity();
    return setTranslation(vec);
}

AcGeMatrix2d& AcGeMatrix2d::setToRotation(double angle, const AcGePoint2d& center)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    setToIdentity();
    entry[0][0] = c;
    entry[0][1] = -s;
    entry[1][0] = s;
    entry[1][1] = c;
    // The centre stays where it is.
    return setTranslation(center.asVector() - *this * center.asVector());
}

AcGeMatrix2d& AcGeMatrix2d::setToScaling(double scale, const AcGePoint2d& center)
{
    setToIdentity();
    entry[0][0] = entry[1][1] = scale;
    // Written as a difference so that scaling about the origin leaves +0, not -0.
    return setTranslation(center.asVector() - center.asVector() * scale);
}

AcGeMatrix2d& AcGeMatrix2d::setToMirroring(const AcGePoint2d& pnt)
{
    setToIdentity();
    entry[0][0] = entry[1][1] = -1.0;
    return setTranslation(pnt.asVector() * 2.0);
}

AcGeMatrix2d& AcGeMatrix2d::setToMirroring(const AcGeLine2d& line)
{
    const AcGeVector2d d = line.direction();
    setToIdentity();
    entry[0][0] = 2.0 * d.x * d.x - 1.0;
    entry[0][1] = 2.0 * d.x * d.y;
    entry[1][0] = 2.0 * d.x * d.y;
    entry[1][1] = 2.0 * d.y * d.y - 1.0;
    const AcGeVector2d p = line.pointOnLine().asVector();
    return setTranslation(p - *this * p);
}

AcGeMatrix2d& AcGeMatrix2d::setToAlignCoordSys(const AcGePoint2d& fromOrigin, const AcGeVector2d& fromE0,
                                               const AcGeVector2d& fromE1, const AcGePoint2d& toOrigin,
                                               const AcGeVector2d& toE0, const AcGeVector2d& toE1)
{
    AcGeMatrix2d from;
    from.setCoordSystem(fromOrigin, fromE0, fromE1);
    AcGeMatrix2d fromInverse;
    if (!from.inverse(fromInverse, AcGeContext::gTol.equalVector()))
        headless::raiseHostError(L"AcGeMatrix2d::setToAlignCoordSys: the axes of the from system are dependent");
    AcGeMatrix2d to;
    to.setCoordSystem(toOrigin, toE0, toE1);
    return *this = to * fromInverse;
}

AcGeMatrix2d AcGeMatrix2d::translation(const AcGeVector2d& vec)
{
    return AcGeMatrix2d().setToTranslation(vec);
}

AcGeMatrix2d AcGeMatrix2d::rotation(double angle, const AcGePoint2d& center)
{
    return AcGeMatrix2d().setToRotation(angle, center);
}

AcGeMatrix2d AcGeMatrix2d::scaling(double scale, const AcGePoint2d& center)
{
    return AcGeMatrix2d().setToScaling(scale, center);
}

AcGeMatrix2d AcGeMatrix2d::mirroring(const AcGePoint2d& pnt)
{
    return AcGeMatrix2d().setToMirroring(pnt);
}

AcGeMatrix2d AcGeMatrix2d::mirroring(const AcGeLine2d& line)
{
    return AcGeMatrix2d().setToMirroring(line);
}

AcGeMatrix2d AcGeMatrix2d::alignCoordSys(const AcGePoint2d& fromOrigin, const AcGeVector2d& fromE0,
                                         const AcGeVector2d& fromE1, const AcGePoint2d& toOrigin,
                                         const AcGeVector2d& toE0, const AcGeVector2d& toE1)
{
    return AcGeMatrix2d().setToAlignCoordSys(fromOrigin, fromE0, fromE1, toOrigin, toE0, toE1);
}

double AcGeMatrix2d::operator()(unsigned int row, unsigned int column) const
{
    return const_cast<AcGeMatrix2d&>(*this)(row, column);
}

double& AcGeMatrix2d::operator()(unsigned int row, unsigned int column)
{
    if (row > 2 || column > 2)
        headless::raiseHostError(L"AcGeMatrix2d::operator(): entry (%u, %u) is outside 0..2", row, column);
    return entry[row][column];
}

std::ostream& operator<<(std::ostream& os, const AcGeMatrix2d& mat)
{
    os << '[';
    for (int row = 0; row < 3; ++row) {
        if (row > 0)
            os << ", ";
        const auto& r = mat.entry[row];
        hostge::writeCoordinates(os, {r[0], r[1], r[2]});
    }
    return os << ']';
}
