// quarvo export-dxf: what a drawing's entities draw, as a DXF file.
#pragma once

#include <string>

namespace quarvo {

struct ExportDxfOptions {
    std::string modulePath;
    std::string drawing;
    std::string output;
};

int RunExportDxf(const ExportDxfOptions& options);

}  // namespace quarvo
