// AcDbLinetypeTable: the drawing's linetypes (the database's loadLineTypeFile adds to
// it), and AcDbLinetypeTableIterator, the walk over them.
#pragma once

#include "AcDbSymbolTable.h"
#include "AcDbSymbolTableIterator.h"
#include "AcDbLinetypeTableRecord.h"

class AcDbLinetypeTableIterator;

class ACHOST_API AcDbLinetypeTable : public AcDbSymbolTable {
    ACRX_DECLARE_MEMBERS(AcDbLinetypeTable);

public:
    AcDbLinetypeTable();
    ~AcDbLinetypeTable() override;

    using AcDbSymbolTable::add;
    using AcDbSymbolTable::getAt;
    using AcDbSymbolTable::newIterator;
    Acad::ErrorStatus getAt(const ACHAR* entryName, AcDbLinetypeTableRecord*& record, AcDb::OpenMode mode,
                            bool openErasedRecord = false) const;
    Acad::ErrorStatus add(AcDbLinetypeTableRecord* record);
    Acad::ErrorStatus add(AcDbObjectId& recordId, AcDbLinetypeTableRecord* record);
    Acad::ErrorStatus newIterator(AcDbLinetypeTableIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;

protected:
    AcRxClass* recordClass() const override;
};

class ACHOST_API AcDbLinetypeTableIterator : public AcDbSymbolTableIterator {
public:
    using AcDbSymbolTableIterator::getRecord;
    Acad::ErrorStatus getRecord(AcDbLinetypeTableRecord*& record, AcDb::OpenMode mode,
                                bool openErasedRecord = false) const;

protected:
    explicit AcDbLinetypeTableIterator(const AcDbSymbolTable* table) : AcDbSymbolTableIterator(table) {}

private:
    friend class AcDbSymbolTable;
};
