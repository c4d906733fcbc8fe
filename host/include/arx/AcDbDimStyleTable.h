// AcDbDimStyleTable: the drawing's dimension styles, and AcDbDimStyleTableIterator, the
// walk over them.
#pragma once

#include "AcDbSymbolTable.h"
#include "AcDbSymbolTableIterator.h"
#include "AcDbDimStyleTableRecord.h"

class AcDbDimStyleTableIterator;

class ACHOST_API AcDbDimStyleTable : public AcDbSymbolTable {
    ACRX_DECLARE_MEMBERS(AcDbDimStyleTable);

public:
    AcDbDimStyleTable();
    ~AcDbDimStyleTable() override;

    using AcDbSymbolTable::add;
    using AcDbSymbolTable::getAt;
    using AcDbSymbolTable::newIterator;
    Acad::ErrorStatus getAt(const ACHAR* entryName, AcDbDimStyleTableRecord*& record, AcDb::OpenMode mode,
                            bool openErasedRecord = false) const;
    Acad::ErrorStatus add(AcDbDimStyleTableRecord* record);
    Acad::ErrorStatus add(AcDbObjectId& recordId, AcDbDimStyleTableRecord* record);
    Acad::ErrorStatus newIterator(AcDbDimStyleTableIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;

protected:
    AcRxClass* recordClass() const override;
};

class ACHOST_API AcDbDimStyleTableIterator : public AcDbSymbolTableIterator {
public:
    using AcDbSymbolTableIterator::getRecord;
    Acad::ErrorStatus getRecord(AcDbDimStyleTableRecord*& record, AcDb::OpenMode mode,
                                bool openErasedRecord = false) const;

protected:
    explicit AcDbDimStyleTableIterator(const AcDbSymbolTable* table) : AcDbSymbolTableIterator(table) {}

private:
    friend class AcDbSymbolTable;
};
