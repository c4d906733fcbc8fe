// DivisionLineGeometry: segment arc, default label point and outline corners.
#include "DivisionLineGeometry.h"

#include <algorithm>
#include <cmath>
#include <ostream>

#include "LayoutLineGeometry.h"
#include "gearc2d.h"
#include "gepnt2d.h"

namespace {

AcGePoint3d Flat(const AcGePoint3d& p)
{
    return AcGePoint3d(p.x, p.y, 0.0);
}

// The straight outline: the left corners along -n, the right ones along +n.
DivisionLineGeometry::Outline StraightOutline(const AcGePoint3d& start, const AcGePoint3d& end,
                                              const AcGeVector3d& n, double indentLeft, double indentRight)
{
    DivisionLineGeometry::Outline outline;
    outline.corners = LayoutLineGeometry::Corners(start, end, n, indentLeft, indentRight);
    outline.bulge = 0.0;
    return outline;
}

}  // namespace

double DivisionLineGeometry::ClampBulge(double bulge)
{
    return std::clamp(bulge, -kMaximumBulge, kMaximumBulge);
}

bool DivisionLineGeometry::ComputeArc(const AcGePoint3d& start, const AcGePoint3d& end, double bulge, Arc& arc)
{
    if (!std::isfinite(bulge) || std::fabs(bulge) < kStraightBulge)
        return false;
    const double dx = end.x - start.x;
    const double dy = end.y - start.y;
    const double chord = std::hypot(dx, dy);
    if (!(chord >= kArcChordTolerance) || !std::isfinite(chord))
        return false;
    // w is the chord direction turned anticlockwise. An anticlockwise arc (positive bulge)
    // has its centre on the w side at c (1 - b^2) / (4 b) from the chord midpoint and its
    // midpoint on the other side at the sagitta b c / 2.
    const double wx = -dy / chord;
    const double wy = dx / chord;
    const AcGePoint3d mid = LayoutLineGeometry::Midpoint(start, end);
    const double toCenter = chord * (1.0 - bulge * bulge) / (4.0 * bulge);
    const double sagitta = bulge * chord * 0.5;
    arc.center = AcGePoint3d(mid.x + wx * toCenter, mid.y + wy * toCenter, 0.0);
    arc.midpoint = AcGePoint3d(mid.x - wx * sagitta, mid.y - wy * sagitta, 0.0);
    arc.radius = chord * (1.0 + bulge * bulge) / (4.0 * std::fabs(bulge));
    arc.sweep = 4.0 * std::atan(bulge);
    return true;
}

AcGePoint3d DivisionLineGeometry::DefaultIdentifierPoint(const AcGePoint3d& start, const AcGePoint3d& end,
                                                         double bulge)
{
    if (std::fabs(bulge) < kStraightBulge)
        return LayoutLineGeometry::Midpoint(start, end);
    Arc arc;
    if (!ComputeArc(start, end, bulge, arc))
        return LayoutLineGeometry::Midpoint(start, end);
    return arc.midpoint;
}

AcGePoint3d DivisionLineGeometry::PointOnSegment(const AcGePoint3d& start, const AcGePoint3d& end, double bulge,
                                                 double t)
{
    Arc arc;
    if (std::fabs(bulge) < kStraightBulge || !ComputeArc(start, end, bulge, arc))
        return Flat(start + (end - start) * t);
    const double angle = arc.sweep * t;
    const double x = start.x - arc.center.x;
    const double y = start.y - arc.center.y;
    return AcGePoint3d(arc.center.x + x * std::cos(angle) - y * std::sin(angle),
                       arc.center.y + x * std::sin(angle) + y * std::cos(angle), 0.0);
}

DivisionLineGeometry::Outline DivisionLineGeometry::ComputeOutline(const AcGePoint3d& start, const AcGePoint3d& end,
                                                                   double bulge, double indentLeft,
                                                                   double indentRight)
{
    const AcGeVector3d n = LayoutLineGeometry::ChordNormal(start, end);
    if (n.isZeroLength())
        return Outline();
    if (std::fabs(bulge) < kStraightBulge)
        return StraightOutline(start, end, n, indentLeft, indentRight);
    Arc arc;
    if (!ComputeArc(start, end, bulge, arc))
        return StraightOutline(start, end, n, indentLeft, indentRight);
    AcGeVector3d radialStart = start - arc.center;
    AcGeVector3d radialEnd = end - arc.center;
    if (radialStart.isZeroLength() || radialEnd.isZeroLength())
        return StraightOutline(start, end, n, indentLeft, indentRight);
    radialStart.normalize();
    radialEnd.normalize();

    // The right side is the radial side that n points to at the start.
    const bool rightIsOutward = radialStart.dotProduct(n) > 0.0;
    const AcGeVector3d leftStart = rightIsOutward ? -radialStart : radialStart;
    const AcGeVector3d leftEnd = rightIsOutward ? -radialEnd : radialEnd;
    const AcGeVector3d rightStart = -leftStart;
    const AcGeVector3d rightEnd = -leftEnd;

    Outline outline;
    outline.corners = {start + leftStart * indentLeft, start + rightStart * indentRight, end + rightEnd * indentRight,
                       end + leftEnd * indentLeft};
    const AcGePoint3d& p1 = outline.corners[1];
    const AcGePoint3d& p2 = outline.corners[2];
    if (p1.distanceTo(p2) <= LayoutLineGeometry::kDirectionTolerance)
        return outline;
    // The right side keeps the centre line's bulge when it runs round the same centre; a
    // right side pushed through the centre turns the other way.
    const AcGeCircArc2d rightArc(AcGePoint2d(p1.x, p1.y), AcGePoint2d(p2.x, p2.y), bulge, Adesk::kFalse);
    const AcGePoint2d rightCenter = rightArc.center();
    const double tolerance =
        std::max(start.distanceTo(arc.center) * kConcentricRelativeTolerance, LayoutLineGeometry::kDirectionTolerance);
    const double apart = std::hypot(rightCenter.x - arc.center.x, rightCenter.y - arc.center.y);
    outline.bulge = apart <= tolerance ? bulge : -bulge;
    return outline;
}

std::ostream& operator<<(std::ostream& os, const DivisionLineGeometry::Arc& arc)
{
    return os << "arc{centre " << arc.center << ", midpoint " << arc.midpoint << ", radius " << arc.radius
              << ", sweep " << arc.sweep << "}";
}

std::ostream& operator<<(std::ostream& os, const DivisionLineGeometry::Outline& outline)
{
    os << "outline{";
    for (const AcGePoint3d& corner : outline.corners)
        os << corner << " ";
    return os << "bulge " << outline.bulge << "}";
}
