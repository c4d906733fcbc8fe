// Symbol name and lineweight checks.
#include "DbChecks.h"

#include <cwchar>

namespace hostdb {

bool isValidSymbolName(const ACHAR* name, bool allowLeadingStar)
{
    if (name == nullptr || *name == L'\0')
        return false;
    static const ACHAR kForbidden[] = L"<>/\\\":;?*|,=`";
    int length = 0;
    for (const ACHAR* p = name; *p != L'\0'; ++p, ++length) {
        if (length >= kMaxSymbolNameLength)
            return false;
        if (*p < 0x20)
            return false;
        if (*p == L'*' && p == name && allowLeadingStar)
            continue;
        if (std::wcschr(kForbidden, *p) != nullptr)
            return false;
    }
    return true;
}

bool isValidLineWeight(int weight)
{
    static const int kWeights[] = {
        AcDb::kLnWt000, AcDb::kLnWt005, AcDb::kLnWt009, AcDb::kLnWt013, AcDb::kLnWt015, AcDb::kLnWt018,
        AcDb::kLnWt020, AcDb::kLnWt025, AcDb::kLnWt030, AcDb::kLnWt035, AcDb::kLnWt040, AcDb::kLnWt050,
        AcDb::kLnWt053, AcDb::kLnWt060, AcDb::kLnWt070, AcDb::kLnWt080, AcDb::kLnWt090, AcDb::kLnWt100,
        AcDb::kLnWt106, AcDb::kLnWt120, AcDb::kLnWt140, AcDb::kLnWt158, AcDb::kLnWt200, AcDb::kLnWt211,
        AcDb::kLnWtByLayer, AcDb::kLnWtByBlock, AcDb::kLnWtByLwDefault,
    };
    for (int w : kWeights) {
        if (w == weight)
            return true;
    }
    return false;
}

}  // namespace hostdb
