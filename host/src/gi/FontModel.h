// The headless host's one font: fixed advances that stand in for real glyph metrics, so
// that text layout (alignment, extents, multiline wrapping) is deterministic everywhere.
// Full-width (CJK) characters advance 1.0 x height x width factor, all others 0.6 x;
// the cap height is the text height and the descent below the baseline 0.2 x height.
#pragma once

#include <string>

#include "adesk.h"

namespace hostgi {

struct FontModel {
    static constexpr double kNarrowAdvance = 0.6;
    static constexpr double kWideAdvance = 1.0;
    static constexpr double kDescent = 0.2;

    // East Asian wide and full-width characters (CJK ideographs, kana, hangul, full-width forms).
    static bool isFullWidth(char32_t ch);
    // The characters a single-line text shows: UTF-16 surrogate pairs are joined and,
    // unless raw, the %% control codes are expanded (%%d degree, %%p plus-minus,
    // %%c diameter, %%% percent, %%nnn the character nnn; the %%u, %%o and %%k toggles
    // show nothing). length -1: up to the terminating null.
    static std::u32string displayed(const ACHAR* text, int length, bool raw);
    // The sum of the advances of the characters, in units of height x width factor.
    static double advanceUnits(const std::u32string& chars);
    // Width of a text: advances x height x width factor x tracking.
    static double width(const std::u32string& chars, double height, double widthFactor, double tracking = 1.0);
};

}  // namespace hostgi
