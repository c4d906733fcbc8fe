// AecLayoutBoundary: the outline inside which panels are laid out (布置轮廓). A plain host
// polyline that also carries a LayoutBoundaryData, held by its implementation object, and
// draws that record's title at the centre of its extents.
#pragma once

#include "AecLayoutBoundaryImp.h"
#include "dbpl.h"

class AecLayoutBoundary : public AcDbPolyline {
public:
    ACRX_DECLARE_MEMBERS(AecLayoutBoundary);

    // The version filed first after the polyline's fields: the implementation's.
    static constexpr Adesk::Int32 kCurrentVersion = AecLayoutBoundaryImp::kCurrentVersion;

    AecLayoutBoundary();
    ~AecLayoutBoundary() override;
    AecLayoutBoundary(const AecLayoutBoundary&) = delete;
    AecLayoutBoundary& operator=(const AecLayoutBoundary&) = delete;

    AecLayoutBoundaryImp* GetImp() const { return m_imp; }

    // The polyline's fields, then the implementation's; eNullObjectPointer without a filer
    // or an implementation.
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;

protected:
    // The polyline, then the title; answers the polyline's answer.
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    // Refused on purpose (eNotApplicable): the boundary has no class identifier of its own.
    Acad::ErrorStatus subGetClassID(CLSID* classId) const override;

private:
    AecLayoutBoundaryImp* m_imp;
};
