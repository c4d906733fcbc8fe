// Document locks: who holds which lock, conflicts between execution contexts, the lock
// notifications with their veto, and the write gate that refuses unlocked writes.
#include <algorithm>

#include "AcDbDatabase.h"
#include "DocManagerState.h"

namespace hostap {

namespace {

// Restrictiveness, lowest first.
int rank(AcAp::DocLockMode mode)
{
    switch (mode) {
    case AcAp::kRead: return 1;
    case AcAp::kAutoWrite: return 2;
    case AcAp::kProtectedAutoWrite: return 3;
    case AcAp::kWrite: return 4;
    case AcAp::kXWrite: return 5;
    default: return 0;
    }
}

bool isLock(AcAp::DocLockMode mode)
{
    return rank(mode) > 0;
}

// Readers share; anything else excludes every other context's lock.
bool conflicts(AcAp::DocLockMode wanted, AcAp::DocLockMode heldByOthers)
{
    if (heldByOthers == AcAp::kNotLocked)
        return false;
    return !(wanted == AcAp::kRead && heldByOthers == AcAp::kRead);
}

}  // namespace

AcAp::DocLockMode stronger(AcAp::DocLockMode a, AcAp::DocLockMode b)
{
    return rank(b) > rank(a) ? b : a;
}

bool isWriteLock(AcAp::DocLockMode mode)
{
    return mode == AcAp::kAutoWrite || (mode & AcAp::kWrite) != 0 || mode == AcAp::kXWrite;
}

AcAp::DocLockMode LockHolding::strongest() const
{
    AcAp::DocLockMode mode = autoWrite ? AcAp::kAutoWrite : AcAp::kNotLocked;
    for (AcAp::DocLockMode held : stack)
        mode = stronger(mode, held);
    return mode;
}

AcAp::DocLockMode DocumentState::modeOf(ExecutionContext context) const
{
    const auto it = locks.find(context);
    return it != locks.end() ? it->second.strongest() : AcAp::kNotLocked;
}

AcAp::DocLockMode DocumentState::modeOfOthers(ExecutionContext except, bool includeExcept) const
{
    AcAp::DocLockMode mode = AcAp::kNotLocked;
    for (const auto& [context, holding] : locks) {
        if (context != except || includeExcept)
            mode = stronger(mode, holding.strongest());
    }
    return mode;
}

Acad::ErrorStatus DocManagerState::lock(AcApDocument* doc, AcAp::DocLockMode mode, const ACHAR* globalCmdName)
{
    if (!isManaged(doc))
        return Acad::eNoDocument;
    if (!isLock(mode))
        return Acad::eInvalidInput;
    DocumentState& state = of(doc);
    const ExecutionContext context = currentContext();
    LockHolding& holding = state.locks[context];
    if (mode == AcAp::kAutoWrite && holding.autoWrite)
        return Acad::eOk;
    if (conflicts(mode, state.modeOfOthers(context, false)))
        return Acad::eLockConflict;

    LockHolding next = holding;
    if (mode == AcAp::kAutoWrite) {
        next.autoWrite = true;
    } else {
        next.autoWrite = false;  // any other lock request drops the automatic one
        next.stack.push_back(mode);
    }
    const AcAp::DocLockMode before = holding.strongest();
    const AcAp::DocLockMode after = next.strongest();
    const AcAp::DocLockMode whole = stronger(state.modeOfOthers(context, false), after);

    m_vetoed = false;
    m_vetoWindow = true;
    notify([&](AcApDocManagerReactor* r) {
        r->documentLockModeWillChange(doc, before, after, whole, globalCmdName);
    });
    m_vetoWindow = false;
    if (m_vetoed) {
        m_vetoed = false;
        if (holding.empty())
            state.locks.erase(context);
        notify([&](AcApDocManagerReactor* r) { r->documentLockModeChangeVetoed(doc, globalCmdName); });
        return Acad::eVetoed;
    }
    state.locks[context] = next;
    notify([&](AcApDocManagerReactor* r) { r->documentLockModeChanged(doc, before, after, whole, globalCmdName); });
    return Acad::eOk;
}

// Unlocking cannot be vetoed: the reactors are told, and the lock goes.
Acad::ErrorStatus DocManagerState::unlock(AcApDocument* doc)
{
    if (!isManaged(doc))
        return Acad::eNoDocument;
    DocumentState& state = of(doc);
    const ExecutionContext context = currentContext();
    const auto it = state.locks.find(context);
    if (it == state.locks.end() || it->second.empty())
        return Acad::eNotApplicable;
    LockHolding next = it->second;
    if (next.stack.empty()) {
        next.autoWrite = false;
    } else {
        const AcAp::DocLockMode released = next.stack.back();
        next.stack.pop_back();
        if (released == AcAp::kProtectedAutoWrite)
            next.autoWrite = true;  // a protected auto-write lock falls back to auto-write
    }
    const AcAp::DocLockMode before = it->second.strongest();
    const AcAp::DocLockMode after = next.strongest();
    const AcAp::DocLockMode whole = stronger(state.modeOfOthers(context, false), after);
    notify([&](AcApDocManagerReactor* r) { r->documentLockModeWillChange(doc, before, after, whole, nullptr); });
    if (next.empty())
        state.locks.erase(context);
    else
        state.locks[context] = next;
    notify([&](AcApDocManagerReactor* r) { r->documentLockModeChanged(doc, before, after, whole, nullptr); });
    return Acad::eOk;
}

Acad::ErrorStatus DocManagerState::veto()
{
    if (!m_vetoWindow)
        return Acad::eNotApplicable;
    m_vetoed = true;
    return Acad::eOk;
}

Acad::ErrorStatus DocManagerState::checkWrite(const AcDbDatabase* db)
{
    DocManagerState& manager = instance();
    for (AcApDocument* doc : manager.documents) {
        const DocumentState& state = of(doc);
        if (state.database.get() != db)
            continue;
        return isWriteLock(state.modeOf(manager.currentContext())) ? Acad::eOk : Acad::eLockViolation;
    }
    return Acad::eOk;  // a drawing that is no document's
}

}  // namespace hostap
