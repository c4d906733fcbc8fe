// The division line's filing: the typed record after the host curve's fields, shorter
// records from older writers, newer versions refused, damaged counts, and lossless round
// trips of every field (JSON text byte for byte).
#include <gtest/gtest.h>

#include <memory>

#include "ModuleTestSupport.h"
#include "data/DataNode.h"
#include "headless/RecordingDwgFiler.h"
#include "lines/AecDivisionLine.h"

namespace {

AcGePoint3d P(double x, double y)
{
    return AcGePoint3d(x, y, 0.0);
}

// Every field away from its default.
std::unique_ptr<AecDivisionLine> MakeFullLine()
{
    std::unique_ptr<AecDivisionLine> line(new AecDivisionLine());
    line->SetPoints(P(100, 200), P(400, 600));
    line->SetBulge(0.25);
    line->SetIndentLeft(12.5);
    line->SetIndentRight(7.25);
    line->SetBoundaryIdentifierPoint(P(250, 380));
    line->SetDrawOptions(kDrawBoundary);
    line->SetJieDianTextColorIndex(1);
    line->SetJieDianBoundaryColorIndex(2);
    line->SetShouBianTextColorIndex(3);
    line->SetShouBianLineColorIndex(4);
    line->SetJieDianTextLayerName(L"JD文字");
    line->SetJieDianBoundaryLayerName(L"JD边界");
    line->SetShouBianTextLayerName(L"SB文字");
    line->SetShouBianLineLayerName(L"SB线");
    line->SetNodeBasicJsonStr(L"{\"a\":1}");
    line->SetAccessoryJsonStr(L"[\"螺钉\"]");
    return line;
}

// An empty tree, as the record's last item.
void WriteEmptyTree(headless::RecordingDwgFiler& filer)
{
    filer.writeInt32(-1001);
    filer.writeInt32(1);
    filer.writeInt32(0);
    filer.writeInt32(0);
}

// The lines after the host curve's own.
std::vector<std::string> OwnTranscript(AecDivisionLine& line)
{
    headless::RecordingDwgFiler hostOnly;
    line.AcDbCurve::dwgOutFields(&hostOnly);
    const auto lines = qxtest::FilingTranscript(&line);
    EXPECT_GT(lines.size(), hostOnly.lines().size());
    return std::vector<std::string>(lines.begin() + static_cast<long>(hostOnly.lines().size()), lines.end());
}

TEST(AecDivisionLineFilingTest, TheTypedRecordThenTheTree)
{
    auto line = MakeFullLine();
    line->AddNode(L"Extra")->SetValue(L"k", 5);
    const std::vector<std::string> expected = {
        "writeInt32 1",  // class version
        "writeInt32 1", "writeBool true",
        "writeInt32 5", "writeInt32 2", "writeInt32 1", "writeInt32 2", "writeInt32 3", "writeInt32 4",
        "writeInt32 3", "writeDouble 12.5", "writeDouble 7.25", "writeDouble 0.25",
        "writeInt32 4", "writeString \"JD文字\"", "writeString \"JD边界\"", "writeString \"SB文字\"",
        "writeString \"SB线\"",
        "writeInt32 0",  // 3D vectors
        "writeInt32 3", "writePoint3d (100, 200, 0)", "writePoint3d (400, 600, 0)", "writePoint3d (250, 380, 0)",
        "writeInt32 0",  // 2D points
        "writeInt32 0",  // soft pointer ids
        "writeInt32 0",  // hard pointer ids
        "writeString \"{\\\"a\\\":1}\"", "writeString \"\"", "writeString \"[\\\"螺钉\\\"]\"",
        "writeInt32 -1001", "writeInt32 1",  // tree header
        "writeInt32 0", "writeInt32 1", "writeString \"Extra\"",
        "writeInt32 1", "writeString \"k\"", "writeInt32 0", "writeInt32 5", "writeInt32 0",
    };
    EXPECT_EQ(OwnTranscript(*line), expected);
}

TEST(AecDivisionLineFilingTest, ARoundTripKeepsEveryField)
{
    qxtest::WorkingDatabase working;
    auto source = MakeFullLine();
    // Quotes, backslashes, line breaks, Chinese and a character beyond the basic plane.
    const AcString json(L"{\"名称\":\"节点 \\\"A\\\"\",\"备注\":\"第一行\\n第二行\",\"符号\":\"😀\"}");
    source->SetShouBianJsonStr(json);
    source->SetBulge(-3.75);
    source->AddNode(L"Extra")->SetValue(L"名字", AcString(L"值"));

    const qxtest::Bytes bytes = qxtest::FileOut(source.get(), working.db());
    AecDivisionLine copy;
    ASSERT_EQ(qxtest::FileIn(&copy, bytes, working.db()), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(copy.GetStartPoint(), P(100, 200)));
    EXPECT_TRUE(qxtest::Near(copy.GetEndPoint(), P(400, 600)));
    EXPECT_EQ(copy.GetBulge(), -3.75);
    EXPECT_EQ(copy.GetIndentLeft(), 12.5);
    EXPECT_EQ(copy.GetIndentRight(), 7.25);
    EXPECT_TRUE(qxtest::Near(copy.GetBoundaryIdentifierPoint(), P(250, 380)));
    EXPECT_EQ(copy.GetDrawOptions(), kDrawBoundary);
    EXPECT_EQ(copy.GetJieDianTextColorIndex(), 1);
    EXPECT_EQ(copy.GetJieDianBoundaryColorIndex(), 2);
    EXPECT_EQ(copy.GetShouBianTextColorIndex(), 3);
    EXPECT_EQ(copy.GetShouBianLineColorIndex(), 4);
    EXPECT_EQ(copy.GetJieDianTextLayerName(), AcString(L"JD文字"));
    EXPECT_EQ(copy.GetJieDianBoundaryLayerName(), AcString(L"JD边界"));
    EXPECT_EQ(copy.GetShouBianTextLayerName(), AcString(L"SB文字"));
    EXPECT_EQ(copy.GetShouBianLineLayerName(), AcString(L"SB线"));
    EXPECT_EQ(copy.GetNodeBasicJsonStr(), AcString(L"{\"a\":1}"));
    EXPECT_EQ(copy.GetShouBianJsonStr().wstr(), json.wstr());
    EXPECT_EQ(copy.GetAccessoryJsonStr(), AcString(L"[\"螺钉\"]"));
    AcString value;
    ASSERT_NE(copy.GetNode(L"Extra"), nullptr);
    EXPECT_TRUE(copy.GetNode(L"Extra")->GetValue(L"名字", value));
    EXPECT_EQ(value, AcString(L"值"));
    EXPECT_EQ(qxtest::FileOut(&copy, working.db()), bytes);
}

// A record as an older writer may have left it: only the draw options among the integers,
// no doubles, strings or points.
TEST(AecDivisionLineFilingTest, AShortRecordSetsOnlyWhatItHolds)
{
    auto line = MakeFullLine();
    headless::RecordingDwgFiler filer;
    ASSERT_EQ(line->AcDbCurve::dwgOutFields(&filer), Acad::eOk);
    filer.writeInt32(1);  // version
    filer.writeInt32(1);
    filer.writeBool(false);
    filer.writeInt32(1);
    filer.writeInt32(kDrawCenterLine);
    for (int group = 0; group < 7; ++group)  // doubles .. hard pointer ids: all empty
        filer.writeInt32(0);
    filer.writeString(L"{}");
    filer.writeString(L"");
    filer.writeString(L"");
    WriteEmptyTree(filer);
    filer.rewind();

    ASSERT_EQ(line->dwgInFields(&filer), Acad::eOk);
    EXPECT_EQ(line->GetDrawOptions(), kDrawCenterLine);
    EXPECT_EQ(line->GetJieDianTextColorIndex(), 1);
    EXPECT_EQ(line->GetJieDianBoundaryColorIndex(), 2);
    EXPECT_EQ(line->GetShouBianTextColorIndex(), 3);
    EXPECT_EQ(line->GetShouBianLineColorIndex(), 4);
    EXPECT_EQ(line->GetIndentLeft(), 12.5);
    EXPECT_EQ(line->GetBulge(), 0.25);
    EXPECT_EQ(line->GetShouBianLineLayerName(), AcString(L"SB线"));
    EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), P(400, 600)));
    EXPECT_EQ(line->GetNodeBasicJsonStr(), AcString(L"{}"));
}

TEST(AecDivisionLineFilingTest, FewerThanThreePointsKeepTheGeometry)
{
    auto line = MakeFullLine();
    headless::RecordingDwgFiler filer;
    ASSERT_EQ(line->AcDbCurve::dwgOutFields(&filer), Acad::eOk);
    filer.writeInt32(1);
    for (int group = 0; group < 5; ++group)  // bools .. 3D vectors
        filer.writeInt32(0);
    filer.writeInt32(2);
    filer.writePoint3d(P(1, 1));
    filer.writePoint3d(P(2, 2));
    for (int group = 0; group < 3; ++group)
        filer.writeInt32(0);
    for (int json = 0; json < 3; ++json)
        filer.writeString(L"");
    WriteEmptyTree(filer);
    filer.rewind();
    EXPECT_EQ(line->dwgInFields(&filer), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(line->GetStartPoint(), P(100, 200)));
    EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), P(400, 600)));
}

TEST(AecDivisionLineFilingTest, ANewerVersionIsRefusedAndChangesNothing)
{
    auto line = MakeFullLine();
    headless::RecordingDwgFiler filer;
    ASSERT_EQ(line->AcDbCurve::dwgOutFields(&filer), Acad::eOk);
    filer.writeInt32(2);
    filer.writeInt32(1);
    filer.writeBool(false);
    filer.rewind();
    EXPECT_EQ(line->dwgInFields(&filer), Acad::eMakeMeProxy);
    EXPECT_EQ(static_cast<int>(Acad::eMakeMeProxy), 301);
    EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), P(400, 600)));
    EXPECT_EQ(line->GetIndentLeft(), 12.5);
}

TEST(AecDivisionLineFilingTest, DamagedCountsAreReportedNotFollowed)
{
    struct Row {
        const char* name;
        Adesk::Int32 boolCount;
        Acad::ErrorStatus expected;
    };
    const Row rows[] = {
        {"negative count", -3, Acad::eDwgObjectImproperlyRead},
        {"count far beyond the data", 0x7FFFFFFF, Acad::eEndOfFile},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        auto line = MakeFullLine();
        headless::RecordingDwgFiler filer;
        ASSERT_EQ(line->AcDbCurve::dwgOutFields(&filer), Acad::eOk);
        filer.writeInt32(1);
        filer.writeInt32(row.boolCount);
        filer.writeBool(false);
        filer.rewind();
        EXPECT_EQ(line->dwgInFields(&filer), row.expected);
        // What was not read stays; the line stays within its limits.
        EXPECT_EQ(line->GetIndentRight(), 7.25);
        EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), P(400, 600)));
    }
}

TEST(AecDivisionLineFilingTest, ANullFilerIsRefused)
{
    auto line = MakeFullLine();
    EXPECT_EQ(line->dwgOutFields(nullptr), Acad::eNullObjectPointer);
    EXPECT_EQ(static_cast<int>(Acad::eNullObjectPointer), 15);
}

TEST(AecDivisionLineFilingTest, ReadingAppliesTheLengthRule)
{
    auto line = MakeFullLine();
    headless::RecordingDwgFiler filer;
    ASSERT_EQ(line->AcDbCurve::dwgOutFields(&filer), Acad::eOk);
    filer.writeInt32(1);
    for (int group = 0; group < 5; ++group)
        filer.writeInt32(0);
    filer.writeInt32(3);
    filer.writePoint3d(P(10, 10));
    filer.writePoint3d(P(11, 10));
    filer.writePoint3d(P(10, 20));
    for (int group = 0; group < 3; ++group)
        filer.writeInt32(0);
    for (int json = 0; json < 3; ++json)
        filer.writeString(L"");
    WriteEmptyTree(filer);
    filer.rewind();
    ASSERT_EQ(line->dwgInFields(&filer), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(line->GetEndPoint(), P(15, 10), 1e-9));
    EXPECT_TRUE(qxtest::Near(line->GetBoundaryIdentifierPoint(), P(10, 20)));
}

}  // namespace
