// AcCmColor: the colour of the user interface and of entity properties: an entity colour
// word plus an optional colour name and colour-book name.
#pragma once

#include <iosfwd>

#include "AcCmColorBase.h"
#include "AcCmEntityColor.h"
#include "AcString.h"

class ACHOST_API AcCmColor : public AcCmColorBase {
public:
    // By layer. (The host documents by layer as the default of its automation colour;
    // its native default is not documented.)
    AcCmColor();
    AcCmColor(const AcCmColor&) = default;
    AcCmColor& operator=(const AcCmColor&) = default;
    ~AcCmColor() override = default;

    AcCm::ColorMethod colorMethod() const override { return m_color.colorMethod(); }
    Acad::ErrorStatus setColorMethod(AcCm::ColorMethod method) override;

    bool isByColor() const override { return m_color.isByColor(); }
    bool isByLayer() const override { return m_color.isByLayer(); }
    bool isByBlock() const override { return m_color.isByBlock(); }
    bool isByACI() const override { return m_color.isByACI(); }
    bool isForeground() const override { return m_color.isForeground(); }
    bool isNone() const override { return m_color.isNone(); }

    Adesk::UInt32 color() const override { return m_color.color(); }
    Acad::ErrorStatus setColor(Adesk::UInt32 rgbm) override;
    Adesk::UInt32 getRGBM() const { return m_color.getRGBM(); }
    Acad::ErrorStatus setRGBM(Adesk::UInt32 rgbm) { return setColor(rgbm); }

    Acad::ErrorStatus setRGB(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue) override;
    Adesk::UInt8 red() const override { return m_color.red(); }
    Adesk::UInt8 green() const override { return m_color.green(); }
    Adesk::UInt8 blue() const override { return m_color.blue(); }

    // 0 by block, 256 by layer, 257 no colour, 1..255 otherwise (a true colour gives its
    // closest index).
    Adesk::UInt16 colorIndex() const override;
    // The mapping of AcCmEntityColor::setColorIndex; eInvalidInput above 257.
    Acad::ErrorStatus setColorIndex(Adesk::UInt16 colorIndex) override;

    // Names the colour after an entry of a colour book. A book name needs a colour name:
    // false (names unchanged) for a book name alone. A null or empty name clears it.
    bool setNames(const ACHAR* colorName, const ACHAR* bookName = nullptr) override;
    const ACHAR* colorName() const override { return m_colorName.kwszPtr(); }
    const ACHAR* bookName() const override { return m_bookName.kwszPtr(); }
    bool hasColorName() const override { return !m_colorName.isEmpty(); }
    bool hasBookName() const override { return !m_bookName.isEmpty(); }

    // The colour as an entity stores it (the names are not part of it).
    AcCmEntityColor entityColor() const { return m_color; }

    // Equal when the words and both names are equal.
    bool operator==(const AcCmColor& other) const;
    bool operator!=(const AcCmColor& other) const { return !(*this == other); }

private:
    void changeValue(const AcCmEntityColor& next);

    AcCmEntityColor m_color;
    AcString m_colorName;
    AcString m_bookName;
};

// Prints the entity colour, then the names when present, e.g. "RGB 1,2,3 (0xC2010203) \"Blue\" in \"Book\"".
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcCmColor& color);
