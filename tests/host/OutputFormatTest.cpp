// The command line: acutPrintf and AcString formatting with the host's wide-format rules,
// alerts, capture, text encodings and error status names.
#include <gtest/gtest.h>

#include "AcString.h"
#include "acadstrc.h"
#include "acedads.h"
#include "acutads.h"
#include "headless/CommandLine.h"
#include "headless/TextCodec.h"

namespace {

TEST(HostFormatTest, ConversionsFollowTheHostRules)
{
    struct Row {
        const char* what;
        std::wstring printed;
        std::wstring expected;
    };
    const Row rows[] = {
        {"%s takes a wide string", headless::formatHostString(L"[%s]", L"板材"), L"[板材]"},
        {"%S takes a narrow string", headless::formatHostString(L"[%S]", "narrow"), L"[narrow]"},
        {"%ls stays wide", headless::formatHostString(L"[%ls]", L"wide"), L"[wide]"},
        {"%hs is narrow", headless::formatHostString(L"[%hs]", "h"), L"[h]"},
        {"%c takes a wide character", headless::formatHostString(L"[%c]", L'孔'), L"[孔]"},
        {"%d", headless::formatHostString(L"%d", -12345), L"-12345"},
        {"%u", headless::formatHostString(L"%u", 4000000000u), L"4000000000"},
        {"%.3f rounds", headless::formatHostString(L"%.3f", 2.71828), L"2.718"},
        {"%.3f of a negative half", headless::formatHostString(L"%.3f", -0.0005), L"-0.001"},
        {"%llu", headless::formatHostString(L"%llu", 18446744073709551615ull), L"18446744073709551615"},
        {"%I64d", headless::formatHostString(L"%I64d", static_cast<long long>(-9000000000LL)), L"-9000000000"},
        {"%g short", headless::formatHostString(L"%g", 0.5), L"0.5"},
        {"%g large", headless::formatHostString(L"%g", 1234567.0), L"1.23457e+06"},
        {"%04d pads", headless::formatHostString(L"%04d-%02d", 7, 3), L"0007-03"},
        {"width on strings", headless::formatHostString(L"[%-5s|%5s]", L"ab", L"cd"), L"[ab   |   cd]"},
        {"%% is a percent sign", headless::formatHostString(L"100%%"), L"100%"},
        {"%X", headless::formatHostString(L"0x%X", 895u), L"0x37F"},
        {"star width", headless::formatHostString(L"[%*d]", 4, 7), L"[   7]"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(row.printed, row.expected);
    }
}

TEST(HostFormatTest, AcStringFormatsLikeThePrinter)
{
    AcString s;
    s.format(L"%s=%d", L"宽度", 300);
    EXPECT_EQ(s, AcString(L"宽度=300"));
    s.appendFormat(L" (%.1f)", 1.25);
    EXPECT_EQ(s, AcString(L"宽度=300 (1.2)"));
    EXPECT_EQ(AcString(L"x").format(L"%s", L"").length(), 0);
}

TEST(CommandLineTest, PrintedTextAndAlertsAreCaptured)
{
    headless::CommandLineCapture capture;
    const int count = acutPrintf(L"\n[提示] %s %d", L"Quarvo", 1);
    EXPECT_EQ(count, 14);
    EXPECT_EQ(acedAlert(L"请确认"), RTNORM);
    EXPECT_EQ(capture.text(), L"\n[提示] Quarvo 1");
    EXPECT_EQ(capture.utf8(), "\n[提示] Quarvo 1");
    ASSERT_EQ(capture.alerts().size(), 1u);
    EXPECT_EQ(capture.alerts()[0], L"请确认");
}

TEST(CommandLineTest, CapturesNestAndRestore)
{
    headless::CommandLineCapture outer;
    acutPrintf(L"a");
    {
        headless::CommandLineCapture inner;
        acutPrintf(L"b");
        EXPECT_EQ(inner.text(), L"b");
    }
    acutPrintf(L"c");
    EXPECT_EQ(outer.text(), L"ac");
}

TEST(TextCodecTest, RoundTripsAndRepairs)
{
    const std::wstring chinese = L"转角板 Ω";
    EXPECT_EQ(headless::fromUtf8(headless::toUtf8(chinese)), chinese);
    EXPECT_EQ(headless::toUtf8(L"板"), "\xE6\x9D\xBF");

    const std::u16string utf16 = headless::toUtf16(L"a\U0001F600");
    ASSERT_EQ(utf16.size(), 3u);  // a non-BMP character is a surrogate pair on file
    EXPECT_EQ(utf16[1], 0xD83D);
    EXPECT_EQ(utf16[2], 0xDE00);
    EXPECT_EQ(headless::fromUtf16(utf16), L"a\U0001F600");

    // Broken input becomes replacement characters; nothing is dropped silently.
    EXPECT_EQ(headless::fromUtf8("a\xFF" "b"), L"a\uFFFD" L"b");
    EXPECT_EQ(headless::fromUtf8("\xE6\x9D"), L"\uFFFD");
    EXPECT_EQ(headless::fromUtf16(std::u16string(1, char16_t(0xDC00))), L"\uFFFD");
}

TEST(ErrorStatusTest, NumbersAndNamesAreTheHostOnes)
{
    struct Row {
        Acad::ErrorStatus status;
        int number;
        const wchar_t* name;
    };
    const Row rows[] = {
        {Acad::eOk, 0, L"eOk"},
        {Acad::eNotImplementedYet, 1, L"eNotImplementedYet"},
        {Acad::eNotApplicable, 2, L"eNotApplicable"},
        {Acad::eInvalidInput, 3, L"eInvalidInput"},
        {Acad::eOutOfMemory, 6, L"eOutOfMemory"},
        {Acad::eNullObjectPointer, 15, L"eNullObjectPointer"},
        {Acad::eInvalidIndex, 24, L"eInvalidIndex"},
        {Acad::eWrongObjectType, 34, L"eWrongObjectType"},
        {Acad::eNotThatKindOfClass, 46, L"eNotThatKindOfClass"},
        {Acad::eDwgObjectImproperlyRead, 67, L"eDwgObjectImproperlyRead"},
        {Acad::eWasErased, 80, L"eWasErased"},
        {Acad::eOutOfRange, 151, L"eOutOfRange"},
        {Acad::eDegenerateGeometry, 153, L"eDegenerateGeometry"},
        {Acad::eMakeMeProxy, 301, L"eMakeMeProxy"},
        {Acad::eLockViolation, 320, L"eLockViolation"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(static_cast<int>(row.status), row.number) << headless::toUtf8(row.name);
        EXPECT_STREQ(acadErrorStatusText(row.status), row.name);
    }
    EXPECT_STREQ(acadErrorStatusText(static_cast<Acad::ErrorStatus>(9999)), L"Unknown");
}

}  // namespace
