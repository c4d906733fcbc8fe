// The host's string allocation, for strings that cross between the host and modules.
#pragma once

#include "acadstrc.h"

// Copies src (null gives a null result) into a new string owned by the caller.
ACHOST_API Acad::ErrorStatus acutNewString(const ACHAR* src, ACHAR*& dest);
// Frees a string made by acutNewString or handed out by a host call; null is ignored.
ACHOST_API void acutDelString(ACHAR*& str);
