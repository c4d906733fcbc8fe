// AecStructuralLine: editing through the host: transformation, stretch and the three grips.
#include "AecStructuralLine.h"
#include "AecStructuralLineImp.h"
#include "LayoutLineGeometry.h"

Acad::ErrorStatus AecStructuralLine::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    Imp& imp = *m_imp;
    LayoutLineGeometry::TransformEnds(xform, imp.startPoint, imp.endPoint);
    LayoutLineGeometry::TransformWidths(xform, imp.memberWidthLeft, imp.memberWidthRight);
    LayoutLineGeometry::TransformWidths(xform, imp.indentLeft, imp.indentRight);
    imp.Changed();
    return Acad::eOk;
}

Acad::ErrorStatus AecStructuralLine::subGetStretchPoints(AcGePoint3dArray& stretchPoints) const
{
    assertReadEnabled();
    stretchPoints.append(m_imp->startPoint);
    stretchPoints.append(m_imp->endPoint);
    return Acad::eOk;
}

Acad::ErrorStatus AecStructuralLine::subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    if (indices.isEmpty())
        return QxPolylineBasedCurve::subMoveGripPointsAt(indices, offset);
    assertWriteEnabled();
    Imp& imp = *m_imp;
    for (int index : indices)
        if (LayoutLineGeometry::MoveStretchPoint(index, offset, imp.startPoint, imp.endPoint))
            imp.Changed();
    return Acad::eOk;
}

Acad::ErrorStatus AecStructuralLine::subGetGripPoints(AcDbGripDataPtrArray& grips, const double, const int,
                                                      const AcGeVector3d&, const int) const
{
    assertReadEnabled();
    m_imp->grips.HandOut(m_imp->startPoint, m_imp->endPoint, grips);
    return Acad::eOk;
}

Acad::ErrorStatus AecStructuralLine::subGetGripPoints(AcGePoint3dArray&, AcDbIntArray&, AcDbIntArray&) const
{
    return Acad::eNotImplementedYet;
}

// Every hot grip the host passes is moved in turn; records the line did not hand out are
// ignored. A zero offset changes nothing, not even by rounding.
Acad::ErrorStatus AecStructuralLine::subMoveGripPointsAt(const AcDbVoidPtrArray& gripAppData,
                                                         const AcGeVector3d& offset, const int)
{
    assertWriteEnabled();
    if (offset.isZeroLength())
        return Acad::eOk;
    Imp& imp = *m_imp;
    for (void* appData : gripAppData)
        if (imp.grips.Move(appData, offset, imp.startPoint, imp.endPoint))
            imp.Changed();
    return Acad::eOk;
}

Acad::ErrorStatus AecStructuralLine::subMoveGripPointsAt(const AcDbIntArray&, const AcGeVector3d&)
{
    return Acad::eNotImplementedYet;
}

void AecStructuralLine::subGripStatus(const AcDb::GripStat status)
{
    if (status == AcDb::kGripsToBeDeleted)
        m_imp->grips.Clear();
    QxPolylineBasedCurve::subGripStatus(status);
}
