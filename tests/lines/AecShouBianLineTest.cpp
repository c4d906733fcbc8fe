// The flashing line: the label text from its information, the segments' bulges, the
// indents' accepted values, the vertex edits that are refused, the outline of an open line,
// older and newer records, and a default line's list.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "ModuleTestSupport.h"
#include "DrawingFilePatch.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/TextCodec.h"
#include "lines/AecShouBianLine.h"

namespace {

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

std::wstring LabelText(const AecShouBianLine& line)
{
    DbxPanel::TextLabel label;
    EXPECT_EQ(line.GetTextLabelAt(0, label), Acad::eOk);
    return label.GetString().kwszPtr();
}

TEST(AecShouBianLineTest, TheLabelTextComesFromTheInformation)
{
    struct Case {
        const wchar_t* json;
        const wchar_t* text;
    };
    const Case cases[] = {
        {L"{\"baseInfo\":{\"shouBianNumber\":\"A1\",\"shouBianName\":\"B2\"}}", L"A1 B2"},
        {L"{\"baseInfo\":{\"shouBianNumber\":\"A1\"}}", L"A1"},
        {L"{\"baseInfo\":{\"shouBianNumber\":\"\",\"shouBianName\":\"屋脊盖板\"}}", L"屋脊盖板"},
        {L"{\"baseInfo\":{\"shouBianNumber\":", L"收边线"},
        {L"{\"baseInfo\":[\"A1\",\"B2\"]}", L"收边线"},
        {L"[1,2]", L"收边线"},
        {L"", L"收边线"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(headless::toUtf8(c.json));
        AecShouBianLine line;
        line.SetShouBianJsonStr(c.json);
        EXPECT_EQ(LabelText(line), c.text);
    }
}

TEST(AecShouBianLineTest, BulgesBelongToSegments)
{
    AecShouBianLine line;
    ASSERT_EQ(line.AppendVertex(AcGePoint3d(0, 0, 0), 0.5), Acad::eOk);
    ASSERT_EQ(line.AppendVertex(AcGePoint3d(1000, 0, 0), 0.25), Acad::eOk);
    ASSERT_EQ(line.AppendVertex(AcGePoint3d(1000, 1000, 0), 0.0), Acad::eOk);
    double bulge = 0.0;
    EXPECT_EQ(line.GetBulgeAt(1, bulge), Acad::eOk);
    EXPECT_EQ(bulge, 0.25);
    EXPECT_EQ(line.GetBulgeAt(2, bulge), Acad::eInvalidInput);
    EXPECT_EQ(line.GetBulgeAt(-1, bulge), Acad::eInvalidInput);
    ASSERT_EQ(line.SetClosed(true), Acad::eOk);
    EXPECT_EQ(line.GetBulgeAt(2, bulge), Acad::eOk);
    EXPECT_EQ(line.GetBulgeAt(3, bulge), Acad::eInvalidInput);
}

TEST(AecShouBianLineTest, IndentsAreNoneOr1To500)
{
    struct Case {
        double indent;
        int status;
    };
    for (const Case& c : {Case{0.5, 151}, Case{0.0, 0}, Case{0.000001, 0}, Case{1.0, 0}, Case{500.0, 0},
                          Case{500.0001, 151}, Case{-1.0, 151}, Case{std::nan(""), 151}}) {
        SCOPED_TRACE(c.indent);
        AecShouBianLine line;
        line.SetIndentLeft(200.0);
        EXPECT_EQ(static_cast<int>(line.SetIndentLeft(c.indent)), c.status);
        EXPECT_EQ(line.GetIndentLeft(), c.status == 0 ? c.indent : 200.0);
    }
    AecShouBianLine line;
    line.SetLineColorIndex(300);
    EXPECT_EQ(line.GetLineColorIndex(), 0);
    line.SetBoundaryColorIndex(256);
    EXPECT_EQ(line.GetBoundaryColorIndex(), 256);
}

TEST(AecShouBianLineTest, RefusedVerticesLeaveTheLineAsItWas)
{
    const double nan = std::nan("");
    struct Case {
        const char* what;
        bool closed;
        AcGePoint3d point;
        double bulge;
        int status;
    };
    // Each starts from (0,0) (1000,0) (1000,1000), the last vertex's bulge 0.2 when closed.
    const Case cases[] = {
        {"not finite", false, {nan, 5, 0}, 0.0, 3},
        {"infinite bulge", false, {2000, 1000, 0}, HUGE_VAL, 3},
        {"on the last vertex", false, {1000, 1000.000001, 0}, 0.0, 153},
        {"closed, the last vertex bulged", true, {0, 1000, 0}, 0.0, 3},
        {"closed, onto the first vertex", true, {0.000001, 0, 0}, 0.0, 153},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.what);
        AecShouBianLine line;
        line.AppendVertex(AcGePoint3d(0, 0, 0));
        line.AppendVertex(AcGePoint3d(1000, 0, 0));
        line.AppendVertex(AcGePoint3d(1000, 1000, 0));
        if (c.closed) {
            line.SetClosed(true);
            if (std::string(c.what).find("bulged") != std::string::npos) {
                ASSERT_EQ(line.SetBulgeAt(2, 0.2), Acad::eOk);
            }
        }
        const qxtest::Bytes before = qxtest::FileOut(&line);
        EXPECT_EQ(static_cast<int>(line.AppendVertex(c.point, c.bulge)), c.status);
        EXPECT_EQ(qxtest::FileOut(&line), before);
    }
}

TEST(AecShouBianLineTest, TheTenThousandAndFirstVertexIsRefused)
{
    AecShouBianLine line;
    for (int i = 0; i < AecShouBianLine::kMaxVertices; ++i)
        ASSERT_EQ(line.AppendVertex(AcGePoint3d(10.0 * i, (i % 2) * 10.0, 0)), Acad::eOk) << i;
    EXPECT_EQ(line.AppendVertex(AcGePoint3d(-100, -100, 0)), Acad::eInvalidInput);
    EXPECT_EQ(line.GetVertexCount(), 10000);
}

// East 1000, then north 1000, 50 indent on the left (the inside of the turn) and 30 on the
// right: the left side turns sharply at (950,50), the right side rounds the corner on a
// quarter circle of radius 30 about (1000,0); end caps are straight.
TEST(AecShouBianLineTest, AnOpenLinesOutlineIsOneClosedBandAtTheIndents)
{
    AecShouBianLine line;
    line.AppendVertex(AcGePoint3d(0, 0, 0));
    line.AppendVertex(AcGePoint3d(1000, 0, 0));
    line.AppendVertex(AcGePoint3d(1000, 1000, 0));
    ASSERT_EQ(line.SetIndentLeft(50), Acad::eOk);
    ASSERT_EQ(line.SetIndentRight(30), Acad::eOk);
    AcArray<void*> outlines;
    ASSERT_EQ(line.CreateBoundaryPolylines(outlines), Acad::eOk);
    ASSERT_EQ(outlines.length(), 1);
    std::unique_ptr<AcDbPolyline> outline(static_cast<AcDbPolyline*>(outlines[0]));
    EXPECT_TRUE(outline->isClosed());
    const double quarter = std::tan(M_PI / 8.0);
    const struct {
        double x, y, bulge;
    } expected[] = {{0, 50, 0},          {950, 50, 0},   {950, 1000, 0}, {1030, 1000, 0},
                    {1030, 0, -quarter}, {1000, -30, 0}, {0, -30, 0}};
    ASSERT_EQ(outline->numVerts(), 7u);
    for (unsigned int i = 0; i < 7; ++i) {
        AcGePoint2d p;
        double bulge = 0.0;
        outline->getPointAt(i, p);
        outline->getBulgeAt(i, bulge);
        EXPECT_NEAR(p.x, expected[i].x, 1e-9) << i;
        EXPECT_NEAR(p.y, expected[i].y, 1e-9) << i;
        EXPECT_NEAR(bulge, expected[i].bulge, 1e-12) << i;
    }
    // Without indents there is no outline.
    AecShouBianLine bare;
    bare.SetPoints(AcGePoint3d(0, 0, 0), AcGePoint3d(1000, 0, 0));
    AcArray<void*> none;
    EXPECT_EQ(bare.CreateBoundaryPolylines(none), Acad::eOk);
    EXPECT_EQ(none.length(), 0);
}

TEST(AecShouBianLineTest, AVersionOneRecordComesBackOpenAndVersionThreeIsRefused)
{
    AecShouBianLine closed;
    closed.AppendVertex(AcGePoint3d(0, 0, 0));
    closed.AppendVertex(AcGePoint3d(1000, 0, 0));
    closed.AppendVertex(AcGePoint3d(1000, 1000, 0));
    closed.SetClosed(true);
    qxtest::WorkingDatabase working;
    headless::MemoryDwgFiler hostPart(AcDb::kFileFiler, working.db());
    ASSERT_EQ(closed.QxPolylineBasedCurve::dwgOutFields(&hostPart), Acad::eOk);
    qxtest::Bytes bytes = qxtest::FileOut(&closed);
    const std::size_t at = hostPart.bytes().size();

    qxtest::PutInt32(bytes, at, 1);
    AecShouBianLine older;
    ASSERT_EQ(qxtest::FileIn(&older, bytes), Acad::eOk);
    EXPECT_FALSE(older.IsClosed());
    EXPECT_EQ(older.GetVertexCount(), 3);

    qxtest::PutInt32(bytes, at, 3);
    AecShouBianLine newer;
    EXPECT_EQ(static_cast<int>(qxtest::FileIn(&newer, bytes)), 301);
}

TEST(AecShouBianLineTest, ADefaultLineListsItsDefaults)
{
    AecShouBianLine line;
    const std::wstring listed = qxtest::ListOutput(&line);
    for (const wchar_t* part :
         {L"\n ***收边线信息*** \n[Basic Geometry Info]\n  Vertex Count: 0\n", L"\n  Is Standalone: Yes\n",
          L"\n[Draw Options]\n  CenterLine: On\n  BoundaryLine: On\n  TextLabel: Off\n",
          L"\n[JSON Data Info]\n  收边信息: [无数据]"})
        EXPECT_NE(listed.find(part), std::wstring::npos) << headless::toUtf8(part) << "\n" << headless::toUtf8(listed);
    EXPECT_EQ(LabelText(line), L"收边线");
    EXPECT_EQ(line.GetLineLayerName(), AcString(L"QX-ShouBian-Line"));
    EXPECT_EQ(line.GetTextLayerName(), AcString(L"QX-ShouBian-Text"));
}

}  // namespace
