// HatchFill: what a hatch fills. Its boundaries are closed chains of line and arc
// segments in the hatch's plane; how deeply each lies inside the others decides, with the
// hatch style, which areas are filled: normal fills alternate areas inward (even-odd),
// outer fills only between the outermost boundaries and the first ones inside them, and
// ignore fills the outermost boundaries whole. Pattern lines are clipped to the filled
// areas and cut into their dashes.
#pragma once

#include <utility>
#include <vector>

#include "BulgeSegment.h"
#include "HatchPattern.h"
#include "acadstrc.h"

namespace hostpoly {

struct HatchBoundary {
    std::vector<BulgeSegment> segments;  // closed: the last ends where the first starts
};

// The hatch styles by the host's numbers.
enum HatchFillStyle { kFillNormal = 0, kFillOuter = 1, kFillIgnore = 2 };

// A pattern is refused rather than drawn when its lines would span the boundaries'
// segments more often than this, or be cut into more pieces: so dense a pattern blackens
// its area anyway, and the cap keeps evaluating a hatch within milliseconds whatever
// spacing, scale and dashes a drawing claims. Each segment spanned by a line and each
// piece made spends one from the same budget.
constexpr double kMaxHatchPieces = 200000.0;

struct HatchSegment {
    AcGePoint2d start;
    AcGePoint2d end;  // the start again for a dot
};

// Where the line through p along the unit direction d crosses one segment, as distances
// along d, each with the tag given.
void segmentCrossings(const BulgeSegment& segment, int tag, const AcGePoint2d& p, const AcGeVector2d& d,
                      std::vector<std::pair<double, int>>& out);

// How many other boundaries each boundary lies inside.
std::vector<int> nestingDepths(const std::vector<HatchBoundary>& loops);

// Inside the boundary (the ray-crossing rule).
bool isInside(const HatchBoundary& loop, const AcGePoint2d& point);

// Signed (counter-clockwise positive) area of one boundary, arcs included.
double boundaryArea(const HatchBoundary& loop);

// The area the style fills, for properly nested boundaries.
double filledArea(const std::vector<HatchBoundary>& loops, const std::vector<int>& depths, int style);

// The pattern's lines (angles, base points, offsets and dashes already in the hatch's
// plane and scale) clipped to the filled areas. eOutOfRange, with nothing made, when the
// pattern is too dense for the boundaries' size (see kMaxHatchPieces) or the boundaries
// lie beyond the range of numbers.
Acad::ErrorStatus clipPatternLines(const std::vector<HatchBoundary>& loops, const std::vector<int>& depths, int style,
                                   const std::vector<PatternLine>& pattern, std::vector<HatchSegment>& out);

// An area to fill solid: an outline and the holes in it, each as a closed polygon (arcs
// replaced by chords at most kFillChordAngle apart).
struct FillRegion {
    std::vector<AcGePoint2d> outline;
    std::vector<std::vector<AcGePoint2d>> holes;
};
constexpr double kFillChordAngle = 3.14159265358979323846 / 32.0;
std::vector<FillRegion> fillRegions(const std::vector<HatchBoundary>& loops, const std::vector<int>& depths, int style);

}  // namespace hostpoly
