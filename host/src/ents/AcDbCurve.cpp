// AcDbCurve: the curve interface's base answers. Every question is eNotImplementedYet
// here; the curve classes answer what their geometry supports.
#include "AcDbCurve.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbCurve, AcDbEntity)

AcDbCurve::AcDbCurve() = default;

AcDbCurve::~AcDbCurve() = default;

Adesk::Boolean AcDbCurve::isClosed() const
{
    return Adesk::kFalse;
}

Adesk::Boolean AcDbCurve::isPeriodic() const
{
    return Adesk::kFalse;
}

Adesk::Boolean AcDbCurve::isPlanar() const
{
    return Adesk::kFalse;
}

Acad::ErrorStatus AcDbCurve::getPlane(AcGePlane&, AcDb::Planarity&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getStartParam(double&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getEndParam(double&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getStartPoint(AcGePoint3d&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getEndPoint(AcGePoint3d&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getPointAtParam(double, AcGePoint3d&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getParamAtPoint(const AcGePoint3d&, double&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getDistAtParam(double, double&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getParamAtDist(double, double&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getDistAtPoint(const AcGePoint3d&, double&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getPointAtDist(double, AcGePoint3d&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getFirstDeriv(double, AcGeVector3d&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getFirstDeriv(const AcGePoint3d&, AcGeVector3d&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getSecondDeriv(double, AcGeVector3d&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getSecondDeriv(const AcGePoint3d&, AcGeVector3d&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getClosestPointTo(const AcGePoint3d&, AcGePoint3d&, Adesk::Boolean) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getClosestPointTo(const AcGePoint3d&, const AcGeVector3d&, AcGePoint3d&,
                                               Adesk::Boolean) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getOrthoProjectedCurve(const AcGePlane&, AcDbCurve*&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getProjectedCurve(const AcGePlane&, const AcGeVector3d&, AcDbCurve*&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getOffsetCurves(double, AcDbVoidPtrArray&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getOffsetCurvesGivenPlaneNormal(const AcGeVector3d&, double, AcDbVoidPtrArray&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getSpline(AcDbSpline*&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getSplitCurves(const AcGeDoubleArray&, AcDbVoidPtrArray&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getSplitCurves(const AcGePoint3dArray&, AcDbVoidPtrArray&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::extend(double)
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::extend(Adesk::Boolean, const AcGePoint3d&)
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getArea(double&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::reverseCurve()
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::getAcGeCurve(AcGeCurve3d*& curve, const AcGeTol&) const
{
    curve = nullptr;
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::setFromAcGeCurve(const AcGeCurve3d&, AcGeVector3d*, const AcGeTol&)
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AcDbCurve::createFromAcGeCurve(const AcGeCurve3d&, AcDbCurve*& curve, AcGeVector3d*,
                                                 const AcGeTol&)
{
    curve = nullptr;
    return Acad::eNotImplementedYet;
}
