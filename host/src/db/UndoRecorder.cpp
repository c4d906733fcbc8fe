// UndoRecorder: recording into the open group, and undo/redo by applying a group backwards
// while the group that takes it back is recorded.
#include "UndoRecorder.h"

#include "AcDbImpObject.h"
#include "AcDbStub.h"
#include "headless/MemoryDwgFiler.h"
#include "rxclass.h"

namespace hostdb {

UndoRecorder::UndoRecorder(AcDbDatabase* database) : m_database(database), m_history(this) {}

UndoRecorder::~UndoRecorder() = default;

void UndoRecorder::beginGroup()
{
    if (m_depth++ == 0) {
        m_open.clear();
        ++m_serial;
    }
}

void UndoRecorder::endGroup()
{
    if (m_depth == 0)
        return;
    if (--m_depth == 0 && !m_open.empty()) {
        m_undoGroups.push_back(std::move(m_open));
        m_open.clear();
    }
}

void UndoRecorder::clear()
{
    m_undoGroups.clear();
    m_redoGroups.clear();
    m_open.clear();
    ++m_serial;  // objects recorded in the forgotten group record again
}

int UndoRecorder::recordCount() const
{
    size_t count = m_open.size();
    for (const Group& group : m_undoGroups)
        count += group.size();
    return static_cast<int>(count);
}

UndoRecorder::Group* UndoRecorder::target()
{
    if (m_undoing)
        return m_inverse;
    if (!m_recording || m_depth == 0)
        return nullptr;
    if (m_open.empty())
        m_redoGroups.clear();  // the drawing moves on: what was undone cannot come back
    return &m_open;
}

std::unique_ptr<headless::MemoryDwgFiler> UndoRecorder::newUndoFiler() const
{
    return std::make_unique<headless::MemoryDwgFiler>(AcDb::kUndoFiler, m_database);
}

void UndoRecorder::noteUnrecordedChange()
{
    if (!m_undoing && (!m_recording || m_depth == 0))
        m_redoGroups.clear();
}

void UndoRecorder::noteStateChange(AcDbObject* obj, const std::vector<std::uint8_t>* state)
{
    if (m_undoing)
        return;
    AcDbImpObject* imp = AcDbImpObject::of(obj);
    Group* group = target();
    if (group == nullptr) {
        noteUnrecordedChange();
        return;
    }
    if (imp->m_undoGroupRecorded == m_serial)
        return;  // once per group: the first state is the one to go back to
    imp->m_undoGroupRecorded = m_serial;
    Entry entry;
    entry.kind = Entry::kState;
    entry.stub = imp->stub();
    entry.data = newUndoFiler();
    if (state != nullptr)
        entry.data->setBytes(*state);
    else if (obj->dwgOut(entry.data.get()) != Acad::eOk)
        return;  // an object that cannot file itself out cannot be restored either
    group->push_back(std::move(entry));
}

void UndoRecorder::noteErasure(AcDbStub* stub, bool previousErased)
{
    Group* group = target();
    if (group == nullptr) {
        noteUnrecordedChange();
        return;
    }
    Entry entry;
    entry.kind = Entry::kErasure;
    entry.stub = stub;
    entry.erased = previousErased;
    group->push_back(std::move(entry));
}

void UndoRecorder::startPartial(AcDbObject* obj)
{
    Group* group = target();
    if (group == nullptr) {
        noteUnrecordedChange();
        return;
    }
    Entry entry;
    entry.kind = Entry::kPartial;
    entry.stub = AcDbImpObject::of(obj)->stub();
    entry.data = newUndoFiler();
    group->push_back(std::move(entry));
}

AcDbDwgFiler* UndoRecorder::partialFiler(const AcDbObject* obj)
{
    Group* group = m_undoing ? m_inverse : (m_depth > 0 && m_recording ? &m_open : nullptr);
    if (group == nullptr || group->empty())
        return nullptr;
    Entry& last = group->back();
    if (last.kind != Entry::kPartial || last.stub != AcDbImpObject::of(obj)->stub())
        return nullptr;
    return last.data.get();
}

// Every object the group touches must be closed, or nothing is applied.
Acad::ErrorStatus UndoRecorder::checkClosed(const Group& group) const
{
    for (const Entry& entry : group) {
        const AcDbObject* obj = entry.stub->object();
        if (obj == nullptr)
            continue;
        const AcDbImpObject* imp = AcDbImpObject::of(obj);
        if (imp->writer())
            return Acad::eWasOpenForWrite;
        if (imp->isOpen())
            return Acad::eWasOpenForRead;
    }
    return Acad::eOk;
}

Acad::ErrorStatus UndoRecorder::applyEntry(Entry& entry, Group& inverse)
{
    AcDbObject* obj = entry.stub->object();
    if (entry.kind == Entry::kErasure) {
        Entry back;
        back.kind = Entry::kErasure;
        back.stub = entry.stub;
        back.erased = entry.stub->isErased();
        inverse.push_back(std::move(back));
        entry.stub->setErased(entry.erased);
        return Acad::eOk;
    }
    if (obj == nullptr)
        return Acad::eOk;  // the object is gone with nothing left to restore
    AcDbImpObject* imp = AcDbImpObject::of(obj);
    imp->beginHostWrite();
    Acad::ErrorStatus es = Acad::eOk;
    if (entry.kind == Entry::kState) {
        Entry back;
        back.kind = Entry::kState;
        back.stub = entry.stub;
        back.data = newUndoFiler();
        obj->dwgOut(back.data.get());
        inverse.push_back(std::move(back));
        entry.data->seek(0, AcDb::kSeekFromStart);
        es = obj->dwgIn(entry.data.get());
    } else {
        // A partial record: the class it belongs to, then what that class wrote. The
        // object's applyPartialUndo records, through undoFiler(), the record that redoes it.
        headless::MemoryDwgFiler& filer = *entry.data;
        filer.seek(0, AcDb::kSeekFromStart);
        while (es == Acad::eOk && filer.remaining() > 0) {
            void* cls = nullptr;
            es = filer.readAddress(&cls);
            if (es == Acad::eOk)
                es = obj->applyPartialUndo(&filer, static_cast<AcRxClass*>(cls));
        }
    }
    imp->endHostWrite();
    return es;
}

Acad::ErrorStatus UndoRecorder::apply(Group& group, Group& inverse)
{
    Acad::ErrorStatus first = Acad::eOk;
    for (auto it = group.rbegin(); it != group.rend(); ++it) {
        const Acad::ErrorStatus es = applyEntry(*it, inverse);
        if (first == Acad::eOk)
            first = es;  // carry on: the other objects still go back
    }
    return first;
}

Acad::ErrorStatus UndoRecorder::run(std::vector<Group>& from, std::vector<Group>& to)
{
    if (m_depth > 0 || m_undoing)
        return Acad::eInvalidContext;
    if (from.empty())
        return Acad::eNotApplicable;
    Acad::ErrorStatus es = checkClosed(from.back());
    if (es != Acad::eOk)
        return es;
    Group group = std::move(from.back());
    from.pop_back();
    Group inverse;
    m_undoing = true;
    m_inverse = &inverse;
    es = apply(group, inverse);
    m_inverse = nullptr;
    m_undoing = false;
    ++m_serial;  // the next group records every object afresh
    if (!inverse.empty())
        to.push_back(std::move(inverse));
    return es;
}

Acad::ErrorStatus UndoRecorder::undo()
{
    return run(m_undoGroups, m_redoGroups);
}

Acad::ErrorStatus UndoRecorder::redo()
{
    return run(m_redoGroups, m_undoGroups);
}

}  // namespace hostdb
