// PanelShapeInfo: reading and writing the shape block.
#include "PanelShapeInfo.h"

#include "PanelInfoJson.h"

namespace DbxPanel {

namespace {

const wchar_t* const kBlockName = L"板材形状信息";

}  // namespace

bool PanelShapeInfo::FromJson(const AcString& json, AcString& errorMessage)
{
    return PanelInfoJson::Read(json, kBlockName, *this, errorMessage);
}

bool PanelShapeInfo::ToJson(AcString& json, AcString& errorMessage) const
{
    return PanelInfoJson::Write(*this, kBlockName, json, errorMessage);
}

bool PanelShapeInfo::operator==(const PanelShapeInfo& other) const
{
    return PanelInfoJson::Equal(*this, other);
}

std::ostream& operator<<(std::ostream& os, const PanelShapeInfo& info)
{
    PanelInfoJson::Print(os, info);
    return os;
}

}  // namespace DbxPanel
