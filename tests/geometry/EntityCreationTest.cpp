// Entity creation helpers: adding to the current space and making sure the dashed
// linetype exists.
#include <gtest/gtest.h>

#include "ModuleTestSupport.h"
#include "Qx/LinetypeUtil.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "geometry/EntityCreation.h"
#include "headless/CommandLine.h"

namespace {

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

TEST(EntityCreationTest, AddsToTheCurrentSpaceWithLinetypeScaleOne)
{
    qxtest::WorkingDatabase working;
    auto* line = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(10, 0, 0));
    line->setLinetypeScale(5.0);
    ASSERT_EQ(AddToCurrentSpace(line), Acad::eOk);
    EXPECT_EQ(line->database(), working.db());
    EXPECT_EQ(line->ownerId(), working.db()->currentSpaceId());
    EXPECT_EQ(line->linetypeScale(), 1.0);
    line->close();
}

TEST(EntityCreationTest, ASpaceThatCannotBeOpenedLeavesTheEntityAlone)
{
    qxtest::WorkingDatabase working;
    AcDbBlockTableRecord* busy = nullptr;
    ASSERT_EQ(acdbOpenObject(busy, working.db()->currentSpaceId(), AcDb::kForWrite), Acad::eOk);
    AcDbLine line(AcGePoint3d(0, 0, 0), AcGePoint3d(10, 0, 0));
    line.setLinetypeScale(5.0);
    EXPECT_EQ(AddToCurrentSpace(&line, working.db()), Acad::eInvalidInput);
    EXPECT_EQ(line.linetypeScale(), 5.0);
    EXPECT_EQ(line.database(), nullptr);
    busy->close();
}

TEST(EntityCreationTest, AFailedAppendIsReportedAndStillScaled)
{
    qxtest::WorkingDatabase working;
    auto* line = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(10, 0, 0));
    ASSERT_EQ(AddToCurrentSpace(line), Acad::eOk);  // still open for write
    line->setLinetypeScale(3.0);
    headless::CommandLineCapture capture;
    const Acad::ErrorStatus es = AddToCurrentSpace(line);
    EXPECT_EQ(es, Acad::eAlreadyInDb);
    AcString expected;
    expected.format(L"\nERROR: could not add entity to current space (%d)", static_cast<int>(es));
    EXPECT_EQ(capture.text(), expected.wstr());
    EXPECT_EQ(line->linetypeScale(), 1.0);
    line->close();
}

TEST(EntityCreationTest, EnsuresTheDashedLinetypeOnce)
{
    qxtest::WorkingDatabase working;
    EXPECT_FALSE(Qx::LinetypeUtil::GetLinetype(L"DASHED", working.db()).isValid());
    EnsureDashedLinetype(working.db());
    const AcDbObjectId dashed = Qx::LinetypeUtil::GetLinetype(L"DASHED", working.db());
    ASSERT_TRUE(dashed.isValid());
    EnsureDashedLinetype(working.db());
    EXPECT_EQ(Qx::LinetypeUtil::GetLinetype(L"DASHED", working.db()), dashed);
    EnsureDashedLinetype(nullptr);  // nothing to do, nothing to break
}

}  // namespace
