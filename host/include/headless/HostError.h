// The host error: what the headless host raises where the real host would stop the
// process (acrx_abort, an object used outside its open mode, a misused interface).
// Tests catch it to assert the misuse; module code never does.
#pragma once

#include <stdexcept>
#include <string>

#include "adesk.h"

namespace headless {

class ACHOST_API HostError : public std::runtime_error {
public:
    explicit HostError(const std::string& utf8Message) : std::runtime_error(utf8Message) {}
};

// Raises HostError with a printf-style wide message (the host's wide-format rules).
[[noreturn]] ACHOST_API void raiseHostError(const ACHAR* fmt, ...);

}  // namespace headless
