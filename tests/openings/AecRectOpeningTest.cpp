// The rectangular opening: its frame and anchor types, the size rules, the edge grips and
// their minimum, curve edits, mirroring, the dimensions it draws and explodes, its list
// output and its filing.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

#include "ModuleTestSupport.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "geplane.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/RecordingDwgFiler.h"
#include "headless/RecordingWorldDraw.h"
#include "headless/TextCodec.h"
#include "openings/AecRectOpening.h"
#include "rxregsvc.h"

namespace {

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

using Corners = std::vector<AcGePoint3d>;

Corners CornersOf(const AecRectOpening& opening)
{
    Corners corners;
    const AcDbPolyline* rectangle = opening.GetCurveBaseConstPolyline();
    for (unsigned int i = 0; i < rectangle->numVerts(); ++i) {
        AcGePoint3d p;
        rectangle->getPointAt(i, p);
        corners.push_back(p);
    }
    return corners;
}

::testing::AssertionResult SameCorners(const Corners& actual, const Corners& expected)
{
    if (actual.size() != expected.size())
        return ::testing::AssertionFailure() << actual.size() << " corners instead of " << expected.size();
    for (std::size_t i = 0; i < actual.size(); ++i) {
        if (!qxtest::Near(actual[i], expected[i], 1e-9))
            return ::testing::AssertionFailure()
                << "corner " << i << ": " << qxtest::Near(actual[i], expected[i]).message();
    }
    return ::testing::AssertionSuccess();
}

std::wstring Tail(const std::wstring& text, std::size_t lines)
{
    std::size_t at = text.size();
    for (std::size_t i = 0; i < lines && at != std::wstring::npos; ++i)
        at = at == 0 ? std::wstring::npos : text.rfind(L'\n', at - 1);
    return at == std::wstring::npos ? text : text.substr(at);
}

class AecRectOpeningTest : public ::testing::Test {
protected:
    // A 600 x 400 opening with its bottom-left corner at the origin.
    static std::unique_ptr<AecRectOpening> MakeOpening()
    {
        auto opening = std::make_unique<AecRectOpening>();
        opening->Set(AcGePoint3d::kOrigin, 600, 400);
        return opening;
    }

    // Moves the grip with the given place in the hand-out (0 whole opening, 1-4 the edges
    // bottom, right, top, left) and lets the grips go as the host does.
    static void MoveGrip(AecRectOpening& opening, int grip, const AcGeVector3d& offset)
    {
        AcDbGripDataPtrArray grips;
        ASSERT_EQ(opening.getGripPoints(grips, 1.0, 5, AcGeVector3d::kZAxis, 0), Acad::eOk);
        ASSERT_EQ(grips.length(), 5);
        AcDbVoidPtrArray hot;
        hot.append(grips[grip]->appData());
        EXPECT_EQ(opening.moveGripPointsAt(hot, offset, 0), Acad::eOk);
        opening.gripStatus(AcDb::kGripsToBeDeleted);
        for (AcDbGripData* data : grips)
            delete data;
    }

    // A dimension style of a drawing in millimetres at 1:100.
    AcDbObjectId AddMetricDimStyle(const ACHAR* name)
    {
        AcDbDimStyleTable* table = nullptr;
        EXPECT_EQ(working.db()->getDimStyleTable(table, AcDb::kForWrite), Acad::eOk);
        auto* style = new AcDbDimStyleTableRecord();
        style->setName(name);
        style->setDimscale(100);
        style->setDimtxt(2.5);
        style->setDimasz(2.5);
        style->setDimexo(0.625);
        style->setDimexe(1.25);
        style->setDimgap(0.625);
        style->setDimdec(0);
        AcDbObjectId id;
        EXPECT_EQ(table->add(id, style), Acad::eOk);
        style->close();
        table->close();
        return id;
    }

    AcDbObjectId AddTextStyle(const ACHAR* name)
    {
        AcDbTextStyleTable* table = nullptr;
        EXPECT_EQ(working.db()->getTextStyleTable(table, AcDb::kForWrite), Acad::eOk);
        auto* style = new AcDbTextStyleTableRecord();
        style->setName(name);
        AcDbObjectId id;
        EXPECT_EQ(table->add(id, style), Acad::eOk);
        style->close();
        table->close();
        return id;
    }

    qxtest::WorkingDatabase working;
};

TEST_F(AecRectOpeningTest, ADefaultOpeningIsASquareTitledOneTextHeightBelowItsBottomEdge)
{
    AecRectOpening opening;
    EXPECT_EQ(opening.GetAnchorPosType(), AecRectOpening::kBottomLeft);
    EXPECT_EQ(opening.GetWidth(), 1000);
    EXPECT_EQ(opening.GetHeight(), 1000);
    EXPECT_TRUE(SameCorners(CornersOf(opening), {{0, 0, 0}, {1000, 0, 0}, {1000, 1000, 0}, {0, 1000, 0}}));
    EXPECT_TRUE(opening.GetCurveBaseConstPolyline()->isClosed());

    const TextBaseLabel title = opening.GetTitleLabel();
    EXPECT_EQ(title.GetLabel(), AcString(L"洞口"));
    EXPECT_TRUE(title.IsVisible());
    EXPECT_EQ(title.GetHeight(), 150);
    EXPECT_TRUE(qxtest::Near(title.GetPosition(), AcGePoint3d(0, -150, 0)));
    EXPECT_TRUE(qxtest::Near(title.GetTextDirX(), AcGeVector3d(1, 0, 0)));

    // The title reads from below the bottom-left corner, its middle 150 below the edge:
    // the text's baseline is half a text height lower.
    const auto drawn = qxtest::Draw(&opening);
    ASSERT_EQ(drawn.size(), 2u);
    EXPECT_EQ(drawn[0].kind, headless::PrimitiveKind::kPline);
    EXPECT_EQ(drawn[0].points.size(), 4u);
    EXPECT_EQ(drawn[1].kind, headless::PrimitiveKind::kText);
    EXPECT_EQ(drawn[1].text, L"洞口");
    EXPECT_TRUE(qxtest::Near(drawn[1].points[0], AcGePoint3d(0, -225, 0), 1e-9));
    EXPECT_EQ(drawn[1].numbers[0], 150);
}

TEST_F(AecRectOpeningTest, ANewAnchorTypeMovesTheAnchorAndKeepsTheRectangle)
{
    struct Row {
        const char* what;
        AcGeVector3d dirX;
        AecRectOpening::AnchorPosType type;
        AcGePoint3d anchor;
    };
    const Row rows[] = {
        {"centre", {1, 0, 0}, AecRectOpening::kCenter, {300, 200, 0}},
        {"top-left", {1, 0, 0}, AecRectOpening::kTopLeft, {0, 400, 0}},
        {"middle-right", {1, 0, 0}, AecRectOpening::kMiddleRight, {600, 200, 0}},
        {"bottom-centre", {1, 0, 0}, AecRectOpening::kBottomCenter, {300, 0, 0}},
        {"top-right", {1, 0, 0}, AecRectOpening::kTopRight, {600, 400, 0}},
        // Turned a quarter: u = +Y, v = -X, so "top" lies towards -X.
        {"top-centre, turned", {0, 5, 0}, AecRectOpening::kTopCenter, {-400, 300, 0}},
        {"unknown: bottom-left corner", {1, 0, 0}, static_cast<AecRectOpening::AnchorPosType>(42), {0, 0, 0}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        auto opening = MakeOpening();
        ASSERT_EQ(opening->SetDirX(row.dirX), Acad::eOk);
        const Corners before = CornersOf(*opening);
        opening->SetAnchorPosType(row.type);
        EXPECT_EQ(opening->GetAnchorPosType(), row.type);
        EXPECT_TRUE(qxtest::Near(opening->GetAnchorPoint(), row.anchor, 1e-9));
        EXPECT_TRUE(SameCorners(CornersOf(*opening), before));
    }
}

TEST_F(AecRectOpeningTest, SizesMustBePositiveAndNothingChangesWhenTheyAreNot)
{
    struct Row {
        const char* what;
        void (*set)(AecRectOpening&);
        const char* message;
    };
    const Row rows[] = {
        {"zero width", [](AecRectOpening& o) { o.SetWidth(0); }, "Width must be positive"},
        {"negative height", [](AecRectOpening& o) { o.SetHeight(-5); }, "Height must be positive"},
        {"both at once, height bad", [](AecRectOpening& o) { o.Set(AcGePoint3d(7, 7, 0), 100, 0); },
         "Height must be positive"},
        {"NaN width", [](AecRectOpening& o) { o.SetWidth(std::numeric_limits<double>::quiet_NaN()); },
         "Width must be positive"},
        {"infinite height", [](AecRectOpening& o) { o.SetHeight(HUGE_VAL); }, "Height must be finite"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        auto opening = MakeOpening();
        const qxtest::Bytes before = qxtest::FileOut(opening.get(), working.db());
        try {
            row.set(*opening);
            ADD_FAILURE() << "no exception";
        } catch (const std::invalid_argument& e) {
            EXPECT_STREQ(e.what(), row.message);
        }
        EXPECT_EQ(qxtest::FileOut(opening.get(), working.db()), before);
    }
}

TEST_F(AecRectOpeningTest, GripsMoveTheOpeningOrOneEdgeAndKeepTheMinimumSize)
{
    {
        auto opening = MakeOpening();
        AcDbGripDataPtrArray grips;
        ASSERT_EQ(opening->getGripPoints(grips, 1.0, 5, AcGeVector3d::kZAxis, 0), Acad::eOk);
        const AcGePoint3d expected[] = {{300, 200, 0}, {300, 0, 0}, {600, 200, 0}, {300, 400, 0}, {0, 200, 0}};
        ASSERT_EQ(grips.length(), 5);
        // Each grip says what its application data is: the grip object's runtime class.
        const AcRxClass* gripClass = acrxFindAcRxClass(L"OpeningGripData");
        ASSERT_NE(gripClass, nullptr);
        for (int i = 0; i < 5; ++i) {
            EXPECT_TRUE(qxtest::Near(grips[i]->gripPoint(), expected[i])) << "grip " << i;
            EXPECT_EQ(grips[i]->appDataAcRxClass(), gripClass);
        }
        opening->gripStatus(AcDb::kGripsToBeDeleted);
        for (AcDbGripData* grip : grips)
            delete grip;
    }

    struct Row {
        const char* what;
        AecRectOpening::AnchorPosType type;
        int grip;
        AcGeVector3d offset;
        double width;
        double height;
        AcGePoint3d bottomLeft;
        AcGePoint3d anchor;
    };
    const auto kBL = AecRectOpening::kBottomLeft;
    const Row rows[] = {
        {"the whole opening", kBL, 0, {10, 20, 0}, 600, 400, {10, 20, 0}, {10, 20, 0}},
        {"top edge down to the minimum", kBL, 3, {0, -300, 0}, 600, 100, {0, 0, 0}, {0, 0, 0}},
        {"top edge below the minimum: refused", kBL, 3, {0, -301, 0}, 600, 400, {0, 0, 0}, {0, 0, 0}},
        {"top edge past the bottom: refused", kBL, 3, {0, -900, 0}, 600, 400, {0, 0, 0}, {0, 0, 0}},
        {"bottom edge up", kBL, 1, {0, 250, 0}, 600, 150, {0, 250, 0}, {0, 250, 0}},
        {"right edge out, slanted drag", kBL, 2, {150, 80, 0}, 750, 400, {0, 0, 0}, {0, 0, 0}},
        {"left edge in", kBL, 4, {450, 0, 0}, 150, 400, {450, 0, 0}, {450, 0, 0}},
        {"a drag along the edge changes nothing", kBL, 3, {200, 0, 0}, 600, 400, {0, 0, 0}, {0, 0, 0}},
        {"the centre anchor follows the edge",
         AecRectOpening::kCenter,
         3,
         {0, 200, 0},
         600,
         600,
         {0, 0, 0},
         {300, 300, 0}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        auto opening = MakeOpening();
        opening->SetAnchorPosType(row.type);
        MoveGrip(*opening, row.grip, row.offset);
        EXPECT_NEAR(opening->GetWidth(), row.width, 1e-9);
        EXPECT_NEAR(opening->GetHeight(), row.height, 1e-9);
        EXPECT_TRUE(qxtest::Near(opening->GetBottomLeftPoint(), row.bottomLeft, 1e-9));
        EXPECT_TRUE(qxtest::Near(opening->GetAnchorPoint(), row.anchor, 1e-9));
        EXPECT_TRUE(
            qxtest::Near(opening->GetTitleLabel().GetPosition(), row.bottomLeft + AcGeVector3d(0, -150, 0), 1e-9));
    }
}

TEST_F(AecRectOpeningTest, TheTopEdgeOfAThousandHighOpeningStopsAtAHundred)
{
    AecRectOpening opening;
    MoveGrip(opening, 3, AcGeVector3d(0, -950, 0));
    EXPECT_EQ(opening.GetHeight(), 1000);
    MoveGrip(opening, 3, AcGeVector3d(0, -900, 0));
    EXPECT_NEAR(opening.GetHeight(), 100, 1e-9);
}

// A curve edit hands the rectangle back: the anchor is its new start point, whatever the
// type, and the height is measured from corner 1 to corner 3, across the diagonal.
TEST_F(AecRectOpeningTest, ACurveEditTakesTheStartPointAndTheDiagonalAsHeight)
{
    auto opening = MakeOpening();
    ASSERT_EQ(opening->reverseCurve(), Acad::eOk);
    // Reversed: (0, 400), (600, 400), (600, 0), (0, 0).
    EXPECT_TRUE(qxtest::Near(opening->GetAnchorPoint(), AcGePoint3d(0, 400, 0)));
    EXPECT_NEAR(opening->GetWidth(), 600, 1e-9);
    EXPECT_NEAR(opening->GetHeight(), std::sqrt(600.0 * 600.0 + 400.0 * 400.0), 1e-9);
    EXPECT_TRUE(qxtest::Near(opening->GetDirX(), AcGeVector3d(600, 0, 0)));
    const double top = 400 + std::sqrt(520000.0);
    EXPECT_TRUE(SameCorners(CornersOf(*opening), {{0, 400, 0}, {600, 400, 0}, {600, top, 0}, {0, top, 0}}));
}

TEST_F(AecRectOpeningTest, AMirrorKeepsTheOpeningUprightAndItsAnchorType)
{
    struct Row {
        const char* what;
        AcGePlane mirror;
        AcGePoint3d bottomLeft;
        AcGeVector3d dirX;
    };
    const Row rows[] = {
        {"left to right", AcGePlane(AcGePoint3d::kOrigin, AcGeVector3d::kXAxis), {-600, 0, 0}, {1, 0, 0}},
        {"top to bottom", AcGePlane(AcGePoint3d::kOrigin, AcGeVector3d::kYAxis), {0, -400, 0}, {1, 0, 0}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        auto opening = MakeOpening();
        ASSERT_EQ(opening->transformBy(AcGeMatrix3d::mirroring(row.mirror)), Acad::eOk);
        EXPECT_EQ(opening->GetAnchorPosType(), AecRectOpening::kBottomLeft);
        EXPECT_TRUE(qxtest::Near(opening->GetBottomLeftPoint(), row.bottomLeft, 1e-9));
        EXPECT_TRUE(qxtest::Near(opening->GetDirX().normal(), row.dirX, 1e-12));
        EXPECT_NEAR(opening->GetWidth(), 600, 1e-9);
        EXPECT_NEAR(opening->GetHeight(), 400, 1e-9);
    }
    // A scale grows the title with the opening.
    auto opening = MakeOpening();
    ASSERT_EQ(opening->transformBy(AcGeMatrix3d::scaling(2.0)), Acad::eOk);
    EXPECT_NEAR(opening->GetTitleLabel().GetHeight(), 300, 1e-9);
    EXPECT_TRUE(qxtest::Near(opening->GetTitleLabel().GetPosition(), AcGePoint3d(0, -300, 0), 1e-9));
    // A matrix that flattens the opening is refused.
    EXPECT_EQ(opening->transformBy(AcGeMatrix3d::scaling(0.0)), Acad::eInvalidInput);
    EXPECT_NEAR(opening->GetWidth(), 1200, 1e-9);
}

// With a drawing's dimension style at 1:100 (text 250, ticks 250, extension lines from
// 62.5 off the corners to 125 past the dimension line, gap 62.5, no decimals), the
// dimension lines lie 62.5 + 2 x 250 = 562.5 outside the top and the left edge.
TEST_F(AecRectOpeningTest, DimensionsAreDrawnAndExplodedAsTheStyleSays)
{
    const AcDbObjectId dimStyle = AddMetricDimStyle(L"QX-1-100");
    AecRectOpening* created = MakeOpening().release();
    created->SetDimStyleId(dimStyle);
    created->SetIsShowDim(true);
    created->setColorIndex(4);
    const AcDbObjectId id = working.Add(created);
    AecRectOpening* opening = nullptr;
    ASSERT_EQ(acdbOpenObject(opening, id, AcDb::kForRead), Acad::eOk);

    AcDbVoidPtrArray pieces;
    ASSERT_EQ(opening->explode(pieces), Acad::eOk);
    struct Line {
        AcGePoint3d from;
        AcGePoint3d to;
    };
    const double t = 125 / std::sqrt(2.0);  // half a tick along each axis
    const Line widthLines[] = {
        {{0, 462.5, 0}, {0, 1087.5, 0}},
        {{600, 462.5, 0}, {600, 1087.5, 0}},
        {{0, 962.5, 0}, {600, 962.5, 0}},
        {{-t, 962.5 - t, 0}, {t, 962.5 + t, 0}},
        {{600 - t, 962.5 - t, 0}, {600 + t, 962.5 + t, 0}},
    };
    const Line heightLines[] = {
        {{-62.5, 0, 0}, {-687.5, 0, 0}},
        {{-62.5, 400, 0}, {-687.5, 400, 0}},
        {{-562.5, 0, 0}, {-562.5, 400, 0}},
        {{-562.5 + t, -t, 0}, {-562.5 - t, t, 0}},
        {{-562.5 + t, 400 - t, 0}, {-562.5 - t, 400 + t, 0}},
    };
    ASSERT_EQ(pieces.length(), 14);
    auto* outline = AcDbPolyline::cast(static_cast<AcDbEntity*>(pieces[0]));
    ASSERT_NE(outline, nullptr);
    EXPECT_TRUE(outline->isClosed());
    EXPECT_EQ(outline->numVerts(), 4u);
    auto* title = AcDbMText::cast(static_cast<AcDbEntity*>(pieces[1]));
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(title->attachment(), AcDbMText::kMiddleLeft);
    auto checkDimension = [&](int first, const Line(&lines)[5], const ACHAR* measure, const AcGePoint3d& textAt,
                              const AcGeVector3d& reading) {
        for (int i = 0; i < 5; ++i) {
            auto* line = AcDbLine::cast(static_cast<AcDbEntity*>(pieces[first + i]));
            ASSERT_NE(line, nullptr) << "piece " << first + i;
            EXPECT_TRUE(qxtest::Near(line->startPoint(), lines[i].from, 1e-9)) << "piece " << first + i;
            EXPECT_TRUE(qxtest::Near(line->endPoint(), lines[i].to, 1e-9)) << "piece " << first + i;
        }
        auto* text = AcDbText::cast(static_cast<AcDbEntity*>(pieces[first + 5]));
        ASSERT_NE(text, nullptr);
        EXPECT_EQ(std::wstring(text->textStringConst()), measure);
        EXPECT_EQ(text->height(), 250);
        EXPECT_TRUE(qxtest::Near(text->alignmentPoint(), textAt, 1e-9));
        EXPECT_NEAR(text->rotation(), std::atan2(reading.y, reading.x), 1e-12);
    };
    checkDimension(2, widthLines, L"600", AcGePoint3d(300, 1150, 0), AcGeVector3d::kXAxis);
    checkDimension(8, heightLines, L"400", AcGePoint3d(-750, 200, 0), AcGeVector3d::kYAxis);
    for (void* piece : pieces)
        EXPECT_EQ(static_cast<AcDbEntity*>(piece)->colorIndex(), 4);

    // What explode gives is what the opening draws.
    std::vector<headless::RecordedPrimitive> ofPieces;
    for (void* piece : pieces) {
        headless::RecordingWorldDraw draw;
        draw.setDatabase(working.db());
        static_cast<AcDbEntity*>(piece)->worldDraw(&draw);
        ofPieces.insert(ofPieces.end(), draw.primitives().begin(), draw.primitives().end());
        delete static_cast<AcDbEntity*>(piece);
    }
    headless::RecordingWorldDraw draw;
    draw.setDatabase(working.db());
    opening->worldDraw(&draw);
    EXPECT_TRUE(qxtest::SamePrimitives(draw.primitives(), ofPieces, 1e-9));
    opening->close();
}

TEST_F(AecRectOpeningTest, ListsSizeAnchorTitleStyleAndDimensions)
{
    const AcDbObjectId style = AddTextStyle(L"洞口文字");
    struct Row {
        const char* what;
        void (*setUp)(AecRectOpening&, const AcDbObjectId&);
        const wchar_t* tail;
    };
    const Row rows[] = {
        {"centre anchor, own style, dimensions on",
         [](AecRectOpening& o, const AcDbObjectId& s) {
             o.SetAnchorPosType(AecRectOpening::kCenter);
             o.SetTextStyleId(s);
             o.SetIsShowDim(true);
         },
         L"\n矩形洞口: 宽 600.00，高 400.00，左下角 (0.00, 0.00, 0.00)，X 方向 (1.0000, 0.0000)"
         L"\n锚点: 中心，位置: (300.00, 200.00, 0.00)"
         L"\n标题: 显示，\"洞口\""
         L"\n文字样式: 洞口文字"
         L"\n尺寸标注: 开启"},
        {"unknown anchor, hidden title, a style the drawing lacks",
         [](AecRectOpening& o, const AcDbObjectId&) {
             o.SetAnchorPosType(static_cast<AecRectOpening::AnchorPosType>(9));
             o.SetTitleVisible(false);
             o.SetTitleText(L"RO-2");
             o.SetTextStyleId(AcDbObjectId::kNull);
         },
         L"\n矩形洞口: 宽 600.00，高 400.00，左下角 (0.00, 0.00, 0.00)，X 方向 (1.0000, 0.0000)"
         L"\n锚点: 未知，位置: (0.00, 0.00, 0.00)"
         L"\n标题: 隐藏，\"RO-2\""
         L"\n文字样式: Standard（默认兜底）"
         L"\n尺寸标注: 关闭"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        auto opening = MakeOpening();
        row.setUp(*opening, style);
        const std::wstring output = qxtest::ListOutput(opening.get());
        EXPECT_EQ(Tail(output, 5), row.tail) << headless::toUtf8(output);
    }
}

// The placement as a typed-array record after the class version, then the tree with the
// title's six keys in the node "RectOpeningNode".
TEST_F(AecRectOpeningTest, FilesThePlacementRecordThenTheTitleInTheTree)
{
    auto opening = MakeOpening();
    opening->SetAnchorPosType(AecRectOpening::kTopRight);
    opening->SetIsShowDim(true);
    headless::RecordingDwgFiler baseOnly;
    opening->AcDbCurve::dwgOutFields(&baseOnly);
    const auto lines = qxtest::FilingTranscript(opening.get());
    const std::vector<std::string> own(lines.begin() + static_cast<long>(baseOnly.lines().size()), lines.end());
    ACHAR textStyle[20];
    ACHAR dimStyle[20];
    opening->GetTextStyleId().handle().getIntoAsciiBuffer(textStyle);
    opening->GetDimStyleId().handle().getIntoAsciiBuffer(dimStyle);
    // clang-format off
    const std::vector<std::string> expected = {
        "writeInt32 1",  // class version
        "writeInt32 1", "writeBool true",                                 // show dimensions
        "writeInt32 1", "writeInt32 6",                                   // anchor type
        "writeInt32 2", "writeDouble 600", "writeDouble 400",             // width, height
        "writeInt32 0",                                                   // strings
        "writeInt32 1", "writeVector3d (1, 0, 0)",                        // X direction
        "writeInt32 1", "writePoint3d (600, 400, 0)",                     // anchor point
        "writeInt32 0",                                                   // 2D points
        "writeInt32 0",                                                   // soft pointers
        "writeInt32 2", "writeHardPointerId " + headless::toUtf8(textStyle),
        "writeHardPointerId " + headless::toUtf8(dimStyle),
        "writeInt32 -1001", "writeInt32 1",  // tree header
        "writeInt32 0", "writeInt32 1", "writeString \"RectOpeningNode\"",
        "writeInt32 6",
        "writeString \"bVisible\"", "writeInt32 3", "writeBool true",
        "writeString \"dir\"", "writeInt32 7", "writeVector3d (1, 0, 0)",
        "writeString \"extension\"", "writeInt32 2", "writeString \"\"",
        "writeString \"height\"", "writeInt32 1", "writeDouble 150",
        "writeString \"label\"", "writeInt32 2", "writeString \"洞口\"",
        "writeString \"pos\"", "writeInt32 5", "writePoint3d (0, -150, 0)",
        "writeInt32 0",
    };
    // clang-format on
    EXPECT_EQ(own, expected);
}

// A record from a writer that stored fewer values: what it lacks keeps the opening's
// values; unusable sizes are not taken; a negative count marks the record damaged.
TEST_F(AecRectOpeningTest, AShortOrDamagedRecordKeepsWhatItLacks)
{
    AecRectOpening source;
    headless::MemoryDwgFiler head(AcDb::kFileFiler, working.db());
    source.AcDbCurve::dwgOutFields(&head);

    auto recordWith = [&](Adesk::Int32 doubleCount, const std::vector<double>& doubles) {
        headless::MemoryDwgFiler out(AcDb::kFileFiler, working.db());
        out.writeBytes(head.bytes().data(), static_cast<Adesk::UIntPtr>(head.bytes().size()));
        out.writeInt32(1);
        out.writeInt32(0);  // no booleans
        out.writeInt32(1);
        out.writeInt32(4);  // centre
        out.writeInt32(doubleCount);
        for (double d : doubles)
            out.writeDouble(d);
        for (int group = 0; group < 6; ++group)
            out.writeInt32(0);
        for (Adesk::Int32 word : {-1001, 1, 0, 0})  // an empty tree
            out.writeInt32(word);
        return out.bytes();
    };

    AecRectOpening fewer;
    ASSERT_EQ(qxtest::FileIn(&fewer, recordWith(1, {700}), working.db()), Acad::eOk);
    EXPECT_EQ(fewer.GetAnchorPosType(), AecRectOpening::kCenter);
    EXPECT_EQ(fewer.GetWidth(), 700);
    EXPECT_EQ(fewer.GetHeight(), 1000);
    EXPECT_EQ(fewer.GetTitleLabel().GetLabel(), AcString(L"洞口"));

    AecRectOpening unusable;
    ASSERT_EQ(qxtest::FileIn(&unusable, recordWith(2, {-700, std::numeric_limits<double>::infinity()}), working.db()),
              Acad::eOk);
    EXPECT_EQ(unusable.GetWidth(), 1000);
    EXPECT_EQ(unusable.GetHeight(), 1000);

    AecRectOpening damaged;
    EXPECT_NE(qxtest::FileIn(&damaged, recordWith(-3, {}), working.db()), Acad::eOk);
}

}  // namespace
