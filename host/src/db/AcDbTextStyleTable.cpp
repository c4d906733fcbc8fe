// AcDbTextStyleTable: the typed forms of the symbol table calls.
#include "AcDbTextStyleTable.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbTextStyleTable, AcDbSymbolTable, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, STYLE_TABLE,
                        HeadlessHost)

AcDbTextStyleTable::AcDbTextStyleTable() = default;

AcDbTextStyleTable::~AcDbTextStyleTable() = default;

AcRxClass* AcDbTextStyleTable::recordClass() const
{
    return AcDbTextStyleTableRecord::desc();
}

Acad::ErrorStatus AcDbTextStyleTable::getAt(const ACHAR* entryName, AcDbTextStyleTableRecord*& record,
                            AcDb::OpenMode mode, bool openErasedRecord) const
{
    return getTypedAt(entryName, record, mode, openErasedRecord);
}

Acad::ErrorStatus AcDbTextStyleTable::add(AcDbTextStyleTableRecord* record)
{
    return AcDbSymbolTable::add(record);
}

Acad::ErrorStatus AcDbTextStyleTable::add(AcDbObjectId& recordId, AcDbTextStyleTableRecord* record)
{
    return AcDbSymbolTable::add(recordId, record);
}

Acad::ErrorStatus AcDbTextStyleTable::newIterator(AcDbTextStyleTableIterator*& iterator, bool atBeginning,
                                  bool skipDeleted) const
{
    return newTypedIterator(iterator, atBeginning, skipDeleted);
}

Acad::ErrorStatus AcDbTextStyleTableIterator::getRecord(AcDbTextStyleTableRecord*& record, AcDb::OpenMode mode,
                                bool openErasedRecord) const
{
    return getTypedRecord(record, mode, openErasedRecord);
}
