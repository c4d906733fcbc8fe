// AecBoundaryBaseImp: placement helpers of the boundary family, for the layout
// application's commands: making an outline counter-clockwise with its label below it,
// and placing a label beside one edge, outside the outline.
#pragma once

#include "gepnt3d.h"

class AcDbPolyline;
class TextBaseLabel;

class AecBoundaryBaseImp {
public:
    // Counter-clockwise seen from above: the shoelace sum over the vertices (bulges
    // ignored) is below -1e-9. Fewer than three vertices, or none at all, are not.
    static bool IsCounterclockwise(const AcDbPolyline* outline);

    // Reverses a clockwise (or area-less) outline in place, saying so on the command line,
    // then puts the label position height * scale below the outline's lower-left extent
    // (10 * scale when height is not positive). False, with the position untouched, for a
    // missing outline, fewer than two vertices or missing extents.
    static bool EnsureCounterclockwiseAndAdjustLabelPosition(AcGePoint3d& labelPosition, AcDbPolyline* outline,
                                                             double height, double scale);

    // The position of a label beside edge edgeIndex (vertex i to vertex i + 1, wrapping):
    // off the edge's middle, outside a counter-clockwise outline, by height * scale, or by
    // 15.0 for a label 1.0 high or less. False, with the position untouched, for a missing
    // outline, fewer than two vertices, an edge index outside the outline, an edge shorter
    // than 1.0 or a label without text.
    static bool AdjustEdgeLabelPosition(AcGePoint3d& labelPosition, const AcDbPolyline* outline,
                                        const TextBaseLabel& label, int edgeIndex, double scale);
};
