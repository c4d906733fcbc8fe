// AcDbTextStyleTable: the drawing's text styles, and AcDbTextStyleTableIterator, the walk
// over them.
#pragma once

#include "AcDbSymbolTable.h"
#include "AcDbSymbolTableIterator.h"
#include "AcDbTextStyleTableRecord.h"

class AcDbTextStyleTableIterator;

class ACHOST_API AcDbTextStyleTable : public AcDbSymbolTable {
    ACRX_DECLARE_MEMBERS(AcDbTextStyleTable);

public:
    AcDbTextStyleTable();
    ~AcDbTextStyleTable() override;

    using AcDbSymbolTable::add;
    using AcDbSymbolTable::getAt;
    using AcDbSymbolTable::newIterator;
    Acad::ErrorStatus getAt(const ACHAR* entryName, AcDbTextStyleTableRecord*& record, AcDb::OpenMode mode,
                            bool openErasedRecord = false) const;
    Acad::ErrorStatus add(AcDbTextStyleTableRecord* record);
    Acad::ErrorStatus add(AcDbObjectId& recordId, AcDbTextStyleTableRecord* record);
    Acad::ErrorStatus newIterator(AcDbTextStyleTableIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;

protected:
    AcRxClass* recordClass() const override;
};

class ACHOST_API AcDbTextStyleTableIterator : public AcDbSymbolTableIterator {
public:
    using AcDbSymbolTableIterator::getRecord;
    Acad::ErrorStatus getRecord(AcDbTextStyleTableRecord*& record, AcDb::OpenMode mode,
                                bool openErasedRecord = false) const;

protected:
    explicit AcDbTextStyleTableIterator(const AcDbSymbolTable* table) : AcDbSymbolTableIterator(table) {}

private:
    friend class AcDbSymbolTable;
};
