// ObbCalculator: the rectangle that encloses a set of plan points when it is aligned with
// a given direction (a panel's laying direction), used to place the panel's labels.
#pragma once

#include <vector>

#include "OBBInfo2D.h"

namespace DbxPanel {

class ObbCalculator {
public:
    // The smallest box along direction that holds every point; the result does not depend
    // on the order of the points. A zero (or non-finite) direction gives the default box on
    // the world X axis, no points the default box turned to the direction.
    static OBBInfo2D CalculateSimplified(const std::vector<AcGePoint2d>& points, const AcGeVector2d& direction);

private:
    // 100 by 100 centred on the origin, along direction.
    static OBBInfo2D CreateDefaultObb(const AcGeVector2d& direction);
    // Fills axes and matrices from center and the unit direction u.
    static void SetFrame(OBBInfo2D& box, const AcGeVector2d& u);
};

}  // namespace DbxPanel
