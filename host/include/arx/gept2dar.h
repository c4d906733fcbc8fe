// AcGePoint2dArray: a growable array of 2D points.
#pragma once

#include "acarray.h"
#include "gepnt2d.h"

using AcGePoint2dArray = AcArray<AcGePoint2d>;
