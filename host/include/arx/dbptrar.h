// AcDbVoidPtrArray: a growable array of untyped pointers (new entities handed to the caller).
#pragma once

#include "acarray.h"

using AcDbVoidPtrArray = AcArray<void*>;
