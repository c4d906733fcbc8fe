// LayoutBuilder: a layout description (docs/layout-format.md) made into a drawing. The
// description is parsed and its top level checked first; every kind of entity has its
// own builder, listed once in the kind table of LayoutBuilder.cpp, and a kind whose
// entity this build does not have is refused before anything is built.
#pragma once

#include <rapidjson/document.h>

#include <map>
#include <string>

#include "JsonObjectReader.h"
#include "LayoutContext.h"

namespace quarvo {

// Builds one element of a kind's array into the drawing; LayoutError for what it refuses.
using KindBuilder = void (*)(JsonObjectReader& item, LayoutContext& context);

struct LayoutKind {
    const char* key;      // the description's member holding the kind's elements
    KindBuilder builder;  // null while the module lacks the kind's entity
};

class LayoutBuilder {
public:
    // The description's format name and the version this build reads.
    static constexpr const char* kFormat = "quarvo-layout";
    static constexpr int kVersion = 1;
    // Deeper nesting is refused before anything reads the document.
    static constexpr int kMaxDepth = 64;

    // Parses UTF-8 text; LayoutError with the line and column of a syntax error.
    static void Parse(const std::string& text, rapidjson::Document& document);
    // Builds the whole description into db (which should be empty). How many entities of
    // each kind were made goes to built. LayoutError for the first refusal; the drawing
    // is then partly built and must be thrown away.
    static void Build(const rapidjson::Document& document, AcDbDatabase* db, std::map<std::string, int>& built);

    // Every kind of the format, in the order they are built.
    static const std::vector<LayoutKind>& Kinds();
};

}  // namespace quarvo
