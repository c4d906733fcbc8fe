// LayoutLineGeometry: the plane geometry every layout line shares: the length rule that
// keeps a line between 5.0 and 512000.0 long, the moves of its two ends, the host's
// normal of its chord, and the corners of a strip set off on both sides of a straight
// line. All points lie at Z = 0.
#pragma once

#include <vector>

#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"

class AcDbPolyline;

class LayoutLineGeometry {
public:
    // A layout line is never shorter or longer than this (drawing units).
    static constexpr double kMinimumLength = 5.0;
    static constexpr double kMaximumLength = 512000.0;
    // A point that the rule has already placed on a limit is not nudged again by rounding,
    // so that refiling a line leaves its bytes as they were.
    static constexpr double kLengthRuleSlack = 1e-9;
    // Vectors shorter than this give no direction (chords, moved points, radii).
    static constexpr double kDirectionTolerance = 1e-5;

    static bool IsFinite(const AcGePoint3d& point);

    // Moves `moved` so that its distance from `fixed` is within [kMinimumLength,
    // kMaximumLength], with its Z set to 0. A point on top of `fixed` goes along
    // `fallbackDirection`, or along X when that is shorter than kDirectionTolerance.
    static void ApplyLengthRule(AcGePoint3d& moved, const AcGePoint3d& fixed, const AcGeVector3d& fallbackDirection);

    // Put one end (or both) where asked and hold the line to the rule by moving the end
    // that was set (the end for PlacePoints); a point dropped onto the other end goes the
    // way the line ran before.
    static void PlaceStart(AcGePoint3d& start, AcGePoint3d& end, const AcGePoint3d& point);
    static void PlaceEnd(AcGePoint3d& start, AcGePoint3d& end, const AcGePoint3d& point);
    static void PlacePoints(AcGePoint3d& start, AcGePoint3d& end, const AcGePoint3d& newStart,
                            const AcGePoint3d& newEnd);
    // Stretch point 0 is the start, 1 the end; each moves by offset under the rule. False,
    // with nothing changed, for any other index.
    static bool MoveStretchPoint(int index, const AcGeVector3d& offset, AcGePoint3d& start, AcGePoint3d& end);
    // Both ends through the matrix, flattened, the end held to the rule.
    static void TransformEnds(const AcGeMatrix3d& xform, AcGePoint3d& start, AcGePoint3d& end);
    // A left and right width scaled as the matrix scales the X axis; a mirror exchanges
    // them, since it turns the line's left into the image's right.
    static void TransformWidths(const AcGeMatrix3d& xform, double& left, double& right);
    // Start and end read back from an edited centre polyline (kept when it has no
    // vertices or non-finite ones), flattened, the end held to the rule.
    static void TakeEndsFrom(const AcDbPolyline& centre, AcGePoint3d& start, AcGePoint3d& end);

    static AcGePoint3d Midpoint(const AcGePoint3d& start, const AcGePoint3d& end);

    // The unit perpendicular of the chord as the host turns it (perpVector of the unit
    // direction); the zero vector when the chord is shorter than kDirectionTolerance.
    static AcGeVector3d ChordNormal(const AcGePoint3d& start, const AcGePoint3d& end);

    // P0 = start - minusWidth n, P1 = start + plusWidth n, P2 = end + plusWidth n,
    // P3 = end - minusWidth n.
    static std::vector<AcGePoint3d> Corners(const AcGePoint3d& start, const AcGePoint3d& end, const AcGeVector3d& n,
                                            double minusWidth, double plusWidth);

    // The strip of a straight line whose ends may come in either order: the corners are
    // built from A to B, A being the end with the smaller X (the smaller Y on a tie), with
    // n = StripNormal. Built from the end, the line counts as swapped and the two widths
    // are exchanged, so that left and right keep their meaning relative to start -> end.
    // No corners for a line shorter than kDirectionTolerance.
    static bool IsSwapped(const AcGePoint3d& start, const AcGePoint3d& end);
    static AcGeVector3d StripNormal(const AcGePoint3d& start, const AcGePoint3d& end);
    static std::vector<AcGePoint3d> StripCorners(const AcGePoint3d& start, const AcGePoint3d& end, double left,
                                                 double right);

    // A new polyline through the points (bulge i on the segment from point i, 0 where
    // bulges stops; widths the host's default), in no database, owned by the caller.
    static AcDbPolyline* CreatePolyline(const std::vector<AcGePoint3d>& points, bool closed,
                                        const std::vector<double>& bulges = {});
};
