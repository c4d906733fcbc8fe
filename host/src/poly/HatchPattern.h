// HatchPattern: the hatch patterns the headless host knows by name, in the pattern file
// form: families of parallel lines, each with an angle, a base point, the offset from one
// line to the next (along the line, then across it) and a dash list (positive drawn,
// negative left out, zero a dot), in pattern units before scaling. The host reads its
// patterns from pattern files that are not here; these are the headless host's own
// definitions of the classic shapes (see HatchPattern.cpp).
#pragma once

#include <string>
#include <vector>

#include "adesk.h"

namespace hostpoly {

struct PatternLine {
    double angle = 0.0;  // radians
    double baseX = 0.0;
    double baseY = 0.0;
    double offsetX = 0.0;  // along the line
    double offsetY = 0.0;  // across the line, to its left
    std::vector<double> dashes;
};

// The name of the solid fill, which has no lines.
constexpr const ACHAR* kSolidPatternName = L"SOLID";
// The name the host gives a user-defined pattern.
constexpr const ACHAR* kUserPatternName = L"_USER";

// The built-in pattern of that name (any letter case): its canonical upper-case name and
// its lines (none for SOLID). False for an unknown name.
bool findPattern(const ACHAR* name, std::wstring& canonical, std::vector<PatternLine>& lines);

// The names of every built-in pattern, SOLID first.
std::vector<std::wstring> patternNames();

// A user-defined pattern: continuous lines at the angle, space apart; with doubled, a
// second family at right angles to the first.
std::vector<PatternLine> userDefinedPattern(double angle, double space, bool doubled);

}  // namespace hostpoly
