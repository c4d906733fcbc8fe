// The circle opening: what it files after the circle, its list output, grips, explode,
// draw, and the title moving with it.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "FilerScript.h"
#include "ModuleTestSupport.h"
#include "dbsymtb.h"
#include "headless/RecordingDwgFiler.h"
#include "headless/TextCodec.h"
#include "openings/AecCircleOpening.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

class AecCircleOpeningTest : public ::testing::Test {
protected:
    // An opening at (100, 200) with radius 50 and a title above it.
    std::unique_ptr<AecCircleOpening> MakeOpening(const ACHAR* title = L"D1", bool visible = true)
    {
        auto opening = std::make_unique<AecCircleOpening>();
        opening->setCenter(AcGePoint3d(100, 200, 0));
        opening->setRadius(50);
        CircleOpeningData data = opening->GetData();
        data.titleLabel.SetLabel(title);
        data.titleLabel.SetVisible(visible);
        data.titleLabel.SetPosition(AcGePoint3d(100, 300, 0));
        data.titleLabel.SetHeight(100);
        EXPECT_EQ(opening->SetData(data), Acad::eOk);
        return opening;
    }

    AcDbObjectId AddTextStyle(const ACHAR* name)
    {
        AcDbTextStyleTable* styles = nullptr;
        EXPECT_EQ(working.db()->getTextStyleTable(styles, AcDb::kForWrite), Acad::eOk);
        auto* record = new AcDbTextStyleTableRecord();
        record->setName(name);
        AcDbObjectId id;
        EXPECT_EQ(styles->add(id, record), Acad::eOk);
        record->close();
        styles->close();
        return id;
    }

    qxtest::WorkingDatabase working;
};

// What the opening files after the host circle's fields.
std::vector<std::string> OwnTranscript(const AecCircleOpening& opening)
{
    headless::RecordingDwgFiler circle;
    opening.AcDbCircle::dwgOutFields(&circle);
    const auto lines = qxtest::FilingTranscript(&opening);
    return std::vector<std::string>(lines.begin() + static_cast<long>(circle.lines().size()), lines.end());
}

TEST_F(AecCircleOpeningTest, FilesItsVersionThenTheTreeAfterTheCircle)
{
    // Without a record the tree is an empty root.
    EXPECT_EQ(OwnTranscript(AecCircleOpening()), qxtest::ItemLines({1, -1001, 1, 0, 0}));

    // clang-format off
    EXPECT_EQ(OwnTranscript(*MakeOpening()), qxtest::ItemLines({
        1,                                      // class version
        -1001, 1,                               // tree header
        0, 1, L"CircleOpeningData",             // the root: no values, one child
        1, L"TextStyleId", 8, AcDbSoftPointerId(working.db()->textstyle()),
        1, L"TitleLabel",
        6, L"bVisible", 3, true, L"dir", 7, AcGeVector3d(1, 0, 0), L"extension", 2, L"", L"height", 1, 100.0,
        L"label", 2, L"D1", L"pos", 5, AcGePoint3d(100, 300, 0),
        0,                                      // the label has no children
    }));
    // clang-format on
}

TEST_F(AecCircleOpeningTest, ListsCentreTitleAndStyle)
{
    const AcDbObjectId own = AddTextStyle(L"Quarvo");
    const struct {
        const char* what;
        const ACHAR* title;
        bool visible;
        AcDbObjectId style;
        const wchar_t* fallback;  // a "_Standard" style to fall back on, or null
        std::wstring tail;
    } rows[] = {
        {"its own style", L"D1", true, own, nullptr, L"\n标题: 显示，\"D1\"\n文字样式: Quarvo"},
        {"no style: the current one", L"", false, AcDbObjectId::kNull, nullptr,
         L"\n标题: 隐藏，\"\"\n文字样式: Standard（默认兜底）"},
        {"no style: \"_Standard\" first", L"D2", true, AcDbObjectId::kNull, L"_Standard",
         L"\n标题: 显示，\"D2\"\n文字样式: _Standard（默认兜底）"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        if (row.fallback != nullptr)
            AddTextStyle(row.fallback);
        auto opening = MakeOpening(row.title, row.visible);
        CircleOpeningData data = opening->GetData();
        data.textStyleId = row.style;
        opening->SetData(data);
        const std::wstring expected = L"\n圆形洞口: 圆心 (100.00, 200.00, 0.00)，半径 50.00，直径 100.00" + row.tail;
        const std::wstring output = qxtest::ListOutput(opening.get());
        ASSERT_GE(output.size(), expected.size());
        EXPECT_EQ(output.substr(output.size() - expected.size()), expected) << headless::toUtf8(output);
    }
}

std::vector<AcGePoint3d> GripPoints(const AecCircleOpening& opening, std::vector<Adesk::IntPtr>* appData = nullptr)
{
    AcDbGripDataPtrArray grips;
    EXPECT_EQ(opening.getGripPoints(grips, 1.0, 5, AcGeVector3d::kZAxis, 0), Acad::eOk);
    std::vector<AcGePoint3d> points;
    for (AcDbGripData* grip : grips) {
        points.push_back(grip->gripPoint());
        if (appData != nullptr)
            appData->push_back(reinterpret_cast<Adesk::IntPtr>(grip->appData()));
        delete grip;
    }
    return points;
}

TEST_F(AecCircleOpeningTest, FiveGripsOnTheCirclesAxes)
{
    const struct {
        const char* what;
        AcGeVector3d normal;
        AcGePoint3d plusU, plusV;
    } rows[] = {
        {"up", AcGeVector3d::kZAxis, {150, 200, 0}, {100, 250, 0}},
        {"down: still X and Y", AcGeVector3d(0, 0, -1), {150, 200, 0}, {100, 250, 0}},
        {"tilted: u = normal x Z, v = normal x u", AcGeVector3d(1, 0, 0), {100, 150, 0}, {100, 200, -50}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        auto opening = MakeOpening();
        opening->setNormal(row.normal);
        std::vector<Adesk::IntPtr> appData;
        const std::vector<AcGePoint3d> points = GripPoints(*opening, &appData);
        ASSERT_EQ(points.size(), 5u);
        const AcGePoint3d c(100, 200, 0);
        const AcGePoint3d expected[] = {c, row.plusU, row.plusV, c - (row.plusU - c), c - (row.plusV - c)};
        for (std::size_t i = 0; i < 5; ++i) {
            EXPECT_TRUE(qxtest::Near(points[i], expected[i])) << "grip " << i;
            EXPECT_EQ(appData[i], static_cast<Adesk::IntPtr>(i));
        }
    }

    // The point forms are refused so that the host takes the grip-data forms.
    auto opening = MakeOpening();
    AcGePoint3dArray points;
    AcDbIntArray modes;
    AcDbIntArray ids;
    EXPECT_EQ(opening->getGripPoints(points, modes, ids), Acad::eNotImplementedYet);
    EXPECT_EQ(opening->moveGripPointsAt(AcDbIntArray(), AcGeVector3d(1, 0, 0)), Acad::eNotImplementedYet);
}

TEST_F(AecCircleOpeningTest, GripMoves)
{
    const struct {
        const char* what;
        std::vector<Adesk::IntPtr> grips;
        AcGeVector3d offset;
        AcGePoint3d center, title;
        double radius;
    } rows[] = {
        {"a side grip onto the centre: the smallest radius, not 0",
         {1},
         {-50, 0, 0},
         {100, 200, 0},
         {100, 300, 0},
         1e-6},
        {"a side grip outwards: its new distance", {3}, {-30, 0, 0}, {100, 200, 0}, {100, 300, 0}, 80},
        {"the bottom grip downwards", {4}, {0, -70, 0}, {100, 200, 0}, {100, 300, 0}, 120},
        {"the centre: everything moves, title too", {0, 1}, {10, 20, 0}, {110, 220, 0}, {110, 320, 0}, 50},
        {"by zero: nothing", {1}, {0, 0, 0}, {100, 200, 0}, {100, 300, 0}, 50},
        {"no grip: nothing", {}, {1, 0, 0}, {100, 200, 0}, {100, 300, 0}, 50},
        {"an unknown grip: nothing", {7}, {1, 0, 0}, {100, 200, 0}, {100, 300, 0}, 50},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        auto opening = MakeOpening();
        AcDbVoidPtrArray which;
        for (Adesk::IntPtr grip : row.grips)
            which.append(reinterpret_cast<void*>(grip));
        ASSERT_EQ(opening->moveGripPointsAt(which, row.offset, 0), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(opening->center(), row.center));
        EXPECT_NEAR(opening->radius(), row.radius, 1e-9);
        EXPECT_TRUE(qxtest::Near(opening->GetData().titleLabel.GetPosition(), row.title));
    }
}

TEST_F(AecCircleOpeningTest, ExplodesIntoTheCircleAndTheVisibleTitle)
{
    const struct {
        const char* what;
        const ACHAR* title;
        bool visible;
        int count;
    } rows[] = {
        {"visible title", L"D1", true, 2},
        {"hidden title", L"D1", false, 1},
        {"visible but empty title", L"", true, 1},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        auto created = MakeOpening(row.title, row.visible);
        created->setColorIndex(3);
        AecCircleOpening* opening = nullptr;
        ASSERT_EQ(acdbOpenObject(opening, working.Add(created.release()), AcDb::kForRead), Acad::eOk);
        AcDbVoidPtrArray pieces;
        ASSERT_EQ(opening->explode(pieces), Acad::eOk);
        opening->close();
        ASSERT_EQ(pieces.length(), row.count);
        std::unique_ptr<AcDbEntity> circle(static_cast<AcDbEntity*>(pieces[0]));
        ASSERT_EQ(circle->isA(), AcDbCircle::desc());
        EXPECT_EQ(AcDbCircle::cast(circle.get())->radius(), 50);
        EXPECT_EQ(circle->colorIndex(), 3);
        if (row.count == 2) {
            std::unique_ptr<AcDbMText> title(AcDbMText::cast(static_cast<AcDbEntity*>(pieces[1])));
            ASSERT_NE(title, nullptr);
            EXPECT_EQ(title->attachment(), AcDbMText::kMiddleCenter);
            EXPECT_TRUE(qxtest::Near(title->location(), AcGePoint3d(100, 300, 0)));
        }
    }
}

TEST_F(AecCircleOpeningTest, DrawsTheCircleThenTheTitle)
{
    AecCircleOpening* opening = nullptr;
    ASSERT_EQ(acdbOpenObject(opening, working.Add(MakeOpening(L"D1").release()), AcDb::kForRead), Acad::eOk);
    const auto primitives = qxtest::Draw(opening);
    opening->close();
    ASSERT_EQ(primitives.size(), 2u);
    EXPECT_EQ(primitives[0].kind, headless::PrimitiveKind::kCircle);
    EXPECT_TRUE(qxtest::Near(primitives[0].points[0], AcGePoint3d(100, 200, 0)));
    EXPECT_EQ(primitives[1].kind, headless::PrimitiveKind::kText);
    EXPECT_EQ(primitives[1].text, L"D1");
}

TEST_F(AecCircleOpeningTest, TheTitleMovesTurnsAndScalesWithTheCircle)
{
    auto opening = MakeOpening();
    const AcGePoint3d c(100, 200, 0);
    const AcGeMatrix3d turnGrowMove = AcGeMatrix3d::translation(AcGeVector3d(5, 5, 0)) * AcGeMatrix3d::scaling(2.0, c) *
        AcGeMatrix3d::rotation(kPi / 2, AcGeVector3d::kZAxis, c);
    ASSERT_EQ(opening->transformBy(turnGrowMove), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(opening->center(), AcGePoint3d(105, 205, 0)));
    EXPECT_NEAR(opening->radius(), 100, 1e-9);
    const TextBaseLabel title = opening->GetData().titleLabel;
    EXPECT_TRUE(qxtest::Near(title.GetPosition(), AcGePoint3d(-95, 205, 0), 1e-9));
    EXPECT_TRUE(qxtest::Near(title.GetTextDirX(), AcGeVector3d(0, 2, 0), 1e-9));
    EXPECT_NEAR(title.GetHeight(), 200, 1e-9);
}

TEST_F(AecCircleOpeningTest, ATitleThatIsNotFiniteIsRefused)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    auto opening = MakeOpening();
    const std::vector<std::string> before = OwnTranscript(*opening);
    for (int field = 0; field < 3; ++field) {
        CircleOpeningData data = opening->GetData();
        if (field == 0)
            data.titleLabel.SetPosition(AcGePoint3d(nan, 0, 0));
        else if (field == 1)
            data.titleLabel.SetHeight(std::numeric_limits<double>::infinity());
        else
            data.titleLabel.SetTextDirX(AcGeVector3d(0, nan, 0));
        EXPECT_EQ(opening->SetData(data), Acad::eInvalidInput) << field;
    }
    EXPECT_EQ(OwnTranscript(*opening), before);
}

}  // namespace
