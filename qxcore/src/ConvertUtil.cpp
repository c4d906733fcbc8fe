// Qx::ConvertUtil.
#include "Qx/ConvertUtil.h"

#include <cmath>

namespace Qx {

AcString ConvertUtil::ToString(double value, int decimals)
{
    if (decimals < 0)
        decimals = 0;
    AcString text;
    text.format(L"%.*f", decimals, value);
    // A value that rounds to zero keeps no sign: "-0.00" reads as a different number.
    bool allZero = true;
    for (int i = 0; i < text.length(); ++i) {
        const ACHAR c = text.getAt(i);
        if (c != L'-' && c != L'0' && c != L'.') {
            allZero = false;
            break;
        }
    }
    if (allZero && text.getAt(0) == L'-')
        text = text.substr(1);
    return text;
}

AcString ConvertUtil::ToTrimmedString(double value, int maxDecimals)
{
    AcString text = ToString(value, maxDecimals);
    if (text.find(L'.') < 0)
        return text;
    int end = text.length();
    while (end > 0 && text.getAt(end - 1) == L'0')
        --end;
    if (end > 0 && text.getAt(end - 1) == L'.')
        --end;
    return text.left(end);
}

AcString ConvertUtil::ToString(int value)
{
    AcString text;
    text.format(L"%d", value);
    return text;
}

}  // namespace Qx
