// AcDbBlockTableRecordIterator: walks a block's entities in the order they were appended,
// skipping erased ones when asked. The block's newIterator makes one; the caller deletes it.
#pragma once

#include <cstddef>

#include "AcDbObject.h"

class AcDbBlockTableRecord;
class AcDbEntity;

class ACHOST_API AcDbBlockTableRecordIterator {
public:
    virtual ~AcDbBlockTableRecordIterator();
    AcDbBlockTableRecordIterator(const AcDbBlockTableRecordIterator&) = delete;
    AcDbBlockTableRecordIterator& operator=(const AcDbBlockTableRecordIterator&) = delete;

    void start(bool atBeginning = true, bool skipDeleted = true);
    bool done() const;
    void step(bool forward = true, bool skipDeleted = true);
    Acad::ErrorStatus getEntityId(AcDbObjectId& entityId) const;  // eIteratorDone past either end
    Acad::ErrorStatus getEntity(AcDbEntity*& entity, AcDb::OpenMode mode, bool openErasedEntity = false) const;
    AcDbBlockTableRecord* blockTableRecord() const { return m_block; }
    // Moves to the entity; eKeyNotFound (and no move) when the block does not hold it.
    Acad::ErrorStatus seek(AcDbObjectId id);
    Acad::ErrorStatus seek(const AcDbEntity* entity);

private:
    friend class AcDbBlockTableRecord;
    explicit AcDbBlockTableRecordIterator(const AcDbBlockTableRecord* block);
    bool isLive(std::ptrdiff_t index) const;
    std::ptrdiff_t count() const;

    AcDbBlockTableRecord* m_block;
    std::ptrdiff_t m_index = 0;
};
