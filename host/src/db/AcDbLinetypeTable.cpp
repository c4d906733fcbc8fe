// AcDbLinetypeTable: the typed forms of the symbol table calls.
#include "AcDbLinetypeTable.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbLinetypeTable, AcDbSymbolTable, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, LTYPE_TABLE,
                        HeadlessHost)

AcDbLinetypeTable::AcDbLinetypeTable() = default;

AcDbLinetypeTable::~AcDbLinetypeTable() = default;

AcRxClass* AcDbLinetypeTable::recordClass() const
{
    return AcDbLinetypeTableRecord::desc();
}

Acad::ErrorStatus AcDbLinetypeTable::getAt(const ACHAR* entryName, AcDbLinetypeTableRecord*& record,
                            AcDb::OpenMode mode, bool openErasedRecord) const
{
    return getTypedAt(entryName, record, mode, openErasedRecord);
}

Acad::ErrorStatus AcDbLinetypeTable::add(AcDbLinetypeTableRecord* record)
{
    return AcDbSymbolTable::add(record);
}

Acad::ErrorStatus AcDbLinetypeTable::add(AcDbObjectId& recordId, AcDbLinetypeTableRecord* record)
{
    return AcDbSymbolTable::add(recordId, record);
}

Acad::ErrorStatus AcDbLinetypeTable::newIterator(AcDbLinetypeTableIterator*& iterator, bool atBeginning,
                                  bool skipDeleted) const
{
    return newTypedIterator(iterator, atBeginning, skipDeleted);
}

Acad::ErrorStatus AcDbLinetypeTableIterator::getRecord(AcDbLinetypeTableRecord*& record, AcDb::OpenMode mode,
                                bool openErasedRecord) const
{
    return getTypedRecord(record, mode, openErasedRecord);
}
