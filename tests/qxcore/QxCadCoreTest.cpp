// The maker's utility library: number text, angles, the uninitialised point, look-ups by
// name, linetype loading, polyline construction and drawing.
#include <gtest/gtest.h>

#include <memory>

#include "ModuleTestSupport.h"
#include "Qx/ConvertUtil.h"
#include "Qx/DimStyleUtil.h"
#include "Qx/GePointUtil.h"
#include "Qx/LinetypeUtil.h"
#include "Qx/MathUtil.h"
#include "Qx/PolylineUtil.h"
#include "Qx/TextStyleUtil.h"
#include "Qx/WorldDrawUtil.h"
#include "dbpl.h"
#include "dbsymtb.h"
#include "headless/RecordingWorldDraw.h"

namespace {

TEST(ConvertUtilTest, NumbersAsText)
{
    struct Row {
        double value;
        int decimals;
        const wchar_t* fixed;
        const wchar_t* trimmed;
    };
    const Row rows[] = {
        {1.5, 2, L"1.50", L"1.5"},
        {-0.001, 2, L"0.00", L"0"},  // no negative zero
        {-0.004, 3, L"-0.004", L"-0.004"},
        {100.0, 0, L"100", L"100"},
        {2.0 / 3.0, 3, L"0.667", L"0.667"},
        {1200.0, 2, L"1200.00", L"1200"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(Qx::ConvertUtil::ToString(row.value, row.decimals), AcString(row.fixed)) << row.value;
        EXPECT_EQ(Qx::ConvertUtil::ToTrimmedString(row.value, row.decimals), AcString(row.trimmed)) << row.value;
    }
    EXPECT_EQ(Qx::ConvertUtil::ToString(-42), AcString(L"-42"));
    EXPECT_EQ(Qx::ConvertUtil::ToPoint2d(AcGePoint3d(1, 2, 3)), AcGePoint2d(1, 2));
    EXPECT_EQ(Qx::ConvertUtil::ToPoint3d(AcGePoint2d(1, 2), 4), AcGePoint3d(1, 2, 4));
}

TEST(MathUtilTest, TolerancesAndAngles)
{
    EXPECT_TRUE(Qx::MathUtil::IsZero(1e-7));
    EXPECT_FALSE(Qx::MathUtil::IsZero(1e-5));
    EXPECT_TRUE(Qx::MathUtil::IsEqual(1.0, 1.0 + 5e-7));
    EXPECT_FALSE(Qx::MathUtil::IsFinite(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_NEAR(Qx::MathUtil::NormalizeAngle(-Qx::MathUtil::kPi / 2), 1.5 * Qx::MathUtil::kPi, 1e-12);
    EXPECT_NEAR(Qx::MathUtil::NormalizeAngle(5 * Qx::MathUtil::kPi), Qx::MathUtil::kPi, 1e-12);
    EXPECT_EQ(Qx::MathUtil::NormalizeAngle(std::numeric_limits<double>::infinity()), 0.0);
    EXPECT_EQ(Qx::MathUtil::Clamp(5000, -1000, 1000), 1000);
    EXPECT_NEAR(Qx::MathUtil::DegreesToRadians(180), Qx::MathUtil::kPi, 1e-15);
}

TEST(GePointUtilTest, TheMarkerIsNoRealPoint)
{
    EXPECT_TRUE(Qx::GePointUtil::IsUninitialized(Qx::GePointUtil::kUninitializedPoint));
    EXPECT_FALSE(Qx::GePointUtil::IsUninitialized(AcGePoint3d::kOrigin));
    EXPECT_FALSE(Qx::GePointUtil::IsUninitialized(AcGePoint3d(1e300, 1e300, 1e300)));
}

TEST(SymbolUtilTest, StylesAndLinetypesByName)
{
    qxtest::WorkingDatabase working;
    EXPECT_EQ(Qx::TextStyleUtil::GetAt(L"Standard"), working.db()->textstyle());
    EXPECT_EQ(Qx::TextStyleUtil::GetAt(L"standard", working.db()), working.db()->textstyle());
    EXPECT_TRUE(Qx::TextStyleUtil::GetAt(L"_Standard").isNull());
    EXPECT_TRUE(Qx::TextStyleUtil::GetAt(L"").isNull());
    EXPECT_EQ(Qx::DimStyleUtil::GetAt(L"Standard"), working.db()->dimstyle());
    EXPECT_TRUE(Qx::DimStyleUtil::GetAt(L"None").isNull());
    EXPECT_EQ(Qx::LinetypeUtil::GetLinetype(L"Continuous"), working.db()->continuousLinetype());

    EXPECT_TRUE(Qx::LinetypeUtil::GetLinetype(L"HIDDEN").isNull());
    EXPECT_EQ(Qx::LinetypeUtil::LoadSystemLinetype(L"HIDDEN"), Acad::eOk);
    const AcDbObjectId hidden = Qx::LinetypeUtil::GetLinetype(L"HIDDEN");
    ASSERT_TRUE(hidden.isValid());
    EXPECT_EQ(Qx::LinetypeUtil::LoadSystemLinetype(L"HIDDEN"), Acad::eOk);  // already there
    EXPECT_NE(Qx::LinetypeUtil::LoadSystemLinetype(L"NO_SUCH_LINETYPE"), Acad::eOk);

    // The standard file is the metric one: dashes are in millimetres.
    AcDbLinetypeTableRecord* record = nullptr;
    ASSERT_EQ(acdbOpenObject(record, hidden, AcDb::kForRead), Acad::eOk);
    EXPECT_GT(record->patternLength(), 5.0);
    record->close();
}

TEST(PolylineUtilTest, BuildsAndDrawsPolylines)
{
    std::unique_ptr<AcDbPolyline> square(Qx::PolylineUtil::CreatePolyline(
        {AcGePoint2d(0, 0), AcGePoint2d(10, 0), AcGePoint2d(10, 10), AcGePoint2d(0, 10)}, {0, 1}, true));
    ASSERT_EQ(square->numVerts(), 4u);
    EXPECT_TRUE(square->isClosed());
    double bulge = 0;
    square->getBulgeAt(1, bulge);
    EXPECT_EQ(bulge, 1);
    square->getBulgeAt(2, bulge);
    EXPECT_EQ(bulge, 0);

    std::unique_ptr<AcDbPolyline> segment(
        Qx::PolylineUtil::CreateSegment(AcGePoint3d(1, 2, 0), AcGePoint3d(5, 2, 0), -0.5));
    ASSERT_EQ(segment->numVerts(), 2u);
    EXPECT_FALSE(segment->isClosed());
    segment->getBulgeAt(0, bulge);
    EXPECT_EQ(bulge, -0.5);

    headless::RecordingWorldDraw draw;
    EXPECT_FALSE(Qx::WorldDrawUtil::DrawPolyline(&draw, square.get()));
    ASSERT_EQ(draw.primitives().size(), 1u);
    EXPECT_EQ(draw.primitives()[0].kind, headless::PrimitiveKind::kPline);
    EXPECT_FALSE(Qx::WorldDrawUtil::DrawPolyline(&draw, nullptr));
    EXPECT_EQ(draw.primitives().size(), 1u);
}

}  // namespace
