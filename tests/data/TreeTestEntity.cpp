// An entity that carries a data tree, for tests.
#include "TreeTestEntity.h"

ACRX_DXF_DEFINE_MEMBERS(TreeTestEntity, AcDbEntity, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0,
                        QX_TREE_TEST_ENTITY, QX_TEST)

TreeTestEntity::TreeTestEntity() : DataNodeRoot(this) {}

Acad::ErrorStatus TreeTestEntity::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = AcDbEntity::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt32(kCurrentVersion);
    DataOut(filer);
    return filer->filerStatus();
}

Acad::ErrorStatus TreeTestEntity::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    const Acad::ErrorStatus es = AcDbEntity::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int32 version = 0;
    filer->readInt32(&version);
    if (version > kCurrentVersion)
        return Acad::eMakeMeProxy;
    DataIn(filer);
    LoadFromNode();
    return filer->filerStatus();
}

void TreeTestEntity::EnsureRegistered()
{
    TreeTestEntity::rxInit();
    acrxBuildClassHierarchy();
}
