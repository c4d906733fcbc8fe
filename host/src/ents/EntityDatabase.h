// What entities ask of the database they are in: names of symbol table records, look-ups
// by name, the working database and the spaces. Kept in one place so that entity code
// reads the database only through these few questions.
#pragma once

#include "AcCmColor.h"
#include "AcString.h"
#include "acdb.h"
#include "dbid.h"

class AcDbDatabase;

namespace hostents {

// The database an entity resolves names in: its own, else the working database (may be null).
AcDbDatabase* databaseFor(AcDbDatabase* own);

// The current properties a database gives new entities.
struct DatabaseDefaults {
    AcCmColor color;
    AcDbObjectId layerId;
    AcDbObjectId linetypeId;
    double linetypeScale = 1.0;
    AcDb::LineWeight lineWeight = AcDb::kLnWtByLayer;
};
DatabaseDefaults currentDefaults(AcDbDatabase* db);

// The name of a symbol table record; empty for a null id or an object that cannot be read.
AcString recordName(AcDbObjectId id);

// Look-ups in the layer and linetype tables: eKeyNotFound when there is no such record,
// eNoDatabase without a database.
Acad::ErrorStatus findLayer(AcDbDatabase* db, const ACHAR* name, AcDbObjectId& id);
Acad::ErrorStatus findLinetype(AcDbDatabase* db, const ACHAR* name, AcDbObjectId& id);
bool isLayerId(AcDbObjectId id);
bool isLinetypeId(AcDbObjectId id);

// How an owning block reads in a listing: "Model space", "Paper space", or the block's name.
enum class SpaceKind { kNone, kModel, kPaper, kBlock };
SpaceKind spaceOf(AcDbObjectId blockId, AcString& blockName);

}  // namespace hostents
