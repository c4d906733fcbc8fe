// LinePolylines: snaps, intersections and explode copies of a line's shown polylines.
#include "LinePolylines.h"

void LinePolylines::Add(const AcDbPolyline* polyline)
{
    if (polyline != nullptr && polyline->numVerts() > 0)
        m_polylines.push_back(polyline);
}

template <typename Query>
Acad::ErrorStatus LinePolylines::ForEach(Query query) const
{
    for (const AcDbPolyline* polyline : m_polylines) {
        const Acad::ErrorStatus es = query(*polyline);
        if (es != Acad::eOk)
            return es;
    }
    return Acad::eOk;
}

Acad::ErrorStatus LinePolylines::GetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                                const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                                AcDbIntArray& geomIds) const
{
    return ForEach([&](const AcDbPolyline& polyline) {
        return polyline.getOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints,
                                       geomIds);
    });
}

Acad::ErrorStatus LinePolylines::GetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                                const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                                AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const
{
    return ForEach([&](const AcDbPolyline& polyline) {
        return polyline.getOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds,
                                       insertionMat);
    });
}

Acad::ErrorStatus LinePolylines::IntersectWith(const AcDbEntity* other, AcDb::Intersect intType,
                                               AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker,
                                               Adesk::GsMarker otherGsMarker) const
{
    return ForEach([&](const AcDbPolyline& polyline) {
        return polyline.intersectWith(other, intType, points, thisGsMarker, otherGsMarker);
    });
}

Acad::ErrorStatus LinePolylines::IntersectWith(const AcDbEntity* other, AcDb::Intersect intType,
                                               const AcGePlane& projPlane, AcGePoint3dArray& points,
                                               Adesk::GsMarker thisGsMarker, Adesk::GsMarker otherGsMarker) const
{
    return ForEach([&](const AcDbPolyline& polyline) {
        return polyline.intersectWith(other, intType, projPlane, points, thisGsMarker, otherGsMarker);
    });
}

Acad::ErrorStatus LinePolylines::CloneForExplode(const AcDbPolyline& polyline, const AcDbEntity& owner,
                                                 AcDbEntity*& copy)
{
    copy = nullptr;
    AcRxObject* object = polyline.clone();
    if (object == nullptr)
        return Acad::eOutOfMemory;
    copy = AcDbEntity::cast(object);
    if (copy == nullptr) {
        delete object;
        return Acad::eWrongObjectType;
    }
    copy->setPropertiesFrom(&owner);
    return Acad::eOk;
}
