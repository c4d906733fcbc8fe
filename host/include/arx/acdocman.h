// The document manager: the open drawings (documents), which one is current and which is
// active, document locks, and the reactors told about all of it. acDocManager is the
// host's one manager. The current document's database is the working database.
#pragma once

#include "AcString.h"
#include "acadstrc.h"
#include "rxboiler.h"

class AcDbDatabase;
class AcApDocument;
class AcApDocManager;

// The host's document manager. The headless host always has one (it may hold no document).
ACHOST_API AcApDocManager* acDocManagerPtr();
#define acDocManager acDocManagerPtr()
class AcApDocManager;

namespace AcAp {

// Lock modes. kProtectedAutoWrite shares the kWrite bit, so (mode & kWrite) tests for any
// write lock. kNone asks for no lock (setCurDocument); kNotLocked is what an unlocked
// document answers.
enum DocLockMode {
    kNone = 0x00,
    kAutoWrite = 0x01,
    kNotLocked = 0x02,
    kWrite = 0x04,
    kProtectedAutoWrite = 0x14,
    kRead = 0x20,
    kXWrite = 0x40,
};

}  // namespace AcAp

namespace hostap {
class DocumentState;
class DocManagerState;
}

class ACHOST_API AcApDocument : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcApDocument);

public:
    ~AcApDocument() override;
    AcApDocument(const AcApDocument&) = delete;
    AcApDocument& operator=(const AcApDocument&) = delete;

    // The document's drawing; it lives as long as the document.
    AcDbDatabase* database() const;
    // The drawing file's full path; a drawing never saved answers its title.
    const ACHAR* fileName() const;
    // The file name without its folder, e.g. "Drawing1.qxd" or "roof.qxd".
    const ACHAR* docTitle() const;
    // The most restrictive lock that other execution contexts hold (with includeMyLocks,
    // the caller's own too); kNotLocked when there is none. Restrictiveness, highest first:
    // kXWrite, kWrite, kProtectedAutoWrite, kAutoWrite, kRead.
    AcAp::DocLockMode lockMode(bool includeMyLocks = false) const;
    // The most restrictive lock the calling execution context holds; kNotLocked when none.
    AcAp::DocLockMode myLockMode() const;
    // No command is running in the document.
    bool isQuiescent() const;
    bool isReadOnly() const { return false; }

private:
    friend class hostap::DocManagerState;
    AcApDocument();
    hostap::DocumentState* m_state;
};

// Walks the open documents in the order they were opened. The caller deletes it.
class ACHOST_API AcApDocumentIterator : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcApDocumentIterator);

public:
    ~AcApDocumentIterator() override;
    bool done() const;
    void step();
    AcApDocument* document();

private:
    friend class AcApDocManager;
    AcApDocumentIterator();
    int m_index = 0;
};

// Told about documents. Every notification does nothing unless overridden.
class ACHOST_API AcApDocManagerReactor : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcApDocManagerReactor);

public:
    ~AcApDocManagerReactor() override;

    virtual void documentCreateStarted(AcApDocument* pDocCreating);
    virtual void documentCreated(AcApDocument* pDocCreating);
    virtual void documentCreateCanceled(AcApDocument* pDocCreateCancelled);
    virtual void documentToBeDestroyed(AcApDocument* pDocToDestroy);
    virtual void documentDestroyed(const ACHAR* fileName);
    // Before a lock or unlock changes the caller's lock: its current and new mode, and the
    // most restrictive mode of the document as a whole. veto() here refuses the change.
    virtual void documentLockModeWillChange(AcApDocument* doc, AcAp::DocLockMode myCurrentMode,
                                            AcAp::DocLockMode myNewMode, AcAp::DocLockMode currentMode,
                                            const ACHAR* pGlobalCmdName);
    virtual void documentLockModeChangeVetoed(AcApDocument* doc, const ACHAR* pGlobalCmdName);
    virtual void documentLockModeChanged(AcApDocument* doc, AcAp::DocLockMode myPreviousMode,
                                         AcAp::DocLockMode myCurrentMode, AcAp::DocLockMode currentMode,
                                         const ACHAR* pGlobalCmdName);
    virtual void documentBecameCurrent(AcApDocument* doc);
    virtual void documentToBeActivated(AcApDocument* pActivatingDoc);
    virtual void documentToBeDeactivated(AcApDocument* pDeActivatedDoc);
    virtual void documentActivated(AcApDocument* pActivatedDoc);
    virtual void documentActivationModified(bool bActivation);

protected:
    AcApDocManagerReactor();
    // Refuses the lock change being announced (eOk); eNotApplicable outside
    // documentLockModeWillChange.
    Acad::ErrorStatus veto();
};

class ACHOST_API AcApDocManager : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcApDocManager);

public:
    ~AcApDocManager() override;
    AcApDocManager(const AcApDocManager&) = delete;
    AcApDocManager& operator=(const AcApDocManager&) = delete;

    // The document that commands and the working database belong to now, and the one the
    // user works in (the same, except while code switches documents). Null without documents.
    AcApDocument* curDocument() const;
    AcApDocument* mdiActiveDocument() const;
    int documentCount() const;
    // The document whose database is db, or null.
    AcApDocument* document(const AcDbDatabase* db) const;
    // True unless a command of a document is running (code then runs in its context).
    bool isApplicationContext() const;

    // Locks doc for the calling execution context. kAutoWrite is a no-op when already held
    // and is dropped when the context asks for any other lock; unlocking a
    // kProtectedAutoWrite lock gives kAutoWrite back. eNoDocument, eInvalidInput (a mode
    // that is not a lock), eLockConflict (another context's lock is in the way), eVetoed.
    Acad::ErrorStatus lockDocument(AcApDocument* doc, AcAp::DocLockMode mode = AcAp::kWrite,
                                   const ACHAR* pGlobalCmdName = nullptr, const ACHAR* pLocalCmdName = nullptr,
                                   bool prompt = true);
    // Releases the calling context's latest lock. eNoDocument; eNotApplicable when the
    // context holds none (UNCONFIRMED: the natural answer).
    Acad::ErrorStatus unlockDocument(AcApDocument* doc);
    // Makes doc current (its database the working one), locking it first when mode is a
    // lock, and activating it when asked. eNoDocument, or the lock's refusal.
    Acad::ErrorStatus setCurDocument(AcApDocument* doc, AcAp::DocLockMode mode = AcAp::kNone,
                                     bool activate = false);
    // Makes doc the active and current document. eNoDocument.
    Acad::ErrorStatus activateDocument(AcApDocument* doc, bool bPassScript = false);
    // Closes doc: its reactors are told, another document becomes active, its drawing is
    // discarded without saving. eNoDocument.
    Acad::ErrorStatus closeDocument(AcApDocument* doc);

    AcApDocumentIterator* newAcApDocumentIterator();

    // Reactors are told in the order they were added; adding twice keeps one. Not owned.
    void addReactor(AcApDocManagerReactor* reactor);
    void removeReactor(AcApDocManagerReactor* reactor);

private:
    friend class hostap::DocManagerState;
    friend class AcApDocManagerReactor;
    friend AcApDocManager* acDocManagerPtr();
    AcApDocManager();
    hostap::DocManagerState* m_state;
};
