// AcCmEntityColor: the colour an entity stores, one 32-bit word (the RGBM word).
// Bits 24-31 hold the colour method; a true colour keeps red, green and blue in bits
// 16-23, 8-15 and 0-7; the index methods keep the index as a signed 16-bit value in bits 0-15.
#pragma once

#include <iosfwd>

#include "AcCmColorBase.h"

class ACHOST_API AcCmEntityColor {
public:
    using ColorMethod = AcCm::ColorMethod;
    static constexpr ColorMethod kByLayer = AcCm::kByLayer;
    static constexpr ColorMethod kByBlock = AcCm::kByBlock;
    static constexpr ColorMethod kByColor = AcCm::kByColor;
    static constexpr ColorMethod kByACI = AcCm::kByACI;
    static constexpr ColorMethod kByPen = AcCm::kByPen;
    static constexpr ColorMethod kForeground = AcCm::kForeground;
    static constexpr ColorMethod kLayerOff = AcCm::kLayerOff;
    static constexpr ColorMethod kLayerFrozen = AcCm::kLayerFrozen;
    static constexpr ColorMethod kNone = AcCm::kNone;

    using ACIcolorMethod = AcCm::ACIcolorMethod;
    static constexpr ACIcolorMethod kACIbyBlock = AcCm::kACIbyBlock;
    static constexpr ACIcolorMethod kACIforeground = AcCm::kACIforeground;
    static constexpr ACIcolorMethod kACIbyLayer = AcCm::kACIbyLayer;
    static constexpr ACIcolorMethod kACIRed = AcCm::kACIRed;
    static constexpr ACIcolorMethod kACIYellow = AcCm::kACIYellow;
    static constexpr ACIcolorMethod kACIGreen = AcCm::kACIGreen;
    static constexpr ACIcolorMethod kACICyan = AcCm::kACICyan;
    static constexpr ACIcolorMethod kACIBlue = AcCm::kACIBlue;
    static constexpr ACIcolorMethod kACIMagenta = AcCm::kACIMagenta;
    static constexpr ACIcolorMethod kACIWhite = AcCm::kACIWhite;
    static constexpr ACIcolorMethod kACImaximum = AcCm::kACImaximum;
    static constexpr ACIcolorMethod kACInone = AcCm::kACInone;
    static constexpr ACIcolorMethod kACIminimum = AcCm::kACIminimum;

    // Black as a true colour: the word 0 with method kByColor. (Which colour the host's
    // default constructor gives is not documented; the independent implementations of
    // this interface give the true colour black, and module code sets colours explicitly.)
    AcCmEntityColor();
    // The word 0 with the given method, then the method's fixed index as setColorMethod sets it.
    explicit AcCmEntityColor(ColorMethod method);
    // A true colour.
    AcCmEntityColor(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue);

    // The method byte; any byte a stored word carries is answered unchanged.
    ColorMethod colorMethod() const;
    // eInvalidInput (colour unchanged) for a byte outside kByLayer..kNone.
    Acad::ErrorStatus setColorMethod(ColorMethod method);

    // kByBlock for 0, kByLayer for 256, kNone for 257, kByACI for 1..255 (7 included);
    // anything else answers eInvalidInput and leaves the colour unchanged.
    Acad::ErrorStatus setColorIndex(Adesk::Int16 colorIndex);
    // 0 by block, 256 by layer, 7 foreground, 257 none, the closest index for a true
    // colour, the stored index for the other methods.
    Adesk::Int16 colorIndex() const;

    // The whole word, stored and answered unchanged.
    Adesk::UInt32 color() const { return m_rgbm; }
    Acad::ErrorStatus setColor(Adesk::UInt32 rgbm);
    Adesk::UInt32 getRGBM() const { return m_rgbm; }
    Acad::ErrorStatus setRGBM(Adesk::UInt32 rgbm);

    // Makes the colour a true colour.
    Acad::ErrorStatus setRGB(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue);
    // A true colour's components; an index colour's palette components; for every other
    // method the word's bytes.
    Adesk::UInt8 red() const;
    Adesk::UInt8 green() const;
    Adesk::UInt8 blue() const;

    bool isByColor() const;
    bool isByLayer() const;       // kByLayer, or the index 256 under kByACI
    bool isByBlock() const;       // kByBlock, or the index 0 under kByACI
    bool isByACI() const;         // the method byte only: kByACI with any index
    bool isForeground() const;
    bool isNone() const;          // kNone, or the index 257 under kByACI

    // The palette index closest to a true colour (1..255; equally close colours give the
    // lowest index). Only index -> colour -> index round trips, and only for indices whose
    // colour no lower index repeats.
    static Adesk::UInt8 lookUpACI(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue);
    // The palette colour of an index as 0x00RRGGBB.
    static Adesk::UInt32 lookUpRGB(Adesk::UInt8 colorIndex);

    bool operator==(const AcCmEntityColor& other) const { return m_rgbm == other.m_rgbm; }
    bool operator!=(const AcCmEntityColor& other) const { return m_rgbm != other.m_rgbm; }

private:
    static constexpr Adesk::UInt32 word(ColorMethod method, Adesk::UInt32 low24)
    {
        return (static_cast<Adesk::UInt32>(method) << 24) | (low24 & 0x00FFFFFFu);
    }
    Adesk::Int16 indirect() const;

    Adesk::UInt32 m_rgbm;
};

// Prints the method, its value and the word, e.g. "ACI 7 (0xC3000007)".
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcCmEntityColor& color);
