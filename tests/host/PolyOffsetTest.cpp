// Offsets at nearly straight joins: lines and arcs meeting at a kink from 1e-9 to 1e-2
// radians, open and closed, offset to both sides by distances of several sizes. Every
// offset curve is simple and keeps its distance from the polyline (worked out by hand),
// an open polyline offset to one side gives one curve, and the offset of a reversed,
// translated or mirrored polyline is the offset reversed, translated or mirrored.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "GeTestSupport.h"
#include "PolyTestSupport.h"

namespace {

using getest::isNear;
using polytest::kPi;
using polytest::Pieces;
using polytest::V;

// Offset points keep their distance this well (drawing units, polylines up to 1e4 long).
constexpr double kDistanceTol = 1e-8;

AcGeVector2d rightOf(const AcGeVector2d& direction)
{
    const AcGeVector2d unit = direction.normal();
    return AcGeVector2d(unit.y, -unit.x);
}

// An open polyline of two segments of chord `length` each, the first along +X from the
// origin with bulge b1, the second with bulge b2 setting off turned by `kink` (positive to
// the left) from where the first arrives. An arc of sweep th leaves th/2 to the right of
// its chord and arrives th/2 to the left of it.
std::vector<V> kinked(double length, double kink, double b1, double b2)
{
    const double arrive = 2.0 * std::atan(b1);  // th1 / 2
    const double chord2 = arrive + kink + 2.0 * std::atan(b2);
    return {{0, 0, b1}, {length, 0, b2}, {length + length * std::cos(chord2), length * std::sin(chord2)}};
}

// The kinked polyline closed by a frame `depth` below it (travelling clockwise).
std::vector<V> framed(std::vector<V> vertices, double depth)
{
    const V last = vertices.back();
    vertices.push_back({last.x, last.y - depth});
    vertices.push_back({0, -depth});
    return vertices;
}

struct Curve {
    std::vector<V> vertices;
    bool closed;
};

std::vector<Curve> curvesOf(const Pieces& pieces)
{
    std::vector<Curve> curves;
    for (int i = 0; i < pieces.size(); ++i) {
        const AcDbPolyline* pline = pieces.at(i);
        Curve curve{{}, pline->isClosed() == Adesk::kTrue};
        for (unsigned k = 0; k < pline->numVerts(); ++k) {
            AcGePoint2d p;
            double bulge = 0.0;
            pline->getPointAt(k, p);
            pline->getBulgeAt(k, bulge);
            curve.vertices.push_back({p.x, p.y, bulge});
        }
        curves.push_back(curve);
    }
    return curves;
}

// The segments of a curve flattened into chords (arcs into 32), as lists of points.
std::vector<std::vector<AcGePoint2d>> flattened(const Curve& curve)
{
    std::vector<std::vector<AcGePoint2d>> segments;
    const size_t n = curve.vertices.size();
    const size_t count = curve.closed ? n : n - 1;
    for (size_t i = 0; i < count; ++i) {
        const V& a = curve.vertices[i];
        const V& b = curve.vertices[(i + 1) % n];
        const polytest::HandArc arc(AcGePoint2d(a.x, a.y), AcGePoint2d(b.x, b.y), a.bulge);
        std::vector<AcGePoint2d> points{AcGePoint2d(a.x, a.y)};
        const int steps = a.bulge == 0.0 ? 1 : 32;
        for (int k = 1; k < steps; ++k)
            points.push_back(arc.at(-arc.half + 2.0 * arc.half * k / steps));
        points.push_back(AcGePoint2d(b.x, b.y));
        segments.push_back(points);
    }
    return segments;
}

double orient(const AcGePoint2d& a, const AcGePoint2d& b, const AcGePoint2d& c)
{
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

bool chordsCross(const AcGePoint2d& a, const AcGePoint2d& b, const AcGePoint2d& c, const AcGePoint2d& d)
{
    return orient(a, b, c) * orient(a, b, d) < 0.0 && orient(c, d, a) * orient(c, d, b) < 0.0;
}

// Simple: no two segments that do not follow one another cross, and at no vertex does the
// curve turn back on itself (a back-and-forth run overlaps without crossing, turning by
// half a turn).
::testing::AssertionResult isSimple(const Curve& curve)
{
    const auto segments = flattened(curve);
    const size_t count = segments.size();
    for (size_t i = 0; i < count; ++i) {
        for (size_t j = i + 2; j < count; ++j) {
            if (curve.closed && i == 0 && j + 1 == count)
                continue;
            for (size_t a = 1; a < segments[i].size(); ++a) {
                for (size_t b = 1; b < segments[j].size(); ++b) {
                    if (chordsCross(segments[i][a - 1], segments[i][a], segments[j][b - 1], segments[j][b]))
                        return ::testing::AssertionFailure() << "segments " << i << " and " << j << " cross";
                }
            }
        }
        if (i + 1 < count || curve.closed) {
            const auto& out = segments[i];
            const auto& in = segments[(i + 1) % count];
            const AcGeVector2d arriving = out[out.size() - 1] - out[out.size() - 2];
            const AcGeVector2d leaving = in[1] - in[0];
            // Every corner of these polylines turns by at most a right angle and a bit.
            if (arriving.normal().dotProduct(leaving.normal()) < -0.7)
                return ::testing::AssertionFailure() << "the curve turns back at vertex " << (i + 1) % count;
        }
    }
    return ::testing::AssertionSuccess();
}

// Every sample of every curve lies the distance from the polyline, worked out by hand.
::testing::AssertionResult keepsDistance(const AcDbPolyline& source, const Pieces& offsets, double distance)
{
    for (int i = 0; i < offsets.size(); ++i) {
        for (const AcGePoint3d& p : polytest::samples(*offsets.at(i), 16)) {
            const double away = polytest::handDistance(source, p);
            if (std::fabs(away - std::fabs(distance)) > kDistanceTol)
                return ::testing::AssertionFailure() << p << " lies " << away << " from the polyline";
        }
    }
    return ::testing::AssertionSuccess();
}

// The larger of the two one-sided distances between the curves' samples.
double apart(const Pieces& a, const Pieces& b)
{
    double worst = 0.0;
    for (const Pieces* from : {&a, &b}) {
        const Pieces& to = from == &a ? b : a;
        for (int i = 0; i < from->size(); ++i) {
            for (const AcGePoint3d& p : polytest::samples(*from->at(i), 8)) {
                double nearest = 1e300;
                for (int k = 0; k < to.size(); ++k)
                    nearest = std::min(nearest, polytest::distanceTo(*to.at(k), p));
                worst = std::max(worst, nearest);
            }
        }
    }
    return worst;
}

// The reported joins. Each row notes the failure it showed.
TEST(PolyOffsetTest, TheReportedNearlyStraightJoins)
{
    // A 6000-unit line kinked 0.08 at its middle, offset 40 to the concave side, ran to
    // x = 3000.00107, back to 2999.99893 and on. The two moved lines meet on the bisector
    // 40 / cos(half the turn) below the vertex.
    auto line = polytest::polyline({{0, 0}, {3000, 0.08}, {6000, 0}});
    const AcGeVector2d n0 = rightOf(AcGeVector2d(3000, 0.08));
    const AcGeVector2d n1 = rightOf(AcGeVector2d(3000, -0.08));
    Pieces concave;
    ASSERT_EQ(line->getOffsetCurves(40.0, concave.array), Acad::eOk);
    ASSERT_EQ(concave.size(), 1);
    const std::vector<Curve> curves = curvesOf(concave);
    ASSERT_EQ(curves[0].vertices.size(), 3u);
    const AcGePoint2d expected[3] = {AcGePoint2d(0, 0) + n0 * 40.0,
                                     AcGePoint2d(3000, 0.08) + (n0 + n1) * (40.0 / (1.0 + n0.dotProduct(n1))),
                                     AcGePoint2d(6000, 0) + n1 * 40.0};
    for (int i = 0; i < 3; ++i) {
        EXPECT_TRUE(isNear(AcGePoint2d(curves[0].vertices[i].x, curves[0].vertices[i].y), expected[i], 1e-9)) << i;
        EXPECT_EQ(curves[0].vertices[i].bulge, 0.0) << i;
    }
    // To the convex side the corner is rounded by an arc about the vertex.
    Pieces convex;
    ASSERT_EQ(line->getOffsetCurves(-40.0, convex.array), Acad::eOk);
    ASSERT_EQ(convex.size(), 1);
    EXPECT_EQ(curvesOf(convex)[0].vertices.size(), 4u);
    EXPECT_NEAR(curvesOf(convex)[0].vertices[1].bulge, -std::tan(std::atan2(0.16 * 3000, 3000.0 * 3000 - 0.0064) / 4),
                1e-13);

    // The same kink on the bottom edge of a counter-clockwise 6000 x 5000 rectangle,
    // offset outwards by 40, added a closed 3-vertex sliver. One outline: four rounded
    // corners and the trimmed kink, with the area A + P d + d^2 (2 pi + k) / 2 - d^2 tan(k / 2)
    // for the concave turn k.
    auto rectangle = polytest::polyline({{0, 0}, {3000, 0.08}, {6000, 0}, {6000, 5000}, {0, 5000}}, true);
    Pieces grown;
    ASSERT_EQ(rectangle->getOffsetCurves(40.0, grown.array), Acad::eOk);
    ASSERT_EQ(grown.size(), 1);
    EXPECT_TRUE(grown.at(0)->isClosed());
    EXPECT_EQ(grown.at(0)->numVerts(), 9u);
    const double k = 2.0 * std::atan(0.08 / 3000);
    const double area = 6000.0 * 5000 - 240;
    const double perimeter = 2 * std::hypot(3000.0, 0.08) + 16000;
    EXPECT_NEAR(polytest::areaOf(*grown.at(0)), area + perimeter * 40 + 800 * (2 * kPi + k) - 1600 * std::tan(k / 2),
                1e-6);
    Pieces shrunk;
    ASSERT_EQ(rectangle->getOffsetCurves(-40.0, shrunk.array), Acad::eOk);
    ASSERT_EQ(shrunk.size(), 1);
    EXPECT_EQ(shrunk.at(0)->numVerts(), 6u) << "four trimmed corners and the kink rounded";
    for (const Pieces* offsets : {&concave, &convex, &grown, &shrunk})
        EXPECT_TRUE(isSimple(curvesOf(*offsets)[0]));
}

// A concave kink of 1e-4 followed by a segment 0.001 long, shorter than the moved
// segments' way back to their crossing (40 tan(5e-5) = 0.002): they do not cross within
// it, a chord bridges the corner, and the loop along that chord, whose middle falls short
// of the distance by only 40 (1e-4)^2 / 8, must go. What stays is the line to the crossing
// of the first and third moved segments on the bisector, and on.
TEST(PolyOffsetTest, ALoopAlongABridgingChordNeverStays)
{
    const double k = 1e-4;
    const AcGePoint2d short0(100 + 0.001 * std::cos(k), -0.001 * std::sin(k));
    const AcGePoint2d end(short0.x + 100 * std::cos(k), short0.y - 100 * std::sin(k));
    auto pline = polytest::polyline({{0, 0}, {100, 0}, {short0.x, short0.y}, {end.x, end.y}});
    Pieces offsets;
    ASSERT_EQ(pline->getOffsetCurves(40.0, offsets.array), Acad::eOk);
    ASSERT_EQ(offsets.size(), 1);
    const Curve curve = curvesOf(offsets)[0];
    EXPECT_TRUE(isSimple(curve));
    ASSERT_EQ(curve.vertices.size(), 3u);
    EXPECT_TRUE(isNear(AcGePoint2d(curve.vertices[1].x, curve.vertices[1].y),
                       AcGePoint2d(100 - 40 * std::tan(k / 2), -40), 1e-9));
    EXPECT_TRUE(keepsDistance(*pline, offsets, 40.0));
}

struct Variant {
    const char* name;
    AcGeMatrix3d xform;
    bool reversed;
    double sense;  // the distance that gives the same offset, relative to the original's
};

const Variant kVariants[] = {
    {"reversed", AcGeMatrix3d(), true, -1.0},
    {"translated", AcGeMatrix3d::translation(AcGeVector3d(321.5, -77.25, 0)), false, 1.0},
    {"mirrored", AcGeMatrix3d::mirroring(AcGePlane::kYZPlane), false, -1.0},
};

// Seeded sweep: lines and arcs (bulges up to 0.05) in every pairing, 50 to 5000 long,
// kinked by 1e-9 to 1e-2 radians either way, open and closed by a frame at least 200
// deep, offset by 0.01, 1 and 40 to both sides.
TEST(PolyOffsetTest, KinkedLinesAndArcsOffsetIntoSimpleCurvesThatKeepTheirDistance)
{
    constexpr int kShapes = 64;
    std::mt19937 rng(8);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    polytest::SweepFailures fail;
    for (int i = 0; i < kShapes; ++i) {
        const double length = std::pow(10.0, 1.7 + 2.0 * unit(rng));
        const double kink = (unit(rng) < 0.5 ? -1.0 : 1.0) * std::pow(10.0, -9.0 + 7.0 * unit(rng));
        const double b1 = i % 4 < 2 ? 0.0 : 0.05 * (2.0 * unit(rng) - 1.0);
        const double b2 = i % 2 == 0 ? 0.0 : 0.05 * (2.0 * unit(rng) - 1.0);
        const bool closed = i % 8 >= 4;
        const std::vector<V> open = kinked(length, kink, b1, b2);
        auto pline = polytest::polyline(closed ? framed(open, std::max(length, 200.0)) : open, closed);
        for (double distance : {0.01, -0.01, 1.0, -1.0, 40.0, -40.0}) {
            std::ostringstream name;
            name.precision(17);
            name << "shape " << i << (closed ? " closed" : " open") << " length " << length << " kink " << kink
                 << " bulges " << b1 << ", " << b2 << " offset " << distance << ": ";
            Pieces offsets;
            if (pline->getOffsetCurves(distance, offsets.array) != Acad::eOk || offsets.size() != 1) {
                fail(name.str() + "not one curve but " + std::to_string(offsets.size()));
                continue;
            }
            if (offsets.at(0)->isClosed() != pline->isClosed())
                fail(name.str() + "open and closed differ");
            if (!isSimple(curvesOf(offsets)[0]))
                fail(name.str() + isSimple(curvesOf(offsets)[0]).message());
            if (!keepsDistance(*pline, offsets, distance))
                fail(name.str() + keepsDistance(*pline, offsets, distance).message());
            if (!closed) {
                // The ends move straight out to the right of travel.
                AcGePoint3d start;
                offsets.at(0)->getStartPoint(start);
                AcGeVector2d turned(1, 0);
                turned.rotateBy(-2.0 * std::atan(b1));
                if (!isNear(AcGePoint2d(start.x, start.y), AcGePoint2d(0, 0) + rightOf(turned) * distance, 1e-9))
                    fail(name.str() + "the start is not moved straight out");
            }
            for (const Variant& variant : kVariants) {
                std::unique_ptr<AcDbPolyline> moved(static_cast<AcDbPolyline*>(pline->clone()));
                if (variant.reversed)
                    moved->reverseCurve();
                moved->transformBy(variant.xform);
                Pieces expected;
                for (int k = 0; k < offsets.size(); ++k) {
                    auto* copy = static_cast<AcDbPolyline*>(offsets.at(k)->clone());
                    copy->transformBy(variant.xform);
                    expected.array.append(copy);
                }
                Pieces actual;
                moved->getOffsetCurves(variant.sense * distance, actual.array);
                if (actual.size() != expected.size() || apart(actual, expected) > kDistanceTol)
                    fail(name.str() + variant.name + " gives another offset");
            }
        }
    }
    EXPECT_EQ(fail.count(), 0);
}

}  // namespace
