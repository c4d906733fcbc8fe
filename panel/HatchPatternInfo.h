// HatchPatternInfo: how a panel's face is hatched (the host's pattern type and name,
// scale, angle and fill colour), kept by the panel as its hatch pattern JSON block. A
// default record is a disabled hatch.
#pragma once

#include <iosfwd>

#include "AcString.h"

namespace DbxPanel {

class HatchPatternInfo {
public:
    // The host's pattern types.
    static constexpr int kUserDefined = 0;
    static constexpr int kPredefined = 1;
    static constexpr int kCustomDefined = 2;
    // A fill colour of -1 means no fill.
    static constexpr int kNoFill = -1;

    // Predefined type, no name, scale -1 (no valid pattern), angle 0, no fill.
    HatchPatternInfo() = default;

    // Takes every member of the text's object that has its type (integers for
    // "patternType" and "patFillColor", a string for "patternName", numbers for
    // "patScale" and "patternAngle"); the other fields keep their values. False, nothing
    // changed, when the text is not a JSON object.
    bool FromJson(const AcString& json);
    // One object with the five keys in order; the empty text when a number is NaN or
    // infinite (a written record is never empty).
    AcString ToJson() const;

    // True with an empty name; with a name, exactly when the scale is greater than 0.
    bool HasData() const;
    // A name, a scale greater than 0 and a fill colour other than -1.
    bool IsHatchEnabled() const;

    int GetPatternType() const { return m_patternType; }
    void SetPatternType(int value) { m_patternType = value; }
    const AcString& GetPatternName() const { return m_patternName; }
    void SetPatternName(const AcString& value) { m_patternName = value; }
    double GetPatternScale() const { return m_patternScale; }
    void SetPatternScale(double value) { m_patternScale = value; }
    // In degrees, as the panel lists it; the host's hatch takes radians.
    double GetPatternAngle() const { return m_patternAngle; }
    void SetPatternAngle(double value) { m_patternAngle = value; }
    // The colour index of the hatch, or kNoFill.
    int GetFillColor() const { return m_fillColor; }
    void SetFillColor(int value) { m_fillColor = value; }

    bool operator==(const HatchPatternInfo& other) const;
    bool operator!=(const HatchPatternInfo& other) const { return !(*this == other); }

private:
    friend class PanelInfoJson;

    template <typename Visitor>
    static void VisitFields(Visitor& visit)
    {
        visit.Field(L"patternType", &HatchPatternInfo::m_patternType);
        visit.Field(L"patternName", &HatchPatternInfo::m_patternName);
        visit.Field(L"patScale", &HatchPatternInfo::m_patternScale);
        visit.Field(L"patternAngle", &HatchPatternInfo::m_patternAngle);
        visit.Field(L"patFillColor", &HatchPatternInfo::m_fillColor);
    }

    int m_patternType = kPredefined;
    AcString m_patternName;
    double m_patternScale = -1.0;
    double m_patternAngle = 0.0;
    int m_fillColor = kNoFill;
};

std::ostream& operator<<(std::ostream& os, const HatchPatternInfo& info);

}  // namespace DbxPanel
