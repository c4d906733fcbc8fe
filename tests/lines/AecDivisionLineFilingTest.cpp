// The division line's filing: the typed record after the host curve's fields, lossless
// round trips of every field (JSON text byte for byte), and records as older writers or
// damage left them.
#include <gtest/gtest.h>

#include "DivisionLineTestSupport.h"
#include "FilerScript.h"
#include "data/DataNode.h"
#include "headless/RecordingDwgFiler.h"

namespace {

using namespace linetest;

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

// What the line holds, field by field, as its getters answer.
std::vector<std::wstring> Fields(const AecDivisionLine& line)
{
    AcString text;
    const AcGePoint3d s = line.GetStartPoint();
    const AcGePoint3d e = line.GetEndPoint();
    const AcGePoint3d l = line.GetBoundaryIdentifierPoint();
    text.format(L"(%g, %g) (%g, %g) bulge %g indents %g %g label (%g, %g) options %d colours %d %d %d %d", s.x, s.y,
                e.x, e.y, line.GetBulge(), line.GetIndentLeft(), line.GetIndentRight(), l.x, l.y,
                static_cast<int>(line.GetDrawOptions()), line.GetJieDianTextColorIndex(),
                line.GetJieDianBoundaryColorIndex(), line.GetShouBianTextColorIndex(),
                line.GetShouBianLineColorIndex());
    return {text.wstr(),
            line.GetJieDianTextLayerName().wstr(),
            line.GetJieDianBoundaryLayerName().wstr(),
            line.GetShouBianTextLayerName().wstr(),
            line.GetShouBianLineLayerName().wstr(),
            line.GetNodeBasicJsonStr().wstr(),
            line.GetShouBianJsonStr().wstr(),
            line.GetAccessoryJsonStr().wstr()};
}

TEST(AecDivisionLineFilingTest, TheTypedRecordThenTheTree)
{
    auto line = MakeFullLine();
    line->AddNode(L"Extra")->SetValue(L"k", 5);
    headless::RecordingDwgFiler hostOnly;
    line->AcDbCurve::dwgOutFields(&hostOnly);
    const auto lines = qxtest::FilingTranscript(line.get());
    ASSERT_GT(lines.size(), hostOnly.lines().size());
    const std::vector<std::string> own(lines.begin() + static_cast<long>(hostOnly.lines().size()), lines.end());
    // clang-format off
    const std::vector<qxtest::FilerItem> expected = {
        1,                                                // class version
        1, true,                                          // bools
        5, 2, 1, 2, 3, 4,                                 // integers
        3, 12.5, 7.25, 0.25,                              // doubles
        4, L"JD文字", L"JD边界", L"SB文字", L"SB线",      // strings
        0,                                                // 3D vectors
        3, P(100, 200), P(400, 600), P(250, 380),         // 3D points
        0, 0, 0,                                          // 2D points, soft and hard ids
        L"{\"a\":1}", L"", L"[\"螺钉\"]",                  // the JSON blocks, without counts
        -1001, 1, 0, 1, L"Extra", 1, L"k", 0, 5, 0,       // the tree
    };
    // clang-format on
    EXPECT_EQ(own, qxtest::ItemLines(expected));
}

TEST(AecDivisionLineFilingTest, RoundTripsKeepEveryFieldAndEveryByte)
{
    qxtest::WorkingDatabase working;
    auto full = MakeFullLine();
    // Quotes, backslashes, line breaks, Chinese and a character beyond the basic plane.
    full->SetShouBianJsonStr(L"{\"名称\":\"节点 \\\"A\\\"\",\"备注\":\"第一行\\n第二行\",\"符号\":\"😀\"}");
    full->SetBulge(-3.75);
    full->AddNode(L"Extra")->SetValue(L"名字", AcString(L"值"));
    // A line the length rule pulled to its shortest, on a slant: the rule must not move it
    // again when it is read.
    auto shortest = MakeLine(P(0.1, 0.3), P(1.7, 2.9));
    for (AecDivisionLine* source : {full.get(), shortest.get()}) {
        const qxtest::Bytes bytes = qxtest::FileOut(source, working.db());
        AecDivisionLine copy;
        ASSERT_EQ(qxtest::FileIn(&copy, bytes, working.db()), Acad::eOk);
        EXPECT_EQ(Fields(copy), Fields(*source));
        EXPECT_EQ(qxtest::FileOut(&copy, working.db()), bytes);
    }
    EXPECT_EQ(Fields(*full),
              (std::vector<std::wstring>{
                  L"(100, 200) (400, 600) bulge -3.75 indents 12.5 7.25 label (250, 380) options 2 "
                  L"colours 1 2 3 4",
                  L"JD文字", L"JD边界", L"SB文字", L"SB线", L"{\"a\":1}",
                  L"{\"名称\":\"节点 \\\"A\\\"\",\"备注\":\"第一行\\n第二行\",\"符号\":\"😀\"}", L"[\"螺钉\"]"}));
}

TEST(AecDivisionLineFilingTest, ShortOrDamagedRecordsTakeOnlyWhatTheyHold)
{
    const struct {
        const char* what;
        std::vector<qxtest::FilerItem> own;  // after the host curve's fields; a whole record ends in an empty tree
        Acad::ErrorStatus status;
        const wchar_t* geometry;       // the first field, or null when it stays as it was
        const wchar_t* nodeBasicJson;  // the JSON blocks read, the others empty; null when none were
    } rows[] = {
        // An older writer: only the draw options among the integers, nothing else counted.
        {"short",
         {1, 1, false, 1, 1, 0, 0, 0, 0, 0, 0, 0, L"{}", L"", L""},
         Acad::eOk,
         L"(100, 200) (400, 600) bulge 0.25 indents 12.5 7.25 label (250, 380) options 1 colours 1 2 3 4",
         L"{}"},
        {"fewer than three points keep the geometry",
         {1, 0, 0, 0, 0, 0, 2, P(1, 1), P(2, 2), 0, 0, 0, L"", L"", L""},
         Acad::eOk,
         nullptr,
         L""},
        {"the length rule applies to what is read",
         {1, 0, 0, 0, 0, 0, 3, P(10, 10), P(11, 10), P(10, 20), 0, 0, 0, L"", L"", L""},
         Acad::eOk,
         L"(10, 10) (15, 10) bulge 0.25 indents 12.5 7.25 label (10, 20) options 2 colours 1 2 3 4",
         L""},
        {"negative count", {1, -3, false}, Acad::eDwgObjectImproperlyRead, nullptr, nullptr},
        {"count far beyond the data", {1, 0x7FFFFFFF, false}, Acad::eEndOfFile, nullptr, nullptr},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        auto line = MakeFullLine();
        std::vector<std::wstring> expected = Fields(*line);
        if (row.geometry != nullptr)
            expected[0] = row.geometry;
        if (row.nodeBasicJson != nullptr) {
            expected[5] = row.nodeBasicJson;
            expected[6] = expected[7] = L"";
        }
        headless::RecordingDwgFiler filer;
        ASSERT_EQ(line->AcDbCurve::dwgOutFields(&filer), Acad::eOk);
        qxtest::WriteItems(filer, row.own);
        if (row.status == Acad::eOk)
            qxtest::WriteItems(filer, {-1001, 1, 0, 0});
        filer.rewind();
        EXPECT_EQ(line->dwgInFields(&filer), row.status);
        EXPECT_EQ(Fields(*line), expected);
    }
}

}  // namespace
