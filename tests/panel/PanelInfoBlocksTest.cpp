// The numbering, merge and shape blocks: their texts key by key, round trips, the handle
// lists, and their messages, which follow the basic block's wording with their own names.
#include <gtest/gtest.h>

#include <limits>

#include "panel/NumberingAndEncodingInfo.h"
#include "panel/PanelMergeInfo.h"
#include "panel/PanelShapeInfo.h"

namespace {

using DbxPanel::NumberingAndEncodingInfo;
using DbxPanel::PanelMergeInfo;
using DbxPanel::PanelShapeInfo;

NumberingAndEncodingInfo SampleNumbering()
{
    NumberingAndEncodingInfo info;
    info.SetNumbered(true);
    info.SetFinalDisplayNumber(L"WM-A1-012");
    info.SetSequence(12);
    info.SetCustomPrefix(1, L"WM");
    info.SetCustomPrefix(3, L"A1");
    info.SetShapeSuffix(L"L");
    info.SetDrawingNumSuffix(L"S03");
    info.SetMergeSuffix(L"H");
    info.SetCustomSuffix(L"甲");
    return info;
}

PanelMergeInfo SampleMerge()
{
    PanelMergeInfo info;
    info.SetDirection(1);
    info.SetHandle(L"2A");
    info.SetSequenceNumber(2);
    info.SetRelatedPanelHandles({L"2B", L"2C"});
    info.SetMergedLength(18000.25);
    info.SetMergedWidth(760);
    return info;
}

PanelShapeInfo SampleShape()
{
    PanelShapeInfo info;
    info.SetShapeType(1);
    info.SetPosition(2);
    info.SetCornerPanelAngle(135);
    info.SetZiMuKouType(1);
    info.SetHandle(L"3F");
    info.SetRelatedPanelHandles({L"40"});
    return info;
}

template <typename Record>
void ExpectWrittenAndReadBack(const Record& record, const wchar_t* expected)
{
    AcString json;
    AcString message;
    ASSERT_TRUE(record.ToJson(json, message)) << message;
    EXPECT_EQ(json, AcString(expected));
    Record read;
    ASSERT_TRUE(read.FromJson(json, message)) << message;
    EXPECT_EQ(read, record);
}

TEST(PanelInfoBlocksTest, EachBlockWritesItsKeysInOrderAndReadsBackEqual)
{
    ExpectWrittenAndReadBack(SampleNumbering(),
                             L"{\"isNumbered\":true,\"finalDisplayNumber\":\"WM-A1-012\",\"sequence\":12,"
                             L"\"customPrefix_1\":\"WM\",\"customPrefix_2\":\"\",\"customPrefix_3\":\"A1\","
                             L"\"customPrefix_4\":\"\",\"customPrefix_5\":\"\",\"shapeSuffix\":\"L\","
                             L"\"drawingNumSuffix\":\"S03\",\"mergeSuffix\":\"H\",\"customSuffix\":\"甲\"}");
    ExpectWrittenAndReadBack(
        SampleMerge(),
        L"{\"direction\":1,\"handle\":\"2A\",\"sequenceNumber\":2,"
        L"\"relatedPanelHandles\":[\"2B\",\"2C\"],\"mergedLength\":18000.25,\"mergedWidth\":760.0}");
    ExpectWrittenAndReadBack(SampleShape(),
                             L"{\"shapeType\":1,\"position\":2,\"cornerPanelAngle\":135,\"ziMuKouType\":1,"
                             L"\"handle\":\"3F\",\"relatedPanelHandles\":[\"40\"]}");
}

TEST(PanelInfoBlocksTest, CustomPrefixesAreNumberedOneToFive)
{
    NumberingAndEncodingInfo info;
    AcString message;
    ASSERT_TRUE(info.FromJson(L"{\"customPrefix_1\":\"一\",\"customPrefix_5\":\"五\"}", message));
    EXPECT_EQ(info.GetCustomPrefix(1), AcString(L"一"));
    EXPECT_EQ(info.GetCustomPrefix(5), AcString(L"五"));
    EXPECT_TRUE(info.GetCustomPrefix(2).isEmpty());
    // Outside 1..5 nothing is read or stored.
    info.SetCustomPrefix(0, L"x");
    info.SetCustomPrefix(6, L"x");
    EXPECT_TRUE(info.GetCustomPrefix(0).isEmpty());
    EXPECT_TRUE(info.GetCustomPrefix(6).isEmpty());
    NumberingAndEncodingInfo expected;
    expected.SetCustomPrefix(1, L"一");
    expected.SetCustomPrefix(5, L"五");
    EXPECT_EQ(info, expected);
}

TEST(PanelInfoBlocksTest, HandleListsAreTakenOnlyWhenEveryEntryIsText)
{
    struct Row {
        const wchar_t* json;
        std::vector<AcString> handles;
    };
    const Row rows[] = {
        {L"{\"relatedPanelHandles\":[\"1A\",\"1B\"]}", {L"1A", L"1B"}},
        {L"{\"relatedPanelHandles\":[]}", {}},
        {L"{\"relatedPanelHandles\":[\"1A\",27]}", {}},
        {L"{\"relatedPanelHandles\":\"1A\"}", {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(AcString(row.json));
        AcString message;
        PanelMergeInfo merge;
        ASSERT_TRUE(merge.FromJson(row.json, message)) << message;
        EXPECT_EQ(merge.GetRelatedPanelHandles(), row.handles);
        PanelShapeInfo shape;
        ASSERT_TRUE(shape.FromJson(row.json, message)) << message;
        EXPECT_EQ(shape.GetRelatedPanelHandles(), row.handles);
    }
}

TEST(PanelInfoBlocksTest, MessagesNameTheirBlock)
{
    struct Row {
        const wchar_t* json;
        const wchar_t* numbering;
        const wchar_t* merge;
        const wchar_t* shape;
    };
    const Row rows[] = {
        {L"", L"编号和编码信息 JSON 为空。", L"板材合并信息 JSON 为空。", L"板材形状信息 JSON 为空。"},
        {L"[1]", L"编号和编码信息必须是有效 JSON 对象（解析位置 0）。",
         L"板材合并信息必须是有效 JSON 对象（解析位置 0）。", L"板材形状信息必须是有效 JSON 对象（解析位置 0）。"},
        {L"{\"sequence\":1,,}", L"编号和编码信息必须是有效 JSON 对象（解析位置 14）。",
         L"板材合并信息必须是有效 JSON 对象（解析位置 14）。", L"板材形状信息必须是有效 JSON 对象（解析位置 14）。"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(AcString(row.json));
        AcString message;
        NumberingAndEncodingInfo numbering = SampleNumbering();
        EXPECT_FALSE(numbering.FromJson(row.json, message));
        EXPECT_EQ(message, AcString(row.numbering));
        EXPECT_EQ(numbering, SampleNumbering());
        PanelMergeInfo merge = SampleMerge();
        EXPECT_FALSE(merge.FromJson(row.json, message));
        EXPECT_EQ(message, AcString(row.merge));
        EXPECT_EQ(merge, SampleMerge());
        PanelShapeInfo shape = SampleShape();
        EXPECT_FALSE(shape.FromJson(row.json, message));
        EXPECT_EQ(message, AcString(row.shape));
        EXPECT_EQ(shape, SampleShape());
    }

    PanelMergeInfo infinite = SampleMerge();
    infinite.SetMergedWidth(std::numeric_limits<double>::infinity());
    AcString json(L"stored");
    AcString message;
    EXPECT_FALSE(infinite.ToJson(json, message));
    EXPECT_EQ(message, AcString(L"板材合并信息 JSON 写入失败，请检查数值是否含 NaN 或无穷大。"));
    EXPECT_EQ(json, AcString(L"stored"));
}

}  // namespace
