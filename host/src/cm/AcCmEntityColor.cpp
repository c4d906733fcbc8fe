// AcCmEntityColor: the RGBM word, read and written with shifts and masks so that the
// layout is the same on every platform whatever its byte order.
#include "AcCmEntityColor.h"

#include <iomanip>
#include <ostream>

#include "AciPalette.h"

namespace {

constexpr Adesk::UInt32 kLow24 = 0x00FFFFFFu;
constexpr Adesk::UInt32 kLow16 = 0x0000FFFFu;

constexpr bool isKnownMethod(int method)
{
    return method >= AcCm::kByLayer && method <= AcCm::kNone;
}

// The index that a method with a fixed meaning carries in its low bits.
constexpr bool fixedIndexOf(AcCm::ColorMethod method, Adesk::Int16& index)
{
    switch (method) {
    case AcCm::kByLayer: index = AcCm::kACIbyLayer; return true;
    case AcCm::kByBlock: index = AcCm::kACIbyBlock; return true;
    case AcCm::kForeground: index = AcCm::kACIforeground; return true;
    case AcCm::kNone: index = AcCm::kACInone; return true;
    default: return false;
    }
}

constexpr Adesk::UInt32 indexBits(Adesk::Int16 index)
{
    return static_cast<Adesk::UInt32>(static_cast<Adesk::UInt16>(index));
}

}  // namespace

AcCmEntityColor::AcCmEntityColor() : m_rgbm(word(kByColor, 0)) {}

AcCmEntityColor::AcCmEntityColor(ColorMethod method) : m_rgbm(word(kByColor, 0))
{
    if (setColorMethod(method) != Acad::eOk)
        m_rgbm = word(method, 0);
}

AcCmEntityColor::AcCmEntityColor(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue)
    : m_rgbm(word(kByColor, 0))
{
    setRGB(red, green, blue);
}

AcCmEntityColor::ColorMethod AcCmEntityColor::colorMethod() const
{
    return static_cast<ColorMethod>(m_rgbm >> 24);
}

// Whether setColorMethod rewrites the low bits is not documented. Methods with a fixed
// index get that index, so that the word equals what setColorIndex gives for it; the
// other methods keep the low bits, so a true colour survives a round trip through kByACI.
Acad::ErrorStatus AcCmEntityColor::setColorMethod(ColorMethod method)
{
    if (!isKnownMethod(method))
        return Acad::eInvalidInput;
    Adesk::Int16 index = 0;
    if (fixedIndexOf(method, index))
        m_rgbm = word(method, indexBits(index));
    else
        m_rgbm = word(method, m_rgbm & kLow24);
    return Acad::eOk;
}

// The mapping of 7 and 257, and the refusal of other values, are not documented: 7 is
// the ordinary white index colour (not the foreground method) and 257 is the "no colour".
Acad::ErrorStatus AcCmEntityColor::setColorIndex(Adesk::Int16 colorIndex)
{
    ColorMethod method = kByACI;
    if (colorIndex == kACIbyBlock)
        method = kByBlock;
    else if (colorIndex == kACIbyLayer)
        method = kByLayer;
    else if (colorIndex == kACInone)
        method = kNone;
    else if (colorIndex < 1 || colorIndex > kACImaximum)
        return Acad::eInvalidInput;
    m_rgbm = word(method, indexBits(colorIndex));
    return Acad::eOk;
}

Adesk::Int16 AcCmEntityColor::colorIndex() const
{
    const ColorMethod method = colorMethod();
    Adesk::Int16 index = 0;
    if (fixedIndexOf(method, index))
        return index;
    if (method == kByColor)
        return lookUpACI(red(), green(), blue());
    return indirect();
}

Adesk::Int16 AcCmEntityColor::indirect() const
{
    return static_cast<Adesk::Int16>(static_cast<Adesk::UInt16>(m_rgbm & kLow16));
}

Acad::ErrorStatus AcCmEntityColor::setColor(Adesk::UInt32 rgbm)
{
    m_rgbm = rgbm;
    return Acad::eOk;
}

Acad::ErrorStatus AcCmEntityColor::setRGBM(Adesk::UInt32 rgbm)
{
    return setColor(rgbm);
}

Acad::ErrorStatus AcCmEntityColor::setRGB(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue)
{
    m_rgbm = word(kByColor, (static_cast<Adesk::UInt32>(red) << 16) | (static_cast<Adesk::UInt32>(green) << 8) | blue);
    return Acad::eOk;
}

// What red/green/blue answer for methods without a colour of their own is not documented:
// an index colour answers its palette colour (what it is drawn with), and every other
// method the bytes of its word.
namespace {

Adesk::UInt32 shownRgb(const AcCmEntityColor& color)
{
    const Adesk::Int16 index = static_cast<Adesk::Int16>(color.getRGBM() & kLow16);
    if (color.colorMethod() == AcCm::kByACI && index >= 1 && index <= AcCm::kACImaximum)
        return AcCmEntityColor::lookUpRGB(static_cast<Adesk::UInt8>(index));
    if (color.colorMethod() == AcCm::kForeground)
        return AcCmEntityColor::lookUpRGB(AcCm::kACIforeground);
    return color.getRGBM() & kLow24;
}

}  // namespace

Adesk::UInt8 AcCmEntityColor::red() const
{
    return static_cast<Adesk::UInt8>(shownRgb(*this) >> 16);
}

Adesk::UInt8 AcCmEntityColor::green() const
{
    return static_cast<Adesk::UInt8>(shownRgb(*this) >> 8);
}

Adesk::UInt8 AcCmEntityColor::blue() const
{
    return static_cast<Adesk::UInt8>(shownRgb(*this));
}

bool AcCmEntityColor::isByColor() const
{
    return colorMethod() == kByColor;
}

// Some writers keep the special indices under kByACI; those words mean the same colour.
bool AcCmEntityColor::isByLayer() const
{
    return colorMethod() == kByLayer || (colorMethod() == kByACI && indirect() == kACIbyLayer);
}

bool AcCmEntityColor::isByBlock() const
{
    return colorMethod() == kByBlock || (colorMethod() == kByACI && indirect() == kACIbyBlock);
}

bool AcCmEntityColor::isByACI() const
{
    return colorMethod() == kByACI;
}

bool AcCmEntityColor::isForeground() const
{
    return colorMethod() == kForeground;
}

bool AcCmEntityColor::isNone() const
{
    return colorMethod() == kNone || (colorMethod() == kByACI && indirect() == kACInone);
}

Adesk::UInt8 AcCmEntityColor::lookUpACI(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue)
{
    return headless::AciPalette::closestIndex(red, green, blue);
}

Adesk::UInt32 AcCmEntityColor::lookUpRGB(Adesk::UInt8 colorIndex)
{
    return headless::AciPalette::rgb(colorIndex);
}

std::ostream& operator<<(std::ostream& os, const AcCmEntityColor& color)
{
    const Adesk::UInt32 rgbm = color.getRGBM();
    const int index = static_cast<Adesk::Int16>(rgbm & kLow16);
    switch (static_cast<int>(color.colorMethod())) {
    case AcCm::kByLayer: os << "ByLayer"; break;
    case AcCm::kByBlock: os << "ByBlock"; break;
    case AcCm::kByColor:
        os << "RGB " << int((rgbm >> 16) & 0xFF) << ',' << int((rgbm >> 8) & 0xFF) << ',' << int(rgbm & 0xFF);
        break;
    case AcCm::kByACI: os << "ACI " << index; break;
    case AcCm::kByPen: os << "Pen " << index; break;
    case AcCm::kForeground: os << "Foreground"; break;
    case AcCm::kLayerOff: os << "LayerOff " << index; break;
    case AcCm::kLayerFrozen: os << "LayerFrozen " << index; break;
    case AcCm::kNone: os << "None"; break;
    default: os << "method " << int(rgbm >> 24); break;
    }
    const std::ios_base::fmtflags flags = os.flags();
    const char fill = os.fill();
    os << " (0x" << std::hex << std::uppercase << std::setw(8) << std::setfill('0') << rgbm << ')';
    os.flags(flags);
    os.fill(fill);
    return os;
}
