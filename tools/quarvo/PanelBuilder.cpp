// A panel from its description: the loops, the labels (one of each type), the six
// information blocks and whether the hatch shows. Merge and corner groups name their
// members by position in "panels"; those become handles once every panel is built.
#include "PanelBuilder.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <memory>
#include <set>

#include "LayoutLabelReader.h"
#include "dbmain.h"
#include "headless/TextCodec.h"
#include "panel/AecPanel.h"

namespace quarvo {
namespace {

// A group block with "relatedPanels": the block without it, and the positions it named.
struct GroupBlock {
    std::shared_ptr<rapidjson::Document> block;
    std::vector<int> members;
    std::string path;
};

std::string HandleText(const AcDbObjectId& id)
{
    ACHAR buffer[32] = {};
    id.handle().getIntoAsciiBuffer(buffer, 32);
    return headless::toUtf8(buffer);
}

// Reads a merge or corner block; a block with "relatedPanels" is kept aside to be
// completed once the panels exist, any other is stored as the information block rule says.
std::wstring ReadGroupBlock(JsonObjectReader& item, const char* key, GroupBlock& group)
{
    const rapidjson::Value* value = item.Any(key);
    if (value == nullptr || !value->IsObject() || !value->HasMember("relatedPanels"))
        return item.InformationBlock(key);
    group.path = item.PathOf(key);
    const rapidjson::Value& related = (*value)["relatedPanels"];
    if (!related.IsArray())
        throw LayoutError(group.path + ".relatedPanels", "must be an array of positions in panels");
    for (rapidjson::SizeType i = 0; i < related.Size(); ++i) {
        if (!related[i].IsInt() || related[i].GetInt() < 0)
            throw LayoutError(group.path + ".relatedPanels[" + std::to_string(i) + "]",
                              "must be a position in panels (0 or more)");
        group.members.push_back(related[i].GetInt());
    }
    group.block = std::make_shared<rapidjson::Document>();
    group.block->CopyFrom(*value, group.block->GetAllocator());
    group.block->RemoveMember("relatedPanels");
    return std::wstring();
}

// The group block with the members' handles and the panel's own, as compact JSON.
std::wstring CompleteGroupBlock(const GroupBlock& group, const AcDbObjectId& self,
                                const std::vector<AcDbObjectId>& panels)
{
    rapidjson::Document& block = *group.block;
    auto& allocator = block.GetAllocator();
    rapidjson::Value handles(rapidjson::kArrayType);
    for (std::size_t i = 0; i < group.members.size(); ++i) {
        const int member = group.members[i];
        if (member >= static_cast<int>(panels.size()))
            throw LayoutError(group.path + ".relatedPanels[" + std::to_string(i) + "]",
                              "no panel " + std::to_string(member) + " in panels");
        if (panels[static_cast<std::size_t>(member)] == self)
            throw LayoutError(group.path + ".relatedPanels[" + std::to_string(i) + "]",
                              "a panel is not its own member");
        handles.PushBack(rapidjson::Value(HandleText(panels[static_cast<std::size_t>(member)]).c_str(), allocator),
                         allocator);
    }
    block.RemoveMember("handle");
    block.RemoveMember("relatedPanelHandles");
    block.AddMember("handle", rapidjson::Value(HandleText(self).c_str(), allocator), allocator);
    block.AddMember("relatedPanelHandles", handles, allocator);
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    block.Accept(writer);
    return headless::fromUtf8(std::string(buffer.GetString(), buffer.GetSize()));
}

}  // namespace

void BuildPanel(JsonObjectReader& item, LayoutContext& context)
{
    auto panel = std::make_unique<AecPanel>();
    const std::vector<std::vector<LayoutVertex>> loops = item.Loops("loops");
    for (std::size_t l = 0; l < loops.size(); ++l) {
        AcArray<AcGePoint2d> points;
        AcArray<double> bulges;
        for (const LayoutVertex& v : loops[l]) {
            points.append(AcGePoint2d(v.x, v.y));
            bulges.append(v.bulge);
        }
        const BoundarySetResult result = panel->TrySetLoopFromPointsWithBulgesAt(static_cast<int>(l), points, bulges);
        if (result != BoundarySetResult::kAccepted)
            throw LayoutError(item.PathOf("loops") + "[" + std::to_string(l) + "]",
                              result == BoundarySetResult::kZeroArea              ? "the loop encloses nothing"
                                  : result == BoundarySetResult::kBulgeOutOfRange ? "a bulge is beyond ±1000"
                                                                                  : "not a loop a panel can have");
    }

    GroupBlock merge;
    GroupBlock shape;
    const std::wstring mergeText = ReadGroupBlock(item, "mergeInfo", merge);
    const std::wstring shapeText = ReadGroupBlock(item, "shapeInfo", shape);
    panel->SetAllPanelInfoFromJson(item.InformationBlock("basicInfo").c_str(),
                                   item.InformationBlock("numberingInfo").c_str(),
                                   item.InformationBlock("hatchInfo").c_str(), mergeText.c_str(), shapeText.c_str(),
                                   item.InformationBlock("accessoryInfo").c_str());
    panel->SetHatchDisplayEnabled(item.Bool("hatchDisplay", true));

    const AcDbObjectId ownLayer = context.LayerId(context.LayerName(item));
    if (const rapidjson::Value* labels = item.Array("labels")) {
        std::set<int> types;
        for (rapidjson::SizeType i = 0; i < labels->Size(); ++i) {
            JsonObjectReader label((*labels)[i], item.PathOf("labels") + "[" + std::to_string(i) + "]");
            const DbxPanel::TextLabel text = ReadTextLabel(label, context, true, ownLayer);
            label.Finish();
            if (!types.insert(static_cast<int>(text.GetType())).second)
                throw LayoutError(label.PathOf("type"),
                                  "a panel has one label of each type, " +
                                      std::to_string(static_cast<int>(text.GetType())) + " is given twice");
            panel->SetTextLabel(text);
        }
    }
    panel->FlushGraphicSubEntities(false);

    const AcDbObjectId id = context.Add(panel.release(), item);
    context.Built("panels").push_back(id);
    if (merge.block == nullptr && shape.block == nullptr)
        return;
    context.Defer([merge, shape, id, &context] {
        const std::vector<AcDbObjectId>& panels = context.Built("panels");
        AecPanel* built = nullptr;
        if (acdbOpenObject(built, id, AcDb::kForWrite) != Acad::eOk)
            throw LayoutError(merge.block != nullptr ? merge.path : shape.path, "the panel cannot be opened");
        try {
            if (merge.block != nullptr)
                built->SetPanelMergeInfoJsonStr(CompleteGroupBlock(merge, id, panels).c_str());
            if (shape.block != nullptr)
                built->SetPanelShapeInfoJsonStr(CompleteGroupBlock(shape, id, panels).c_str());
        } catch (...) {
            built->close();
            throw;
        }
        built->close();
    });
}

}  // namespace quarvo
