// AcDbLayerTable: the drawing's layers, and AcDbLayerTableIterator, the walk over them.
#pragma once

#include "AcDbSymbolTable.h"
#include "AcDbSymbolTableIterator.h"
#include "AcDbLayerTableRecord.h"

class AcDbLayerTableIterator;

class ACHOST_API AcDbLayerTable : public AcDbSymbolTable {
    ACRX_DECLARE_MEMBERS(AcDbLayerTable);

public:
    AcDbLayerTable();
    ~AcDbLayerTable() override;

    using AcDbSymbolTable::add;
    using AcDbSymbolTable::getAt;
    using AcDbSymbolTable::newIterator;
    Acad::ErrorStatus getAt(const ACHAR* entryName, AcDbLayerTableRecord*& record, AcDb::OpenMode mode,
                            bool openErasedRecord = false) const;
    Acad::ErrorStatus add(AcDbLayerTableRecord* record);
    Acad::ErrorStatus add(AcDbObjectId& recordId, AcDbLayerTableRecord* record);
    Acad::ErrorStatus newIterator(AcDbLayerTableIterator*& iterator, bool atBeginning = true,
                                  bool skipDeleted = true) const;

protected:
    AcRxClass* recordClass() const override;
};

class ACHOST_API AcDbLayerTableIterator : public AcDbSymbolTableIterator {
public:
    using AcDbSymbolTableIterator::getRecord;
    Acad::ErrorStatus getRecord(AcDbLayerTableRecord*& record, AcDb::OpenMode mode,
                                bool openErasedRecord = false) const;

protected:
    explicit AcDbLayerTableIterator(const AcDbSymbolTable* table) : AcDbSymbolTableIterator(table) {}

private:
    friend class AcDbSymbolTable;
};
