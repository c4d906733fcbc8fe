// AcDbSymbolTable: the container of named records (layers, linetypes, styles, blocks).
// Records are kept in the order they were added; look-ups ignore case and erased records.
#pragma once

#include <vector>

#include "AcDbObject.h"

class AcDbSymbolTableRecord;
class AcDbSymbolTableIterator;

class ACHOST_API AcDbSymbolTable : public AcDbObject {
    ACRX_DECLARE_MEMBERS(AcDbSymbolTable);

public:
    ~AcDbSymbolTable() override;

    // eKeyNotFound when no record has the name. With getErasedRecord an erased record
    // answers when no live one has the name.
    Acad::ErrorStatus getAt(const ACHAR* entryName, AcDbObjectId& recordId, bool getErasedRecord = false) const;
    Acad::ErrorStatus getAt(const ACHAR* entryName, AcDbSymbolTableRecord*& record, AcDb::OpenMode mode,
                            bool openErasedRecord = false) const;
    bool has(const ACHAR* name) const;
    bool has(AcDbObjectId id) const;

    // The iterator is the caller's to delete.
    Acad::ErrorStatus newIterator(AcDbSymbolTableIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;

    // The table must be open for write. The record joins the table's database, owned by
    // the table, and stays open for write for the caller to close. eNullObjectPointer,
    // eAlreadyInDb, eWrongObjectType (a record for another table), eInvalidSymbolTableName,
    // eDuplicateRecordName, eNoDatabase.
    Acad::ErrorStatus add(AcDbSymbolTableRecord* record);
    Acad::ErrorStatus add(AcDbObjectId& recordId, AcDbSymbolTableRecord* record);

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

protected:
    AcDbSymbolTable();
    // The class of the records this table holds.
    virtual AcRxClass* recordClass() const = 0;

    // The typed forms of getAt and newIterator that the tables offer.
    template <class Record>
    Acad::ErrorStatus getTypedAt(const ACHAR* name, Record*& record, AcDb::OpenMode mode, bool openErased) const
    {
        record = nullptr;
        AcDbSymbolTableRecord* found = nullptr;
        const Acad::ErrorStatus es = getAt(name, found, mode, openErased);
        if (es != Acad::eOk)
            return es;
        record = Record::cast(found);
        if (record == nullptr) {
            closeRecord(found);
            return Acad::eWrongObjectType;
        }
        return Acad::eOk;
    }
    template <class Iterator>
    Acad::ErrorStatus newTypedIterator(Iterator*& iterator, bool atBeginning, bool skipDeleted) const
    {
        iterator = nullptr;
        assertReadEnabled();
        iterator = new Iterator(this);
        iterator->start(atBeginning, skipDeleted);
        return Acad::eOk;
    }

private:
    friend class AcDbImpDatabase;
    friend class AcDbSymbolTableIterator;
    friend class AcDbSymbolTableRecord;
    static void closeRecord(AcDbSymbolTableRecord* record);
    // The record with the name (case ignored), or null; a live record before an erased one.
    AcDbObjectId find(const ACHAR* name, bool includeErased, const AcDbSymbolTableRecord* except = nullptr) const;

    std::vector<AcDbObjectId> m_records;
};
