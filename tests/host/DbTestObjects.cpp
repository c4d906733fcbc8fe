// The database tests' own classes.
#include "DbTestObjects.h"

ACRX_DXF_DEFINE_MEMBERS(DbTestThing, AcDbObject, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, DB_TEST_THING,
                        DbTests)
ACRX_DXF_DEFINE_MEMBERS(DbTestCounter, AcDbObject, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, DB_TEST_COUNTER,
                        DbTests)
ACRX_DXF_DEFINE_MEMBERS(DbTestEntity, AcDbEntity, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, DB_TEST_ENTITY,
                        DbTests)

void registerDbTestClasses()
{
    if (acrxFindAcRxClass(L"DbTestThing") != nullptr)
        return;
    DbTestThing::rxInit();
    DbTestCounter::rxInit();
    DbTestEntity::rxInit();
    acrxBuildClassHierarchy();
}

int DbTestThing::destroyed = 0;

DbTestThing::~DbTestThing()
{
    ++destroyed;
}

Acad::ErrorStatus DbTestThing::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    Acad::ErrorStatus es = AcDbObject::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt32(kVersion);
    filer->writeInt32(m_value);
    filer->writeString(m_text);
    filer->writeDouble(m_length);
    filer->writeHardPointerId(m_reference);
    return filer->filerStatus();
}

Acad::ErrorStatus DbTestThing::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    Acad::ErrorStatus es = AcDbObject::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int32 version = 0;
    filer->readInt32(&version);
    if (version > kVersion)
        return Acad::eMakeMeProxy;
    filer->readInt32(&m_value);
    filer->readString(m_text);
    filer->readDouble(&m_length);
    filer->readHardPointerId(&m_reference);
    m_sawUndoing = isUndoing();
    return filer->filerStatus();
}

void DbTestCounter::setCount(int count)
{
    assertWriteEnabled(false, true);
    if (AcDbDwgFiler* filer = undoFiler()) {
        filer->writeAddress(DbTestCounter::desc());
        filer->writeInt32(m_count);
    }
    m_count = count;
}

Acad::ErrorStatus DbTestCounter::applyPartialUndo(AcDbDwgFiler* undoFiler, AcRxClass* classObj)
{
    if (classObj != DbTestCounter::desc())
        return AcDbObject::applyPartialUndo(undoFiler, classObj);
    Adesk::Int32 previous = 0;
    undoFiler->readInt32(&previous);
    setCount(previous);
    return undoFiler->filerStatus();
}
