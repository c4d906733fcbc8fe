// Classes for the drawing-file suites that can be registered with chosen proxy flags and
// unregistered again, so that drawings holding them open as proxies: a shape entity (a
// circle with a bulged tick, a label and a link) and a record object.
#pragma once

#include "AcDbEntity.h"
#include "AcDbObject.h"
#include "AcString.h"

class FileTestShape : public AcDbEntity {
    ACRX_DECLARE_MEMBERS(FileTestShape);

public:
    // The version this build writes; a reader refuses newer ones (eMakeMeProxy).
    static Adesk::Int16 writeVersion;

    // Registers the class with the flags (unregistering it first when registered).
    static void registerWith(int proxyFlags);
    static void unregister();

    AcGePoint3d center() const;
    void setCenter(const AcGePoint3d& center);
    double radius() const;
    void setRadius(double radius);
    AcString label() const;
    void setLabel(const ACHAR* label);
    AcDbObjectId link() const;
    void setLink(AcDbObjectId id);

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

    int number() const;
    void setNumber(int number);
    AcDbObjectId target() const;
    void setTarget(AcDbObjectId id);

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

private:
    Adesk::Int32 m_number = 0;
    AcDbHardPointerId m_target;
};
