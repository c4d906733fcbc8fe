// Session: how tests and tools drive the headless host as a user would: new and opened
// drawings as documents, saving, switching and closing them, and commands that run in a
// document with it locked. Documents belong to the host's document manager; a session
// closes the ones it opened when it ends (without saving).
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "acdocman.h"
#include "headless/DrawingFile.h"

namespace headless {

class ACHOST_API Session {
public:
    Session();
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    // A new default drawing ("DrawingN.qxd"), made active and current.
    AcApDocument* newDocument();
    // Opens a drawing file as a new active and current document. What the reader found
    // goes to report (and to the command line). Fails as DrawingFile::open does.
    Acad::ErrorStatus openDocument(const std::wstring& path, AcApDocument*& doc,
                                   DrawingReadReport* report = nullptr);
    // Saves to the document's file; a drawing never saved has no file (eNotApplicable).
    Acad::ErrorStatus save(AcApDocument* doc);
    // Saves to path, which becomes the document's file.
    Acad::ErrorStatus saveAs(AcApDocument* doc, const std::wstring& path);
    Acad::ErrorStatus setCurrent(AcApDocument* doc);
    Acad::ErrorStatus activate(AcApDocument* doc);
    // Closes without saving. eNoDocument.
    Acad::ErrorStatus close(AcApDocument* doc);
    // The documents this session opened that are still open, oldest first.
    const std::vector<AcApDocument*>& documents() const { return m_documents; }

    // Runs body as a command of doc: in the document's execution context, with the
    // document current and locked for write, inside one undo group. eLockConflict when
    // another context's lock is in the way (body does not run). Exceptions from body pass
    // through after the lock and the group are released.
    Acad::ErrorStatus runCommand(AcApDocument* doc, const std::function<void()>& body,
                                 const ACHAR* name = L"HEADLESS");

private:
    void forget(AcApDocument* doc);

    std::vector<AcApDocument*> m_documents;
};

}  // namespace headless
