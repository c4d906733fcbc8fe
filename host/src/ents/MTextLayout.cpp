// MTextLayout: resolving multiline text codes, wrapping and placing lines.
#include "MTextLayout.h"

#include <algorithm>

#include "gi/FontModel.h"

namespace hostents {
namespace {

constexpr wchar_t kNoBreakSpace = 0x00A0;

bool isHexDigit(wchar_t c)
{
    return (c >= L'0' && c <= L'9') || (c >= L'a' && c <= L'f') || (c >= L'A' && c <= L'F');
}

int hexValue(wchar_t c)
{
    if (c >= L'0' && c <= L'9')
        return c - L'0';
    return (c | 0x20) - L'a' + 10;
}

// The index just past the ';' that ends a property code starting at i (or the end).
size_t skipProperty(const std::wstring& s, size_t i)
{
    const size_t end = s.find(L';', i);
    return end == std::wstring::npos ? s.size() : end + 1;
}

double widthOf(const std::wstring& text, double height)
{
    return hostgi::FontModel::width(hostgi::FontModel::displayed(text.c_str(), static_cast<int>(text.size()), false),
                                    height, 1.0);
}

bool isBreakable(wchar_t c)
{
    return c == L' ' || c == L'\t';
}

// Words, runs of spaces, and single full-width characters.
std::vector<std::wstring> tokens(const std::wstring& paragraph)
{
    std::vector<std::wstring> out;
    std::wstring word;
    auto flush = [&]() {
        if (!word.empty())
            out.push_back(word);
        word.clear();
    };
    for (wchar_t c : paragraph) {
        const bool wide = hostgi::FontModel::isFullWidth(static_cast<char32_t>(c));
        if (wide) {
            flush();
            out.emplace_back(1, c);
        } else if (isBreakable(c) != (!word.empty() && isBreakable(word.back()))) {
            flush();
            word += c;
        } else {
            word += c;
        }
    }
    flush();
    return out;
}

std::wstring trimRight(std::wstring text)
{
    while (!text.empty() && isBreakable(text.back()))
        text.pop_back();
    return text;
}

}  // namespace

std::vector<std::wstring> MTextLayout::paragraphs(const std::wstring& s)
{
    std::vector<std::wstring> out;
    std::wstring current;
    for (size_t i = 0; i < s.size(); ++i) {
        const wchar_t c = s[i];
        if (c == L'{' || c == L'}' || c == L'\r')
            continue;
        if (c == L'\n') {
            out.push_back(current);
            current.clear();
            continue;
        }
        if (c != L'\\' || i + 1 >= s.size()) {
            current += c;
            continue;
        }
        const wchar_t code = s[++i];
        switch (code) {
        case L'P':
        case L'N':
            out.push_back(current);
            current.clear();
            break;
        case L'\\':
        case L'{':
        case L'}':
            current += code;
            break;
        case L'~':
            current += kNoBreakSpace;
            break;
        case L'L': case L'l': case L'O': case L'o': case L'K': case L'k':
            break;
        case L'U':
            if (i + 5 < s.size() && s[i + 1] == L'+' && isHexDigit(s[i + 2]) && isHexDigit(s[i + 3]) &&
                isHexDigit(s[i + 4]) && isHexDigit(s[i + 5])) {
                int value = 0;
                for (size_t k = i + 2; k <= i + 5; ++k)
                    value = value * 16 + hexValue(s[k]);
                current += static_cast<wchar_t>(value);
                i += 5;
            } else {
                current += code;
            }
            break;
        case L'S': {
            const size_t end = skipProperty(s, i + 1);
            std::wstring stack = s.substr(i + 1, end - (i + 1));
            if (!stack.empty() && stack.back() == L';')
                stack.pop_back();
            std::replace(stack.begin(), stack.end(), L'^', L'/');
            std::replace(stack.begin(), stack.end(), L'#', L'/');
            current += stack;
            i = end - 1;
            break;
        }
        case L'f': case L'F': case L'H': case L'W': case L'Q': case L'T': case L'A': case L'C': case L'c':
        case L'p':
            i = skipProperty(s, i + 1) - 1;
            break;
        default:
            current += code;
            break;
        }
    }
    out.push_back(current);
    return out;
}

void MTextLayout::boxCorner(int attachment, double boxWidth, double boxHeight, double& left, double& top)
{
    const int index = std::min(std::max(attachment, 1), 9) - 1;
    const int column = index % 3;
    const int row = index / 3;
    left = -column * boxWidth / 2.0;
    top = row * boxHeight / 2.0;
}

MTextLayout::MTextLayout(const std::wstring& contents, double height, double definedWidth, double spacingFactor,
                         int attachment)
{
    if (contents.empty())
        return;
    std::vector<std::wstring> texts;
    for (const std::wstring& paragraph : paragraphs(contents)) {
        if (definedWidth <= 0.0) {
            texts.push_back(paragraph);
            continue;
        }
        std::wstring line;
        bool wrapped = false;
        for (const std::wstring& token : tokens(paragraph)) {
            const bool spaces = isBreakable(token.front());
            if (!line.empty() && !spaces && widthOf(line + token, height) > definedWidth) {
                texts.push_back(trimRight(line));
                line.clear();
                wrapped = true;
            }
            if (line.empty() && spaces && wrapped)
                continue;  // a wrapped line does not start with the spaces it broke at
            line += token;
        }
        texts.push_back(trimRight(line));
    }

    const double pitch = kLinePitch * height * spacingFactor;
    m_actualHeight = height + pitch * (static_cast<double>(texts.size()) - 1.0);
    for (const std::wstring& text : texts) {
        Line line;
        line.text = text;
        line.width = widthOf(text, height);
        m_actualWidth = std::max(m_actualWidth, line.width);
        m_lines.push_back(line);
    }
    m_boxWidth = definedWidth > 0.0 ? definedWidth : m_actualWidth;
    boxCorner(attachment, m_boxWidth, m_actualHeight, m_boxLeft, m_boxTop);
    const int column = (std::min(std::max(attachment, 1), 9) - 1) % 3;
    for (size_t k = 0; k < m_lines.size(); ++k) {
        Line& line = m_lines[k];
        line.x = m_boxLeft + column * (m_boxWidth - line.width) / 2.0;
        line.y = m_boxTop - height - static_cast<double>(k) * pitch;
    }
}

}  // namespace hostents
