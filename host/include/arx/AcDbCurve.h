// AcDbCurve: the host's curve interface. Every operation answers eNotImplementedYet in
// this base; curve classes override what they support.
#pragma once

#include "AcDbEntity.h"
#include "gedblar.h"
#include "getol.h"

class AcGeCurve3d;
class AcDbSpline;

class ACHOST_API AcDbCurve : public AcDbEntity {
    ACRX_DECLARE_MEMBERS(AcDbCurve);

public:
    ~AcDbCurve() override;

    virtual Adesk::Boolean isClosed() const;
    virtual Adesk::Boolean isPeriodic() const;
    virtual Adesk::Boolean isPlanar() const;
    virtual Acad::ErrorStatus getPlane(AcGePlane& plane, AcDb::Planarity& planarity) const;

    virtual Acad::ErrorStatus getStartParam(double& param) const;
    virtual Acad::ErrorStatus getEndParam(double& param) const;
    virtual Acad::ErrorStatus getStartPoint(AcGePoint3d& point) const;
    virtual Acad::ErrorStatus getEndPoint(AcGePoint3d& point) const;
    virtual Acad::ErrorStatus getPointAtParam(double param, AcGePoint3d& point) const;
    virtual Acad::ErrorStatus getParamAtPoint(const AcGePoint3d& point, double& param) const;
    virtual Acad::ErrorStatus getDistAtParam(double param, double& dist) const;
    virtual Acad::ErrorStatus getParamAtDist(double dist, double& param) const;
    virtual Acad::ErrorStatus getDistAtPoint(const AcGePoint3d& point, double& dist) const;
    virtual Acad::ErrorStatus getPointAtDist(double dist, AcGePoint3d& point) const;
    virtual Acad::ErrorStatus getFirstDeriv(double param, AcGeVector3d& firstDeriv) const;
    virtual Acad::ErrorStatus getFirstDeriv(const AcGePoint3d& point, AcGeVector3d& firstDeriv) const;
    virtual Acad::ErrorStatus getSecondDeriv(double param, AcGeVector3d& secDeriv) const;
    virtual Acad::ErrorStatus getSecondDeriv(const AcGePoint3d& point, AcGeVector3d& secDeriv) const;
    virtual Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& givenPoint, AcGePoint3d& pointOnCurve,
                                                Adesk::Boolean extend = false) const;
    virtual Acad::ErrorStatus getClosestPointTo(const AcGePoint3d& givenPoint, const AcGeVector3d& direction,
                                                AcGePoint3d& pointOnCurve, Adesk::Boolean extend = false) const;
    virtual Acad::ErrorStatus getOrthoProjectedCurve(const AcGePlane& plane, AcDbCurve*& projCurve) const;
    virtual Acad::ErrorStatus getProjectedCurve(const AcGePlane& plane, const AcGeVector3d& projDir,
                                                AcDbCurve*& projCurve) const;
    virtual Acad::ErrorStatus getOffsetCurves(double offsetDist, AcDbVoidPtrArray& offsetCurves) const;
    virtual Acad::ErrorStatus getOffsetCurvesGivenPlaneNormal(const AcGeVector3d& normal, double offsetDist,
                                                              AcDbVoidPtrArray& offsetCurves) const;
    virtual Acad::ErrorStatus getSpline(AcDbSpline*& spline) const;
    virtual Acad::ErrorStatus getSplitCurves(const AcGeDoubleArray& params, AcDbVoidPtrArray& curveSegments) const;
    virtual Acad::ErrorStatus getSplitCurves(const AcGePoint3dArray& points, AcDbVoidPtrArray& curveSegments) const;
    virtual Acad::ErrorStatus extend(double newParam);
    virtual Acad::ErrorStatus extend(Adesk::Boolean extendStart, const AcGePoint3d& toPoint);
    virtual Acad::ErrorStatus getArea(double& area) const;
    virtual Acad::ErrorStatus reverseCurve();
    virtual Acad::ErrorStatus getAcGeCurve(AcGeCurve3d*& curve, const AcGeTol& tol = AcGeContext::gTol) const;
    virtual Acad::ErrorStatus setFromAcGeCurve(const AcGeCurve3d& curve, AcGeVector3d* normal = nullptr,
                                               const AcGeTol& tol = AcGeContext::gTol);

    static Acad::ErrorStatus createFromAcGeCurve(const AcGeCurve3d& geCurve, AcDbCurve*& curve,
                                                 AcGeVector3d* normal = nullptr,
                                                 const AcGeTol& tol = AcGeContext::gTol);

protected:
    AcDbCurve();
};
