// DatabaseAccess: what saving and reading a drawing needs from a database beyond the host
// interface: every object by handle, and placing an object under a handle from a file.
#pragma once

#include <vector>

#include "AcDbDatabase.h"

namespace headless {

class ACHOST_API DatabaseAccess {
public:
    // Every id of the database in handle order: erased objects and references whose
    // object never arrived included (ask isErased / isResident).
    static std::vector<AcDbObjectId> objectIds(const AcDbDatabase* db);

    // Makes obj resident under handle, filling the stub that references to the handle
    // already made. It is then new and open for write, as after addAcDbObject.
    // eNullObjectPointer, eAlreadyInDb, eNullHandle, eHandleInUse.
    static Acad::ErrorStatus addObjectWithHandle(AcDbDatabase* db, AcDbObject* obj, const AcDbHandle& handle,
                                                 AcDbObjectId& id);

    // Handles below seed are never given out again.
    static void raiseHandseed(AcDbDatabase* db, const AcDbHandle& seed);
};

}  // namespace headless
