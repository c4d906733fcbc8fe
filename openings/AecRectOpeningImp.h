// The rectangular opening's implementation object: its placement, styles, title, the
// rectangle built from them and the grip records it has handed out. Private to the
// class's own source files.
#pragma once

#include <memory>
#include <vector>

#include "AecRectOpening.h"
#include "OpeningGripData.h"
#include "RectOpeningFrame.h"
#include "dbpl.h"

class AcDbDatabase;
class AcDbEntity;

struct AecRectOpening::Imp {
    explicit Imp(AecRectOpening* owner);

    AecRectOpening* owner;
    RectOpeningFrame frame;
    AcDbObjectId textStyleId;
    AcDbObjectId dimStyleId;
    bool showDim = false;
    TextBaseLabel title;
    std::unique_ptr<AcDbPolyline> rectangle;
    std::vector<std::unique_ptr<AecRectOpeningUnits::OpeningGripData>> grips;

    // The rectangle from the frame: the four corners in order, closed, at the anchor's z.
    void RebuildRectangle();
    // One text height below the bottom edge, reading along the X direction.
    void PlaceTitle();
    // Rebuilds, places the title and writes it into the tree: after every change.
    void Update();

    // The entity's database, else the working one.
    AcDbDatabase* DatabaseToUse() const;
    // The title and the dimensions as new plain entities owned by the caller, in the
    // styles that resolve in db; what the opening draws besides its rectangle.
    std::vector<AcDbEntity*> CreateAnnotations(AcDbDatabase* db) const;

    // The record if it is one this opening handed out, else null.
    const AecRectOpeningUnits::OpeningGripData* FindGrip(const void* appData) const;
};
