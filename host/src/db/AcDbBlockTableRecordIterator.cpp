// AcDbBlockTableRecordIterator: a position in the block's list of entities.
#include "AcDbBlockTableRecordIterator.h"

#include "AcDbBlockTableRecord.h"
#include "AcDbEntity.h"

AcDbBlockTableRecordIterator::AcDbBlockTableRecordIterator(const AcDbBlockTableRecord* block)
    : m_block(const_cast<AcDbBlockTableRecord*>(block))
{
}

AcDbBlockTableRecordIterator::~AcDbBlockTableRecordIterator() = default;

std::ptrdiff_t AcDbBlockTableRecordIterator::count() const
{
    return static_cast<std::ptrdiff_t>(m_block->m_entities.size());
}

bool AcDbBlockTableRecordIterator::isLive(std::ptrdiff_t index) const
{
    return !m_block->m_entities[static_cast<size_t>(index)].isErased();
}

void AcDbBlockTableRecordIterator::start(bool atBeginning, bool skipDeleted)
{
    m_index = atBeginning ? 0 : count() - 1;
    while (skipDeleted && !done() && !isLive(m_index))
        m_index += atBeginning ? 1 : -1;
}

bool AcDbBlockTableRecordIterator::done() const
{
    return m_index < 0 || m_index >= count();
}

void AcDbBlockTableRecordIterator::step(bool forward, bool skipDeleted)
{
    if (done())
        return;
    do {
        m_index += forward ? 1 : -1;
    } while (skipDeleted && !done() && !isLive(m_index));
}

Acad::ErrorStatus AcDbBlockTableRecordIterator::getEntityId(AcDbObjectId& entityId) const
{
    if (done()) {
        entityId.setNull();
        return Acad::eIteratorDone;
    }
    entityId = m_block->m_entities[static_cast<size_t>(m_index)];
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecordIterator::getEntity(AcDbEntity*& entity, AcDb::OpenMode mode,
                                                          bool openErasedEntity) const
{
    entity = nullptr;
    AcDbObjectId id;
    const Acad::ErrorStatus es = getEntityId(id);
    if (es != Acad::eOk)
        return es;
    return acdbOpenObject(entity, id, mode, openErasedEntity);
}

Acad::ErrorStatus AcDbBlockTableRecordIterator::seek(AcDbObjectId id)
{
    for (std::ptrdiff_t i = 0; i < count(); ++i) {
        if (m_block->m_entities[static_cast<size_t>(i)] == id) {
            m_index = i;
            return Acad::eOk;
        }
    }
    return Acad::eKeyNotFound;
}

Acad::ErrorStatus AcDbBlockTableRecordIterator::seek(const AcDbEntity* entity)
{
    return entity != nullptr ? seek(entity->objectId()) : Acad::eNullEntityPointer;
}
