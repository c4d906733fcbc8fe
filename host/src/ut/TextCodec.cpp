// UTF-8 and UTF-16 conversions of the host's wide strings.
#include "headless/TextCodec.h"

namespace headless {
namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr bool kWideIsUtf16 = sizeof(wchar_t) == 2;

bool isScalar(char32_t c) { return c < 0x110000 && (c < 0xD800 || c > 0xDFFF); }

void appendUtf8(std::string& out, char32_t c)
{
    if (!isScalar(c))
        c = kReplacement;
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

void appendWide(std::wstring& out, char32_t c)
{
    if (!isScalar(c))
        c = kReplacement;
    if (kWideIsUtf16 && c >= 0x10000) {
        c -= 0x10000;
        out += static_cast<wchar_t>(0xD800 + (c >> 10));
        out += static_cast<wchar_t>(0xDC00 + (c & 0x3FF));
    } else {
        out += static_cast<wchar_t>(c);
    }
}

// Decodes the code point at text[i] of a wide string, advancing i.
template <typename Unit>
char32_t decodeUtf16Or32(const Unit* text, std::size_t size, std::size_t& i, bool utf16)
{
    const char32_t c = static_cast<char32_t>(text[i++]) & (utf16 ? 0xFFFFu : 0xFFFFFFFFu);
    if (!utf16)
        return c;
    if (c >= 0xD800 && c <= 0xDBFF) {
        if (i < size) {
            const char32_t low = static_cast<char32_t>(text[i]) & 0xFFFFu;
            if (low >= 0xDC00 && low <= 0xDFFF) {
                ++i;
                return 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
            }
        }
        return kReplacement;
    }
    if (c >= 0xDC00 && c <= 0xDFFF)
        return kReplacement;
    return c;
}

}  // namespace

std::string toUtf8(std::wstring_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();)
        appendUtf8(out, decodeUtf16Or32(text.data(), text.size(), i, kWideIsUtf16));
    return out;
}

std::wstring fromUtf8(std::string_view text)
{
    std::wstring out;
    out.reserve(text.size());
    std::size_t i = 0;
    while (i < text.size()) {
        const unsigned char lead = static_cast<unsigned char>(text[i]);
        int extra = 0;
        char32_t c = 0;
        char32_t minimum = 0;
        if (lead < 0x80) {
            c = lead;
        } else if ((lead & 0xE0) == 0xC0) {
            c = lead & 0x1F;
            extra = 1;
            minimum = 0x80;
        } else if ((lead & 0xF0) == 0xE0) {
            c = lead & 0x0F;
            extra = 2;
            minimum = 0x800;
        } else if ((lead & 0xF8) == 0xF0) {
            c = lead & 0x07;
            extra = 3;
            minimum = 0x10000;
        } else {
            appendWide(out, kReplacement);
            ++i;
            continue;
        }
        ++i;
        bool valid = true;
        for (int k = 0; k < extra; ++k) {
            if (i >= text.size() || (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) {
                valid = false;
                break;
            }
            c = (c << 6) | (static_cast<unsigned char>(text[i]) & 0x3F);
            ++i;
        }
        if (!valid || c < minimum)
            c = kReplacement;
        appendWide(out, c);
    }
    return out;
}

// Whether every unit is a character of the basic plane outside the surrogates, as nearly
// every text is: such a text is the same units in UTF-16 and in wide characters.
template <typename Unit>
bool isPlainBasicPlane(const Unit* text, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i) {
        const auto c = static_cast<char32_t>(text[i]);
        if (c >= 0xD800 && (c <= 0xDFFF || c >= 0x10000))
            return false;
    }
    return true;
}

std::u16string toUtf16(std::wstring_view text)
{
    if (isPlainBasicPlane(text.data(), text.size()))
        return std::u16string(text.begin(), text.end());
    std::u16string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
        char32_t c = decodeUtf16Or32(text.data(), text.size(), i, kWideIsUtf16);
        if (!isScalar(c))
            c = kReplacement;
        if (c >= 0x10000) {
            c -= 0x10000;
            out += static_cast<char16_t>(0xD800 + (c >> 10));
            out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
        } else {
            out += static_cast<char16_t>(c);
        }
    }
    return out;
}

std::wstring fromUtf16(std::u16string_view text)
{
    if (isPlainBasicPlane(text.data(), text.size()))
        return std::wstring(text.begin(), text.end());
    std::wstring out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size();)
        appendWide(out, decodeUtf16Or32(text.data(), text.size(), i, true));
    return out;
}

}  // namespace headless
