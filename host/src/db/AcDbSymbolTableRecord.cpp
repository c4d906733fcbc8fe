// AcDbSymbolTableRecord: the record's name, unique within its table.
#include "AcDbSymbolTableRecord.h"

#include "AcDbBlockTableRecord.h"
#include "AcDbStub.h"
#include "AcDbSymbolTable.h"
#include "DbChecks.h"
#include "acutmem.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbSymbolTableRecord, AcDbObject)

AcDbSymbolTableRecord::AcDbSymbolTableRecord() = default;

AcDbSymbolTableRecord::~AcDbSymbolTableRecord() = default;

Acad::ErrorStatus AcDbSymbolTableRecord::getName(ACHAR*& name) const
{
    assertReadEnabled();
    return acutNewString(m_name.kwszPtr(), name);
}

Acad::ErrorStatus AcDbSymbolTableRecord::getName(AcString& name) const
{
    assertReadEnabled();
    name = m_name;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableRecord::getName(const ACHAR*& name) const
{
    assertReadEnabled();
    name = m_name.kwszPtr();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableRecord::setName(const ACHAR* name)
{
    assertWriteEnabled();
    if (!hostdb::isValidSymbolName(name, isKindOf(AcDbBlockTableRecord::desc())))
        return Acad::eInvalidSymbolTableName;
    // The owning table is read without the open protocol: it may be open for write by
    // the caller that is adding this record.
    const AcDbSymbolTable* table = AcDbSymbolTable::cast(AcDbStub::objectOf(ownerId()));
    if (table != nullptr && !table->find(name, false, this).isNull())
        return Acad::eDuplicateRecordName;
    m_name = name;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTableRecord::dwgOutFields(AcDbDwgFiler* filer) const
{
    const Acad::ErrorStatus es = AcDbObject::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeString(m_name);
    return filer->filerStatus();
}

Acad::ErrorStatus AcDbSymbolTableRecord::dwgInFields(AcDbDwgFiler* filer)
{
    const Acad::ErrorStatus es = AcDbObject::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    AcString name;
    if (filer->readString(name) == Acad::eOk)
        m_name = name;
    return filer->filerStatus();
}
