// Checks that several database classes share: symbol names and lineweights.
#pragma once

#include "acdb.h"

namespace hostdb {

// The longest symbol name the host accepts.
constexpr int kMaxSymbolNameLength = 255;

// Not empty, at most kMaxSymbolNameLength characters, no control character and none of
// <>/\":;?*|,=` — except a leading '*' where allowLeadingStar (block names).
bool isValidSymbolName(const ACHAR* name, bool allowLeadingStar);

// One of the AcDb::LineWeight values.
bool isValidLineWeight(int weight);

}  // namespace hostdb
