// AcCmColorBase: the colour methods and colour index constants of the host's colour
// classes, and the abstract interface that AcCmColor implements. The numbers are the
// host's own: they are the top byte of every stored colour word.
#pragma once

#include "acadstrc.h"
#include "adesk.h"

namespace AcCm {

// How a colour word is to be read; the value is the word's bits 24-31.
enum ColorMethod : Adesk::UInt8 {
    kByLayer = 0xC0,
    kByBlock = 0xC1,
    kByColor = 0xC2,      // a true colour: red, green, blue in bits 16-23, 8-15, 0-7
    kByACI = 0xC3,        // an index colour: the index in bits 0-15
    kByPen = 0xC4,
    kForeground = 0xC5,
    kLayerOff = 0xC6,
    kLayerFrozen = 0xC7,
    kNone = 0xC8,
};

// Colour index values with a meaning of their own.
enum ACIcolorMethod : Adesk::Int16 {
    kACIbyBlock = 0,
    kACIforeground = 7,
    kACIbyLayer = 256,
    kACIRed = 1,
    kACIYellow = 2,
    kACIGreen = 3,
    kACICyan = 4,
    kACIBlue = 5,
    kACIMagenta = 6,
    kACIWhite = 7,
    kACImaximum = 255,
    kACInone = 257,       // a fresh entity's colour before database defaults are applied
    kACIminimum = -255,
};

}  // namespace AcCm

// What every colour with a method, a value and optional colour-book names offers.
class ACHOST_API AcCmColorBase {
public:
    virtual ~AcCmColorBase() = default;

    virtual AcCm::ColorMethod colorMethod() const = 0;
    virtual Acad::ErrorStatus setColorMethod(AcCm::ColorMethod method) = 0;

    virtual bool isByColor() const = 0;
    virtual bool isByLayer() const = 0;
    virtual bool isByBlock() const = 0;
    virtual bool isByACI() const = 0;
    virtual bool isForeground() const = 0;
    virtual bool isNone() const = 0;

    virtual Adesk::UInt32 color() const = 0;                     // the whole colour word
    virtual Acad::ErrorStatus setColor(Adesk::UInt32 rgbm) = 0;

    virtual Acad::ErrorStatus setRGB(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue) = 0;
    virtual Adesk::UInt8 red() const = 0;
    virtual Adesk::UInt8 green() const = 0;
    virtual Adesk::UInt8 blue() const = 0;

    virtual Adesk::UInt16 colorIndex() const = 0;
    virtual Acad::ErrorStatus setColorIndex(Adesk::UInt16 colorIndex) = 0;

    virtual bool setNames(const ACHAR* colorName, const ACHAR* bookName = nullptr) = 0;
    virtual const ACHAR* colorName() const = 0;
    virtual const ACHAR* bookName() const = 0;
    virtual bool hasColorName() const = 0;
    virtual bool hasBookName() const = 0;

protected:
    AcCmColorBase() = default;
    AcCmColorBase(const AcCmColorBase&) = default;
    AcCmColorBase& operator=(const AcCmColorBase&) = default;
};
