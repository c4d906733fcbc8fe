// The host's string allocation: strings that a host call hands out and the caller frees.
#include <cwchar>

#include "acutmem.h"

Acad::ErrorStatus acutNewString(const ACHAR* src, ACHAR*& dest)
{
    dest = nullptr;
    if (src == nullptr)
        return Acad::eOk;
    const size_t length = std::wcslen(src);
    dest = new ACHAR[length + 1];
    std::wmemcpy(dest, src, length + 1);
    return Acad::eOk;
}

void acutDelString(ACHAR*& str)
{
    delete[] str;
    str = nullptr;
}
