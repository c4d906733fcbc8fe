// The build stamp printed when the module loads.
#include "BuildStamp.h"

#include <cwchar>

namespace Quarvo {
namespace {

// Integer at the start of text like the C runtime's _wtoi: leading blanks skipped,
// digits read until the first non-digit, 0 when there are none.
int LeadingInt(const AcString& text)
{
    return static_cast<int>(std::wcstol(text.kwszPtr(), nullptr, 10));
}

AcString Widen(const char* text)
{
    AcString wide;
    if (text == nullptr)
        return wide;
    for (const char* p = text; *p != '\0'; ++p)
        wide += static_cast<ACHAR>(static_cast<unsigned char>(*p));
    return wide;
}

}  // namespace

AcString FormatBuildStamp(const char* date, const char* time)
{
    static const ACHAR* const kMonths[] = {L"Jan", L"Feb", L"Mar", L"Apr", L"May", L"Jun",
                                           L"Jul", L"Aug", L"Sep", L"Oct", L"Nov", L"Dec"};
    const AcString wideDate = Widen(date);
    const AcString monthName = wideDate.mid(0, 3);
    int month = 1;
    for (int i = 0; i < 12; ++i) {
        if (monthName == kMonths[i]) {
            month = i + 1;
            break;
        }
    }
    const int day = LeadingInt(wideDate.mid(4, 2));
    const int year = LeadingInt(wideDate.mid(7, 4));
    const AcString hoursAndMinutes = Widen(time).left(5);

    AcString stamp;
    stamp.format(L"%04d-%02d-%02d %s", year, month, day, hoursAndMinutes.kwszPtr());
    return stamp;
}

AcString ModuleBuildStamp()
{
    return FormatBuildStamp(__DATE__, __TIME__);
}

}  // namespace Quarvo
