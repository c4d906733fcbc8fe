// DeepCloneReactor: the group repair after a copy.
#include "DeepCloneReactor.h"

#include <vector>

#include "acdocman.h"
#include "acedads.h"
#include "dbidmap.h"
#include "dbmain.h"
#include "panel/AecPanel.h"
#include "rxregsvc.h"

namespace {

DeepCloneReactor s_cloneReactor;
bool s_installed = false;

// Copy, explode, insert and insert-copy make new panels of a layout; a block, a wblock or
// an xref bind carries its records over unchanged.
bool RepairsGroups(AcDb::DeepCloneType context)
{
    const int value = static_cast<int>(context);
    return value >= 0 && value < 11 && ((1091 >> value) & 1) != 0;
}

AcString HandleOf(const AcDbObjectId& id)
{
    ACHAR buffer[32] = {};
    id.handle().getIntoAsciiBuffer(buffer, 32);
    return AcString(buffer);
}

AcRxEvent* EventObject()
{
    return AcRxEvent::cast(acrxSysRegistry()->at(ACRX_EVENT_OBJ));
}

}  // namespace

bool DeepCloneReactor::RepairMerge(DbxPanel::PanelMergeInfo& merge, const AcString& ownHandle,
                                   const Translate& translate)
{
    std::vector<AcString> copies;
    for (const AcString& member : merge.GetRelatedPanelHandles()) {
        const AcString copy = translate(member);
        if (copy.isEmpty()) {
            merge.SetDirection(0);
            merge.SetHandle(ownHandle);
            merge.SetSequenceNumber(1);
            merge.SetRelatedPanelHandles({});
            return true;
        }
        copies.push_back(copy);
    }
    merge.SetRelatedPanelHandles(copies);
    merge.SetHandle(ownHandle);
    return false;
}

bool DeepCloneReactor::RepairCorner(DbxPanel::PanelShapeInfo& shape, const AcString& ownHandle,
                                    const Translate& translate)
{
    std::vector<AcString> copies;
    bool complete = true;
    for (const AcString& member : shape.GetRelatedPanelHandles()) {
        const AcString copy = translate(member);
        if (copy.isEmpty())
            complete = false;
        else
            copies.push_back(copy);
    }
    bool broken = false;
    const int kind = shape.GetShapeType();
    if ((kind == 1 || kind == 2) && !complete) {
        shape.SetShapeType(0);
        shape.SetCornerPanelAngle(90);
        shape.SetZiMuKouType(1);
        shape.SetRelatedPanelHandles({});
        broken = true;
    } else {
        shape.SetRelatedPanelHandles(copies);
    }
    shape.SetHandle(ownHandle);
    return broken;
}

void DeepCloneReactor::endDeepClone(AcDbIdMapping& idMap)
{
    if (!RepairsGroups(idMap.deepCloneContext()))
        return;
    AcDbDatabase* source = nullptr;
    idMap.origDb(source);
    // The source member of a handle, then its copy in this mapping.
    const Translate translate = [&](const AcString& handle) {
        AcDbObjectId member;
        if (source == nullptr || source->getAcDbObjectId(member, false, AcDbHandle(handle.kwszPtr())) != Acad::eOk)
            return AcString();
        AcDbIdPair pair(member, AcDbObjectId::kNull, false);
        if (!idMap.compute(pair) || !pair.isCloned() || pair.value().isNull())
            return AcString();
        return HandleOf(pair.value());
    };

    std::vector<AcDbObjectId> clones;
    AcDbIdMappingIter it(idMap);
    for (it.start(); !it.done(); it.next()) {
        AcDbIdPair pair;
        if (!it.getMap(pair) || !pair.isCloned() || pair.value().isNull())
            continue;
        AecPanel* panel = nullptr;
        if (acdbOpenObject(panel, pair.value(), AcDb::kForRead) != Acad::eOk)
            continue;
        clones.push_back(pair.value());
        panel->close();
    }

    bool broken = false;
    for (const AcDbObjectId& id : clones) {
        AecPanel* panel = nullptr;
        if (acdbOpenObject(panel, id, AcDb::kForWrite) != Acad::eOk)
            continue;
        const AcString own = HandleOf(id);
        DbxPanel::PanelMergeInfo merge;
        if (panel->GetPanelMergeInfo(merge) && !merge.GetRelatedPanelHandles().empty()) {
            broken = RepairMerge(merge, own, translate) || broken;
            panel->SetPanelMergeInfo(merge);
        }
        DbxPanel::PanelShapeInfo shape;
        if (panel->GetPanelShapeInfo(shape) && !shape.GetRelatedPanelHandles().empty()) {
            broken = RepairCorner(shape, own, translate) || broken;
            panel->SetPanelShapeInfo(shape);
        }
        panel->close();
    }

    AcDbDatabase* destination = nullptr;
    idMap.destDb(destination);
    AcApDocument* active = acDocManager != nullptr ? acDocManager->mdiActiveDocument() : nullptr;
    if (broken && active != nullptr && destination != nullptr && active->database() == destination)
        acedAlert(kBrokenGroupAlert);
}

void DeepCloneReactor::Install()
{
    if (s_installed)
        return;
    if (AcRxEvent* event = EventObject()) {
        event->addReactor(&s_cloneReactor);
        s_installed = true;
    }
}

void DeepCloneReactor::Remove()
{
    if (AcRxEvent* event = EventObject())
        event->removeReactor(&s_cloneReactor);
    s_installed = false;
}

bool DeepCloneReactor::IsInstalled()
{
    return s_installed;
}
