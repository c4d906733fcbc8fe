// quarvo copy: deep-clones the objects into model space through the host's copy command,
// in one command of the document, showing what the host and the module print (alerts
// included), then the handles of the copies, and saves the drawing.
#include "CopyCommand.h"

#include <cstdio>

#include "DrawingQueries.h"
#include "ToolError.h"
#include "ToolSession.h"
#include "dbmain.h"
#include "headless/CloneCommand.h"
#include "headless/TextCodec.h"

namespace quarvo {

int RunCopy(const CopyOptions& options)
{
    ToolSession tool(options.modulePath);
    headless::DrawingReadReport report;
    AcApDocument* doc = tool.Open(options.drawing, report);
    AcDbDatabase* db = doc->database();
    AcDbObjectIdArray ids;
    for (const std::string& handle : options.handles) {
        const AcDbObjectId id = DrawingQueries::ObjectOfHandle(db, handle);
        if (ids.contains(id))
            throw ToolError("handle " + handle + " is given twice");
        // The copy command copies what can be selected: entities.
        AcDbEntity* entity = nullptr;
        if (acdbOpenObject(entity, id, AcDb::kForRead) != Acad::eOk)
            throw ToolError("object " + handle + " is not an entity");
        entity->close();
        ids.append(id);
    }

    AcDbObjectIdArray clones;
    Acad::ErrorStatus copied = Acad::eOk;
    const Acad::ErrorStatus ran = tool.session().runCommand(
        doc, [&] { copied = headless::copyObjects(ids, clones); }, L"COPY");
    const Acad::ErrorStatus status = ran != Acad::eOk ? ran : copied;
    if (status != Acad::eOk)
        throw ToolError("the copy failed: " + headless::toUtf8(acadErrorStatusText(status)));
    std::fflush(stdout);

    std::printf("\nCopied %d object%s:", ids.length(), ids.length() == 1 ? "" : "s");
    for (int i = 0; i < ids.length() && i < clones.length(); ++i)
        std::printf(" %s -> %s", DrawingQueries::HandleText(ids[i]).c_str(),
                    DrawingQueries::HandleText(clones[i]).c_str());
    std::printf("\n");
    const std::string output = options.output.empty() ? options.drawing : options.output;
    tool.SaveAs(doc, output);
    std::printf("Saved %s\n", output.c_str());
    return kExitOk;
}

}  // namespace quarvo
