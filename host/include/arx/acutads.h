// Command-line output of the host's utility layer.
#pragma once

#include "adesk.h"

// Prints to the host's command line. The format follows the host's wide-format rules:
// %s and %c take wide arguments, %S and %C narrow ones, %I64d is a 64-bit integer.
ACHOST_API int acutPrintf(const ACHAR* format, ...);
