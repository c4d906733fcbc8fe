// Grip data of the new grip protocol.
#pragma once

#include "AcDbGripData.h"
