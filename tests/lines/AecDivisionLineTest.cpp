// The division line as the host and its users see it: setters and their limits, the
// label point, the list output, the outline (a table re-run moved, turned, scaled,
// mirrored and reversed), drawing and explode per draw options, stretch and grips.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "DivisionLineTestSupport.h"
#include "Qx/GePointUtil.h"
#include "data/PackedColor.h"
#include "dbsymtb.h"
#include "geplane.h"
#include "headless/TextCodec.h"

namespace {

using namespace linetest;

const double kPi = 3.14159265358979323846;
const double kQuarterBulge = std::tan(kPi / 8.0);  // a 90 degree arc
const double kRoot2 = std::sqrt(2.0);
const double kInfinity = std::numeric_limits<double>::infinity();

class AecDivisionLineTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        linesLayer = AddLayer(L"LINES");
        boundaryLayer = AddLayer(L"JD边界");
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
    AecDivisionLine* AddStyledLine(DrawOptions options, const ACHAR* boundaryLayerName, int boundaryColor)
    {
        auto line = MakeLine(P(100, 100), P(300, 100));
        line->SetDrawOptions(options);
        line->SetJieDianBoundaryLayerName(boundaryLayerName);
        line->SetJieDianBoundaryColorIndex(boundaryColor);
        AecDivisionLine* opened = nullptr;
        EXPECT_EQ(acdbOpenObject(opened, working.Add(line.release()), AcDb::kForWrite), Acad::eOk);
        opened->setLayer(linesLayer);
        opened->setColorIndex(5);
        opened->setLinetypeScale(2.0);
        return opened;
    }

    qxtest::WorkingDatabase working;
    AcDbObjectId linesLayer;
    AcDbObjectId boundaryLayer;
};

TEST_F(AecDivisionLineTest, DefaultsAndWhatTheSettersKeep)
{
    AecDivisionLine line;
    EXPECT_EQ(line.GetIndentLeft(), 10.0);
    EXPECT_EQ(line.GetIndentRight(), 20.0);
    EXPECT_EQ(line.GetBulge(), 0.0);
    EXPECT_EQ(line.GetDrawOptions(), kDrawCenterLine | kDrawBoundary);
    EXPECT_TRUE(Qx::GePointUtil::IsUninitialized(line.GetBoundaryIdentifierPoint()));
    EXPECT_TRUE(line.GetNodeBasicJsonStr().isEmpty() && line.GetShouBianLineLayerName().isEmpty());

    const std::pair<double, double> bulges[] = {{5000, 1000}, {-5000, -1000}, {0.25, 0.25}, {kInfinity, 1000}};
    for (const auto& [given, stored] : bulges) {
        EXPECT_EQ(line.SetBulge(given), Acad::eOk);
        EXPECT_EQ(line.GetBulge(), stored) << given;
    }
    EXPECT_EQ(line.SetBulge(std::nan("")), Acad::eInvalidInput);
    EXPECT_EQ(line.GetBulge(), 1000);

    const std::pair<int, int> colours[] = {{300, 0}, {-1, 0}, {256, 256}, {0, 0}, {7, 7}};
    for (const auto& [given, stored] : colours) {
        line.SetJieDianTextColorIndex(given);
        line.SetJieDianBoundaryColorIndex(given);
        line.SetShouBianTextColorIndex(given);
        line.SetShouBianLineColorIndex(given);
        EXPECT_EQ(line.GetJieDianTextColorIndex(), stored) << given;
        EXPECT_EQ(line.GetJieDianBoundaryColorIndex(), stored) << given;
        EXPECT_EQ(line.GetShouBianTextColorIndex(), stored) << given;
        EXPECT_EQ(line.GetShouBianLineColorIndex(), stored) << given;
    }

    // Indents are kept as given, negative ones too; non-finite values change nothing.
    EXPECT_EQ(line.SetIndentLeft(-3.5), Acad::eOk);
    EXPECT_EQ(line.GetIndentLeft(), -3.5);
    EXPECT_EQ(line.SetIndentRight(kInfinity), Acad::eInvalidInput);
    EXPECT_EQ(line.GetIndentRight(), 20.0);
    EXPECT_EQ(line.SetEndPoint(AcGePoint3d(std::nan(""), 0, 0)), Acad::eInvalidInput);
    EXPECT_TRUE(qxtest::Near(line.GetEndPoint(), P(0, 0)));

    // Draw options are kept unchecked; an option is on when all its bits are.
    line.SetDrawOptions(static_cast<DrawOptions>(6));
    EXPECT_EQ(line.GetDrawOptions(), 6);
    EXPECT_TRUE(line.IsDrawOptionEnabled(kDrawBoundary));
    EXPECT_FALSE(line.IsDrawOptionEnabled(static_cast<DrawOptions>(kDrawCenterLine | kDrawBoundary)));
}

TEST_F(AecDivisionLineTest, TheLengthRuleThroughTheSetters)
{
    enum Setter { kSetEnd, kSetStart, kSetPoints };
    const struct {
        const char* what;
        AcGePoint3d start, end;  // the line before; both at the origin for a new line
        Setter setter;
        AcGePoint3d point;  // SetPoints: the new end, with the start at the old start
        AcGePoint3d newStart, newEnd;
    } rows[] = {
        {"exactly 5: stays", P(100, 100), P(300, 100), kSetEnd, P(103, 104), P(100, 100), P(103, 104)},
        {"shorter than 5: 5 along itself", P(100, 100), P(300, 100), kSetEnd, P(100, 103), P(100, 100), P(100, 105)},
        {"longer than 512000: cut", P(100, 100), P(300, 100), kSetEnd, P(100, 700100), P(100, 100), P(100, 512100)},
        {"onto the start: along the line", P(100, 100), P(100, 300), kSetEnd, P(100, 100), P(100, 100), P(100, 105)},
        {"in range: Z dropped", P(100, 100), P(300, 100), kSetEnd, AcGePoint3d(50, 60, 9), P(100, 100), P(50, 60)},
        {"the start onto the end", P(100, 100), P(300, 100), kSetStart, P(300, 100), P(295, 100), P(300, 100)},
        {"SetPoints moves the end", P(100, 100), P(300, 100), kSetPoints, P(101, 100), P(100, 100), P(105, 100)},
        {"a new line has no direction: X", P(0, 0), P(0, 0), kSetPoints, P(0, 0), P(0, 0), P(5, 0)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        auto line = row.start == row.end ? std::make_unique<AecDivisionLine>() : MakeLine(row.start, row.end);
        const Acad::ErrorStatus es = row.setter == kSetEnd ? line->SetEndPoint(row.point)
            : row.setter == kSetStart                      ? line->SetStartPoint(row.point)
                                                           : line->SetPoints(row.start, row.point);
        EXPECT_EQ(es, Acad::eOk);
        EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), row.newStart, 1e-9));
        EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), row.newEnd, 1e-9));
    }
}

TEST_F(AecDivisionLineTest, TheLabelPointIsPlacedOnceTheLineIsPlaced)
{
    auto arc = MakeLine(P(1000, 0), P(1100, 0), kQuarterBulge);
    EXPECT_TRUE(qxtest::Near(arc->GetBoundaryIdentifierPoint(), P(1050, 50 - 50 * kRoot2), 1e-9));
    arc->SetBulge(0.0);  // placed once, it stays
    EXPECT_TRUE(qxtest::Near(arc->GetBoundaryIdentifierPoint(), P(1050, 50 - 50 * kRoot2), 1e-9));
    EXPECT_TRUE(qxtest::Near(MakeLine(P(100, 200), P(400, 600))->GetBoundaryIdentifierPoint(), P(250, 400)));

    // A line that starts at the origin is taken as not yet placed.
    auto fromOrigin = MakeLine(P(0, 0), P(100, 0));
    EXPECT_TRUE(Qx::GePointUtil::IsUninitialized(fromOrigin->GetBoundaryIdentifierPoint()));
    EXPECT_EQ(fromOrigin->SetBoundaryIdentifierPoint(P(20, 30)), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(fromOrigin->GetBoundaryIdentifierPoint(), P(20, 30)));
}

// The line's own lines open the list; the host entity's follow.
::testing::AssertionResult ListStartsWith(const AecDivisionLine& line, const std::wstring& own)
{
    const std::wstring output = qxtest::ListOutput(&line);
    if (output.compare(0, own.size(), own) == 0 && output.find(L"QX_DIVISION_LINE", own.size()) != std::wstring::npos)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << headless::toUtf8(output);
}

TEST_F(AecDivisionLineTest, ListOutput)
{
    auto straight = MakeLine(P(100, 200), P(400, 600));
    straight->SetNodeBasicJsonStr(L"{\"编号\":\"J-01\",\"宽度\":600}");
    straight->SetAccessoryJsonStr(L"[\"螺钉 M6\",\"密封胶\"]");
    EXPECT_TRUE(ListStartsWith(*straight,
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
                               L"\n  辅配件信息长度: 15 字符"));

    auto arc = MakeLine(P(1000, 0), P(1100, 0), kQuarterBulge);
    arc->SetShouBianJsonStr(L"{\"类型\":\"包角\"}");
    EXPECT_TRUE(ListStartsWith(*arc,
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
                               L"\n  辅配件信息: [无数据]"));

    // Directions below the X axis count on past 180 degrees.
    const std::pair<AcGePoint3d, const wchar_t*> angles[] = {{P(-100, 100), L"180.000"}, {P(100, 0), L"270.000"}};
    for (const auto& [end, angle] : angles) {
        const std::wstring output = qxtest::ListOutput(MakeLine(P(100, 100), end).get());
        EXPECT_NE(output.find(std::wstring(L"\n  Direction Angle: ") + angle + L" deg"), std::wstring::npos)
            << headless::toUtf8(output);
    }
}

struct OutlineRow {
    const char* what;
    AcGePoint3d start, end;
    double bulge, left, right;
    std::vector<AcGePoint3d> corners;  // P0 (start, left), P1 (start, right), P2 (end, right), P3 (end, left)
    double outlineBulge;               // of the side P1-P2; P3-P0 takes its negation
};

// n is the host's perpVector of the unit direction (the direction turned +90 degrees): the
// right indent is set off along +n, the left along -n. Arcs turn a quarter (kQ) or half, anti- or
// clockwise (cw).
const double kQ = kQuarterBulge;
const double kA = 10 / kRoot2;
const double kB = 20 / kRoot2;
const OutlineRow kOutlineRows[] = {
    {"along X", P(0, 0), P(100, 0), 0.0, 10, 20, {P(0, -10), P(0, 20), P(100, 20), P(100, -10)}, 0.0},
    {"along Y: n points to -X", P(0, 0), P(0, 100), 0.0, 10, 20, {P(10, 0), P(-20, 0), P(-20, 100), P(10, 100)}, 0.0},
    {"3-4-5 diagonal", P(100, 100), P(130, 140), 0.0, 10, 20, {P(108, 94), P(84, 112), P(114, 152), P(138, 134)}, 0.0},
    {"negative indent crosses over", P(0, 0), P(100, 0), 0.0, -5, 20, {P(0, 5), P(0, 20), P(100, 20), P(100, 5)}, 0.0},
    // Centre (50, 50): the right side runs inside at r - 20, the left outside at r + 10.
    {"quarter", P(0, 0), P(100, 0), kQ, 10, 20, {P(-kA, -kA), P(kB, kB), P(100 - kB, kB), P(100 + kA, -kA)}, kQ},
    // Centre (50, -50): the radial at the start points along +n, so the right side is outside.
    {"cw quarter", P(0, 0), P(100, 0), -kQ, 10, 20, {P(kA, -kA), P(-kB, kB), P(100 + kB, kB), P(100 - kA, -kA)}, -kQ},
    // Centre (50, 0): the radial at the start is square to n, and the left side is outside.
    {"anticlockwise half circle", P(0, 0), P(100, 0), 1.0, 10, 20, {P(-10, 0), P(20, 0), P(80, 0), P(110, 0)}, 1.0},
    {"clockwise half circle", P(0, 0), P(100, 0), -1.0, 10, 20, {P(-10, 0), P(20, 0), P(80, 0), P(110, 0)}, -1.0},
};

double Area(const AecDivisionLine& line)
{
    std::unique_ptr<AcDbPolyline> boundary(line.CreateBoundaryPolyline());
    double area = 0;
    EXPECT_EQ(boundary->getArea(area), Acad::eOk);
    return area;
}

TEST_F(AecDivisionLineTest, TheCentreLineAndTheOutline)
{
    for (const OutlineRow& row : kOutlineRows) {
        SCOPED_TRACE(row.what);
        auto line = MakeLine(row.start, row.end, row.bulge);
        line->SetIndentLeft(row.left);
        line->SetIndentRight(row.right);
        std::unique_ptr<AcDbPolyline> centre(line->CreateCenterPolyline());
        EXPECT_FALSE(centre->isClosed());
        EXPECT_EQ(Vertices(*centre), (std::vector<AcGePoint3d>{row.start, row.end}));
        double bulge = 0;
        double startWidth = -1;
        double endWidth = -1;
        EXPECT_TRUE(centre->getBulgeAt(0, bulge) == Acad::eOk && bulge == row.bulge);
        EXPECT_TRUE(centre->getWidthsAt(0, startWidth, endWidth) == Acad::eOk && startWidth == 0 && endWidth == 0);

        std::unique_ptr<AcDbPolyline> boundary(line->CreateBoundaryPolyline());
        EXPECT_TRUE(boundary->isClosed());
        const std::vector<AcGePoint3d> corners = Vertices(*boundary);
        EXPECT_TRUE(SameCorners(corners, row.corners));
        for (unsigned int i = 0; i < 4; ++i) {
            boundary->getBulgeAt(i, bulge);
            EXPECT_NEAR(bulge, i == 1 ? row.outlineBulge : (i == 3 ? -row.outlineBulge : 0.0), 1e-12) << i;
        }

        // Variants. A transform keeps only the indents' sizes, and a half circle has no
        // preferred side, so those rows are not re-run.
        if (row.left < 0 || std::fabs(std::fabs(row.bulge) - 1.0) < 1e-12)
            continue;
        const AcGePoint3d pivot(300, -200, 0);
        const std::pair<const char*, AcGeMatrix3d> transforms[] = {
            {"moved", AcGeMatrix3d::translation(AcGeVector3d(250, -75, 7))},
            {"turned", AcGeMatrix3d::rotation(0.7, AcGeVector3d::kZAxis, pivot)},
            {"scaled", AcGeMatrix3d::scaling(2.5, pivot)},
            {"mirrored", AcGeMatrix3d::mirroring(AcGePlane(pivot, AcGeVector3d(2, -1, 0)))},
        };
        for (const auto& [how, m] : transforms) {
            SCOPED_TRACE(how);
            auto image = MakeLine(row.start, row.end, row.bulge);
            image->SetIndentLeft(row.left);
            image->SetIndentRight(row.right);
            ASSERT_EQ(image->transformBy(m), Acad::eOk);
            std::vector<AcGePoint3d> moved;
            for (const AcGePoint3d& p : row.corners)
                moved.push_back(P((m * p).x, (m * p).y));
            EXPECT_TRUE(SameCornerSet(BoundaryCorners(*image), moved));
            EXPECT_NEAR(Area(*image), Area(*line) * m.scale() * m.scale(), 1e-6);
        }
        // Reversed with the indents swapped: the same region, entered at the old end.
        auto reversed = MakeLine(row.end, row.start, -row.bulge);
        reversed->SetIndentLeft(row.right);
        reversed->SetIndentRight(row.left);
        EXPECT_TRUE(SameCorners(BoundaryCorners(*reversed), {corners[2], corners[3], corners[0], corners[1]}));
    }
}

TEST_F(AecDivisionLineTest, ExtentsAreTheOutlinesWhateverIsDrawn)
{
    auto placed = MakeLine(P(0, 0), P(100, 0));
    placed->SetDrawOptions(kDrawCenterLine);
    AcDbExtents extents;
    ASSERT_EQ(placed->getGeomExtents(extents), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(extents.minPoint(), P(0, -10)));
    EXPECT_TRUE(qxtest::Near(extents.maxPoint(), P(100, 20)));

    AecDivisionLine unplaced;  // start and end both at the origin: no outline
    std::unique_ptr<AcDbPolyline> boundary(unplaced.CreateBoundaryPolyline());
    EXPECT_EQ(boundary->numVerts(), 0u);
    EXPECT_EQ(unplaced.getGeomExtents(extents), Acad::eInvalidInput);
}

TEST_F(AecDivisionLineTest, DrawsThePartsTheOptionsAskFor)
{
    const struct {
        const char* what;
        DrawOptions options;
        const ACHAR* boundaryLayerName;
        int boundaryColor;
        std::vector<std::pair<bool, int>> drawn;  // per primitive: on the boundary layer? colour
    } rows[] = {
        {"both: boundary first", static_cast<DrawOptions>(3), L"JD边界", 3, {{true, 3}, {false, 5}}},
        {"centre line only", kDrawCenterLine, L"JD边界", 3, {{false, 5}}},
        {"boundary only", kDrawBoundary, L"JD边界", 3, {{true, 3}}},
        {"nothing", static_cast<DrawOptions>(0), L"JD边界", 3, {}},
        {"no such layer: the line's own", static_cast<DrawOptions>(3), L"无此图层", 3, {{false, 3}, {false, 5}}},
        {"colour 0: the line's own", static_cast<DrawOptions>(3), L"JD边界", 0, {{true, 5}, {false, 5}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        AecDivisionLine* line = AddStyledLine(row.options, row.boundaryLayerName, row.boundaryColor);
        const auto drawn = qxtest::Draw(line);
        ASSERT_EQ(drawn.size(), row.drawn.size());
        for (std::size_t i = 0; i < drawn.size(); ++i) {
            EXPECT_EQ(drawn[i].kind, headless::PrimitiveKind::kPline) << i;
            EXPECT_EQ(drawn[i].traits.layerId, row.drawn[i].first ? boundaryLayer : linesLayer) << i;
            EXPECT_EQ(drawn[i].traits.color, row.drawn[i].second) << i;
            EXPECT_EQ(drawn[i].traits.trueColor.getRGBM(),
                      PackedColor::FromLegacyInt(row.drawn[i].second).ToAcCmEntityColor().getRGBM())
                << i;
        }
        line->close();
    }
}

TEST_F(AecDivisionLineTest, ExplodesThePartsTheOptionsAskForWithTheLinesProperties)
{
    const struct {
        const char* what;
        DrawOptions options;
        int boundaryColor;
        bool boundary, centre;
    } rows[] = {
        {"both: boundary first", static_cast<DrawOptions>(3), 3, true, true},
        {"centre line only", kDrawCenterLine, 3, false, true},
        {"boundary only, in the line's colour", kDrawBoundary, 0, true, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        AecDivisionLine* line = AddStyledLine(row.options, L"JD边界", row.boundaryColor);
        AcDbVoidPtrArray pieces;
        ASSERT_EQ(line->explode(pieces), Acad::eOk);
        ASSERT_EQ(pieces.length(), (row.boundary ? 1 : 0) + (row.centre ? 1 : 0));
        for (int i = 0; i < pieces.length(); ++i) {
            std::unique_ptr<AcDbPolyline> piece(AcDbPolyline::cast(static_cast<AcRxObject*>(pieces[i])));
            ASSERT_NE(piece, nullptr);
            const bool isBoundary = row.boundary && i == 0;
            EXPECT_EQ(piece->isClosed(), isBoundary);
            const std::vector<AcGePoint3d> centre = {P(100, 100), P(300, 100)};
            EXPECT_EQ(Vertices(*piece), isBoundary ? BoundaryCorners(*line) : centre);
            EXPECT_EQ(piece->layerId(), isBoundary ? boundaryLayer : linesLayer);
            EXPECT_EQ(piece->colorIndex(), isBoundary && row.boundaryColor != 0 ? row.boundaryColor : 5);
            EXPECT_EQ(piece->linetypeScale(), 2.0);
        }
        line->close();
    }
}

TEST_F(AecDivisionLineTest, StretchMovesStartAndEndUnderTheLengthRule)
{
    const struct {
        const char* what;
        std::vector<int> indices;
        AcGeVector3d offset;
        AcGePoint3d start, end;
    } rows[] = {
        {"end", {1}, AcGeVector3d(50, 0, 0), P(100, 100), P(250, 100)},
        {"start", {0}, AcGeVector3d(0, 50, 0), P(100, 150), P(200, 100)},
        {"end onto the start: along the old direction", {1}, AcGeVector3d(-100, 0, 0), P(100, 100), P(105, 100)},
        {"both", {0, 1}, AcGeVector3d(10, 10, 0), P(110, 110), P(210, 110)},
        {"unknown index: ignored", {7}, AcGeVector3d(10, 10, 0), P(100, 100), P(200, 100)},
        {"no index: the whole line moves", {}, AcGeVector3d(10, 10, 0), P(110, 110), P(210, 110)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        auto line = MakeLine(P(100, 100), P(200, 100));
        AcGePoint3dArray points;
        ASSERT_EQ(line->getStretchPoints(points), Acad::eOk);
        ASSERT_EQ(points.length(), 2);
        EXPECT_TRUE(points[0] == P(100, 100) && points[1] == P(200, 100));
        AcDbIntArray indices;
        for (int i : row.indices)
            indices.append(i);
        ASSERT_EQ(line->moveStretchPointsAt(indices, row.offset), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), row.start, 1e-9));
        EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), row.end, 1e-9));
    }
}

// The grips a line hands out, given back to it when they go.
class Grips {
public:
    explicit Grips(AecDivisionLine& line) : m_line(line)
    {
        EXPECT_EQ(line.getGripPoints(m_grips, 1.0, 5, AcGeVector3d::kZAxis, 0), Acad::eOk);
    }
    ~Grips()
    {
        m_line.gripStatus(AcDb::kGripsToBeDeleted);
        for (AcDbGripData* grip : m_grips)
            delete grip;
    }
    std::vector<AcGePoint3d> points() const
    {
        std::vector<AcGePoint3d> points;
        for (const AcDbGripData* grip : m_grips)
            points.push_back(grip->gripPoint());
        return points;
    }
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
    Grips grips(*line);
    // Start, end, the arc's middle, the label and the move grip a quarter of the way round.
    const std::vector<AcGePoint3d> expected = {P(100, 100), P(200, 100), P(150, 50), P(150, 130),
                                               P(150 - 50 / kRoot2, 100 - 50 / kRoot2)};
    const std::vector<AcGePoint3d> points = grips.points();
    ASSERT_EQ(points.size(), expected.size());
    for (std::size_t i = 0; i < points.size(); ++i)
        EXPECT_TRUE(qxtest::Near(points[i], expected[i], 1e-9)) << i;

    // The point forms are refused, so that the host takes these.
    AcGePoint3dArray old;
    AcDbIntArray modes;
    AcDbIntArray ids;
    EXPECT_EQ(line->getGripPoints(old, modes, ids), Acad::eNotImplementedYet);
    AcDbIntArray indices;
    indices.append(0);
    EXPECT_EQ(line->moveGripPointsAt(indices, AcGeVector3d(5, 0, 0)), Acad::eNotImplementedYet);
    EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), P(100, 100)));
}

TEST_F(AecDivisionLineTest, GripMoves)
{
    const double h = 30 / kRoot2;
    // The line runs from (100, 100) to (200, 100) with its label 30 to the left of the chord.
    const struct {
        const char* what;
        GripIndex grip;
        AcGeVector3d offset;
        AcGePoint3d start, end, label;
    } rows[] = {
        {"start: the label keeps its place", kStartGrip, {0, -100, 0}, P(100, 0), P(200, 100), P(150 - h, 50 + h)},
        {"end: likewise", kEndGrip, {0, 100, 0}, P(100, 100), P(200, 200), P(150 - h, 150 + h)},
        {"end onto the start: 5 along the line", kEndGrip, {-100, 0, 0}, P(100, 100), P(105, 100), P(102.5, 130)},
        {"middle: nothing", kMiddleGrip, {10, 10, 0}, P(100, 100), P(200, 100), P(150, 130)},
        {"label: along the perpendicular only", kIdentifierGrip, {40, -10, 0}, P(100, 100), P(200, 100), P(150, 120)},
        {"label: at most half the chord away", kIdentifierGrip, {0, -500, 0}, P(100, 100), P(200, 100), P(150, 50)},
        {"move: everything", kMoveGrip, {10, 20, 0}, P(110, 120), P(210, 120), P(160, 150)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        auto line = MakeLine(P(100, 100), P(200, 100));
        line->SetBoundaryIdentifierPoint(P(150, 130));
        Grips grips(*line);
        ASSERT_EQ(grips.move(row.grip, row.offset), Acad::eOk);
        EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), row.start, 1e-9));
        EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), row.end, 1e-9));
        EXPECT_TRUE(qxtest::Near(line->GetBoundaryIdentifierPoint(), row.label, 1e-9));
    }

    // A record the line no longer holds, or never handed out, moves nothing.
    auto line = MakeLine(P(100, 100), P(200, 100));
    AcDbGripDataPtrArray grips;
    ASSERT_EQ(line->getGripPoints(grips, 1.0, 5, AcGeVector3d::kZAxis, 0), Acad::eOk);
    int foreign = 0;
    AcDbVoidPtrArray stale;
    stale.append(grips[kEndGrip]->appData());
    stale.append(&foreign);
    line->gripStatus(AcDb::kGripsToBeDeleted);
    EXPECT_EQ(line->moveGripPointsAt(stale, AcGeVector3d(10, 0, 0), 0), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), P(200, 100)));
    for (AcDbGripData* grip : grips)
        delete grip;
}

}  // namespace
