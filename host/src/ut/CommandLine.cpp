// The headless command line: acutPrintf, acedAlert and their capture for tests.
#include "headless/CommandLine.h"

#include <cstdio>

#include "WideFormat.h"
#include "acedads.h"
#include "acutads.h"
#include "headless/TextCodec.h"

namespace headless {
namespace {

// Output sinks are process state of the host, touched only from the main thread.
CommandLineCapture* g_capture = nullptr;
bool g_echo = true;

void emit(const std::wstring& text)
{
    if (g_capture != nullptr) {
        g_capture->appendText(text);
        return;
    }
    if (g_echo) {
        const std::string bytes = toUtf8(text);
        std::fwrite(bytes.data(), 1, bytes.size(), stdout);
        std::fflush(stdout);
    }
}

}  // namespace

CommandLineCapture::CommandLineCapture() : m_previous(g_capture)
{
    g_capture = this;
}

CommandLineCapture::~CommandLineCapture()
{
    g_capture = m_previous;
}

std::string CommandLineCapture::utf8() const
{
    return toUtf8(m_text);
}

void CommandLineCapture::clear()
{
    m_text.clear();
    m_alerts.clear();
}

void setCommandLineEcho(bool echo)
{
    g_echo = echo;
}

std::wstring formatHostString(const ACHAR* format, ...)
{
    va_list args;
    va_start(args, format);
    std::wstring text = hostut::formatWideV(format, args);
    va_end(args);
    return text;
}

}  // namespace headless

int acutPrintf(const ACHAR* format, ...)
{
    va_list args;
    va_start(args, format);
    const std::wstring text = hostut::formatWideV(format, args);
    va_end(args);
    headless::emit(text);
    return static_cast<int>(text.size());
}

int acedAlert(const ACHAR* message)
{
    const std::wstring text = message != nullptr ? message : L"";
    if (headless::g_capture != nullptr) {
        headless::g_capture->appendAlert(text);
        return RTNORM;
    }
    // With nobody to click the box, the alert is shown on the command line.
    headless::emit(L"\n[alert] " + text + L"\n");
    return RTNORM;
}
