// The private state of the document manager and of each document: the documents in the
// order they were opened, the current and active one, the reactors, the execution
// contexts (the application, or a document's command), and who holds which lock.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "AcString.h"
#include "acdocman.h"

class AcDbDatabase;

namespace hostap {

// Code runs in the application context (null) or in the command context of a document.
using ExecutionContext = const AcApDocument*;

// The locks one execution context holds on one document: a stack of explicit locks and
// the implicit auto-write lock.
struct LockHolding {
    std::vector<AcAp::DocLockMode> stack;
    bool autoWrite = false;

    bool empty() const { return stack.empty() && !autoWrite; }
    AcAp::DocLockMode strongest() const;
};

// The more restrictive of two lock modes (kNotLocked is the least).
AcAp::DocLockMode stronger(AcAp::DocLockMode a, AcAp::DocLockMode b);
bool isWriteLock(AcAp::DocLockMode mode);

class DocumentState {
public:
    std::unique_ptr<AcDbDatabase> database;
    AcString fileName;
    AcString title;
    bool untitled = false;  // never saved: the file name is made up
    std::map<ExecutionContext, LockHolding> locks;
    int commandsRunning = 0;

    AcAp::DocLockMode modeOf(ExecutionContext context) const;
    // The strongest lock of every context but except (all when includeExcept).
    AcAp::DocLockMode modeOfOthers(ExecutionContext except, bool includeExcept) const;
};

class DocManagerState {
public:
    static DocManagerState& of(AcApDocManager* manager) { return *manager->m_state; }
    static DocumentState& of(const AcApDocument* doc) { return *doc->m_state; }
    // The manager's state (the manager is made on first use).
    static DocManagerState& instance();

    explicit DocManagerState(AcApDocManager* api) : m_api(api) {}
    ~DocManagerState();

    AcApDocManager* api() const { return m_api; }
    ExecutionContext currentContext() const { return m_contexts.empty() ? nullptr : m_contexts.back(); }
    bool isManaged(const AcApDocument* doc) const;

    // Documents. A new document is announced, made active and current, then reported created
    // (its reactors find it current). fileName empty: an untitled drawing "DrawingN.qxd".
    AcApDocument* openDocument(std::unique_ptr<AcDbDatabase> database, const AcString& fileName);
    Acad::ErrorStatus closeDocument(AcApDocument* doc);
    void renameDocument(AcApDocument* doc, const AcString& fileName);

    Acad::ErrorStatus makeCurrent(AcApDocument* doc);
    Acad::ErrorStatus activate(AcApDocument* doc);

    // Locks (DocumentLocks.cpp).
    Acad::ErrorStatus lock(AcApDocument* doc, AcAp::DocLockMode mode, const ACHAR* globalCmdName);
    Acad::ErrorStatus unlock(AcApDocument* doc);
    // The write gate: eLockViolation when the calling context holds no write lock on the
    // document of db.
    static Acad::ErrorStatus checkWrite(const AcDbDatabase* db);
    Acad::ErrorStatus veto();

    // A command of doc runs between these (its context is then the current one).
    void enterCommand(AcApDocument* doc);
    void leaveCommand(AcApDocument* doc);

    // Calls tell on every reactor added now that is still added when its turn comes.
    template <class Tell>
    void notify(Tell tell)
    {
        const std::vector<AcApDocManagerReactor*> snapshot = reactors;
        for (AcApDocManagerReactor* reactor : snapshot) {
            for (AcApDocManagerReactor* still : reactors) {
                if (still == reactor) {
                    tell(reactor);
                    break;
                }
            }
        }
    }

    std::vector<AcApDocument*> documents;  // owned
    AcApDocument* current = nullptr;
    AcApDocument* active = nullptr;
    std::vector<AcApDocManagerReactor*> reactors;

private:
    AcApDocument* successorOf(const AcApDocument* doc) const;

    AcApDocManager* m_api;
    std::vector<ExecutionContext> m_contexts;
    bool m_vetoWindow = false;
    bool m_vetoed = false;
    int m_untitled = 0;
};

}  // namespace hostap
