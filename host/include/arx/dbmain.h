// The database layer's core: objects, entities, the database and the open functions.
#pragma once

#include "AcDbDatabase.h"
#include "AcDbEntity.h"
#include "AcDbObject.h"
#include "dbid.h"
