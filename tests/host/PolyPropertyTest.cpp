// Properties of the lightweight polyline's curve answers over many seeded random outlines
// with arcs, open and closed, each also checked reversed, translated and mirrored with
// the change those variants predict.
#include <gtest/gtest.h>

#include <cmath>
#include <random>

#include "GeTestSupport.h"
#include "PolyTestSupport.h"

namespace {

using getest::isNear;
using polytest::Pieces;

constexpr int kOutlines = 60;
constexpr double kTol = 1e-8;

struct Variant {
    const char* name;
    // How the variant's polyline is made from the original.
    void (*make)(AcDbPolyline& pline);
    // The predicted sign of the signed area relative to the original (1 or -1).
    int areaSense;
};

const Variant kVariants[] = {
    {"as made", [](AcDbPolyline&) {}, 1},
    {"reversed", [](AcDbPolyline& p) { p.reverseCurve(); }, -1},
    {"translated", [](AcDbPolyline& p) { p.transformBy(AcGeMatrix3d::translation(AcGeVector3d(120, -75, 3))); }, 1},
    {"mirrored", [](AcDbPolyline& p) { p.transformBy(AcGeMatrix3d::mirroring(AcGePlane::kYZPlane)); }, -1},
};

class PolyPropertyTest : public ::testing::TestWithParam<int> {
protected:
    // The outlines of this parameter's seed in every variant, open and closed.
    template <class Check>
    void forEachOutline(Check check)
    {
        std::mt19937 rng(static_cast<unsigned>(GetParam()));
        for (int i = 0; i < kOutlines; ++i) {
            const bool closed = i % 2 == 0;
            auto original = polytest::randomOutline(rng, closed);
            for (const Variant& variant : kVariants) {
                std::unique_ptr<AcDbPolyline> pline(static_cast<AcDbPolyline*>(original->clone()));
                variant.make(*pline);
                SCOPED_TRACE(::testing::Message() << "outline " << i << (closed ? " closed, " : " open, ")
                                                  << variant.name);
                check(*original, *pline, variant);
            }
        }
    }
};

TEST_P(PolyPropertyTest, DistanceAndParameterInvertEachOther)
{
    forEachOutline([](const AcDbPolyline&, const AcDbPolyline& pline, const Variant&) {
        double end = 0.0;
        pline.getEndParam(end);
        for (int k = 0; k <= 40; ++k) {
            const double param = end * k / 40.0;
            double dist = 0.0;
            double back = 0.0;
            ASSERT_EQ(pline.getDistAtParam(param, dist), Acad::eOk);
            ASSERT_EQ(pline.getParamAtDist(dist, back), Acad::eOk);
            EXPECT_NEAR(back, param, 1e-9) << param;
            AcGePoint3d atParam;
            AcGePoint3d atDist;
            pline.getPointAtParam(param, atParam);
            pline.getPointAtDist(dist, atDist);
            EXPECT_TRUE(isNear(atParam, atDist, kTol));
            double fromPoint = 0.0;
            ASSERT_EQ(pline.getParamAtPoint(atParam, fromPoint), Acad::eOk);
            AcGePoint3d again;
            pline.getPointAtParam(fromPoint, again);
            EXPECT_TRUE(isNear(again, atParam, kTol)) << "a parameter of the same point";
        }
    });
}

TEST_P(PolyPropertyTest, LengthAndAreaFollowTheVariant)
{
    forEachOutline([](const AcDbPolyline& original, const AcDbPolyline& pline, const Variant&) {
        EXPECT_NEAR(polytest::lengthOf(pline), polytest::lengthOf(original), kTol);
        EXPECT_NEAR(polytest::areaOf(pline), polytest::areaOf(original), kTol);
        // Arc lengths: the chord is never longer than the arc, and the sum of the sampled
        // chords approaches the length from below.
        const auto points = polytest::samples(pline, 64);
        double chords = 0.0;
        for (size_t i = 1; i < points.size(); ++i)
            chords += points[i].distanceTo(points[i - 1]);
        EXPECT_LE(chords, polytest::lengthOf(pline) + kTol);
        EXPECT_GT(chords, polytest::lengthOf(pline) * 0.999);
    });
}

TEST_P(PolyPropertyTest, TheNearestPointIsOnTheCurveAndNoSampleIsNearer)
{
    forEachOutline([](const AcDbPolyline&, const AcDbPolyline& pline, const Variant&) {
        std::mt19937 probes(7);
        std::uniform_real_distribution<double> coord(-20.0, 20.0);
        const auto points = polytest::samples(pline, 48);
        AcGePoint3d center;
        pline.getStartPoint(center);
        for (int k = 0; k < 8; ++k) {
            const AcGePoint3d given = center + AcGeVector3d(coord(probes), coord(probes), coord(probes) / 4);
            AcGePoint3d onCurve;
            ASSERT_EQ(pline.getClosestPointTo(given, onCurve), Acad::eOk);
            double param = 0.0;
            EXPECT_EQ(pline.getParamAtPoint(onCurve, param), Acad::eOk) << "the nearest point lies on the curve";
            const double best = given.distanceTo(onCurve);
            for (const AcGePoint3d& sample : points)
                EXPECT_LE(best, given.distanceTo(sample) + kTol);
        }
    });
}

TEST_P(PolyPropertyTest, ExtentsHoldEverySample)
{
    forEachOutline([](const AcDbPolyline&, const AcDbPolyline& pline, const Variant&) {
        AcDbExtents extents;
        ASSERT_EQ(pline.getGeomExtents(extents), Acad::eOk);
        for (const AcGePoint3d& sample : polytest::samples(pline, 48))
            EXPECT_TRUE(extents.contains(sample, kTol)) << sample;
    });
}

TEST_P(PolyPropertyTest, SplittingThenJoiningKeepsTheLength)
{
    forEachOutline([](const AcDbPolyline&, const AcDbPolyline& pline, const Variant&) {
        double end = 0.0;
        pline.getEndParam(end);
        AcGeDoubleArray params;
        params.append(end * 0.71);
        params.append(end * 0.13);
        params.append(end * 0.5);
        Pieces pieces;
        ASSERT_EQ(pline.getSplitCurves(params, pieces.array), Acad::eOk);
        double total = 0.0;
        AcGePoint3d previousEnd;
        for (int i = 0; i < pieces.size(); ++i) {
            total += polytest::lengthOf(*pieces.at(i));
            AcGePoint3d start;
            pieces.at(i)->getStartPoint(start);
            if (i > 0) {
                EXPECT_TRUE(isNear(start, previousEnd, kTol)) << "pieces join end to start";
            }
            pieces.at(i)->getEndPoint(previousEnd);
        }
        EXPECT_EQ(pieces.size(), 3 + (pline.isClosed() ? 0 : 1));
        EXPECT_NEAR(total, polytest::lengthOf(pline), kTol);
    });
}

TEST_P(PolyPropertyTest, ReversingTwiceRestoresTheVertices)
{
    forEachOutline([](const AcDbPolyline&, const AcDbPolyline& pline, const Variant&) {
        std::unique_ptr<AcDbPolyline> twice(static_cast<AcDbPolyline*>(pline.clone()));
        twice->reverseCurve();
        twice->reverseCurve();
        ASSERT_EQ(twice->numVerts(), pline.numVerts());
        for (unsigned i = 0; i < pline.numVerts(); ++i) {
            AcGePoint2d a;
            AcGePoint2d b;
            double ba = 0.0;
            double bb = 0.0;
            pline.getPointAt(i, a);
            twice->getPointAt(i, b);
            pline.getBulgeAt(i, ba);
            twice->getBulgeAt(i, bb);
            EXPECT_EQ(a.x, b.x);
            EXPECT_EQ(a.y, b.y);
            EXPECT_EQ(ba, bb);
        }
    });
}

TEST_P(PolyPropertyTest, ARigidTransformKeepsLengthAndAreaAndAMirrorFlipsBulges)
{
    forEachOutline([](const AcDbPolyline&, const AcDbPolyline& pline, const Variant&) {
        std::mt19937 rng(static_cast<unsigned>(pline.numVerts()) * 31u);
        std::uniform_real_distribution<double> unit(-1.0, 1.0);
        const AcGeVector3d axis(unit(rng), unit(rng), unit(rng) + 2.0);
        const AcGeMatrix3d rigid = AcGeMatrix3d::translation(AcGeVector3d(unit(rng), unit(rng), unit(rng)) * 50.0) *
                                   AcGeMatrix3d::rotation(3.0 * unit(rng), axis, AcGePoint3d(unit(rng), 0, 0));
        std::unique_ptr<AcDbPolyline> moved(static_cast<AcDbPolyline*>(pline.clone()));
        ASSERT_EQ(moved->transformBy(rigid), Acad::eOk);
        EXPECT_NEAR(polytest::lengthOf(*moved), polytest::lengthOf(pline), kTol);
        EXPECT_NEAR(polytest::areaOf(*moved), polytest::areaOf(pline), kTol);
        AcGePoint3d start;
        AcGePoint3d movedStart;
        pline.getPointAtParam(0.5, start);
        moved->getPointAtParam(0.5, movedStart);
        EXPECT_TRUE(isNear(movedStart, rigid * start, kTol)) << "points follow the transform";

        std::unique_ptr<AcDbPolyline> mirrored(static_cast<AcDbPolyline*>(pline.clone()));
        ASSERT_EQ(mirrored->transformBy(AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d(3, 1, 0), AcGeVector3d(1, 2, 0)))),
                  Acad::eOk);
        EXPECT_TRUE(isNear(mirrored->normal(), pline.normal())) << "a mirror in a vertical plane keeps the normal";
        for (unsigned i = 0; i < pline.numVerts(); ++i) {
            double before = 0.0;
            double after = 0.0;
            pline.getBulgeAt(i, before);
            mirrored->getBulgeAt(i, after);
            EXPECT_EQ(after, -before) << i;
        }
        EXPECT_NEAR(polytest::areaOf(*mirrored), polytest::areaOf(pline), kTol);
    });
}

// Every sampled point of an offset lies the distance away from the polyline (and none
// comes nearer), on both sides.
TEST_P(PolyPropertyTest, OffsetsKeepTheirDistance)
{
    forEachOutline([](const AcDbPolyline&, const AcDbPolyline& pline, const Variant&) {
        int checked = 0;
        for (double distance : {0.75, -0.75, 2.0}) {
            Pieces offsets;
            ASSERT_EQ(pline.getOffsetCurves(distance, offsets.array), Acad::eOk) << distance;
            if (pline.isClosed() && distance > 0.0) {
                EXPECT_EQ(offsets.size(), 1) << "an outline grows into one outline";
            }
            for (int i = 0; i < offsets.size(); ++i) {
                for (const AcGePoint3d& sample : polytest::samples(*offsets.at(i), 12))
                    EXPECT_NEAR(polytest::distanceTo(pline, sample), std::fabs(distance), 1e-7)
                        << distance << " at " << sample;
            }
            // And nothing is missing: a point moved off the polyline that keeps the
            // distance from all of it lies on some offset.
            double end = 0.0;
            pline.getEndParam(end);
            for (int k = 0; k < 97; ++k) {
                const double param = end * (k + 0.5) / 97;
                AcGePoint3d p;
                AcGeVector3d tangent;
                pline.getPointAtParam(param, p);
                pline.getFirstDeriv(param, tangent);
                const AcGePoint3d moved = p + tangent.normal().crossProduct(pline.normal()) * distance;
                if (std::fabs(polytest::distanceTo(pline, moved) - std::fabs(distance)) > 1e-9)
                    continue;
                ++checked;
                double nearest = 1e300;
                for (int i = 0; i < offsets.size(); ++i)
                    nearest = std::min(nearest, polytest::distanceTo(*offsets.at(i), moved));
                EXPECT_LT(nearest, 1e-7) << distance << " missing " << moved;
            }
        }
        EXPECT_GT(checked, 97) << "many moved points keep their distance";
    });
}

// Open zigzags with bold arcs, offset far enough that their bends overlap.
TEST_P(PolyPropertyTest, OffsetsOfZigzagsWithBoldArcs)
{
    std::mt19937 rng(static_cast<unsigned>(GetParam()) + 100u);
    std::uniform_real_distribution<double> unit(0.0, 1.0);
    for (int i = 0; i < 40; ++i) {
        std::vector<polytest::V> vertices;
        const int n = 3 + static_cast<int>(unit(rng) * 8);
        for (int k = 0; k < n; ++k)
            vertices.push_back({k * 4.0 + unit(rng), (k % 2 == 0 ? 0.0 : 5.0) + unit(rng), 1.6 * unit(rng) - 0.8});
        auto pline = polytest::polyline(vertices, i % 3 == 0);
        for (double distance : {1.0, -1.0, 3.0, -3.0}) {
            Pieces offsets;
            ASSERT_EQ(pline->getOffsetCurves(distance, offsets.array), Acad::eOk);
            for (int k = 0; k < offsets.size(); ++k) {
                for (const AcGePoint3d& sample : polytest::samples(*offsets.at(k), 12))
                    EXPECT_NEAR(polytest::distanceTo(*pline, sample), std::fabs(distance), 1e-7)
                        << "zigzag " << i << " offset " << distance << " at " << sample;
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, PolyPropertyTest, ::testing::Values(1, 2, 3));

}  // namespace
