// AcDbDimStyleTable: the typed forms of the symbol table calls.
#include "AcDbDimStyleTable.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbDimStyleTable, AcDbSymbolTable, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0,
                        DIMSTYLE_TABLE, HeadlessHost)

AcDbDimStyleTable::AcDbDimStyleTable() = default;

AcDbDimStyleTable::~AcDbDimStyleTable() = default;

AcRxClass* AcDbDimStyleTable::recordClass() const
{
    return AcDbDimStyleTableRecord::desc();
}

Acad::ErrorStatus AcDbDimStyleTable::getAt(const ACHAR* entryName, AcDbDimStyleTableRecord*& record,
                            AcDb::OpenMode mode, bool openErasedRecord) const
{
    return getTypedAt(entryName, record, mode, openErasedRecord);
}

Acad::ErrorStatus AcDbDimStyleTable::add(AcDbDimStyleTableRecord* record)
{
    return AcDbSymbolTable::add(record);
}

Acad::ErrorStatus AcDbDimStyleTable::add(AcDbObjectId& recordId, AcDbDimStyleTableRecord* record)
{
    return AcDbSymbolTable::add(recordId, record);
}

Acad::ErrorStatus AcDbDimStyleTable::newIterator(AcDbDimStyleTableIterator*& iterator, bool atBeginning,
                                  bool skipDeleted) const
{
    return newTypedIterator(iterator, atBeginning, skipDeleted);
}

Acad::ErrorStatus AcDbDimStyleTableIterator::getRecord(AcDbDimStyleTableRecord*& record, AcDb::OpenMode mode,
                                bool openErasedRecord) const
{
    return getTypedRecord(record, mode, openErasedRecord);
}
