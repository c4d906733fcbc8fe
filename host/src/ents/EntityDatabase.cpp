// What entities ask of their database: record names, look-ups, defaults and spaces.
#include "EntityDatabase.h"

#include "AcDbDatabase.h"
#include "dbapserv.h"
#include "dbsymtb.h"

namespace hostents {
namespace {

template <class Table>
Acad::ErrorStatus findIn(AcDbDatabase* db, const ACHAR* name, AcDbObjectId& id)
{
    id.setNull();
    if (db == nullptr)
        return Acad::eNoDatabase;
    Table* table = nullptr;
    Acad::ErrorStatus es = db->getSymbolTable(table, AcDb::kForRead);
    if (es != Acad::eOk)
        return es;
    es = table->getAt(name, id);
    table->close();
    return es;
}

bool isRecordOf(AcDbObjectId id, AcRxClass* recordClass)
{
    const AcRxClass* cls = id.objectClass();
    return cls != nullptr && recordClass != nullptr && cls->isDerivedFrom(recordClass);
}

}  // namespace

AcDbDatabase* databaseFor(AcDbDatabase* own)
{
    if (own != nullptr)
        return own;
    AcDbHostApplicationServices* services = acdbHostApplicationServices();
    return services != nullptr ? services->workingDatabase() : nullptr;
}

DatabaseDefaults currentDefaults(AcDbDatabase* db)
{
    DatabaseDefaults defaults;
    defaults.color = db->cecolor();
    defaults.layerId = db->clayer();
    defaults.linetypeId = db->celtype();
    defaults.linetypeScale = db->celtscale();
    defaults.lineWeight = db->celweight();
    return defaults;
}

AcString recordName(AcDbObjectId id)
{
    if (id.isNull() || !id.isValid())
        return AcString();
    AcDbSymbolTableRecord* record = nullptr;
    if (acdbOpenObject(record, id, AcDb::kForRead, true) != Acad::eOk)
        return AcString();
    AcString name;
    record->getName(name);
    record->close();
    return name;
}

Acad::ErrorStatus findLayer(AcDbDatabase* db, const ACHAR* name, AcDbObjectId& id)
{
    return findIn<AcDbLayerTable>(db, name, id);
}

Acad::ErrorStatus findLinetype(AcDbDatabase* db, const ACHAR* name, AcDbObjectId& id)
{
    return findIn<AcDbLinetypeTable>(db, name, id);
}

bool isLayerId(AcDbObjectId id)
{
    return isRecordOf(id, AcDbLayerTableRecord::desc());
}

bool isLinetypeId(AcDbObjectId id)
{
    return isRecordOf(id, AcDbLinetypeTableRecord::desc());
}

SpaceKind spaceOf(AcDbObjectId blockId, AcString& blockName)
{
    blockName = recordName(blockId);
    if (blockId.isNull() || blockName.isEmpty())
        return SpaceKind::kNone;
    if (blockName.compareNoCase(ACDB_MODEL_SPACE) == 0)
        return SpaceKind::kModel;
    if (blockName.left(12).compareNoCase(ACDB_PAPER_SPACE) == 0)
        return SpaceKind::kPaper;
    return SpaceKind::kBlock;
}

}  // namespace hostents
