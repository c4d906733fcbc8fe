// quarvo list: every chosen entity lists itself on the command line (standard output),
// one blank line after each, as the host's LIST prints a selection.
#include "ListCommand.h"

#include <algorithm>
#include <cwctype>

#include "DrawingQueries.h"
#include "Progress.h"
#include "ToolError.h"
#include "ToolSession.h"
#include "acutads.h"
#include "headless/TextCodec.h"

namespace quarvo {
namespace {

// DXF names are matched whatever the case the user typed them in.
std::wstring UpperCase(std::wstring text)
{
    for (wchar_t& c : text)
        c = static_cast<wchar_t>(std::towupper(static_cast<std::wint_t>(c)));
    return text;
}

}  // namespace

int RunList(const ListOptions& options)
{
    ToolSession tool(options.modulePath);
    headless::DrawingReadReport report;
    AcDbDatabase* db = tool.Open(options.drawing, report)->database();

    std::vector<AcDbObjectId> ids;
    for (const std::string& handle : options.handles)
        ids.push_back(DrawingQueries::ObjectOfHandle(db, handle));
    if (options.handles.empty())
        ids = DrawingQueries::ModelSpaceEntities(db);

    std::vector<std::wstring> types;
    for (const std::string& type : options.types)
        types.push_back(UpperCase(headless::fromUtf8(type)));

    Progress progress("Listing", ids.size());
    for (std::size_t i = 0; i < ids.size(); ++i) {
        progress.Step(i);
        AcDbEntity* entity = nullptr;
        if (acdbOpenObject(entity, ids[i], AcDb::kForRead) != Acad::eOk) {
            if (!options.handles.empty())
                throw ToolError("object " + DrawingQueries::HandleText(ids[i]) + " is not an entity");
            continue;
        }
        const std::wstring type = UpperCase(DrawingQueries::TypeName(entity));
        const bool wanted = types.empty() || std::find(types.begin(), types.end(), type) != types.end();
        if (wanted) {
            entity->list();
            acutPrintf(L"\n");
        }
        entity->close();
    }
    return kExitOk;
}

}  // namespace quarvo
