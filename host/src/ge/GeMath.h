// Small pieces of linear algebra that several geometry classes share.
#pragma once

#include "gepnt2d.h"
#include "gevec2d.h"
#include "gevec3d.h"

namespace hostge {

constexpr double kTwoPi = 6.283185307179586476925286766559;

// An angle folded into [0, 2pi).
double angleInFullTurn(double angle);

// endAngle - startAngle brought into (0, 2pi]: equal angles make a whole turn.
double sweepBetween(double startAngle, double endAngle);

// Below this sine of the angle between them two directions count as parallel (three
// points as collinear); far above rounding, far below any drawn angle.
constexpr double kParallelSine = 1e-12;

// Maps that change lengths by directions differing more than this (relatively) do not
// keep circles circular.
constexpr double kSimilarityTolerance = 1e-9;

// The coordinates (s, t) with s u + t v the projection of w onto the span of u and v
// (u and v need be neither unit nor perpendicular, only independent).
AcGePoint2d coordinatesIn(const AcGeVector3d& u, const AcGeVector3d& v, const AcGeVector3d& w);

// The length of (x, y, z) from the sum of squares, which overflows to infinity for
// components near 1e154 and underflows to zero near 1e-154: then the components are
// scaled by the largest first. Ordinary lengths are the plain square root, to the bit.
double euclideanLength(double x, double y, double z);

}  // namespace hostge
