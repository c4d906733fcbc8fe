// The division line as the host and its users see it: setters and their limits, the
// label point, the list output, drawing and explode per draw options, transformation,
// extents, stretch and grips.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

#include "ModuleTestSupport.h"
#include "Qx/GePointUtil.h"
#include "data/PackedColor.h"
#include "dbpl.h"
#include "dbsymtb.h"
#include "geplane.h"
#include "headless/TextCodec.h"
#include "lines/AecDivisionLine.h"

namespace {

const double kPi = 3.14159265358979323846;
const double kQuarterBulge = std::tan(kPi / 8.0);

AcGePoint3d P(double x, double y)
{
    return AcGePoint3d(x, y, 0.0);
}

std::unique_ptr<AecDivisionLine> MakeLine(const AcGePoint3d& start, const AcGePoint3d& end, double bulge = 0.0)
{
    std::unique_ptr<AecDivisionLine> line(new AecDivisionLine());
    EXPECT_EQ(line->SetBulge(bulge), Acad::eOk);
    EXPECT_EQ(line->SetPoints(start, end), Acad::eOk);
    return line;
}

std::vector<AcGePoint3d> Vertices(const AcDbPolyline& polyline)
{
    std::vector<AcGePoint3d> points;
    for (unsigned int i = 0; i < polyline.numVerts(); ++i) {
        AcGePoint2d p;
        EXPECT_EQ(polyline.getPointAt(i, p), Acad::eOk);
        points.emplace_back(p.x, p.y, 0.0);
    }
    return points;
}

std::vector<AcGePoint3d> BoundaryCorners(const AecDivisionLine& line)
{
    std::unique_ptr<AcDbPolyline> boundary(line.CreateBoundaryPolyline());
    return Vertices(*boundary);
}

::testing::AssertionResult SameCornerSet(std::vector<AcGePoint3d> actual, std::vector<AcGePoint3d> expected)
{
    if (actual.size() != expected.size())
        return ::testing::AssertionFailure() << actual.size() << " corners against " << expected.size();
    for (const AcGePoint3d& e : expected) {
        auto found = std::find_if(actual.begin(), actual.end(),
                                  [&](const AcGePoint3d& a) { return a.distanceTo(e) < 1e-9; });
        if (found == actual.end())
            return ::testing::AssertionFailure() << e << " is not a corner";
        actual.erase(found);
    }
    return ::testing::AssertionSuccess();
}

class AecDivisionLineTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        linesLayer = AddLayer(L"LINES");
        boundaryLayerId = AddLayer(L"JD边界");
    }

    AcDbObjectId AddLayer(const ACHAR* name)
    {
        AcDbLayerTable* layers = nullptr;
        EXPECT_EQ(working.db()->getLayerTable(layers, AcDb::kForWrite), Acad::eOk);
        auto* record = new AcDbLayerTableRecord();
        record->setName(name);
        AcDbObjectId id;
        EXPECT_EQ(layers->add(id, record), Acad::eOk);
        record->close();
        layers->close();
        return id;
    }

    // A line from (100, 100) to (300, 100) in model space on layer "LINES" with colour 5
    // and linetype scale 2, opened for write.
    AecDivisionLine* AddStyledLine(DrawOptions options, const ACHAR* boundaryLayer, int boundaryColor)
    {
        auto line = MakeLine(P(100, 100), P(300, 100));
        line->SetDrawOptions(options);
        line->SetJieDianBoundaryLayerName(boundaryLayer);
        line->SetJieDianBoundaryColorIndex(boundaryColor);
        const AcDbObjectId id = working.Add(line.release());
        AecDivisionLine* opened = nullptr;
        EXPECT_EQ(acdbOpenObject(opened, id, AcDb::kForWrite), Acad::eOk);
        opened->setLayer(linesLayer);
        opened->setColorIndex(5);
        opened->setLinetypeScale(2.0);
        return opened;
    }

    qxtest::WorkingDatabase working;
    AcDbObjectId linesLayer;
    AcDbObjectId boundaryLayerId;
};

TEST_F(AecDivisionLineTest, DefaultsOfANewLine)
{
    AecDivisionLine line;
    EXPECT_EQ(line.GetIndentLeft(), 10.0);
    EXPECT_EQ(line.GetIndentRight(), 20.0);
    EXPECT_EQ(line.GetBulge(), 0.0);
    EXPECT_EQ(line.GetDrawOptions(), kDrawCenterLine | kDrawBoundary);
    EXPECT_TRUE(line.IsDrawOptionEnabled(kDrawBoundary));
    EXPECT_TRUE(Qx::GePointUtil::IsUninitialized(line.GetBoundaryIdentifierPoint()));
    EXPECT_TRUE(line.GetNodeBasicJsonStr().isEmpty());
    EXPECT_EQ(line.GetJieDianBoundaryColorIndex(), 0);
    EXPECT_FALSE(line.isPlanar());
    AcGePlane plane;
    AcDb::Planarity planarity;
    EXPECT_EQ(line.getPlane(plane, planarity), Acad::eNotApplicable);
}

TEST_F(AecDivisionLineTest, SettersHoldValuesToTheirLimits)
{
    AecDivisionLine line;
    struct BulgeRow {
        double given;
        double stored;
    };
    for (const BulgeRow& row : {BulgeRow{5000, 1000}, BulgeRow{-5000, -1000}, BulgeRow{0.25, 0.25},
                                BulgeRow{std::numeric_limits<double>::infinity(), 1000}}) {
        EXPECT_EQ(line.SetBulge(row.given), Acad::eOk);
        EXPECT_EQ(line.GetBulge(), row.stored) << row.given;
    }
    EXPECT_EQ(line.SetBulge(std::nan("")), Acad::eInvalidInput);
    EXPECT_EQ(line.GetBulge(), 1000);

    struct ColorRow {
        int given;
        int stored;
    };
    const ColorRow colorRows[] = {{300, 0}, {-1, 0}, {256, 256}, {0, 0}, {7, 7}};
    for (const ColorRow& row : colorRows) {
        line.SetJieDianTextColorIndex(row.given);
        line.SetJieDianBoundaryColorIndex(row.given);
        line.SetShouBianTextColorIndex(row.given);
        line.SetShouBianLineColorIndex(row.given);
        EXPECT_EQ(line.GetJieDianTextColorIndex(), row.stored) << row.given;
        EXPECT_EQ(line.GetJieDianBoundaryColorIndex(), row.stored) << row.given;
        EXPECT_EQ(line.GetShouBianTextColorIndex(), row.stored) << row.given;
        EXPECT_EQ(line.GetShouBianLineColorIndex(), row.stored) << row.given;
    }

    // Indents are kept as given, negative ones too; non-finite ones change nothing.
    EXPECT_EQ(line.SetIndentLeft(-3.5), Acad::eOk);
    EXPECT_EQ(line.GetIndentLeft(), -3.5);
    EXPECT_EQ(line.SetIndentRight(std::numeric_limits<double>::infinity()), Acad::eInvalidInput);
    EXPECT_EQ(line.GetIndentRight(), 20.0);
    EXPECT_EQ(line.SetEndPoint(AcGePoint3d(std::nan(""), 0, 0)), Acad::eInvalidInput);
    EXPECT_TRUE(qxtest::Near(line.GetEndPoint(), P(0, 0)));

    // Names and JSON are kept as given; draw options too, unchecked.
    line.SetShouBianLineLayerName(L"收边线");
    EXPECT_EQ(line.GetShouBianLineLayerName(), AcString(L"收边线"));
    line.SetDrawOptions(static_cast<DrawOptions>(6));
    EXPECT_EQ(line.GetDrawOptions(), 6);
    EXPECT_TRUE(line.IsDrawOptionEnabled(kDrawBoundary));
    EXPECT_FALSE(line.IsDrawOptionEnabled(static_cast<DrawOptions>(kDrawCenterLine | kDrawBoundary)));
}

TEST_F(AecDivisionLineTest, TheLengthRuleThroughTheSetters)
{
    struct Row {
        const char* name;
        AcGePoint3d start;
        AcGePoint3d end;       // set with SetPoints first
        AcGePoint3d newEnd;    // then with SetEndPoint
        AcGePoint3d expected;  // the end afterwards
    };
    const Row rows[] = {
        {"shorter than 5: 5 along itself", P(100, 100), P(300, 100), P(100, 103), P(100, 105)},
        {"longer than 512000: cut", P(100, 100), P(300, 100), P(100, 700100), P(100, 512100)},
        {"on the start: along the previous direction", P(100, 100), P(100, 300), P(100, 100), P(100, 105)},
        {"in range: as given, Z dropped", P(100, 100), P(300, 100), AcGePoint3d(50, 60, 9), P(50, 60)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto line = MakeLine(row.start, row.end);
        EXPECT_EQ(line->SetEndPoint(row.newEnd), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), row.expected, 1e-9));
        EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), row.start));
    }

    // A new line has no direction: a zero length goes along X.
    AecDivisionLine fresh;
    EXPECT_EQ(fresh.SetPoints(P(10, 10), P(10, 10)), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(fresh.GetEndPoint(), P(15, 10), 1e-9));
    // SetStartPoint moves the start against the end.
    auto line = MakeLine(P(100, 100), P(300, 100));
    EXPECT_EQ(line->SetStartPoint(P(298, 100)), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), P(295, 100), 1e-9));
    EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), P(300, 100)));
}

TEST_F(AecDivisionLineTest, TheLabelPointIsPlacedOnceTheLineIsPlaced)
{
    // The bulge first, so that the point lands on the arc's midpoint.
    auto arc = MakeLine(P(1000, 0), P(1100, 0), kQuarterBulge);
    EXPECT_TRUE(qxtest::Near(arc->GetBoundaryIdentifierPoint(), P(1050, 50 - 50 * std::sqrt(2.0)), 1e-9));
    // Placed once, it stays when the line changes.
    arc->SetBulge(0.0);
    EXPECT_TRUE(qxtest::Near(arc->GetBoundaryIdentifierPoint(), P(1050, 50 - 50 * std::sqrt(2.0)), 1e-9));

    auto straight = MakeLine(P(100, 200), P(400, 600));
    EXPECT_TRUE(qxtest::Near(straight->GetBoundaryIdentifierPoint(), P(250, 400)));

    // A line that starts at the origin is taken as not yet placed.
    auto fromOrigin = MakeLine(P(0, 0), P(100, 0));
    EXPECT_TRUE(Qx::GePointUtil::IsUninitialized(fromOrigin->GetBoundaryIdentifierPoint()));
    EXPECT_EQ(fromOrigin->SetBoundaryIdentifierPoint(P(20, 30)), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(fromOrigin->GetBoundaryIdentifierPoint(), P(20, 30)));
}

TEST_F(AecDivisionLineTest, ListOfAStraightLine)
{
    auto line = MakeLine(P(100, 200), P(400, 600));
    line->SetNodeBasicJsonStr(L"{\"编号\":\"J-01\",\"宽度\":600}");
    line->SetAccessoryJsonStr(L"[\"螺钉 M6\",\"密封胶\"]");
    const std::wstring own =
        L"\n ***节点线信息*** "
        L"\n[Basic Geometry Info]"
        L"\n  Start Point: (100.000, 200.000, 0.000)"
        L"\n  End Point: (400.000, 600.000, 0.000)"
        L"\n  Segment Length: 500.000"
        L"\n  Direction Angle: 53.130 deg"
        L"\n  Bulge Value: 0.000"
        L"\n  Segment Type: Straight Line"
        L"\n[Width and Indent Info]"
        L"\n  Left Indent: 10.000"
        L"\n  Right Indent: 20.000"
        L"\n  Total Width: 30.000"
        L"\n  Contour Area: 15000.000"
        L"\n[JSON Data Info]"
        L"\n  节点基本信息: {\"编号\":\"J-01\",\"宽度\":600}"
        L"\n  基本信息长度: 22 字符"
        L"\n  收边信息: [无数据]"
        L"\n  辅配件信息: [\"螺钉 M6\",\"密封胶\"]"
        L"\n  辅配件信息长度: 15 字符";
    const std::wstring output = qxtest::ListOutput(line.get());
    ASSERT_GT(output.size(), own.size()) << headless::toUtf8(output);
    EXPECT_EQ(output.substr(0, own.size()), own) << headless::toUtf8(output);
    // The host's own lines follow.
    EXPECT_NE(output.find(L"QX_DIVISION_LINE    Layer:", own.size()), std::wstring::npos) << headless::toUtf8(output);
}

TEST_F(AecDivisionLineTest, ListOfAQuarterArc)
{
    auto line = MakeLine(P(1000, 0), P(1100, 0), kQuarterBulge);
    line->SetShouBianJsonStr(L"{\"类型\":\"包角\"}");
    const std::wstring own =
        L"\n ***节点线信息*** "
        L"\n[Basic Geometry Info]"
        L"\n  Start Point: (1000.000, 0.000, 0.000)"
        L"\n  End Point: (1100.000, 0.000, 0.000)"
        L"\n  Segment Length: 100.000"
        L"\n  Direction Angle: 0.000 deg"
        L"\n  Bulge Value: 0.414"
        L"\n  Segment Type: Arc"
        L"\n  Arc Midpoint: (1050.000, -20.711, 0.000)"
        L"\n  Arc Radius: 70.711"
        L"\n  Arc Length: 111.072"
        L"\n  Central Angle: 90.000 deg"
        L"\n[Width and Indent Info]"
        L"\n  Left Indent: 10.000"
        L"\n  Right Indent: 20.000"
        L"\n  Total Width: 30.000"
        L"\n  Contour Area: 3000.000 (arc segment approximate)"
        L"\n[JSON Data Info]"
        L"\n  节点基本信息: [无数据]"
        L"\n  收边信息: {\"类型\":\"包角\"}"
        L"\n  收边信息长度: 11 字符"
        L"\n  辅配件信息: [无数据]";
    const std::wstring output = qxtest::ListOutput(line.get());
    ASSERT_GT(output.size(), own.size()) << headless::toUtf8(output);
    EXPECT_EQ(output.substr(0, own.size()), own) << headless::toUtf8(output);
}

TEST_F(AecDivisionLineTest, ListDirectionAngleRunsAllRound)
{
    struct Row {
        AcGePoint3d end;
        const wchar_t* line;
    };
    const Row rows[] = {
        {P(100, 200), L"\n  Direction Angle: 90.000 deg"},
        {P(-100, 100), L"\n  Direction Angle: 180.000 deg"},
        {P(100, 0), L"\n  Direction Angle: 270.000 deg"},
        {P(200, 0), L"\n  Direction Angle: 315.000 deg"},
    };
    for (const Row& row : rows) {
        auto line = MakeLine(P(100, 100), row.end);
        const std::wstring output = qxtest::ListOutput(line.get());
        EXPECT_NE(output.find(row.line), std::wstring::npos) << headless::toUtf8(output);
    }
}

TEST_F(AecDivisionLineTest, DrawsThePartsTheOptionsAskFor)
{
    struct Row {
        const char* name;
        DrawOptions options;
        const ACHAR* boundaryLayer;
        int boundaryColor;
        // Per primitive: drawn on the JieDian boundary layer? in which colour?
        std::vector<std::pair<bool, int>> expected;
    };
    const Row rows[] = {
        {"both: boundary first, then the centre line", static_cast<DrawOptions>(3), L"JD边界", 3,
         {{true, 3}, {false, 5}}},
        {"centre line only", kDrawCenterLine, L"JD边界", 3, {{false, 5}}},
        {"boundary only", kDrawBoundary, L"JD边界", 3, {{true, 3}}},
        {"nothing", static_cast<DrawOptions>(0), L"JD边界", 3, {}},
        {"a layer that does not exist: the line's own", static_cast<DrawOptions>(3), L"无此图层", 3,
         {{false, 3}, {false, 5}}},
        {"colour 0: the line's own", static_cast<DrawOptions>(3), L"JD边界", 0, {{true, 5}, {false, 5}}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AecDivisionLine* line = AddStyledLine(row.options, row.boundaryLayer, row.boundaryColor);
        const auto drawn = qxtest::Draw(line);
        ASSERT_EQ(drawn.size(), row.expected.size());
        for (std::size_t i = 0; i < drawn.size(); ++i) {
            EXPECT_EQ(drawn[i].kind, headless::PrimitiveKind::kPline) << i;
            EXPECT_EQ(drawn[i].traits.layerId, row.expected[i].first ? boundaryLayerId : linesLayer) << i;
            EXPECT_EQ(drawn[i].traits.color, row.expected[i].second) << i;
            const AcCmEntityColor expectedColor =
                PackedColor::FromLegacyInt(row.expected[i].second).ToAcCmEntityColor();
            EXPECT_EQ(drawn[i].traits.trueColor.getRGBM(), expectedColor.getRGBM()) << i;
        }
        line->close();
    }
}

TEST_F(AecDivisionLineTest, ExplodesThePartsTheOptionsAskForWithTheLinesProperties)
{
    struct Row {
        const char* name;
        DrawOptions options;
        int boundaryColor;
        bool boundary;
        bool centre;
    };
    const Row rows[] = {
        {"both: boundary first", static_cast<DrawOptions>(3), 3, true, true},
        {"centre line only", kDrawCenterLine, 3, false, true},
        {"boundary only", kDrawBoundary, 3, true, false},
        {"boundary in the line's colour", kDrawBoundary, 0, true, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        AecDivisionLine* line = AddStyledLine(row.options, L"JD边界", row.boundaryColor);
        AcDbVoidPtrArray pieces;
        ASSERT_EQ(line->explode(pieces), Acad::eOk);
        ASSERT_EQ(pieces.length(), (row.boundary ? 1 : 0) + (row.centre ? 1 : 0));
        int next = 0;
        if (row.boundary) {
            std::unique_ptr<AcDbPolyline> boundary(AcDbPolyline::cast(static_cast<AcRxObject*>(pieces[next++])));
            ASSERT_NE(boundary, nullptr);
            EXPECT_TRUE(boundary->isClosed());
            EXPECT_TRUE(SameCornerSet(Vertices(*boundary), BoundaryCorners(*line)));
            EXPECT_EQ(boundary->layerId(), boundaryLayerId);
            EXPECT_EQ(boundary->colorIndex(), row.boundaryColor != 0 ? row.boundaryColor : 5);
            EXPECT_EQ(boundary->linetypeScale(), 2.0);
        }
        if (row.centre) {
            std::unique_ptr<AcDbPolyline> centre(AcDbPolyline::cast(static_cast<AcRxObject*>(pieces[next++])));
            ASSERT_NE(centre, nullptr);
            EXPECT_FALSE(centre->isClosed());
            const auto vertices = Vertices(*centre);
            ASSERT_EQ(vertices.size(), 2u);
            EXPECT_TRUE(qxtest::Near(vertices[0], P(100, 100)));
            EXPECT_TRUE(qxtest::Near(vertices[1], P(300, 100)));
            EXPECT_EQ(centre->layerId(), linesLayer);
            EXPECT_EQ(centre->colorIndex(), 5);
            EXPECT_EQ(centre->linetypeScale(), 2.0);
        }
        line->close();
    }
}

TEST_F(AecDivisionLineTest, TheCentreAndBoundaryPolylines)
{
    auto line = MakeLine(P(0, 0), P(100, 0));
    std::unique_ptr<AcDbPolyline> centre(line->CreateCenterPolyline());
    ASSERT_EQ(centre->numVerts(), 2u);
    EXPECT_FALSE(centre->isClosed());
    double startWidth = 0;
    double endWidth = 0;
    EXPECT_EQ(centre->getWidthsAt(0, startWidth, endWidth), Acad::eOk);
    EXPECT_EQ(startWidth, 0.0);  // no width of its own: the constant width

    // Left indent 10 along -n, right indent 20 along +n, n being +Y for a line along +X.
    std::unique_ptr<AcDbPolyline> boundary(line->CreateBoundaryPolyline());
    EXPECT_TRUE(boundary->isClosed());
    const auto corners = Vertices(*boundary);
    const std::vector<AcGePoint3d> expected = {P(0, -10), P(0, 20), P(100, 20), P(100, -10)};
    ASSERT_EQ(corners.size(), 4u);
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_TRUE(qxtest::Near(corners[i], expected[i])) << i;
    double area = 0;
    EXPECT_EQ(boundary->getArea(area), Acad::eOk);
    EXPECT_NEAR(area, 3000.0, 1e-9);

    // A quarter arc: the right side runs round the centre (50, 50) at r - 20, the left at r + 10.
    line->SetBulge(kQuarterBulge);
    boundary.reset(line->CreateBoundaryPolyline());
    double bulge = 0;
    boundary->getBulgeAt(1, bulge);
    EXPECT_NEAR(bulge, kQuarterBulge, 1e-12);
    boundary->getBulgeAt(3, bulge);
    EXPECT_NEAR(bulge, -kQuarterBulge, 1e-12);
    const double r = 50 * std::sqrt(2.0);
    for (unsigned int i = 0; i < 4; ++i) {
        AcGePoint2d p;
        boundary->getPointAt(i, p);
        EXPECT_NEAR(p.distanceTo(AcGePoint2d(50, 50)), (i == 1 || i == 2) ? r - 20 : r + 10, 1e-9) << i;
    }
    ASSERT_EQ(boundary->getArea(area), Acad::eOk);
    EXPECT_NEAR(area, kPi / 4 * ((r + 10) * (r + 10) - (r - 20) * (r - 20)), 1e-6);
}

TEST_F(AecDivisionLineTest, ALineWithoutLengthHasNoBoundaryAndNoExtents)
{
    AecDivisionLine line;  // start and end both at the origin
    std::unique_ptr<AcDbPolyline> boundary(line.CreateBoundaryPolyline());
    ASSERT_NE(boundary, nullptr);
    EXPECT_EQ(boundary->numVerts(), 0u);
    AcDbExtents extents;
    EXPECT_EQ(line.getGeomExtents(extents), Acad::eInvalidInput);

    // A line with length answers its outline's box, whatever is drawn.
    auto placed = MakeLine(P(0, 0), P(100, 0));
    placed->SetDrawOptions(kDrawCenterLine);
    ASSERT_EQ(placed->getGeomExtents(extents), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(extents.minPoint(), P(0, -10)));
    EXPECT_TRUE(qxtest::Near(extents.maxPoint(), P(100, 20)));
}

TEST_F(AecDivisionLineTest, TransformationScalesAndMirrorSwapsTheIndents)
{
    struct Row {
        const char* name;
        AcGeMatrix3d matrix;
        AcGePoint3d start;
        AcGePoint3d end;
        double left;
        double right;
    };
    const Row rows[] = {
        {"move", AcGeMatrix3d::translation(AcGeVector3d(5, 6, 7)), P(105, 106), P(305, 106), 10, 20},
        {"turn a quarter", AcGeMatrix3d::rotation(kPi / 2, AcGeVector3d::kZAxis, AcGePoint3d::kOrigin),
         P(-100, 100), P(-100, 300), 10, 20},
        {"scale 2", AcGeMatrix3d::scaling(2.0, AcGePoint3d::kOrigin), P(200, 200), P(600, 200), 20, 40},
        {"mirror in the X axis", AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d::kOrigin, AcGeVector3d::kYAxis)),
         P(100, -100), P(300, -100), 20, 10},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto line = MakeLine(P(100, 100), P(300, 100));
        const auto before = BoundaryCorners(*line);
        ASSERT_EQ(line->transformBy(row.matrix), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), row.start, 1e-9));
        EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), row.end, 1e-9));
        EXPECT_NEAR(line->GetIndentLeft(), row.left, 1e-9);
        EXPECT_NEAR(line->GetIndentRight(), row.right, 1e-9);
        // The outline is the image of the old one (Z dropped).
        std::vector<AcGePoint3d> image;
        for (const AcGePoint3d& p : before) {
            AcGePoint3d q = row.matrix * p;
            q.z = 0;
            image.push_back(q);
        }
        EXPECT_TRUE(SameCornerSet(BoundaryCorners(*line), image));
    }
}

TEST_F(AecDivisionLineTest, AMirroredArcBowsLikeTheMirrorImage)
{
    auto line = MakeLine(P(100, 100), P(300, 100), 0.4);
    AcGePoint3d middle;
    ASSERT_EQ(line->getPointAtParam(0.5, middle), Acad::eOk);
    const AcGeMatrix3d mirror = AcGeMatrix3d::mirroring(AcGePlane(AcGePoint3d::kOrigin, AcGeVector3d::kYAxis));
    ASSERT_EQ(line->transformBy(mirror), Acad::eOk);
    EXPECT_NEAR(line->GetBulge(), -0.4, 1e-12);
    AcGePoint3d mirroredMiddle;
    ASSERT_EQ(line->getPointAtParam(0.5, mirroredMiddle), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(mirroredMiddle, mirror * middle, 1e-9));
}

TEST_F(AecDivisionLineTest, AStartSetOntoTheEndKeepsTheDirection)
{
    auto line = MakeLine(P(100, 100), P(300, 100));
    EXPECT_EQ(line->SetStartPoint(P(300, 100)), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), P(295, 100), 1e-9));
    EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), P(300, 100)));
}

TEST_F(AecDivisionLineTest, StretchMovesStartAndEndUnderTheLengthRule)
{
    struct Row {
        const char* name;
        std::vector<int> indices;
        AcGeVector3d offset;
        AcGePoint3d start;
        AcGePoint3d end;
    };
    const Row rows[] = {
        {"end", {1}, AcGeVector3d(50, 0, 0), P(100, 100), P(250, 100)},
        {"start", {0}, AcGeVector3d(0, 50, 0), P(100, 150), P(200, 100)},
        {"end too near the start", {1}, AcGeVector3d(-98, 0, 0), P(100, 100), P(105, 100)},
        {"end onto the start: along the old direction", {1}, AcGeVector3d(-100, 0, 0), P(100, 100), P(105, 100)},
        {"both", {0, 1}, AcGeVector3d(10, 10, 0), P(110, 110), P(210, 110)},
        {"unknown index: ignored", {7}, AcGeVector3d(10, 10, 0), P(100, 100), P(200, 100)},
        {"no index: the whole line moves", {}, AcGeVector3d(10, 10, 0), P(110, 110), P(210, 110)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto line = MakeLine(P(100, 100), P(200, 100));
        AcGePoint3dArray points;
        ASSERT_EQ(line->getStretchPoints(points), Acad::eOk);
        ASSERT_EQ(points.length(), 2);
        EXPECT_TRUE(qxtest::Near(points[0], P(100, 100)));
        EXPECT_TRUE(qxtest::Near(points[1], P(200, 100)));
        AcDbIntArray indices;
        for (int i : row.indices)
            indices.append(i);
        ASSERT_EQ(line->moveStretchPointsAt(indices, row.offset), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), row.start, 1e-9));
        EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), row.end, 1e-9));
    }
}

class DivisionLineGrips {
public:
    explicit DivisionLineGrips(AecDivisionLine& line) : m_line(line)
    {
        EXPECT_EQ(line.getGripPoints(m_grips, 1.0, 5, AcGeVector3d::kZAxis, 0), Acad::eOk);
    }
    ~DivisionLineGrips()
    {
        m_line.gripStatus(AcDb::kGripsToBeDeleted);
        for (AcDbGripData* grip : m_grips)
            delete grip;
    }
    int count() const { return m_grips.length(); }
    AcGePoint3d point(int i) const { return m_grips[i]->gripPoint(); }
    Acad::ErrorStatus move(int i, const AcGeVector3d& offset)
    {
        AcDbVoidPtrArray which;
        which.append(m_grips[i]->appData());
        return m_line.moveGripPointsAt(which, offset, 0);
    }

private:
    AecDivisionLine& m_line;
    AcDbGripDataPtrArray m_grips;
};

enum GripIndex { kStartGrip = 0, kEndGrip, kMiddleGrip, kIdentifierGrip, kMoveGrip };

TEST_F(AecDivisionLineTest, FiveGripsInOrder)
{
    auto line = MakeLine(P(100, 100), P(200, 100), 1.0);  // half circle below, centre (150, 100)
    line->SetBoundaryIdentifierPoint(P(150, 130));
    DivisionLineGrips grips(*line);
    ASSERT_EQ(grips.count(), 5);
    EXPECT_TRUE(qxtest::Near(grips.point(kStartGrip), P(100, 100)));
    EXPECT_TRUE(qxtest::Near(grips.point(kEndGrip), P(200, 100)));
    EXPECT_TRUE(qxtest::Near(grips.point(kMiddleGrip), P(150, 50), 1e-9));
    EXPECT_TRUE(qxtest::Near(grips.point(kIdentifierGrip), P(150, 130)));
    // A quarter of the way round the arc.
    EXPECT_TRUE(qxtest::Near(grips.point(kMoveGrip), P(150 - 50 / std::sqrt(2.0), 100 - 50 / std::sqrt(2.0)), 1e-9));

    AcGePoint3dArray points;
    AcDbIntArray modes;
    AcDbIntArray ids;
    EXPECT_EQ(line->getGripPoints(points, modes, ids), Acad::eNotImplementedYet);
    AcDbIntArray indices;
    indices.append(0);
    EXPECT_EQ(line->moveGripPointsAt(indices, AcGeVector3d(5, 0, 0)), Acad::eNotImplementedYet);
    EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), P(100, 100)));
}

TEST_F(AecDivisionLineTest, GripMoves)
{
    const double h = 30 / std::sqrt(2.0);
    struct Row {
        const char* name;
        int grip;
        AcGeVector3d offset;
        AcGePoint3d start;
        AcGePoint3d end;
        AcGePoint3d identifier;
    };
    // The line runs from (100, 100) to (200, 100) with its label 30 to the left of the chord.
    const Row rows[] = {
        {"start: the label keeps its side and distance", kStartGrip, AcGeVector3d(0, -100, 0), P(100, 0), P(200, 100),
         P(150 - h, 50 + h)},
        {"end: likewise", kEndGrip, AcGeVector3d(0, 100, 0), P(100, 100), P(200, 200), P(150 - h, 150 + h)},
        {"end onto the start: 5 along the old direction", kEndGrip, AcGeVector3d(-100, 0, 0), P(100, 100),
         P(105, 100), P(102.5, 130)},
        {"middle: nothing", kMiddleGrip, AcGeVector3d(10, 10, 0), P(100, 100), P(200, 100), P(150, 130)},
        {"label: along the perpendicular only", kIdentifierGrip, AcGeVector3d(40, -10, 0), P(100, 100),
         P(200, 100), P(150, 120)},
        {"label: no further than half the chord", kIdentifierGrip, AcGeVector3d(0, -500, 0), P(100, 100),
         P(200, 100), P(150, 50)},
        {"move: everything", kMoveGrip, AcGeVector3d(10, 20, 0), P(110, 120), P(210, 120), P(160, 150)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto line = MakeLine(P(100, 100), P(200, 100));
        line->SetBoundaryIdentifierPoint(P(150, 130));
        DivisionLineGrips grips(*line);
        ASSERT_EQ(grips.move(row.grip, row.offset), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), row.start, 1e-9));
        EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), row.end, 1e-9));
        EXPECT_TRUE(qxtest::Near(line->GetBoundaryIdentifierPoint(), row.identifier, 1e-9));
    }
}

TEST_F(AecDivisionLineTest, GripRecordsLiveUntilTheGripsAreDeleted)
{
    auto line = MakeLine(P(100, 100), P(200, 100));
    AcDbGripDataPtrArray grips;
    ASSERT_EQ(line->getGripPoints(grips, 1.0, 5, AcGeVector3d::kZAxis, 0), Acad::eOk);
    AcDbVoidPtrArray end;
    end.append(grips[kEndGrip]->appData());
    line->gripStatus(AcDb::kGripsToBeDeleted);
    // A record the line no longer holds (or never handed out) moves nothing.
    int foreign = 0;
    AcDbVoidPtrArray stranger;
    stranger.append(&foreign);
    EXPECT_EQ(line->moveGripPointsAt(stranger, AcGeVector3d(10, 0, 0), 0), Acad::eOk);
    EXPECT_EQ(line->moveGripPointsAt(end, AcGeVector3d(10, 0, 0), 0), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), P(200, 100)));
    for (AcDbGripData* grip : grips)
        delete grip;
}

}  // namespace
