// The build stamp printed when the module loads: the compiler's date and time of
// translation turned into "yyyy-mm-dd hh:mm".
#pragma once

#include "AcString.h"

namespace Quarvo {

// date in the form "Oct  1 2026", time in the form "07:58:34". The month name is matched
// exactly against the English abbreviations; an unknown name gives month 1. Seconds are
// dropped on purpose.
AcString FormatBuildStamp(const char* date, const char* time);

// The stamp of this build of the module.
AcString ModuleBuildStamp();

}  // namespace Quarvo
