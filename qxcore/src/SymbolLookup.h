// Finding a record of a symbol table by name, shared by the style and linetype utilities.
#pragma once

#include "dbapserv.h"
#include "dbmain.h"
#include "dbsymtb.h"

namespace Qx {
namespace Detail {

// getTable is one of AcDbDatabase's typed table getters.
template <typename Table>
AcDbObjectId FindRecord(const ACHAR* name, AcDbDatabase* db,
                        Acad::ErrorStatus (AcDbDatabase::*getTable)(Table*&, AcDb::OpenMode))
{
    if (db == nullptr)
        db = acdbHostApplicationServices()->workingDatabase();
    if (db == nullptr || name == nullptr || *name == L'\0')
        return AcDbObjectId::kNull;
    Table* table = nullptr;
    if ((db->*getTable)(table, AcDb::kForRead) != Acad::eOk || table == nullptr)
        return AcDbObjectId::kNull;
    AcDbObjectId id;
    if (table->getAt(name, id) != Acad::eOk)
        id = AcDbObjectId::kNull;
    table->close();
    return id;
}

}  // namespace Detail
}  // namespace Qx
