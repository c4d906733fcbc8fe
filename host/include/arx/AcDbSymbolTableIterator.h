// AcDbSymbolTableIterator: walks a table's records in the order they were added. The
// table's newIterator makes one; the caller deletes it. Records added while iterating are
// reached; the table must outlive the iterator.
#pragma once

#include <cstddef>

#include "AcDbObject.h"

class AcDbSymbolTable;
class AcDbSymbolTableRecord;

class ACHOST_API AcDbSymbolTableIterator {
public:
    virtual ~AcDbSymbolTableIterator();
    AcDbSymbolTableIterator(const AcDbSymbolTableIterator&) = delete;
    AcDbSymbolTableIterator& operator=(const AcDbSymbolTableIterator&) = delete;

    void start(bool atBeginning = true, bool skipDeleted = true);
    bool done() const;
    void step(bool forward = true, bool skipDeleted = true);
    Acad::ErrorStatus getRecordId(AcDbObjectId& id) const;       // eIteratorDone past either end
    Acad::ErrorStatus getRecord(AcDbSymbolTableRecord*& record, AcDb::OpenMode mode,
                                bool openErasedRecord = false) const;
    // Moves to the record; eKeyNotFound (and no move) when the table does not hold it.
    Acad::ErrorStatus seek(AcDbObjectId id);
    Acad::ErrorStatus seek(const AcDbSymbolTableRecord* record);

protected:
    explicit AcDbSymbolTableIterator(const AcDbSymbolTable* table);

    template <class Record>
    Acad::ErrorStatus getTypedRecord(Record*& record, AcDb::OpenMode mode, bool openErased) const
    {
        record = nullptr;
        AcDbSymbolTableRecord* found = nullptr;
        const Acad::ErrorStatus es = getRecord(found, mode, openErased);
        if (es != Acad::eOk)
            return es;
        record = Record::cast(found);
        if (record == nullptr) {
            closeRecord(found);
            return Acad::eWrongObjectType;
        }
        return Acad::eOk;
    }

private:
    friend class AcDbSymbolTable;
    static void closeRecord(AcDbSymbolTableRecord* record);
    bool isLive(std::ptrdiff_t index) const;
    std::ptrdiff_t count() const;

    const AcDbSymbolTable* m_table;
    std::ptrdiff_t m_index = 0;  // -1 or count(): done
};
