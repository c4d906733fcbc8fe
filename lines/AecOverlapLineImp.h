// The overlap line's implementation object: its fields, its derived polylines (rebuilt at
// once after every change) and the records of the grips it handed out. Private to the
// class's own source files.
#pragma once

#include <memory>
#include <vector>

#include "AecOverlapLine.h"
#include "LineDisplaySettings.h"
#include "LineJsonBlocks.h"
#include "LinePolylines.h"
#include "StraightLineGrips.h"
#include "dbpl.h"

struct AecOverlapLine::Imp {
    explicit Imp(AecOverlapLine* o) : owner(o) {}

    AecOverlapLine* owner;
    // The centre line and the strip outline of the last rebuild; the caches point into it.
    std::vector<std::unique_ptr<AcDbPolyline>> derivedPolylines;
    AcDbPolyline* centerPolyline = nullptr;
    AcDbPolyline* boundaryPolyline = nullptr;
    StraightLineGrips grips;

    AcGePoint3d startPoint = AcGePoint3d::kOrigin;
    AcGePoint3d endPoint = AcGePoint3d::kOrigin;
    OverlapDirection direction = LeftOverRight;
    double overlapLeft = 10.0;
    double overlapRight = 20.0;
    LineDisplaySettings display;
    OverlapDrawOptions drawOptions = static_cast<OverlapDrawOptions>(kOverlapDrawCenterLine | kOverlapDrawBoundary);
    LineJsonBlocks json;

    bool IsShown(OverlapDrawOptions option) const { return (drawOptions & option) == option; }
    // The corners P0..P3 of the strip, none for a line without length.
    std::vector<AcGePoint3d> StripCorners() const;

    // Unlike the division line, every change rebuilds at once: Z to 0, the centre line and
    // then the strip outline built anew. Changed also tells the host the graphics changed.
    void Rebuild();
    void Changed();
    // Builds the polylines when nothing has been built yet (a line just constructed).
    void EnsurePolylines();
    AcDbPolyline* BuildCenterPolyline() const;
    AcDbPolyline* BuildBoundaryPolyline() const;

    // The polylines the draw options show: the centre line, then the strip outline.
    LinePolylines ShownPolylines();
};
