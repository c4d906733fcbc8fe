// The JSON door: wide text in and out unchanged, the parser's offsets, numbers read back bit
// for bit, hostile nesting, and the typed member tests that the information blocks rely on.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "data/JsonText.h"

namespace {

JsonText::Document Parsed(const wchar_t* text)
{
    JsonText::Document document;
    std::size_t offset = 0;
    EXPECT_TRUE(JsonText::Parse(text, document, offset)) << AcString(text) << " stopped at " << offset;
    return document;
}

TEST(JsonTextTest, WideTextPassesThroughUnchanged)
{
    // Chinese text, a character beyond the basic plane and escapes of both.
    const JsonText::Document document =
        Parsed(L"{\"名称\":\"屋面板 𠀀\",\"escaped\":\"\\u677f\\ud840\\udc00\",\"quote\":\"a\\\"b\"}");
    AcString name;
    AcString escaped;
    AcString quote;
    ASSERT_TRUE(JsonText::GetString(document, L"名称", name));
    ASSERT_TRUE(JsonText::GetString(document, L"escaped", escaped));
    ASSERT_TRUE(JsonText::GetString(document, L"quote", quote));
    EXPECT_EQ(name, AcString(L"屋面板 𠀀"));
    EXPECT_EQ(escaped, AcString(L"板𠀀"));
    EXPECT_EQ(quote, AcString(L"a\"b"));

    AcString written;
    ASSERT_TRUE(JsonText::Write(document, written));
    EXPECT_EQ(written, AcString(L"{\"名称\":\"屋面板 𠀀\",\"escaped\":\"板𠀀\",\"quote\":\"a\\\"b\"}"));
}

TEST(JsonTextTest, AFailedParseGivesTheOffsetAndKeepsTheDocument)
{
    struct Row {
        const wchar_t* text;
        std::size_t offset;
    };
    const Row rows[] = {
        {L"", 0},               // nothing at all
        {L"abc", 0},            // no value starts with a
        {L"{\"a\":}", 5},       // the value is missing where the brace stands
        {L"{\"a\":1,}", 7},     // a name is missing after the comma
        {L"[1,2", 4},           // the text ends inside the array
        {L"{} {}", 3},          // a second root
        {L"{\"a\":1e999}", 5},  // a number no double holds
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(AcString(row.text));
        JsonText::Document document = Parsed(L"{\"kept\":true}");
        std::size_t offset = 12345;
        EXPECT_FALSE(JsonText::Parse(row.text, document, offset));
        EXPECT_EQ(offset, row.offset);
        bool kept = false;
        EXPECT_TRUE(JsonText::GetBool(document, L"kept", kept));
        EXPECT_TRUE(kept);
    }
}

TEST(JsonTextTest, TextThatIsNotUnicodeIsRefused)
{
    if (sizeof(wchar_t) < 4)
        GTEST_SKIP() << "a two-byte wchar_t cannot hold a value beyond U+10FFFF";
    std::wstring text = L"[\"?\"]";
    text[2] = static_cast<wchar_t>(0x110000);
    JsonText::Document document;
    std::size_t offset = 0;
    EXPECT_FALSE(JsonText::Parse(AcString(text), document, offset));
    EXPECT_EQ(offset, 2u);
}

TEST(JsonTextTest, DeepNestingCostsNoCallStack)
{
    // Far deeper than a recursive parser's frames would fit in a thread's stack.
    const std::size_t depth = 300000;
    const std::wstring text = std::wstring(depth, L'[') + std::wstring(depth, L']');
    JsonText::Document document;
    std::size_t offset = 0;
    ASSERT_TRUE(JsonText::Parse(AcString(text), document, offset));
    EXPECT_TRUE(document.IsArray());
}

TEST(JsonTextTest, NumbersReadBackBitForBit)
{
    const double values[] = {0.1 + 0.2, 1.0 / 3.0, -123456789.123456789, 5e-324, 1.7976931348623157e308, 2.5, -0.0};
    for (double value : values) {
        SCOPED_TRACE(value);
        JsonText::Document document(rapidjson::kObjectType);
        document.AddMember(JsonText::String(L"v", document.GetAllocator()), JsonText::Value(value),
                           document.GetAllocator());
        AcString text;
        ASSERT_TRUE(JsonText::Write(document, text));
        double read = 0.0;
        ASSERT_TRUE(JsonText::GetDouble(Parsed(text), L"v", read));
        EXPECT_EQ(std::signbit(read), std::signbit(value));
        EXPECT_EQ(read, value);
    }
}

TEST(JsonTextTest, NumbersOfManyDigitsOrLargeExponentsReadExactly)
{
    // Numbers that RapidJSON's own full-precision conversion gets wrong in undefined ways:
    // zeros with large exponents or hundreds of decimals, long fractions far below one.
    const std::wstring zeros400(400, L'0');
    struct Row {
        std::wstring number;
        double value;
        bool negative;
    };
    const Row rows[] = {
        {L"0e054", 0.0, false},
        {L"-0e99", 0.0, true},
        {L"0." + zeros400, 0.0, false},
        {L"-0." + zeros400 + L"1774394289", 0.0, true},  // below the smallest double: zero
        {L"0." + zeros400 + L"1774394289e400", 0.1774394289, false},
        {L"0.1000000000000000055511151231257827021181583404541015625", 0.1, false},
        {L"4.9406564584124654e-324", 4.9406564584124654e-324, false},
        {L"123456789012345678901234567890", 1.2345678901234568e29, false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(AcString(row.number.c_str()));
        const std::wstring text = L"{\"v\":" + row.number + L",\"s\":\"0e99\"}";
        const JsonText::Document document = Parsed(text.c_str());
        double read = 1.0;
        ASSERT_TRUE(JsonText::GetDouble(document, L"v", read));
        EXPECT_EQ(read, row.value);
        EXPECT_EQ(std::signbit(read), row.negative);
        AcString untouched;
        ASSERT_TRUE(JsonText::GetString(document, L"s", untouched));
        EXPECT_EQ(untouched, AcString(L"0e99"));
    }
    // Errors stand where RapidJSON finds them: a number's start, or where the grammar breaks.
    struct Refused {
        const wchar_t* text;
        std::size_t offset;
    };
    const Refused refused[] = {
        {L"[0e054 x]", 7}, {L"[00e54]", 2},        {L"[0e]", 3},        {L"[-0e99-1]", 6},
        {L"[0e0e054]", 4}, {L"[1e308, 2e308]", 8}, {L"[0.000E+400]", 1}};  // RapidJSON refuses exponents beyond 308,
                                                                           // even of zero
    for (const Refused& row : refused) {
        SCOPED_TRACE(AcString(row.text));
        JsonText::Document document;
        std::size_t offset = 0;
        EXPECT_FALSE(JsonText::Parse(row.text, document, offset));
        EXPECT_EQ(offset, row.offset);
    }
}

TEST(JsonTextTest, IntegersKeepTheirTypes)
{
    const JsonText::Document document =
        Parsed(L"[0, -0, 7, -7, 4294967295, 4294967296, -2147483648, -2147483649, 18446744073709551615, "
               L"18446744073709551616, -9223372036854775809]");
    ASSERT_TRUE(document.IsArray());
    EXPECT_TRUE(document[0].IsUint());
    EXPECT_TRUE(document[1].IsInt());
    EXPECT_FALSE(document[1].IsDouble());
    EXPECT_TRUE(document[2].IsUint());
    EXPECT_EQ(document[3].GetInt(), -7);
    EXPECT_EQ(document[4].GetUint(), 4294967295u);
    EXPECT_FALSE(document[5].IsUint());
    EXPECT_EQ(document[5].GetUint64(), 4294967296u);
    EXPECT_EQ(document[6].GetInt(), INT32_MIN);
    EXPECT_FALSE(document[7].IsInt());
    EXPECT_EQ(document[7].GetInt64(), -2147483649LL);
    EXPECT_EQ(document[8].GetUint64(), UINT64_MAX);
    EXPECT_TRUE(document[9].IsDouble());
    EXPECT_EQ(document[9].GetDouble(), 18446744073709551616.0);
    EXPECT_TRUE(document[10].IsDouble());
}

TEST(JsonTextTest, TheWriterRefusesWhatJsonCannotHold)
{
    const double refused[] = {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                              -std::numeric_limits<double>::infinity()};
    for (double value : refused) {
        SCOPED_TRACE(value);
        JsonText::Document document(rapidjson::kArrayType);
        document.PushBack(1, document.GetAllocator());
        document.PushBack(value, document.GetAllocator());
        AcString text(L"untouched");
        EXPECT_FALSE(JsonText::Write(document, text));
        EXPECT_EQ(text, AcString(L"untouched"));
    }
}

TEST(JsonTextTest, MembersAreTakenOnlyWithTheirType)
{
    const JsonText::Document document = Parsed(
        L"{\"int\":5,\"intAsDouble\":5.0,\"tooBig\":3000000000,\"lowest\":-2147483648,\"text\":\"5\",\"flag\":true,"
        L"\"pair\":[1,2.5],\"triple\":[1,2,3],\"mixedPair\":[1,\"2\"],"
        L"\"names\":[\"1A\",\"2B\"],\"mixedNames\":[\"1A\",2],\"noNames\":[]}");

    struct IntRow {
        const wchar_t* key;
        bool taken;
        int value;
    };
    const IntRow ints[] = {
        {L"int", true, 5},    {L"intAsDouble", false, -1}, {L"tooBig", false, -1}, {L"lowest", true, -2147483647 - 1},
        {L"text", false, -1}, {L"missing", false, -1},
    };
    for (const IntRow& row : ints) {
        SCOPED_TRACE(AcString(row.key));
        int value = -1;
        EXPECT_EQ(JsonText::GetInt(document, row.key, value), row.taken);
        EXPECT_EQ(value, row.value);
    }

    double number = -1.0;
    EXPECT_TRUE(JsonText::GetDouble(document, L"int", number));  // an integer is a number
    EXPECT_EQ(number, 5.0);
    EXPECT_FALSE(JsonText::GetDouble(document, L"text", number));
    EXPECT_EQ(number, 5.0);

    bool flag = false;
    EXPECT_TRUE(JsonText::GetBool(document, L"flag", flag));
    EXPECT_TRUE(flag);
    EXPECT_FALSE(JsonText::GetBool(document, L"int", flag));

    AcGeVector2d vector(9, 9);
    EXPECT_TRUE(JsonText::GetVector2d(document, L"pair", vector));
    EXPECT_EQ(vector.x, 1.0);
    EXPECT_EQ(vector.y, 2.5);
    for (const wchar_t* key : {L"triple", L"mixedPair", L"int", L"missing"}) {
        SCOPED_TRACE(AcString(key));
        AcGeVector2d untouched(9, 9);
        EXPECT_FALSE(JsonText::GetVector2d(document, key, untouched));
        EXPECT_EQ(untouched.x, 9.0);
    }

    std::vector<AcString> names;
    EXPECT_TRUE(JsonText::GetStringArray(document, L"names", names));
    EXPECT_EQ(names, (std::vector<AcString>{L"1A", L"2B"}));
    EXPECT_FALSE(JsonText::GetStringArray(document, L"mixedNames", names));
    EXPECT_EQ(names.size(), 2u);
    EXPECT_TRUE(JsonText::GetStringArray(document, L"noNames", names));
    EXPECT_TRUE(names.empty());

    // Look-ups in something that is not an object find nothing.
    EXPECT_EQ(JsonText::Member(Parsed(L"[1]"), L"int"), nullptr);
    AcString text(L"kept");
    EXPECT_FALSE(JsonText::GetString(Parsed(L"\"x\""), L"text", text));
    EXPECT_EQ(text, AcString(L"kept"));
}

}  // namespace
