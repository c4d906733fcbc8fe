// Small database classes for the database tests: an object with a few filed fields, one
// that records partial undo itself, and a minimal entity.
#pragma once

#include "AcDbEntity.h"
#include "AcDbObject.h"
#include "TestObjectAccess.h"
#include "AcString.h"

// Registers the test classes once (the host's own classes come first).
void registerDbTestClasses();

class DbTestThing : public AcDbObject {
    ACRX_DECLARE_MEMBERS(DbTestThing);

public:
    static constexpr Adesk::Int32 kVersion = 1;

    DbTestThing() = default;
    ~DbTestThing() override;

    int value() const { return testobj::readField(this, m_value); }
    void setValue(int value) { testobj::writeField(this, m_value, value); }
    AcString text() const { return testobj::readField(this, m_text); }
    void setText(const ACHAR* text) { testobj::writeField(this, m_text, text); }
    double length() const { return testobj::readField(this, m_length); }
    void setLength(double length) { testobj::writeField(this, m_length, length); }
    AcDbObjectId reference() const { return testobj::readField(this, m_reference); }
    void setReference(AcDbObjectId id) { testobj::writeField(this, m_reference, id); }

    // Whether the last dwgInFields ran while the object was undoing.
    bool sawUndoing() const { return m_sawUndoing; }

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

    // How many DbTestThing objects have been destroyed.
    static int destroyed;

private:
    Adesk::Int32 m_value = 0;
    AcString m_text;
    double m_length = 0.0;
    AcDbHardPointerId m_reference;
    bool m_sawUndoing = false;
};

// Records its own undo: each setCount writes the old count to the undo filer.
class DbTestCounter : public AcDbObject {
    ACRX_DECLARE_MEMBERS(DbTestCounter);

public:
    int count() const { return testobj::readField(this, m_count); }
    void setCount(int count);
    Acad::ErrorStatus applyPartialUndo(AcDbDwgFiler* undoFiler, AcRxClass* classObj) override;

private:
    Adesk::Int32 m_count = 0;
};

class DbTestEntity : public AcDbEntity {
    ACRX_DECLARE_MEMBERS(DbTestEntity);

public:
    DbTestEntity() = default;
};
