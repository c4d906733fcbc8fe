// The headless command line: where acutPrintf and acedAlert go. By default text is
// echoed to standard output as UTF-8; a CommandLineCapture collects it for tests.
#pragma once

#include <string>
#include <vector>

#include "adesk.h"

namespace headless {

// While alive, everything printed on the command line and every alert is collected here
// (and not echoed). Captures nest: the most recent one receives the text.
class ACHOST_API CommandLineCapture {
public:
    CommandLineCapture();
    ~CommandLineCapture();
    CommandLineCapture(const CommandLineCapture&) = delete;
    CommandLineCapture& operator=(const CommandLineCapture&) = delete;

    const std::wstring& text() const { return m_text; }
    std::string utf8() const;
    // Alert messages in the order shown.
    const std::vector<std::wstring>& alerts() const { return m_alerts; }
    void clear();

    // Used by the host's output functions.
    void appendText(const std::wstring& text) { m_text += text; }
    void appendAlert(const std::wstring& message) { m_alerts.push_back(message); }

private:
    std::wstring m_text;
    std::vector<std::wstring> m_alerts;
    CommandLineCapture* m_previous;
};

// Whether uncaptured command-line text is echoed to standard output (default true).
ACHOST_API void setCommandLineEcho(bool echo);

// Formats with the host's wide-format rules (%s wide, %S narrow, %I64d ...).
ACHOST_API std::wstring formatHostString(const ACHAR* format, ...);

}  // namespace headless
