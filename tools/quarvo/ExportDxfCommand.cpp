// quarvo export-dxf: exports model space and says what the file holds, one DXF entity
// type a line, so that scripts can compare it with what a DXF reader finds.
#include "ExportDxfCommand.h"

#include <cstdio>

#include "DxfExporter.h"
#include "ToolError.h"
#include "ToolSession.h"

namespace quarvo {

int RunExportDxf(const ExportDxfOptions& options)
{
    ToolSession tool(options.modulePath);
    headless::DrawingReadReport report;
    AcDbDatabase* db = tool.Open(options.drawing, report)->database();
    const DxfExportSummary summary = DxfExporter::Export(db, options.output);
    std::printf("Exported %d entities to %s\n", summary.total(), options.output.c_str());
    for (const auto& [type, count] : summary.entities)
        std::printf("  %-10s %d\n", type.c_str(), count);
    if (summary.skippedPrimitives > 0)
        std::printf("  (%d drawn shapes have no DXF entity and were left out)\n", summary.skippedPrimitives);
    return kExitOk;
}

}  // namespace quarvo
