// AcDbObjectId: questions about the stub an id points at.
#include <ostream>

#include "AcDbObject.h"
#include "AcDbStub.h"
#include "dbid.h"

namespace {

// Ownership chains are short (entity, block, table, database); a longer walk means a
// cycle in corrupt data and stops.
constexpr int kMaxOwnershipDepth = 256;

}  // namespace

const AcDbObjectId AcDbObjectId::kNull;

bool AcDbObjectId::isValid() const
{
    return m_stub != nullptr && !m_stub->isDead();
}

bool AcDbObjectId::isErased() const
{
    return m_stub != nullptr && m_stub->isErased();
}

bool AcDbObjectId::isEffectivelyErased() const
{
    const AcDbStub* stub = m_stub;
    for (int depth = 0; stub != nullptr && depth < kMaxOwnershipDepth; ++depth) {
        if (stub->isErased())
            return true;
        stub = stub->owner();
    }
    return false;
}

bool AcDbObjectId::isResident() const
{
    return m_stub != nullptr && m_stub->object() != nullptr;
}

bool AcDbObjectId::isWellBehaved() const
{
    return isValid() && !isErased();
}

AcDbDatabase* AcDbObjectId::database() const
{
    return m_stub != nullptr ? m_stub->database() : nullptr;
}

AcDbHandle AcDbObjectId::handle() const
{
    return m_stub != nullptr ? m_stub->handle() : AcDbHandle();
}

AcRxClass* AcDbObjectId::objectClass() const
{
    if (m_stub == nullptr || m_stub->object() == nullptr)
        return nullptr;
    return m_stub->object()->isA();
}

std::ostream& operator<<(std::ostream& os, const AcDbObjectId& id)
{
    if (id.isNull())
        return os << "(null)";
    return os << '(' << id.handle() << ')';
}
