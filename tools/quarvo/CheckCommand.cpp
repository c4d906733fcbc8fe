// quarvo check: the reader's report, the proxies, the per-kind hooks and the entities'
// own warnings, one finding a line.
#include "CheckCommand.h"

#include <cstdio>

#include "DrawingQueries.h"
#include "EntityChecks.h"
#include "ToolError.h"
#include "ToolSession.h"
#include "dbproxy.h"
#include "headless/CommandLine.h"
#include "headless/RecordingWorldDraw.h"
#include "headless/TextCodec.h"
#include "rxclass.h"
#include "rxdict.h"

namespace quarvo {
namespace {

// The prefixes the module gives its warnings and errors on the command line.
const wchar_t* const kWarningMarkers[] = {L"警告:", L"[错误]"};

std::string ProxyFinding(const AcDbEntity* entity)
{
    const AcDbProxyEntity* proxy = AcDbProxyEntity::cast(entity);
    const std::wstring className = proxy->originalClassName() != nullptr ? proxy->originalClassName() : L"";
    const bool loaded = acrxClassDictionary->at(className.c_str()) != nullptr;
    return "kept as a proxy: " +
        (loaded ? std::string("its class refused the data (a newer version, or damaged)")
                : "its class " + headless::toUtf8(className) + " is not loaded");
}

// The lines of what the entity printed that carry the module's warning markers.
void WarningsIn(const std::wstring& text, std::vector<std::string>& findings)
{
    std::size_t start = 0;
    while (start < text.size()) {
        std::size_t end = text.find(L'\n', start);
        if (end == std::wstring::npos)
            end = text.size();
        const std::wstring line = text.substr(start, end - start);
        for (const wchar_t* marker : kWarningMarkers) {
            if (line.find(marker) != std::wstring::npos) {
                findings.push_back(DrawingQueries::OneLine(line));
                break;
            }
        }
        start = end + 1;
    }
}

}  // namespace

int RunCheck(const CheckOptions& options)
{
    ToolSession tool(options.modulePath);
    headless::DrawingReadReport report;
    AcDbDatabase* db = tool.Open(options.drawing, report, false)->database();

    int findings = 0;
    for (const std::wstring& message : report.messages) {
        std::printf("%s\n", DrawingQueries::OneLine(message).c_str());
        ++findings;
    }

    const std::vector<AcDbObjectId> ids = DrawingQueries::ModelSpaceEntities(db);
    DrawingQueries::ForEachEntity(ids, "Checking", [&](const AcDbObjectId& id, AcDbEntity* entity) {
        if (entity == nullptr)
            return;
        std::vector<std::string> found;
        if (AcDbProxyEntity::cast(entity) != nullptr) {
            found.push_back(ProxyFinding(entity));
        } else {
            EntityChecks::Check(entity, found);
            headless::CommandLineCapture printed;
            headless::RecordingWorldDraw draw;
            draw.setDatabase(db);
            draw.drawDrawable(entity);
            entity->list();
            WarningsIn(printed.text(), found);
        }
        const std::string who =
            DrawingQueries::HandleText(id) + " " + headless::toUtf8(DrawingQueries::TypeName(entity));
        for (const std::string& finding : found)
            std::printf("%s: %s\n", who.c_str(), finding.c_str());
        findings += static_cast<int>(found.size());
    });

    if (findings == 0) {
        std::printf("Clean: %zu entities checked.\n", ids.size());
        return kExitOk;
    }
    std::printf("%d finding%s in %zu entit%s.\n", findings, findings == 1 ? "" : "s", ids.size(),
                ids.size() == 1 ? "y" : "ies");
    return kExitFindings;
}

}  // namespace quarvo
