// EntityChecks: the per-kind hooks of check.
#include "EntityChecks.h"

#include <rapidjson/document.h>
#include <rapidjson/error/en.h>

#include <cmath>

#include "JsonObjectReader.h"
#include "headless/TextCodec.h"
#include "lines/AecDivisionLine.h"
#include "lines/AecOverlapLine.h"
#include "lines/AecStructuralLine.h"
#include "panel/AecPanel.h"

namespace quarvo {
namespace {

void CheckBlock(const AcString& text, const char* name, std::vector<std::string>& findings)
{
    if (text.isEmpty())
        return;
    const std::string problem = EntityChecks::JsonProblem(text.kwszPtr());
    if (!problem.empty())
        findings.push_back(std::string(name) + " is not valid JSON (" + problem + ")");
}

// The three blocks of the straight layout lines are the layout application's JSON.
template <class Line>
void CheckLayoutLine(const AcDbEntity* entity, std::vector<std::string>& findings)
{
    const Line* line = Line::cast(entity);
    CheckBlock(line->GetNodeBasicJsonStr(), "节点基本信息", findings);
    CheckBlock(line->GetShouBianJsonStr(), "收边信息", findings);
    CheckBlock(line->GetAccessoryJsonStr(), "辅配件信息", findings);
}

// A panel's six blocks, and loops the host polyline would refuse (the panel then skips
// them: they neither draw nor file their outline).
void CheckPanel(const AcDbEntity* entity, std::vector<std::string>& findings)
{
    const AecPanel* panel = AecPanel::cast(entity);
    CheckBlock(panel->GetPanelBasicInfoJsonStr(), "基础信息", findings);
    CheckBlock(panel->GetNumberingAndEncodingInfoJsonStr(), "编号和编码信息", findings);
    CheckBlock(panel->GetHatchPatternInfoJsonStr(), "填充图案信息", findings);
    CheckBlock(panel->GetPanelMergeInfoJsonStr(), "板材合并信息", findings);
    CheckBlock(panel->GetPanelShapeInfoJsonStr(), "板材形状信息", findings);
    CheckBlock(panel->GetPanelAccessoryInfoJsonStr(), "辅配件信息", findings);
    for (int loop = 0; loop < panel->GetLoopCount(); ++loop) {
        AcArray<AcGePoint2d> points;
        AcArray<double> bulges;
        panel->GetLoopPointsWithBulgesAt(loop, points, bulges);
        std::vector<EntityChecks::Vertex> vertices;
        for (int i = 0; i < points.length(); ++i)
            vertices.push_back({points[i].x, points[i].y, bulges[i]});
        const std::string problem = EntityChecks::LoopProblem(vertices, true);
        if (!problem.empty())
            findings.push_back("loop " + std::to_string(loop) + ": " + problem);
    }
}

struct Hook {
    AcRxClass* (*desc)();
    void (*check)(const AcDbEntity*, std::vector<std::string>&);
};

// One row per entity kind with data of its own to check.
const Hook kHooks[] = {
    {&AecDivisionLine::desc, &CheckLayoutLine<AecDivisionLine>},
    {&AecOverlapLine::desc, &CheckLayoutLine<AecOverlapLine>},
    {&AecStructuralLine::desc, &CheckLayoutLine<AecStructuralLine>},
    {&AecPanel::desc, &CheckPanel},
};

}  // namespace

void EntityChecks::Check(const AcDbEntity* entity, std::vector<std::string>& findings)
{
    for (const Hook& hook : kHooks) {
        if (entity->isKindOf(hook.desc()))
            hook.check(entity, findings);
    }
}

std::string EntityChecks::JsonProblem(const std::wstring& text)
{
    const std::string utf8 = headless::toUtf8(text);
    // Iterative parsing: nesting costs heap, not stack, whatever the text holds.
    rapidjson::Document document;
    document.Parse<rapidjson::kParseIterativeFlag>(utf8.c_str(), utf8.size());
    if (document.HasParseError())
        return "at byte " + std::to_string(document.GetErrorOffset()) + ": " +
            rapidjson::GetParseError_En(document.GetParseError());
    if (JsonObjectReader::Depth(document) > kMaxJsonDepth)
        return "nested deeper than " + std::to_string(kMaxJsonDepth) + " levels";
    return std::string();
}

std::string EntityChecks::LoopProblem(const std::vector<Vertex>& loop, bool closed)
{
    // Two vertices close into a circle or a lens when the first bulges.
    const bool lens = closed && loop.size() == 2 && loop[0].bulge != 0.0;
    const std::size_t needed = closed && !lens ? 3 : 2;
    if (loop.size() < needed)
        return "a " + std::string(closed ? "closed" : "open") + " loop needs at least " + std::to_string(needed) +
            " vertices, this one has " + std::to_string(loop.size());
    for (std::size_t i = 0; i < loop.size(); ++i) {
        const Vertex& v = loop[i];
        if (!std::isfinite(v.x) || !std::isfinite(v.y) || !std::isfinite(v.bulge))
            return "vertex " + std::to_string(i) + " is not a finite number";
        if (std::fabs(v.bulge) > kMaxBulge)
            return "vertex " + std::to_string(i) + " has a bulge beyond " + std::to_string(static_cast<int>(kMaxBulge));
        const bool last = i + 1 == loop.size();
        if (last && !closed)
            break;
        const Vertex& next = loop[last ? 0 : i + 1];
        if (std::hypot(next.x - v.x, next.y - v.y) < kVertexTolerance)
            return "vertices " + std::to_string(i) + " and " + std::to_string(last ? 0 : i + 1) + " coincide";
    }
    return std::string();
}

}  // namespace quarvo
