// Helpers for the polyline and hatch suites: polylines built from vertex tables, seeded
// random outlines with arcs, ownership of the entities curve calls hand out, and sampling.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <random>
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

// The distance from p to the curve.
inline double distanceTo(const AcDbCurve& curve, const AcGePoint3d& p)
{
    AcGePoint3d onCurve;
    curve.getClosestPointTo(p, onCurve);
    return p.distanceTo(onCurve);
}

}  // namespace polytest
