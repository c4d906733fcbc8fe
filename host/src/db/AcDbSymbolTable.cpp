// AcDbSymbolTable: look-up by name (case ignored, erased records last), adding records and
// filing the list of records the table owns.
#include "AcDbSymbolTable.h"

#include "AcDbBlockTableRecord.h"
#include "AcDbDatabase.h"
#include "AcDbImpObject.h"
#include "AcDbStub.h"
#include "AcDbSymbolTableIterator.h"
#include "AcDbSymbolTableRecord.h"
#include "DbChecks.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbSymbolTable, AcDbObject)

AcDbSymbolTable::AcDbSymbolTable() = default;

AcDbSymbolTable::~AcDbSymbolTable() = default;

AcDbObjectId AcDbSymbolTable::find(const ACHAR* name, bool includeErased, const AcDbSymbolTableRecord* except) const
{
    AcDbObjectId erasedMatch;
    if (name == nullptr)
        return erasedMatch;
    for (const AcDbObjectId& id : m_records) {
        // Records are read without the open protocol: a look-up must work while a record
        // is open for write elsewhere.
        const AcDbSymbolTableRecord* record = AcDbSymbolTableRecord::cast(AcDbStub::objectOf(id));
        if (record == nullptr || record == except || record->m_name.compareNoCase(name) != 0)
            continue;
        if (!id.isErased())
            return id;
        if (includeErased && erasedMatch.isNull())
            erasedMatch = id;
    }
    return erasedMatch;
}

Acad::ErrorStatus AcDbSymbolTable::getAt(const ACHAR* entryName, AcDbObjectId& recordId, bool getErasedRecord) const
{
    assertReadEnabled();
    recordId = find(entryName, getErasedRecord);
    return recordId.isNull() ? Acad::eKeyNotFound : Acad::eOk;
}

Acad::ErrorStatus AcDbSymbolTable::getAt(const ACHAR* entryName, AcDbSymbolTableRecord*& record,
                                         AcDb::OpenMode mode, bool openErasedRecord) const
{
    record = nullptr;
    AcDbObjectId id;
    Acad::ErrorStatus es = getAt(entryName, id, openErasedRecord);
    if (es != Acad::eOk)
        return es;
    AcDbObject* obj = nullptr;
    es = acdbOpenObject(obj, id, mode, openErasedRecord);
    if (es != Acad::eOk)
        return es;
    record = AcDbSymbolTableRecord::cast(obj);
    return Acad::eOk;
}

bool AcDbSymbolTable::has(const ACHAR* name) const
{
    assertReadEnabled();
    return !find(name, false).isNull();
}

bool AcDbSymbolTable::has(AcDbObjectId id) const
{
    assertReadEnabled();
    if (id.isNull() || id.isErased())
        return false;
    for (const AcDbObjectId& record : m_records) {
        if (record == id)
            return true;
    }
    return false;
}

Acad::ErrorStatus AcDbSymbolTable::newIterator(AcDbSymbolTableIterator*& iterator, bool atBeginning,
                                               bool skipDeleted) const
{
    return newTypedIterator(iterator, atBeginning, skipDeleted);
}

Acad::ErrorStatus AcDbSymbolTable::add(AcDbSymbolTableRecord* record)
{
    AcDbObjectId id;
    return add(id, record);
}

Acad::ErrorStatus AcDbSymbolTable::add(AcDbObjectId& recordId, AcDbSymbolTableRecord* record)
{
    recordId.setNull();
    assertWriteEnabled();
    if (record == nullptr)
        return Acad::eNullObjectPointer;
    if (record->database() != nullptr)
        return Acad::eAlreadyInDb;
    if (!record->isKindOf(recordClass()))
        return Acad::eWrongObjectType;
    AcDbDatabase* db = database();
    if (db == nullptr)
        return Acad::eNoDatabase;
    const bool isBlock = record->isKindOf(AcDbBlockTableRecord::desc());
    if (!hostdb::isValidSymbolName(record->m_name.kwszPtr(), isBlock))
        return Acad::eInvalidSymbolTableName;
    if (!find(record->m_name.kwszPtr(), false).isNull())
        return Acad::eDuplicateRecordName;
    const Acad::ErrorStatus es = db->addAcDbObject(recordId, record);
    if (es != Acad::eOk)
        return es;
    AcDbImpObject::of(record)->setOwner(objectId());
    m_records.push_back(recordId);
    return Acad::eOk;
}

void AcDbSymbolTable::closeRecord(AcDbSymbolTableRecord* record)
{
    record->close();
}

Acad::ErrorStatus AcDbSymbolTable::dwgOutFields(AcDbDwgFiler* filer) const
{
    const Acad::ErrorStatus es = AcDbObject::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeUInt32(static_cast<Adesk::UInt32>(m_records.size()));
    for (const AcDbObjectId& id : m_records)
        filer->writeHardOwnershipId(id);
    return filer->filerStatus();
}

// The count is not trusted: records are read one by one until it is reached or the
// data ends, so a hostile count allocates nothing beyond what the data holds.
Acad::ErrorStatus AcDbSymbolTable::dwgInFields(AcDbDwgFiler* filer)
{
    const Acad::ErrorStatus es = AcDbObject::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::UInt32 count = 0;
    if (filer->readUInt32(&count) != Acad::eOk)
        return filer->filerStatus();
    std::vector<AcDbObjectId> records;
    for (Adesk::UInt32 i = 0; i < count; ++i) {
        AcDbHardOwnershipId id;
        if (filer->readHardOwnershipId(&id) != Acad::eOk)
            return filer->filerStatus();
        if (!id.isNull())
            records.push_back(id);
    }
    m_records = std::move(records);
    return filer->filerStatus();
}
