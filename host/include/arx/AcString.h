// AcString: the host's wide string with value semantics and printf-style formatting.
// Formatting follows the host's wide-format rules: %s takes a wide string, %S a narrow one.
#pragma once

#include <cstdarg>
#include <iosfwd>
#include <string>

#include "adesk.h"

class ACHOST_API AcString {
public:
    enum Encoding { Utf8 };

    AcString() = default;
    AcString(const ACHAR* text);                  // null gives the empty string
    AcString(const ACHAR* text, int count);       // the first count characters
    AcString(ACHAR ch);
    AcString(const char* text, Encoding enc);     // from UTF-8
    explicit AcString(const std::wstring& text) : m_text(text) {}
    AcString(const AcString&) = default;
    AcString(AcString&&) noexcept = default;
    AcString& operator=(const AcString&) = default;
    AcString& operator=(AcString&&) noexcept = default;
    AcString& operator=(const ACHAR* text);
    ~AcString() = default;

    const ACHAR* kwszPtr() const { return m_text.c_str(); }
    const ACHAR* constPtr() const { return m_text.c_str(); }
    const ACHAR* kACharPtr() const { return m_text.c_str(); }
    operator const ACHAR*() const { return m_text.c_str(); }
    const std::wstring& wstr() const { return m_text; }
    std::string utf8() const;

    int length() const { return static_cast<int>(m_text.size()); }
    int tcharLength() const { return length(); }
    bool isEmpty() const { return m_text.empty(); }
    bool isAscii() const;
    ACHAR getAt(int index) const;                 // 0 outside the string
    AcString& setEmpty();
    AcString& assign(const ACHAR* text);

    // Formatting with the host's wide-format rules; returns *this.
    AcString& format(const ACHAR* fmt, ...);
    AcString& formatV(const ACHAR* fmt, va_list args);
    AcString& appendFormat(const ACHAR* fmt, ...);

    int compare(const ACHAR* other) const;        // <0, 0, >0 like wcscmp
    int compare(const AcString& other) const { return compare(other.kwszPtr()); }
    int compareNoCase(const ACHAR* other) const;
    int compareNoCase(const AcString& other) const { return compareNoCase(other.kwszPtr()); }

    int find(ACHAR ch) const;                     // index or -1
    int find(const ACHAR* text) const;
    int findRev(ACHAR ch) const;
    AcString substr(int start, int count = -1) const;  // count -1: to the end
    AcString mid(int start, int count = -1) const { return substr(start, count); }
    AcString left(int count) const { return substr(0, count); }
    AcString right(int count) const;

    AcString& makeUpper();
    AcString& makeLower();
    AcString& trimLeft();
    AcString& trimRight();
    AcString& trim() { return trimLeft().trimRight(); }
    AcString& replace(const ACHAR* from, const ACHAR* to);  // every occurrence

    int asDeci() const;                           // leading decimal integer, 0 if none
    double asDouble() const;                      // leading number, 0.0 if none

    AcString& operator+=(const AcString& other) { m_text += other.m_text; return *this; }
    AcString& operator+=(const ACHAR* other) { if (other) m_text += other; return *this; }
    AcString& operator+=(ACHAR ch) { m_text += ch; return *this; }

    bool operator==(const AcString& o) const { return m_text == o.m_text; }
    bool operator!=(const AcString& o) const { return m_text != o.m_text; }
    bool operator<(const AcString& o) const { return m_text < o.m_text; }
    bool operator>(const AcString& o) const { return m_text > o.m_text; }
    bool operator==(const ACHAR* o) const { return compare(o) == 0; }
    bool operator!=(const ACHAR* o) const { return compare(o) != 0; }

    friend AcString operator+(const AcString& a, const AcString& b) { AcString r(a); r += b; return r; }
    friend AcString operator+(const AcString& a, const ACHAR* b) { AcString r(a); r += b; return r; }
    friend AcString operator+(const ACHAR* a, const AcString& b) { AcString r(a); r += b; return r; }

private:
    std::wstring m_text;
};

ACHOST_API std::ostream& operator<<(std::ostream& os, const AcString& s);  // as UTF-8

namespace std {
template <>
struct hash<AcString> {
    size_t operator()(const AcString& s) const noexcept { return hash<wstring>()(s.wstr()); }
};
}  // namespace std
