// Conversions between the host's wide strings and the encodings that leave the process:
// UTF-8 for terminals and tools, UTF-16 for drawing files. wchar_t may be 16 or 32 bits.
#pragma once

#include <string>
#include <string_view>

#include "adesk.h"

namespace headless {

// Invalid code units become U+FFFD; conversions never fail.
ACHOST_API std::string toUtf8(std::wstring_view text);
ACHOST_API std::wstring fromUtf8(std::string_view text);
ACHOST_API std::u16string toUtf16(std::wstring_view text);
ACHOST_API std::wstring fromUtf16(std::u16string_view text);

}  // namespace headless
