// Helpers for commands that make the module's entities.
#include "EntityCreation.h"

#include "Qx/LinetypeUtil.h"
#include "acutads.h"
#include "dbapserv.h"
#include "dbmain.h"
#include "dbsymtb.h"

Acad::ErrorStatus AddToCurrentSpace(AcDbEntity* entity, AcDbDatabase* db)
{
    if (db == nullptr)
        db = acdbHostApplicationServices()->workingDatabase();
    if (db == nullptr || entity == nullptr)
        return Acad::eInvalidInput;
    AcDbBlockTableRecord* space = nullptr;
    if (acdbOpenObject(space, db->currentSpaceId(), AcDb::kForWrite) != Acad::eOk || space == nullptr)
        return Acad::eInvalidInput;
    const Acad::ErrorStatus es = space->appendAcDbEntity(entity);
    if (es != Acad::eOk)
        acutPrintf(L"\nERROR: could not add entity to current space (%d)", static_cast<int>(es));
    // The module's linetypes are scaled for millimetre drawings; a drawing's own default
    // scale would make them unreadable.
    entity->setLinetypeScale(1.0, true);
    space->close();
    return es;
}

void EnsureDashedLinetype(AcDbDatabase* db)
{
    if (db == nullptr)
        return;
    if (Qx::LinetypeUtil::GetLinetype(L"DASHED", db).isValid())
        return;
    if (Qx::LinetypeUtil::LoadSystemLinetype(L"DASHED", db) == Acad::eOk)
        Qx::LinetypeUtil::GetLinetype(L"DASHED", db);
}
