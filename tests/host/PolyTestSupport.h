// Helpers for the polyline and hatch suites: polylines built from vertex tables, seeded
// random outlines with arcs, ownership of the entities curve calls hand out, and sampling.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "dbpl.h"

namespace polytest {

constexpr double kPi = 3.14159265358979323846;

struct V {
    double x;
    double y;
    double bulge = 0.0;
};

inline std::unique_ptr<AcDbPolyline> polyline(const std::vector<V>& vertices, bool closed = false)
{
    auto made = std::make_unique<AcDbPolyline>();
    for (size_t i = 0; i < vertices.size(); ++i)
        made->addVertexAt(static_cast<unsigned>(i), AcGePoint2d(vertices[i].x, vertices[i].y), vertices[i].bulge);
    made->setClosed(closed);
    return made;
}

// Owns the entities a curve call appends.
struct Pieces {
    AcDbVoidPtrArray array;
    Pieces() = default;
    Pieces(const Pieces&) = delete;
    Pieces& operator=(const Pieces&) = delete;
    ~Pieces()
    {
        for (int i = 0; i < array.length(); ++i)
            delete static_cast<AcDbEntity*>(array[i]);
    }
    int size() const { return array.length(); }
    template <class T = AcDbPolyline>
    T* at(int i) const
    {
        return T::cast(static_cast<AcDbEntity*>(array[i]));
    }
};

inline double lengthOf(const AcDbCurve& curve)
{
    double end = 0.0;
    double dist = 0.0;
    curve.getEndParam(end);
    curve.getDistAtParam(end, dist);
    return dist;
}

inline double areaOf(const AcDbCurve& curve)
{
    double area = -1.0;
    curve.getArea(area);
    return area;
}

// Points at even parameter steps, perSegment per segment, ends included.
inline std::vector<AcGePoint3d> samples(const AcDbCurve& curve, int perSegment = 16)
{
    std::vector<AcGePoint3d> points;
    double end = 0.0;
    curve.getEndParam(end);
    const int count = std::max(1, static_cast<int>(std::ceil(end))) * perSegment;
    for (int i = 0; i <= count; ++i) {
        AcGePoint3d p;
        if (curve.getPointAtParam(end * i / count, p) == Acad::eOk)
            points.push_back(p);
    }
    return points;
}

// A star-shaped outline about (cx, cy): vertices at sorted random angles and radii
// between 5 and 10, bulges up to maxBulge in size (small enough that neighbouring arcs
// stay apart), counter-clockwise.
inline std::unique_ptr<AcDbPolyline> randomOutline(std::mt19937& rng, bool closed, double maxBulge = 0.3,
                                                   double cx = 0.0, double cy = 0.0)
{
    std::uniform_int_distribution<int> count(3, 12);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    const int n = count(rng);
    std::vector<V> vertices;
    for (int i = 0; i < n; ++i) {
        const double angle = 2.0 * kPi * (i + 0.2 + 0.6 * unit(rng)) / n;
        const double radius = 5.0 + 5.0 * unit(rng);
        const double bulge = unit(rng) < 0.5 ? 0.0 : maxBulge * (2.0 * unit(rng) - 1.0);
        vertices.push_back({cx + radius * std::cos(angle), cy + radius * std::sin(angle), bulge});
    }
    return polyline(vertices, closed);
}

// A segment worked out as a drafter would by hand, independently of the host: in the
// frame of its chord (origin at the chord's middle, x along the chord, y to its left), a
// minor arc of bulge b over chord c is y(x) = -sign(b) (h - x^2 / (R + sqrt(R^2 - x^2)))
// with sagitta h = |b| c / 2 and radius R = c (1 + b^2) / (4 |b|); positive bulges run
// counter-clockwise, to the right of the chord. No centre is ever formed, so nearly straight arcs
// keep every digit. Good for |b| <= 1.
struct HandArc {
    AcGePoint2d middle;
    AcGeVector2d along;
    AcGeVector2d left;
    double half = 0.0;
    double side = 0.0;  // -sign(b)
    double sagitta = 0.0;
    double radius = 0.0;

    HandArc(const AcGePoint2d& start, const AcGePoint2d& end, double bulge)
        : middle(start + (end - start) * 0.5), along((end - start).normal()), left(along.perpVector())
    {
        const double chord = start.distanceTo(end);
        half = chord / 2.0;
        side = bulge > 0.0 ? -1.0 : 1.0;
        sagitta = std::fabs(bulge) * chord / 2.0;
        radius = bulge == 0.0 ? 0.0 : chord * (1.0 + bulge * bulge) / (4.0 * std::fabs(bulge));
    }

    double height(double x) const
    {
        if (radius == 0.0)
            return 0.0;
        return side * (sagitta - x * x / (radius + std::sqrt(radius * radius - x * x)));
    }
    AcGePoint2d at(double x) const { return middle + along * x + left * height(x); }

    // The slope dy/dx.
    double slope(double x) const { return radius == 0.0 ? 0.0 : -side * x / std::sqrt(radius * radius - x * x); }

    // The chord position of the point nearest q: sampled along the chord, then pinned
    // by halving on the derivative of the squared distance (whose own value, unlike the
    // distance's, keeps its digits near the minimum).
    double nearestX(const AcGePoint2d& q) const
    {
        const double qx = (q - middle).dotProduct(along);
        const double qy = (q - middle).dotProduct(left);
        auto cost = [&](double x) {
            const double dy = height(x) - qy;
            return (x - qx) * (x - qx) + dy * dy;
        };
        auto rise = [&](double x) { return (x - qx) + (height(x) - qy) * slope(x); };
        constexpr int kSamples = 64;
        double bestX = -half;
        for (int i = 1; i <= kSamples; ++i) {
            const double x = -half + 2.0 * half * i / kSamples;
            if (cost(x) < cost(bestX))
                bestX = x;
        }
        double a = std::max(-half, bestX - 2.0 * half / kSamples);
        double b = std::min(half, bestX + 2.0 * half / kSamples);
        if (rise(a) >= 0.0)
            return a;
        if (rise(b) <= 0.0)
            return b;
        for (int i = 0; i < 200; ++i) {
            const double mid = (a + b) / 2.0;
            if (mid <= a || mid >= b)
                break;
            (rise(mid) < 0.0 ? a : b) = mid;
        }
        return (a + b) / 2.0;
    }
    double distanceTo(const AcGePoint2d& q) const { return q.distanceTo(at(nearestX(q))); }
};

// The distance from p to the polyline's segments as HandArcs (in the plane z = 0).
inline double handDistance(const AcDbPolyline& pline, const AcGePoint3d& p)
{
    const unsigned n = pline.numVerts();
    const unsigned segments = pline.isClosed() ? n : n - 1;
    double best = std::numeric_limits<double>::infinity();
    for (unsigned i = 0; i < segments; ++i) {
        AcGePoint2d a;
        AcGePoint2d b;
        double bulge = 0.0;
        pline.getPointAt(i, a);
        pline.getPointAt((i + 1) % n, b);
        pline.getBulgeAt(i, bulge);
        best = std::min(best, HandArc(a, b, bulge).distanceTo(AcGePoint2d(p.x, p.y)));
    }
    return std::hypot(best, p.z);
}

// The failures of a seeded sweep: the first few reported in full, all counted, so that a
// broken rule shows its first cases rather than thousands.
class SweepFailures {
public:
    void operator()(const std::string& what)
    {
        if (++m_count <= 8)
            ADD_FAILURE() << what;
    }
    int count() const { return m_count; }

private:
    int m_count = 0;
};

// The distance from p to the curve.
inline double distanceTo(const AcDbCurve& curve, const AcGePoint3d& p)
{
    AcGePoint3d onCurve;
    curve.getClosestPointTo(p, onCurve);
    return p.distanceTo(onCurve);
}

}  // namespace polytest
