// AcDbImpDatabase: the private state of a database: the stubs by handle, the handle seed,
// the table ids and current values, and the undo history.
#pragma once

#include <map>

#include "AcDbDatabase.h"
#include "UndoRecorder.h"

class AcDbStub;

class AcDbImpDatabase {
public:
    explicit AcDbImpDatabase(AcDbDatabase* api);
    // Deletes the objects and lets the stubs die.
    ~AcDbImpDatabase();
    AcDbImpDatabase(const AcDbImpDatabase&) = delete;
    AcDbImpDatabase& operator=(const AcDbImpDatabase&) = delete;

    static AcDbImpDatabase* of(const AcDbDatabase* db) { return db->m_imp; }

    AcDbStub* find(Adesk::UInt64 handle) const;
    // The stub for handle, made (without an object) when the database has none.
    AcDbStub* stubFor(Adesk::UInt64 handle);
    // Makes obj resident: with the next handle, or with the given one (a drawing being
    // read). eHandleInUse when another object has that handle.
    Acad::ErrorStatus add(AcDbObject* obj, AcDbObjectId& id);
    Acad::ErrorStatus addAt(AcDbObject* obj, Adesk::UInt64 handle, AcDbObjectId& id);
    const std::map<Adesk::UInt64, AcDbStub*>& stubs() const { return m_stubs; }
    Adesk::UInt64 handseed() const { return m_handseed; }
    void raiseHandseed(Adesk::UInt64 seed);

    hostdb::UndoRecorder& undo() { return m_undo; }

    void buildDefaultDrawing();
    // The record named name in table, remembered in cache; for drawings that were read,
    // whose standard records are found by name.
    AcDbObjectId standardRecord(AcDbObjectId& cache, const AcDbObjectId& table, const ACHAR* name) const;

    // Table ids and current values.
    AcDbObjectId m_blockTable;
    AcDbObjectId m_layerTable;
    AcDbObjectId m_linetypeTable;
    AcDbObjectId m_textStyleTable;
    AcDbObjectId m_dimStyleTable;
    AcDbObjectId m_modelSpace;
    AcDbObjectId m_layerZero;
    AcDbObjectId m_byLayerLinetype;
    AcDbObjectId m_byBlockLinetype;
    AcDbObjectId m_continuousLinetype;
    AcDbObjectId m_clayer;
    AcDbObjectId m_celtype;
    AcDbObjectId m_textstyle;
    AcDbObjectId m_dimstyle;
    AcCmColor m_cecolor;
    double m_celtscale = 1.0;
    double m_ltscale = 1.0;
    AcDb::LineWeight m_celweight = AcDb::kLnWtByLayer;

private:
    Acad::ErrorStatus attach(AcDbObject* obj, AcDbStub* stub, AcDbObjectId& id);
    // A table read into a database that has none of its kind becomes the database's table.
    void adoptTable(AcDbObject* obj);

    AcDbDatabase* m_api;
    std::map<Adesk::UInt64, AcDbStub*> m_stubs;
    Adesk::UInt64 m_handseed = 1;
    hostdb::UndoRecorder m_undo;
};
