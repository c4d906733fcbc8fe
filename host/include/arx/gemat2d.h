// AcGeMatrix2d: an affine map of the plane as a 3x3 matrix, entry[row][col]. Points are
// columns (x, y, 1) and take the translation column; vectors are columns (x, y, 0).
#pragma once

#include <iosfwd>

#include "gepnt2d.h"
#include "gevec2d.h"

class AcGeLine2d;

class ACHOST_API AcGeMatrix2d {
public:
    static const AcGeMatrix2d kIdentity;

    constexpr AcGeMatrix2d() : entry{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}} {}

    AcGeMatrix2d& setToIdentity() { return *this = AcGeMatrix2d(); }

    // this * mat: mat applies first.
    AcGeMatrix2d operator*(const AcGeMatrix2d& mat) const;
    AcGeMatrix2d& operator*=(const AcGeMatrix2d& mat) { return *this = *this * mat; }
    AcGeMatrix2d& preMultBy(const AcGeMatrix2d& leftSide) { return *this = leftSide * *this; }
    AcGeMatrix2d& postMultBy(const AcGeMatrix2d& rightSide) { return *this = *this * rightSide; }
    AcGeMatrix2d& setToProduct(const AcGeMatrix2d& mat1, const AcGeMatrix2d& mat2) { return *this = mat1 * mat2; }

    // Inverting a singular matrix (isSingular) raises the host error.
    AcGeMatrix2d& invert() { return *this = inverse(); }
    AcGeMatrix2d inverse(const AcGeTol& tol = AcGeContext::gTol) const;
    // False, inv untouched, when the matrix is singular with equalVector = tol.
    bool inverse(AcGeMatrix2d& inv, double tol) const;
    // A linear column (all three for a projective matrix) at most equalVector long, or
    // |det| at most equalVector times the product of the column lengths.
    Adesk::Boolean isSingular(const AcGeTol& tol = AcGeContext::gTol) const;
    AcGeMatrix2d& transposeIt();
    AcGeMatrix2d transpose() const;

    // Within the tolerance (isEqualTo with AcGeContext::gTol).
    bool operator==(const AcGeMatrix2d& mat) const;
    bool operator!=(const AcGeMatrix2d& mat) const { return !(*this == mat); }
    // Linear columns and the bottom row within equalVector, translations within equalPoint.
    Adesk::Boolean isEqualTo(const AcGeMatrix2d& mat, const AcGeTol& tol = AcGeContext::gTol) const;

    // Affine, with non-zero, perpendicular linear columns of equal length. Mirrors count.
    Adesk::Boolean isUniScaledOrtho(const AcGeTol& tol = AcGeContext::gTol) const;
    // Affine, with non-zero, perpendicular linear columns.
    Adesk::Boolean isScaledOrtho(const AcGeTol& tol = AcGeContext::gTol) const;
    // Of the whole 3x3; for an affine matrix that of the linear part.
    double det() const;
    // The larger length of the linear part's two columns.
    double scale() const;

    AcGeMatrix2d& setTranslation(const AcGeVector2d& vec);
    AcGeVector2d translation() const { return AcGeVector2d(entry[0][2], entry[1][2]); }

    // Columns e0, e1 and translation origin.
    AcGeMatrix2d& setCoordSystem(const AcGePoint2d& origin, const AcGeVector2d& e0, const AcGeVector2d& e1);
    void getCoordSystem(AcGePoint2d& origin, AcGeVector2d& e0, AcGeVector2d& e1) const;

    AcGeMatrix2d& setToTranslation(const AcGeVector2d& vec);
    // Counter-clockwise about center.
    AcGeMatrix2d& setToRotation(double angle, const AcGePoint2d& center = AcGePoint2d::kOrigin);
    AcGeMatrix2d& setToScaling(double scale, const AcGePoint2d& center = AcGePoint2d::kOrigin);
    // Reflection through a point: the half turn about it (determinant +1).
    AcGeMatrix2d& setToMirroring(const AcGePoint2d& pnt);
    // Reflection in a line (determinant -1).
    AcGeMatrix2d& setToMirroring(const AcGeLine2d& line);
    // Maps the "from" system onto the "to" system: to * from^-1. A singular "from"
    // system raises the host error.
    AcGeMatrix2d& setToAlignCoordSys(const AcGePoint2d& fromOrigin, const AcGeVector2d& fromE0,
                                     const AcGeVector2d& fromE1, const AcGePoint2d& toOrigin,
                                     const AcGeVector2d& toE0, const AcGeVector2d& toE1);

    static AcGeMatrix2d translation(const AcGeVector2d& vec);
    static AcGeMatrix2d rotation(double angle, const AcGePoint2d& center = AcGePoint2d::kOrigin);
    static AcGeMatrix2d scaling(double scale, const AcGePoint2d& center = AcGePoint2d::kOrigin);
    static AcGeMatrix2d mirroring(const AcGePoint2d& pnt);
    static AcGeMatrix2d mirroring(const AcGeLine2d& line);
    static AcGeMatrix2d alignCoordSys(const AcGePoint2d& fromOrigin, const AcGeVector2d& fromE0,
                                      const AcGeVector2d& fromE1, const AcGePoint2d& toOrigin,
                                      const AcGeVector2d& toE0, const AcGeVector2d& toE1);

    // Rows and columns 0..2; any other index raises the host error.
    double operator()(unsigned int row, unsigned int column) const;
    double& operator()(unsigned int row, unsigned int column);

    double entry[3][3];
};

// "[(row 0), (row 1), (row 2)]", every digit a double needs to read back the same.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeMatrix2d& mat);
