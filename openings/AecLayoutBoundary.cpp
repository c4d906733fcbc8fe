// AecLayoutBoundary: filing on the polyline's fields, and the title drawn after the
// polyline.
#include "AecLayoutBoundary.h"

#include "acgi.h"
#include "app/ModuleClassFlags.h"

ACRX_DXF_DEFINE_MEMBERS(AecLayoutBoundary, AcDbPolyline, Quarvo::kClassDwgVersion, Quarvo::kClassMaintenanceVersion,
                        Quarvo::kClassProxyFlags, QX_LAYOUT_BOUNDARY, QX_AEC_DB_APP)

AecLayoutBoundary::AecLayoutBoundary() : m_imp(new AecLayoutBoundaryImp(this)) {}

AecLayoutBoundary::~AecLayoutBoundary()
{
    delete m_imp;
    m_imp = nullptr;
}

Acad::ErrorStatus AecLayoutBoundary::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    if (filer == nullptr || m_imp == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = AcDbPolyline::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    return m_imp->dwgOutFields(filer);
}

Acad::ErrorStatus AecLayoutBoundary::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    if (filer == nullptr || m_imp == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = AcDbPolyline::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    return m_imp->dwgInFields(filer);
}

Adesk::Boolean AecLayoutBoundary::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    const Adesk::Boolean done = AcDbPolyline::subWorldDraw(worldDraw);
    if (m_imp != nullptr && !worldDraw->regenAbort())
        m_imp->WorldDraw(worldDraw);
    return done;
}

Acad::ErrorStatus AecLayoutBoundary::subGetClassID(CLSID*) const
{
    return Acad::eNotApplicable;
}
