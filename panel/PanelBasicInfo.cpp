// PanelBasicInfo: reading and writing the basic information block.
#include "PanelBasicInfo.h"

#include "PanelInfoJson.h"

namespace DbxPanel {

namespace {

const wchar_t* const kBlockName = L"基础信息";

}  // namespace

bool PanelBasicInfo::FromJson(const AcString& json, AcString& errorMessage)
{
    return PanelInfoJson::Read(json, kBlockName, *this, errorMessage);
}

bool PanelBasicInfo::ToJson(AcString& json, AcString& errorMessage) const
{
    return PanelInfoJson::Write(*this, kBlockName, json, errorMessage);
}

bool PanelBasicInfo::operator==(const PanelBasicInfo& other) const
{
    return PanelInfoJson::Equal(*this, other);
}

std::ostream& operator<<(std::ostream& os, const PanelBasicInfo& info)
{
    PanelInfoJson::Print(os, info);
    return os;
}

}  // namespace DbxPanel
