// The drawing-file suites' classes, registered by hand so that their flags can vary.
#include "FileTestObjects.h"

#include <cmath>

#include "AcDbLine.h"
#include "AcDbPolyline.h"
#include "AcGiSubEntityTraits.h"
#include "AcGiTextStyle.h"
#include "AcGiWorldDraw.h"
#include "AcGiWorldGeometry.h"

ACRX_DEFINE_MEMBERS(FileTestShape);
ACRX_DEFINE_MEMBERS(FileTestRecord);
ACRX_DEFINE_MEMBERS(FileTestSketch);

namespace {

AcRxObject* makeShape() { return new FileTestShape(); }
AcRxObject* makeRecord() { return new FileTestRecord(); }
AcRxObject* makeSketch()
{
    return new FileTestSketch();
}

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

void FileTestSketch::registerWith(int proxyFlags)
{
    gpDesc = testobj::registerByHand(L"FileTestSketch", L"AcDbEntity", proxyFlags, &makeSketch, L"FILE_TEST_SKETCH",
                                     L"FileTests");
}

void FileTestSketch::unregister()
{
    testobj::unregisterByHand(L"FileTestSketch");
    gpDesc = nullptr;
}

Acad::ErrorStatus FileTestSketch::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = testobj::writeHead<AcDbEntity>(this, filer, 1);
    if (es != Acad::eOk)
        return es;
    filer->writeInt32(m_plainLines);
    return filer->filerStatus();
}

Acad::ErrorStatus FileTestSketch::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    const Acad::ErrorStatus es = testobj::readHead<AcDbEntity>(this, filer, 1);
    if (es != Acad::eOk)
        return es;
    filer->readInt32(&m_plainLines);
    return filer->filerStatus();
}

Adesk::Boolean FileTestSketch::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    AcGiWorldGeometry& geometry = worldDraw->geometry();
    AcGiSubEntityTraits& traits = worldDraw->subEntityTraits();
    const AcGeVector3d tilted = AcGeVector3d(0.0, 0.6, 0.8);

    // In the plane z = 0 with and without a normal, then one vertex off the plane.
    const AcGePoint3d flat[3] = {{0.0, 0.0, 0.0}, {10.0, 0.0, 0.0}, {10.0, 5.0, 0.0}};
    geometry.polyline(3, flat, &AcGeVector3d::kZAxis, 11);
    geometry.polyline(2, flat + 1, nullptr, 12);
    const AcGePoint3d raised[2] = {{1.0, 2.0, 0.0}, {3.0, 4.0, 5.0}};
    geometry.polyline(2, raised);

    traits.setColor(3);
    traits.setLineWeight(AcDb::kLnWt050);
    traits.setLineTypeScale(2.5);
    traits.setSelectionMarker(21);
    geometry.circle(AcGePoint3d(20.0, 0.0, 0.0), 4.0, tilted);
    geometry.circularArc(AcGePoint3d(30.0, 0.0, 0.0), 3.0, AcGeVector3d::kZAxis, AcGeVector3d::kYAxis, 2.0,
                         kAcGiArcChord);
    AcCmEntityColor orange;
    orange.setRGB(255, 128, 0);
    traits.setTrueColor(orange);
    traits.setThickness(-0.0);
    AcDbPolyline bulged;
    bulged.addVertexAt(0, AcGePoint2d(40.0, 0.0), 0.5, 0.1, 0.2);
    bulged.addVertexAt(1, AcGePoint2d(45.0, 0.0));
    bulged.addVertexAt(2, AcGePoint2d(45.0, 5.0));
    geometry.pline(bulged);
    traits.setFillType(kAcGiFillAlways);
    traits.setSelectionMarker(22);
    const AcGePoint3d square[4] = {{50.0, 0.0, 0.0}, {52.0, 0.0, 0.0}, {52.0, 2.0, 0.0}, {50.0, 2.0, 0.0}};
    geometry.polygon(4, square);
    geometry.mesh(2, 2, square);
    const Adesk::Int32 faces[] = {4, 0, 1, 2, 3};
    geometry.shell(4, square, 5, faces);
    traits.setFillType(kAcGiFillNever);
    traits.setThickness(1.5);

    AcGiTextStyle style;
    style.setFileName(L"romans.shx");
    style.setStyleName(L"标注");
    style.setTextSize(2.5);
    style.setXScale(0.8);
    style.setObliquingAngle(0.25);
    style.setUnderlined(true);
    style.setFont(L"SimSun", true, false, 134, 2);
    geometry.text(AcGePoint3d(60.0, 0.0, 0.0), AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, L"板 A-1", -1, Adesk::kTrue,
                  style);
    geometry.text(AcGePoint3d(60.0, 5.0, 0.0), AcGeVector3d::kZAxis, AcGeVector3d::kXAxis, 1.0, 1.0, 0.0, L"B");
    geometry.xline(AcGePoint3d(0.0, 10.0, 0.0), AcGePoint3d(1.0, 11.0, 0.0));
    geometry.ray(AcGePoint3d(0.0, 20.0, 0.0), AcGePoint3d(1.0, 20.0, 0.0));

    traits.setColor(256);
    traits.setThickness(0.0);
    traits.setLineWeight(AcDb::kLnWtByLayer);
    traits.setLineTypeScale(1.0);
    AcDbLine nested(AcGePoint3d(0.0, 30.0, 0.0), AcGePoint3d(10.0, 30.0, 0.0));
    geometry.draw(&nested);

    for (int i = 0; i < m_plainLines; ++i) {
        const AcGePoint3d line[2] = {{0.0, 40.0 + i, 0.0}, {10.0, 40.0 + i, 0.0}};
        geometry.polyline(2, line);
    }
    return Adesk::kTrue;
}
