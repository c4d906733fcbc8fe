// AcDbHandle's text form: upper-case hexadecimal without leading zeros, "0" for null.
#include "AcDbHandle.h"

#include <cwchar>
#include <ostream>

namespace {

// Sixteen hexadecimal digits hold a 64-bit value; one more for the terminator.
constexpr size_t kHandleTextCapacity = 17;

size_t formatHandle(Adesk::UInt64 value, ACHAR (&text)[kHandleTextCapacity])
{
    static const ACHAR kDigits[] = L"0123456789ABCDEF";
    ACHAR reversed[kHandleTextCapacity];
    size_t count = 0;
    do {
        reversed[count++] = kDigits[value & 0xF];
        value >>= 4;
    } while (value != 0);
    for (size_t i = 0; i < count; ++i)
        text[i] = reversed[count - 1 - i];
    text[count] = L'\0';
    return count;
}

int hexDigitValue(ACHAR c)
{
    if (c >= L'0' && c <= L'9')
        return c - L'0';
    if (c >= L'A' && c <= L'F')
        return c - L'A' + 10;
    if (c >= L'a' && c <= L'f')
        return c - L'a' + 10;
    return -1;
}

}  // namespace

AcDbHandle::AcDbHandle(const ACHAR* hexText)
{
    if (hexText == nullptr || *hexText == L'\0')
        return;
    Adesk::UInt64 value = 0;
    int significantDigits = 0;
    for (const ACHAR* p = hexText; *p != L'\0'; ++p) {
        const int digit = hexDigitValue(*p);
        if (digit < 0)
            return;  // not a handle: stays null
        if (value != 0 || digit != 0)
            ++significantDigits;
        if (significantDigits > 16)
            return;  // wider than 64 bits
        value = (value << 4) | static_cast<Adesk::UInt64>(digit);
    }
    m_value = value;
}

void AcDbHandle::getIntoAsciiBuffer(ACHAR* buffer) const
{
    getIntoAsciiBuffer(buffer, kHandleTextCapacity);
}

void AcDbHandle::getIntoAsciiBuffer(ACHAR* buffer, size_t bufferLength) const
{
    if (buffer == nullptr || bufferLength == 0)
        return;
    ACHAR text[kHandleTextCapacity];
    const size_t length = formatHandle(m_value, text);
    if (length + 1 > bufferLength) {
        buffer[0] = L'\0';  // too small: an empty text rather than a truncated handle
        return;
    }
    std::wmemcpy(buffer, text, length + 1);
}

std::ostream& operator<<(std::ostream& os, const AcDbHandle& handle)
{
    ACHAR text[kHandleTextCapacity];
    const size_t length = formatHandle(handle.value(), text);
    for (size_t i = 0; i < length; ++i)
        os << static_cast<char>(text[i]);
    return os;
}
