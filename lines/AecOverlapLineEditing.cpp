// AecOverlapLine: editing through the host: transformation, stretch and the three grips.
#include "AecOverlapLine.h"
#include "AecOverlapLineImp.h"
#include "LayoutLineGeometry.h"

Acad::ErrorStatus AecOverlapLine::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    Imp& imp = *m_imp;
    LayoutLineGeometry::TransformEnds(xform, imp.startPoint, imp.endPoint);
    LayoutLineGeometry::TransformWidths(xform, imp.overlapLeft, imp.overlapRight);
    imp.Changed();
    return Acad::eOk;
}

QX_DEFINE_LINE_STRETCH(AecOverlapLine, Changed)

QX_DEFINE_STRAIGHT_LINE_GRIPS(AecOverlapLine, Changed)
