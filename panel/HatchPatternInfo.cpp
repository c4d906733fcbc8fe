// HatchPatternInfo: the hatch description's JSON and its two tests.
#include "HatchPatternInfo.h"

#include "PanelInfoJson.h"

namespace DbxPanel {

namespace {

const wchar_t* const kBlockName = L"填充图案信息";

}  // namespace

bool HatchPatternInfo::FromJson(const AcString& json)
{
    JsonText::Document document;
    std::size_t offset = 0;
    if (!JsonText::Parse(json, document, offset) || !document.IsObject())
        return false;
    // Unlike the other blocks the record is not reset first: what the text lacks stays.
    PanelInfoJson::CopyTypedMembers(document, *this);
    return true;
}

AcString HatchPatternInfo::ToJson() const
{
    AcString json;
    AcString errorMessage;
    PanelInfoJson::Write(*this, kBlockName, json, errorMessage);
    return json;
}

// An empty name answering true is intended: such a record describes no pattern to check.
bool HatchPatternInfo::HasData() const
{
    return m_patternName.isEmpty() || m_patternScale > 0.0;
}

bool HatchPatternInfo::IsHatchEnabled() const
{
    return !m_patternName.isEmpty() && m_patternScale > 0.0 && m_fillColor != kNoFill;
}

bool HatchPatternInfo::operator==(const HatchPatternInfo& other) const
{
    return PanelInfoJson::Equal(*this, other);
}

std::ostream& operator<<(std::ostream& os, const HatchPatternInfo& info)
{
    PanelInfoJson::Print(os, info);
    return os;
}

}  // namespace DbxPanel
