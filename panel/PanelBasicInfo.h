// PanelBasicInfo: the panel's basic information block (product, profile, sizes, colours,
// laying direction, slope, anchors, axes, merge-group size and identity) as a typed record,
// read from and written to the block's JSON text.
#pragma once

#include <iosfwd>

#include "AcString.h"
#include "gevec2d.h"

namespace DbxPanel {

class PanelBasicInfo {
public:
    // Every field at its default: texts empty, numbers 0, flags false, vectors zero.
    PanelBasicInfo() = default;

    // On success replaces this record with the text's (missing or mistyped members take
    // their defaults); on failure leaves it untouched and says why in errorMessage.
    bool FromJson(const AcString& json, AcString& errorMessage);
    // One object with every key in order; on failure (a NaN or infinite number, a raw
    // member that is not valid JSON of its kind) json is untouched and errorMessage says why.
    bool ToJson(AcString& json, AcString& errorMessage) const;

    const AcString& GetProductSeries() const { return m_productSeries; }
    void SetProductSeries(const AcString& value) { m_productSeries = value; }
    const AcString& GetPanelName() const { return m_panelName; }
    void SetPanelName(const AcString& value) { m_panelName = value; }
    // The profile type, listed as 板型.
    const AcString& GetBanLeiXing() const { return m_banLeiXing; }
    void SetBanLeiXing(const AcString& value) { m_banLeiXing = value; }
    int GetRoofPanelHand() const { return m_roofPanelHand; }
    void SetRoofPanelHand(int value) { m_roofPanelHand = value; }
    int GetRoofPanelXingShi() const { return m_roofPanelXingShi; }
    void SetRoofPanelXingShi(int value) { m_roofPanelXingShi = value; }
    // Sheet thickness, mm.
    double GetThickness() const { return m_thickness; }
    void SetThickness(double value) { m_thickness = value; }
    // Standard (cover) width, mm.
    double GetStandardWidth() const { return m_standardWidth; }
    void SetStandardWidth(double value) { m_standardWidth = value; }
    const AcString& GetInnerColor() const { return m_innerColor; }
    void SetInnerColor(const AcString& value) { m_innerColor = value; }
    const AcString& GetOutColor() const { return m_outColor; }
    void SetOutColor(const AcString& value) { m_outColor = value; }
    bool IsPositivePressure() const { return m_isPositivePressure; }
    void SetPositivePressure(bool value) { m_isPositivePressure = value; }
    int GetInstallationPosition() const { return m_installationPosition; }
    void SetInstallationPosition(int value) { m_installationPosition = value; }
    // Arc length and radius of a curved panel.
    double GetArcLength() const { return m_arcLength; }
    void SetArcLength(double value) { m_arcLength = value; }
    double GetRadius() const { return m_radius; }
    void SetRadius(double value) { m_radius = value; }
    const AcString& GetContractNum() const { return m_contractNum; }
    void SetContractNum(const AcString& value) { m_contractNum = value; }
    int GetDirectionType() const { return m_directionType; }
    void SetDirectionType(int value) { m_directionType = value; }
    // The laying direction; zero when the text gave none.
    const AcGeVector2d& GetLengthDirection() const { return m_lengthDirection; }
    void SetLengthDirection(const AcGeVector2d& value) { m_lengthDirection = value; }
    // The reading direction of the labels.
    const AcGeVector2d& GetTextXDirection() const { return m_textXDirection; }
    void SetTextXDirection(const AcGeVector2d& value) { m_textXDirection = value; }
    // The slope exactly as the user typed it, and as an angle in radians.
    const AcString& GetSlopeInputRaw() const { return m_slopeInputRaw; }
    void SetSlopeInputRaw(const AcString& value) { m_slopeInputRaw = value; }
    double GetSlopeAngleRadians() const { return m_slopeAngleRadians; }
    void SetSlopeAngleRadians(double value) { m_slopeAngleRadians = value; }
    // 0 undefined, 1 left, 2 centre, 3 right.
    int GetAnchorModeLength() const { return m_anchorModeLength; }
    void SetAnchorModeLength(int value) { m_anchorModeLength = value; }
    // 0 undefined, 1 bottom, 2 centre, 3 top.
    int GetAnchorModeWidth() const { return m_anchorModeWidth; }
    void SetAnchorModeWidth(int value) { m_anchorModeWidth = value; }
    // The free parameter list as compact JSON text of an array; empty for null.
    const AcString& GetPanelParametersJson() const { return m_panelParameters; }
    void SetPanelParametersJson(const AcString& value) { m_panelParameters = value; }
    const AcString& GetPrimaryAxis() const { return m_primaryAxis; }
    void SetPrimaryAxis(const AcString& value) { m_primaryAxis = value; }
    const AcString& GetSecondaryAxisStart() const { return m_secondaryAxisStart; }
    void SetSecondaryAxisStart(const AcString& value) { m_secondaryAxisStart = value; }
    const AcString& GetSecondaryAxisEnd() const { return m_secondaryAxisEnd; }
    void SetSecondaryAxisEnd(const AcString& value) { m_secondaryAxisEnd = value; }
    const AcString& GetConstructionArea() const { return m_constructionArea; }
    void SetConstructionArea(const AcString& value) { m_constructionArea = value; }
    // The merge-group length and width (归并长度, 归并宽度); -1 after a size change.
    int GetGuiBingLength() const { return m_guiBingLength; }
    void SetGuiBingLength(int value) { m_guiBingLength = value; }
    int GetGuiBingWidth() const { return m_guiBingWidth; }
    void SetGuiBingWidth(int value) { m_guiBingWidth = value; }
    const AcString& GetMaterialCode() const { return m_materialCode; }
    void SetMaterialCode(const AcString& value) { m_materialCode = value; }
    // Identity that a copy in the drawing must not keep.
    const AcString& GetUniqueNum() const { return m_uniqueNum; }
    void SetUniqueNum(const AcString& value) { m_uniqueNum = value; }
    const AcString& GetLayoutConfigId() const { return m_layoutConfigId; }
    void SetLayoutConfigId(const AcString& value) { m_layoutConfigId = value; }
    // The material data as compact JSON text of an object; empty for null.
    const AcString& GetMaterialDataJson() const { return m_materialData; }
    void SetMaterialDataJson(const AcString& value) { m_materialData = value; }

    // Field by field, raw texts included.
    bool operator==(const PanelBasicInfo& other) const;
    bool operator!=(const PanelBasicInfo& other) const { return !(*this == other); }

private:
    friend class PanelInfoJson;

    // The keys in the order the text holds them.
    template <typename Visitor>
    static void VisitFields(Visitor& visit)
    {
        visit.Field(L"productSeries", &PanelBasicInfo::m_productSeries);
        visit.Field(L"panelName", &PanelBasicInfo::m_panelName);
        visit.Field(L"banLeiXing", &PanelBasicInfo::m_banLeiXing);
        visit.Field(L"roofPanelHand", &PanelBasicInfo::m_roofPanelHand);
        visit.Field(L"roofPanelXingShi", &PanelBasicInfo::m_roofPanelXingShi);
        visit.Field(L"thickness", &PanelBasicInfo::m_thickness);
        visit.Field(L"standardWidth", &PanelBasicInfo::m_standardWidth);
        visit.Field(L"innerColor", &PanelBasicInfo::m_innerColor);
        visit.Field(L"outColor", &PanelBasicInfo::m_outColor);
        visit.Field(L"isPositivePressure", &PanelBasicInfo::m_isPositivePressure);
        visit.Field(L"installationPosition", &PanelBasicInfo::m_installationPosition);
        visit.Field(L"arcLength", &PanelBasicInfo::m_arcLength);
        visit.Field(L"radius", &PanelBasicInfo::m_radius);
        visit.Field(L"contractNum", &PanelBasicInfo::m_contractNum);
        visit.Field(L"directionType", &PanelBasicInfo::m_directionType);
        visit.Field(L"lengthDirection", &PanelBasicInfo::m_lengthDirection);
        visit.Field(L"textXDirection", &PanelBasicInfo::m_textXDirection);
        visit.Field(L"slopeInputRaw", &PanelBasicInfo::m_slopeInputRaw);
        visit.Field(L"slopeAngleRadians", &PanelBasicInfo::m_slopeAngleRadians);
        visit.Field(L"anchorModeLength", &PanelBasicInfo::m_anchorModeLength);
        visit.Field(L"anchorModeWidth", &PanelBasicInfo::m_anchorModeWidth);
        visit.RawArray(L"panelParameters", &PanelBasicInfo::m_panelParameters);
        visit.Field(L"primaryAxis", &PanelBasicInfo::m_primaryAxis);
        visit.Field(L"secondaryAxisStart", &PanelBasicInfo::m_secondaryAxisStart);
        visit.Field(L"secondaryAxisEnd", &PanelBasicInfo::m_secondaryAxisEnd);
        visit.Field(L"constructionArea", &PanelBasicInfo::m_constructionArea);
        visit.Field(L"guiBingLength", &PanelBasicInfo::m_guiBingLength);
        visit.Field(L"guiBingWidth", &PanelBasicInfo::m_guiBingWidth);
        visit.Field(L"materialCode", &PanelBasicInfo::m_materialCode);
        visit.Field(L"uniqueNum", &PanelBasicInfo::m_uniqueNum);
        visit.Field(L"layoutConfigId", &PanelBasicInfo::m_layoutConfigId);
        visit.RawObject(L"materialData", &PanelBasicInfo::m_materialData);
    }

    AcString m_productSeries;
    AcString m_panelName;
    AcString m_banLeiXing;
    int m_roofPanelHand = 0;
    int m_roofPanelXingShi = 0;
    double m_thickness = 0.0;
    double m_standardWidth = 0.0;
    AcString m_innerColor;
    AcString m_outColor;
    bool m_isPositivePressure = false;
    int m_installationPosition = 0;
    double m_arcLength = 0.0;
    double m_radius = 0.0;
    AcString m_contractNum;
    int m_directionType = 0;
    AcGeVector2d m_lengthDirection{0.0, 0.0};
    AcGeVector2d m_textXDirection{0.0, 0.0};
    AcString m_slopeInputRaw;
    double m_slopeAngleRadians = 0.0;
    int m_anchorModeLength = 0;
    int m_anchorModeWidth = 0;
    AcString m_panelParameters;
    AcString m_primaryAxis;
    AcString m_secondaryAxisStart;
    AcString m_secondaryAxisEnd;
    AcString m_constructionArea;
    int m_guiBingLength = 0;
    int m_guiBingWidth = 0;
    AcString m_materialCode;
    AcString m_uniqueNum;
    AcString m_layoutConfigId;
    AcString m_materialData;
};

std::ostream& operator<<(std::ostream& os, const PanelBasicInfo& info);

}  // namespace DbxPanel
