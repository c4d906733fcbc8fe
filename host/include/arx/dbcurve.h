// The host's curve base class.
#pragma once

#include "AcDbCurve.h"
