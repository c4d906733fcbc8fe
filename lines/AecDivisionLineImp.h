// The division line's implementation object: its fields, its derived polylines (rebuilt
// on demand after every geometric change) and the records of the grips it handed out.
// Private to the class's own source files.
#pragma once

#include <memory>
#include <vector>

#include "AecDivisionLine.h"
#include "LineDisplaySettings.h"
#include "LineGripRecords.h"
#include "LineJsonBlocks.h"
#include "LinePolylines.h"
#include "Qx/GePointUtil.h"
#include "dbpl.h"

// What each grip of the line is for; the value is filed nowhere.
enum class DivisionLineGrip : Adesk::Int32 {
    kStart = 0,
    kEnd = 1,
    kMiddle = 2,
    kIdentifier = 3,
    kMove = 4,
};

struct AecDivisionLine::Imp {
    explicit Imp(AecDivisionLine* o) : owner(o) {}

    AecDivisionLine* owner;
    // Every polyline built since the last invalidation; the caches point into it.
    std::vector<std::unique_ptr<AcDbPolyline>> derivedPolylines;
    AcDbPolyline* centerPolyline = nullptr;
    AcDbPolyline* boundaryPolyline = nullptr;
    LineGripRecords<DivisionLineGrip> grips;

    AcGePoint3d startPoint = AcGePoint3d::kOrigin;
    AcGePoint3d endPoint = AcGePoint3d::kOrigin;
    double bulge = 0.0;
    AcGePoint3d boundaryIdentifierPoint = Qx::GePointUtil::kUninitializedPoint;
    double indentLeft = 10.0;
    double indentRight = 20.0;
    bool spareFlag = true;
    LineDisplaySettings display;
    DrawOptions drawOptions = static_cast<DrawOptions>(kDrawCenterLine | kDrawBoundary);
    LineJsonBlocks json;

    AcGeVector3d Direction() const { return endPoint - startPoint; }
    bool HasIdentifierPoint() const { return !Qx::GePointUtil::IsUninitialized(boundaryIdentifierPoint); }
    // The identifier point, or where the line would put it while it has none.
    AcGePoint3d EffectiveIdentifierPoint() const;
    AcGePoint3d ChordMidpoint() const;

    // After every geometric change: Z to 0, a first identifier point, stale polylines dropped.
    void Refresh();
    void Invalidate();
    // Builds the centre and then the boundary polyline when the caches are empty.
    void EnsurePolylines();
    AcDbPolyline* BuildCenterPolyline() const;
    AcDbPolyline* BuildBoundaryPolyline() const;

    // The polylines the draw options show: the centre line, then a boundary with corners.
    LinePolylines ShownPolylines();
};
