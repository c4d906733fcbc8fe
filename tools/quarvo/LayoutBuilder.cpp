// LayoutBuilder: the kinds of a layout description and the order they are built in.
#include "LayoutBuilder.h"

#include <rapidjson/encodedstream.h>
#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>

#include "CircleOpeningBuilder.h"
#include "DivisionLineBuilder.h"
#include "LayoutBoundaryBuilder.h"
#include "LitePanelBuilder.h"
#include "OverlapLineBuilder.h"
#include "PanelBuilder.h"
#include "PolyOpeningBuilder.h"
#include "RectOpeningBuilder.h"
#include "ShouBianLineBuilder.h"
#include "SteelMemberBuilder.h"
#include "StructuralLineBuilder.h"
#include "Progress.h"
#include "Qx/JsonExactParse.h"

namespace quarvo {

const std::vector<LayoutKind>& LayoutBuilder::Kinds()
{
    // Outline first, then what lies on it, then what cuts through it; a builder joins here
    // as its entity joins the module.
    static const std::vector<LayoutKind> kinds = {
        {"boundary", &BuildLayoutBoundary},      {"panels", &BuildPanel},
        {"litePanels", &BuildLitePanel},         {"divisionLines", &BuildDivisionLine},
        {"overlapLines", &BuildOverlapLine},     {"structuralLines", &BuildStructuralLine},
        {"flashingLines", &BuildShouBianLine},   {"steelMembers", &BuildSteelMember},
        {"circleOpenings", &BuildCircleOpening}, {"rectOpenings", &BuildRectOpening},
        {"polyOpenings", &BuildPolyOpening},
    };
    return kinds;
}

void LayoutBuilder::Parse(const std::string& text, rapidjson::Document& document)
{
    rapidjson::MemoryStream bytes(text.data(), text.size());
    rapidjson::EncodedInputStream<rapidjson::UTF8<>, rapidjson::MemoryStream> stream(bytes);
    const rapidjson::ParseResult result =
        Qx::JsonExactParse::Parse<rapidjson::kParseIterativeFlag>(document, stream, text.data());
    if (result.IsError()) {
        const std::size_t offset = std::min(result.Offset(), text.size());
        std::size_t line = 1;
        std::size_t column = 1;
        for (std::size_t i = 0; i < offset; ++i) {
            if (text[i] == '\n') {
                ++line;
                column = 1;
            } else if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) {
                ++column;
            }
        }
        throw LayoutError("line " + std::to_string(line) + ", column " + std::to_string(column),
                          std::string("not JSON: ") + rapidjson::GetParseError_En(result.Code()));
    }
    if (JsonObjectReader::Depth(document) > kMaxDepth)
        throw LayoutError("", "nested deeper than " + std::to_string(kMaxDepth) + " levels");
}

void LayoutBuilder::Build(const rapidjson::Document& document, AcDbDatabase* db, std::map<std::string, int>& built)
{
    JsonObjectReader top(document, "");
    if (top.String("format", L"") != L"quarvo-layout")
        throw LayoutError("format", "must be \"quarvo-layout\"");
    if (!top.Has("version"))
        throw LayoutError("", "needs \"version\"");
    top.Integer("version", kVersion, kVersion, kVersion);
    top.String("name", L"");
    LayoutContext context(db);
    context.AddLayers(top.Array("layers"), "layers");

    // Every kind is looked at before anything is built, so that a description this build
    // cannot make is refused whole.
    std::vector<std::pair<const LayoutKind*, std::vector<const rapidjson::Value*>>> work;
    std::size_t total = 0;
    for (const LayoutKind& kind : Kinds()) {
        std::vector<const rapidjson::Value*> items;
        if (std::string(kind.key) == "boundary") {
            if (const rapidjson::Value* boundary = top.Object(kind.key))
                items.push_back(boundary);
        } else if (const rapidjson::Value* array = top.Array(kind.key)) {
            for (const rapidjson::Value& item : array->GetArray())
                items.push_back(&item);
        }
        if (items.empty())
            continue;
        if (kind.builder == nullptr) {
            const bool single = std::string(kind.key) == "boundary";
            throw LayoutError(single ? std::string(kind.key) : std::string(kind.key) + "[0]",
                              "entity kind not available in this build");
        }
        total += items.size();
        work.push_back({&kind, items});
    }
    top.Finish();

    Progress progress("Building", total);
    std::size_t done = 0;
    for (const auto& [kind, items] : work) {
        const bool single = std::string(kind->key) == "boundary";
        for (std::size_t i = 0; i < items.size(); ++i) {
            progress.Step(done++);
            JsonObjectReader item(*items[i],
                                  single ? kind->key : std::string(kind->key) + "[" + std::to_string(i) + "]");
            kind->builder(item, context);
            item.Finish();
        }
        built[kind->key] = static_cast<int>(items.size());
    }
    context.RunDeferred();
}

}  // namespace quarvo
