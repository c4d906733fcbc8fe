// AcGePoint3dArray: a growable array of 3D points.
#pragma once

#include "acarray.h"
#include "gepnt3d.h"

using AcGePoint3dArray = AcArray<AcGePoint3d>;
