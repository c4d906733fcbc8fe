// AecLayoutBoundaryImp: the layout boundary's implementation object: its record, its
// filing and the title it draws. Kept apart so that the entity's own layout stays that of
// the polyline; a copy made on its own belongs to no entity.
#pragma once

#include "LayoutBoundaryData.h"

class AcGiWorldDraw;
class AecLayoutBoundary;

class AecLayoutBoundaryImp {
public:
    static constexpr Adesk::Int32 kVersion_1 = 1;
    static constexpr Adesk::Int32 kCurrentVersion = kVersion_1;

    explicit AecLayoutBoundaryImp(AecLayoutBoundary* owner = nullptr);
    // The copy has the data and no entity; assignment copies the data only.
    AecLayoutBoundaryImp(const AecLayoutBoundaryImp& other);
    AecLayoutBoundaryImp& operator=(const AecLayoutBoundaryImp& other);
    ~AecLayoutBoundaryImp();

    AecLayoutBoundary* GetOwner() const { return m_owner; }

    // Reading and writing go through the entity's open state when there is an entity.
    const LayoutBoundaryData& GetData() const;
    void SetData(const LayoutBoundaryData& data);
    // The data follows m; the entity's own transformation leaves the data alone.
    void TransformBy(const AcGeMatrix3d& m);

    // The title at the centre of the entity's extents plus the title offset, in the text
    // primitive's current style; nothing without an entity, extents, a visible title, a
    // text, a positive height or a direction.
    void WorldDraw(AcGiWorldDraw* worldDraw) const;

    // Its version (1), then the data. Reading refuses a newer version with eMakeMeProxy.
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer);

private:
    AecLayoutBoundary* m_owner;
    LayoutBoundaryData m_data;
};
