// CStringW: the framework's wide string over std::wstring, formatting through the host's
// wide-format rules.
#include "atlstr.h"

#include <algorithm>
#include <cstdarg>
#include <cwctype>
#include <ostream>

#include "headless/TextCodec.h"
#include "ut/WideFormat.h"

namespace {

bool isSpace(wchar_t ch)
{
    return std::iswspace(static_cast<wint_t>(ch)) != 0;
}

std::size_t clampIndex(int index, std::size_t size)
{
    return index <= 0 ? 0 : std::min(static_cast<std::size_t>(index), size);
}

}  // namespace

CStringW::CStringW(const wchar_t* text, int length)
{
    if (text != nullptr && length > 0)
        m_text.assign(text, static_cast<std::size_t>(length));
}

CStringW::CStringW(wchar_t ch, int repeat)
{
    if (repeat > 0)
        m_text.assign(static_cast<std::size_t>(repeat), ch);
}

// An index outside the string answers the null character.
wchar_t CStringW::GetAt(int index) const
{
    return index >= 0 && static_cast<std::size_t>(index) < m_text.size() ? m_text[static_cast<std::size_t>(index)]
                                                                         : L'\0';
}

void CStringW::SetAt(int index, wchar_t ch)
{
    if (index >= 0 && static_cast<std::size_t>(index) < m_text.size())
        m_text[static_cast<std::size_t>(index)] = ch;
}

void CStringW::Format(const wchar_t* format, ...)
{
    va_list args;
    va_start(args, format);
    m_text = hostut::formatWideV(format != nullptr ? format : L"", args);
    va_end(args);
}

void CStringW::AppendFormat(const wchar_t* format, ...)
{
    va_list args;
    va_start(args, format);
    m_text += hostut::formatWideV(format != nullptr ? format : L"", args);
    va_end(args);
}

CStringW& CStringW::operator=(const wchar_t* text)
{
    m_text = text != nullptr ? text : L"";
    return *this;
}

CStringW& CStringW::operator+=(const CStringW& other)
{
    m_text += other.m_text;
    return *this;
}

CStringW& CStringW::operator+=(const wchar_t* text)
{
    if (text != nullptr)
        m_text += text;
    return *this;
}

CStringW& CStringW::operator+=(wchar_t ch)
{
    m_text += ch;
    return *this;
}

int CStringW::Compare(const wchar_t* other) const
{
    const int c = m_text.compare(other != nullptr ? other : L"");
    return c < 0 ? -1 : (c > 0 ? 1 : 0);
}

int CStringW::CompareNoCase(const wchar_t* other) const
{
    CStringW a(*this);
    CStringW b(other);
    return a.MakeLower().Compare(b.MakeLower().GetString());
}

int CStringW::Find(const wchar_t* what, int start) const
{
    if (what == nullptr || start < 0 || static_cast<std::size_t>(start) > m_text.size())
        return -1;
    const std::size_t at = m_text.find(what, static_cast<std::size_t>(start));
    return at == std::wstring::npos ? -1 : static_cast<int>(at);
}

int CStringW::Find(wchar_t what, int start) const
{
    const wchar_t text[2] = {what, L'\0'};
    return Find(text, start);
}

int CStringW::ReverseFind(wchar_t what) const
{
    const std::size_t at = m_text.rfind(what);
    return at == std::wstring::npos ? -1 : static_cast<int>(at);
}

CStringW CStringW::Left(int count) const
{
    return CStringW(m_text.substr(0, clampIndex(count, m_text.size())));
}

CStringW CStringW::Right(int count) const
{
    const std::size_t n = clampIndex(count, m_text.size());
    return CStringW(m_text.substr(m_text.size() - n));
}

CStringW CStringW::Mid(int first) const
{
    return CStringW(m_text.substr(clampIndex(first, m_text.size())));
}

CStringW CStringW::Mid(int first, int count) const
{
    const std::size_t from = clampIndex(first, m_text.size());
    return CStringW(m_text.substr(from, clampIndex(count, m_text.size() - from)));
}

int CStringW::Replace(const wchar_t* oldText, const wchar_t* newText)
{
    if (oldText == nullptr || *oldText == L'\0')
        return 0;
    const std::wstring from(oldText);
    const std::wstring to(newText != nullptr ? newText : L"");
    int count = 0;
    for (std::size_t at = m_text.find(from); at != std::wstring::npos; at = m_text.find(from, at + to.size())) {
        m_text.replace(at, from.size(), to);
        ++count;
    }
    return count;
}

int CStringW::Replace(wchar_t oldChar, wchar_t newChar)
{
    int count = 0;
    for (wchar_t& ch : m_text) {
        if (ch == oldChar) {
            ch = newChar;
            ++count;
        }
    }
    return count;
}

CStringW& CStringW::Trim()
{
    return TrimRight().TrimLeft();
}

CStringW& CStringW::TrimLeft()
{
    m_text.erase(m_text.begin(), std::find_if(m_text.begin(), m_text.end(), [](wchar_t c) { return !isSpace(c); }));
    return *this;
}

CStringW& CStringW::TrimRight()
{
    m_text.erase(std::find_if(m_text.rbegin(), m_text.rend(), [](wchar_t c) { return !isSpace(c); }).base(),
                 m_text.end());
    return *this;
}

CStringW& CStringW::MakeUpper()
{
    for (wchar_t& ch : m_text)
        ch = static_cast<wchar_t>(std::towupper(static_cast<wint_t>(ch)));
    return *this;
}

CStringW& CStringW::MakeLower()
{
    for (wchar_t& ch : m_text)
        ch = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(ch)));
    return *this;
}

CStringW operator+(const CStringW& a, const CStringW& b)
{
    return CStringW(a.str() + b.str());
}

CStringW operator+(const CStringW& a, const wchar_t* b)
{
    CStringW out(a);
    out += b;
    return out;
}

CStringW operator+(const wchar_t* a, const CStringW& b)
{
    CStringW out(a);
    out += b;
    return out;
}

bool operator==(const CStringW& a, const CStringW& b) { return a.str() == b.str(); }
bool operator==(const CStringW& a, const wchar_t* b) { return a.Compare(b) == 0; }
bool operator!=(const CStringW& a, const CStringW& b) { return !(a == b); }
bool operator!=(const CStringW& a, const wchar_t* b) { return !(a == b); }
bool operator<(const CStringW& a, const CStringW& b) { return a.str() < b.str(); }

std::ostream& operator<<(std::ostream& os, const CStringW& text)
{
    return os << headless::toUtf8(text.str());
}
