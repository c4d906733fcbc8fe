// What every basic entity promises: a default entity files and lists; moving a grip by
// zero changes nothing; the draw emits primitives with the entity's traits and stops on an
// aborted regeneration; extents hold the grip points of the curves; undo restores an edit.
#include <gtest/gtest.h>

#include <memory>

#include "EntTestSupport.h"
#include "dbents.h"
#include "dbmtext.h"
#include "headless/RecordingWorldDraw.h"
#include "headless/UndoHistory.h"

namespace {

// A populated sample of each class.
template <class T>
T* sample();

template <>
AcDbLine* sample<AcDbLine>()
{
    return new AcDbLine(AcGePoint3d(1, 2, 0), AcGePoint3d(5, -1, 2));
}

template <>
AcDbCircle* sample<AcDbCircle>()
{
    return new AcDbCircle(AcGePoint3d(3, 3, 1), AcGeVector3d(0, 1, 1), 2.0);
}

template <>
AcDbArc* sample<AcDbArc>()
{
    return new AcDbArc(AcGePoint3d(3, 3, 0), 2.0, 0.5, 2.5);
}

template <>
AcDbText* sample<AcDbText>()
{
    auto* text = new AcDbText(AcGePoint3d(1, 1, 0), L"Sample", AcDbObjectId::kNull, 2.0, 0.4);
    text->setHorizontalMode(AcDb::kTextRight);
    text->setAlignmentPoint(AcGePoint3d(8, 4, 0));
    text->adjustAlignment();
    return text;
}

template <>
AcDbMText* sample<AcDbMText>()
{
    auto* mtext = new AcDbMText();
    mtext->setLocation(AcGePoint3d(2, 2, 0));
    mtext->setTextHeight(1.5);
    mtext->setContents(L"Two\\Plines");
    return mtext;
}

template <class T>
class EntConformanceTest : public ::testing::Test {
protected:
    enttest::WorkingDatabase m_wdb;
};

using BasicEntities = ::testing::Types<AcDbLine, AcDbCircle, AcDbArc, AcDbText, AcDbMText>;
TYPED_TEST_SUITE(EntConformanceTest, BasicEntities);

TYPED_TEST(EntConformanceTest, ADefaultEntityFilesAndLists)
{
    TypeParam entity;
    const enttest::Bytes bytes = enttest::fileOut(&entity);
    TypeParam copy;
    EXPECT_EQ(enttest::fileIn(&copy, bytes), Acad::eOk);
    EXPECT_EQ(enttest::fileOut(&copy), bytes);
    EXPECT_FALSE(enttest::listOf(&entity).empty());
    EXPECT_NE(TypeParam::desc()->dxfName(), nullptr);
    EXPECT_STREQ(TypeParam::desc()->appName(), L"HeadlessHost");
    std::unique_ptr<AcRxObject> made(TypeParam::desc()->create());
    EXPECT_NE(TypeParam::cast(made.get()), nullptr);
}

TYPED_TEST(EntConformanceTest, MovingAGripByZeroChangesNothing)
{
    std::unique_ptr<TypeParam> entity(sample<TypeParam>());
    const enttest::Bytes before = enttest::fileOut(entity.get());
    AcGePoint3dArray grips;
    AcDbIntArray modes;
    AcDbIntArray ids;
    ASSERT_EQ(entity->getGripPoints(grips, modes, ids), Acad::eOk);
    ASSERT_GT(grips.length(), 0);
    for (int i = 0; i < grips.length(); ++i) {
        AcDbIntArray one;
        one.append(i);
        ASSERT_EQ(entity->moveGripPointsAt(one, AcGeVector3d(0, 0, 0)), Acad::eOk) << i;
        EXPECT_EQ(enttest::fileOut(entity.get()), before) << i;
    }
}

TYPED_TEST(EntConformanceTest, DrawEmitsPrimitivesAndHonoursAnAbort)
{
    std::unique_ptr<TypeParam> entity(sample<TypeParam>());
    entity->setColorIndex(2);
    headless::RecordingWorldDraw rec;
    EXPECT_TRUE(rec.drawDrawable(entity.get()));
    ASSERT_FALSE(rec.primitives().empty());
    for (const headless::RecordedPrimitive& prim : rec.primitives())
        EXPECT_EQ(prim.traits.color, 2) << prim;
    headless::RecordingWorldDraw aborted;
    aborted.abortNow();
    aborted.drawDrawable(entity.get());
    EXPECT_TRUE(aborted.primitives().empty());
}

TYPED_TEST(EntConformanceTest, ExtentsHoldTheStretchPoints)
{
    std::unique_ptr<TypeParam> entity(sample<TypeParam>());
    AcDbExtents extents;
    ASSERT_EQ(entity->getGeomExtents(extents), Acad::eOk);
    AcGePoint3dArray points;
    entity->getStretchPoints(points);
    if (AcDbCurve::cast(entity.get()) == nullptr)
        return;  // a text's insertion point may lie outside its glyphs
    for (int i = 0; i < points.length(); ++i)
        EXPECT_TRUE(extents.contains(points[i], 1e-9)) << points[i] << " " << extents;
}

TYPED_TEST(EntConformanceTest, UndoRestoresAnEdit)
{
    TypeParam* entity = sample<TypeParam>();
    entity->setDatabaseDefaults();
    const AcDbObjectId id = this->m_wdb.addToModelSpace(entity);
    AcDbEntity* opened = nullptr;
    ASSERT_EQ(acdbOpenAcDbEntity(opened, id, AcDb::kForRead), Acad::eOk);
    const enttest::Bytes before = enttest::fileOut(opened, this->m_wdb.db());
    opened->close();

    headless::UndoHistory& history = headless::UndoHistory::of(this->m_wdb.db());
    history.beginGroup();
    ASSERT_EQ(acdbOpenAcDbEntity(opened, id, AcDb::kForWrite), Acad::eOk);
    ASSERT_EQ(opened->transformBy(AcGeMatrix3d::translation(AcGeVector3d(10, 0, 0))), Acad::eOk);
    opened->setColorIndex(6);
    opened->close();
    history.endGroup();
    ASSERT_EQ(acdbOpenAcDbEntity(opened, id, AcDb::kForRead), Acad::eOk);
    const enttest::Bytes after = enttest::fileOut(opened, this->m_wdb.db());
    EXPECT_NE(after, before);
    opened->close();

    ASSERT_EQ(history.undo(), Acad::eOk);
    ASSERT_EQ(acdbOpenAcDbEntity(opened, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(enttest::fileOut(opened, this->m_wdb.db()), before);
    opened->close();

    // Redo files the edited state back in, exactly.
    ASSERT_EQ(history.redo(), Acad::eOk);
    ASSERT_EQ(acdbOpenAcDbEntity(opened, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(enttest::fileOut(opened, this->m_wdb.db()), after);
    opened->close();
}

}  // namespace
