// The overlap and structural lines' filing: the typed record each writes after the host
// curve's fields, and records from writers that stored fewer values.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "LineTestSupport.h"
#include "ModuleTestSupport.h"
#include "headless/RecordingDwgFiler.h"
#include "lines/AecOverlapLine.h"
#include "lines/AecStructuralLine.h"

namespace {

using linetest::P;

// An empty data tree, as the record's last item.
const std::vector<std::string> kEmptyTree = {"writeInt32 -1001", "writeInt32 1", "writeInt32 0", "writeInt32 0"};

void WriteEmptyTree(headless::RecordingDwgFiler& filer)
{
    filer.writeInt32(-1001);
    filer.writeInt32(1);
    filer.writeInt32(0);
    filer.writeInt32(0);
}

// The transcript lines after the host curve's own.
std::vector<std::string> OwnTranscript(const AcDbCurve& line)
{
    headless::RecordingDwgFiler hostOnly;
    line.AcDbCurve::dwgOutFields(&hostOnly);
    const auto lines = qxtest::FilingTranscript(&line);
    EXPECT_GT(lines.size(), hostOnly.lines().size());
    return std::vector<std::string>(lines.begin() + static_cast<long>(hostOnly.lines().size()), lines.end());
}

template <typename Line>
void SetDisplaySettings(Line& line)
{
    line.SetJieDianTextColorIndex(1);
    line.SetJieDianBoundaryColorIndex(2);
    line.SetShouBianTextColorIndex(3);
    line.SetShouBianLineColorIndex(4);
    line.SetJieDianTextLayerName(L"JD文字");
    line.SetJieDianBoundaryLayerName(L"JD边界");
    line.SetShouBianTextLayerName(L"SB文字");
    line.SetShouBianLineLayerName(L"SB线");
    line.SetNodeBasicJsonStr(L"{\"a\":1}");
    line.SetAccessoryJsonStr(L"[\"螺钉\"]");
}

std::vector<std::string> Concat(std::vector<std::string> a, const std::vector<std::string>& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

TEST(StraightLayoutLineFilingTest, TheOverlapLinesTypedRecord)
{
    AecOverlapLine line;
    line.SetPoints(P(100, 200), P(400, 600));
    line.SetOverlapLeft(12.5);
    line.SetOverlapRight(7.25);
    line.SetOverlapDirection(RightOverLeft);
    line.SetDrawOptions(static_cast<OverlapDrawOptions>(11));
    SetDisplaySettings(line);
    const std::vector<std::string> expected = {
        "writeInt32 1",  // class version
        "writeInt32 0",  // no bools
        "writeInt32 6",
        "writeInt32 11",
        "writeInt32 1",
        "writeInt32 2",
        "writeInt32 3",
        "writeInt32 4",
        "writeInt32 1",  // the direction last
        "writeInt32 2",
        "writeDouble 12.5",
        "writeDouble 7.25",
        "writeInt32 4",
        "writeString \"JD文字\"",
        "writeString \"JD边界\"",
        "writeString \"SB文字\"",
        "writeString \"SB线\"",
        "writeInt32 0",  // 3D vectors
        "writeInt32 2",
        "writePoint3d (100, 200, 0)",
        "writePoint3d (400, 600, 0)",
        "writeInt32 0",  // 2D points
        "writeInt32 0",  // soft pointer ids
        "writeInt32 0",  // hard pointer ids
        "writeString \"{\\\"a\\\":1}\"",
        "writeString \"\"",
        "writeString \"[\\\"螺钉\\\"]\"",
    };
    EXPECT_EQ(OwnTranscript(line), Concat(expected, kEmptyTree));
}

TEST(StraightLayoutLineFilingTest, TheStructuralLinesTypedRecord)
{
    AecStructuralLine line;
    line.SetPoints(P(100, 200), P(400, 600));
    line.SetMemberType(kStructuralBeam);
    line.SetMemberWidthLeft(80);
    line.SetMemberWidthRight(70.5);
    line.SetIndentLeft(40);
    line.SetIndentRight(45.25);
    line.SetDrawOptions(static_cast<StructuralDrawOptions>(7));
    SetDisplaySettings(line);
    const std::vector<std::string> expected = {
        "writeInt32 1",  // class version
        "writeInt32 0",  // no bools
        "writeInt32 6",
        "writeInt32 7",
        "writeInt32 0",  // the member type second
        "writeInt32 1",
        "writeInt32 2",
        "writeInt32 3",
        "writeInt32 4",
        "writeInt32 4",
        "writeDouble 80",
        "writeDouble 70.5",
        "writeDouble 40",
        "writeDouble 45.25",
        "writeInt32 4",
        "writeString \"JD文字\"",
        "writeString \"JD边界\"",
        "writeString \"SB文字\"",
        "writeString \"SB线\"",
        "writeInt32 0",  // 3D vectors
        "writeInt32 2",
        "writePoint3d (100, 200, 0)",
        "writePoint3d (400, 600, 0)",
        "writeInt32 0",  // 2D points
        "writeInt32 0",  // soft pointer ids
        "writeInt32 0",  // hard pointer ids
        "writeString \"{\\\"a\\\":1}\"",
        "writeString \"\"",
        "writeString \"[\\\"螺钉\\\"]\"",
    };
    EXPECT_EQ(OwnTranscript(line), Concat(expected, kEmptyTree));
}

// An older writer stored five integers: the draw options and the colours, no direction.
TEST(StraightLayoutLineFilingTest, AnOverlapRecordOfFiveIntegersKeepsTheDirection)
{
    AecOverlapLine line;
    line.SetPoints(P(100, 200), P(400, 600));
    line.SetOverlapDirection(RightOverLeft);
    headless::RecordingDwgFiler filer;
    ASSERT_EQ(line.AcDbCurve::dwgOutFields(&filer), Acad::eOk);
    filer.writeInt32(1);  // version
    filer.writeInt32(0);  // bools
    filer.writeInt32(5);
    for (Adesk::Int32 value : {9, 11, 12, 13, 14})
        filer.writeInt32(value);
    filer.writeInt32(1);  // one double: the left width
    filer.writeDouble(33);
    for (int group = 0; group < 6; ++group)  // strings .. hard pointer ids: none
        filer.writeInt32(0);
    for (int json = 0; json < 3; ++json)
        filer.writeString(L"");
    WriteEmptyTree(filer);
    filer.rewind();

    ASSERT_EQ(line.dwgInFields(&filer), Acad::eOk);
    EXPECT_EQ(line.GetOverlapDirection(), RightOverLeft);
    EXPECT_EQ(line.GetDrawOptions(), 9);
    EXPECT_EQ(line.GetJieDianTextColorIndex(), 11);
    EXPECT_EQ(line.GetShouBianLineColorIndex(), 14);
    EXPECT_EQ(line.GetOverlapLeft(), 33.0);
    EXPECT_EQ(line.GetOverlapRight(), 20.0);
    // Fewer than two points are no geometry: the line stays where it was.
    EXPECT_TRUE(qxtest::Near(line.GetStartPoint(), P(100, 200)));
    EXPECT_TRUE(qxtest::Near(line.GetEndPoint(), P(400, 600)));
}

// Read into a new line, whatever the record lacks keeps the defaults.
TEST(StraightLayoutLineFilingTest, AShortStructuralRecordKeepsTheDefaultsOfWhatItLacks)
{
    AecStructuralLine source;
    headless::RecordingDwgFiler filer;
    ASSERT_EQ(source.AcDbCurve::dwgOutFields(&filer), Acad::eOk);
    filer.writeInt32(1);  // version
    filer.writeInt32(0);  // bools
    filer.writeInt32(1);  // the draw options only
    filer.writeInt32(kStructuralDrawIndentLines);
    filer.writeInt32(2);  // the member widths only
    filer.writeDouble(90);
    filer.writeDouble(60);
    filer.writeInt32(1);  // the JieDian text layer only
    filer.writeString(L"文字");
    filer.writeInt32(0);  // 3D vectors
    filer.writeInt32(2);
    filer.writePoint3d(P(10, 10));
    filer.writePoint3d(P(12, 10));  // too short: the end goes 5 from the start
    for (int group = 0; group < 3; ++group)
        filer.writeInt32(0);
    for (int json = 0; json < 3; ++json)
        filer.writeString(L"");
    WriteEmptyTree(filer);
    filer.rewind();

    AecStructuralLine line;
    ASSERT_EQ(line.dwgInFields(&filer), Acad::eOk);
    EXPECT_EQ(line.GetDrawOptions(), kStructuralDrawIndentLines);
    EXPECT_EQ(line.GetMemberType(), kStructuralColumn);
    EXPECT_EQ(line.GetJieDianTextColorIndex(), 0);
    EXPECT_EQ(line.GetMemberWidthLeft(), 90.0);
    EXPECT_EQ(line.GetMemberWidthRight(), 60.0);
    EXPECT_EQ(line.GetIndentLeft(), 50.0);
    EXPECT_EQ(line.GetIndentRight(), 50.0);
    EXPECT_EQ(line.GetJieDianTextLayerName(), AcString(L"文字"));
    EXPECT_TRUE(line.GetJieDianBoundaryLayerName().isEmpty());
    EXPECT_TRUE(qxtest::Near(line.GetStartPoint(), P(10, 10)));
    EXPECT_TRUE(qxtest::Near(line.GetEndPoint(), P(15, 10), 1e-9));
}

}  // namespace
