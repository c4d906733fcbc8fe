// PanelLabelPlacement: where a panel's labels stand and which way they read. Positions are
// picked in the frame of the outline's box along the laying direction (x along it, y
// across it) and mapped back to the plan.
#pragma once

#include <vector>

#include "geometry/OBBInfo2D.h"
#include "geometry/TextLabel.h"

namespace DbxPanel {

class PanelLabelPlacement {
public:
    // Reads left to right: a negative x is turned round; a vertical vector points up.
    static AcGeVector2d MakeReadable(const AcGeVector2d& direction);
    // The label's direction for a laying direction already made readable.
    static AcGeVector2d DirectionFor(TextDirectionMode mode, double fixedAngle, const AcGeVector2d& laying);
    // The plan position of a predefined position, for an outline (its outer points) and a
    // laying direction.
    static AcGePoint2d PositionFor(PredefinedTextPosition position, const std::vector<AcGePoint2d>& outline,
                                   const AcGeVector2d& laying);
    // Directions, then positions (unless a label keeps its own), of every label.
    static void Place(std::vector<TextLabel>& labels, const std::vector<AcGePoint2d>& outline,
                      const AcGeVector2d& laying);

    // Below this, a readable vector's x counts as zero.
    static constexpr double kVerticalTolerance = 1e-7;
    // Positions 20 and 21 stand a tenth of the height from the edge, at most this far.
    static constexpr double kEdgeOffsetCap = 50.0;
};

}  // namespace DbxPanel
