// The drawing-file suites' classes, registered by hand so that their flags can vary.
#include "FileTestObjects.h"

#include "AcGiWorldDraw.h"
#include "AcDbPolyline.h"
#include "AcGiWorldGeometry.h"

ACRX_DEFINE_MEMBERS(FileTestShape);
ACRX_DEFINE_MEMBERS(FileTestRecord);

namespace {

AcRxObject* makeShape() { return new FileTestShape(); }
AcRxObject* makeRecord() { return new FileTestRecord(); }

}  // namespace

Adesk::Int16 FileTestShape::writeVersion = 1;

void FileTestShape::registerWith(int proxyFlags)
{
    unregister();
    gpDesc = newAcRxClass(L"FileTestShape", L"AcDbEntity", AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, proxyFlags,
                          &makeShape, L"FILE_TEST_SHAPE", L"FileTests|Product Desc: shapes for drawing tests");
    acrxBuildClassHierarchy();
}

void FileTestShape::unregister()
{
    if (AcRxClass* cls = acrxFindAcRxClass(L"FileTestShape"))
        deleteAcRxClass(cls);
    gpDesc = nullptr;
}

AcGePoint3d FileTestShape::center() const
{
    assertReadEnabled();
    return m_center;
}

void FileTestShape::setCenter(const AcGePoint3d& center)
{
    assertWriteEnabled();
    m_center = center;
}

double FileTestShape::radius() const
{
    assertReadEnabled();
    return m_radius;
}

void FileTestShape::setRadius(double radius)
{
    assertWriteEnabled();
    m_radius = radius;
}

AcString FileTestShape::label() const
{
    assertReadEnabled();
    return m_label;
}

void FileTestShape::setLabel(const ACHAR* label)
{
    assertWriteEnabled();
    m_label = label;
}

AcDbObjectId FileTestShape::link() const
{
    assertReadEnabled();
    return m_link;
}

void FileTestShape::setLink(AcDbObjectId id)
{
    assertWriteEnabled();
    m_link = id;
}

Acad::ErrorStatus FileTestShape::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = AcDbEntity::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt16(writeVersion);
    filer->writePoint3d(m_center);
    filer->writeDouble(m_radius);
    filer->writeString(m_label);
    filer->writeSoftPointerId(m_link);
    return filer->filerStatus();
}

Acad::ErrorStatus FileTestShape::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    const Acad::ErrorStatus es = AcDbEntity::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int16 version = 0;
    filer->readInt16(&version);
    if (version > 1)
        return Acad::eMakeMeProxy;
    filer->readPoint3d(&m_center);
    filer->readDouble(&m_radius);
    filer->readString(m_label);
    filer->readSoftPointerId(&m_link);
    return filer->filerStatus();
}

Adesk::Boolean FileTestShape::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    worldDraw->geometry().circle(m_center, m_radius, AcGeVector3d::kZAxis);
    AcDbPolyline tick;
    tick.addVertexAt(0, AcGePoint2d(m_center.x + m_radius, m_center.y), 0.5);
    tick.addVertexAt(1, AcGePoint2d(m_center.x + m_radius, m_center.y + m_radius));
    worldDraw->geometry().pline(tick);
    worldDraw->subEntityTraits().setColor(1);
    worldDraw->geometry().text(m_center, AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, m_radius / 2, 1.0, 0.0,
                               m_label.kwszPtr());
    return Adesk::kTrue;
}

Acad::ErrorStatus FileTestShape::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    m_center.transformBy(xform);
    m_radius *= xform.scale();
    return Acad::eOk;
}

void FileTestRecord::registerWith(int proxyFlags)
{
    unregister();
    gpDesc = newAcRxClass(L"FileTestRecord", L"AcDbObject", AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, proxyFlags,
                          &makeRecord, L"FILE_TEST_RECORD", L"FileTests");
    acrxBuildClassHierarchy();
}

void FileTestRecord::unregister()
{
    if (AcRxClass* cls = acrxFindAcRxClass(L"FileTestRecord"))
        deleteAcRxClass(cls);
    gpDesc = nullptr;
}

int FileTestRecord::number() const
{
    assertReadEnabled();
    return m_number;
}

void FileTestRecord::setNumber(int number)
{
    assertWriteEnabled();
    m_number = number;
}

AcDbObjectId FileTestRecord::target() const
{
    assertReadEnabled();
    return m_target;
}

void FileTestRecord::setTarget(AcDbObjectId id)
{
    assertWriteEnabled();
    m_target = id;
}

Acad::ErrorStatus FileTestRecord::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = AcDbObject::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    if (m_number < 0) {
        filer->setFilerStatus(Acad::eInvalidInput);  // a record that refuses to be filed
        return Acad::eInvalidInput;
    }
    filer->writeInt16(1);
    filer->writeInt32(m_number);
    filer->writeHardPointerId(m_target);
    return filer->filerStatus();
}

Acad::ErrorStatus FileTestRecord::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    const Acad::ErrorStatus es = AcDbObject::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int16 version = 0;
    filer->readInt16(&version);
    if (version > 1)
        return Acad::eMakeMeProxy;
    filer->readInt32(&m_number);
    filer->readHardPointerId(&m_target);
    return filer->filerStatus();
}
