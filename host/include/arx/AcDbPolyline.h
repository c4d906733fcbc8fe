// AcDbPolyline: the lightweight polyline: 2D vertices in the object coordinate system of
// its normal, at its elevation, each with a bulge (tan of a quarter of the included angle
// of the arc that starts there; positive runs counter-clockwise seen from the normal),
// start and end widths and an identifier. Vertex i is parameter i; within a segment the
// parameter runs linearly in length along lines and in angle along arcs. An open
// polyline's last vertex starts no segment; a closed one's last vertex starts the closing
// segment back to the first. Where the host leaves a behaviour undocumented (a split of a
// closed polyline, an open polyline's area, widths in the extents, the segment answering
// at a vertex, statuses), the comment at the call states the headless host's choice.
#pragma once

#include <vector>

#include "AcDbCurve.h"

class AcGeCircArc2d;
class AcGeCircArc3d;
class AcGeLineSeg2d;
class AcGeLineSeg3d;

namespace hostpoly {
class PolylineView;
}

class ACHOST_API AcDbPolyline : public AcDbCurve {
    ACRX_DECLARE_MEMBERS(AcDbPolyline);

public:
    enum SegType { kLine = 0, kArc = 1, kCoincident = 2, kPoint = 3, kEmpty = 4 };

    AcDbPolyline();
    // No vertices yet; room is kept for num_verts of them.
    explicit AcDbPolyline(unsigned int num_verts);
    ~AcDbPolyline() override;

    // Inserts a vertex before index (index numVerts() appends). A width of -1 means "not
    // set": the vertex takes the constant width. eInvalidIndex past the end, eInvalidInput
    // for non-finite values.
    Acad::ErrorStatus addVertexAt(unsigned int index, const AcGePoint2d& pt, double bulge = 0.,
                                  double startWidth = -1., double endWidth = -1., Adesk::Int32 vertexIdentifier = 0);
    Acad::ErrorStatus removeVertexAt(unsigned int index);
    unsigned int numVerts() const;

    // In the object coordinate system.
    Acad::ErrorStatus getPointAt(unsigned int index, AcGePoint2d& pt) const;
    // In world coordinates, at the elevation.
    Acad::ErrorStatus getPointAt(unsigned int index, AcGePoint3d& pt) const;
    Acad::ErrorStatus setPointAt(unsigned int index, const AcGePoint2d& pt);
    Acad::ErrorStatus getBulgeAt(unsigned int index, double& bulge) const;
    Acad::ErrorStatus setBulgeAt(unsigned int index, double bulge);
    // The widths in force: a width never set reads as the constant width.
    Acad::ErrorStatus getWidthsAt(unsigned int index, double& startWidth, double& endWidth) const;
    // Widths must be finite and not below zero (-1 clears a width back to "not set").
    Acad::ErrorStatus setWidthsAt(unsigned int index, double startWidth, double endWidth);
    Acad::ErrorStatus getVertexIdentifierAt(unsigned int index, Adesk::Int32& vertexIdentifier) const;
    Acad::ErrorStatus setVertexIdentifierAt(unsigned int index, Adesk::Int32 suggestedValue);

    // eOk with the width when every segment starts and ends with the same width;
    // eNotApplicable (width untouched) when the widths vary.
    Acad::ErrorStatus getConstantWidth(double& width) const;
    // Every vertex's widths become "not set" and read as this width.
    Acad::ErrorStatus setConstantWidth(double width);

    Adesk::Boolean isOnlyLines() const;
    Adesk::Boolean hasBulges() const;
    Adesk::Boolean hasVertexIdentifiers() const;
    // Some width in force is not zero.
    Adesk::Boolean hasWidth() const;

    // kPoint for the last vertex of an open polyline (it starts no segment) and for a
    // single vertex; kEmpty without vertices; kCoincident when the segment's ends coincide.
    // An index past the end answers kEmpty.
    SegType segType(unsigned int index) const;
    // eInvalidIndex past the end or for a vertex that starts no segment; eNotApplicable
    // when the segment is not of the asked kind; eDegenerateGeometry for coincident ends.
    Acad::ErrorStatus getLineSegAt(unsigned int index, AcGeLineSeg2d& ln) const;
    Acad::ErrorStatus getLineSegAt(unsigned int index, AcGeLineSeg3d& ln) const;
    Acad::ErrorStatus getArcSegAt(unsigned int index, AcGeCircArc2d& arc) const;
    Acad::ErrorStatus getArcSegAt(unsigned int index, AcGeCircArc3d& arc) const;
    // True when the 2D point lies on segment index; param is then the polyline's own
    // parameter of the point (index plus the fraction along the segment).
    Adesk::Boolean onSegAt(unsigned int index, const AcGePoint2d& pt2d, double& param) const;

    void setClosed(Adesk::Boolean closed);
    // Linetype generation across vertices (a drawing option, kept and filed).
    void setPlinegen(Adesk::Boolean plinegen);
    Adesk::Boolean hasPlinegen() const;
    double elevation() const;
    void setElevation(double elev);
    double thickness() const;
    Acad::ErrorStatus setThickness(double thickness);
    AcGeVector3d normal() const;
    // eInvalidInput for a zero or non-finite vector; stored at unit length. The 2D points
    // stay as they are (they are read in the new normal's coordinate system).
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);

    // reuse: keeps the first numVerts vertices and drops the rest (fewer kept vertices
    // than asked are not padded); otherwise every vertex goes and numVerts is only room to keep.
    Acad::ErrorStatus reset(Adesk::Boolean reuse, unsigned int numVerts);
    // Storage hints; nothing visible changes.
    void minimizeMemory();
    void maximizeMemory();

    // AcDbCurve
    Adesk::Boolean isClosed() const override;
    Adesk::Boolean isPeriodic() const override;
    Adesk::Boolean isPlanar() const override;
    // The plane through the elevation with the normal (always kPlanar).
    Acad::ErrorStatus getPlane(AcGePlane& plane, AcDb::Planarity& planarity) const override;
    Acad::ErrorStatus getStartParam(double& param) const override;
    // The number of segments (numVerts - 1 open, numVerts closed).
    Acad::ErrorStatus getEndParam(double& param) const override;
    Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const override;
    Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const override;
    // Parameters, distances and points off the curve answer eInvalidInput; a polyline
    // without vertices answers eDegenerateGeometry.
    Acad::ErrorStatus getPointAtParam(double param, AcGePoint3d& point) const override;
    // At a vertex, the lowest parameter there (a closed polyline's start point is 0).
    Acad::ErrorStatus getParamAtPoint(const AcGePoint3d& point, double& param) const override;
    Acad::ErrorStatus getDistAtParam(double param, double& dist) const override;
    Acad::ErrorStatus getParamAtDist(double dist, double& param) const override;
    Acad::ErrorStatus getDistAtPoint(const AcGePoint3d& point, double& dist) const override;
    Acad::ErrorStatus getPointAtDist(double dist, AcGePoint3d& point) const override;
    // Derivatives with respect to the parameter: along a line the segment vector, along an
    // arc the tangent of length radius times sweep. At an interior vertex the following
    // segment answers; at the end parameter the last one.
    Acad::ErrorStatus getFirstDeriv(double param, AcGeVector3d& firstDeriv) const override;
    Acad::ErrorStatus getFirstDeriv(const AcGePoint3d& point, AcGeVector3d& firstDeriv) const override;
    Acad::ErrorStatus getSecondDeriv(double param, AcGeVector3d& secDeriv) const override;
    Acad::ErrorStatus getSecondDeriv(const AcGePoint3d& point, AcGeVector3d& secDeriv) const override;
    // With extend, an open polyline's first segment runs on backwards and its last one
    // forwards (a line as a ray, an arc round its circle); a closed one is not extended.
    Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& givenPoint, AcGePoint3d& pointOnCurve,
                                        Adesk::Boolean extend = false) const override;
    // The point nearest the line through givenPoint along direction, as seen along that
    // direction; eInvalidInput for a direction parallel to the polyline's plane.
    Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& givenPoint, const AcGeVector3d& direction,
                                        AcGePoint3d& pointOnCurve, Adesk::Boolean extend = false) const override;
    // New polylines (owned by the caller) on the plane; only a plane parallel to the
    // polyline keeps its arcs circular, others answer eNotApplicable unless it has only lines.
    Acad::ErrorStatus getOrthoProjectedCurve(const AcGePlane& plane, AcDbCurve*& projCurve) const override;
    Acad::ErrorStatus getProjectedCurve(const AcGePlane& plane, const AcGeVector3d& projDir,
                                        AcDbCurve*& projCurve) const override;
    // New polylines (owned by the caller) offsetDist to the right of the direction of
    // travel seen from the normal (negative: to the left), so that a counter-clockwise
    // closed outline grows. Arcs keep their centres, corners convex on the offset side are
    // rounded with arcs about the vertex, and whatever comes nearer than the distance to
    // the polyline (where the offset would cross itself) is cut away: a closed outline
    // gives the edge of the area that far from it on the offset side (several polylines,
    // or none, when an inward offset passes its narrowest part). Exact for polylines that
    // do not cross themselves; eDegenerateGeometry without a segment of length.
    Acad::ErrorStatus getOffsetCurves(double offsetDist, AcDbVoidPtrArray& offsetCurves) const override;
    // The normal must be parallel to the polyline's; seen from the opposite normal the
    // sides swap.
    Acad::ErrorStatus getOffsetCurvesGivenPlaneNormal(const AcGeVector3d& normal, double offsetDist,
                                                      AcDbVoidPtrArray& offsetCurves) const override;
    // Pieces from the start to the first cut, cut to cut, and the last cut to the end, as
    // new polylines owned by the caller. Cuts are sorted; repeated cuts and cuts at the
    // ends add no piece. A closed polyline is cut round: each piece runs from a cut to the
    // next and the last runs on through the start vertex to the first cut, so one cut
    // gives one open piece. Values off the curve, or none, answer eInvalidInput.
    Acad::ErrorStatus getSplitCurves(const AcGeDoubleArray& params, AcDbVoidPtrArray& curveSegments) const override;
    Acad::ErrorStatus getSplitCurves(const AcGePoint3dArray& points, AcDbVoidPtrArray& curveSegments) const override;
    // Lengthens an open polyline's first segment (a parameter below 0) or last segment (a
    // parameter above the end) along its line or circle; values inside, arcs that would
    // close their circle and closed polylines answer eInvalidInput / eNotApplicable.
    Acad::ErrorStatus extend(double newParam) override;
    // The point must lie on the first (extendStart) or last segment's line or circle, beyond that end.
    Acad::ErrorStatus extend(Adesk::Boolean extendStart, const AcGePoint3d& toPoint) override;
    // The area enclosed with the arcs, never negative; an open polyline counts as closed by
    // the chord from its end back to its start.
    Acad::ErrorStatus getArea(double& area) const override;
    // The vertices in reverse order; each segment keeps its shape with its bulge negated
    // and its start and end widths swapped; identifiers stay with their vertices.
    Acad::ErrorStatus reverseCurve() override;
    // An AcGeCompositeCurve3d of AcGeLineSeg3d and AcGeCircArc3d pieces (coincident
    // segments left out), owned by the caller; eDegenerateGeometry with no segment of length.
    Acad::ErrorStatus getAcGeCurve(AcGeCurve3d*& curve, const AcGeTol& tol = AcGeContext::gTol) const override;
    // Takes a line segment, a circular arc (not a whole circle) or a composite of them in
    // one plane; closes the polyline when the curve ends where it starts. eInvalidInput for
    // anything else, leaving the polyline unchanged.
    Acad::ErrorStatus setFromAcGeCurve(const AcGeCurve3d& curve, AcGeVector3d* normal = nullptr,
                                       const AcGeTol& tol = AcGeContext::gTol) override;

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

protected:
    // Draws through the world geometry's pline primitive (the one that renders widths).
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    // The standard lines, then open/closed, widths, elevation, area and length, then each
    // vertex with its bulge (and the arc it starts) and widths.
    void subList() const override;
    // One grip per vertex; moving a grip moves its vertex (in the polyline's plane).
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    Acad::ErrorStatus subGetStretchPoints(AcGePoint3dArray& stretchPoints) const override;
    Acad::ErrorStatus subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    // The plane follows the transform; a mirror keeps the normal's side and negates the
    // bulges. Uneven scaling of a polyline with arcs answers eCannotScaleNonUniformly.
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    // An AcDbLine per straight segment and an AcDbArc per arc segment.
    Acad::ErrorStatus subExplode(AcDbVoidPtrArray& entitySet) const override;
    // The segments with their arcs' extreme points, widened by half the widths, and raised
    // by the thickness.
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    // End (vertices), Mid (segment middles), Cen (arc centres), Quad (arc quadrant points
    // within the sweep), Near, Perp and Tan; other modes give nothing.
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const override;
    // Extending this polyline extends its open ends only, as for getClosestPointTo.
    Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, AcGePoint3dArray& points,
                                       Adesk::GsMarker thisGsMarker = 0,
                                       Adesk::GsMarker otherGsMarker = 0) const override;
    Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, const AcGePlane& projPlane,
                                       AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker = 0,
                                       Adesk::GsMarker otherGsMarker = 0) const override;

private:
    friend class hostpoly::PolylineView;

    struct Vertex {
        AcGePoint2d point;
        double bulge = 0.0;
        double startWidth = -1.0;  // -1: not set, the constant width applies
        double endWidth = -1.0;
        Adesk::Int32 identifier = 0;
    };

    bool isValidIndex(unsigned int index) const { return index < m_vertices.size(); }
    // A new polyline (owned by the caller) without vertices, with this one's entity
    // properties and its own settings: normal, elevation, thickness, constant width and
    // linetype generation.
    AcDbPolyline* newLike() const;

    std::vector<Vertex> m_vertices;
    bool m_closed = false;
    bool m_plinegen = false;
    double m_constantWidth = 0.0;
    double m_elevation = 0.0;
    double m_thickness = 0.0;
    AcGeVector3d m_normal = AcGeVector3d::kZAxis;
};
