// The basic information block: its text written key by key, read back equal, lenient with
// mistyped plain members, strict with raw members, and never half-changed by bad text.
#include <gtest/gtest.h>

#include <limits>

#include "panel/PanelBasicInfo.h"

namespace {

using DbxPanel::PanelBasicInfo;

PanelBasicInfo Sample()
{
    PanelBasicInfo info;
    info.SetProductSeries(L"YX65-430");
    info.SetPanelName(L"屋面板A");
    info.SetBanLeiXing(L"YX51-380-760");
    info.SetRoofPanelHand(1);
    info.SetRoofPanelXingShi(2);
    info.SetThickness(0.6);
    info.SetStandardWidth(760);
    info.SetInnerColor(L"海蓝");
    info.SetOutColor(L"白灰");
    info.SetPositivePressure(true);
    info.SetInstallationPosition(3);
    info.SetArcLength(12500.5);
    info.SetRadius(30000);
    info.SetContractNum(L"HT-2024-018");
    info.SetDirectionType(1);
    info.SetLengthDirection(AcGeVector2d(0, 1));
    info.SetTextXDirection(AcGeVector2d(1, 0));
    info.SetSlopeInputRaw(L"5%");
    info.SetSlopeAngleRadians(0.05);
    info.SetAnchorModeLength(2);
    info.SetAnchorModeWidth(1);
    info.SetPanelParametersJson(L"[{\"name\":\"搭接\",\"value\":150}]");
    info.SetPrimaryAxis(L"A");
    info.SetSecondaryAxisStart(L"1");
    info.SetSecondaryAxisEnd(L"12");
    info.SetConstructionArea(L"一区");
    info.SetGuiBingLength(12000);
    info.SetGuiBingWidth(760);
    info.SetMaterialCode(L"M-0601");
    info.SetUniqueNum(L"P-000123");
    info.SetLayoutConfigId(L"cfg-7");
    info.SetMaterialDataJson(L"{\"钢厂\":\"宝钢\",\"镀层\":\"AZ150\"}");
    return info;
}

PanelBasicInfo Read(const wchar_t* json)
{
    PanelBasicInfo info;
    AcString message;
    EXPECT_TRUE(info.FromJson(json, message)) << message;
    return info;
}

TEST(PanelBasicInfoTest, WritesEveryKeyInOrder)
{
    AcString json;
    AcString message;
    ASSERT_TRUE(Sample().ToJson(json, message)) << message;
    EXPECT_EQ(json,
              AcString(L"{\"productSeries\":\"YX65-430\",\"panelName\":\"屋面板A\",\"banLeiXing\":\"YX51-380-760\","
                       L"\"roofPanelHand\":1,\"roofPanelXingShi\":2,\"thickness\":0.6,\"standardWidth\":760.0,"
                       L"\"innerColor\":\"海蓝\",\"outColor\":\"白灰\",\"isPositivePressure\":true,"
                       L"\"installationPosition\":3,\"arcLength\":12500.5,\"radius\":30000.0,"
                       L"\"contractNum\":\"HT-2024-018\",\"directionType\":1,\"lengthDirection\":[0.0,1.0],"
                       L"\"textXDirection\":[1.0,0.0],\"slopeInputRaw\":\"5%\",\"slopeAngleRadians\":0.05,"
                       L"\"anchorModeLength\":2,\"anchorModeWidth\":1,"
                       L"\"panelParameters\":[{\"name\":\"搭接\",\"value\":150}],\"primaryAxis\":\"A\","
                       L"\"secondaryAxisStart\":\"1\",\"secondaryAxisEnd\":\"12\",\"constructionArea\":\"一区\","
                       L"\"guiBingLength\":12000,\"guiBingWidth\":760,\"materialCode\":\"M-0601\","
                       L"\"uniqueNum\":\"P-000123\",\"layoutConfigId\":\"cfg-7\","
                       L"\"materialData\":{\"钢厂\":\"宝钢\",\"镀层\":\"AZ150\"}}"));

    // Read back, the record is the same, raw members included.
    PanelBasicInfo read;
    ASSERT_TRUE(read.FromJson(json, message)) << message;
    EXPECT_EQ(read, Sample());
    EXPECT_EQ(read.GetMaterialDataJson(), AcString(L"{\"钢厂\":\"宝钢\",\"镀层\":\"AZ150\"}"));
}

TEST(PanelBasicInfoTest, AnEmptyObjectGivesTheDefaults)
{
    const PanelBasicInfo info = Read(L"{}");
    EXPECT_EQ(info, PanelBasicInfo());
    EXPECT_TRUE(info.GetProductSeries().isEmpty());
    EXPECT_EQ(info.GetThickness(), 0.0);
    EXPECT_EQ(info.GetRoofPanelHand(), 0);
    EXPECT_FALSE(info.IsPositivePressure());
    EXPECT_EQ(info.GetLengthDirection().x, 0.0);
    EXPECT_EQ(info.GetLengthDirection().y, 0.0);
    EXPECT_TRUE(info.GetPanelParametersJson().isEmpty());
    EXPECT_TRUE(info.GetMaterialDataJson().isEmpty());

    // Reading replaces the whole record: what the text lacks goes back to its default.
    PanelBasicInfo replaced = Sample();
    AcString message;
    ASSERT_TRUE(replaced.FromJson(L"{\"panelName\":\"檐口板\"}", message));
    PanelBasicInfo expected;
    expected.SetPanelName(L"檐口板");
    EXPECT_EQ(replaced, expected);
}

TEST(PanelBasicInfoTest, MistypedPlainMembersKeepTheirDefaultsSilently)
{
    struct Row {
        const wchar_t* json;
        double thickness;
        int hand;
        double directionX;
        bool positive;
    };
    const Row rows[] = {
        {L"{\"thickness\":\"0.8\"}", 0.0, 0, 0.0, false},         // a number given as text
        {L"{\"thickness\":1}", 1.0, 0, 0.0, false},               // an integer is a number
        {L"{\"roofPanelHand\":1.5}", 0.0, 0, 0.0, false},         // integers accept only integers
        {L"{\"roofPanelHand\":3000000000}", 0.0, 0, 0.0, false},  // beyond 32 bits
        {L"{\"lengthDirection\":[1,0,0]}", 0.0, 0, 0.0, false},   // a vector has two numbers
        {L"{\"lengthDirection\":[1,\"0\"]}", 0.0, 0, 0.0, false},
        {L"{\"lengthDirection\":[1,0]}", 0.0, 0, 1.0, false},
        {L"{\"isPositivePressure\":1}", 0.0, 0, 0.0, false},  // a flag is true or false
        {L"{\"isPositivePressure\":true,\"roofPanelHand\":-2}", 0.0, -2, 0.0, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(AcString(row.json));
        const PanelBasicInfo info = Read(row.json);
        EXPECT_EQ(info.GetThickness(), row.thickness);
        EXPECT_EQ(info.GetRoofPanelHand(), row.hand);
        EXPECT_EQ(info.GetLengthDirection().x, row.directionX);
        EXPECT_EQ(info.GetLengthDirection().y, 0.0);
        EXPECT_EQ(info.IsPositivePressure(), row.positive);
    }
}

TEST(PanelBasicInfoTest, RawMembersAreKeptAsCompactText)
{
    const PanelBasicInfo info =
        Read(L"{ \"materialData\" : { \"镀层\" : \"AZ150\", \"厚\" : [ 0.6 , 0.8 ] }, \"panelParameters\" : [ ] }");
    EXPECT_EQ(info.GetMaterialDataJson(), AcString(L"{\"镀层\":\"AZ150\",\"厚\":[0.6,0.8]}"));
    EXPECT_EQ(info.GetPanelParametersJson(), AcString(L"[]"));

    const PanelBasicInfo nulls = Read(L"{\"materialData\":null,\"panelParameters\":null}");
    EXPECT_TRUE(nulls.GetMaterialDataJson().isEmpty());
    EXPECT_TRUE(nulls.GetPanelParametersJson().isEmpty());

    // Empty raw text writes null.
    AcString json;
    AcString message;
    ASSERT_TRUE(nulls.ToJson(json, message));
    EXPECT_NE(json.find(L"\"panelParameters\":null,"), -1) << json;
    EXPECT_NE(json.find(L"\"materialData\":null}"), -1) << json;
}

TEST(PanelBasicInfoTest, BadTextFailsWithItsMessageAndChangesNothing)
{
    struct Row {
        const wchar_t* json;
        const wchar_t* message;
    };
    const Row rows[] = {
        {L"", L"基础信息 JSON 为空。"},
        {L"[]", L"基础信息必须是有效 JSON 对象（解析位置 0）。"},
        {L"abc", L"基础信息必须是有效 JSON 对象（解析位置 0）。"},
        {L"{\"thickness\":}", L"基础信息必须是有效 JSON 对象（解析位置 13）。"},
        {L"{\"materialData\":\"text\"}", L"materialData 必须是 JSON 对象或 null，不能是字符串或其它类型。"},
        {L"{\"materialData\":[1]}", L"materialData 必须是 JSON 对象或 null，不能是字符串或其它类型。"},
        {L"{\"panelParameters\":{}}", L"panelParameters 必须是 JSON 数组或 null，不能是字符串或其它类型。"},
        {L"{\"panelParameters\":\"[]\"}", L"panelParameters 必须是 JSON 数组或 null，不能是字符串或其它类型。"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(AcString(row.json));
        PanelBasicInfo info = Sample();
        AcString message;
        EXPECT_FALSE(info.FromJson(row.json, message));
        EXPECT_EQ(message, AcString(row.message));
        EXPECT_EQ(info, Sample());
    }
}

TEST(PanelBasicInfoTest, AFailedWriteSaysWhyAndLeavesTheText)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const double infinity = std::numeric_limits<double>::infinity();
    const wchar_t* const nanMessage = L"基础信息 JSON 写入失败，请检查数值是否含 NaN 或无穷大。";
    struct Row {
        const char* what;
        PanelBasicInfo info;
        const wchar_t* message;
    };
    std::vector<Row> rows = {
        {"NaN slope", Sample(), nanMessage},
        {"infinite thickness", Sample(), nanMessage},
        {"NaN in a vector", Sample(), nanMessage},
        {"broken material data", Sample(), L"materialData 必须是有效 JSON 对象，不能省略损坏的数据（解析位置 6）。"},
        {"parameters that are not an array", Sample(), L"panelParameters 数据写入失败。"},
    };
    rows[0].info.SetSlopeAngleRadians(nan);
    rows[1].info.SetThickness(infinity);
    rows[2].info.SetTextXDirection(AcGeVector2d(nan, 0));
    rows[3].info.SetMaterialDataJson(L"{\"a\":1");
    rows[4].info.SetPanelParametersJson(L"{\"a\":1}");
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        AcString json(L"stored");
        AcString message;
        EXPECT_FALSE(row.info.ToJson(json, message));
        EXPECT_EQ(message, AcString(row.message));
        EXPECT_EQ(json, AcString(L"stored"));
    }
}

}  // namespace
