// AcGeIntArray: a growable array of ints.
#pragma once

#include "acarray.h"

using AcGeIntArray = AcArray<int>;
