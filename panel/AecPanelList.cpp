// AecPanel: the list output, section by section: basic information, geometry, numbering
// and encoding, hatch pattern, merge and shape information.
#include "AecPanel.h"
#include "AecPanelImp.h"
#include "acutads.h"

using DbxPanel::TextLabel;
using DbxPanel::TextLabelType;

namespace {

const wchar_t* YesNo(bool value)
{
    return value ? L"是" : L"否";
}

const wchar_t* Parsed(bool value)
{
    return value ? L"成功" : L"失败";
}

const wchar_t* OrEmpty(const AcString& text, const wchar_t* shownWhenEmpty)
{
    return text.isEmpty() ? shownWhenEmpty : text.kwszPtr();
}

const wchar_t* LengthAnchorName(int mode)
{
    static const wchar_t* const kNames[] = {L"未定义锚点", L"左锚点", L"中心锚点", L"右锚点"};
    return mode >= 0 && mode <= 3 ? kNames[mode] : L"未知";
}

const wchar_t* WidthAnchorName(int mode)
{
    static const wchar_t* const kNames[] = {L"未定义锚点", L"底部锚点", L"中心锚点", L"顶部锚点"};
    return mode >= 0 && mode <= 3 ? kNames[mode] : L"未知";
}

const wchar_t* PatternTypeName(int type)
{
    static const wchar_t* const kNames[] = {L"用户定义", L"预定义", L"自定义"};
    return type >= 0 && type <= 2 ? kNames[type] : L"未知";
}

const wchar_t* LabelKindName(TextLabelType type)
{
    switch (type) {
    case TextLabelType::kNumber: return L"编号";
    case TextLabelType::kBottomText: return L"底部文字";
    default: return L"标签";
    }
}

}  // namespace

void AecPanel::subList() const
{
    assertReadEnabled();
    AcDbEntity::subList();
    const Imp& imp = *m_imp;
    AcString message;
    DbxPanel::PanelBasicInfo basic;
    const bool basicParsed = basic.FromJson(imp.basicInfo, message);
    DbxPanel::NumberingAndEncodingInfo numbering;
    const bool numberingParsed = numbering.FromJson(imp.numberingInfo, message);
    DbxPanel::HatchPatternInfo hatch;
    const bool hatchParsed = hatch.FromJson(imp.hatchInfo);
    DbxPanel::PanelMergeInfo merge;
    const bool mergeParsed = merge.FromJson(imp.mergeInfo, message);
    DbxPanel::PanelShapeInfo shape;
    const bool shapeParsed = shape.FromJson(imp.shapeInfo, message);

    acutPrintf(L"\n======== 板材实体 AecPanel 详细信息 =========");

    acutPrintf(L"\n┌─ 基础信息");
    acutPrintf(L"\n├─ 板型: %s", OrEmpty(basic.GetBanLeiXing(), L"(未设置)"));
    acutPrintf(L"\n├─ 板厚: %.2f mm", basic.GetThickness());
    acutPrintf(L"\n├─ 板宽: %.2f mm", basic.GetStandardWidth());
    acutPrintf(L"\n├─ 长度方向: (%.6f, %.6f)", basic.GetLengthDirection().x, basic.GetLengthDirection().y);
    acutPrintf(L"\n├─ 长度锚点: %s (%d)", LengthAnchorName(basic.GetAnchorModeLength()), basic.GetAnchorModeLength());
    acutPrintf(L"\n├─ 宽度锚点: %s (%d)", WidthAnchorName(basic.GetAnchorModeWidth()), basic.GetAnchorModeWidth());
    acutPrintf(L"\n├─ 数据解析: 基础=%s, 编号=%s, 填充=%s, 合并=%s, 形状=%s", Parsed(basicParsed),
               Parsed(numberingParsed), Parsed(hatchParsed), Parsed(mergeParsed), Parsed(shapeParsed));
    acutPrintf(L"\n└─ 参数Params: %s", OrEmpty(basic.GetPanelParametersJson(), L"(空)"));

    acutPrintf(L"\n\n┌─ 几何信息");
    acutPrintf(L"\n├─ 边界回路数量: %d", static_cast<int>(imp.loops.size()));
    int lines = 0;
    int arcs = 0;
    for (std::size_t i = 0; i < imp.loops.size(); ++i) {
        const DbxPanel::PanelLoop& loop = imp.loops[i];
        acutPrintf(L"\n├─ 回路 %d (%s): %d 个顶点", static_cast<int>(i), i == 0 ? L"外轮廓" : L"内轮廓/孔洞",
                   static_cast<int>(loop.size()));
        for (std::size_t v = 0; v < loop.size(); ++v) {
            (loop[v].bulge != 0.0 ? arcs : lines) += 1;
            if (v >= static_cast<std::size_t>(kListedVertexLimit))
                continue;
            const AcGePoint2d& p = loop[v].point;
            if (loop[v].bulge != 0.0)
                acutPrintf(L"\n%s顶点 %d: [ X: %.4f, Y: %.4f ] | 凸度: %.4f", L"├─   ", static_cast<int>(v), p.x, p.y,
                           loop[v].bulge);
            else
                acutPrintf(L"\n%s顶点 %d: [ X: %.4f, Y: %.4f ]", L"├─   ", static_cast<int>(v), p.x, p.y);
        }
        if (loop.size() > static_cast<std::size_t>(kListedVertexLimit))
            acutPrintf(L"\n├─   ... (还有 %d 个顶点)", static_cast<int>(loop.size()) - kListedVertexLimit);
    }
    acutPrintf(L"\n├─ 形状段统计: %d 直线段, %d 圆弧段", lines, arcs);
    const DbxPanel::OBBInfo2D box = imp.Box();
    acutPrintf(L"\n├─ 几何长度: %.2f mm", imp.loops.empty() ? 0.0 : 2.0 * box.halfExtentX);
    acutPrintf(L"\n├─ 几何宽度: %.2f mm", imp.loops.empty() ? 0.0 : 2.0 * box.halfExtentY);
    acutPrintf(L"\n├─ 文字标签数量: %d", static_cast<int>(imp.labels.size()));
    for (std::size_t i = 0; i < imp.labels.size(); ++i) {
        const TextLabel& label = imp.labels[i];
        acutPrintf(L"\n├─ %s %d: \"%s\"", LabelKindName(label.GetType()), static_cast<int>(i),
                   label.GetString().kwszPtr());
        acutPrintf(L"\n├─   位置: (%.3f, %.3f, %.3f)", label.GetPos().x, label.GetPos().y, label.GetPos().z);
        acutPrintf(L"\n├─   字高: %.2f, 宽度因子: %.2f", label.GetTextHeight(), label.GetWidthFactor());
        acutPrintf(L"\n├─   显示: %s", YesNo(label.IsVisible()));
    }
    acutPrintf(L"\n└─ (几何信息结束)");

    acutPrintf(L"\n\n┌─ 编号和编码信息");
    acutPrintf(L"\n├─ 是否已编号: %s", YesNo(numbering.IsNumbered()));
    acutPrintf(L"\n├─ 最终显示编号: \"%s\"", numbering.GetFinalDisplayNumber().kwszPtr());
    acutPrintf(L"\n├─ 施工区域: \"%s\"", basic.GetConstructionArea().kwszPtr());
    for (int n = 1; n <= DbxPanel::NumberingAndEncodingInfo::kCustomPrefixCount; ++n)
        acutPrintf(L"\n├─ 自定义前缀%d: \"%s\"", n, numbering.GetCustomPrefix(n).kwszPtr());
    acutPrintf(L"\n├─ 主轴线标识: \"%s\"", basic.GetPrimaryAxis().kwszPtr());
    acutPrintf(L"\n├─ 次轴线起始: \"%s\"", basic.GetSecondaryAxisStart().kwszPtr());
    acutPrintf(L"\n├─ 次轴线结束: \"%s\"", basic.GetSecondaryAxisEnd().kwszPtr());
    acutPrintf(L"\n├─ 序列号: %d", numbering.GetSequence());
    acutPrintf(L"\n├─ 形状后缀: \"%s\"", numbering.GetShapeSuffix().kwszPtr());
    acutPrintf(L"\n├─ 图纸编号后缀: \"%s\"", numbering.GetDrawingNumSuffix().kwszPtr());
    acutPrintf(L"\n├─ 合并后缀: \"%s\"", numbering.GetMergeSuffix().kwszPtr());
    acutPrintf(L"\n├─ 自定义后缀: \"%s\"", numbering.GetCustomSuffix().kwszPtr());
    acutPrintf(L"\n├─ 归并长度: %d", basic.GetGuiBingLength());
    acutPrintf(L"\n├─ 归并宽度: %d", basic.GetGuiBingWidth());
    acutPrintf(L"\n├─ 物料编码: \"%s\"", basic.GetMaterialCode().kwszPtr());
    acutPrintf(L"\n├─ 唯一ID: \"%s\"", basic.GetUniqueNum().kwszPtr());
    acutPrintf(L"\n├─ 排版配置ID: \"%s\"", basic.GetLayoutConfigId().kwszPtr());
    acutPrintf(L"\n└─ 材料数据JSON: %s", OrEmpty(basic.GetMaterialDataJson(), L"(空)"));

    acutPrintf(L"\n\n┌─ 填充图案信息");
    acutPrintf(L"\n├─ 启用填充: %s", YesNo(hatch.IsHatchEnabled()));
    acutPrintf(L"\n├─ 图案名称: \"%s\"", hatch.GetPatternName().kwszPtr());
    acutPrintf(L"\n├─ 图案类型: %s (%d)", PatternTypeName(hatch.GetPatternType()), hatch.GetPatternType());
    acutPrintf(L"\n├─ 图案比例: %.6f", hatch.GetPatternScale());
    acutPrintf(L"\n├─ 图案角度: %.2f°", hatch.GetPatternAngle());
    acutPrintf(L"\n├─ 填充颜色: %d", hatch.GetFillColor());
    acutPrintf(L"\n└─ 填充实体存在: %s", YesNo(imp.hatch != nullptr));

    acutPrintf(L"\n\n┌─ 板材合并信息");
    acutPrintf(L"\n├─ 合并方向: %d", merge.GetDirection());
    acutPrintf(L"\n├─ 序号: %d", merge.GetSequenceNumber());
    acutPrintf(L"\n└─ 关联板材数量: %d", static_cast<int>(merge.GetRelatedPanelHandles().size()));

    acutPrintf(L"\n\n┌─ 板材形状信息");
    acutPrintf(L"\n├─ 形状类型: %d", shape.GetShapeType());
    acutPrintf(L"\n├─ 位置类型: %d", shape.GetPosition());

    acutPrintf(L"\n\n============== AecPanel 信息结束 ==============\n");
}
