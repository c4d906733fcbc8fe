// DxfExporter: a drawing's model space as a DXF file (R2000) written through dxflib: what
// every entity draws (the recorded world draw, proxies included) becomes plain DXF
// entities on the layers, in the colours, linetypes and text styles it was drawn with.
// Texts and names are written in the GBK code page ($DWGCODEPAGE ANSI_936) so that
// Chinese survives in any reader of the format; characters outside it are written as
// \U+XXXX escapes.
#pragma once

#include <map>
#include <string>

#include "AcDbDatabase.h"

namespace quarvo {

struct DxfExportSummary {
    std::map<std::string, int> entities;  // how many of each DXF entity type were written
    int skippedPrimitives = 0;            // primitives DXF has no entity for, or that were malformed
    int total() const;
};

class DxfExporter {
public:
    // Writes path whole or not at all; ToolError when it cannot be written.
    static DxfExportSummary Export(AcDbDatabase* db, const std::string& path);
    // Text as the file stores it: GBK bytes, control characters as blanks.
    static std::string EncodeText(const std::wstring& text);
};

}  // namespace quarvo
