// The recording world draw: primitives in world coordinates with their traits, model
// transforms, nested drawables, abort and drag settings, and the transcript form.
#include <gtest/gtest.h>

#include <cmath>

#include "EntTestSupport.h"
#include "GeTestSupport.h"
#include "headless/HostError.h"
#include "headless/RecordingWorldDraw.h"

namespace {

using enttest::LambdaDrawable;
using headless::PrimitiveKind;
using headless::RecordingWorldDraw;

constexpr double kPi = 3.14159265358979323846;

TEST(GiRecordingDrawTest, TranscriptOfEveryPrimitiveKind)
{
    const AcGePoint3d square[4] = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    const Adesk::Int32 faces[4] = {3, 0, 1, 2};
    LambdaDrawable drawable([&](AcGiWorldDraw* wd) {
        AcGiWorldGeometry& g = wd->geometry();
        g.circle(AcGePoint3d(1, 2, 3), 4.0, AcGeVector3d::kZAxis);
        g.circularArc(AcGePoint3d::kOrigin, 2.0, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, kPi / 2);
        g.polyline(2, square, nullptr, 10);
        g.polygon(4, square);
        g.text(AcGePoint3d(5, 5, 0), AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, 2.5, 0.8, 0.0, L"Hi \"you\"");
        g.xline(square[0], square[2]);
        g.ray(square[0], square[1]);
        g.shell(3, square, 4, faces);
        g.mesh(2, 2, square);
        AcGePoint3d ext[2] = {square[0], square[2]};
        g.setExtents(ext);
        return Adesk::kTrue;
    });
    RecordingWorldDraw rec;
    EXPECT_TRUE(rec.drawDrawable(&drawable));
    EXPECT_EQ(rec.transcript(),
              "circle center=(1,2,3) normal=(0,0,1) radius=4 | color=7 layer=null linetype=null lineweight=-1 ltscale=1 fill=never marker=0\n"
              "arc center=(0,0,0) start=(2,0,0) end=(0,2,0) normal=(0,0,1) radius=2 sweep=1.570796 type=simple | color=7 layer=null linetype=null lineweight=-1 ltscale=1 fill=never marker=0\n"
              "polyline n=2 (0,0,0) (1,0,0) baseMarker=10 | color=7 layer=null linetype=null lineweight=-1 ltscale=1 fill=never marker=0\n"
              "polygon n=4 (0,0,0) (1,0,0) (1,1,0) (0,1,0) | color=7 layer=null linetype=null lineweight=-1 ltscale=1 fill=never marker=0\n"
              "text \"Hi \\\"you\\\"\" position=(5,5,0) normal=(0,0,1) direction=(1,0,0) height=2.5 width=0.8 oblique=0 | color=7 layer=null linetype=null lineweight=-1 ltscale=1 fill=never marker=0\n"
              "xline (0,0,0) (1,1,0) | color=7 layer=null linetype=null lineweight=-1 ltscale=1 fill=never marker=0\n"
              "ray (0,0,0) (1,0,0) | color=7 layer=null linetype=null lineweight=-1 ltscale=1 fill=never marker=0\n"
              "shell vertices=3 (0,0,0) (1,0,0) (1,1,0) faces=[3 0 1 2] | color=7 layer=null linetype=null lineweight=-1 ltscale=1 fill=never marker=0\n"
              "mesh rows=2 columns=2 (0,0,0) (1,0,0) (1,1,0) (0,1,0) | color=7 layer=null linetype=null lineweight=-1 ltscale=1 fill=never marker=0\n"
              "extents (0,0,0) (1,1,0) | color=7 layer=null linetype=null lineweight=-1 ltscale=1 fill=never marker=0\n");
}

TEST(GiRecordingDrawTest, TraitsInForceTravelWithEachPrimitive)
{
    enttest::WorkingDatabase wdb;
    const AcDbObjectId layer = wdb.addLayer(L"Walls");
    LambdaDrawable drawable(
        [](AcGiWorldDraw* wd) {
            AcGiSubEntityTraits& t = wd->subEntityTraits();
            wd->geometry().circle(AcGePoint3d::kOrigin, 1.0, AcGeVector3d::kZAxis);
            t.setSelectionMarker(3);
            t.setTrueColor(AcCmEntityColor(255, 0, 0));
            t.setFillType(kAcGiFillAlways);
            t.setLineWeight(AcDb::kLnWt050);
            t.setLineTypeScale(2.0);
            wd->geometry().circle(AcGePoint3d::kOrigin, 2.0, AcGeVector3d::kZAxis);
            return Adesk::kTrue;
        },
        [layer](AcGiDrawableTraits* traits) {
            traits->setColor(3);
            traits->setLayer(layer);
            return Adesk::UInt32(AcGiDrawable::kDrawableIsAnEntity);
        });
    RecordingWorldDraw rec;
    rec.drawDrawable(&drawable);
    ASSERT_EQ(rec.primitives().size(), 2u);
    const headless::RecordedTraits& first = rec.primitives()[0].traits;
    EXPECT_EQ(first.color, 3);
    EXPECT_TRUE(first.trueColor.isByACI());
    EXPECT_EQ(first.layerId, layer);
    EXPECT_EQ(first.selectionMarker, 0);
    const headless::RecordedTraits& second = rec.primitives()[1].traits;
    EXPECT_TRUE(second.trueColor.isByColor());
    EXPECT_EQ(second.color, 1);  // red's closest index
    EXPECT_EQ(second.selectionMarker, 3);
    EXPECT_EQ(second.fillType, kAcGiFillAlways);
    EXPECT_EQ(second.lineWeight, AcDb::kLnWt050);
    EXPECT_EQ(second.linetypeScale, 2.0);
    EXPECT_EQ(second.layerId, layer);
}

TEST(GiRecordingDrawTest, ModelTransformsGiveWorldCoordinates)
{
    // Model: scaled by 2, turned a quarter about Z, then moved by (10, 0, 0).
    const AcGeMatrix3d move = AcGeMatrix3d::translation(AcGeVector3d(10, 0, 0));
    const AcGeMatrix3d turnAndScale =
        AcGeMatrix3d::rotation(kPi / 2, AcGeVector3d::kZAxis) * AcGeMatrix3d::scaling(2.0);
    LambdaDrawable drawable([&](AcGiWorldDraw* wd) {
        AcGiWorldGeometry& g = wd->geometry();
        g.pushModelTransform(move);
        g.pushModelTransform(turnAndScale);
        g.circle(AcGePoint3d(1, 0, 0), 1.0, AcGeVector3d::kZAxis);
        g.text(AcGePoint3d(1, 0, 0), AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, 1.0, 1.0, 0.0, L"T");
        AcGeMatrix3d toWorld;
        g.getModelToWorldTransform(toWorld);
        EXPECT_TRUE(getest::isNear(toWorld * AcGePoint3d(1, 0, 0), AcGePoint3d(10, 2, 0)));
        const AcGePoint3d world[2] = {AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 1)};
        g.worldLine(world);
        g.popModelTransform();
        g.popModelTransform();
        return Adesk::kTrue;
    });
    RecordingWorldDraw rec;
    rec.drawDrawable(&drawable);
    ASSERT_EQ(rec.primitives().size(), 3u);
    const headless::RecordedPrimitive& circle = rec.primitives()[0];
    EXPECT_TRUE(getest::isNear(circle.points[0], AcGePoint3d(10, 2, 0)));
    EXPECT_NEAR(circle.numbers[0], 2.0, 1e-12);
    const headless::RecordedPrimitive& text = rec.primitives()[1];
    EXPECT_TRUE(getest::isNear(text.vectors[1], AcGeVector3d(0, 1, 0)));
    EXPECT_NEAR(text.numbers[0], 2.0, 1e-12);  // height scaled
    EXPECT_NEAR(text.numbers[1], 1.0, 1e-12);  // width factor kept under a uniform scale
    EXPECT_EQ(rec.primitives()[2].kind, PrimitiveKind::kWorldLine);
    EXPECT_TRUE(getest::isNear(rec.primitives()[2].points[1], AcGePoint3d(1, 1, 1)));
}

TEST(GiRecordingDrawTest, MirroredArcKeepsItsPointsAndSense)
{
    LambdaDrawable drawable([](AcGiWorldDraw* wd) {
        wd->geometry().pushModelTransform(AcGeMatrix3d::mirroring(AcGePlane::kYZPlane));
        wd->geometry().circularArc(AcGePoint3d::kOrigin, 1.0, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, kPi / 2);
        wd->geometry().popModelTransform();
        return Adesk::kTrue;
    });
    RecordingWorldDraw rec;
    rec.drawDrawable(&drawable);
    const headless::RecordedPrimitive& arc = rec.primitives().at(0);
    EXPECT_TRUE(getest::isNear(arc.points[1], AcGePoint3d(-1, 0, 0)));
    EXPECT_TRUE(getest::isNear(arc.points[2], AcGePoint3d(0, 1, 0)));
    // Counter-clockwise about the recorded normal from start to end.
    EXPECT_TRUE(getest::isNear(arc.vectors[0], AcGeVector3d(0, 0, -1)));
    const AcGeVector3d turn = (arc.points[1] - arc.points[0]).crossProduct(arc.points[2] - arc.points[0]);
    EXPECT_GT(turn.dotProduct(arc.vectors[0]), 0.0);
}

TEST(GiRecordingDrawTest, ThreePointFormsBecomeCentreForms)
{
    LambdaDrawable drawable([](AcGiWorldDraw* wd) {
        wd->geometry().circle(AcGePoint3d(1, 0, 0), AcGePoint3d(0, 1, 0), AcGePoint3d(-1, 0, 0));
        wd->geometry().circularArc(AcGePoint3d(0, -1, 0), AcGePoint3d(1, 0, 0), AcGePoint3d(0, 1, 0));
        // Collinear points make nothing.
        wd->geometry().circle(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0), AcGePoint3d(2, 0, 0));
        return Adesk::kTrue;
    });
    RecordingWorldDraw rec;
    rec.drawDrawable(&drawable);
    ASSERT_EQ(rec.primitives().size(), 2u);
    EXPECT_TRUE(getest::isNear(rec.primitives()[0].points[0], AcGePoint3d::kOrigin));
    EXPECT_NEAR(rec.primitives()[0].numbers[0], 1.0, 1e-12);
    EXPECT_NEAR(rec.primitives()[1].numbers[1], kPi, 1e-12);
    EXPECT_TRUE(getest::isNear(rec.primitives()[1].vectors[0], AcGeVector3d::kZAxis));
}

TEST(GiRecordingDrawTest, NestedDrawablesRestoreTheTraits)
{
    LambdaDrawable inner(
        [](AcGiWorldDraw* wd) {
            wd->subEntityTraits().setSelectionMarker(9);
            wd->geometry().circle(AcGePoint3d::kOrigin, 1.0, AcGeVector3d::kZAxis);
            return Adesk::kTrue;
        },
        [](AcGiDrawableTraits* traits) {
            traits->setColor(5);
            return Adesk::UInt32(AcGiDrawable::kDrawableNone);
        });
    LambdaDrawable hidden([](AcGiWorldDraw* wd) {
                              wd->geometry().circle(AcGePoint3d::kOrigin, 7.0, AcGeVector3d::kZAxis);
                              return Adesk::kTrue;
                          },
                          [](AcGiDrawableTraits*) { return Adesk::UInt32(AcGiDrawable::kDrawableIsInvisible); });
    LambdaDrawable asksViewport([](AcGiWorldDraw*) { return Adesk::kFalse; });
    LambdaDrawable outer(
        [&](AcGiWorldDraw* wd) {
            wd->subEntityTraits().setSelectionMarker(1);
            wd->geometry().draw(&inner);
            wd->geometry().draw(&hidden);
            wd->geometry().draw(&asksViewport);
            wd->geometry().circle(AcGePoint3d::kOrigin, 2.0, AcGeVector3d::kZAxis);
            return Adesk::kTrue;
        },
        [](AcGiDrawableTraits* traits) {
            traits->setColor(1);
            return Adesk::UInt32(AcGiDrawable::kDrawableIsAnEntity);
        });
    RecordingWorldDraw rec;
    rec.drawDrawable(&outer);
    ASSERT_EQ(rec.primitives().size(), 2u);
    EXPECT_EQ(rec.primitives()[0].depth, 1);
    EXPECT_EQ(rec.primitives()[0].traits.color, 5);
    EXPECT_EQ(rec.primitives()[0].traits.selectionMarker, 9);
    EXPECT_EQ(rec.primitives()[1].depth, 0);
    EXPECT_EQ(rec.primitives()[1].traits.color, 1);
    EXPECT_EQ(rec.primitives()[1].traits.selectionMarker, 1);
    EXPECT_EQ(rec.viewportDrawRequests(), 1u);
    EXPECT_EQ(rec.transcript().substr(0, 9), "  circle ");
}

TEST(GiRecordingDrawTest, AbortRefusesPrimitivesAtOnceOrAfterACount)
{
    struct Row {
        const char* name;
        long abortAfter;  // -1: never
        size_t recorded;
        bool lastAnswer;
    };
    const Row rows[] = {{"never", -1, 5, false}, {"at once", 0, 0, true}, {"after two", 2, 2, true}};
    for (const Row& row : rows) {
        bool last = false;
        bool sawAbort = false;
        LambdaDrawable drawable([&](AcGiWorldDraw* wd) {
            for (int i = 0; i < 5; ++i) {
                last = wd->geometry().circle(AcGePoint3d::kOrigin, i + 1.0, AcGeVector3d::kZAxis);
                sawAbort = sawAbort || wd->regenAbort();
            }
            return Adesk::kTrue;
        });
        RecordingWorldDraw rec;
        if (row.abortAfter >= 0)
            rec.abortAfter(static_cast<size_t>(row.abortAfter));
        rec.drawDrawable(&drawable);
        EXPECT_EQ(rec.primitives().size(), row.recorded) << row.name;
        EXPECT_EQ(last, row.lastAnswer) << row.name;
        EXPECT_EQ(sawAbort, row.lastAnswer) << row.name;
    }
}

TEST(GiRecordingDrawTest, SettingsAnswerAsTold)
{
    RecordingWorldDraw rec;
    EXPECT_FALSE(rec.isDragging());
    EXPECT_EQ(rec.regenType(), kAcGiStandardDisplay);
    rec.setDragging(true);
    rec.setRegenType(kAcGiHideOrShadeCommand);
    rec.setDeviation(0.5);
    rec.setNumberOfIsolines(8);
    EXPECT_TRUE(rec.isDragging());
    EXPECT_EQ(rec.deviation(kAcGiMaxDevForCircle, AcGePoint3d::kOrigin), 0.5);
    EXPECT_EQ(rec.numberOfIsolines(), 8u);
    EXPECT_EQ(rec.context()->database(), nullptr);
    EXPECT_EQ(rec.rawGeometry(), &rec.geometry());
    // Hide, shade and render fill closed primitives.
    LambdaDrawable drawable([](AcGiWorldDraw* wd) {
        wd->geometry().circle(AcGePoint3d::kOrigin, 1.0, AcGeVector3d::kZAxis);
        return Adesk::kTrue;
    });
    rec.drawDrawable(&drawable);
    EXPECT_EQ(rec.primitives().at(0).traits.fillType, kAcGiFillAlways);
}

TEST(GiRecordingDrawTest, UnbalancedStacksRaiseTheHostError)
{
    RecordingWorldDraw rec;
    EXPECT_THROW(rec.geometry().popModelTransform(), headless::HostError);
    EXPECT_THROW(rec.geometry().popClipBoundary(), headless::HostError);
    LambdaDrawable leaky([](AcGiWorldDraw* wd) {
        wd->geometry().pushModelTransform(AcGeVector3d::kXAxis);
        return Adesk::kTrue;
    });
    EXPECT_THROW(rec.drawDrawable(&leaky), headless::HostError);
    EXPECT_THROW(rec.geometry().polyline(3, nullptr), headless::HostError);
}

TEST(GiRecordingDrawTest, ClipBoundariesAreRecordedAroundTheirPrimitives)
{
    LambdaDrawable drawable([](AcGiWorldDraw* wd) {
        AcGiClipBoundary boundary;
        boundary.m_aptPoints.append(AcGePoint2d(0, 0));
        boundary.m_aptPoints.append(AcGePoint2d(4, 0));
        boundary.m_aptPoints.append(AcGePoint2d(4, 4));
        wd->geometry().pushClipBoundary(&boundary);
        EXPECT_TRUE(wd->context()->isBoundaryClipping());
        wd->geometry().circle(AcGePoint3d(1, 1, 0), 1.0, AcGeVector3d::kZAxis);
        wd->geometry().popClipBoundary();
        return Adesk::kTrue;
    });
    RecordingWorldDraw rec;
    rec.drawDrawable(&drawable);
    ASSERT_EQ(rec.primitives().size(), 3u);
    EXPECT_EQ(rec.primitives()[0].kind, PrimitiveKind::kClip);
    EXPECT_EQ(rec.primitives()[0].points.size(), 3u);
    EXPECT_EQ(rec.primitives()[2].kind, PrimitiveKind::kClipEnd);
}

TEST(GiRecordingDrawTest, NumbersPrintStably)
{
    struct Row {
        double value;
        const char* text;
    };
    const Row rows[] = {{0.0, "0"}, {-0.0, "0"}, {-1e-9, "0"}, {2.5, "2.5"}, {1.0 / 3.0, "0.333333"},
                        {-12.0, "-12"}, {1e6, "1000000"}};
    for (const Row& row : rows)
        EXPECT_EQ(headless::formatRecordedNumber(row.value), row.text) << row.value;
}

}  // namespace
