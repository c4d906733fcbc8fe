// DrawingQueries: what the tool's commands ask of an open drawing: the entities of model
// space, objects by the handles users type, the type names users filter by, and host text
// turned into single lines for the tool's own output.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "dbmain.h"

namespace quarvo {

class DrawingQueries {
public:
    // Model space's entities in drawing order.
    static std::vector<AcDbObjectId> ModelSpaceEntities(AcDbDatabase* db);
    // Opens each of ids for read in turn and hands it to visit (null when it is not an
    // entity), closing it afterwards; long work shows progress as what.
    static void ForEachEntity(const std::vector<AcDbObjectId>& ids, const char* what,
                              const std::function<void(const AcDbObjectId&, AcDbEntity*)>& visit);
    // The object with the handle typed as hexadecimal ("2A", "0x2a"). ToolError naming the
    // text when it is not a handle or when db has no live object with it.
    static AcDbObjectId ObjectOfHandle(AcDbDatabase* db, const std::string& text);
    // The DXF name users know a type by ("QX_DIVISION_LINE", "LWPOLYLINE"); a proxy answers
    // the name of the class it stands for.
    static std::wstring TypeName(const AcDbObject* object);
    // The handle as upper-case hexadecimal.
    static std::string HandleText(const AcDbObjectId& id);
    // Host text (which starts and ends lines with newlines) as one UTF-8 line.
    static std::string OneLine(const std::wstring& text);
};

}  // namespace quarvo
