// The pool of stubs. Stubs are never returned to the allocator: a dead stub waits in a
// quarantine queue before it is reused, so that ids that outlive their database can still
// be asked whether they are valid. Memory stays bounded by the live stubs plus the queue.
#include "AcDbStub.h"

#include <cstddef>
#include <deque>

class AcDbStubPool {
public:
    // How many dead stubs wait before the oldest is reused: an id stays recognisably dead
    // until this many other stubs have died after its own.
    static constexpr std::size_t kQuarantine = 1u << 16;

    static AcDbStubPool& instance()
    {
        // Never destroyed: ids may be asked about their validity until the process ends.
        static AcDbStubPool* pool = new AcDbStubPool();
        return *pool;
    }

    AcDbStub* take()
    {
        if (m_dead.size() <= kQuarantine)
            return new AcDbStub();
        AcDbStub* stub = m_dead.front();
        m_dead.pop_front();
        *stub = AcDbStub();
        return stub;
    }

    void giveBack(AcDbStub* stub) { m_dead.push_back(stub); }

private:
    std::deque<AcDbStub*> m_dead;
};

AcDbStub* AcDbStub::allocate(AcDbDatabase* database, const AcDbHandle& handle)
{
    AcDbStub* stub = AcDbStubPool::instance().take();
    stub->m_database = database;
    stub->m_handle = handle;
    return stub;
}

void AcDbStub::release(AcDbStub* stub)
{
    stub->m_database = nullptr;
    stub->m_object = nullptr;
    stub->m_owner = nullptr;
    stub->m_erased = true;
    AcDbStubPool::instance().giveBack(stub);
}

AcDbObject* AcDbStub::objectOf(const AcDbObjectId& id)
{
    const AcDbStub* stub = id;
    return stub != nullptr && !stub->isDead() ? stub->object() : nullptr;
}
