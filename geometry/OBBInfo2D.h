// OBBInfo2D: a rectangle in the plan aligned with a given direction, as the bounding box
// calculator returns it: centre, unit axes, half sizes, and the maps into and out of the
// box's own frame (origin at the centre, x along the direction).
#pragma once

#include <iosfwd>

#include "gemat2d.h"
#include "gepnt2d.h"
#include "gevec2d.h"

namespace DbxPanel {

struct OBBInfo2D {
    AcGePoint2d center{0.0, 0.0};
    // Unit vector along the box's direction.
    AcGeVector2d axisX{0.0, 0.0};
    // axisX turned +90 degrees: (-axisX.y, axisX.x).
    AcGeVector2d axisY{0.0, 0.0};
    // Half the box's size along axisX and along axisY.
    double halfExtentX = 0.0;
    double halfExtentY = 0.0;
    // Plan coordinates into the box frame, and back.
    AcGeMatrix2d worldToLocal;
    AcGeMatrix2d localToWorld;
};

std::ostream& operator<<(std::ostream& os, const OBBInfo2D& box);

}  // namespace DbxPanel
