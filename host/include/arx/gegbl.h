// The geometry library's globals: the default tolerance, the hook that picks a vector
// orthogonal to another, the error conditions that geometric queries report and the kinds
// of geometric entity.
#pragma once

#include "getol.h"

class AcGeVector3d;

namespace AcGe {

// Reported by the query overloads that take an error flag.
enum ErrorCondition {
    kOk = 0,
    k0This,
    k0Arg1,
    k0Arg2,
    kPerpendicularArg1Arg2,
    kEqualArg1Arg2,
    kEqualArg1Arg3,
    kEqualArg2Arg3,
    kLinearlyDependentArg1Arg2Arg3,
    kArg1TooBig,
    kArg1OnThis,
    kArg1InsideThis,
    kNonCoplanarGeometry,
    kDegenerateGeometry,
    kSingularPoint
};


// The kinds of geometric entity that AcGeEntity2d/3d::type() and isKindOf() answer with.
// The host does not document their numbers; code compares the names only.
enum EntityId {
    kEntity2d,
    kEntity3d,
    kBoundBlock2d,
    kBoundBlock3d,
    kCurve2d,
    kCurve3d,
    kLinearEnt2d,
    kLinearEnt3d,
    kLine2d,
    kLine3d,
    kLineSeg2d,
    kLineSeg3d,
    kCircArc2d,
    kCircArc3d,
    kCompositeCrv2d,
    kCompositeCrv3d,
    kSurface,
    kPlanarEnt,
    kPlane
};

}  // namespace AcGe

using AcGeError = AcGe::ErrorCondition;

struct ACHOST_API AcGeContext {
    // The tolerance every comparison defaults to.
    static AcGeTol gTol;
    // Gives a vector orthogonal to its input; AcGeVector3d::perpVector asks it. The default
    // is the arbitrary-axis rule: Z x v, or Y x v when |v.x| and |v.y| are both below 1/64.
    static void (*gOrthoVector)(const AcGeVector3d& vec, AcGeVector3d& orthoVec);
};
