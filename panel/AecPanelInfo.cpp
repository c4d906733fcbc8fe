// AecPanel: the six information blocks, and what the panel derives from them (the laying
// direction, the sloped length, the size reset).
#include <algorithm>
#include <cmath>

#include "AecPanel.h"
#include "AecPanelImp.h"
#include "gegbl.h"

using DbxPanel::TextLabelType;

namespace {

// Reads text into a typed record through its FromJson; the message goes to errorMessage.
template <class Record>
bool ReadBlock(const AcString& text, Record& record, AcString* errorMessage)
{
    AcString message;
    const bool read = record.FromJson(text, message);
    if (!read && errorMessage != nullptr)
        *errorMessage = message;
    return read;
}

// Writes a typed record into text; on failure text keeps what it held.
template <class Record>
bool WriteBlock(const Record& record, AcString& text, AcString* errorMessage)
{
    AcString json;
    AcString message;
    if (!record.ToJson(json, message)) {
        if (errorMessage != nullptr)
            *errorMessage = message;
        return false;
    }
    text = json;
    return true;
}

const wchar_t* TextOf(const wchar_t* json)
{
    return json != nullptr ? json : L"";
}

}  // namespace

bool AecPanel::GetPanelBasicInfo(DbxPanel::PanelBasicInfo& info, AcString* errorMessage) const
{
    assertReadEnabled();
    return ReadBlock(m_imp->basicInfo, info, errorMessage);
}

bool AecPanel::SetPanelBasicInfo(const DbxPanel::PanelBasicInfo& info, AcString* errorMessage)
{
    assertWriteEnabled();
    return WriteBlock(info, m_imp->basicInfo, errorMessage);
}

bool AecPanel::GetNumberingAndEncodingInfo(DbxPanel::NumberingAndEncodingInfo& info, AcString* errorMessage) const
{
    assertReadEnabled();
    return ReadBlock(m_imp->numberingInfo, info, errorMessage);
}

bool AecPanel::SetNumberingAndEncodingInfo(const DbxPanel::NumberingAndEncodingInfo& info, AcString* errorMessage)
{
    assertWriteEnabled();
    return WriteBlock(info, m_imp->numberingInfo, errorMessage);
}

bool AecPanel::GetPanelMergeInfo(DbxPanel::PanelMergeInfo& info, AcString* errorMessage) const
{
    assertReadEnabled();
    return ReadBlock(m_imp->mergeInfo, info, errorMessage);
}

bool AecPanel::SetPanelMergeInfo(const DbxPanel::PanelMergeInfo& info, AcString* errorMessage)
{
    assertWriteEnabled();
    return WriteBlock(info, m_imp->mergeInfo, errorMessage);
}

bool AecPanel::GetPanelShapeInfo(DbxPanel::PanelShapeInfo& info, AcString* errorMessage) const
{
    assertReadEnabled();
    return ReadBlock(m_imp->shapeInfo, info, errorMessage);
}

bool AecPanel::SetPanelShapeInfo(const DbxPanel::PanelShapeInfo& info, AcString* errorMessage)
{
    assertWriteEnabled();
    return WriteBlock(info, m_imp->shapeInfo, errorMessage);
}

bool AecPanel::GetHatchPatternInfo(DbxPanel::HatchPatternInfo& info) const
{
    assertReadEnabled();
    return info.FromJson(m_imp->hatchInfo);
}

void AecPanel::SetHatchPatternInfo(const DbxPanel::HatchPatternInfo& info)
{
    assertWriteEnabled();
    m_imp->hatchInfo = info.ToJson();
    m_imp->Flush(true);
}

const wchar_t* AecPanel::GetPanelBasicInfoJsonStr() const
{
    assertReadEnabled();
    return m_imp->basicInfo.kwszPtr();
}

void AecPanel::SetPanelBasicInfoJsonStr(const wchar_t* json)
{
    assertWriteEnabled();
    m_imp->basicInfo = TextOf(json);
}

const wchar_t* AecPanel::GetNumberingAndEncodingInfoJsonStr() const
{
    assertReadEnabled();
    return m_imp->numberingInfo.kwszPtr();
}

void AecPanel::SetNumberingAndEncodingInfoJsonStr(const wchar_t* json)
{
    assertWriteEnabled();
    m_imp->numberingInfo = TextOf(json);
}

const wchar_t* AecPanel::GetHatchPatternInfoJsonStr() const
{
    assertReadEnabled();
    return m_imp->hatchInfo.kwszPtr();
}

void AecPanel::SetHatchPatternInfoJsonStr(const wchar_t* json)
{
    assertWriteEnabled();
    m_imp->hatchInfo = TextOf(json);
}

const wchar_t* AecPanel::GetPanelMergeInfoJsonStr() const
{
    assertReadEnabled();
    return m_imp->mergeInfo.kwszPtr();
}

void AecPanel::SetPanelMergeInfoJsonStr(const wchar_t* json)
{
    assertWriteEnabled();
    m_imp->mergeInfo = TextOf(json);
}

const wchar_t* AecPanel::GetPanelShapeInfoJsonStr() const
{
    assertReadEnabled();
    return m_imp->shapeInfo.kwszPtr();
}

void AecPanel::SetPanelShapeInfoJsonStr(const wchar_t* json)
{
    assertWriteEnabled();
    m_imp->shapeInfo = TextOf(json);
}

const wchar_t* AecPanel::GetPanelAccessoryInfoJsonStr() const
{
    assertReadEnabled();
    return m_imp->accessoryInfo.kwszPtr();
}

void AecPanel::SetPanelAccessoryInfoJsonStr(const wchar_t* json)
{
    assertWriteEnabled();
    m_imp->accessoryInfo = TextOf(json);
}

void AecPanel::SetAllPanelInfoFromJson(const wchar_t* basic, const wchar_t* numbering, const wchar_t* hatch,
                                       const wchar_t* merge, const wchar_t* shape, const wchar_t* accessory)
{
    assertWriteEnabled();
    m_imp->basicInfo = TextOf(basic);
    m_imp->numberingInfo = TextOf(numbering);
    m_imp->hatchInfo = TextOf(hatch);
    m_imp->mergeInfo = TextOf(merge);
    m_imp->shapeInfo = TextOf(shape);
    m_imp->accessoryInfo = TextOf(accessory);
}

// ---- derived from the blocks

AcGeVector2d AecPanel::Imp::LayingDirection() const
{
    DbxPanel::PanelBasicInfo info;
    AcString message;
    if (!info.FromJson(basicInfo, message))
        return AcGeVector2d::kXAxis;
    const AcGeVector2d d = info.GetLengthDirection();
    if (!std::isfinite(d.x) || !std::isfinite(d.y) || d.length() <= AcGeContext::gTol.equalVector())
        return AcGeVector2d::kXAxis;
    return d / d.length();
}

double AecPanel::Imp::SlopedLength() const
{
    DbxPanel::PanelBasicInfo info;
    AcString message;
    if (basicInfo.isEmpty() || !info.FromJson(basicInfo, message))
        return 0.0;
    AcGeVector2d u = info.GetLengthDirection();
    if (!std::isfinite(u.x) || !std::isfinite(u.y) || u.length() <= AcGeContext::gTol.equalVector())
        return 0.0;
    u = u / u.length();
    const std::vector<AcGePoint2d> points = OuterPoints();
    if (points.empty())
        return 0.0;
    double lowest = HUGE_VAL;
    double highest = -HUGE_VAL;
    for (const AcGePoint2d& p : points) {
        const double along = p.x * u.x + p.y * u.y;
        lowest = std::min(lowest, along);
        highest = std::max(highest, along);
    }
    double length = std::fabs(highest - lowest);
    const double slope = info.GetSlopeAngleRadians();
    if (slope > 1e-9 && std::cos(slope) > 1e-9)
        length /= std::cos(slope);
    return length;
}

void AecPanel::Imp::ResetSize(int changed, bool keepNumbering)
{
    AcString message;
    DbxPanel::PanelBasicInfo basic;
    if (!basicInfo.isEmpty() && basic.FromJson(basicInfo, message)) {
        if (changed == 0 || changed == 2)
            basic.SetGuiBingLength(-1);
        if (changed == 1 || changed == 2)
            basic.SetGuiBingWidth(-1);
        WriteBlock(basic, basicInfo, nullptr);
    }
    DbxPanel::NumberingAndEncodingInfo numbering;
    if (!numberingInfo.isEmpty() && numbering.FromJson(numberingInfo, message)) {
        if (!keepNumbering) {
            numbering.SetNumbered(false);
            numbering.SetFinalDisplayNumber(AcString());
        }
        WriteBlock(numbering, numberingInfo, nullptr);
    }
    RefreshSizeLabels(changed);
    Flush(true);
}

// The size labels show the current size in whole millimetres: the length label the
// length, the width label the width, the size label "length×width".
void AecPanel::Imp::RefreshSizeLabels(int changed)
{
    const DbxPanel::OBBInfo2D box = Box();
    AcString length;
    length.format(L"%.0f", 2.0 * box.halfExtentX);
    AcString width;
    width.format(L"%.0f", 2.0 * box.halfExtentY);
    for (DbxPanel::TextLabel& label : labels) {
        const TextLabelType type = label.GetType();
        if (type == TextLabelType::kLength && changed != 1)
            label.SetString(length);
        else if (type == TextLabelType::kWidth && changed != 0)
            label.SetString(width);
        else if (type == TextLabelType::kSize) {
            AcString size = length;
            size += L"×";
            size += width;
            label.SetString(size);
        }
    }
}
