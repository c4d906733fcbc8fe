// AecPanelLite: a light panel: closed loops (an outline and its holes, with bulges) filled
// with a host hatch pattern; no information blocks, labels or data tree. Its loop
// polylines and hatch are made afresh for each draw, explode or area, never cached.
#pragma once

#include <vector>

#include "AcString.h"
#include "dbents.h"
#include "dbhatch.h"
#include "dbpl.h"

class AecPanelLite : public AcDbEntity {
public:
    ACRX_DECLARE_MEMBERS(AecPanelLite);

    static constexpr Adesk::UInt16 m_curVersion = 1;

    AecPanelLite();
    ~AecPanelLite() override;

    // ---- loops: loop 0 is the outline, every further loop a hole. A loop is closed: its
    // last bulge belongs to the segment back to the first vertex, and a last vertex that
    // repeats the first is taken as that closing vertex.

    int LoopCount() const;
    // False, with both arrays emptied, for a loop that does not exist.
    bool GetLoopAt(int loop, AcArray<AcGePoint2d>& vertices, AcArray<double>& bulges) const;
    // Empty for a loop that does not exist.
    AcArray<AcGePoint2d> GetLoopVertsAt(int loop) const;
    // Appends a loop; empty bulges mean straight segments. eInvalidInput, with nothing
    // changed, for fewer than 2 vertices, a bulge count other than the vertex count, or a
    // value that is not finite.
    Acad::ErrorStatus AppendLoop(const AcArray<AcGePoint2d>& vertices, const AcArray<double>& bulges);
    // Appends the polyline's vertices and bulges as a loop (closed or not, it closes).
    Acad::ErrorStatus AppendLoopFromBoundary(const AcDbPolyline* boundary);
    // Inserts the point into the outline after the start of the outline segment nearest to
    // it, with a straight segment on each side; without an outline it starts one. False for
    // a point that is not finite.
    bool AddVertex(const AcGePoint3d& point);
    // Removes the first vertex, outline first, that lies on the point within the host's
    // point tolerance; a loop keeps at least 3 vertices. False when nothing was removed.
    bool RemoveVertex(const AcGePoint3d& point);
    // New polylines owned by the caller: outer for loop 0 (null without loops), inner for
    // each hole.
    void GetBoundaryPolylines(AcDbPolyline*& outer, AcArray<AcDbPolyline*>& inner) const;

    // ---- pattern. The angle is in radians, as the host's hatch takes it. The last value
    // is kept and filed for the layout application; the panel itself does not use it.

    // eInvalidInput, with nothing changed, for a type outside the host's three, a scale
    // that is not above 0, or a value that is not finite. A colour outside 0..256 is stored
    // as 0 (the panel's own colour).
    Acad::ErrorStatus SetOutlineAndPattern(AcDbHatch::HatchPatternType type, const wchar_t* name, double scale,
                                           double angle, int colour, double last);
    void GetOutlineAndPattern(AcDbHatch::HatchPatternType& type, AcString& name, double& scale, double& angle,
                              int& colour, double& last) const;
    double GetPatScale() const;
    Acad::ErrorStatus SetPatScale(double scale);

    // A new hatch in no database, owned by the caller: no pattern and no loops while the
    // pattern name is empty.
    AcDbHatch* CreateHatch() const;
    // The areas of all loops added up, holes included: the layout application counts the
    // sheet material that way.
    double GetArea() const;

    // ---- host overrides

    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subList() const override;
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    Acad::ErrorStatus subGetTransformedCopy(const AcGeMatrix3d& xform, AcDbEntity*& ent) const override;
    // Grips and stretch points are the loops' vertices, outline first; moving one moves
    // that vertex alone.
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    Acad::ErrorStatus subGetStretchPoints(AcGePoint3dArray& stretchPoints) const override;
    Acad::ErrorStatus subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, AcGePoint3dArray& points,
                                       Adesk::GsMarker thisGsMarker = 0,
                                       Adesk::GsMarker otherGsMarker = 0) const override;
    Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, const AcGePlane& projPlane,
                                       AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker = 0,
                                       Adesk::GsMarker otherGsMarker = 0) const override;
    // Each loop is an edge sub-entity whose selection marker is its index plus 1.
    Acad::ErrorStatus subGetGsMarkersAtSubentPath(const AcDbFullSubentPath& subPath,
                                                  AcArray<Adesk::GsMarker>& gsMarkers) const override;
    Acad::ErrorStatus subGetSubentPathsAtGsMarker(AcDb::SubentType type, Adesk::GsMarker gsMark,
                                                  const AcGePoint3d& pickPoint, const AcGeMatrix3d& viewXform,
                                                  int& numPaths, AcDbFullSubentPath*& subentPaths, int numInserts = 0,
                                                  AcDbObjectId* entAndInsertStack = nullptr) const override;
    AcDbEntity* subSubentPtr(const AcDbFullSubentPath& id) const override;

private:
    // One new polyline per loop, owned by the caller (release with ReleasePolyArray).
    AcArray<AcDbPolyline*> CreatePolys() const;
    static void ReleasePolyArray(AcArray<AcDbPolyline*>& polylines);
    // The one routine behind drawing and explode: with a world draw it draws the loop
    // polylines and the hatch; without, it appends them to entitySet as new entities.
    bool DrawOrExplode(AcGiWorldDraw* worldDraw, AcArray<void*>& entitySet) const;
    // The loop's selection marker, or 0 for one that is not a loop's.
    int LoopOfMarker(Adesk::GsMarker marker) const;
    std::vector<AcGePoint2d*> VertexPointers();

    AcArray<AcArray<AcGePoint2d>> m_loopVertices{0, 8};
    AcArray<AcArray<double>> m_loopBulges{0, 8};
    AcDbHatch::HatchPatternType m_patternType = AcDbHatch::kPreDefined;
    AcString m_patternName;
    double m_patternScale = 1.0;
    double m_patternAngle = 0.0;
    Adesk::Int32 m_colour = 0;
    double m_lastValue = 0.0;
};
