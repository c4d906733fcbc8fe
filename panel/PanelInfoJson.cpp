// PanelInfoJson: the messages of the information blocks. The basic block's wording is the
// pattern; every other block uses it with its own name, the title of its section in the
// panel's listing ("编号和编码信息", "板材合并信息", "板材形状信息").
#include "PanelInfoJson.h"

namespace DbxPanel {

namespace {

const wchar_t* KindName(bool object)
{
    return object ? L"对象" : L"数组";
}

}  // namespace

AcString PanelInfoJson::EmptyMessage(const wchar_t* blockName)
{
    return AcString().format(L"%s JSON 为空。", blockName);
}

AcString PanelInfoJson::NotAnObjectMessage(const wchar_t* blockName, std::size_t offset)
{
    return AcString().format(L"%s必须是有效 JSON 对象（解析位置 %llu）。", blockName,
                             static_cast<unsigned long long>(offset));
}

AcString PanelInfoJson::RawTypeMessage(const wchar_t* key, RawKind kind)
{
    return AcString().format(L"%s 必须是 JSON %s或 null，不能是字符串或其它类型。", key,
                             KindName(kind == RawKind::kObject));
}

AcString PanelInfoJson::RawInvalidMessage(const wchar_t* key, RawKind kind, std::size_t offset)
{
    return AcString().format(L"%s 必须是有效 JSON %s，不能省略损坏的数据（解析位置 %llu）。", key,
                             KindName(kind == RawKind::kObject), static_cast<unsigned long long>(offset));
}

AcString PanelInfoJson::WriteFailedMessage(const wchar_t* blockName)
{
    return AcString().format(L"%s JSON 写入失败，请检查数值是否含 NaN 或无穷大。", blockName);
}

AcString PanelInfoJson::RawWriteFailedMessage(const wchar_t* key)
{
    return AcString().format(L"%s 数据写入失败。", key);
}

bool PanelInfoJson::IsOfKind(const JsonText::Value& value, RawKind kind)
{
    return kind == RawKind::kObject ? value.IsObject() : value.IsArray();
}

void PanelInfoJson::PrintValue(std::ostream& os, const std::vector<AcString>& value)
{
    os << '[';
    const char* separator = "";
    for (const AcString& text : value) {
        os << separator << '"' << text << '"';
        separator = ", ";
    }
    os << ']';
}

}  // namespace DbxPanel
