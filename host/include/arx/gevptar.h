// AcGeVoidPointerArray: a growable array of untyped pointers (curve edges handed over by pointer).
#pragma once

#include "acarray.h"

using AcGeVoidPointerArray = AcArray<void*>;
