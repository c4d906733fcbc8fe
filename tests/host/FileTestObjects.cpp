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
    gpDesc = testobj::registerByHand(L"FileTestShape", L"AcDbEntity", proxyFlags, &makeShape, L"FILE_TEST_SHAPE",
                                     L"FileTests|Product Desc: shapes for drawing tests");
}

void FileTestShape::unregister()
{
    testobj::unregisterByHand(L"FileTestShape");
    gpDesc = nullptr;
}

Acad::ErrorStatus FileTestShape::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = testobj::writeHead<AcDbEntity>(this, filer, writeVersion);
    if (es != Acad::eOk)
        return es;
    filer->writePoint3d(m_center);
    filer->writeDouble(m_radius);
    filer->writeString(m_label);
    filer->writeSoftPointerId(m_link);
    return filer->filerStatus();
}

Acad::ErrorStatus FileTestShape::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    const Acad::ErrorStatus es = testobj::readHead<AcDbEntity>(this, filer, 1);
    if (es != Acad::eOk)
        return es;
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
    gpDesc = testobj::registerByHand(L"FileTestRecord", L"AcDbObject", proxyFlags, &makeRecord, L"FILE_TEST_RECORD",
                                     L"FileTests");
}

void FileTestRecord::unregister()
{
    testobj::unregisterByHand(L"FileTestRecord");
    gpDesc = nullptr;
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
    const Acad::ErrorStatus es = testobj::readHead<AcDbObject>(this, filer, 1);
    if (es != Acad::eOk)
        return es;
    filer->readInt32(&m_number);
    filer->readHardPointerId(&m_target);
    return filer->filerStatus();
}
