// AcGiTextStyle: the font and the size, slant and spacing that a text primitive is drawn
// with. The headless host has no font files; it measures text with one fixed font model
// (see extents) and keeps the font names only to pass them on.
#pragma once

#include <iosfwd>

#include "AcString.h"
#include "acadstrc.h"
#include "dbid.h"
#include "gepnt2d.h"

class AcDbDatabase;
class AcGiWorldDraw;

class ACHOST_API AcGiTextStyle {
public:
    // Size 1, x scale 1, no slant, tracking 1 (normal spacing), no font file.
    explicit AcGiTextStyle(AcDbDatabase* db = nullptr);
    AcGiTextStyle(const ACHAR* fontName, const ACHAR* bigFontName, double textSize, double xScale,
                  double obliqueAngle, double trackingPercent, Adesk::Boolean isBackward,
                  Adesk::Boolean isUpsideDown, Adesk::Boolean isVertical, Adesk::Boolean isOverlined,
                  Adesk::Boolean isUnderlined, Adesk::Boolean isStrikethrough = false,
                  const ACHAR* styleName = nullptr);
    AcGiTextStyle(const AcGiTextStyle&) = default;
    AcGiTextStyle& operator=(const AcGiTextStyle&) = default;
    AcGiTextStyle(AcGiTextStyle&&) noexcept = default;
    AcGiTextStyle& operator=(AcGiTextStyle&&) noexcept = default;
    virtual ~AcGiTextStyle() = default;

    // Makes the style usable for drawing. The headless host has no font cache to fill;
    // answers 0 (nothing loaded) when no font file is named, 1 otherwise.
    int loadStyleRec(AcDbDatabase* db = nullptr) const;

    void setTextSize(double size);
    void setXScale(double xScale);
    void setObliquingAngle(double obliquingAngle);  // radians, measured from the vertical
    void setTrackingPercent(double trackingPercent);  // 1.0 is normal spacing
    void setBackward(Adesk::Boolean isBackward);
    void setUpsideDown(Adesk::Boolean isUpsideDown);
    void setVertical(Adesk::Boolean isVertical);
    void setUnderlined(Adesk::Boolean isUnderlined);
    void setOverlined(Adesk::Boolean isOverlined);
    void setStrikethrough(Adesk::Boolean isStrikethrough);
    void setFileName(const ACHAR* fontName);
    void setBigFontFileName(const ACHAR* bigFontFileName);
    Acad::ErrorStatus setStyleName(const ACHAR* styleName);
    // A system font by typeface; the headless host keeps the values for callers to read back.
    Acad::ErrorStatus setFont(const ACHAR* typeface, bool bold, bool italic, int charset, int pitchAndFamily);

    double textSize() const { return m_textSize; }
    double xScale() const { return m_xScale; }
    double obliquingAngle() const { return m_oblique; }
    double trackingPercent() const { return m_tracking; }
    Adesk::Boolean isBackward() const { return m_backward; }
    Adesk::Boolean isUpsideDown() const { return m_upsideDown; }
    Adesk::Boolean isVertical() const { return m_vertical; }
    Adesk::Boolean isUnderlined() const { return m_underlined; }
    Adesk::Boolean isOverlined() const { return m_overlined; }
    Adesk::Boolean isStrikethrough() const { return m_strikethrough; }
    const ACHAR* fileName() const { return m_fileName.kwszPtr(); }
    const ACHAR* bigFontFileName() const { return m_bigFontFileName.kwszPtr(); }
    const ACHAR* styleName() const { return m_styleName.kwszPtr(); }
    // typeface is a new string owned by the caller (free with acutDelString).
    Acad::ErrorStatus font(ACHAR*& typeface, bool& bold, bool& italic, int& charset, int& pitchAndFamily) const;
    const AcString& typeface() const { return m_typeface; }

    // Width and height of the string drawn in this style, in the style's units. The
    // headless host's font model: every full-width (CJK) character advances 1.0 and every
    // other character 0.6 times size times x scale times tracking; the height is the size
    // (the cap height). With penups the pen-up moves count: spaces before and after the
    // first and last visible character widen the box; without, they do not.
    // len -1: up to the terminating null. raw: %% control codes are not interpreted.
    AcGePoint2d extents(const ACHAR* str, Adesk::Boolean penups, int len, Adesk::Boolean raw,
                        AcGiWorldDraw* context = nullptr) const;

    bool operator==(const AcGiTextStyle& other) const;
    bool operator!=(const AcGiTextStyle& other) const { return !(*this == other); }

private:
    double m_textSize = 1.0;
    double m_xScale = 1.0;
    double m_oblique = 0.0;
    double m_tracking = 1.0;
    bool m_backward = false;
    bool m_upsideDown = false;
    bool m_vertical = false;
    bool m_underlined = false;
    bool m_overlined = false;
    bool m_strikethrough = false;
    AcString m_fileName;
    AcString m_bigFontFileName;
    AcString m_styleName;
    AcString m_typeface;
    bool m_bold = false;
    bool m_italic = false;
    int m_charset = 0;
    int m_pitchAndFamily = 0;
};

// Fills the style from a text style table record: its name, font files, size, x scale and
// obliquing angle. eInvalidInput for an id that is not a text style.
ACHOST_API Acad::ErrorStatus fromAcDbTextStyle(AcGiTextStyle& style, const AcDbObjectId& styleId);

// e.g. "style \"Standard\" font \"txt\" size 2.5 xscale 1 oblique 0 tracking 1".
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGiTextStyle& style);
