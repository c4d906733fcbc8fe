// UndoHistory: the undo and redo of one database, as the headless host's command layer and
// tests drive it. Changes are recorded only inside a group; groups nest, and the outermost
// end closes the group. A group in which nothing changed is dropped.
#pragma once

#include "acadstrc.h"

class AcDbDatabase;

namespace hostdb {
class UndoRecorder;
}

namespace headless {

class ACHOST_API UndoHistory {
public:
    // The history of db (which must not be null); it lives as long as the database.
    static UndoHistory& of(AcDbDatabase* db);

    void beginGroup();
    void endGroup();
    bool isGroupOpen() const;

    // Takes back the last closed group. eInvalidContext while a group is open,
    // eNotApplicable when there is nothing to undo, eWasOpenForRead/eWasOpenForWrite
    // (and nothing changed) when an object of the group is open.
    Acad::ErrorStatus undo();
    // Re-applies the last undone group; the same answers as undo. A change recorded after
    // an undo (or any change made while nothing records) discards what redo could re-apply.
    Acad::ErrorStatus redo();

    int groupCount() const;
    int redoCount() const;
    // The records (object states, erasures, partial records) kept in the closed groups and
    // the open one: what undo holds on to.
    int recordCount() const;

    // Recording is on by default; while it is off, changes leave no undo.
    void setRecording(bool on);
    bool isRecording() const;
    bool isUndoing() const;
    // Forgets every group (an open group too, which stays open and starts afresh).
    void clear();

    UndoHistory(const UndoHistory&) = delete;
    UndoHistory& operator=(const UndoHistory&) = delete;

private:
    friend class hostdb::UndoRecorder;
    explicit UndoHistory(hostdb::UndoRecorder* recorder) : m_recorder(recorder) {}
    ~UndoHistory() = default;

    hostdb::UndoRecorder* m_recorder;
};

}  // namespace headless
