// ToolSession: module and drawings for the tool's commands.
#include "ToolSession.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

#include "DrawingQueries.h"
#include "ToolError.h"
#include "headless/CommandLine.h"
#include "headless/TextCodec.h"
#include "rxdlinkr.h"

namespace quarvo {

ToolSession::ToolSession(const std::string& modulePath) : m_module(headless::fromUtf8(modulePath))
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(std::filesystem::u8path(modulePath), error))
        throw ToolError("cannot load the module " + modulePath + ": no such file");
    headless::CommandLineCapture quiet;
    if (!acrxDynamicLinker->loadModule(m_module.c_str(), false)) {
        const std::string why = DrawingQueries::OneLine(quiet.text());
        throw ToolError("cannot load the module " + modulePath + (why.empty() ? "" : ": " + why));
    }
    m_session = std::make_unique<headless::Session>();
}

ToolSession::~ToolSession()
{
    headless::CommandLineCapture quiet;
    m_session.reset();
    acrxDynamicLinker->unloadModule(m_module.c_str(), false);
}

AcApDocument* ToolSession::Open(const std::string& path, headless::DrawingReadReport& report, bool echo)
{
    const std::filesystem::path file = std::filesystem::u8path(path);
    std::error_code error;
    if (!std::filesystem::exists(file, error))
        throw ToolError(path + ": no such file");
    if (std::filesystem::is_directory(file, error))
        throw ToolError(path + ": is a folder, not a drawing");
    AcApDocument* doc = nullptr;
    Acad::ErrorStatus status = Acad::eOk;
    {
        headless::CommandLineCapture quiet;
        status = m_session->openDocument(headless::fromUtf8(path), doc, &report);
    }
    switch (status) {
    case Acad::eOk: break;
    case Acad::eUnsupportedFileFormat: throw ToolError(path + ": not a drawing file");
    case Acad::eInvalidDwgVersion: throw ToolError(path + ": a drawing of a newer format than this build reads");
    default: throw ToolError(path + ": cannot be read");
    }
    if (echo) {
        for (const std::wstring& message : report.messages)
            std::fprintf(stderr, "%s\n", DrawingQueries::OneLine(message).c_str());
    }
    return doc;
}

AcApDocument* ToolSession::New()
{
    return m_session->newDocument();
}

void ToolSession::SaveAs(AcApDocument* doc, const std::string& path)
{
    headless::CommandLineCapture quiet;
    if (m_session->saveAs(doc, headless::fromUtf8(path)) != Acad::eOk)
        throw ToolError("cannot write " + path);
}

std::string ToolSession::DefaultModulePath()
{
    std::error_code error;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
    if (error)
        return "Quarvo.dbx";
    return (program.parent_path() / "Quarvo.dbx").u8string();
}

}  // namespace quarvo
