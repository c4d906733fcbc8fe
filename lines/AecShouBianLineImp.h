// The flashing line's implementation object: its fields in filing order, the caches it
// builds from them (centre line, outline), and the routines its files share. Private to
// the class's own source files.
#pragma once

#include <memory>
#include <vector>

#include "AecShouBianLine.h"
#include "dbpl.h"

struct ShouBianVertex {
    AcGePoint2d point;
    double bulge = 0.0;
};

struct AecShouBianLine::Imp {
    explicit Imp(AecShouBianLine* o) : owner(o) { labels.resize(1); }

    AecShouBianLine* owner;
    std::unique_ptr<AcDbPolyline> center;
    std::vector<std::unique_ptr<AcDbPolyline>> boundaries;
    bool standalone = true;
    AcDbObjectId sourceDivisionLine;
    std::vector<ShouBianVertex> vertices;
    bool closed = false;
    AcGePoint3d identifierPoint = AcGePoint3d::kOrigin;
    double indentLeft = 0.0;
    double indentRight = 0.0;
    ShouBianDrawOptions drawOptions = static_cast<ShouBianDrawOptions>(CenterLine | BoundaryLine);
    AcString lineLayer = L"QX-ShouBian-Line";
    AcString textLayer = L"QX-ShouBian-Text";
    int lineColor = 0;
    int boundaryColor = 0;
    int textColor = 0;
    // The label is placed when it is next needed (drawn, filed or read), not on every
    // edit: building a long line vertex by vertex stays linear.
    mutable std::vector<DbxPanel::TextLabel> labels;
    mutable bool labelPlaced = false;
    AcString json;

    // 2 or more vertices: finite, bulges within limits, none on its neighbour (nor, closed,
    // the last on the first); at most kMaxVertices.
    static Acad::ErrorStatus Validate(const std::vector<ShouBianVertex>& list, bool isClosed);
    // Takes the list when it passes (an open line's last bulge set to 0), then Changed.
    Acad::ErrorStatus Replace(std::vector<ShouBianVertex> list, bool isClosed);
    // After every change: caches dropped, the label to be re-placed, the host told.
    void Changed();
    int SegmentCount() const;

    AcDbPolyline* BuildCenter() const;
    AcDbPolyline* Center();
    // The outline pieces into out (new, owned by the caller); eOutOfMemory when an offset
    // asked for yields nothing.
    Acad::ErrorStatus BuildBoundaries(std::vector<std::unique_ptr<AcDbPolyline>>& out) const;
    const std::vector<std::unique_ptr<AcDbPolyline>>& Boundaries();

    void DeriveLabelText();
    void PlaceLabel() const;
};
