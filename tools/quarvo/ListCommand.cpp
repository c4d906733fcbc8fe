// quarvo list: every chosen entity lists itself on the command line (standard output),
// one blank line after each, as the host's LIST prints a selection.
#include "ListCommand.h"

#include <algorithm>
#include <cwctype>

#include "DrawingQueries.h"
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

    DrawingQueries::ForEachEntity(ids, "Listing", [&](const AcDbObjectId& id, AcDbEntity* entity) {
        if (entity == nullptr) {
            if (!options.handles.empty())
                throw ToolError("object " + DrawingQueries::HandleText(id) + " is not an entity");
            return;
        }
        const std::wstring type = UpperCase(DrawingQueries::TypeName(entity));
        if (types.empty() || std::find(types.begin(), types.end(), type) != types.end()) {
            entity->list();
            acutPrintf(L"\n");
        }
    });
    return kExitOk;
}

}  // namespace quarvo
