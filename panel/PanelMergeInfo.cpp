// PanelMergeInfo: reading and writing the merge block.
#include "PanelMergeInfo.h"

#include "PanelInfoJson.h"

namespace DbxPanel {

namespace {

const wchar_t* const kBlockName = L"板材合并信息";

}  // namespace

bool PanelMergeInfo::FromJson(const AcString& json, AcString& errorMessage)
{
    return PanelInfoJson::Read(json, kBlockName, *this, errorMessage);
}

bool PanelMergeInfo::ToJson(AcString& json, AcString& errorMessage) const
{
    return PanelInfoJson::Write(*this, kBlockName, json, errorMessage);
}

bool PanelMergeInfo::operator==(const PanelMergeInfo& other) const
{
    return PanelInfoJson::Equal(*this, other);
}

std::ostream& operator<<(std::ostream& os, const PanelMergeInfo& info)
{
    PanelInfoJson::Print(os, info);
    return os;
}

}  // namespace DbxPanel
