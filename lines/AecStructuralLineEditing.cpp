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

QX_DEFINE_LINE_STRETCH(AecStructuralLine, Changed)

QX_DEFINE_STRAIGHT_LINE_GRIPS(AecStructuralLine, Changed)
