// The division line's implementation object: its fields, its derived polylines (rebuilt
// on demand after every geometric change) and the records of the grips it handed out.
// Private to the class's own source files.
#pragma once

#include <memory>
#include <vector>

#include "AecDivisionLine.h"
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

// The 32-byte application record that each handed-out grip points to.
struct DivisionLineGripRecord {
    DivisionLineGrip kind;
    // The grip's place in the hand-out (0-4).
    Adesk::Int32 order;
    // Where the grip was when it was handed out.
    AcGePoint3d point;
};
static_assert(sizeof(DivisionLineGripRecord) == 32, "a division line grip record is 32 bytes");

struct AecDivisionLine::Imp {
    explicit Imp(AecDivisionLine* o) : owner(o) {}

    AecDivisionLine* owner;
    // Every polyline built since the last invalidation; the caches point into it.
    std::vector<std::unique_ptr<AcDbPolyline>> derivedPolylines;
    AcDbPolyline* centerPolyline = nullptr;
    AcDbPolyline* boundaryPolyline = nullptr;
    std::vector<std::unique_ptr<DivisionLineGripRecord>> gripRecords;

    AcGePoint3d startPoint = AcGePoint3d::kOrigin;
    AcGePoint3d endPoint = AcGePoint3d::kOrigin;
    double bulge = 0.0;
    AcGePoint3d boundaryIdentifierPoint = Qx::GePointUtil::kUninitializedPoint;
    double indentLeft = 10.0;
    double indentRight = 20.0;
    bool spareFlag = true;
    AcString jieDianTextLayerName;
    AcString jieDianBoundaryLayerName;
    AcString shouBianTextLayerName;
    AcString shouBianLineLayerName;
    int jieDianTextColorIndex = 0;
    int jieDianBoundaryColorIndex = 0;
    int shouBianTextColorIndex = 0;
    int shouBianLineColorIndex = 0;
    DrawOptions drawOptions = static_cast<DrawOptions>(kDrawCenterLine | kDrawBoundary);
    AcString nodeBasicJson;
    AcString shouBianJson;
    AcString accessoryJson;

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

    // Runs query on each polyline the draw options show (centre, then a boundary with
    // corners) and answers the first failure.
    template <typename Query>
    Acad::ErrorStatus QueryShownPolylines(Query query)
    {
        EnsurePolylines();
        if ((drawOptions & kDrawCenterLine) == kDrawCenterLine) {
            const Acad::ErrorStatus es = query(*centerPolyline);
            if (es != Acad::eOk)
                return es;
        }
        if ((drawOptions & kDrawBoundary) == kDrawBoundary && boundaryPolyline->numVerts() > 0)
            return query(*boundaryPolyline);
        return Acad::eOk;
    }

    void FreeGripRecords() { gripRecords.clear(); }
    // The record if it is one this line handed out, else null.
    const DivisionLineGripRecord* FindGripRecord(const void* appData) const;

    // The entity's database when it has one, for layer look-ups.
    AcDbObjectId FindLayer(const AcString& name) const;
};
