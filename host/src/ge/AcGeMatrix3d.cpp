// AcGeMatrix3d: products, inverse and the tolerance queries of 4x4 matrices, and the
// matrices of the usual maps (translation, rotation, scaling, mirroring, coordinate systems).
#include "gemat3d.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <utility>

#include "GeFormat.h"
#include "geline3d.h"
#include "geplane.h"
#include "headless/HostError.h"

const AcGeMatrix3d AcGeMatrix3d::kIdentity;

namespace {

bool isAffine(const AcGeMatrix3d& mat)
{
    const auto& e = mat.entry;
    return e[3][0] == 0.0 && e[3][1] == 0.0 && e[3][2] == 0.0 && e[3][3] == 1.0;
}

AcGeVector3d linearColumn(const AcGeMatrix3d& mat, int column)
{
    return AcGeVector3d(mat.entry[0][column], mat.entry[1][column], mat.entry[2][column]);
}

}  // namespace

AcGeMatrix3d AcGeMatrix3d::operator*(const AcGeMatrix3d& mat) const
{
    AcGeMatrix3d product;
    for (int row = 0; row < 4; ++row) {
        for (int col = 0; col < 4; ++col) {
            double sum = 0.0;
            for (int k = 0; k < 4; ++k)
                sum += entry[row][k] * mat.entry[k][col];
            product.entry[row][col] = sum;
        }
    }
    return product;
}

AcGeMatrix3d AcGeMatrix3d::inverse(const AcGeTol& tol) const
{
    AcGeMatrix3d inv;
    if (!inverse(inv, tol.equalVector()))
        headless::raiseHostError(L"AcGeMatrix3d::inverse: the matrix is singular");
    return inv;
}

bool AcGeMatrix3d::inverse(AcGeMatrix3d& inv, double tol) const
{
    AcGeTol singularTol;
    singularTol.setEqualVector(tol);
    if (isSingular(singularTol))
        return false;
    // Gauss-Jordan elimination with partial pivoting on [this | identity].
    double a[4][4];
    std::copy(&entry[0][0], &entry[0][0] + 16, &a[0][0]);
    AcGeMatrix3d result;
    for (int col = 0; col < 4; ++col) {
        int pivot = col;
        for (int row = col + 1; row < 4; ++row) {
            if (std::fabs(a[row][col]) > std::fabs(a[pivot][col]))
                pivot = row;
        }
        if (a[pivot][col] == 0.0)
            return false;
        std::swap(a[pivot], a[col]);
        std::swap(result.entry[pivot], result.entry[col]);
        const double scale = 1.0 / a[col][col];
        for (int k = 0; k < 4; ++k) {
            a[col][k] *= scale;
            result.entry[col][k] *= scale;
        }
        for (int row = 0; row < 4; ++row) {
            const double factor = a[row][col];
            if (row == col || factor == 0.0)
                continue;
            for (int k = 0; k < 4; ++k) {
                a[row][k] -= factor * a[col][k];
                result.entry[row][k] -= factor * result.entry[col][k];
            }
        }
    }
    if (isAffine(*this)) {
        result.entry[3][0] = result.entry[3][1] = result.entry[3][2] = 0.0;
        result.entry[3][3] = 1.0;
    }
    inv = result;
    return true;
}

Adesk::Boolean AcGeMatrix3d::isSingular(const AcGeTol& tol) const
{
    // Relative to the column lengths, so that a small but regular scale is not singular.
    const int size = isAffine(*this) ? 3 : 4;
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

AcGeMatrix3d& AcGeMatrix3d::transposeIt()
{
    for (int row = 0; row < 4; ++row) {
        for (int col = row + 1; col < 4; ++col)
            std::swap(entry[row][col], entry[col][row]);
    }
    return *this;
}

AcGeMatrix3d AcGeMatrix3d::transpose() const
{
    AcGeMatrix3d copy = *this;
    return copy.transposeIt();
}

bool AcGeMatrix3d::operator==(const AcGeMatrix3d& mat) const
{
    return isEqualTo(mat);
}

Adesk::Boolean AcGeMatrix3d::isEqualTo(const AcGeMatrix3d& mat, const AcGeTol& tol) const
{
    for (int col = 0; col < 3; ++col) {
        if (!linearColumn(*this, col).isEqualTo(linearColumn(mat, col), tol))
            return false;
    }
    if ((translation() - mat.translation()).length() > tol.equalPoint())
        return false;
    for (int col = 0; col < 4; ++col) {
        if (std::fabs(entry[3][col] - mat.entry[3][col]) > tol.equalVector())
            return false;
    }
    return true;
}

Adesk::Boolean AcGeMatrix3d::isUniScaledOrtho(const AcGeTol& tol) const
{
    if (!isScaledOrtho(tol))
        return false;
    const double lengths[3] = {linearColumn(*this, 0).length(), linearColumn(*this, 1).length(),
                               linearColumn(*this, 2).length()};
    const double largest = std::max({lengths[0], lengths[1], lengths[2]});
    const double smallest = std::min({lengths[0], lengths[1], lengths[2]});
    return largest - smallest <= tol.equalVector() * largest;
}

Adesk::Boolean AcGeMatrix3d::isScaledOrtho(const AcGeTol& tol) const
{
    if (!isAffine(*this))
        return false;
    const AcGeVector3d x = linearColumn(*this, 0);
    const AcGeVector3d y = linearColumn(*this, 1);
    const AcGeVector3d z = linearColumn(*this, 2);
    return x.isPerpendicularTo(y, tol) && y.isPerpendicularTo(z, tol) && z.isPerpendicularTo(x, tol);
}

double AcGeMatrix3d::det() const
{
    // Laplace expansion by the 2x2 minors of the top two rows and their complements.
    const auto& m = entry;
    const double s0 = m[0][0] * m[1][1] - m[1][0] * m[0][1];
    const double s1 = m[0][0] * m[1][2] - m[1][0] * m[0][2];
    const double s2 = m[0][0] * m[1][3] - m[1][0] * m[0][3];
    const double s3 = m[0][1] * m[1][2] - m[1][1] * m[0][2];
    const double s4 = m[0][1] * m[1][3] - m[1][1] * m[0][3];
    const double s5 = m[0][2] * m[1][3] - m[1][2] * m[0][3];
    const double c5 = m[2][2] * m[3][3] - m[3][2] * m[2][3];
    const double c4 = m[2][1] * m[3][3] - m[3][1] * m[2][3];
    const double c3 = m[2][1] * m[3][2] - m[3][1] * m[2][2];
    const double c2 = m[2][0] * m[3][3] - m[3][0] * m[2][3];
    const double c1 = m[2][0] * m[3][2] - m[3][0] * m[2][2];
    const double c0 = m[2][0] * m[3][1] - m[3][0] * m[2][1];
    return s0 * c5 - s1 * c4 + s2 * c3 + s3 * c2 - s4 * c1 + s5 * c0;
}

double AcGeMatrix3d::scale() const
{
    return std::max({linearColumn(*this, 0).length(), linearColumn(*this, 1).length(),
                     linearColumn(*this, 2).length()});
}

AcGeMatrix3d& AcGeMatrix3d::setTranslation(const AcGeVector3d& vec)
{
    entry[0][3] = vec.x;
    entry[1][3] = vec.y;
    entry[2][3] = vec.z;
    return *this;
}

AcGeMatrix3d& AcGeMatrix3d::setCoordSystem(const AcGePoint3d& origin, const AcGeVector3d& xAxis,
                                           const AcGeVector3d& yAxis, const AcGeVector3d& zAxis)
{
    const AcGeVector3d axes[3] = {xAxis, yAxis, zAxis};
    setToIdentity();
    for (int col = 0; col < 3; ++col) {
        entry[0][col] = axes[col].x;
        entry[1][col] = axes[col].y;
        entry[2][col] = axes[col].z;
    }
    return setTranslation(origin.asVector());
}

void AcGeMatrix3d::getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis,
                                  AcGeVector3d& zAxis) const
{
    origin = AcGePoint3d::kOrigin + translation();
    xAxis = linearColumn(*this, 0);
    yAxis = linearColumn(*this, 1);
    zAxis = linearColumn(*this, 2);
}

AcGeMatrix3d& AcGeMatrix3d::setToTranslation(const AcGeVector3d& vec)
{
    setToIdentity();
    return setTranslation(vec);
}

AcGeMatrix3d& AcGeMatrix3d::setToRotation(double angle, const AcGeVector3d& axis, const AcGePoint3d& center)
{
    if (axis.isZeroLength())
        headless::raiseHostError(L"AcGeMatrix3d::setToRotation: the axis has zero length");
    const AcGeVector3d k = axis.normal();
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    const double t = 1.0 - c;
    setToIdentity();
    entry[0][0] = t * k.x * k.x + c;
    entry[0][1] = t * k.x * k.y - s * k.z;
    entry[0][2] = t * k.x * k.z + s * k.y;
    entry[1][0] = t * k.x * k.y + s * k.z;
    entry[1][1] = t * k.y * k.y + c;
    entry[1][2] = t * k.y * k.z - s * k.x;
    entry[2][0] = t * k.x * k.z - s * k.y;
    entry[2][1] = t * k.y * k.z + s * k.x;
    entry[2][2] = t * k.z * k.z + c;
    // The centre stays where it is.
    return setTranslation(center.asVector() - *this * center.asVector());
}

AcGeMatrix3d& AcGeMatrix3d::setToScaling(double scale, const AcGePoint3d& center)
{
    setToIdentity();
    entry[0][0] = entry[1][1] = entry[2][2] = scale;
    // Written as a difference so that scaling about the origin leaves +0, not -0.
    return setTranslation(center.asVector() - center.asVector() * scale);
}

AcGeMatrix3d& AcGeMatrix3d::setToMirroring(const AcGePlane& pln)
{
    const AcGeVector3d n = pln.normal();
    const double nn[3] = {n.x, n.y, n.z};
    setToIdentity();
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 3; ++col)
            entry[row][col] -= 2.0 * nn[row] * nn[col];
    }
    return setTranslation(n * (2.0 * pln.pointOnPlane().asVector().dotProduct(n)));
}

AcGeMatrix3d& AcGeMatrix3d::setToMirroring(const AcGePoint3d& pnt)
{
    setToIdentity();
    entry[0][0] = entry[1][1] = entry[2][2] = -1.0;
    return setTranslation(pnt.asVector() * 2.0);
}

AcGeMatrix3d& AcGeMatrix3d::setToMirroring(const AcGeLine3d& line)
{
    const AcGeVector3d d = line.direction();
    const double dd[3] = {d.x, d.y, d.z};
    setToIdentity();
    for (int row = 0; row < 3; ++row) {
        for (int col = 0; col < 3; ++col)
            entry[row][col] = 2.0 * dd[row] * dd[col] - (row == col ? 1.0 : 0.0);
    }
    const AcGeVector3d p = line.pointOnLine().asVector();
    return setTranslation(p - *this * p);
}

AcGeMatrix3d& AcGeMatrix3d::setToAlignCoordSys(const AcGePoint3d& fromOrigin, const AcGeVector3d& fromXAxis,
                                               const AcGeVector3d& fromYAxis, const AcGeVector3d& fromZAxis,
                                               const AcGePoint3d& toOrigin, const AcGeVector3d& toXAxis,
                                               const AcGeVector3d& toYAxis, const AcGeVector3d& toZAxis)
{
    AcGeMatrix3d from;
    from.setCoordSystem(fromOrigin, fromXAxis, fromYAxis, fromZAxis);
    AcGeMatrix3d fromInverse;
    if (!from.inverse(fromInverse, AcGeContext::gTol.equalVector()))
        headless::raiseHostError(L"AcGeMatrix3d::setToAlignCoordSys: the axes of the from system are dependent");
    AcGeMatrix3d to;
    to.setCoordSystem(toOrigin, toXAxis, toYAxis, toZAxis);
    return *this = to * fromInverse;
}

AcGeMatrix3d& AcGeMatrix3d::setToPlaneToWorld(const AcGeVector3d& normal)
{
    if (normal.isZeroLength())
        headless::raiseHostError(L"AcGeMatrix3d::setToPlaneToWorld: the normal has zero length");
    const AcGeVector3d z = normal.normal();
    const AcGeVector3d x = z.perpVector().normal();
    return setCoordSystem(AcGePoint3d::kOrigin, x, z.crossProduct(x), z);
}

AcGeMatrix3d& AcGeMatrix3d::setToPlaneToWorld(const AcGePlane& plane)
{
    AcGePoint3d origin;
    AcGeVector3d u;
    AcGeVector3d v;
    plane.getCoordSystem(origin, u, v);
    const AcGeVector3d z = plane.normal();
    const AcGeVector3d x = u.normal();
    return setCoordSystem(origin, x, z.crossProduct(x), z);
}

AcGeMatrix3d& AcGeMatrix3d::setToWorldToPlane(const AcGeVector3d& normal)
{
    setToPlaneToWorld(normal);
    return invert();
}

AcGeMatrix3d& AcGeMatrix3d::setToWorldToPlane(const AcGePlane& plane)
{
    setToPlaneToWorld(plane);
    return invert();
}

AcGeMatrix3d AcGeMatrix3d::translation(const AcGeVector3d& vec)
{
    return AcGeMatrix3d().setToTranslation(vec);
}

AcGeMatrix3d AcGeMatrix3d::rotation(double angle, const AcGeVector3d& axis, const AcGePoint3d& center)
{
    return AcGeMatrix3d().setToRotation(angle, axis, center);
}

AcGeMatrix3d AcGeMatrix3d::scaling(double scale, const AcGePoint3d& center)
{
    return AcGeMatrix3d().setToScaling(scale, center);
}

AcGeMatrix3d AcGeMatrix3d::mirroring(const AcGePlane& pln)
{
    return AcGeMatrix3d().setToMirroring(pln);
}

AcGeMatrix3d AcGeMatrix3d::mirroring(const AcGePoint3d& pnt)
{
    return AcGeMatrix3d().setToMirroring(pnt);
}

AcGeMatrix3d AcGeMatrix3d::mirroring(const AcGeLine3d& line)
{
    return AcGeMatrix3d().setToMirroring(line);
}

AcGeMatrix3d AcGeMatrix3d::alignCoordSys(const AcGePoint3d& fromOrigin, const AcGeVector3d& fromXAxis,
                                         const AcGeVector3d& fromYAxis, const AcGeVector3d& fromZAxis,
                                         const AcGePoint3d& toOrigin, const AcGeVector3d& toXAxis,
                                         const AcGeVector3d& toYAxis, const AcGeVector3d& toZAxis)
{
    return AcGeMatrix3d().setToAlignCoordSys(fromOrigin, fromXAxis, fromYAxis, fromZAxis, toOrigin, toXAxis,
                                             toYAxis, toZAxis);
}

AcGeMatrix3d AcGeMatrix3d::planeToWorld(const AcGeVector3d& normal)
{
    return AcGeMatrix3d().setToPlaneToWorld(normal);
}

AcGeMatrix3d AcGeMatrix3d::planeToWorld(const AcGePlane& plane)
{
    return AcGeMatrix3d().setToPlaneToWorld(plane);
}

AcGeMatrix3d AcGeMatrix3d::worldToPlane(const AcGeVector3d& normal)
{
    return AcGeMatrix3d().setToWorldToPlane(normal);
}

AcGeMatrix3d AcGeMatrix3d::worldToPlane(const AcGePlane& plane)
{
    return AcGeMatrix3d().setToWorldToPlane(plane);
}

double AcGeMatrix3d::operator()(unsigned int row, unsigned int column) const
{
    return const_cast<AcGeMatrix3d&>(*this)(row, column);
}

double& AcGeMatrix3d::operator()(unsigned int row, unsigned int column)
{
    if (row > 3 || column > 3)
        headless::raiseHostError(L"AcGeMatrix3d::operator(): entry (%u, %u) is outside 0..3", row, column);
    return entry[row][column];
}

std::ostream& operator<<(std::ostream& os, const AcGeMatrix3d& mat)
{
    os << '[';
    for (int row = 0; row < 4; ++row) {
        if (row > 0)
            os << ", ";
        const auto& r = mat.entry[row];
        hostge::writeCoordinates(os, {r[0], r[1], r[2], r[3]});
    }
    return os << ']';
}
