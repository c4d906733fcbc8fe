// The database filers.
#pragma once

#include "AcDbDwgFiler.h"
