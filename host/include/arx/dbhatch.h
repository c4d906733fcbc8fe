// The host's hatch.
#pragma once

#include "AcDbHatch.h"
