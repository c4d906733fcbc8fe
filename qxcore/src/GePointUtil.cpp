// Qx::GePointUtil.
#include "Qx/GePointUtil.h"

#include <limits>

namespace Qx {

const AcGePoint3d GePointUtil::kUninitializedPoint(std::numeric_limits<double>::max(),
                                                   std::numeric_limits<double>::max(),
                                                   std::numeric_limits<double>::max());

bool GePointUtil::IsUninitialized(const AcGePoint3d& point)
{
    // Exact comparison: the marker is a value, not a location.
    return point.x == kUninitializedPoint.x && point.y == kUninitializedPoint.y && point.z == kUninitializedPoint.z;
}

}  // namespace Qx
