// AcDbBlockTable: the typed forms of the symbol table calls.
#include "AcDbBlockTable.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbBlockTable, AcDbSymbolTable, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, BLOCK_TABLE,
                        HeadlessHost)

AcDbBlockTable::AcDbBlockTable() = default;

AcDbBlockTable::~AcDbBlockTable() = default;

AcRxClass* AcDbBlockTable::recordClass() const
{
    return AcDbBlockTableRecord::desc();
}

Acad::ErrorStatus AcDbBlockTable::getAt(const ACHAR* entryName, AcDbBlockTableRecord*& record,
                            AcDb::OpenMode mode, bool openErasedRecord) const
{
    return getTypedAt(entryName, record, mode, openErasedRecord);
}

Acad::ErrorStatus AcDbBlockTable::add(AcDbBlockTableRecord* record)
{
    return AcDbSymbolTable::add(record);
}

Acad::ErrorStatus AcDbBlockTable::add(AcDbObjectId& recordId, AcDbBlockTableRecord* record)
{
    return AcDbSymbolTable::add(recordId, record);
}

Acad::ErrorStatus AcDbBlockTable::newIterator(AcDbBlockTableIterator*& iterator, bool atBeginning,
                                  bool skipDeleted) const
{
    return newTypedIterator(iterator, atBeginning, skipDeleted);
}

Acad::ErrorStatus AcDbBlockTableIterator::getRecord(AcDbBlockTableRecord*& record, AcDb::OpenMode mode,
                                bool openErasedRecord) const
{
    return getTypedRecord(record, mode, openErasedRecord);
}
