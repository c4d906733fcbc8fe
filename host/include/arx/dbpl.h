// The host's lightweight polyline.
#pragma once

#include "AcDbPolyline.h"
