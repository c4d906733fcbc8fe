// DivisionLineGeometry: the plane geometry of a division line, kept apart from the entity:
// the arc of a bulged segment, the default place of the boundary label and the corners of
// the outline set off by the two indents. All points lie at Z = 0; the length rule and
// the chord's normal are those of every layout line (LayoutLineGeometry).
#pragma once

#include <iosfwd>
#include <vector>

#include "gepnt3d.h"
#include "gevec3d.h"

class DivisionLineGeometry {
public:
    // Bulges closer to zero than this make a straight segment.
    static constexpr double kStraightBulge = 1e-10;
    // A chord this short has no arc through its ends.
    static constexpr double kArcChordTolerance = 1e-10;
    static constexpr double kMaximumBulge = 1000.0;
    // The right-side arc counts as concentric when its centre is this close, relative to
    // the radius, with the layout lines' direction tolerance as the floor.
    static constexpr double kConcentricRelativeTolerance = 1e-8;

    // The circle arc of a bulged segment.
    struct Arc {
        AcGePoint3d center;
        AcGePoint3d midpoint;
        double radius = 0.0;
        // Signed included angle, positive anticlockwise from start to end.
        double sweep = 0.0;
    };

    // The closed outline around the centre line: corners P0 (start, left), P1 (start,
    // right), P2 (end, right), P3 (end, left) and the bulge of the side P1-P2 (the side
    // P3-P0 takes its negation). No corners when the line has no length.
    struct Outline {
        std::vector<AcGePoint3d> corners;
        double bulge = 0.0;
    };

    // Non-finite bulges other than the infinities are refused by the callers; this only
    // limits the value to [-kMaximumBulge, kMaximumBulge].
    static double ClampBulge(double bulge);

    // The circle through start and end whose arc from start to end has the included angle
    // 4 atan(bulge); false for a chord shorter than kArcChordTolerance or a straight bulge.
    static bool ComputeArc(const AcGePoint3d& start, const AcGePoint3d& end, double bulge, Arc& arc);

    // The chord midpoint for a straight segment, the arc's midpoint for an arc (the chord
    // midpoint again when the arc cannot be computed).
    static AcGePoint3d DefaultIdentifierPoint(const AcGePoint3d& start, const AcGePoint3d& end, double bulge);

    // The point a fraction t of the way along the segment (along the arc for an arc).
    static AcGePoint3d PointOnSegment(const AcGePoint3d& start, const AcGePoint3d& end, double bulge, double t);

    // The left indent is set off along -n (or the radial direction on that side), the
    // right indent along +n, n being the chord's normal (LayoutLineGeometry::ChordNormal).
    static Outline ComputeOutline(const AcGePoint3d& start, const AcGePoint3d& end, double bulge, double indentLeft,
                                  double indentRight);
};

std::ostream& operator<<(std::ostream& os, const DivisionLineGeometry::Arc& arc);
std::ostream& operator<<(std::ostream& os, const DivisionLineGeometry::Outline& outline);
