// AcDbSymbolTableIterator: a position in the table's list of records.
#include "AcDbSymbolTableIterator.h"

#include "AcDbSymbolTable.h"
#include "AcDbSymbolTableRecord.h"

AcDbSymbolTableIterator::AcDbSymbolTableIterator(const AcDbSymbolTable* table) : m_table(table) {}

AcDbSymbolTableIterator::~AcDbSymbolTableIterator() = default;

std::ptrdiff_t AcDbSymbolTableIterator::count() const
{
    return static_cast<std::ptrdiff_t>(m_table->m_records.size());
}

bool AcDbSymbolTableIterator::isLive(std::ptrdiff_t index) const
{
    return !m_table->m_records[static_cast<size_t>(index)].isErased();
}

void AcDbSymbolTableIterator::start(bool atBeginning, bool skipDeleted)
{
    m_index = atBeginning ? 0 : count() - 1;
    while (skipDeleted && !done() && !isLive(m_index))
        m_index += atBeginning ? 1 : -1;
}

bool AcDbSymbolTableIterator::done() const
{
    return m_index < 0 || m_index >= count();
}

void AcDbSymbolTableIterator::step(bool forward, bool skipDeleted)
{
    if (done())
        return;
    do {
        m_index += forward ? 1 : -1;
    } while (skipDeleted && !done() && !isLive(m_index));
}

Acad::ErrorStatus AcDbSymbolTableIterator::getRecordId(AcDbObjectId& id) const
{
    if (done()) {
        id.setNull();
        return Acad::eIteratorDone;
    }
    id = m_table->m_records[static_cast<size_t>(m_index)];
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableIterator::getRecord(AcDbSymbolTableRecord*& record, AcDb::OpenMode mode,
                                                     bool openErasedRecord) const
{
    record = nullptr;
    AcDbObjectId id;
    Acad::ErrorStatus es = getRecordId(id);
    if (es != Acad::eOk)
        return es;
    AcDbObject* obj = nullptr;
    es = acdbOpenObject(obj, id, mode, openErasedRecord);
    if (es != Acad::eOk)
        return es;
    record = AcDbSymbolTableRecord::cast(obj);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableIterator::seek(AcDbObjectId id)
{
    for (std::ptrdiff_t i = 0; i < count(); ++i) {
        if (m_table->m_records[static_cast<size_t>(i)] == id) {
            m_index = i;
            return Acad::eOk;
        }
    }
    return Acad::eKeyNotFound;
}

Acad::ErrorStatus AcDbSymbolTableIterator::seek(const AcDbSymbolTableRecord* record)
{
    return record != nullptr ? seek(record->objectId()) : Acad::eNullObjectPointer;
}

void AcDbSymbolTableIterator::closeRecord(AcDbSymbolTableRecord* record)
{
    record->close();
}
