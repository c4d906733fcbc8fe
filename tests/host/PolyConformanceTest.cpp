// What every entity promises, for the polyline and the hatch: a default entity files and
// lists under its class names; a populated one files byte-identically, refuses a newer
// version as a proxy, comes back after a transform and its inverse, keeps its grip points
// in its extents, ignores a grip moved by zero, draws with its traits, stops on an aborted
// regeneration, and is restored by undo.
#include <gtest/gtest.h>

#include <memory>

#include "EntTestSupport.h"
#include "dbhatch.h"
#include "dbpl.h"
#include "headless/RecordingWorldDraw.h"
#include "headless/UndoHistory.h"

namespace {

template <class T>
T* sample();

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

// The size of a default entity's own fields on file, from the class version on.
template <class T>
size_t ownFieldsOfDefault();

template <>
size_t ownFieldsOfDefault<AcDbPolyline>()
{
    return 2 + 4 + 1 + 1 + 8 + 8 + 8 + 24;  // version, count, flags, widths, normal
}

template <>
size_t ownFieldsOfDefault<AcDbHatch>()
{
    return 2 + 2 + 4 + 24 + 1 + 16 + 1 + 24 + 8 + 2 + 4;  // version .. loop count, empty name
}

template <class T>
class PolyConformanceTest : public ::testing::Test {
protected:
    enttest::WorkingDatabase m_wdb;
};

using PolyEntities = ::testing::Types<AcDbPolyline, AcDbHatch>;
TYPED_TEST_SUITE(PolyConformanceTest, PolyEntities);

TYPED_TEST(PolyConformanceTest, ADefaultEntityFilesAndLists)
{
    TypeParam entity;
    const enttest::Bytes bytes = enttest::fileOut(&entity);
    TypeParam copy;
    EXPECT_EQ(enttest::fileIn(&copy, bytes), Acad::eOk);
    EXPECT_EQ(enttest::fileOut(&copy), bytes);
    EXPECT_FALSE(enttest::listOf(&entity).empty());
    EXPECT_STREQ(TypeParam::desc()->appName(), L"HeadlessHost");
    std::unique_ptr<AcRxObject> made(TypeParam::desc()->create());
    EXPECT_NE(TypeParam::cast(made.get()), nullptr);
    EXPECT_NE(acrxFindAcRxClass(TypeParam::desc()->name()), nullptr);
}

TYPED_TEST(PolyConformanceTest, APopulatedEntityFilesByteIdenticallyAndRefusesNewerVersions)
{
    std::unique_ptr<TypeParam> entity(sample<TypeParam>());
    const enttest::Bytes bytes = enttest::fileOut(entity.get());
    TypeParam copy;
    ASSERT_EQ(enttest::fileIn(&copy, bytes), Acad::eOk);
    EXPECT_EQ(enttest::fileOut(&copy), bytes);
    // A default entity's own fields end its filing; their class version comes first.
    TypeParam plain;
    enttest::Bytes newer = enttest::fileOut(&plain);
    newer[newer.size() - ownFieldsOfDefault<TypeParam>()] = 9;
    TypeParam target;
    EXPECT_EQ(enttest::fileIn(&target, newer), Acad::eMakeMeProxy);
}

TYPED_TEST(PolyConformanceTest, ATransformAndItsInverseRestoreTheGeometry)
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

TYPED_TEST(PolyConformanceTest, ExtentsHoldTheGripsAndAZeroMoveChangesNothing)
{
    std::unique_ptr<TypeParam> entity(sample<TypeParam>());
    AcDbExtents extents;
    ASSERT_EQ(entity->getGeomExtents(extents), Acad::eOk);
    const enttest::Bytes before = enttest::fileOut(entity.get());
    AcGePoint3dArray grips;
    AcDbIntArray modes;
    AcDbIntArray ids;
    ASSERT_EQ(entity->getGripPoints(grips, modes, ids), Acad::eOk);
    for (int i = 0; i < grips.length(); ++i) {
        EXPECT_TRUE(extents.contains(grips[i], 1e-9)) << grips[i];
        AcDbIntArray one;
        one.append(i);
        ASSERT_EQ(entity->moveGripPointsAt(one, AcGeVector3d(0, 0, 0)), Acad::eOk);
        EXPECT_EQ(enttest::fileOut(entity.get()), before) << i;
    }
}

TYPED_TEST(PolyConformanceTest, DrawEmitsPrimitivesAndHonoursAnAbort)
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

TYPED_TEST(PolyConformanceTest, UndoRestoresAnEdit)
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
    opened->close();
    history.endGroup();
    ASSERT_EQ(acdbOpenAcDbEntity(opened, id, AcDb::kForRead), Acad::eOk);
    EXPECT_NE(enttest::fileOut(opened, this->m_wdb.db()), before);
    opened->close();

    ASSERT_EQ(history.undo(), Acad::eOk);
    ASSERT_EQ(acdbOpenAcDbEntity(opened, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(enttest::fileOut(opened, this->m_wdb.db()), before);
    opened->close();
}

}  // namespace
