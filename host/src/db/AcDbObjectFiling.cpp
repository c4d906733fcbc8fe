// AcDbObject's filing and copying: the framework part of dwgOut/dwgIn, the fields the base
// class owns, copies through a copy filer, and the partial undo hooks. Deep and wblock
// clone are in AcDbObjectCloning.cpp.
#include "AcDbDatabase.h"
#include "AcDbImpDatabase.h"
#include "AcDbImpObject.h"
#include "AcDbObject.h"
#include "UndoRecorder.h"
#include "headless/MemoryDwgFiler.h"
#include "rxclass.h"

namespace {

// Copies start from a fresh owner, so the filers that copy do not carry the owner; nor
// does reference translation, which places owners itself. Every other filer (files,
// undo, paging, reference collection) does.
bool filesOwner(const AcDbDwgFiler* filer)
{
    switch (filer->filerType()) {
    case AcDb::kCopyFiler:
    case AcDb::kDeepCloneFiler:
    case AcDb::kWblockCloneFiler:
    case AcDb::kIdXlateFiler:
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
