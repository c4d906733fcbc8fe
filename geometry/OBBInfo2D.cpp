// OBBInfo2D: printing for test failures.
#include "OBBInfo2D.h"

#include <ostream>

namespace DbxPanel {

std::ostream& operator<<(std::ostream& os, const OBBInfo2D& box)
{
    return os << "{center " << box.center << ", axisX " << box.axisX << ", axisY " << box.axisY << ", half extents "
              << box.halfExtentX << " x " << box.halfExtentY << '}';
}

}  // namespace DbxPanel
