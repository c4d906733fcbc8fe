// AcDbBlockTable: the drawing's blocks (model space, paper space, named blocks), and
// AcDbBlockTableIterator, the walk over them.
#pragma once

#include "AcDbSymbolTable.h"
#include "AcDbSymbolTableIterator.h"
#include "AcDbBlockTableRecord.h"

class AcDbBlockTableIterator;

// The names of the two blocks every drawing has.
#define ACDB_MODEL_SPACE ACRX_T("*Model_Space")
#define ACDB_PAPER_SPACE ACRX_T("*Paper_Space")

class ACHOST_API AcDbBlockTable : public AcDbSymbolTable {
    ACRX_DECLARE_MEMBERS(AcDbBlockTable);

public:
    AcDbBlockTable();
    ~AcDbBlockTable() override;

    using AcDbSymbolTable::add;
    using AcDbSymbolTable::getAt;
    using AcDbSymbolTable::newIterator;
    Acad::ErrorStatus getAt(const ACHAR* entryName, AcDbBlockTableRecord*& record, AcDb::OpenMode mode,
                            bool openErasedRecord = false) const;
    Acad::ErrorStatus add(AcDbBlockTableRecord* record);
    Acad::ErrorStatus add(AcDbObjectId& recordId, AcDbBlockTableRecord* record);
    Acad::ErrorStatus newIterator(AcDbBlockTableIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;

protected:
    AcRxClass* recordClass() const override;
};

class ACHOST_API AcDbBlockTableIterator : public AcDbSymbolTableIterator {
public:
    using AcDbSymbolTableIterator::getRecord;
    Acad::ErrorStatus getRecord(AcDbBlockTableRecord*& record, AcDb::OpenMode mode,
                                bool openErasedRecord = false) const;

protected:
    explicit AcDbBlockTableIterator(const AcDbSymbolTable* table) : AcDbSymbolTableIterator(table) {}

private:
    friend class AcDbSymbolTable;
};
