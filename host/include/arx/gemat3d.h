// AcGeMatrix3d: an affine (or projective) map of space as a 4x4 matrix, entry[row][col].
// Points are columns (x, y, z, 1) and take the translation column; vectors are columns
// (x, y, z, 0) and do not. The linear part's columns are the images of the axes.
#pragma once

#include <iosfwd>

#include "gepnt3d.h"
#include "gevec3d.h"

class AcGeLine3d;
class AcGePlane;

class ACHOST_API AcGeMatrix3d {
public:
    static const AcGeMatrix3d kIdentity;

    constexpr AcGeMatrix3d() : entry{{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}} {}

    AcGeMatrix3d& setToIdentity() { return *this = AcGeMatrix3d(); }

    // this * mat: mat applies first.
    AcGeMatrix3d operator*(const AcGeMatrix3d& mat) const;
    AcGeMatrix3d& operator*=(const AcGeMatrix3d& mat) { return *this = *this * mat; }
    AcGeMatrix3d& preMultBy(const AcGeMatrix3d& leftSide) { return *this = leftSide * *this; }
    AcGeMatrix3d& postMultBy(const AcGeMatrix3d& rightSide) { return *this = *this * rightSide; }
    AcGeMatrix3d& setToProduct(const AcGeMatrix3d& mat1, const AcGeMatrix3d& mat2) { return *this = mat1 * mat2; }

    // Inverting a singular matrix (isSingular) raises the host error.
    AcGeMatrix3d& invert() { return *this = inverse(); }
    AcGeMatrix3d inverse(const AcGeTol& tol = AcGeContext::gTol) const;
    // False, inv untouched, when the matrix is singular with equalVector = tol.
    bool inverse(AcGeMatrix3d& inv, double tol) const;
    // A linear column (all four columns for a projective matrix) at most equalVector long,
    // or |det| at most equalVector times the product of the column lengths.
    Adesk::Boolean isSingular(const AcGeTol& tol = AcGeContext::gTol) const;
    AcGeMatrix3d& transposeIt();
    AcGeMatrix3d transpose() const;

    // Within the tolerance (isEqualTo with AcGeContext::gTol).
    bool operator==(const AcGeMatrix3d& mat) const;
    bool operator!=(const AcGeMatrix3d& mat) const { return !(*this == mat); }
    // Linear columns and the bottom row within equalVector, translations within equalPoint.
    Adesk::Boolean isEqualTo(const AcGeMatrix3d& mat, const AcGeTol& tol = AcGeContext::gTol) const;

    // Affine, with non-zero, mutually perpendicular linear columns of equal length
    // (lengths agreeing to equalVector relative to their size). Mirrors count.
    Adesk::Boolean isUniScaledOrtho(const AcGeTol& tol = AcGeContext::gTol) const;
    // Affine, with non-zero, mutually perpendicular linear columns.
    Adesk::Boolean isScaledOrtho(const AcGeTol& tol = AcGeContext::gTol) const;
    // Of the whole 4x4; for an affine matrix that of the linear part.
    double det() const;
    // The largest length among the linear part's three columns.
    double scale() const;

    AcGeMatrix3d& setTranslation(const AcGeVector3d& vec);
    AcGeVector3d translation() const { return AcGeVector3d(entry[0][3], entry[1][3], entry[2][3]); }

    // Columns xAxis, yAxis, zAxis and translation origin: maps the world system onto that one.
    AcGeMatrix3d& setCoordSystem(const AcGePoint3d& origin, const AcGeVector3d& xAxis, const AcGeVector3d& yAxis,
                                 const AcGeVector3d& zAxis);
    void getCoordSystem(AcGePoint3d& origin, AcGeVector3d& xAxis, AcGeVector3d& yAxis, AcGeVector3d& zAxis) const;

    AcGeMatrix3d& setToTranslation(const AcGeVector3d& vec);
    // Counter-clockwise seen from the tip of axis; raises the host error for a zero axis.
    AcGeMatrix3d& setToRotation(double angle, const AcGeVector3d& axis,
                                const AcGePoint3d& center = AcGePoint3d::kOrigin);
    AcGeMatrix3d& setToScaling(double scale, const AcGePoint3d& center = AcGePoint3d::kOrigin);
    // Reflection in a plane (determinant -1).
    AcGeMatrix3d& setToMirroring(const AcGePlane& pln);
    // Reflection through a point (determinant -1).
    AcGeMatrix3d& setToMirroring(const AcGePoint3d& pnt);
    // Reflection in a line: the half turn about it (determinant +1).
    AcGeMatrix3d& setToMirroring(const AcGeLine3d& line);
    // Maps the "from" system onto the "to" system: to * from^-1. A singular "from"
    // system raises the host error.
    AcGeMatrix3d& setToAlignCoordSys(const AcGePoint3d& fromOrigin, const AcGeVector3d& fromXAxis,
                                     const AcGeVector3d& fromYAxis, const AcGeVector3d& fromZAxis,
                                     const AcGePoint3d& toOrigin, const AcGeVector3d& toXAxis,
                                     const AcGeVector3d& toYAxis, const AcGeVector3d& toZAxis);
    // The rigid map from a plane's own system to the world. For a bare normal the plane
    // passes through the origin and its X axis follows the arbitrary-axis rule (the
    // normalised perpVector of the normal), so the Z normal gives the identity. For a plane
    // the X axis is its u axis normalised and Y completes a right-handed system.
    // A zero normal raises the host error.
    AcGeMatrix3d& setToPlaneToWorld(const AcGeVector3d& normal);
    AcGeMatrix3d& setToPlaneToWorld(const AcGePlane& plane);
    // The inverses of the above.
    AcGeMatrix3d& setToWorldToPlane(const AcGeVector3d& normal);
    AcGeMatrix3d& setToWorldToPlane(const AcGePlane& plane);

    static AcGeMatrix3d translation(const AcGeVector3d& vec);
    static AcGeMatrix3d rotation(double angle, const AcGeVector3d& axis,
                                 const AcGePoint3d& center = AcGePoint3d::kOrigin);
    static AcGeMatrix3d scaling(double scale, const AcGePoint3d& center = AcGePoint3d::kOrigin);
    static AcGeMatrix3d mirroring(const AcGePlane& pln);
    static AcGeMatrix3d mirroring(const AcGePoint3d& pnt);
    static AcGeMatrix3d mirroring(const AcGeLine3d& line);
    static AcGeMatrix3d alignCoordSys(const AcGePoint3d& fromOrigin, const AcGeVector3d& fromXAxis,
                                      const AcGeVector3d& fromYAxis, const AcGeVector3d& fromZAxis,
                                      const AcGePoint3d& toOrigin, const AcGeVector3d& toXAxis,
                                      const AcGeVector3d& toYAxis, const AcGeVector3d& toZAxis);
    static AcGeMatrix3d planeToWorld(const AcGeVector3d& normal);
    static AcGeMatrix3d planeToWorld(const AcGePlane& plane);
    static AcGeMatrix3d worldToPlane(const AcGeVector3d& normal);
    static AcGeMatrix3d worldToPlane(const AcGePlane& plane);

    // Rows and columns 0..3; any other index raises the host error.
    double operator()(unsigned int row, unsigned int column) const;
    double& operator()(unsigned int row, unsigned int column);

    double entry[4][4];
};

// "[(row 0), (row 1), (row 2), (row 3)]", every digit a double needs to read back the same.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeMatrix3d& mat);
