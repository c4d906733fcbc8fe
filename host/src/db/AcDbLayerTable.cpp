// AcDbLayerTable: the typed forms of the symbol table calls.
#include "AcDbLayerTable.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbLayerTable, AcDbSymbolTable, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, LAYER_TABLE,
                        HeadlessHost)

AcDbLayerTable::AcDbLayerTable() = default;

AcDbLayerTable::~AcDbLayerTable() = default;

AcRxClass* AcDbLayerTable::recordClass() const
{
    return AcDbLayerTableRecord::desc();
}

Acad::ErrorStatus AcDbLayerTable::getAt(const ACHAR* entryName, AcDbLayerTableRecord*& record,
                            AcDb::OpenMode mode, bool openErasedRecord) const
{
    return getTypedAt(entryName, record, mode, openErasedRecord);
}

Acad::ErrorStatus AcDbLayerTable::add(AcDbLayerTableRecord* record)
{
    return AcDbSymbolTable::add(record);
}

Acad::ErrorStatus AcDbLayerTable::add(AcDbObjectId& recordId, AcDbLayerTableRecord* record)
{
    return AcDbSymbolTable::add(recordId, record);
}

Acad::ErrorStatus AcDbLayerTable::newIterator(AcDbLayerTableIterator*& iterator, bool atBeginning,
                                  bool skipDeleted) const
{
    return newTypedIterator(iterator, atBeginning, skipDeleted);
}

Acad::ErrorStatus AcDbLayerTableIterator::getRecord(AcDbLayerTableRecord*& record, AcDb::OpenMode mode,
                                bool openErasedRecord) const
{
    return getTypedRecord(record, mode, openErasedRecord);
}
