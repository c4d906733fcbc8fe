// Classes for the drawing-file suites that can be registered with chosen proxy flags and
// unregistered again, so that drawings holding them open as proxies: a shape entity (a
// circle with a bulged tick, a label and a link), a record object, and a sketch entity
// that draws every kind of primitive with changing traits.
#pragma once

#include "AcDbEntity.h"
#include "AcDbObject.h"
#include "TestObjectAccess.h"
#include "AcString.h"

class FileTestShape : public AcDbEntity {
    ACRX_DECLARE_MEMBERS(FileTestShape);

public:
    // The version this build writes; a reader refuses newer ones (eMakeMeProxy).
    static Adesk::Int16 writeVersion;

    // Registers the class with the flags (unregistering it first when registered).
    static void registerWith(int proxyFlags);
    static void unregister();

    AcGePoint3d center() const { return testobj::readField(this, m_center); }
    void setCenter(const AcGePoint3d& center) { testobj::writeField(this, m_center, center); }
    double radius() const { return testobj::readField(this, m_radius); }
    void setRadius(double radius) { testobj::writeField(this, m_radius, radius); }
    AcString label() const { return testobj::readField(this, m_label); }
    void setLabel(const ACHAR* label) { testobj::writeField(this, m_label, label); }
    AcDbObjectId link() const { return testobj::readField(this, m_link); }
    void setLink(AcDbObjectId id) { testobj::writeField(this, m_link, id); }

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;

private:
    AcGePoint3d m_center;
    double m_radius = 1.0;
    AcString m_label;
    AcDbSoftPointerId m_link;
};

// A negative number makes the record refuse to be filed.
class FileTestRecord : public AcDbObject {
    ACRX_DECLARE_MEMBERS(FileTestRecord);

public:
    static void registerWith(int proxyFlags);
    static void unregister();

    int number() const { return testobj::readField(this, m_number); }
    void setNumber(int number) { testobj::writeField(this, m_number, number); }
    AcDbObjectId target() const { return testobj::readField(this, m_target); }
    void setTarget(AcDbObjectId id) { testobj::writeField(this, m_target, id); }

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

private:
    Adesk::Int32 m_number = 0;
    AcDbHardPointerId m_target;
};

// Draws every kind of primitive the host records, nested once, with traits, markers and text
// styles that change between them, then `plainLines` 2-point lines in the plane z = 0 that
// repeat the last traits and marker.
class FileTestSketch : public AcDbEntity {
    ACRX_DECLARE_MEMBERS(FileTestSketch);

public:
    static void registerWith(int proxyFlags);
    static void unregister();

    int plainLines() const { return testobj::readField(this, m_plainLines); }
    void setPlainLines(int count) { testobj::writeField(this, m_plainLines, count); }

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;

private:
    Adesk::Int32 m_plainLines = 0;
};
