// AcDbStub: the always-resident record an object id points at. Its database owns it for the
// database's whole life; after that the stub stays readable (dead) for a while so that a
// stale id answers "invalid" instead of touching freed memory.
#pragma once

#include "AcDbHandle.h"
#include "dbid.h"

class AcDbDatabase;
class AcDbObject;

class AcDbStub {
public:
    // A stub for handle in database, without an object yet.
    static AcDbStub* allocate(AcDbDatabase* database, const AcDbHandle& handle);
    // Marks the stub dead (its database is gone) and hands it back for later reuse.
    static void release(AcDbStub* stub);
    // The object behind id without the open protocol, for the host's own look-ups; null
    // for a null or dead id and while the object is not there.
    static AcDbObject* objectOf(const AcDbObjectId& id);

    AcDbDatabase* database() const { return m_database; }
    bool isDead() const { return m_database == nullptr; }
    const AcDbHandle& handle() const { return m_handle; }
    AcDbObject* object() const { return m_object; }
    void setObject(AcDbObject* object) { m_object = object; }
    bool isErased() const { return m_erased; }
    void setErased(bool erased) { m_erased = erased; }
    AcDbStub* owner() const { return m_owner; }
    void setOwner(AcDbStub* owner) { m_owner = owner; }

private:
    AcDbStub() = default;
    friend class AcDbStubPool;

    AcDbDatabase* m_database = nullptr;
    AcDbObject* m_object = nullptr;
    AcDbStub* m_owner = nullptr;
    AcDbHandle m_handle;
    bool m_erased = false;
};
