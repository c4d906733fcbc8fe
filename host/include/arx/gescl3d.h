// AcGeScale3d: scale factors along X, Y and Z, as block references and filers keep them.
#pragma once

#include <iosfwd>

#include "gegbl.h"

class AcGeMatrix3d;

class ACHOST_API AcGeScale3d {
public:
    static const AcGeScale3d kIdentity;  // (1, 1, 1)

    constexpr AcGeScale3d() = default;
    constexpr explicit AcGeScale3d(double factor) : sx(factor), sy(factor), sz(factor) {}
    constexpr AcGeScale3d(double xFactor, double yFactor, double zFactor) : sx(xFactor), sy(yFactor), sz(zFactor) {}

    // Factor by factor.
    AcGeScale3d operator*(const AcGeScale3d& sclVec) const;
    AcGeScale3d& operator*=(const AcGeScale3d& scl);
    AcGeScale3d& preMultBy(const AcGeScale3d& leftSide) { return *this *= leftSide; }
    AcGeScale3d& postMultBy(const AcGeScale3d& rightSide) { return *this *= rightSide; }
    AcGeScale3d& setToProduct(const AcGeScale3d& sclVec1, const AcGeScale3d& sclVec2);
    AcGeScale3d operator*(double s) const { return AcGeScale3d(sx * s, sy * s, sz * s); }
    AcGeScale3d& operator*=(double s) { sx *= s; sy *= s; sz *= s; return *this; }
    AcGeScale3d& setToProduct(const AcGeScale3d& sclVec, double s) { return *this = sclVec * s; }
    friend AcGeScale3d operator*(double s, const AcGeScale3d& scl) { return scl * s; }

    // The reciprocal factors (a zero factor gives an infinity).
    AcGeScale3d inverse() const;
    AcGeScale3d& invert() { return *this = inverse(); }
    // All three factors equal within equalVector.
    Adesk::Boolean isProportional(const AcGeTol& tol = AcGeContext::gTol) const;

    // Within the tolerance (isEqualTo with AcGeContext::gTol).
    bool operator==(const AcGeScale3d& sclVec) const;
    bool operator!=(const AcGeScale3d& sclVec) const { return !(*this == sclVec); }
    // Every factor within equalVector of the other's.
    Adesk::Boolean isEqualTo(const AcGeScale3d& scaleVec, const AcGeTol& tol = AcGeContext::gTol) const;

    // 0 is sx, 1 is sy, 2 is sz; any other index raises the host error.
    double operator[](unsigned int i) const;
    double& operator[](unsigned int i);
    AcGeScale3d& set(double xFactor, double yFactor, double zFactor);

    // The diagonal scaling matrix about the origin.
    AcGeMatrix3d& getMatrix(AcGeMatrix3d& mat) const;
    operator AcGeMatrix3d() const;
    // The lengths of mat's three linear columns.
    AcGeScale3d& extractScale(const AcGeMatrix3d& mat);
    // Sets this to mat's column lengths and divides them out of mat (zero columns stay).
    AcGeScale3d& removeScale(AcGeMatrix3d& mat);

    double sx = 1.0;
    double sy = 1.0;
    double sz = 1.0;
};

// "(sx, sy, sz)" with every digit a double needs to read back the same.
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGeScale3d& scl);
