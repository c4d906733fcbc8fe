// AcGeVector2dArray: a growable array of 2D vectors.
#pragma once

#include "acarray.h"
#include "gevec2d.h"

using AcGeVector2dArray = AcArray<AcGeVector2d>;
