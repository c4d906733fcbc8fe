// The host's wide-format rules on top of the C library's wide printf.
// The host's rules are those of its platform's C runtime: in a wide format %s and %c take
// wide arguments and %S and %C narrow ones; ISO C says the opposite unless 'l' is given.
#pragma once

#include <cstdarg>
#include <string>

namespace hostut {

// Rewrites a host format into an ISO C wide format with the same meaning.
std::wstring translateHostFormat(const wchar_t* format);

// Formats with the host's rules. A format the C library cannot expand (an encoding error
// in a narrow argument) yields the format text itself, so that output is never lost.
std::wstring formatWideV(const wchar_t* format, va_list args);

}  // namespace hostut
