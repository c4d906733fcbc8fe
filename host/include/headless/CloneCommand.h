// What the host's own commands do around a clone operation: they choose its context
// (copy, insert, explode...) before cloning. Module code cannot: it sees the context only
// through AcDbIdMapping::deepCloneContext().
#pragma once

#include "dbidmap.h"

namespace headless {

// Sets the context that the next operation run with map reports. Without it,
// deepCloneObjects reports kDcCopy and wblockCloneObjects kDcWblkObjects.
// eInvalidContext once an operation has started with the mapping.
ACHOST_API Acad::ErrorStatus setDeepCloneContext(AcDbIdMapping& map, AcDb::DeepCloneType context);

// The copy command: deep-clones ids into owner (model space when null) under kDcCopy.
// The new ids, in the order of ids, are appended to clones.
ACHOST_API Acad::ErrorStatus copyObjects(const AcDbObjectIdArray& ids, AcDbObjectIdArray& clones,
                                         AcDbObjectId owner = AcDbObjectId::kNull);

}  // namespace headless
