// AcDbBlockTableRecord: appending entities, the block's origin, and filing the list of
// entities the block owns.
#include "AcDbBlockTableRecord.h"

#include "AcDbBlockTable.h"
#include "AcDbBlockTableRecordIterator.h"
#include "AcDbDatabase.h"
#include "AcDbEntity.h"
#include "AcDbImpObject.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbBlockTableRecord, AcDbSymbolTableRecord, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0,
                        BLOCK_RECORD, HeadlessHost)

AcDbBlockTableRecord::AcDbBlockTableRecord() = default;

AcDbBlockTableRecord::~AcDbBlockTableRecord() = default;

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbEntity* entity)
{
    AcDbObjectId id;
    return appendAcDbEntity(id, entity);
}

Acad::ErrorStatus AcDbBlockTableRecord::appendAcDbEntity(AcDbObjectId& entityId, AcDbEntity* entity)
{
    entityId.setNull();
    assertWriteEnabled();
    if (entity == nullptr)
        return Acad::eNullEntityPointer;
    if (entity->database() != nullptr)
        return Acad::eAlreadyInDb;
    AcDbDatabase* db = database();
    if (db == nullptr)
        return Acad::eNoDatabase;
    const Acad::ErrorStatus es = db->addAcDbObject(entityId, entity);
    if (es != Acad::eOk)
        return es;
    AcDbImpObject::of(entity)->setOwner(objectId());
    // Appending ends the "no colour yet" state: properties the creator never set take the
    // database's current values; properties it did set are kept.
    if (entity->colorIndex() == 257)
        entity->setColor(db->cecolor());
    if (entity->layerId().isNull())
        entity->setLayer(db->clayer());
    if (entity->linetypeId().isNull())
        entity->setLinetype(db->celtype());
    m_entities.push_back(entityId);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbBlockTableRecord::newIterator(AcDbBlockTableRecordIterator*& iterator, bool atBeginning,
                                                    bool skipDeleted) const
{
    assertReadEnabled();
    iterator = new AcDbBlockTableRecordIterator(this);
    iterator->start(atBeginning, skipDeleted);
    return Acad::eOk;
}

AcGePoint3d AcDbBlockTableRecord::origin() const
{
    assertReadEnabled();
    return m_origin;
}

Acad::ErrorStatus AcDbBlockTableRecord::setOrigin(const AcGePoint3d& origin)
{
    assertWriteEnabled();
    m_origin = origin;
    return Acad::eOk;
}

bool AcDbBlockTableRecord::isLayout() const
{
    AcString name;
    getName(name);
    return name.compareNoCase(ACDB_MODEL_SPACE) == 0 || name.left(12).compareNoCase(ACDB_PAPER_SPACE) == 0;
}

bool AcDbBlockTableRecord::isAnonymous() const
{
    AcString name;
    getName(name);
    return name.left(2).compareNoCase(L"*U") == 0;
}

Acad::ErrorStatus AcDbBlockTableRecord::dwgOutFields(AcDbDwgFiler* filer) const
{
    const Acad::ErrorStatus es = AcDbSymbolTableRecord::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writePoint3d(m_origin);
    filer->writeUInt32(static_cast<Adesk::UInt32>(m_entities.size()));
    for (const AcDbObjectId& id : m_entities)
        filer->writeHardOwnershipId(id);
    return filer->filerStatus();
}

// The entity count is not trusted: entities are read one by one until the count is
// reached or the data ends.
Acad::ErrorStatus AcDbBlockTableRecord::dwgInFields(AcDbDwgFiler* filer)
{
    const Acad::ErrorStatus es = AcDbSymbolTableRecord::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    AcGePoint3d origin;
    Adesk::UInt32 count = 0;
    filer->readPoint3d(&origin);
    if (filer->readUInt32(&count) != Acad::eOk)
        return filer->filerStatus();
    std::vector<AcDbObjectId> entities;
    for (Adesk::UInt32 i = 0; i < count; ++i) {
        AcDbHardOwnershipId id;
        if (filer->readHardOwnershipId(&id) != Acad::eOk)
            return filer->filerStatus();
        if (!id.isNull())
            entities.push_back(id);
    }
    m_origin = origin;
    m_entities = std::move(entities);
    return filer->filerStatus();
}
