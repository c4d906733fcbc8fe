// AcGeVector3dArray: a growable array of 3D vectors.
#pragma once

#include "acarray.h"
#include "gevec3d.h"

using AcGeVector3dArray = AcArray<AcGeVector3d>;
