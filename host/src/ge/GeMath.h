// Small pieces of linear algebra that several geometry classes share.
#pragma once

#include "gepnt2d.h"
#include "gevec2d.h"
#include "gevec3d.h"

namespace hostge {

constexpr double kTwoPi = 6.283185307179586476925286766559;

// An angle folded into [0, 2pi).
double angleInFullTurn(double angle);

// The coordinates (s, t) with s u + t v the projection of w onto the span of u and v
// (u and v need be neither unit nor perpendicular, only independent).
AcGePoint2d coordinatesIn(const AcGeVector3d& u, const AcGeVector3d& v, const AcGeVector3d& w);

}  // namespace hostge
