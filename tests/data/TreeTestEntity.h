// An entity that carries a data tree and files it the way the module's entities do, so
// that tests can drive the tree through a database, the open/close protocol and undo.
#pragma once

#include "data/DataNodeRoot.h"
#include "dbmain.h"

class TreeTestEntity : public AcDbEntity, public DataNodeRoot {
public:
    ACRX_DECLARE_MEMBERS(TreeTestEntity);

    static constexpr Adesk::Int32 kCurrentVersion = 1;

    TreeTestEntity();

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

    // The protected tree operations, for tests.
    bool TreeIn(AcDbDwgFiler* filer) { return DataIn(filer); }
    bool TreeOut(AcDbDwgFiler* filer) const { return DataOut(filer); }
    int TreeReadVersion() const { return GetReadVersion(); }

    // Registers the class once for the whole test program.
    static void EnsureRegistered();
};
