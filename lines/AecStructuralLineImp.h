// The structural line's implementation object: its fields, its derived polylines (each
// built when first asked for and all dropped on every change) and the records of the
// grips it handed out. Private to the class's own source files.
#pragma once

#include <memory>
#include <vector>

#include "AecStructuralLine.h"
#include "LineDisplaySettings.h"
#include "LineJsonBlocks.h"
#include "LinePolylines.h"
#include "StraightLineGrips.h"
#include "dbpl.h"

struct AecStructuralLine::Imp {
    explicit Imp(AecStructuralLine* o) : owner(o) {}

    AecStructuralLine* owner;
    // Every polyline built since the last change; the caches point into it.
    std::vector<std::unique_ptr<AcDbPolyline>> derivedPolylines;
    AcDbPolyline* centerPolyline = nullptr;
    AcDbPolyline* memberBoundary = nullptr;
    AcDbPolyline* indentLineLeft = nullptr;
    AcDbPolyline* indentLineRight = nullptr;
    StraightLineGrips grips;

    AcGePoint3d startPoint = AcGePoint3d::kOrigin;
    AcGePoint3d endPoint = AcGePoint3d::kOrigin;
    double memberWidthLeft = 75.0;
    double memberWidthRight = 75.0;
    double indentLeft = 50.0;
    double indentRight = 50.0;
    StructuralMemberType memberType = kStructuralColumn;
    LineDisplaySettings display;
    StructuralDrawOptions drawOptions =
        static_cast<StructuralDrawOptions>(kStructuralDrawCenterLine | kStructuralDrawMemberBoundary);
    LineJsonBlocks json;

    bool IsShown(StructuralDrawOptions option) const { return (drawOptions & option) == option; }
    std::vector<AcGePoint3d> MemberCorners() const;
    std::vector<AcGePoint3d> IndentCorners() const;

    // After every change: Z to 0, every derived polyline dropped, the host told.
    void Changed();
    void Invalidate();
    // The caches, each built when first asked for.
    AcDbPolyline* CenterPolyline();
    AcDbPolyline* MemberBoundary();
    AcDbPolyline* IndentLineLeft();
    AcDbPolyline* IndentLineRight();

    AcDbPolyline* BuildCenterPolyline() const;
    AcDbPolyline* BuildMemberBoundary() const;
    AcDbPolyline* BuildIndentLineLeft() const;
    AcDbPolyline* BuildIndentLineRight() const;

    // The polylines the draw options show: the member outline, the indent lines, the
    // centre line.
    LinePolylines ShownPolylines();

private:
    AcDbPolyline* Cached(AcDbPolyline*& cache, AcDbPolyline* (Imp::*build)() const);
};
