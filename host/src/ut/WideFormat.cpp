// The host's wide-format rules on top of the C library's vswprintf.
#include "WideFormat.h"

#include <cwchar>
#include <vector>

namespace hostut {
namespace {

bool isFlag(wchar_t c) { return c == L'-' || c == L'+' || c == L' ' || c == L'#' || c == L'0'; }
bool isDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

// Largest expansion accepted; beyond it the text is surely runaway input.
constexpr std::size_t kMaxFormattedLength = std::size_t(1) << 24;

}  // namespace

std::wstring translateHostFormat(const wchar_t* format)
{
    std::wstring out;
    if (format == nullptr)
        return out;
    const wchar_t* p = format;
    while (*p != L'\0') {
        if (*p != L'%') {
            out += *p++;
            continue;
        }
        out += *p++;  // '%'
        if (*p == L'%') {
            out += *p++;
            continue;
        }
        while (isFlag(*p))
            out += *p++;
        if (*p == L'*')
            out += *p++;
        else
            while (isDigit(*p))
                out += *p++;
        if (*p == L'.') {
            out += *p++;
            if (*p == L'*')
                out += *p++;
            else
                while (isDigit(*p))
                    out += *p++;
        }
        // Length modifiers, including the host's I64 / I32 / I and w forms.
        std::wstring length;
        bool narrow = false;
        bool wide = false;
        for (;;) {
            if (p[0] == L'I' && p[1] == L'6' && p[2] == L'4') {
                length = L"ll";
                p += 3;
            } else if (p[0] == L'I' && p[1] == L'3' && p[2] == L'2') {
                length.clear();
                p += 3;
            } else if (p[0] == L'I') {
                length = L"z";
                ++p;
            } else if (*p == L'h') {
                narrow = true;
                length += *p++;
            } else if (*p == L'l' || *p == L'w') {
                wide = true;
                length += L'l';
                ++p;
            } else if (*p == L'L' || *p == L'j' || *p == L'z' || *p == L't' || *p == L'q') {
                length += (*p == L'q') ? L'L' : *p;
                ++p;
            } else {
                break;
            }
        }
        const wchar_t conv = *p;
        if (conv == L'\0') {
            out += length;
            break;
        }
        ++p;
        switch (conv) {
        case L's':
            out += narrow ? L"s" : L"ls";
            break;
        case L'S':
            out += wide ? L"ls" : L"s";
            break;
        case L'c':
            out += narrow ? L"c" : L"lc";
            break;
        case L'C':
            out += wide ? L"lc" : L"c";
            break;
        default:
            // 'h' with integers keeps its ISO meaning.
            out += length;
            out += conv;
            break;
        }
    }
    return out;
}

std::wstring formatWideV(const wchar_t* format, va_list args)
{
    if (format == nullptr)
        return std::wstring();
    const std::wstring translated = translateHostFormat(format);
    std::vector<wchar_t> buffer(256);
    for (;;) {
        va_list copy;
        va_copy(copy, args);
        const int written = std::vswprintf(buffer.data(), buffer.size(), translated.c_str(), copy);
        va_end(copy);
        if (written >= 0 && static_cast<std::size_t>(written) < buffer.size())
            return std::wstring(buffer.data(), static_cast<std::size_t>(written));
        // vswprintf does not tell "too small" from "cannot encode": grow, up to a limit.
        if (buffer.size() >= kMaxFormattedLength)
            return std::wstring(format);
        buffer.resize(buffer.size() * 4);
    }
}

}  // namespace hostut
