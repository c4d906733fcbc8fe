// What every entity of the host promises: a default entity files and lists under its class
// names; a populated one files byte-identically and refuses a newer class version as a
// proxy; a transform and its inverse restore it; its extents hold its stretch points; a grip
// moved by zero changes nothing; the draw carries the entity's traits and stops on an
// aborted regeneration; undo restores an edit and redo re-applies it exactly.
#include <gtest/gtest.h>

#include <memory>

#include "EntTestSupport.h"
#include "dbents.h"
#include "dbhatch.h"
#include "dbmtext.h"
#include "dbpl.h"
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

template <>
AcDbPolyline* sample<AcDbPolyline>()
{
    auto* pline = new AcDbPolyline();
    pline->addVertexAt(0, AcGePoint2d(1, 1), 0.0, 0.5, 0.25);
    pline->addVertexAt(1, AcGePoint2d(6, 1), 0.6);
    pline->addVertexAt(2, AcGePoint2d(6, 5), -0.2);
    pline->addVertexAt(3, AcGePoint2d(1, 4));
    pline->setClosed(true);
    pline->setElevation(2.0);
    return pline;
}

template <>
AcDbHatch* sample<AcDbHatch>()
{
    auto* hatch = new AcDbHatch();
    hatch->setPattern(AcDbHatch::kPreDefined, L"ANSI37");
    hatch->setPatternScale(4.0);
    AcGePoint2dArray outline;
    outline.append(AcGePoint2d(0, 0));
    outline.append(AcGePoint2d(8, 0));
    outline.append(AcGePoint2d(8, 6));
    outline.append(AcGePoint2d(0, 6));
    AcGeDoubleArray bulges;
    bulges.append(0.0);
    bulges.append(0.4);
    bulges.append(0.0);
    bulges.append(0.0);
    hatch->appendLoop(AcDbHatch::kExternal, outline, bulges);
    return hatch;
}

// A text's insertion point may lie outside its glyphs, so it need not be in its extents.
bool stretchPointsLieOnTheGeometry(const AcDbEntity* entity)
{
    return AcDbText::cast(entity) == nullptr && AcDbMText::cast(entity) == nullptr;
}

template <class T>
class EntConformanceTest : public ::testing::Test {
protected:
    enttest::WorkingDatabase m_wdb;
};

using HostEntities = ::testing::Types<AcDbLine, AcDbCircle, AcDbArc, AcDbText, AcDbMText, AcDbPolyline, AcDbHatch>;
TYPED_TEST_SUITE(EntConformanceTest, HostEntities);

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
    EXPECT_EQ(acrxFindAcRxClass(TypeParam::desc()->name()), TypeParam::desc());
    std::unique_ptr<AcRxObject> made(TypeParam::desc()->create());
    EXPECT_NE(TypeParam::cast(made.get()), nullptr);
}

TYPED_TEST(EntConformanceTest, APopulatedEntityFilesByteIdenticallyAndRefusesNewerVersions)
{
    std::unique_ptr<TypeParam> entity(sample<TypeParam>());
    const enttest::Bytes bytes = enttest::fileOut(entity.get());
    TypeParam copy;
    ASSERT_EQ(enttest::fileIn(&copy, bytes), Acad::eOk);
    EXPECT_EQ(enttest::fileOut(&copy), bytes);

    // The class's own fields follow the common entity fields, its version first.
    headless::MemoryDwgFiler common(AcDb::kFileFiler);
    ASSERT_EQ(entity->AcDbEntity::dwgOutFields(&common), Acad::eOk);
    const size_t versionAt = common.bytes().size();
    ASSERT_LT(versionAt + 1, bytes.size());
    EXPECT_EQ(bytes[versionAt], 1);
    EXPECT_EQ(bytes[versionAt + 1], 0);
    enttest::Bytes newer = bytes;
    newer[versionAt] = 2;
    TypeParam target;
    EXPECT_EQ(enttest::fileIn(&target, newer), Acad::eMakeMeProxy);
}

TYPED_TEST(EntConformanceTest, ATransformAndItsInverseRestoreTheGeometry)
{
    std::unique_ptr<TypeParam> entity(sample<TypeParam>());
    AcDbExtents before;
    ASSERT_EQ(entity->getGeomExtents(before), Acad::eOk);
    const AcGeMatrix3d xform = AcGeMatrix3d::translation(AcGeVector3d(3, -2, 1)) *
                               AcGeMatrix3d::rotation(0.7, AcGeVector3d(1, 1, 2)) * AcGeMatrix3d::scaling(1.5);
    ASSERT_EQ(entity->transformBy(xform), Acad::eOk);
    ASSERT_EQ(entity->transformBy(xform.inverse()), Acad::eOk);
    AcDbExtents after;
    ASSERT_EQ(entity->getGeomExtents(after), Acad::eOk);
    EXPECT_TRUE(after.minPoint().isEqualTo(before.minPoint())) << after << " " << before;
    EXPECT_TRUE(after.maxPoint().isEqualTo(before.maxPoint())) << after << " " << before;
}

TYPED_TEST(EntConformanceTest, ExtentsHoldTheStretchPointsAndAZeroGripMoveChangesNothing)
{
    std::unique_ptr<TypeParam> entity(sample<TypeParam>());
    AcDbExtents extents;
    ASSERT_EQ(entity->getGeomExtents(extents), Acad::eOk);
    AcGePoint3dArray stretchPoints;
    ASSERT_EQ(entity->getStretchPoints(stretchPoints), Acad::eOk);
    for (int i = 0; i < stretchPoints.length() && stretchPointsLieOnTheGeometry(entity.get()); ++i)
        EXPECT_TRUE(extents.contains(stretchPoints[i], 1e-9)) << stretchPoints[i] << " " << extents;

    const enttest::Bytes before = enttest::fileOut(entity.get());
    AcGePoint3dArray grips;
    AcDbIntArray modes;
    AcDbIntArray ids;
    ASSERT_EQ(entity->getGripPoints(grips, modes, ids), Acad::eOk);
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

TYPED_TEST(EntConformanceTest, UndoRestoresAnEditAndRedoReappliesIt)
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

    ASSERT_EQ(history.redo(), Acad::eOk);
    ASSERT_EQ(acdbOpenAcDbEntity(opened, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(enttest::fileOut(opened, this->m_wdb.db()), after);
    opened->close();
}

}  // namespace
