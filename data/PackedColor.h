// PackedColor: a colour kept exactly as the host's 32-bit RGBM word, so that one integer
// can live in data records, be filed and be compared cheaply. 0 means not set.
#pragma once

#include <iosfwd>

#include "adesk.h"

class AcCmColor;
class AcCmEntityColor;
class IDataIO;

class PackedColor {
public:
    static constexpr Adesk::UInt32 kUnset = 0;

    PackedColor() = default;
    explicit PackedColor(Adesk::UInt32 packed) : m_packed(packed) {}

    // Index 1-256 (256 by layer); anything else is unset.
    static PackedColor FromACI(int index);
    // Index 1-256; anything else is taken as an already packed word (0 stays unset).
    static PackedColor FromLegacyInt(int value);
    // -1 is unset; 0-256 is an index (0 by block); anything else is a packed word.
    static PackedColor FromCadColorInt(int value);
    static PackedColor FromRGB(Adesk::UInt8 r, Adesk::UInt8 g, Adesk::UInt8 b);
    static PackedColor FromAcCmColor(const AcCmColor& color);
    static PackedColor FromAcCmEntityColor(const AcCmEntityColor& color);

    Adesk::UInt32 GetPacked() const { return m_packed; }
    bool IsUnset() const { return m_packed == kUnset; }
    AcCmEntityColor ToAcCmEntityColor() const;
    // An unset colour gives the host's default colour.
    AcCmColor ToAcCmColor() const;
    // The index of an index, by-layer (256) or by-block (0) colour; 0 for true colours
    // and for unset.
    int ToColorIndex() const;

    // A packed word; older data stored plain indices 1-256, which are converted on reading.
    void DataOut(IDataIO* io) const;
    void DataIn(IDataIO* io);

    bool operator==(const PackedColor& other) const { return m_packed == other.m_packed; }
    bool operator!=(const PackedColor& other) const { return m_packed != other.m_packed; }

private:
    Adesk::UInt32 m_packed = kUnset;
};

std::ostream& operator<<(std::ostream& os, const PackedColor& color);
