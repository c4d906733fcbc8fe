// The hatch description: when it counts as data and as an enabled hatch, and its JSON,
// which updates only the members the text holds with their type.
#include <gtest/gtest.h>

#include <limits>

#include "panel/HatchPatternInfo.h"

namespace {

using DbxPanel::HatchPatternInfo;

HatchPatternInfo Pattern(const wchar_t* name, double scale, int fillColor)
{
    HatchPatternInfo info;
    info.SetPatternName(name);
    info.SetPatternScale(scale);
    info.SetFillColor(fillColor);
    return info;
}

TEST(HatchPatternInfoTest, DataAndEnabledFollowNameScaleAndFill)
{
    struct Row {
        const char* what;
        HatchPatternInfo info;
        bool hasData;
        bool enabled;
    };
    const Row rows[] = {
        {"default record", HatchPatternInfo(), true, false},
        {"no name, valid scale and fill", Pattern(L"", 2.0, 3), true, false},
        {"name, scale 1, no fill", Pattern(L"ANSI31", 1.0, -1), true, false},
        {"name, scale 1, fill 3", Pattern(L"ANSI31", 1.0, 3), true, true},
        {"name, fill 0 (by block)", Pattern(L"ANSI31", 1.0, 0), true, true},
        {"name, scale 0", Pattern(L"ANSI31", 0.0, 3), false, false},
        {"name, negative scale", Pattern(L"ANSI31", -1.0, 3), false, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(row.info.HasData(), row.hasData);
        EXPECT_EQ(row.info.IsHatchEnabled(), row.enabled);
    }
}

TEST(HatchPatternInfoTest, ADefaultRecordIsADisabledHatch)
{
    const HatchPatternInfo info;
    EXPECT_EQ(info.GetPatternType(), 1);
    EXPECT_TRUE(info.GetPatternName().isEmpty());
    EXPECT_EQ(info.GetPatternScale(), -1.0);
    EXPECT_EQ(info.GetPatternAngle(), 0.0);
    EXPECT_EQ(info.GetFillColor(), -1);
    EXPECT_EQ(info.ToJson(),
              AcString(L"{\"patternType\":1,\"patternName\":\"\",\"patScale\":-1.0,"
                       L"\"patternAngle\":0.0,\"patFillColor\":-1}"));
}

TEST(HatchPatternInfoTest, ReadingUpdatesOnlyWellTypedMembers)
{
    HatchPatternInfo previous = Pattern(L"AR-CONC", 2.5, 8);
    previous.SetPatternAngle(45);

    struct Row {
        const wchar_t* json;
        int type;
        const wchar_t* name;
        double scale;
        double angle;
        int fill;
    };
    const Row rows[] = {
        {L"{}", 1, L"AR-CONC", 2.5, 45, 8},
        {L"{\"patScale\":\"3\"}", 1, L"AR-CONC", 2.5, 45, 8},  // a string keeps the previous scale
        {L"{\"patScale\":3}", 1, L"AR-CONC", 3, 45, 8},
        {L"{\"patternType\":1.5,\"patFillColor\":\"3\"}", 1, L"AR-CONC", 2.5, 45, 8},
        {L"{\"patternType\":0,\"patternName\":\"ANSI37\",\"patternAngle\":-30.5,\"patFillColor\":-1}", 0, L"ANSI37",
         2.5, -30.5, -1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(AcString(row.json));
        HatchPatternInfo info = previous;
        EXPECT_TRUE(info.FromJson(row.json));
        EXPECT_EQ(info.GetPatternType(), row.type);
        EXPECT_EQ(info.GetPatternName(), AcString(row.name));
        EXPECT_EQ(info.GetPatternScale(), row.scale);
        EXPECT_EQ(info.GetPatternAngle(), row.angle);
        EXPECT_EQ(info.GetFillColor(), row.fill);
    }

    for (const wchar_t* bad : {L"", L"[]", L"abc", L"{\"patScale\":}"}) {
        SCOPED_TRACE(AcString(bad));
        HatchPatternInfo info = previous;
        EXPECT_FALSE(info.FromJson(bad));
        EXPECT_EQ(info, previous);
    }
}

TEST(HatchPatternInfoTest, WrittenAndReadBackEqual)
{
    HatchPatternInfo info = Pattern(L"钢板纹", 0.125, 251);
    info.SetPatternType(2);
    info.SetPatternAngle(90);
    const AcString json = info.ToJson();
    EXPECT_EQ(json,
              AcString(L"{\"patternType\":2,\"patternName\":\"钢板纹\",\"patScale\":0.125,"
                       L"\"patternAngle\":90.0,\"patFillColor\":251}"));
    HatchPatternInfo read;
    EXPECT_TRUE(read.FromJson(json));
    EXPECT_EQ(read, info);

    // JSON has no NaN: such a record writes nothing rather than something unreadable.
    info.SetPatternScale(std::numeric_limits<double>::quiet_NaN());
    EXPECT_TRUE(info.ToJson().isEmpty());
}

}  // namespace
