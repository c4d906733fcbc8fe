// AcCmColor: an entity colour with colour-book names. Every colour operation is the
// entity colour's; this class adds the names and the unsigned index of the interface.
#include "AcCmColor.h"

#include <ostream>

AcCmColor::AcCmColor() : m_color(AcCmEntityColor::kByLayer) {}

// Whether changing the colour keeps its names is not documented. A colour-book name
// describes one colour, so a change of value drops both names; setting the same value keeps them.
void AcCmColor::changeValue(const AcCmEntityColor& next)
{
    if (next != m_color) {
        m_colorName.setEmpty();
        m_bookName.setEmpty();
    }
    m_color = next;
}

Acad::ErrorStatus AcCmColor::setColorMethod(AcCm::ColorMethod method)
{
    AcCmEntityColor next = m_color;
    const Acad::ErrorStatus es = next.setColorMethod(method);
    if (es == Acad::eOk)
        changeValue(next);
    return es;
}

Acad::ErrorStatus AcCmColor::setColor(Adesk::UInt32 rgbm)
{
    AcCmEntityColor next = m_color;
    const Acad::ErrorStatus es = next.setColor(rgbm);
    if (es == Acad::eOk)
        changeValue(next);
    return es;
}

Acad::ErrorStatus AcCmColor::setRGB(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue)
{
    changeValue(AcCmEntityColor(red, green, blue));
    return Acad::eOk;
}

// Layer-off colours keep a negated index; the unsigned index is its magnitude. "No colour"
// keeps 257, the number entities report before database defaults are applied. (Neither
// case is documented; real colours answer 0..256.)
Adesk::UInt16 AcCmColor::colorIndex() const
{
    const int index = m_color.colorIndex();
    return static_cast<Adesk::UInt16>(index < 0 ? -index : index);
}

Acad::ErrorStatus AcCmColor::setColorIndex(Adesk::UInt16 colorIndex)
{
    if (colorIndex > AcCm::kACInone)
        return Acad::eInvalidInput;
    AcCmEntityColor next = m_color;
    const Acad::ErrorStatus es = next.setColorIndex(static_cast<Adesk::Int16>(colorIndex));
    if (es == Acad::eOk)
        changeValue(next);
    return es;
}

bool AcCmColor::setNames(const ACHAR* colorName, const ACHAR* bookName)
{
    const AcString color(colorName);
    const AcString book(bookName);
    if (color.isEmpty() && !book.isEmpty())
        return false;
    m_colorName = color;
    m_bookName = book;
    return true;
}

bool AcCmColor::operator==(const AcCmColor& other) const
{
    return m_color == other.m_color && m_colorName == other.m_colorName && m_bookName == other.m_bookName;
}

std::ostream& operator<<(std::ostream& os, const AcCmColor& color)
{
    os << color.entityColor();
    if (color.hasColorName())
        os << " \"" << AcString(color.colorName()) << '"';
    if (color.hasBookName())
        os << " in \"" << AcString(color.bookName()) << '"';
    return os;
}
