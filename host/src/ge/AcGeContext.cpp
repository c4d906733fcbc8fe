// AcGeContext: the geometry library's global tolerance and its orthogonal-vector hook.
#include "gegbl.h"

#include <cmath>

#include "gevec3d.h"

namespace {

// Below this in both x and y a vector counts as "near the Z axis" for the arbitrary-axis
// rule, which then crosses with Y instead of Z so that the result stays well away from zero.
constexpr double kArbitraryAxisLimit = 1.0 / 64.0;

void arbitraryAxisOrthoVector(const AcGeVector3d& vec, AcGeVector3d& orthoVec)
{
    const bool nearZAxis = std::fabs(vec.x) < kArbitraryAxisLimit && std::fabs(vec.y) < kArbitraryAxisLimit;
    orthoVec = (nearZAxis ? AcGeVector3d::kYAxis : AcGeVector3d::kZAxis).crossProduct(vec);
}

}  // namespace

AcGeTol AcGeContext::gTol;
void (*AcGeContext::gOrthoVector)(const AcGeVector3d&, AcGeVector3d&) = arbitraryAxisOrthoVector;
