// AcDbObject's part of deep and wblock clone: the public entry points and the default
// clone of the base class (see CloneEngine for the steps).
#include "AcDbObject.h"

#include "CloneEngine.h"

Acad::ErrorStatus AcDbObject::deepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                        Adesk::Boolean isPrimary) const
{
    clone = nullptr;
    assertReadEnabled();
    return subDeepClone(owner, clone, idMap, isPrimary);
}

Acad::ErrorStatus AcDbObject::wblockClone(AcRxObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                          Adesk::Boolean isPrimary) const
{
    clone = nullptr;
    assertReadEnabled();
    return subWblockClone(owner, clone, idMap, isPrimary);
}

Acad::ErrorStatus AcDbObject::subDeepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                           Adesk::Boolean isPrimary) const
{
    return hostdb::CloneEngine::cloneObject(this, owner, clone, idMap, isPrimary, hostdb::CloneEngine::Kind::kDeep);
}

// The owner may also be the destination database itself: the clone then has no owner.
Acad::ErrorStatus AcDbObject::subWblockClone(AcRxObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                             Adesk::Boolean isPrimary) const
{
    return hostdb::CloneEngine::cloneObject(this, owner, clone, idMap, isPrimary,
                                            hostdb::CloneEngine::Kind::kWblock);
}
