// BulgeSegment: evaluation, nearest points, areas and bounds of one polyline segment.
#include "BulgeSegment.h"

#include <algorithm>
#include <cmath>
#include <ostream>

#include "ge/GeMath.h"

namespace hostpoly {
namespace {

// Below this sweep the circular segment's area comes from its series: the closed form
// would lose every digit to cancellation.
constexpr double kSeriesSweep = 1e-3;

double cross(const AcGeVector2d& a, const AcGeVector2d& b)
{
    return a.x * b.y - a.y * b.x;
}

}  // namespace

BulgeSegment::BulgeSegment(const AcGePoint2d& start, const AcGePoint2d& end, double bulge)
    : m_start(start), m_end(end), m_bulge(bulge)
{
    const AcGeVector2d chord = end - start;
    m_degenerate = chord.length() <= kCoincidentPoints;
    m_isArc = !m_degenerate && std::fabs(bulge) > kStraightBulge && std::isfinite(bulge);
    if (!m_isArc)
        return;
    // start - centre = -(chord / 2 + perp(chord) (1 - b^2) / 4b), with no cancellation.
    m_fromCenter = -(chord * 0.5 + chord.perpVector() * ((1.0 - bulge * bulge) / (4.0 * bulge)));
    // A bulge so large that the centre lies beyond the range of numbers makes no arc.
    if (!std::isfinite(m_fromCenter.x) || !std::isfinite(m_fromCenter.y)) {
        m_isArc = false;
        m_fromCenter = AcGeVector2d();
        return;
    }
    m_sweep = 4.0 * std::atan(bulge);
}

double BulgeSegment::radius() const
{
    if (!m_isArc)
        return 0.0;
    const double c = (m_end - m_start).length();
    return c * (1.0 + m_bulge * m_bulge) / (4.0 * std::fabs(m_bulge));
}

AcGePoint2d BulgeSegment::center() const
{
    return m_isArc ? m_start - m_fromCenter : m_start + (m_end - m_start) * 0.5;
}

double BulgeSegment::length() const
{
    const double c = (m_end - m_start).length();
    if (m_degenerate)
        return 0.0;
    if (!m_isArc)
        return c;
    const double b = std::fabs(m_bulge);
    return c * (1.0 + b * b) * std::atan(b) / b;
}

AcGeVector2d BulgeSegment::arcMove(double phi) const
{
    const double s = std::sin(phi);
    const double half = std::sin(phi / 2.0);
    const double cm1 = -2.0 * half * half;  // cos(phi) - 1 without cancellation
    return AcGeVector2d(m_fromCenter.x * cm1 - m_fromCenter.y * s, m_fromCenter.x * s + m_fromCenter.y * cm1);
}

AcGePoint2d BulgeSegment::pointAt(double t) const
{
    if (!m_isArc)
        return m_start + (m_end - m_start) * t;
    return m_start + arcMove(t * m_sweep);
}

AcGeVector2d BulgeSegment::moveFromStart(double t) const
{
    return m_isArc ? arcMove(t * m_sweep) : (m_end - m_start) * t;
}

AcGeVector2d BulgeSegment::derivAt(double t) const
{
    if (!m_isArc)
        return m_end - m_start;
    const AcGeVector2d radial = m_fromCenter + arcMove(t * m_sweep);
    return radial.perpVector() * m_sweep;
}

AcGeVector2d BulgeSegment::secondDerivAt(double t) const
{
    if (!m_isArc)
        return AcGeVector2d();
    const AcGeVector2d radial = m_fromCenter + arcMove(t * m_sweep);
    return radial * -(m_sweep * m_sweep);
}

AcGeVector2d BulgeSegment::tangentAt(double t) const
{
    const AcGeVector2d d = derivAt(t);
    const double len = d.length();
    return len == 0.0 ? AcGeVector2d() : d / len;
}

double BulgeSegment::nearestFraction(const AcGePoint2d& p) const
{
    if (m_degenerate)
        return 0.0;
    if (!m_isArc) {
        const AcGeVector2d chord = m_end - m_start;
        return std::clamp((p - m_start).dotProduct(chord) / chord.lengthSqrd(), 0.0, 1.0);
    }
    const double t = nearestFractionExtended(p, 0.0);
    if (t <= 1.0)
        return t;
    return p.distanceTo(m_start) <= p.distanceTo(m_end) ? 0.0 : 1.0;
}

double BulgeSegment::nearestFractionExtended(const AcGePoint2d& p, double lowest) const
{
    if (m_degenerate)
        return 0.0;
    if (!m_isArc) {
        const AcGeVector2d chord = m_end - m_start;
        return (p - m_start).dotProduct(chord) / chord.lengthSqrd();
    }
    // The turn about the centre from the start point to p, from the move d = p - start
    // alone: atan2 of (u x (u + d), u.(u + d)) over |u|, with u = start - centre. Adding
    // d to the far larger u first would lose d's digits, and with them the point's place
    // along a nearly straight arc.
    const AcGeVector2d d = p - m_start;
    const double r = m_fromCenter.length();
    const AcGeVector2d unit = m_fromCenter / r;
    const double across = cross(unit, d);
    const double along = r + unit.dotProduct(d);
    const double turn = across == 0.0 && along == 0.0 ? 0.0 : std::atan2(across, along);
    return fractionOfTurn(turn, lowest);
}

double BulgeSegment::nearestFractionNearEnds(const AcGePoint2d& p) const
{
    return nearestFractionExtended(p, m_isArc ? -(fullTurnFraction() - 1.0) / 2.0 : 0.0);
}

double BulgeSegment::fractionOfTurn(double phi, double lowest) const
{
    double t = hostge::angleInFullTurn(m_sweep > 0.0 ? phi : -phi) / std::fabs(m_sweep);
    const double turnFraction = fullTurnFraction();
    while (t < lowest)
        t += turnFraction;
    while (t >= lowest + turnFraction)
        t -= turnFraction;
    return t;
}

double BulgeSegment::fullTurnFraction() const
{
    return m_isArc ? hostge::kTwoPi / std::fabs(m_sweep) : 0.0;
}

AcGeVector2d BulgeSegment::radialAt(double t) const
{
    return m_isArc ? m_fromCenter + arcMove(t * m_sweep) : AcGeVector2d();
}

int BulgeSegment::fractionsWhere(double a, double b, double c, double lowest, double out[2]) const
{
    // With s = tan(phi / 2): (c - 2a) s^2 + 2b s + c = 0; phi = pi when the square's
    // coefficient vanishes. Roots by the form that cancels nothing.
    if (!std::isfinite(a) || !std::isfinite(b) || !std::isfinite(c))
        return 0;
    const double square = c - 2.0 * a;
    const double disc = b * b - c * square;
    if (!(disc >= 0.0))
        return 0;
    const double q = -(b + std::copysign(std::sqrt(disc), b));
    double phis[2];
    int count = 0;
    if (q == 0.0) {
        // b = 0: a double root at the start (c = 0) or at the far point (c = 2a); both
        // at once means every angle, the circle lying on what it meets.
        if ((c == 0.0) == (square == 0.0))
            return 0;
        phis[count++] = c == 0.0 ? 0.0 : hostge::kTwoPi / 2.0;
    } else {
        phis[count++] = square == 0.0 ? hostge::kTwoPi / 2.0 : 2.0 * std::atan(q / square);
        const double other = 2.0 * std::atan(c / q);
        if (disc > 0.0)
            phis[count++] = other;
    }
    for (int i = 0; i < count; ++i)
        out[i] = fractionOfTurn(phis[i], lowest);
    return count;
}

int BulgeSegment::lineCrossingFractions(const AcGePoint2d& p, const AcGeVector2d& n, double lowest, double out[2]) const
{
    if (!m_isArc)
        return 0;
    // (start + move(phi) - p).n = 0, the move written out in u = start - centre.
    return fractionsWhere(m_fromCenter.dotProduct(n), m_fromCenter.perpVector().dotProduct(n),
                          (m_start - p).dotProduct(n), lowest, out);
}

int BulgeSegment::circleCrossingFractions(const BulgeSegment& other, double lowest, double out[2]) const
{
    if (!m_isArc || !other.m_isArc)
        return 0;
    // |start + move(phi) - other centre|^2 = other radius^2, with w = start - other
    // centre taken as (start - other start) + the other's start offset, so that the
    // radii's squares never need to cancel.
    const AcGeVector2d between = m_start - other.m_start;
    const AcGeVector2d w = between + other.m_fromCenter;
    const double c = between.dotProduct(between) + 2.0 * between.dotProduct(other.m_fromCenter);
    const double a = 2.0 * (w - m_fromCenter).dotProduct(m_fromCenter);
    const double b = 2.0 * w.dotProduct(m_fromCenter.perpVector());
    return fractionsWhere(a, b, c, lowest, out);
}

int BulgeSegment::tangentFractions(const AcGePoint2d& p, double lowest, double out[2]) const
{
    if (!m_isArc)
        return 0;
    // (p - point(phi)).radial(phi) = 0 with w = p - start.
    const AcGeVector2d w = p - m_start;
    const double c = w.dotProduct(m_fromCenter);
    return fractionsWhere(c + m_fromCenter.lengthSqrd(), w.dotProduct(m_fromCenter.perpVector()), c, lowest, out);
}

// The area between chord c and arc of sweep th: c^2 (th - sin th) / (8 sin^2(th / 2)),
// from its series for small sweeps, where the closed form would lose every digit.
double BulgeSegment::segmentArea() const
{
    if (!m_isArc)
        return 0.0;
    const double c2 = (m_end - m_start).lengthSqrd();
    const double th = m_sweep;
    const double halfSine = std::sin(th / 2.0);
    if (std::fabs(th) < kSeriesSweep) {
        const double th2 = th * th;
        const double cubicShare = 1.0 / 6.0 - th2 * (1.0 / 120.0 - th2 / 5040.0);  // (th - sin th) / th^3
        const double sinc = halfSine / (th / 2.0);
        return c2 * th * cubicShare / (2.0 * sinc * sinc);
    }
    return c2 * (th - std::sin(th)) / (8.0 * halfSine * halfSine);
}

// An arc is extreme along a direction where its radial points along it (or against it):
// the turn from the start's radial to the direction, measured directly between the two
// vectors so that a nearly straight arc keeps the place of its extreme point.
int BulgeSegment::extremeFractions(const AcGeVector2d& direction, double out[2]) const
{
    if (!m_isArc || direction.length() == 0.0)
        return 0;
    int count = 0;
    for (const AcGeVector2d& target : {direction, -direction}) {
        const double phi = std::atan2(cross(m_fromCenter, target), m_fromCenter.dotProduct(target));
        const double t = fractionOfTurn(phi, 0.0);
        if (t <= 1.0)
            out[count++] = t;
    }
    return count;
}

void BulgeSegment::bounds(AcGePoint2d& lo, AcGePoint2d& hi) const
{
    lo.set(std::fmin(m_start.x, m_end.x), std::fmin(m_start.y, m_end.y));
    hi.set(std::fmax(m_start.x, m_end.x), std::fmax(m_start.y, m_end.y));
    if (!m_isArc)
        return;
    double fractions[2];
    for (const AcGeVector2d& axis : {AcGeVector2d::kXAxis, AcGeVector2d::kYAxis}) {
        const int count = extremeFractions(axis, fractions);
        for (int i = 0; i < count; ++i) {
            const AcGePoint2d p = pointAt(fractions[i]);
            lo.set(std::fmin(lo.x, p.x), std::fmin(lo.y, p.y));
            hi.set(std::fmax(hi.x, p.x), std::fmax(hi.y, p.y));
        }
    }
}

BulgeSegment BulgeSegment::part(double t0, double t1) const
{
    const double bulge = m_isArc ? std::tan((t1 - t0) * m_sweep / 4.0) : 0.0;
    return BulgeSegment(pointAt(t0), pointAt(t1), bulge);
}

std::ostream& operator<<(std::ostream& os, const BulgeSegment& segment)
{
    if (!segment.isArc())
        return os << "line " << segment.start() << " to " << segment.end();
    return os << "arc " << segment.start() << " to " << segment.end() << " bulge " << segment.bulge();
}

}  // namespace hostpoly
