// AcDbHandle: an object's 64-bit handle, unique and permanent within its database.
// Its text form is upper-case hexadecimal without leading zeros ("0" for the null handle).
#pragma once

#include <iosfwd>

#include "adesk.h"

class ACHOST_API AcDbHandle {
public:
    AcDbHandle() = default;
    AcDbHandle(Adesk::UInt64 value) : m_value(value) {}
    explicit AcDbHandle(const ACHAR* hexText);  // invalid text gives the null handle

    bool isNull() const { return m_value == 0; }
    void setNull() { m_value = 0; }
    Adesk::UInt64 value() const { return m_value; }
    operator Adesk::UInt64() const { return m_value; }

    // Writes the hexadecimal text into buffer, which must hold at least 17 characters.
    void getIntoAsciiBuffer(ACHAR* buffer) const;
    void getIntoAsciiBuffer(ACHAR* buffer, size_t bufferLength) const;

    AcDbHandle& operator++() { ++m_value; return *this; }
    AcDbHandle operator++(int) { AcDbHandle old(*this); ++m_value; return old; }
    AcDbHandle operator+(const AcDbHandle& other) const { return AcDbHandle(m_value + other.m_value); }
    bool operator==(const AcDbHandle& o) const { return m_value == o.m_value; }
    bool operator!=(const AcDbHandle& o) const { return m_value != o.m_value; }
    bool operator<(const AcDbHandle& o) const { return m_value < o.m_value; }
    bool operator>(const AcDbHandle& o) const { return m_value > o.m_value; }

private:
    Adesk::UInt64 m_value = 0;
};

ACHOST_API std::ostream& operator<<(std::ostream& os, const AcDbHandle& handle);
