// QxPolylineBasedCurve: the base of every line-shaped entity of the module. It makes an
// entity a full host curve by answering every curve question with a host polyline that the
// subclass owns and keeps up to date; the base stores nothing and files nothing.
#pragma once

#include "dbcurve.h"
#include "dbpl.h"

class QxPolylineBasedCurve : public AcDbCurve {
public:
    ACRX_DECLARE_MEMBERS(QxPolylineBasedCurve);

    ~QxPolylineBasedCurve() override;

    // Line entities live on the host heap.
    static void* operator new(std::size_t size);
    static void operator delete(void* p);

    // Line entities are drawn in their plane but answer as non-planar curves.
    Adesk::Boolean isPlanar() const override;
    Acad::ErrorStatus getPlane(AcGePlane& plane, AcDb::Planarity& planarity) const override;

    Adesk::Boolean isClosed() const override;
    Adesk::Boolean isPeriodic() const override;
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
    Acad::ErrorStatus getFirstDeriv(const AcGePoint3d& point, AcGeVector3d& firstDeriv) const override;
    Acad::ErrorStatus getFirstDeriv(double param, AcGeVector3d& firstDeriv) const override;
    Acad::ErrorStatus getSecondDeriv(const AcGePoint3d& point, AcGeVector3d& secDeriv) const override;
    Acad::ErrorStatus getSecondDeriv(double param, AcGeVector3d& secDeriv) const override;
    Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& givenPoint, const AcGeVector3d& direction,
                                        AcGePoint3d& pointOnCurve, Adesk::Boolean extend = false) const override;
    Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& givenPoint, AcGePoint3d& pointOnCurve,
                                        Adesk::Boolean extend = false) const override;
    Acad::ErrorStatus getOrthoProjectedCurve(const AcGePlane& plane, AcDbCurve*& projCurve) const override;
    Acad::ErrorStatus getProjectedCurve(const AcGePlane& plane, const AcGeVector3d& projDir,
                                        AcDbCurve*& projCurve) const override;
    Acad::ErrorStatus getOffsetCurves(double offsetDist, AcDbVoidPtrArray& offsetCurves) const override;
    Acad::ErrorStatus getOffsetCurvesGivenPlaneNormal(const AcGeVector3d& normal, double offsetDist,
                                                      AcDbVoidPtrArray& offsetCurves) const override;
    Acad::ErrorStatus getSpline(AcDbSpline*& spline) const override;
    Acad::ErrorStatus getSplitCurves(const AcGePoint3dArray& points, AcDbVoidPtrArray& curveSegments) const override;
    Acad::ErrorStatus getSplitCurves(const AcGeDoubleArray& params, AcDbVoidPtrArray& curveSegments) const override;
    Acad::ErrorStatus extend(Adesk::Boolean extendStart, const AcGePoint3d& toPoint) override;
    Acad::ErrorStatus extend(double newParam) override;
    Acad::ErrorStatus getArea(double& area) const override;
    Acad::ErrorStatus reverseCurve() override;
    Acad::ErrorStatus getAcGeCurve(AcGeCurve3d*& curve, const AcGeTol& tol = AcGeContext::gTol) const override;
    Acad::ErrorStatus setFromAcGeCurve(const AcGeCurve3d& curve, AcGeVector3d* normal = nullptr,
                                       const AcGeTol& tol = AcGeContext::gTol) override;

    // The polyline that answers the curve questions; null when the subclass cannot build one.
    virtual const AcDbPolyline* GetCurveBaseConstPolyline() const;

protected:
    QxPolylineBasedCurve();

    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds, const AcGeMatrix3d& insertionMat) const override;
    Acad::ErrorStatus subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                        const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                        const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                        AcDbIntArray& geomIds) const override;
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;
    Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, const AcGePlane& projPlane,
                                       AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker = 0,
                                       Adesk::GsMarker otherGsMarker = 0) const override;
    Acad::ErrorStatus subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType, AcGePoint3dArray& points,
                                       Adesk::GsMarker thisGsMarker = 0,
                                       Adesk::GsMarker otherGsMarker = 0) const override;

    // The same polyline, for the modifying curve operations.
    virtual AcDbPolyline* GetCurveBasePolyline();
    // Around every modifying curve operation. The base begin opens the entity for writing
    // with undo; a subclass's end hook calls the base and then copies the edited polyline
    // back into its own parameters.
    virtual void OnBeginModifyPolyline();
    virtual void OnEndModifyPolyline();

private:
    // Runs a modifying operation on the subclass's polyline between the two hooks.
    template <typename Operation>
    Acad::ErrorStatus ModifyPolyline(Operation operation);
};
