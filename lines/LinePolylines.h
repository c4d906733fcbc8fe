// LinePolylines: the polylines a layout line shows (its centre line and outlines, as its
// draw options select them), answering object snaps and intersections together, and the
// copies of them that an explode hands out.
#pragma once

#include <vector>

#include "dbents.h"
#include "dbpl.h"

class LinePolylines {
public:
    // Null and empty polylines are left out: a line without length has no outline.
    void Add(const AcDbPolyline* polyline);

    // Each polyline adds its answers in turn; the first failure is answered.
    Acad::ErrorStatus GetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                     const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                     const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                     AcDbIntArray& geomIds) const;
    Acad::ErrorStatus GetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                     const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                     const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints, AcDbIntArray& geomIds,
                                     const AcGeMatrix3d& insertionMat) const;
    Acad::ErrorStatus IntersectWith(const AcDbEntity* other, AcDb::Intersect intType, AcGePoint3dArray& points,
                                    Adesk::GsMarker thisGsMarker, Adesk::GsMarker otherGsMarker) const;
    Acad::ErrorStatus IntersectWith(const AcDbEntity* other, AcDb::Intersect intType, const AcGePlane& projPlane,
                                    AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker,
                                    Adesk::GsMarker otherGsMarker) const;

    // Explode: appends a copy of polyline with owner's properties, then restyled by
    // style(copy). eOutOfMemory when the clone fails and eWrongObjectType (deleting it)
    // when the clone is no entity; entitySet is then left as it was.
    template <typename Style>
    static Acad::ErrorStatus AppendExplodedCopy(const AcDbPolyline& polyline, const AcDbEntity& owner,
                                                AcDbVoidPtrArray& entitySet, Style style)
    {
        AcDbEntity* copy = nullptr;
        const Acad::ErrorStatus es = CloneForExplode(polyline, owner, copy);
        if (es != Acad::eOk)
            return es;
        style(*copy);
        entitySet.append(copy);
        return Acad::eOk;
    }
    static Acad::ErrorStatus AppendExplodedCopy(const AcDbPolyline& polyline, const AcDbEntity& owner,
                                                AcDbVoidPtrArray& entitySet)
    {
        return AppendExplodedCopy(polyline, owner, entitySet, [](AcDbEntity&) {});
    }

private:
    static Acad::ErrorStatus CloneForExplode(const AcDbPolyline& polyline, const AcDbEntity& owner, AcDbEntity*& copy);
    template <typename Query>
    Acad::ErrorStatus ForEach(Query query) const;

    std::vector<const AcDbPolyline*> m_polylines;
};
