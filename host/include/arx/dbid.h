// Object ids: session-only references to database objects. An id is the address of an
// always-resident stub that its database keeps for the database's whole life; files hold
// handles instead. The typed id kinds tell filers and cloning how a reference is followed.
#pragma once

#include <iosfwd>

#include "AcDbHandle.h"
#include "acadstrc.h"
#include "acarray.h"

class AcDbStub;
class AcDbDatabase;
class AcRxClass;

class ACHOST_API AcDbObjectId {
public:
    static const AcDbObjectId kNull;

    AcDbObjectId() = default;
    AcDbObjectId(const AcDbStub* stub) : m_stub(const_cast<AcDbStub*>(stub)) {}

    bool isNull() const { return m_stub == nullptr; }
    void setNull() { m_stub = nullptr; }
    // Not null, and its database has not been destroyed.
    bool isValid() const;
    bool isErased() const;
    // Erased itself, or one of its owners is erased.
    bool isEffectivelyErased() const;
    bool isResident() const;
    // Valid, not null and not erased.
    bool isWellBehaved() const;
    AcDbDatabase* database() const;
    AcDbDatabase* originalDatabase() const { return database(); }
    AcDbHandle handle() const;
    AcRxClass* objectClass() const;

    Adesk::IntPtr asOldId() const { return reinterpret_cast<Adesk::IntPtr>(m_stub); }
    AcDbObjectId& setFromOldId(Adesk::IntPtr oldId)
    {
        m_stub = reinterpret_cast<AcDbStub*>(oldId);
        return *this;
    }
    operator AcDbStub*() const { return m_stub; }

    bool operator==(const AcDbObjectId& o) const { return m_stub == o.m_stub; }
    bool operator!=(const AcDbObjectId& o) const { return m_stub != o.m_stub; }
    bool operator<(const AcDbObjectId& o) const { return m_stub < o.m_stub; }
    bool operator>(const AcDbObjectId& o) const { return m_stub > o.m_stub; }
    bool operator<=(const AcDbObjectId& o) const { return m_stub <= o.m_stub; }
    bool operator>=(const AcDbObjectId& o) const { return m_stub >= o.m_stub; }

private:
    AcDbStub* m_stub = nullptr;
};

ACHOST_API std::ostream& operator<<(std::ostream& os, const AcDbObjectId& id);  // "(handle)" or "(null)"

// The reference kinds. A hard owner keeps its object alive and clones it along; a soft
// owner clones along; pointers are translated to the clones but do not pull objects in
// (wblock follows hard pointers).
class AcDbHardOwnershipId : public AcDbObjectId {
public:
    AcDbHardOwnershipId() = default;
    AcDbHardOwnershipId(const AcDbObjectId& id) : AcDbObjectId(id) {}
    AcDbHardOwnershipId(const AcDbStub* stub) : AcDbObjectId(stub) {}
    AcDbHardOwnershipId& operator=(const AcDbObjectId& id) { AcDbObjectId::operator=(id); return *this; }
};

class AcDbSoftOwnershipId : public AcDbObjectId {
public:
    AcDbSoftOwnershipId() = default;
    AcDbSoftOwnershipId(const AcDbObjectId& id) : AcDbObjectId(id) {}
    AcDbSoftOwnershipId(const AcDbStub* stub) : AcDbObjectId(stub) {}
    AcDbSoftOwnershipId& operator=(const AcDbObjectId& id) { AcDbObjectId::operator=(id); return *this; }
};

class AcDbHardPointerId : public AcDbObjectId {
public:
    AcDbHardPointerId() = default;
    AcDbHardPointerId(const AcDbObjectId& id) : AcDbObjectId(id) {}
    AcDbHardPointerId(const AcDbStub* stub) : AcDbObjectId(stub) {}
    AcDbHardPointerId& operator=(const AcDbObjectId& id) { AcDbObjectId::operator=(id); return *this; }
};

class AcDbSoftPointerId : public AcDbObjectId {
public:
    AcDbSoftPointerId() = default;
    AcDbSoftPointerId(const AcDbObjectId& id) : AcDbObjectId(id) {}
    AcDbSoftPointerId(const AcDbStub* stub) : AcDbObjectId(stub) {}
    AcDbSoftPointerId& operator=(const AcDbObjectId& id) { AcDbObjectId::operator=(id); return *this; }
};

using AcDbObjectIdArray = AcArray<AcDbObjectId>;
