// QxPolylineBasedCurve: curve questions delegated to the subclass's polyline.
// A subclass must not return null from the accessors in normal operation; where the base
// meets null anyway it answers eNullObjectPointer instead of touching the pointer, except
// for the osnap, extents and intersection answers that have their own documented statuses.
#include "QxPolylineBasedCurve.h"

#include <new>

#include "AcHeapOpers.h"
#include "acutads.h"

ACRX_NO_CONS_DEFINE_MEMBERS(QxPolylineBasedCurve, AcDbCurve)

QxPolylineBasedCurve::QxPolylineBasedCurve() = default;
QxPolylineBasedCurve::~QxPolylineBasedCurve() = default;

void* QxPolylineBasedCurve::operator new(std::size_t size)
{
    if (void* p = acHeapAlloc(nullptr, size))
        return p;
    throw std::bad_alloc();
}

void QxPolylineBasedCurve::operator delete(void* p)
{
    if (p != nullptr)
        acHeapFree(nullptr, p);
}

const AcDbPolyline* QxPolylineBasedCurve::GetCurveBaseConstPolyline() const
{
    return nullptr;
}

AcDbPolyline* QxPolylineBasedCurve::GetCurveBasePolyline()
{
    return nullptr;
}

void QxPolylineBasedCurve::OnBeginModifyPolyline()
{
    assertWriteEnabled(true, true);
}

void QxPolylineBasedCurve::OnEndModifyPolyline() {}

template <typename Operation>
Acad::ErrorStatus QxPolylineBasedCurve::ModifyPolyline(Operation operation)
{
    OnBeginModifyPolyline();
    AcDbPolyline* polyline = GetCurveBasePolyline();
    const Acad::ErrorStatus es = polyline != nullptr ? operation(*polyline) : Acad::eNullObjectPointer;
    OnEndModifyPolyline();
    return es;
}

Adesk::Boolean QxPolylineBasedCurve::isPlanar() const
{
    return false;
}

Acad::ErrorStatus QxPolylineBasedCurve::getPlane(AcGePlane&, AcDb::Planarity&) const
{
    return Acad::eNotApplicable;
}

Acad::ErrorStatus QxPolylineBasedCurve::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                                          const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                          const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                                          AcDbIntArray& geomIds,
                                                          const AcGeMatrix3d& insertionMat) const
{
    assertReadEnabled();
    const AcDbPolyline* polyline = GetCurveBaseConstPolyline();
    if (polyline == nullptr) {
        acutPrintf(L"\n警告: QxPolylineBasedCurve::subGetOsnapPoints() - GetCurveBaseConstPolyline() 返回了空指针\n");
        return Acad::eNotImplementedYet;
    }
    return polyline->getOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds,
                                    insertionMat);
}

Acad::ErrorStatus QxPolylineBasedCurve::subGetOsnapPoints(AcDb::OsnapMode osnapMode, Adesk::GsMarker gsSelectionMark,
                                                          const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                                                          const AcGeMatrix3d& viewXform, AcGePoint3dArray& snapPoints,
                                                          AcDbIntArray& geomIds) const
{
    assertReadEnabled();
    const AcDbPolyline* polyline = GetCurveBaseConstPolyline();
    if (polyline == nullptr)
        return Acad::eNotImplementedYet;
    return polyline->getOsnapPoints(osnapMode, gsSelectionMark, pickPoint, lastPoint, viewXform, snapPoints, geomIds);
}

Acad::ErrorStatus QxPolylineBasedCurve::subGetGeomExtents(AcDbExtents& extents) const
{
    const AcDbPolyline* polyline = GetCurveBaseConstPolyline();
    if (polyline == nullptr)
        return Acad::eInvalidInput;
    return polyline->getGeomExtents(extents);
}

Acad::ErrorStatus QxPolylineBasedCurve::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                                         const AcGePlane& projPlane, AcGePoint3dArray& points,
                                                         Adesk::GsMarker thisGsMarker,
                                                         Adesk::GsMarker otherGsMarker) const
{
    const AcDbPolyline* polyline = GetCurveBaseConstPolyline();
    if (polyline == nullptr)
        return Acad::eNotImplementedYet;
    return polyline->intersectWith(pEnt, intType, projPlane, points, thisGsMarker, otherGsMarker);
}

Acad::ErrorStatus QxPolylineBasedCurve::subIntersectWith(const AcDbEntity* pEnt, AcDb::Intersect intType,
                                                         AcGePoint3dArray& points, Adesk::GsMarker thisGsMarker,
                                                         Adesk::GsMarker otherGsMarker) const
{
    const AcDbPolyline* polyline = GetCurveBaseConstPolyline();
    if (polyline == nullptr)
        return Acad::eNotImplementedYet;
    return polyline->intersectWith(pEnt, intType, points, thisGsMarker, otherGsMarker);
}

// Const delegation: the same operation on the subclass's polyline, its answer unchanged.
#define QX_DELEGATE_CONST(call)                                                \
    const AcDbPolyline* polyline = GetCurveBaseConstPolyline();                \
    if (polyline == nullptr)                                                   \
        return Acad::eNullObjectPointer;                                       \
    return polyline->call

Adesk::Boolean QxPolylineBasedCurve::isClosed() const
{
    const AcDbPolyline* polyline = GetCurveBaseConstPolyline();
    return polyline != nullptr && polyline->isClosed();
}

Adesk::Boolean QxPolylineBasedCurve::isPeriodic() const
{
    const AcDbPolyline* polyline = GetCurveBaseConstPolyline();
    return polyline != nullptr && polyline->isPeriodic();
}

Acad::ErrorStatus QxPolylineBasedCurve::getStartParam(double& param) const { QX_DELEGATE_CONST(getStartParam(param)); }
Acad::ErrorStatus QxPolylineBasedCurve::getEndParam(double& param) const { QX_DELEGATE_CONST(getEndParam(param)); }
Acad::ErrorStatus QxPolylineBasedCurve::getStartPoint(AcGePoint3d& point) const
{
    QX_DELEGATE_CONST(getStartPoint(point));
}
Acad::ErrorStatus QxPolylineBasedCurve::getEndPoint(AcGePoint3d& point) const { QX_DELEGATE_CONST(getEndPoint(point)); }
Acad::ErrorStatus QxPolylineBasedCurve::getPointAtParam(double param, AcGePoint3d& point) const
{
    QX_DELEGATE_CONST(getPointAtParam(param, point));
}
Acad::ErrorStatus QxPolylineBasedCurve::getParamAtPoint(const AcGePoint3d& point, double& param) const
{
    QX_DELEGATE_CONST(getParamAtPoint(point, param));
}
Acad::ErrorStatus QxPolylineBasedCurve::getDistAtParam(double param, double& dist) const
{
    QX_DELEGATE_CONST(getDistAtParam(param, dist));
}
Acad::ErrorStatus QxPolylineBasedCurve::getParamAtDist(double dist, double& param) const
{
    QX_DELEGATE_CONST(getParamAtDist(dist, param));
}
Acad::ErrorStatus QxPolylineBasedCurve::getDistAtPoint(const AcGePoint3d& point, double& dist) const
{
    QX_DELEGATE_CONST(getDistAtPoint(point, dist));
}
Acad::ErrorStatus QxPolylineBasedCurve::getPointAtDist(double dist, AcGePoint3d& point) const
{
    QX_DELEGATE_CONST(getPointAtDist(dist, point));
}
Acad::ErrorStatus QxPolylineBasedCurve::getFirstDeriv(const AcGePoint3d& point, AcGeVector3d& firstDeriv) const
{
    QX_DELEGATE_CONST(getFirstDeriv(point, firstDeriv));
}
Acad::ErrorStatus QxPolylineBasedCurve::getFirstDeriv(double param, AcGeVector3d& firstDeriv) const
{
    QX_DELEGATE_CONST(getFirstDeriv(param, firstDeriv));
}
Acad::ErrorStatus QxPolylineBasedCurve::getSecondDeriv(const AcGePoint3d& point, AcGeVector3d& secDeriv) const
{
    QX_DELEGATE_CONST(getSecondDeriv(point, secDeriv));
}
Acad::ErrorStatus QxPolylineBasedCurve::getSecondDeriv(double param, AcGeVector3d& secDeriv) const
{
    QX_DELEGATE_CONST(getSecondDeriv(param, secDeriv));
}
Acad::ErrorStatus QxPolylineBasedCurve::getClosestPointTo(const AcGePoint3d& givenPoint, const AcGeVector3d& direction,
                                                          AcGePoint3d& pointOnCurve, Adesk::Boolean extend) const
{
    QX_DELEGATE_CONST(getClosestPointTo(givenPoint, direction, pointOnCurve, extend));
}
Acad::ErrorStatus QxPolylineBasedCurve::getClosestPointTo(const AcGePoint3d& givenPoint, AcGePoint3d& pointOnCurve,
                                                          Adesk::Boolean extend) const
{
    QX_DELEGATE_CONST(getClosestPointTo(givenPoint, pointOnCurve, extend));
}
Acad::ErrorStatus QxPolylineBasedCurve::getOrthoProjectedCurve(const AcGePlane& plane, AcDbCurve*& projCurve) const
{
    QX_DELEGATE_CONST(getOrthoProjectedCurve(plane, projCurve));
}
Acad::ErrorStatus QxPolylineBasedCurve::getProjectedCurve(const AcGePlane& plane, const AcGeVector3d& projDir,
                                                          AcDbCurve*& projCurve) const
{
    QX_DELEGATE_CONST(getProjectedCurve(plane, projDir, projCurve));
}
Acad::ErrorStatus QxPolylineBasedCurve::getOffsetCurves(double offsetDist, AcDbVoidPtrArray& offsetCurves) const
{
    QX_DELEGATE_CONST(getOffsetCurves(offsetDist, offsetCurves));
}
Acad::ErrorStatus QxPolylineBasedCurve::getOffsetCurvesGivenPlaneNormal(const AcGeVector3d& normal, double offsetDist,
                                                                        AcDbVoidPtrArray& offsetCurves) const
{
    QX_DELEGATE_CONST(getOffsetCurvesGivenPlaneNormal(normal, offsetDist, offsetCurves));
}
Acad::ErrorStatus QxPolylineBasedCurve::getSpline(AcDbSpline*& spline) const { QX_DELEGATE_CONST(getSpline(spline)); }
Acad::ErrorStatus QxPolylineBasedCurve::getSplitCurves(const AcGePoint3dArray& points,
                                                       AcDbVoidPtrArray& curveSegments) const
{
    QX_DELEGATE_CONST(getSplitCurves(points, curveSegments));
}
Acad::ErrorStatus QxPolylineBasedCurve::getSplitCurves(const AcGeDoubleArray& params,
                                                       AcDbVoidPtrArray& curveSegments) const
{
    QX_DELEGATE_CONST(getSplitCurves(params, curveSegments));
}
Acad::ErrorStatus QxPolylineBasedCurve::getArea(double& area) const { QX_DELEGATE_CONST(getArea(area)); }
Acad::ErrorStatus QxPolylineBasedCurve::getAcGeCurve(AcGeCurve3d*& curve, const AcGeTol& tol) const
{
    QX_DELEGATE_CONST(getAcGeCurve(curve, tol));
}

#undef QX_DELEGATE_CONST

Acad::ErrorStatus QxPolylineBasedCurve::extend(Adesk::Boolean extendStart, const AcGePoint3d& toPoint)
{
    return ModifyPolyline([&](AcDbPolyline& polyline) { return polyline.extend(extendStart, toPoint); });
}

Acad::ErrorStatus QxPolylineBasedCurve::extend(double newParam)
{
    return ModifyPolyline([&](AcDbPolyline& polyline) { return polyline.extend(newParam); });
}

Acad::ErrorStatus QxPolylineBasedCurve::reverseCurve()
{
    return ModifyPolyline([](AcDbPolyline& polyline) { return polyline.reverseCurve(); });
}

Acad::ErrorStatus QxPolylineBasedCurve::setFromAcGeCurve(const AcGeCurve3d& curve, AcGeVector3d* normal,
                                                         const AcGeTol& tol)
{
    return ModifyPolyline([&](AcDbPolyline& polyline) { return polyline.setFromAcGeCurve(curve, normal, tol); });
}
