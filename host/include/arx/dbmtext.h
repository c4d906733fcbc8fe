// The host's multiline text.
#pragma once

#include "AcDbMText.h"
