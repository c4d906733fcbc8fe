// AcDbImpObject: the private state of every database object: where it lives (its stub),
// how it is open, and the flags the open/close protocol and undo keep about it.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "AcDbObject.h"

class AcDbStub;

class AcDbImpObject {
public:
    explicit AcDbImpObject(AcDbObject* api) : m_api(api) {}

    static AcDbImpObject* of(const AcDbObject* obj) { return obj->m_imp; }

    // Where the object lives; null while it is in no database.
    AcDbStub* stub() const { return m_stub; }
    bool isResident() const { return m_stub != nullptr; }
    AcDbDatabase* database() const;
    AcDbObjectId ownerId() const;
    void setOwner(AcDbObjectId owner);  // no protocol checks: for filing and the host

    // Joins a database: the object becomes new and open for write for its creator.
    void attach(AcDbStub* stub);
    // Leaves the stub (the database is going away or the object is being deleted).
    void detach();

    // The open/close protocol.
    Acad::ErrorStatus open(AcDb::OpenMode mode);
    Acad::ErrorStatus close(bool cancelling);
    Acad::ErrorStatus upgradeOpen();
    Acad::ErrorStatus downgradeOpen();
    bool isReadEnabled() const;
    bool isWriteEnabled() const;
    bool isNotifyEnabled() const;
    bool isOpen() const { return !m_opens.empty() || m_hostWriting; }
    int readers() const { return m_readers; }
    bool writer() const { return m_writer; }

    // What assertWriteEnabled does after the mode check.
    void noteWrite(bool autoUndo, bool recordModified);

    // The host writes a closed object itself (undo, redo): enabled for write without an
    // open, and nothing is recorded meanwhile.
    void beginHostWrite();
    void endHostWrite();
    bool isHostWriting() const { return m_hostWriting; }

    // The object's erased flag as undo sets it, without the erase protocol.
    void setErasedBit(bool erased);

    bool m_isNew = false;
    bool m_modified = false;
    bool m_modifiedGraphics = false;
    bool m_undoing = false;
    bool m_cancelling = false;
    bool m_reallyClosing = false;
    bool m_idsInFlux = false;
    // Proxies (objects kept for a class that is not loaded) set this when they are made.
    bool m_isProxy = false;
    // The serial of the undo group that last recorded this object's state.
    std::uint64_t m_undoGroupRecorded = 0;

private:
    void takeCancelSnapshot();
    Acad::ErrorStatus restoreCancelSnapshot();

    AcDbObject* m_api;
    AcDbStub* m_stub = nullptr;
    AcDbObjectId m_detachedOwner;  // the owner while the object is in no database
    std::vector<AcDb::OpenMode> m_opens;  // the open modes, most recent last
    int m_readers = 0;
    bool m_writer = false;
    int m_notifiers = 0;
    bool m_hostWriting = false;
    // The state the object had when it was opened for write, for cancel().
    std::unique_ptr<std::vector<std::uint8_t>> m_cancelState;
    bool m_cancelStateTaken = false;
};
