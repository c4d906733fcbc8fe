// Classes for the clone and drawing-file suites: an entity that points at other objects
// (a soft and a hard pointer) and may own a note, and the note it owns.
#pragma once

#include "AcDbEntity.h"
#include "AcDbObject.h"
#include "TestObjectAccess.h"

// Registers the classes once.
void registerCloneTestClasses();

// An owned object with a number.
class CloneTestNote : public AcDbObject {
    ACRX_DECLARE_MEMBERS(CloneTestNote);

public:
    int number() const { return testobj::readField(this, m_number); }
    void setNumber(int number) { testobj::writeField(this, m_number, number); }

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

private:
    Adesk::Int32 m_number = 0;
};

// An entity with a tag, a soft and a hard pointer, and optionally an owned note. It draws
// a line from (tag, 0) to (tag, 1) so that drawings of it have graphics to keep.
class CloneTestLink : public AcDbEntity {
    ACRX_DECLARE_MEMBERS(CloneTestLink);

public:
    int tag() const { return testobj::readField(this, m_tag); }
    void setTag(int tag) { testobj::writeField(this, m_tag, tag); }
    AcDbObjectId softRef() const { return testobj::readField(this, m_soft); }
    void setSoftRef(AcDbObjectId id) { testobj::writeField(this, m_soft, id); }
    AcDbObjectId hardRef() const { return testobj::readField(this, m_hard); }
    void setHardRef(AcDbObjectId id) { testobj::writeField(this, m_hard, id); }
    AcDbObjectId note() const { return testobj::readField(this, m_note); }
    void setNote(AcDbObjectId id) { testobj::writeField(this, m_note, id); }

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

    // Fails its clone when the tag is this value (to drive the abort path).
    static int failingTag;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    Acad::ErrorStatus subDeepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                   Adesk::Boolean isPrimary = true) const override;

private:
    Adesk::Int32 m_tag = 0;
    AcDbSoftPointerId m_soft;
    AcDbHardPointerId m_hard;
    AcDbHardOwnershipId m_note;
};
