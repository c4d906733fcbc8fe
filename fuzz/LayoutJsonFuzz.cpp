// Feeds arbitrary text to quarvo new's layout description: parsed, then built into a fresh
// drawing. Whatever the text, it is built or refused with a LayoutError (by its JSON path);
// nothing crashes, reads out of bounds or allocates without bound, and what was built
// saves.
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "AcDbDatabase.h"
#include "LayoutBuilder.h"
#include "ToolError.h"
#include "headless/CommandLine.h"
#include "headless/DrawingFile.h"
#include "support/FuzzDrawing.h"

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzzing::WorkingDrawing();
    fuzzing::FillIdQuarantine();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    headless::CommandLineCapture quiet;
    const std::string text(reinterpret_cast<const char*>(data), size);
    rapidjson::Document document;
    try {
        quarvo::LayoutBuilder::Parse(text, document);
    } catch (const quarvo::ToolError&) {
        return 0;
    }
    auto db = std::make_unique<AcDbDatabase>();
    std::map<std::string, int> built;
    try {
        quarvo::LayoutBuilder::Build(document, db.get(), built);
    } catch (const quarvo::ToolError&) {
        return 0;
    }
    std::vector<std::uint8_t> bytes;
    headless::DrawingFile::write(db.get(), bytes);
    return 0;
}
