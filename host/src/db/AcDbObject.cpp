// AcDbObject: identity, the open/close protocol and its assertions. The state lives in
// AcDbImpObject; filing and cloning are in AcDbObjectFiling.cpp.
#include "AcDbObject.h"

#include "AcDbImpDatabase.h"
#include "AcDbImpObject.h"
#include "AcDbStub.h"
#include "UndoRecorder.h"
#include "headless/HostError.h"
#include "rxclass.h"

namespace {

const ACHAR* classNameOf(const AcDbObject* obj)
{
    const AcRxClass* cls = obj->isA();
    return cls != nullptr ? cls->name() : L"object of an unregistered class";
}

// "AcDbLine 1F", or the class name alone for an object in no database.
AcString describe(const AcDbObject* obj)
{
    AcString text(classNameOf(obj));
    if (!obj->objectId().isNull()) {
        ACHAR handle[17];
        obj->handle().getIntoAsciiBuffer(handle);
        text += L" ";
        text += handle;
    }
    return text;
}

}  // namespace

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbObject, AcGiDrawable)

AcDbObject::AcDbObject() : m_imp(new AcDbImpObject(this)) {}

AcDbObject::~AcDbObject()
{
    // Deleting an object that a database still holds leaves its id without an object
    // rather than pointing at freed memory.
    m_imp->detach();
    delete m_imp;
}

AcDbObjectId AcDbObject::objectId() const
{
    return AcDbObjectId(m_imp->stub());
}

AcDbObjectId AcDbObject::ownerId() const
{
    return m_imp->ownerId();
}

Acad::ErrorStatus AcDbObject::setOwnerId(AcDbObjectId owner)
{
    assertWriteEnabled();
    m_imp->setOwner(owner);
    return Acad::eOk;
}

void AcDbObject::getAcDbHandle(AcDbHandle& handle) const
{
    handle = this->handle();
}

AcDbHandle AcDbObject::handle() const
{
    return m_imp->stub() != nullptr ? m_imp->stub()->handle() : AcDbHandle();
}

AcDbDatabase* AcDbObject::database() const
{
    return m_imp->database();
}

Acad::ErrorStatus AcDbObject::close()
{
    return m_imp->close(false);
}

Acad::ErrorStatus AcDbObject::cancel()
{
    return m_imp->close(true);
}

Acad::ErrorStatus AcDbObject::upgradeOpen()
{
    return m_imp->upgradeOpen();
}

Acad::ErrorStatus AcDbObject::downgradeOpen()
{
    return m_imp->downgradeOpen();
}

// Erasing twice answers eWasErased, unerasing an object that is not erased eWasNotErased.
Acad::ErrorStatus AcDbObject::erase(Adesk::Boolean erasing)
{
    AcDbStub* stub = m_imp->stub();
    if (stub == nullptr)
        return Acad::eNotInDatabase;
    if (!m_imp->isWriteEnabled())
        return Acad::eNotOpenForWrite;
    const bool wasErased = stub->isErased();
    if (erasing && wasErased)
        return Acad::eWasErased;
    if (!erasing && !wasErased)
        return Acad::eWasNotErased;
    const Acad::ErrorStatus es = subErase(erasing);
    if (es != Acad::eOk)
        return es;
    AcDbImpDatabase::of(stub->database())->undo().noteErasure(stub, wasErased);
    stub->setErased(erasing);
    m_imp->m_modified = true;
    return Acad::eOk;
}

void AcDbObject::assertReadEnabled() const
{
    if (!m_imp->isReadEnabled())
        headless::raiseHostError(L"assertReadEnabled: %s is not open for read", describe(this).kwszPtr());
}

void AcDbObject::assertWriteEnabled(Adesk::Boolean autoUndo, Adesk::Boolean recordModified)
{
    if (!m_imp->isWriteEnabled()) {
        headless::raiseHostError(L"assertWriteEnabled: %s is not open for write%s", describe(this).kwszPtr(),
                                 m_imp->readers() > 0 ? L" (it is open for read)" : L"");
    }
    m_imp->noteWrite(autoUndo, recordModified);
}

void AcDbObject::assertNotifyEnabled() const
{
    if (!m_imp->isNotifyEnabled())
        headless::raiseHostError(L"assertNotifyEnabled: %s is not open for notify", describe(this).kwszPtr());
}

bool AcDbObject::isReadEnabled() const { return m_imp->isReadEnabled(); }
bool AcDbObject::isWriteEnabled() const { return m_imp->isWriteEnabled(); }
bool AcDbObject::isNotifyEnabled() const { return m_imp->isNotifyEnabled(); }
bool AcDbObject::isModified() const { return m_imp->m_modified; }
bool AcDbObject::isModifiedGraphics() const { return m_imp->m_modifiedGraphics; }
bool AcDbObject::isNewObject() const { return m_imp->m_isNew; }
bool AcDbObject::isUndoing() const { return m_imp->m_undoing; }
bool AcDbObject::isCancelling() const { return m_imp->m_cancelling; }
bool AcDbObject::isReallyClosing() const { return m_imp->m_reallyClosing; }
bool AcDbObject::isAProxy() const { return m_imp->m_isProxy; }

bool AcDbObject::isErased() const
{
    return m_imp->stub() != nullptr && m_imp->stub()->isErased();
}

void AcDbObject::setAcDbObjectIdsInFlux()
{
    m_imp->m_idsInFlux = true;
}

bool AcDbObject::isAcDbObjectIdsInFlux() const
{
    return m_imp->m_idsInFlux;
}

Acad::ErrorStatus AcDbObject::getClassID(CLSID* classId) const
{
    return subGetClassID(classId);
}

Adesk::Boolean AcDbObject::isPersistent() const
{
    return m_imp->stub() != nullptr;
}

AcDbObjectId AcDbObject::id() const
{
    return objectId();
}

Acad::ErrorStatus AcDbObject::subErase(Adesk::Boolean /*erasing*/) { return Acad::eOk; }
Acad::ErrorStatus AcDbObject::subOpen(AcDb::OpenMode /*mode*/) { return Acad::eOk; }
Acad::ErrorStatus AcDbObject::subClose() { return Acad::eOk; }
Acad::ErrorStatus AcDbObject::subCancel() { return Acad::eOk; }

// Class ids are a Windows component-object notion; the headless host has none.
Acad::ErrorStatus AcDbObject::subGetClassID(CLSID* /*classId*/) const { return Acad::eNotApplicable; }

// An object that is not an entity has nothing to draw.
Adesk::UInt32 AcDbObject::subSetAttributes(AcGiDrawableTraits* /*traits*/) { return kDrawableNone; }
Adesk::Boolean AcDbObject::subWorldDraw(AcGiWorldDraw* /*worldDraw*/) { return Adesk::kTrue; }
void AcDbObject::subViewportDraw(AcGiViewportDraw* /*viewportDraw*/) {}

Acad::ErrorStatus acdbOpenObject(AcDbObject*& obj, AcDbObjectId id, AcDb::OpenMode mode, bool openErased)
{
    obj = nullptr;
    if (id.isNull())
        return Acad::eNullObjectId;
    const AcDbStub* stub = id;
    if (stub->isDead())
        return Acad::eInvalidObjectId;  // its database is gone
    AcDbObject* found = stub->object();
    if (found == nullptr)
        return Acad::ePermanentlyErased;  // a reference whose object never arrived
    if (stub->isErased() && !openErased)
        return Acad::eWasErased;
    const Acad::ErrorStatus es = AcDbImpObject::of(found)->open(mode);
    if (es != Acad::eOk)
        return es;
    obj = found;
    return Acad::eOk;
}
