// Helpers for commands that make the module's entities: adding an entity to the current
// space and making sure the dashed linetype the entities draw with exists.
#pragma once

#include "acadstrc.h"

class AcDbDatabase;
class AcDbEntity;

// Appends entity to db's current space (null db: the working database) and sets its
// linetype scale to 1.0. eInvalidInput, with the entity untouched, when the current space
// cannot be opened; otherwise the append's status (reported on the command line on failure).
Acad::ErrorStatus AddToCurrentSpace(AcDbEntity* entity, AcDbDatabase* db = nullptr);

// Loads "DASHED" into db from the host's standard linetype file when db lacks it.
// A null db does nothing.
void EnsureDashedLinetype(AcDbDatabase* db);
