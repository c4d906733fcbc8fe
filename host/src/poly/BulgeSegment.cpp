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
    const AcGeVector2d w = (p - m_start) + m_fromCenter;  // from the centre to p
    double t = 0.0;
    if (w.length() > 0.0) {
        const double turn = std::atan2(cross(m_fromCenter, w), m_fromCenter.dotProduct(w));
        t = hostge::angleInFullTurn(m_sweep > 0.0 ? turn : -turn) / std::fabs(m_sweep);
    }
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

double BulgeSegment::segmentArea() const
{
    if (!m_isArc)
        return 0.0;
    const double r = radius();
    const double th = m_sweep;
    double lens = 0.0;
    if (std::fabs(th) < kSeriesSweep) {
        const double th2 = th * th;
        lens = th * th2 * (1.0 / 6.0 - th2 * (1.0 / 120.0 - th2 / 5040.0));
    } else {
        lens = th - std::sin(th);
    }
    return 0.5 * r * r * lens;
}

int BulgeSegment::extremeFractions(const AcGeVector2d& direction, double out[2]) const
{
    if (!m_isArc || direction.length() == 0.0)
        return 0;
    const double startAngle = std::atan2(m_fromCenter.y, m_fromCenter.x);
    const double target = std::atan2(direction.y, direction.x);
    int count = 0;
    for (double angle : {target, target + hostge::kTwoPi / 2.0}) {
        const double offset = hostge::angleInFullTurn(m_sweep > 0.0 ? angle - startAngle : startAngle - angle);
        const double t = offset / std::fabs(m_sweep);
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
