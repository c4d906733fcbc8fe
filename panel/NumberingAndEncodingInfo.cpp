// NumberingAndEncodingInfo: reading and writing the numbering and encoding block.
#include "NumberingAndEncodingInfo.h"

#include "PanelInfoJson.h"

namespace DbxPanel {

namespace {

const wchar_t* const kBlockName = L"编号和编码信息";

const AcString kNoPrefix;

}  // namespace

bool NumberingAndEncodingInfo::FromJson(const AcString& json, AcString& errorMessage)
{
    return PanelInfoJson::Read(json, kBlockName, *this, errorMessage);
}

bool NumberingAndEncodingInfo::ToJson(AcString& json, AcString& errorMessage) const
{
    return PanelInfoJson::Write(*this, kBlockName, json, errorMessage);
}

AcString NumberingAndEncodingInfo::*NumberingAndEncodingInfo::CustomPrefixField(int n) const
{
    switch (n) {
    case 1: return &NumberingAndEncodingInfo::m_customPrefix1;
    case 2: return &NumberingAndEncodingInfo::m_customPrefix2;
    case 3: return &NumberingAndEncodingInfo::m_customPrefix3;
    case 4: return &NumberingAndEncodingInfo::m_customPrefix4;
    case 5: return &NumberingAndEncodingInfo::m_customPrefix5;
    default: return nullptr;
    }
}

const AcString& NumberingAndEncodingInfo::GetCustomPrefix(int n) const
{
    AcString NumberingAndEncodingInfo::*field = CustomPrefixField(n);
    return field != nullptr ? this->*field : kNoPrefix;
}

void NumberingAndEncodingInfo::SetCustomPrefix(int n, const AcString& value)
{
    if (AcString NumberingAndEncodingInfo::*field = CustomPrefixField(n))
        this->*field = value;
}

bool NumberingAndEncodingInfo::operator==(const NumberingAndEncodingInfo& other) const
{
    return PanelInfoJson::Equal(*this, other);
}

std::ostream& operator<<(std::ostream& os, const NumberingAndEncodingInfo& info)
{
    PanelInfoJson::Print(os, info);
    return os;
}

}  // namespace DbxPanel
