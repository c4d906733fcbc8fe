// BulgeSegment: one segment of a lightweight polyline in its own plane: a straight line or
// a circular arc given by its end points and bulge. Positions along it are fractions t of
// the segment (0 at the start, 1 at the end), linear in length on a line and in angle on
// an arc: exactly the polyline's parameter within the segment. Arc points are computed
// from the start point, not from the centre, so that nearly straight arcs keep their
// precision.
#pragma once

#include <iosfwd>

#include "gepnt2d.h"
#include "gevec2d.h"

namespace hostpoly {

// Bulges at most this far from zero make a straight segment: the arc's sagitta would be
// below the rounding of its chord's length. Any larger bulge is the arc it says, however
// nearly straight: every answer about an arc is worked from its start point, never from
// its far-away centre.
constexpr double kStraightBulge = 0x1p-53;
// Points this close (drawing units) count as on the curve: far below any drawing
// precision, far above the rounding of the arithmetic.
constexpr double kOnCurveTolerance = 1e-8;
// Segment ends this close coincide (the host's default equalPoint).
constexpr double kCoincidentPoints = 1e-10;

class BulgeSegment {
public:
    BulgeSegment(const AcGePoint2d& start, const AcGePoint2d& end, double bulge);

    const AcGePoint2d& start() const { return m_start; }
    const AcGePoint2d& end() const { return m_end; }
    double bulge() const { return m_isArc ? m_bulge : 0.0; }
    // The ends coincide: the segment is a point.
    bool isDegenerate() const { return m_degenerate; }
    bool isArc() const { return m_isArc; }

    // The included angle, signed (positive counter-clockwise); 0 for a line.
    double sweep() const { return m_sweep; }
    double radius() const;
    AcGePoint2d center() const;
    double length() const;

    AcGePoint2d pointAt(double t) const;
    // pointAt(t) - start, free of the rounding of the start's coordinates.
    AcGeVector2d moveFromStart(double t) const;
    // Derivatives with respect to t.
    AcGeVector2d derivAt(double t) const;
    AcGeVector2d secondDerivAt(double t) const;
    // The unit direction of travel at t (zero for a degenerate segment).
    AcGeVector2d tangentAt(double t) const;

    // The fraction of the segment's point nearest p, in [0, 1].
    double nearestFraction(const AcGePoint2d& p) const;
    // The fraction of the nearest point of the segment's whole line or circle, taken in
    // [lowest, lowest + one turn) on a circle; unbounded on a line.
    double nearestFractionExtended(const AcGePoint2d& p, double lowest) const;
    // The fraction of the nearest point of the segment's whole line or circle, taken on a
    // circle so that points near either end come out near 0 or 1.
    double nearestFractionNearEnds(const AcGePoint2d& p) const;
    // One whole turn as a fraction of this arc (2 pi / |sweep|); 0 for a line.
    double fullTurnFraction() const;
    // The vector from the centre to the point at fraction t (zero for a line).
    AcGeVector2d radialAt(double t) const;

    // Where the arc's whole circle meets the line through p across n (the points q with
    // (q - p).n = 0): up to two fractions, each taken in [lowest, lowest + one turn).
    // None for a line segment.
    int lineCrossingFractions(const AcGePoint2d& p, const AcGeVector2d& n, double lowest, double out[2]) const;
    // Where the arc's whole circle meets the other arc's whole circle, as fractions of
    // this arc in [lowest, lowest + one turn). None unless both are arcs; none for one
    // circle over another.
    int circleCrossingFractions(const BulgeSegment& other, double lowest, double out[2]) const;
    // The points of the arc's whole circle whose tangent passes through p, as fractions
    // in [lowest, lowest + one turn): two from outside the circle, none from inside.
    int tangentFractions(const AcGePoint2d& p, double lowest, double out[2]) const;

    // The signed area between the arc and its chord (positive for a counter-clockwise arc).
    double segmentArea() const;
    // The fractions in [0, 1] at which the arc is extreme along the direction (up to two).
    int extremeFractions(const AcGeVector2d& direction, double out[2]) const;
    // The axis-aligned box of the segment.
    void bounds(AcGePoint2d& lo, AcGePoint2d& hi) const;

    // The part from fraction t0 to fraction t1 (t1 < t0 runs backwards).
    BulgeSegment part(double t0, double t1) const;
    BulgeSegment reversed() const { return BulgeSegment(m_end, m_start, -bulge()); }

private:
    // The start point's offset from the centre rotated by phi, minus the offset: the move
    // from the start point to the arc point at angle phi.
    AcGeVector2d arcMove(double phi) const;
    // The fraction of the turn phi from the start point, in [lowest, lowest + one turn).
    double fractionOfTurn(double phi, double lowest) const;
    // The fractions of the angles phi from the start with c + a (cos phi - 1) + b sin phi
    // = 0: the form that every question about where the circle meets something takes
    // when the circle is worked from its start point.
    int fractionsWhere(double a, double b, double c, double lowest, double out[2]) const;

    AcGePoint2d m_start;
    AcGePoint2d m_end;
    double m_bulge = 0.0;
    bool m_degenerate = false;
    bool m_isArc = false;
    double m_sweep = 0.0;
    AcGeVector2d m_fromCenter;  // start - centre, for arcs
};

// "line (x0, y0) to (x1, y1)" or "arc (x0, y0) to (x1, y1) bulge b".
std::ostream& operator<<(std::ostream& os, const BulgeSegment& segment);

}  // namespace hostpoly
