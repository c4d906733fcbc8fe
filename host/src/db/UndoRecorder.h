// UndoRecorder: a database's undo and redo history. Objects record their state through
// their own filing (an undo filer) the first time they are written in a group; appends and
// erasures record the erased flag. Undoing a group records the state it replaces, which
// becomes the redo group, and redo does the same the other way.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "acadstrc.h"
#include "headless/UndoHistory.h"

class AcDbDatabase;
class AcDbDwgFiler;
class AcDbObject;
class AcDbStub;

namespace headless {
class MemoryDwgFiler;
}

namespace hostdb {

class UndoRecorder {
public:
    explicit UndoRecorder(AcDbDatabase* database);
    ~UndoRecorder();
    UndoRecorder(const UndoRecorder&) = delete;
    UndoRecorder& operator=(const UndoRecorder&) = delete;

    headless::UndoHistory& history() { return m_history; }

    void beginGroup();
    void endGroup();
    int openDepth() const { return m_depth; }
    Acad::ErrorStatus undo();
    Acad::ErrorStatus redo();
    int groupCount() const { return static_cast<int>(m_undoGroups.size()); }
    int redoCount() const { return static_cast<int>(m_redoGroups.size()); }
    int recordCount() const;
    void setRecording(bool on) { m_recording = on; }
    bool isRecording() const { return m_recording; }
    bool isUndoing() const { return m_undoing; }
    void clear();

    // An object is about to change: the first time in a group its state is kept (state,
    // when not null, is that state already filed out with an undo filer).
    void noteStateChange(AcDbObject* obj, const std::vector<std::uint8_t>* state);
    // A change that is not recorded (no group open, or recording off) makes redo stale.
    void noteUnrecordedChange();
    // The erased flag of stub is about to change from previousErased; an append counts as
    // an object that was erased before.
    void noteErasure(AcDbStub* stub, bool previousErased);
    // An object that records partial undo starts a record; undoFiler() then answers its filer.
    void startPartial(AcDbObject* obj);
    AcDbDwgFiler* partialFiler(const AcDbObject* obj);

private:
    struct Entry {
        enum Kind { kState, kErasure, kPartial };
        Kind kind = kState;
        AcDbStub* stub = nullptr;
        bool erased = false;
        std::unique_ptr<headless::MemoryDwgFiler> data;
    };
    using Group = std::vector<Entry>;

    Group* target();
    std::unique_ptr<headless::MemoryDwgFiler> newUndoFiler() const;
    Acad::ErrorStatus checkClosed(const Group& group) const;
    // Applies group backwards and returns the group that takes the applied changes back.
    Acad::ErrorStatus apply(Group& group, Group& inverse);
    Acad::ErrorStatus applyEntry(Entry& entry, Group& inverse);
    Acad::ErrorStatus run(std::vector<Group>& from, std::vector<Group>& to);

    AcDbDatabase* m_database;
    headless::UndoHistory m_history;
    std::vector<Group> m_undoGroups;
    std::vector<Group> m_redoGroups;
    Group m_open;
    Group* m_inverse = nullptr;  // the group being built while undo or redo runs
    int m_depth = 0;
    std::uint64_t m_serial = 0;
    bool m_recording = true;
    bool m_undoing = false;
};

}  // namespace hostdb
