// The geometry library's globals: the default tolerance, the hook that picks a vector
// orthogonal to another, and the error conditions that geometric queries report.
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

}  // namespace AcGe

using AcGeError = AcGe::ErrorCondition;

struct ACHOST_API AcGeContext {
    // The tolerance every comparison defaults to.
    static AcGeTol gTol;
    // Gives a vector orthogonal to its input; AcGeVector3d::perpVector asks it. The default
    // is the arbitrary-axis rule: Z x v, or Y x v when |v.x| and |v.y| are both below 1/64.
    static void (*gOrthoVector)(const AcGeVector3d& vec, AcGeVector3d& orthoVec);
};
