// The open/close protocol of database objects: how many readers, one writer, notifiers,
// and the state kept for cancel() and undo while an object is open for write.
#include "AcDbImpObject.h"

#include "AcDbImpDatabase.h"
#include "AcDbStub.h"
#include "UndoRecorder.h"
#include "WriteGate.h"
#include "headless/MemoryDwgFiler.h"

namespace {

// The host refuses more simultaneous readers than this (eAtMaxReaders).
constexpr int kMaxReaders = 256;

}  // namespace

AcDbDatabase* AcDbImpObject::database() const
{
    return m_stub != nullptr ? m_stub->database() : nullptr;
}

AcDbObjectId AcDbImpObject::ownerId() const
{
    return m_stub != nullptr ? AcDbObjectId(m_stub->owner()) : m_detachedOwner;
}

void AcDbImpObject::setOwner(AcDbObjectId owner)
{
    if (m_stub != nullptr)
        m_stub->setOwner(owner);
    else
        m_detachedOwner = owner;
}

void AcDbImpObject::attach(AcDbStub* stub)
{
    m_stub = stub;
    stub->setObject(m_api);
    stub->setErased(false);
    stub->setOwner(m_detachedOwner);
    m_detachedOwner.setNull();
    m_opens.assign(1, AcDb::kForWrite);
    m_readers = 0;
    m_writer = true;
    m_notifiers = 0;
    m_isNew = true;
    m_modified = false;
    m_modifiedGraphics = false;
    m_cancelStateTaken = true;  // a new object has no earlier state to go back to
}

void AcDbImpObject::detach()
{
    if (m_stub != nullptr && m_stub->object() == m_api)
        m_stub->setObject(nullptr);
    m_stub = nullptr;
    m_opens.clear();
    m_readers = 0;
    m_writer = false;
    m_notifiers = 0;
}

bool AcDbImpObject::isReadEnabled() const
{
    return m_stub == nullptr || m_hostWriting || !m_opens.empty();
}

bool AcDbImpObject::isWriteEnabled() const
{
    return m_stub == nullptr || m_hostWriting || m_writer;
}

bool AcDbImpObject::isNotifyEnabled() const
{
    return m_stub == nullptr || m_hostWriting || m_writer || m_notifiers > 0;
}

Acad::ErrorStatus AcDbImpObject::open(AcDb::OpenMode mode)
{
    if (m_hostWriting)
        return Acad::eWasOpenForUndo;
    switch (mode) {
    case AcDb::kForRead:
        if (m_writer)
            return Acad::eWasOpenForWrite;
        if (m_readers >= kMaxReaders)
            return Acad::eAtMaxReaders;
        break;
    case AcDb::kForWrite:
        if (m_writer)
            return Acad::eWasOpenForWrite;
        if (m_readers > 0)
            return Acad::eWasOpenForRead;
        if (m_notifiers > 0)
            return Acad::eWasOpenForNotify;
        if (const Acad::ErrorStatus gate = hostdb::passWriteGate(database()); gate != Acad::eOk)
            return gate;
        break;
    case AcDb::kForNotify:
        if (m_notifiers > 0)
            return Acad::eWasOpenForNotify;
        break;
    default:
        return Acad::eInvalidOpenState;
    }
    const Acad::ErrorStatus es = m_api->subOpen(mode);
    if (es != Acad::eOk)
        return es;
    if (m_opens.empty()) {
        m_modified = false;  // the flags describe one open session
        m_modifiedGraphics = false;
    }
    m_opens.push_back(mode);
    if (mode == AcDb::kForRead) {
        ++m_readers;
    } else if (mode == AcDb::kForWrite) {
        m_writer = true;
        m_cancelStateTaken = false;
    } else {
        ++m_notifiers;
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbImpObject::close(bool cancelling)
{
    if (m_stub == nullptr)
        return Acad::eNotInDatabase;  // its creator owns it: delete it, or add it to a database
    if (m_opens.empty())
        return Acad::eInvalidOpenState;
    const AcDb::OpenMode mode = m_opens.back();
    Acad::ErrorStatus restored = Acad::eOk;
    if (cancelling && mode == AcDb::kForWrite)
        restored = restoreCancelSnapshot();
    const bool last = m_opens.size() == 1;
    m_reallyClosing = last;
    const Acad::ErrorStatus es = cancelling ? m_api->subCancel() : m_api->subClose();
    m_reallyClosing = false;
    m_opens.pop_back();
    if (mode == AcDb::kForRead) {
        --m_readers;
    } else if (mode == AcDb::kForWrite) {
        m_writer = false;
        m_isNew = false;
        m_cancelState.reset();
    } else {
        --m_notifiers;
    }
    return restored != Acad::eOk ? restored : es;
}

Acad::ErrorStatus AcDbImpObject::upgradeOpen()
{
    if (m_stub == nullptr)
        return Acad::eOk;  // always open for write
    if (m_writer)
        return Acad::eWasOpenForWrite;
    if (m_readers == 0)
        return Acad::eNotOpenForRead;
    if (m_readers > 1)
        return Acad::eHadMultipleReaders;
    if (m_notifiers > 0)
        return Acad::eWasOpenForNotify;
    if (const Acad::ErrorStatus gate = hostdb::passWriteGate(database()); gate != Acad::eOk)
        return gate;
    for (AcDb::OpenMode& mode : m_opens) {
        if (mode == AcDb::kForRead)
            mode = AcDb::kForWrite;
    }
    m_readers = 0;
    m_writer = true;
    m_cancelStateTaken = false;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbImpObject::downgradeOpen()
{
    if (m_stub == nullptr)
        return Acad::eOk;
    if (!m_writer)
        return Acad::eWasNotOpenForWrite;
    for (AcDb::OpenMode& mode : m_opens) {
        if (mode == AcDb::kForWrite)
            mode = AcDb::kForRead;
    }
    m_writer = false;
    m_readers = 1;
    m_isNew = false;
    m_cancelState.reset();
    return Acad::eOk;
}

void AcDbImpObject::noteWrite(bool autoUndo, bool recordModified)
{
    if (m_stub == nullptr || !recordModified)
        return;
    hostdb::UndoRecorder& undo = AcDbImpDatabase::of(m_stub->database())->undo();
    if (m_hostWriting || m_cancelling) {
        // Undo and redo restore objects; only objects that record their own partial undo
        // write the record that takes the restore back.
        if (m_hostWriting && !autoUndo)
            undo.startPartial(m_api);
        return;
    }
    m_modified = true;
    m_modifiedGraphics = true;
    if (m_isNew) {
        undo.noteUnrecordedChange();  // the append is recorded; the object's new state is not
        return;
    }
    // The first write of an open keeps the state for cancel(); undo shares that filing
    // when it wants the state now too.
    const std::vector<std::uint8_t>* fresh = nullptr;
    if (!m_cancelStateTaken) {
        takeCancelSnapshot();
        fresh = m_cancelState.get();
    }
    if (autoUndo)
        undo.noteStateChange(m_api, fresh);
    else
        undo.startPartial(m_api);
}

void AcDbImpObject::takeCancelSnapshot()
{
    m_cancelStateTaken = true;  // before filing: the filing may call back here
    headless::MemoryDwgFiler filer(AcDb::kUndoFiler, database());
    if (m_api->dwgOut(&filer) == Acad::eOk)
        m_cancelState = std::make_unique<std::vector<std::uint8_t>>(filer.bytes());
}

Acad::ErrorStatus AcDbImpObject::restoreCancelSnapshot()
{
    if (m_isNew) {
        // A new object that is cancelled was never really made.
        AcDbImpDatabase::of(m_stub->database())->undo().noteErasure(m_stub, m_stub->isErased());
        m_stub->setErased(true);
        return Acad::eOk;
    }
    if (m_cancelState == nullptr)
        return Acad::eOk;  // nothing was written since the open
    headless::MemoryDwgFiler filer(*m_cancelState, AcDb::kUndoFiler, database());
    m_cancelling = true;
    const Acad::ErrorStatus es = m_api->dwgIn(&filer);
    m_cancelling = false;
    m_modified = false;
    m_modifiedGraphics = false;
    return es;
}

void AcDbImpObject::beginHostWrite()
{
    m_hostWriting = true;
    m_undoing = true;
}

void AcDbImpObject::endHostWrite()
{
    m_hostWriting = false;
    m_undoing = false;
}

void AcDbImpObject::setErasedBit(bool erased)
{
    if (m_stub != nullptr)
        m_stub->setErased(erased);
}
