// The headless host's font model: character classes, control codes and advances.
#include "FontModel.h"

#include <cwchar>
#include <type_traits>

namespace hostgi {
namespace {

struct Range {
    char32_t first;
    char32_t last;
};

// The East Asian Wide and Fullwidth blocks that drawings commonly carry.
constexpr Range kWideRanges[] = {
    {0x1100, 0x115F},   // Hangul Jamo initials
    {0x2E80, 0x303E},   // CJK radicals, Kangxi, ideographic description, CJK symbols and punctuation
    {0x3041, 0x33FF},   // Hiragana, Katakana, Bopomofo, Hangul compatibility, Kanbun, CJK compatibility
    {0x3400, 0x4DBF},   // CJK extension A
    {0x4E00, 0x9FFF},   // CJK unified ideographs
    {0xA000, 0xA4CF},   // Yi
    {0xAC00, 0xD7A3},   // Hangul syllables
    {0xF900, 0xFAFF},   // CJK compatibility ideographs
    {0xFE30, 0xFE4F},   // CJK compatibility forms
    {0xFF00, 0xFF60},   // full-width forms
    {0xFFE0, 0xFFE6},   // full-width signs
    {0x20000, 0x3FFFD}, // CJK extensions B and later
};

bool isDigit(char32_t ch)
{
    return ch >= U'0' && ch <= U'9';
}

std::u32string decodeUnits(const ACHAR* text, size_t count)
{
    std::u32string out;
    out.reserve(count);
    for (size_t i = 0; i < count; ++i) {
        char32_t unit = static_cast<char32_t>(static_cast<std::make_unsigned_t<ACHAR>>(text[i]));
        if (unit >= 0xD800 && unit <= 0xDBFF && i + 1 < count) {
            const char32_t low = static_cast<char32_t>(static_cast<std::make_unsigned_t<ACHAR>>(text[i + 1]));
            if (low >= 0xDC00 && low <= 0xDFFF) {
                out.push_back(0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00));
                ++i;
                continue;
            }
        }
        out.push_back(unit);
    }
    return out;
}

}  // namespace

bool FontModel::isFullWidth(char32_t ch)
{
    for (const Range& r : kWideRanges) {
        if (ch >= r.first && ch <= r.last)
            return true;
    }
    return false;
}

std::u32string FontModel::displayed(const ACHAR* text, int length, bool raw)
{
    if (text == nullptr)
        return {};
    const size_t count = length < 0 ? std::wcslen(text) : static_cast<size_t>(length);
    const std::u32string units = decodeUnits(text, count);
    if (raw)
        return units;
    std::u32string out;
    out.reserve(units.size());
    for (size_t i = 0; i < units.size(); ++i) {
        if (units[i] != U'%' || i + 2 >= units.size() || units[i + 1] != U'%') {
            out.push_back(units[i]);
            continue;
        }
        const char32_t code = units[i + 2];
        switch (code) {
        case U'd': case U'D': out.push_back(0x00B0); i += 2; continue;
        case U'p': case U'P': out.push_back(0x00B1); i += 2; continue;
        case U'c': case U'C': out.push_back(0x2205); i += 2; continue;
        case U'%': out.push_back(U'%'); i += 2; continue;
        case U'u': case U'U': case U'o': case U'O': case U'k': case U'K': i += 2; continue;
        default: break;
        }
        if (isDigit(code)) {
            // %%nnn: up to three decimal digits name the character.
            char32_t value = 0;
            size_t j = i + 2;
            for (; j < units.size() && j < i + 5 && isDigit(units[j]); ++j)
                value = value * 10 + (units[j] - U'0');
            out.push_back(value);
            i = j - 1;
            continue;
        }
        out.push_back(units[i]);
    }
    return out;
}

double FontModel::advanceUnits(const std::u32string& chars)
{
    double units = 0.0;
    for (char32_t ch : chars)
        units += isFullWidth(ch) ? kWideAdvance : kNarrowAdvance;
    return units;
}

double FontModel::width(const std::u32string& chars, double height, double widthFactor, double tracking)
{
    return advanceUnits(chars) * height * widthFactor * tracking;
}

}  // namespace hostgi
