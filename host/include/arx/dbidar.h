// AcDbObjectIdArray.
#pragma once

#include "dbid.h"
