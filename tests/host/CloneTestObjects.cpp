// The clone and drawing-file suites' classes.
#include "CloneTestObjects.h"

#include "AcGiWorldDraw.h"
#include "AcGiWorldGeometry.h"

ACRX_DXF_DEFINE_MEMBERS(CloneTestNote, AcDbObject, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0x80,
                        CLONE_TEST_NOTE, CloneTests)
ACRX_DXF_DEFINE_MEMBERS(CloneTestLink, AcDbEntity, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0x37F,
                        CLONE_TEST_LINK, CloneTests)

namespace {
constexpr Adesk::Int16 kVersion = 1;
}

void registerCloneTestClasses()
{
    if (acrxFindAcRxClass(L"CloneTestLink") != nullptr)
        return;
    CloneTestNote::rxInit();
    CloneTestLink::rxInit();
    acrxBuildClassHierarchy();
}

Acad::ErrorStatus CloneTestNote::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = testobj::writeHead<AcDbObject>(this, filer, kVersion);
    if (es != Acad::eOk)
        return es;
    filer->writeInt32(m_number);
    return filer->filerStatus();
}

Acad::ErrorStatus CloneTestNote::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    const Acad::ErrorStatus es = testobj::readHead<AcDbObject>(this, filer, kVersion);
    if (es != Acad::eOk)
        return es;
    filer->readInt32(&m_number);
    return filer->filerStatus();
}

int CloneTestLink::failingTag = -1;

Acad::ErrorStatus CloneTestLink::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = testobj::writeHead<AcDbEntity>(this, filer, kVersion);
    if (es != Acad::eOk)
        return es;
    filer->writeInt32(m_tag);
    filer->writeSoftPointerId(m_soft);
    filer->writeHardPointerId(m_hard);
    filer->writeHardOwnershipId(m_note);
    return filer->filerStatus();
}

Acad::ErrorStatus CloneTestLink::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    const Acad::ErrorStatus es = testobj::readHead<AcDbEntity>(this, filer, kVersion);
    if (es != Acad::eOk)
        return es;
    filer->readInt32(&m_tag);
    filer->readSoftPointerId(&m_soft);
    filer->readHardPointerId(&m_hard);
    filer->readHardOwnershipId(&m_note);
    return filer->filerStatus();
}

Adesk::Boolean CloneTestLink::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    const AcGePoint3d points[2] = {AcGePoint3d(m_tag, 0, 0), AcGePoint3d(m_tag, 1, 0)};
    worldDraw->geometry().polyline(2, points);
    return Adesk::kTrue;
}

Acad::ErrorStatus CloneTestLink::subDeepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                              Adesk::Boolean isPrimary) const
{
    if (m_tag == failingTag)
        return Acad::eNotApplicable;
    return AcDbEntity::subDeepClone(owner, clone, idMap, isPrimary);
}
