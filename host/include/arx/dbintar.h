// AcDbIntArray: a growable array of ints (grip indices, osnap modes, geometry ids).
#pragma once

#include "acarray.h"

using AcDbIntArray = AcArray<int>;
