// ToolSession: the headless host as the tool's commands use it: the module loaded from disk
// for as long as the command runs (so that drawings open with its classes, not as proxies),
// and drawings opened and saved with one clear line for whatever goes wrong.
#pragma once

#include <memory>
#include <string>

#include "headless/DrawingFile.h"
#include "headless/Session.h"

namespace quarvo {

class ToolSession {
public:
    // Loads the module; ToolError when it cannot be loaded. The load message is not shown.
    explicit ToolSession(const std::string& modulePath);
    // Closes every document (unsaved), then unloads the module.
    ~ToolSession();
    ToolSession(const ToolSession&) = delete;
    ToolSession& operator=(const ToolSession&) = delete;

    // Opens a drawing file as the current document. ToolError when the file is missing, is
    // not a drawing or is of a newer format. What the reader reported is in report; with
    // echo it is also shown on stderr (stdout stays the command's own output).
    AcApDocument* Open(const std::string& path, headless::DrawingReadReport& report, bool echo = true);
    // A new empty drawing as the current document.
    AcApDocument* New();
    // Saves doc to path; ToolError when the file cannot be written.
    void SaveAs(AcApDocument* doc, const std::string& path);

    headless::Session& session() { return *m_session; }

    // Quarvo.dbx beside the running program.
    static std::string DefaultModulePath();

private:
    std::wstring m_module;
    std::unique_ptr<headless::Session> m_session;
};

}  // namespace quarvo
