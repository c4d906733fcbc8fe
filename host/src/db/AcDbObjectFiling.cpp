// AcDbObject's filing and copying: the framework part of dwgOut/dwgIn, the fields the base
// class owns, copies through a copy filer, the minimal deep and wblock clone, and the
// partial undo hooks.
#include "AcDbBlockTableRecord.h"
#include "AcDbDatabase.h"
#include "AcDbEntity.h"
#include "AcDbImpDatabase.h"
#include "AcDbImpObject.h"
#include "AcDbObject.h"
#include "UndoRecorder.h"
#include "headless/MemoryDwgFiler.h"
#include "rxclass.h"

namespace {

// Copies start from a fresh owner, so the filers that copy do not carry the owner;
// every other filer (files, undo, paging, reference collection) does.
bool filesOwner(const AcDbDwgFiler* filer)
{
    switch (filer->filerType()) {
    case AcDb::kCopyFiler:
    case AcDb::kDeepCloneFiler:
    case AcDb::kWblockCloneFiler:
        return false;
    default:
        return true;
    }
}

// A new object of source's class with source's fields, in no database.
Acad::ErrorStatus copyThroughFiler(const AcDbObject* source, AcDb::FilerType type, AcDbObject*& copy)
{
    copy = nullptr;
    const AcRxClass* cls = source->isA();
    AcRxObject* made = cls != nullptr ? cls->create() : nullptr;
    AcDbObject* object = AcDbObject::cast(made);
    if (object == nullptr) {
        delete made;
        return Acad::eNotApplicable;  // an abstract class cannot be copied
    }
    headless::MemoryDwgFiler filer(type, source->database());
    Acad::ErrorStatus es = source->dwgOut(&filer);
    if (es == Acad::eOk)
        es = filer.seek(0, AcDb::kSeekFromStart);
    if (es == Acad::eOk)
        es = object->dwgIn(&filer);
    if (es != Acad::eOk) {
        delete object;
        return es;
    }
    copy = object;
    return Acad::eOk;
}

// Puts a fresh copy into the owner's database: primary entities into a block table
// record owner are appended to it, everything else is added and owned by the owner.
Acad::ErrorStatus placeClone(AcDbObject* copy, AcDbObject* owner, AcDbDatabase* database, bool isPrimary)
{
    if (database == nullptr)
        return Acad::eNoDatabase;
    AcDbBlockTableRecord* block = AcDbBlockTableRecord::cast(owner);
    AcDbEntity* entity = AcDbEntity::cast(copy);
    if (isPrimary && block != nullptr && entity != nullptr)
        return block->appendAcDbEntity(entity);
    AcDbObjectId id;
    const Acad::ErrorStatus es = database->addAcDbObject(id, copy);
    if (es == Acad::eOk && owner != nullptr)
        AcDbImpObject::of(copy)->setOwner(owner->objectId());
    return es;
}

Acad::ErrorStatus cloneInto(const AcDbObject* source, AcDbObject* owner, AcDbDatabase* database,
                            AcDb::FilerType type, bool isPrimary, AcDbObject*& clone)
{
    clone = nullptr;
    AcDbObject* copy = nullptr;
    Acad::ErrorStatus es = copyThroughFiler(source, type, copy);
    if (es != Acad::eOk)
        return es;
    if (owner != nullptr || database != nullptr) {
        es = placeClone(copy, owner, database, isPrimary);
        if (es != Acad::eOk) {
            delete copy;
            return es;
        }
    }
    clone = copy;
    return Acad::eOk;
}

}  // namespace

Acad::ErrorStatus AcDbObject::dwgOut(AcDbDwgFiler* filer) const
{
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    // The drawing record around the object carries its handle and class; the object
    // writes only its fields.
    const Acad::ErrorStatus es = dwgOutFields(filer);
    return es != Acad::eOk ? es : filer->filerStatus();
}

Acad::ErrorStatus AcDbObject::dwgIn(AcDbDwgFiler* filer)
{
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    const Acad::ErrorStatus es = dwgInFields(filer);
    return es != Acad::eOk ? es : filer->filerStatus();
}

Acad::ErrorStatus AcDbObject::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    if (filesOwner(filer))
        filer->writeSoftPointerId(ownerId());
    return filer->filerStatus();
}

Acad::ErrorStatus AcDbObject::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    if (filesOwner(filer)) {
        AcDbSoftPointerId owner;
        if (filer->readSoftPointerId(&owner) == Acad::eOk)
            m_imp->setOwner(owner);
    }
    return filer->filerStatus();
}

AcRxObject* AcDbObject::clone() const
{
    AcDbObject* copy = nullptr;
    copyThroughFiler(this, AcDb::kCopyFiler, copy);
    return copy;
}

Acad::ErrorStatus AcDbObject::copyFrom(const AcRxObject* other)
{
    const AcDbObject* source = AcDbObject::cast(other);
    if (source == nullptr || source->isA() != isA())
        return Acad::eNotThatKindOfClass;
    if (source == this)
        return Acad::eOk;
    headless::MemoryDwgFiler filer(AcDb::kCopyFiler, source->database());
    Acad::ErrorStatus es = source->dwgOut(&filer);
    if (es == Acad::eOk)
        es = filer.seek(0, AcDb::kSeekFromStart);
    return es == Acad::eOk ? dwgIn(&filer) : es;
}

Acad::ErrorStatus AcDbObject::deepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                        Adesk::Boolean isPrimary) const
{
    return subDeepClone(owner, clone, idMap, isPrimary);
}

Acad::ErrorStatus AcDbObject::wblockClone(AcRxObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                          Adesk::Boolean isPrimary) const
{
    return subWblockClone(owner, clone, idMap, isPrimary);
}

// The copy goes into the owner's database (appended when the owner is a block and the
// copy a primary entity). The id map is not touched here: translating references and
// cloning owned objects belong to the database's clone operations.
Acad::ErrorStatus AcDbObject::subDeepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& /*idMap*/,
                                           Adesk::Boolean isPrimary) const
{
    clone = nullptr;
    if (owner == nullptr)
        return Acad::eInvalidOwnerObject;
    return cloneInto(this, owner, owner->database(), AcDb::kDeepCloneFiler, isPrimary, clone);
}

// As subDeepClone; the owner may also be the destination database itself.
Acad::ErrorStatus AcDbObject::subWblockClone(AcRxObject* owner, AcDbObject*& clone, AcDbIdMapping& /*idMap*/,
                                             Adesk::Boolean isPrimary) const
{
    clone = nullptr;
    if (AcDbObject* ownerObject = AcDbObject::cast(owner))
        return cloneInto(this, ownerObject, ownerObject->database(), AcDb::kWblockCloneFiler, isPrimary, clone);
    if (AcDbDatabase* database = AcDbDatabase::cast(owner))
        return cloneInto(this, nullptr, database, AcDb::kWblockCloneFiler, isPrimary, clone);
    return Acad::eInvalidOwnerObject;
}

// The base class records no partial undo of its own.
Acad::ErrorStatus AcDbObject::applyPartialUndo(AcDbDwgFiler* /*undoFiler*/, AcRxClass* /*classObj*/)
{
    return Acad::eNotApplicable;
}

AcDbDwgFiler* AcDbObject::undoFiler()
{
    AcDbDatabase* db = database();
    if (db == nullptr)
        return nullptr;
    return AcDbImpDatabase::of(db)->undo().partialFiler(this);
}
