// CString: the platform framework's wide string, as host code formats and builds text
// with it. Formatting follows the host's wide-format rules (%s takes a wide string).
#pragma once

#include <iosfwd>
#include <string>

#include "afxwin.h"

class ACHOST_API CStringW {
public:
    CStringW() = default;
    CStringW(const wchar_t* text) : m_text(text != nullptr ? text : L"") {}
    CStringW(const wchar_t* text, int length);
    CStringW(wchar_t ch, int repeat = 1);
    CStringW(const std::wstring& text) : m_text(text) {}

    int GetLength() const { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const { return m_text.empty(); }
    void Empty() { m_text.clear(); }
    const wchar_t* GetString() const { return m_text.c_str(); }
    operator const wchar_t*() const { return m_text.c_str(); }
    wchar_t GetAt(int index) const;
    void SetAt(int index, wchar_t ch);
    wchar_t operator[](int index) const { return GetAt(index); }

    // printf-style, host rules; Format replaces the text, AppendFormat adds to it.
    void Format(const wchar_t* format, ...);
    void AppendFormat(const wchar_t* format, ...);

    CStringW& operator=(const wchar_t* text);
    CStringW& operator+=(const CStringW& other);
    CStringW& operator+=(const wchar_t* text);
    CStringW& operator+=(wchar_t ch);

    int Compare(const wchar_t* other) const;
    int CompareNoCase(const wchar_t* other) const;
    // The first position of what, from start on; -1 when absent.
    int Find(const wchar_t* what, int start = 0) const;
    int Find(wchar_t what, int start = 0) const;
    int ReverseFind(wchar_t what) const;
    // Pieces clamp to the string: a count past the end takes what there is.
    CStringW Left(int count) const;
    CStringW Right(int count) const;
    CStringW Mid(int first) const;
    CStringW Mid(int first, int count) const;
    // Replaces every occurrence; answers how many there were.
    int Replace(const wchar_t* oldText, const wchar_t* newText);
    int Replace(wchar_t oldChar, wchar_t newChar);
    CStringW& Trim();
    CStringW& TrimLeft();
    CStringW& TrimRight();
    CStringW& MakeUpper();
    CStringW& MakeLower();

    const std::wstring& str() const { return m_text; }

private:
    std::wstring m_text;
};

using CString = CStringW;

ACHOST_API CStringW operator+(const CStringW& a, const CStringW& b);
ACHOST_API CStringW operator+(const CStringW& a, const wchar_t* b);
ACHOST_API CStringW operator+(const wchar_t* a, const CStringW& b);
ACHOST_API bool operator==(const CStringW& a, const CStringW& b);
ACHOST_API bool operator==(const CStringW& a, const wchar_t* b);
ACHOST_API bool operator!=(const CStringW& a, const CStringW& b);
ACHOST_API bool operator!=(const CStringW& a, const wchar_t* b);
ACHOST_API bool operator<(const CStringW& a, const CStringW& b);
// As UTF-8.
ACHOST_API std::ostream& operator<<(std::ostream& os, const CStringW& text);
