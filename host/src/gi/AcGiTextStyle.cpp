// AcGiTextStyle: text style values and their measurement with the headless font model.
#include "AcGiTextStyle.h"

#include <ostream>

#include "AcDbTextStyleTableRecord.h"
#include "FontModel.h"
#include "acutmem.h"
#include "headless/TextCodec.h"

AcGiTextStyle::AcGiTextStyle(AcDbDatabase*)
{
}

AcGiTextStyle::AcGiTextStyle(const ACHAR* fontName, const ACHAR* bigFontName, double textSize, double xScale,
                             double obliqueAngle, double trackingPercent, Adesk::Boolean isBackward,
                             Adesk::Boolean isUpsideDown, Adesk::Boolean isVertical, Adesk::Boolean isOverlined,
                             Adesk::Boolean isUnderlined, Adesk::Boolean isStrikethrough, const ACHAR* styleName)
    : m_textSize(textSize),
      m_xScale(xScale),
      m_oblique(obliqueAngle),
      m_tracking(trackingPercent),
      m_backward(isBackward),
      m_upsideDown(isUpsideDown),
      m_vertical(isVertical),
      m_underlined(isUnderlined),
      m_overlined(isOverlined),
      m_strikethrough(isStrikethrough),
      m_fileName(fontName),
      m_bigFontFileName(bigFontName),
      m_styleName(styleName)
{
}

int AcGiTextStyle::loadStyleRec(AcDbDatabase*) const
{
    return m_fileName.isEmpty() && m_typeface.isEmpty() ? 0 : 1;
}

void AcGiTextStyle::setTextSize(double size)
{
    m_textSize = size;
}

void AcGiTextStyle::setXScale(double xScale)
{
    m_xScale = xScale;
}

void AcGiTextStyle::setObliquingAngle(double obliquingAngle)
{
    m_oblique = obliquingAngle;
}

void AcGiTextStyle::setTrackingPercent(double trackingPercent)
{
    m_tracking = trackingPercent;
}

void AcGiTextStyle::setBackward(Adesk::Boolean isBackward)
{
    m_backward = isBackward;
}

void AcGiTextStyle::setUpsideDown(Adesk::Boolean isUpsideDown)
{
    m_upsideDown = isUpsideDown;
}

void AcGiTextStyle::setVertical(Adesk::Boolean isVertical)
{
    m_vertical = isVertical;
}

void AcGiTextStyle::setUnderlined(Adesk::Boolean isUnderlined)
{
    m_underlined = isUnderlined;
}

void AcGiTextStyle::setOverlined(Adesk::Boolean isOverlined)
{
    m_overlined = isOverlined;
}

void AcGiTextStyle::setStrikethrough(Adesk::Boolean isStrikethrough)
{
    m_strikethrough = isStrikethrough;
}

void AcGiTextStyle::setFileName(const ACHAR* fontName)
{
    m_fileName = fontName;
}

void AcGiTextStyle::setBigFontFileName(const ACHAR* bigFontFileName)
{
    m_bigFontFileName = bigFontFileName;
}

Acad::ErrorStatus AcGiTextStyle::setStyleName(const ACHAR* styleName)
{
    m_styleName = styleName;
    return Acad::eOk;
}

Acad::ErrorStatus AcGiTextStyle::setFont(const ACHAR* typeface, bool bold, bool italic, int charset,
                                         int pitchAndFamily)
{
    m_typeface = typeface;
    m_bold = bold;
    m_italic = italic;
    m_charset = charset;
    m_pitchAndFamily = pitchAndFamily;
    return Acad::eOk;
}

Acad::ErrorStatus AcGiTextStyle::font(ACHAR*& typeface, bool& bold, bool& italic, int& charset,
                                      int& pitchAndFamily) const
{
    bold = m_bold;
    italic = m_italic;
    charset = m_charset;
    pitchAndFamily = m_pitchAndFamily;
    return acutNewString(m_typeface.kwszPtr(), typeface);
}

AcGePoint2d AcGiTextStyle::extents(const ACHAR* str, Adesk::Boolean penups, int len, Adesk::Boolean raw,
                                   AcGiWorldDraw*) const
{
    std::u32string chars = hostgi::FontModel::displayed(str, len, raw);
    if (!penups) {
        const size_t first = chars.find_first_not_of(U' ');
        chars = first == std::u32string::npos ? std::u32string()
                                              : chars.substr(first, chars.find_last_not_of(U' ') - first + 1);
    }
    const double width = hostgi::FontModel::width(chars, m_textSize, m_xScale, m_tracking);
    return AcGePoint2d(width, chars.empty() ? 0.0 : m_textSize);
}

bool AcGiTextStyle::operator==(const AcGiTextStyle& o) const
{
    return m_textSize == o.m_textSize && m_xScale == o.m_xScale && m_oblique == o.m_oblique &&
           m_tracking == o.m_tracking && m_backward == o.m_backward && m_upsideDown == o.m_upsideDown &&
           m_vertical == o.m_vertical && m_underlined == o.m_underlined && m_overlined == o.m_overlined &&
           m_strikethrough == o.m_strikethrough && m_fileName == o.m_fileName &&
           m_bigFontFileName == o.m_bigFontFileName && m_styleName == o.m_styleName &&
           m_typeface == o.m_typeface && m_bold == o.m_bold && m_italic == o.m_italic &&
           m_charset == o.m_charset && m_pitchAndFamily == o.m_pitchAndFamily;
}

Acad::ErrorStatus fromAcDbTextStyle(AcGiTextStyle& style, const AcDbObjectId& styleId)
{
    AcDbTextStyleTableRecord* record = nullptr;
    if (styleId.isNull() || acdbOpenObject(record, styleId, AcDb::kForRead) != Acad::eOk)
        return Acad::eInvalidInput;
    AcString name;
    AcString fileName;
    AcString bigFont;
    record->getName(name);
    record->fileName(fileName);
    record->bigFontFileName(bigFont);
    style.setStyleName(name.kwszPtr());
    style.setFileName(fileName.kwszPtr());
    style.setBigFontFileName(bigFont.kwszPtr());
    style.setTextSize(record->textSize());
    style.setXScale(record->xScale());
    style.setObliquingAngle(record->obliquingAngle());
    record->close();
    return Acad::eOk;
}

std::ostream& operator<<(std::ostream& os, const AcGiTextStyle& style)
{
    os << "style \"" << headless::toUtf8(style.styleName()) << "\" font \"" << headless::toUtf8(style.fileName())
       << "\" size " << style.textSize() << " xscale " << style.xScale() << " oblique " << style.obliquingAngle()
       << " tracking " << style.trackingPercent();
    if (style.isBackward())
        os << " backward";
    if (style.isUpsideDown())
        os << " upside-down";
    if (style.isVertical())
        os << " vertical";
    return os;
}
