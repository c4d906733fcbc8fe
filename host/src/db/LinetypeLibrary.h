// LinetypeLibrary: the linetype definitions that AcDbDatabase::loadLineTypeFile loads:
// parsed from a linetype file in the classic text format when the file name names a
// readable file, otherwise the host's built-in definitions, which stand for its standard
// file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "acadstrc.h"

class AcDbDatabase;

namespace hostdb {

struct LinetypeDefinition {
    std::wstring name;
    std::wstring description;
    std::vector<double> dashes;  // positive draws, negative skips, zero is a dot
};

class LinetypeLibrary {
public:
    // The built-in definitions: DASHED, HIDDEN, CENTER, DASHDOT, DOT, PHANTOM, DIVIDE and
    // BORDER, each with a half-size "2" and a double-size "X2" variant, in inches, or in
    // millimetres (lengths times 25.4) for a metric file.
    static std::vector<LinetypeDefinition> builtIn(bool metric);

    // Definitions in the classic text: comment lines start with ';', a definition is a line
    // "*NAME,description" followed by a line "A,dash,dash,...". Malformed definitions, those
    // with more than the host's twelve dashes, and complex ones (with [shape] or ["text"]
    // elements) are skipped.
    static std::vector<LinetypeDefinition> parse(std::string_view text);

    // The definitions that fileName stands for. eInvalidInput for a file larger than a
    // linetype file can reasonably be.
    static Acad::ErrorStatus definitionsFor(const ACHAR* fileName, std::vector<LinetypeDefinition>& out);

    // Adds to db's linetype table the definitions whose names match pattern ('*' and '?'
    // wildcards, case ignored) and that the table does not have yet.
    static Acad::ErrorStatus load(AcDbDatabase* db, const ACHAR* pattern, const ACHAR* fileName);

    // Case-insensitive match with '*' (any run) and '?' (any one character).
    static bool matches(const ACHAR* pattern, const ACHAR* name);
};

}  // namespace hostdb
