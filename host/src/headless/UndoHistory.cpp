// UndoHistory: the headless face of a database's undo recorder.
#include "headless/UndoHistory.h"

#include "db/AcDbImpDatabase.h"
#include "headless/HostError.h"

namespace headless {

UndoHistory& UndoHistory::of(AcDbDatabase* db)
{
    if (db == nullptr)
        raiseHostError(L"UndoHistory::of: no database");
    return AcDbImpDatabase::of(db)->undo().history();
}

void UndoHistory::beginGroup() { m_recorder->beginGroup(); }
void UndoHistory::endGroup() { m_recorder->endGroup(); }
bool UndoHistory::isGroupOpen() const { return m_recorder->openDepth() > 0; }
Acad::ErrorStatus UndoHistory::undo() { return m_recorder->undo(); }
Acad::ErrorStatus UndoHistory::redo() { return m_recorder->redo(); }
int UndoHistory::groupCount() const { return m_recorder->groupCount(); }
int UndoHistory::redoCount() const { return m_recorder->redoCount(); }
int UndoHistory::recordCount() const { return m_recorder->recordCount(); }
void UndoHistory::setRecording(bool on) { m_recorder->setRecording(on); }
bool UndoHistory::isRecording() const { return m_recorder->isRecording(); }
bool UndoHistory::isUndoing() const { return m_recorder->isUndoing(); }
void UndoHistory::clear() { m_recorder->clear(); }

}  // namespace headless
