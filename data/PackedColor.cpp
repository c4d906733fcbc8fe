// PackedColor: conversions between index, RGB, host colours and the packed word.
#include "PackedColor.h"

#include <iomanip>
#include <ostream>

#include "IDataIO.h"
#include "dbcolor.h"

namespace {

// The starting point of every conversion: a true colour black, as the host's entity
// colour starts out.
constexpr Adesk::UInt32 kTrueColorBlack = 0xC2000000u;

AcCmEntityColor FreshEntityColor()
{
    AcCmEntityColor color;
    color.setRGBM(kTrueColorBlack);
    return color;
}

Adesk::UInt32 ViaIndex(int index)
{
    AcCmEntityColor color = FreshEntityColor();
    color.setColorIndex(static_cast<Adesk::Int16>(index));
    return color.getRGBM();
}

bool IsIndex(int value)
{
    return value >= 1 && value <= 256;
}

}  // namespace

PackedColor PackedColor::FromACI(int index)
{
    return IsIndex(index) ? PackedColor(ViaIndex(index)) : PackedColor();
}

PackedColor PackedColor::FromLegacyInt(int value)
{
    return IsIndex(value) ? PackedColor(ViaIndex(value)) : PackedColor(static_cast<Adesk::UInt32>(value));
}

PackedColor PackedColor::FromCadColorInt(int value)
{
    if (value == -1)
        return PackedColor();
    if (static_cast<unsigned>(value) <= 256u)
        return PackedColor(ViaIndex(value));
    return PackedColor(static_cast<Adesk::UInt32>(value));
}

PackedColor PackedColor::FromRGB(Adesk::UInt8 r, Adesk::UInt8 g, Adesk::UInt8 b)
{
    AcCmEntityColor color = FreshEntityColor();
    color.setRGB(r, g, b);
    return PackedColor(color.getRGBM());
}

PackedColor PackedColor::FromAcCmColor(const AcCmColor& color)
{
    return PackedColor(color.entityColor().getRGBM());
}

PackedColor PackedColor::FromAcCmEntityColor(const AcCmEntityColor& color)
{
    return PackedColor(color.getRGBM());
}

AcCmEntityColor PackedColor::ToAcCmEntityColor() const
{
    AcCmEntityColor color = FreshEntityColor();
    if (m_packed != kUnset)
        color.setRGBM(m_packed);
    return color;
}

AcCmColor PackedColor::ToAcCmColor() const
{
    AcCmColor color;
    if (m_packed != kUnset)
        color.setRGBM(m_packed);
    return color;
}

int PackedColor::ToColorIndex() const
{
    if (m_packed == kUnset)
        return 0;
    const AcCmEntityColor color = ToAcCmEntityColor();
    switch (color.colorMethod()) {
    case AcCmEntityColor::kByLayer:
    case AcCmEntityColor::kByBlock:
    case AcCmEntityColor::kByACI:
        return color.colorIndex();
    default:
        return 0;
    }
}

void PackedColor::DataOut(IDataIO* io) const
{
    io->Write(m_packed);
}

void PackedColor::DataIn(IDataIO* io)
{
    Adesk::UInt32 stored = m_packed;
    io->Read(stored);
    m_packed = (stored >= 1 && stored <= 256) ? ViaIndex(static_cast<int>(stored)) : stored;
}

std::ostream& operator<<(std::ostream& os, const PackedColor& color)
{
    const std::ios::fmtflags flags = os.flags();
    os << "PackedColor(0x" << std::hex << std::uppercase << std::setw(8) << std::setfill('0') << color.GetPacked()
       << ")";
    os.flags(flags);
    return os;
}
