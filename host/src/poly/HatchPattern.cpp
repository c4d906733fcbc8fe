// The built-in hatch patterns. Each is the headless host's own drawing of a classic
// shape, in pattern units (one unit at scale 1):
//   SOLID   solid fill, no lines
//   LINE    horizontal lines 0.125 apart
//   ANSI31  lines at 45 degrees 0.125 apart (the general section hatch)
//   ANSI32  pairs of 45 degree lines 0.176777 apart, pairs 0.375 apart (steel)
//   ANSI37  45 and 135 degree lines, each 0.125 apart (a diagonal grid)
//   NET     horizontal and vertical lines 0.125 apart (a square grid)
//   DOTS    dots 0.03125 apart along rows 0.0625 apart, each row shifted half a step
//   CROSS   small crosses of arms 0.125 long on a 0.25 diagonal lattice
//   BRICK   courses 0.25 high of bricks 0.5 long, alternate courses shifted half a brick
#include "HatchPattern.h"

#include <cmath>
#include <cwctype>

namespace hostpoly {
namespace {

constexpr double kDegrees = 3.14159265358979323846 / 180.0;

struct Definition {
    const ACHAR* name;
    std::vector<PatternLine> lines;
};

PatternLine line(double degrees, double baseX, double baseY, double offsetX, double offsetY,
                 std::vector<double> dashes = {})
{
    PatternLine made;
    made.angle = degrees * kDegrees;
    made.baseX = baseX;
    made.baseY = baseY;
    made.offsetX = offsetX;
    made.offsetY = offsetY;
    made.dashes = std::move(dashes);
    return made;
}

const std::vector<Definition>& definitions()
{
    static const std::vector<Definition> all = {
        {kSolidPatternName, {}},
        {L"LINE", {line(0, 0, 0, 0, 0.125)}},
        {L"ANSI31", {line(45, 0, 0, 0, 0.125)}},
        {L"ANSI32", {line(45, 0, 0, 0, 0.375), line(45, 0.176776695, 0, 0, 0.375)}},
        {L"ANSI37", {line(45, 0, 0, 0, 0.125), line(135, 0, 0, 0, 0.125)}},
        {L"NET", {line(0, 0, 0, 0, 0.125), line(90, 0, 0, 0, 0.125)}},
        {L"DOTS", {line(0, 0, 0, 0.015625, 0.0625, {0.0, -0.03125})}},
        {L"CROSS",
         {line(0, 0, 0, 0.25, 0.25, {0.125, -0.375}), line(90, 0.0625, -0.0625, 0.25, 0.25, {0.125, -0.375})}},
        {L"BRICK",
         {line(0, 0, 0, 0, 0.25), line(90, 0, 0, 0, 0.5, {0.25, -0.25}),
          line(90, 0.25, 0.25, 0, 0.5, {0.25, -0.25})}},
    };
    return all;
}

std::wstring upper(const ACHAR* text)
{
    std::wstring result;
    for (const ACHAR* p = text; *p != 0; ++p)
        result.push_back(static_cast<wchar_t>(std::towupper(static_cast<wint_t>(*p))));
    return result;
}

}  // namespace

bool findPattern(const ACHAR* name, std::wstring& canonical, std::vector<PatternLine>& lines)
{
    if (name == nullptr)
        return false;
    const std::wstring wanted = upper(name);
    for (const Definition& def : definitions()) {
        if (wanted == def.name) {
            canonical = def.name;
            lines = def.lines;
            return true;
        }
    }
    return false;
}

std::vector<std::wstring> patternNames()
{
    std::vector<std::wstring> names;
    for (const Definition& def : definitions())
        names.emplace_back(def.name);
    return names;
}

std::vector<PatternLine> userDefinedPattern(double angle, double space, bool doubled)
{
    std::vector<PatternLine> lines;
    PatternLine first;
    first.angle = angle;
    first.offsetY = space;
    lines.push_back(first);
    if (doubled) {
        PatternLine second = first;
        second.angle = angle + 90.0 * kDegrees;
        lines.push_back(second);
    }
    return lines;
}

}  // namespace hostpoly
