// AcDbObject: every object that lives in a database. It carries its id, owner and handle,
// follows the open/close protocol, files its fields through dwgOutFields/dwgInFields and
// records undo through that same filing.
#pragma once

#include "AcDbDwgFiler.h"
#include "AcGiDrawable.h"
#include "acwin.h"

class AcDbDatabase;
class AcDbIdMapping;
class AcDbImpObject;

class ACHOST_API AcDbObject : public AcGiDrawable {
    ACRX_DECLARE_MEMBERS(AcDbObject);

public:
    ~AcDbObject() override;

    AcDbObjectId objectId() const;
    AcDbObjectId ownerId() const;
    virtual Acad::ErrorStatus setOwnerId(AcDbObjectId owner);
    void getAcDbHandle(AcDbHandle& handle) const;
    AcDbHandle handle() const;
    // The database the object is in; null while it is in none.
    AcDbDatabase* database() const;

    // The open/close protocol. An object that is in no database is always open for read
    // and write (its creator owns it: close() answers eNotInDatabase); once added to a
    // database it must be opened to be used and closed afterwards. Each close() ends the
    // latest open (eInvalidOpenState when none is left); cancel() also puts back the state
    // the object had when it was opened for write (a cancelled new object is erased).
    Acad::ErrorStatus close();
    Acad::ErrorStatus cancel();
    // Only a single reader may upgrade (eHadMultipleReaders, eWasOpenForWrite).
    Acad::ErrorStatus upgradeOpen();
    Acad::ErrorStatus downgradeOpen();
    // Needs a write open (eNotOpenForWrite) and a database (eNotInDatabase). Erasing an
    // erased object answers eWasErased, unerasing one that is not erased eWasNotErased.
    Acad::ErrorStatus erase(Adesk::Boolean erasing = true);

    // Raise the host error when the object is not open as needed. assertWriteEnabled with
    // autoUndo and recordModified records the object's state for undo once per undo group.
    void assertReadEnabled() const;
    void assertWriteEnabled(Adesk::Boolean autoUndo = true, Adesk::Boolean recordModified = true);
    void assertNotifyEnabled() const;

    bool isReadEnabled() const;
    bool isWriteEnabled() const;
    bool isNotifyEnabled() const;
    bool isModified() const;
    bool isModifiedGraphics() const;
    bool isNewObject() const;
    bool isErased() const;
    bool isUndoing() const;
    bool isCancelling() const;
    bool isReallyClosing() const;
    bool isTransactionResident() const { return false; }
    bool isAProxy() const;

    // Filing: dwgOut/dwgIn check the filer and call the class's ...Fields; the drawing
    // record around an object carries its handle and class. AcDbObject's own fields are
    // the owner (a soft pointer) on every filer except the copy, deep clone, wblock
    // clone and id translation filers, whose copies get their owner from the copying.
    Acad::ErrorStatus dwgOut(AcDbDwgFiler* filer) const;
    Acad::ErrorStatus dwgIn(AcDbDwgFiler* filer);
    virtual Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const;
    virtual Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer);

    // Partial undo for objects that record it themselves: after assertWriteEnabled(false,
    // true), undoFiler() (null while nothing records) takes the class descriptor as an
    // address and then the class's data; undo reads the address and hands the rest to
    // applyPartialUndo, whose setters record the redo the same way.
    virtual Acad::ErrorStatus applyPartialUndo(AcDbDwgFiler* undoFiler, AcRxClass* classObj);
    AcDbDwgFiler* undoFiler();

    // Cloning. Application code should not call these directly; the database's
    // deepCloneObjects / wblockCloneObjects do. The base sub... functions make a new object
    // of the class (isA()->create()), copy the fields through a clone filer, place it under
    // the owner (a primary entity going into a block is appended to it; a record going
    // into a symbol table is added to it; anything else is added to the owner's database
    // and owned by the owner), record the pair in idMap, clone the objects this one owns
    // (wblock: and those it hard-points to) with isPrimary false, and leave the clone open
    // for write for the caller to close. References are translated later, by the operation.
    Acad::ErrorStatus deepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                Adesk::Boolean isPrimary = true) const;
    Acad::ErrorStatus wblockClone(AcRxObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                  Adesk::Boolean isPrimary = true) const;
    void setAcDbObjectIdsInFlux();
    bool isAcDbObjectIdsInFlux() const;

    // A new object of the same class with the same fields, in no database.
    AcRxObject* clone() const override;
    Acad::ErrorStatus copyFrom(const AcRxObject* other) override;

    Acad::ErrorStatus getClassID(CLSID* classId) const;

    // AcGiDrawable
    Adesk::Boolean isPersistent() const override;
    AcDbObjectId id() const override;

protected:
    AcDbObject();

    virtual Acad::ErrorStatus subDeepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                           Adesk::Boolean isPrimary = true) const;
    virtual Acad::ErrorStatus subWblockClone(AcRxObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                             Adesk::Boolean isPrimary = true) const;
    virtual Acad::ErrorStatus subErase(Adesk::Boolean erasing);
    virtual Acad::ErrorStatus subOpen(AcDb::OpenMode mode);
    virtual Acad::ErrorStatus subClose();
    virtual Acad::ErrorStatus subCancel();
    virtual Acad::ErrorStatus subGetClassID(CLSID* classId) const;

    Adesk::UInt32 subSetAttributes(AcGiDrawableTraits* traits) override;
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subViewportDraw(AcGiViewportDraw* viewportDraw) override;

private:
    friend class AcDbImpObject;
    AcDbImpObject* m_imp;
};

// Opens the object with the given id. Erased objects open only with openErased
// (eWasErased). eNullObjectId; eInvalidObjectId when the id's database is gone;
// ePermanentlyErased for a reference whose object never arrived; eWasOpenForRead,
// eWasOpenForWrite, eWasOpenForNotify, eAtMaxReaders (256) as the modes collide;
// eInvalidOpenState for kNotOpen.
ACHOST_API Acad::ErrorStatus acdbOpenObject(AcDbObject*& obj, AcDbObjectId id, AcDb::OpenMode mode,
                                            bool openErased = false);

// Typed form: fails with eNotThatKindOfClass when the object is not a T (and leaves it closed).
template <class T>
Acad::ErrorStatus acdbOpenObject(T*& obj, AcDbObjectId id, AcDb::OpenMode mode, bool openErased = false)
{
    obj = nullptr;
    AcDbObject* opened = nullptr;
    Acad::ErrorStatus es = acdbOpenObject(opened, id, mode, openErased);
    if (es != Acad::eOk)
        return es;
    obj = T::cast(opened);
    if (obj == nullptr) {
        opened->close();
        return Acad::eNotThatKindOfClass;
    }
    return Acad::eOk;
}
