// Plane geometry that drawing and the basic entities share: the object coordinate system
// of a normal (the arbitrary axis rule of the drawing format), circles through three
// points, and how normals and lengths follow a transform.
#pragma once

#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"

namespace hostgi {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTwoPi = 2.0 * kPi;

// Below this a normal's x and y both count as zero for the arbitrary axis rule.
constexpr double kArbitraryAxisLimit = 1.0 / 64.0;

// The unit x axis of the object coordinate system of a normal: Y x N when N is within
// 1/64 of the z axis in x and y, Z x N otherwise. A zero normal gives the world x axis.
AcGeVector3d ocsXAxis(const AcGeVector3d& normal);
// normal x ocsXAxis(normal), unit length.
AcGeVector3d ocsYAxis(const AcGeVector3d& normal);

// The circle through three points; false when they are (nearly) collinear. The normal
// makes p1 -> p2 -> p3 run counter-clockwise.
bool circleThrough(const AcGePoint3d& p1, const AcGePoint3d& p2, const AcGePoint3d& p3, AcGePoint3d& center,
                   double& radius, AcGeVector3d& normal);

// The normal of the transformed plane, oriented so that a counter-clockwise turn about
// the old normal stays counter-clockwise about the new one (under a mirror it flips).
AcGeVector3d transformNormal(const AcGeMatrix3d& xform, const AcGeVector3d& normal);

// The angle of v about normal, measured counter-clockwise from ref, in [0, 2 pi).
double angleAbout(const AcGeVector3d& ref, const AcGeVector3d& v, const AcGeVector3d& normal);

// True when the transform only moves (its linear part is exactly the identity), so that
// directions need not be recomputed (and keep every bit).
bool isTranslationOnly(const AcGeMatrix3d& xform);

// An angle brought into [0, 2 pi).
double normalizeAngle(double angle);

}  // namespace hostgi
