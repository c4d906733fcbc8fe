// AecPanel's implementation object: the panel's data in filing order, the graphic
// sub-entities built from it, and the routines the panel's concerns share.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "AecPanel.h"
#include "geometry/OBBInfo2D.h"
#include "lines/LineGripRecords.h"

namespace DbxPanel {

struct PanelVertex {
    AcGePoint2d point;
    double bulge = 0.0;
};
using PanelLoop = std::vector<PanelVertex>;

}  // namespace DbxPanel

struct AecPanel::Imp {
    // A grip's application record: the outline vertex it stands on (its hand-out order) or
    // the move grip.
    enum class Grip : Adesk::Int32 { kVertex = 0, kMove = 1 };

    explicit Imp(AecPanel* panel) : owner(panel) {}

    AecPanel* owner;
    std::vector<DbxPanel::PanelLoop> loops;
    std::vector<DbxPanel::TextLabel> labels;
    AcString basicInfo;
    AcString numberingInfo;
    AcString hatchInfo;
    AcString mergeInfo;
    AcString shapeInfo;
    AcString accessoryInfo;
    // One per loop, in loop order; a loop the host polyline refuses has an empty one.
    std::vector<std::shared_ptr<AcDbPolyline>> loopPolylines;
    // Never changed once evaluated, only replaced, so copies of a panel may share it.
    std::shared_ptr<AcDbHatch> hatch;
    bool hatchDisplayEnabled = true;
    bool hatchPresent = false;
    // A digest of what the hatch was last evaluated from (the loops and the hatch
    // information); zero when it was not evaluated here (read from a file). Filling a pattern
    // is the costliest part of a panel, so a flush over unchanged inputs, and a copy of an
    // unchanged panel, keep the evaluated hatch.
    std::uint64_t hatchInputs = 0;

    // A drag in progress: the loops when it started and the sloped length then.
    std::vector<DbxPanel::PanelLoop> dragSnapshot;
    double dragStartLength = 0.0;

    mutable LineGripRecords<Grip> grips;

    // The loop's vertices fit the host polyline: 2 to kMaxLoopVertices of them, finite,
    // bulges within ±kMaxBulge.
    static bool FitsPolyline(const DbxPanel::PanelLoop& loop);
    static constexpr std::size_t kMaxLoopVertices = 100000;
    static constexpr double kMaxBulge = 1000.0;
    static std::shared_ptr<AcDbPolyline> MakePolyline(const DbxPanel::PanelLoop& loop);

    // The laying direction: the basic information's normalised "lengthDirection", the X
    // axis when the block does not parse or the vector has no length.
    AcGeVector2d LayingDirection() const;
    std::vector<AcGePoint2d> OuterPoints() const;
    // The outline's box along the laying direction.
    DbxPanel::OBBInfo2D Box() const;

    void FlushLoopPolylines();
    void FlushHatch();
    std::uint64_t HatchInputsNow() const;
    // Takes the source's evaluated hatch when this panel's inputs are the source's and the
    // source's hatch was evaluated from them.
    void AdoptHatchOf(const Imp& source);
    void PlaceLabels();
    void Flush(bool notify);

    DbxPanel::TextLabel* FindLabel(DbxPanel::TextLabelType type);
    const DbxPanel::TextLabel* FindLabel(DbxPanel::TextLabelType type) const;

    // Moves outline vertices `indices` by the part of offset along the laying direction;
    // eInvalidInput when the panel has no loops or its basic information does not parse.
    Acad::ErrorStatus StretchOuterVertices(const AcDbIntArray& indices, const AcGeVector3d& offset);
    // After a change of size: 0 length, 1 width, 2 both.
    void ResetSize(int changed, bool keepNumbering);
    void RefreshSizeLabels(int changed);
    // The length along the laying direction measured along the slope: 0.0 without usable
    // basic information or outline.
    double SlopedLength() const;
};
