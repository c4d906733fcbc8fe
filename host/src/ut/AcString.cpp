// AcString: the host's wide string.
#include "AcString.h"

#include <cwchar>
#include <cwctype>
#include <ostream>

#include "WideFormat.h"
#include "headless/TextCodec.h"

AcString::AcString(const ACHAR* text)
{
    if (text != nullptr)
        m_text = text;
}

AcString::AcString(const ACHAR* text, int count)
{
    if (text != nullptr && count > 0)
        m_text.assign(text, static_cast<std::size_t>(count));
}

AcString::AcString(ACHAR ch) : m_text(1, ch) {}

AcString::AcString(const char* text, Encoding)
{
    if (text != nullptr)
        m_text = headless::fromUtf8(text);
}

AcString& AcString::operator=(const ACHAR* text)
{
    return assign(text);
}

AcString& AcString::assign(const ACHAR* text)
{
    if (text == nullptr)
        m_text.clear();
    else
        m_text = text;
    return *this;
}

std::string AcString::utf8() const
{
    return headless::toUtf8(m_text);
}

bool AcString::isAscii() const
{
    for (wchar_t c : m_text)
        if (static_cast<unsigned long>(c) > 0x7F)
            return false;
    return true;
}

ACHAR AcString::getAt(int index) const
{
    if (index < 0 || index >= length())
        return 0;
    return m_text[static_cast<std::size_t>(index)];
}

AcString& AcString::setEmpty()
{
    m_text.clear();
    return *this;
}

AcString& AcString::format(const ACHAR* fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    formatV(fmt, args);
    va_end(args);
    return *this;
}

AcString& AcString::formatV(const ACHAR* fmt, va_list args)
{
    m_text = hostut::formatWideV(fmt, args);
    return *this;
}

AcString& AcString::appendFormat(const ACHAR* fmt, ...)
{
    va_list args;
    va_start(args, fmt);
    m_text += hostut::formatWideV(fmt, args);
    va_end(args);
    return *this;
}

int AcString::compare(const ACHAR* other) const
{
    const int c = std::wcscmp(m_text.c_str(), other != nullptr ? other : L"");
    return c < 0 ? -1 : (c > 0 ? 1 : 0);
}

int AcString::compareNoCase(const ACHAR* other) const
{
    const wchar_t* a = m_text.c_str();
    const wchar_t* b = other != nullptr ? other : L"";
    for (;; ++a, ++b) {
        const wint_t ca = std::towlower(static_cast<wint_t>(*a));
        const wint_t cb = std::towlower(static_cast<wint_t>(*b));
        if (ca != cb)
            return ca < cb ? -1 : 1;
        if (ca == 0)
            return 0;
    }
}

int AcString::find(ACHAR ch) const
{
    const std::size_t pos = m_text.find(ch);
    return pos == std::wstring::npos ? -1 : static_cast<int>(pos);
}

int AcString::find(const ACHAR* text) const
{
    if (text == nullptr)
        return -1;
    const std::size_t pos = m_text.find(text);
    return pos == std::wstring::npos ? -1 : static_cast<int>(pos);
}

int AcString::findRev(ACHAR ch) const
{
    const std::size_t pos = m_text.rfind(ch);
    return pos == std::wstring::npos ? -1 : static_cast<int>(pos);
}

AcString AcString::substr(int start, int count) const
{
    if (start < 0)
        start = 0;
    if (start >= length())
        return AcString();
    const std::size_t n = count < 0 ? std::wstring::npos : static_cast<std::size_t>(count);
    return AcString(m_text.substr(static_cast<std::size_t>(start), n));
}

AcString AcString::right(int count) const
{
    if (count <= 0)
        return AcString();
    if (count >= length())
        return *this;
    return substr(length() - count);
}

AcString& AcString::makeUpper()
{
    for (wchar_t& c : m_text)
        c = static_cast<wchar_t>(std::towupper(static_cast<wint_t>(c)));
    return *this;
}

AcString& AcString::makeLower()
{
    for (wchar_t& c : m_text)
        c = static_cast<wchar_t>(std::towlower(static_cast<wint_t>(c)));
    return *this;
}

AcString& AcString::trimLeft()
{
    std::size_t i = 0;
    while (i < m_text.size() && std::iswspace(static_cast<wint_t>(m_text[i])))
        ++i;
    m_text.erase(0, i);
    return *this;
}

AcString& AcString::trimRight()
{
    std::size_t n = m_text.size();
    while (n > 0 && std::iswspace(static_cast<wint_t>(m_text[n - 1])))
        --n;
    m_text.resize(n);
    return *this;
}

AcString& AcString::replace(const ACHAR* from, const ACHAR* to)
{
    if (from == nullptr || *from == L'\0')
        return *this;
    const std::wstring needle(from);
    const std::wstring replacement(to != nullptr ? to : L"");
    std::size_t pos = 0;
    while ((pos = m_text.find(needle, pos)) != std::wstring::npos) {
        m_text.replace(pos, needle.size(), replacement);
        pos += replacement.size();
    }
    return *this;
}

int AcString::asDeci() const
{
    return static_cast<int>(std::wcstol(m_text.c_str(), nullptr, 10));
}

double AcString::asDouble() const
{
    return std::wcstod(m_text.c_str(), nullptr);
}

std::ostream& operator<<(std::ostream& os, const AcString& s)
{
    return os << s.utf8();
}
