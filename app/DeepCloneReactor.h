// DeepCloneReactor: after a copy, repairs the group links between panels (merge groups and
// corner groups) so that copies name copies, and dissolves a group that was copied only in
// part, with one alert for the whole copy into the active drawing.
#pragma once

#include <functional>

#include "AcString.h"
#include "panel/PanelMergeInfo.h"
#include "panel/PanelShapeInfo.h"
#include "rxevent.h"

class DeepCloneReactor : public AcRxEventReactor {
public:
    void endDeepClone(AcDbIdMapping& idMap) override;

    // A source member's handle to its copy's handle; empty when the member was not copied.
    using Translate = std::function<AcString(const AcString& sourceHandle)>;
    // Each answers whether a group was broken. The merge record: translated whole, or
    // dissolved (direction 0, sequence 1, no members); the corner record: a corner kind
    // (1 or 2) copied in part becomes an ordinary panel (shape 0, angle 90, ziMuKou 1,
    // position kept), any other keeps the members that were copied. Both take ownHandle.
    static bool RepairMerge(DbxPanel::PanelMergeInfo& merge, const AcString& ownHandle, const Translate& translate);
    static bool RepairCorner(DbxPanel::PanelShapeInfo& shape, const AcString& ownHandle, const Translate& translate);

    static constexpr const ACHAR* kBrokenGroupAlert =
        L"检测到合并板或转角板未完整复制,已将本次复制出的相关板材转为普通直板。\n请完整框选同一合并组/转角组后再复制。";

    // Looks "AcRxEvent" up in the host's registry and adds the reactor once.
    static void Install();
    static void Remove();
    static bool IsInstalled();
};
