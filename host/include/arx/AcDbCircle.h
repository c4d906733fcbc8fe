// AcDbCircle: a circle given by centre, radius and normal, with a thickness along the
// normal. Its parameter is the angle from the x axis of the normal's object coordinate
// system: 0 to 2 pi, counter-clockwise about the normal.
#pragma once

#include "AcDbCurve.h"

class ACHOST_API AcDbCircle : public AcDbCurve {
    ACRX_DECLARE_MEMBERS(AcDbCircle);

public:
    // Centre at the origin, radius 0, normal the z axis.
    AcDbCircle();
    AcDbCircle(const AcGePoint3d& center, const AcGeVector3d& normal, double radius);
    ~AcDbCircle() override;

    AcGePoint3d center() const;
    Acad::ErrorStatus setCenter(const AcGePoint3d& center);
    double radius() const;
    // eInvalidInput for a negative or non-finite radius.
    Acad::ErrorStatus setRadius(double radius);
    double thickness() const;
    Acad::ErrorStatus setThickness(double thickness);
    AcGeVector3d normal() const;
    // eInvalidInput for a zero vector; stored at unit length.
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);
    double circumference() const;
    Acad::ErrorStatus setCircumference(double circumference);
    double diameter() const;
    Acad::ErrorStatus setDiameter(double diameter);

    // AcDbCurve
    Adesk::Boolean isClosed() const override;
    Adesk::Boolean isPeriodic() const override;
    Adesk::Boolean isPlanar() const override;
    Acad::ErrorStatus getPlane(AcGePlane& plane, AcDb::Planarity& planarity) const override;
    Acad::ErrorStatus getStartParam(double& param) const override;
    Acad::ErrorStatus getEndParam(double& param) const override;
    Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const override;
    Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const override;
    Acad::ErrorStatus getPointAtParam(double param, AcGePoint3d& point) const override;
    Acad::ErrorStatus getParamAtPoint(const AcGePoint3d& point, double& param) const override;
    Acad::ErrorStatus getDistAtParam(double param, double& dist) const override;
    Acad::ErrorStatus getParamAtDist(double dist, double& param) const override;
    Acad::ErrorStatus getDistAtPoint(const AcGePoint3d& point, double& dist) const override;
    Acad::ErrorStatus getPointAtDist(double dist, AcGePoint3d& point) const override;
    Acad::ErrorStatus getFirstDeriv(double param, AcGeVector3d& firstDeriv) const override;
    Acad::ErrorStatus getFirstDeriv(const AcGePoint3d& point, AcGeVector3d& firstDeriv) const override;
    Acad::ErrorStatus getSecondDeriv(double param, AcGeVector3d& secDeriv) const override;
    Acad::ErrorStatus getSecondDeriv(const AcGePoint3d& point, AcGeVector3d& secDeriv) const override;
    Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& givenPoint, AcGePoint3d& pointOnCurve,
                                        Adesk::Boolean extend = false) const override;
    Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& givenPoint, const AcGeVector3d& direction,
                                        AcGePoint3d& pointOnCurve, Adesk::Boolean extend = false) const override;
    Acad::ErrorStatus getOrthoProjectedCurve(const AcGePlane& plane, AcDbCurve*& projCurve) const override;
    Acad::ErrorStatus getProjectedCurve(const AcGePlane& plane, const AcGeVector3d& projDir,
                                        AcDbCurve*& projCurve) const override;
    Acad::ErrorStatus getOffsetCurves(double offsetDist, AcDbVoidPtrArray& offsetCurves) const override;
    Acad::ErrorStatus getOffsetCurvesGivenPlaneNormal(const AcGeVector3d& normal, double offsetDist,
                                                      AcDbVoidPtrArray& offsetCurves) const override;
    Acad::ErrorStatus getSplitCurves(const AcGeDoubleArray& params, AcDbVoidPtrArray& curveSegments) const override;
    Acad::ErrorStatus getSplitCurves(const AcGePoint3dArray& points, AcDbVoidPtrArray& curveSegments) const override;
    Acad::ErrorStatus extend(double newParam) override;
    Acad::ErrorStatus extend(Adesk::Boolean extendStart, const AcGePoint3d& toPoint) override;
    Acad::ErrorStatus getArea(double& area) const override;
    Acad::ErrorStatus reverseCurve() override;
    // A whole-circle AcGeCircArc3d measured from the normal's x axis, owned by the caller.
    Acad::ErrorStatus getAcGeCurve(AcGeCurve3d*& curve, const AcGeTol& tol = AcGeContext::gTol) const override;
    // Takes a whole-circle AcGeCircArc3d; other curves answer eInvalidInput.
    Acad::ErrorStatus setFromAcGeCurve(const AcGeCurve3d& curve, AcGeVector3d* normal = nullptr,
                                       const AcGeTol& tol = AcGeContext::gTol) override;

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

protected:
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subList() const override;
    // Grips: the centre (moves the circle) and the four quadrants (change the radius).
    // Stretch point: the centre.
    Acad::ErrorStatus subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                       AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    Acad::ErrorStatus subGetStretchPoints(AcGePoint3dArray& stretchPoints) const override;
    Acad::ErrorStatus subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset) override;
    // Only transforms that scale the plane uniformly keep it circular: others answer
    // eCannotScaleNonUniformly and change nothing.
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    // Cen, Quad, Near, Perp and Tan snaps.
    // A circle does not explode: eNotApplicable (the base answer).
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const override;
    Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, AcGePoint3dArray& points,
                                       Adesk::GsMarker thisGsMarker = 0,
                                       Adesk::GsMarker otherGsMarker = 0) const override;
    Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, const AcGePlane& projPlane,
                                       AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker = 0,
                                       Adesk::GsMarker otherGsMarker = 0) const override;

private:
    AcGePoint3d m_center;
    double m_radius = 0.0;
    AcGeVector3d m_normal = AcGeVector3d::kZAxis;
    double m_thickness = 0.0;
};
