// AcGeDoubleArray: a growable array of doubles (parameters, bulges, distances).
#pragma once

#include "acarray.h"

using AcGeDoubleArray = AcArray<double>;
