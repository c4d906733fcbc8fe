// Qx::GePointUtil: the marker of a point that was never set. Entities use it for optional
// points whose default is computed later from other data.
#pragma once

#include "gepnt3d.h"

namespace Qx {

class GePointUtil {
public:
    // A point no drawing uses: every coordinate the largest finite double.
    static const AcGePoint3d kUninitializedPoint;

    static bool IsUninitialized(const AcGePoint3d& point);
};

}  // namespace Qx
