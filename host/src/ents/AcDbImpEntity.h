// AcDbImpEntity: the private state of every entity: its display properties, and how they
// are filed after the object's own fields.
#pragma once

#include "AcCmColor.h"
#include "AcDbEntity.h"

class AcDbImpEntity {
public:
    // The version of the common entity fields on file; a newer one makes the object a proxy.
    static constexpr Adesk::Int16 kFieldsVersion = 1;

    AcDbImpEntity();

    static AcDbImpEntity* of(const AcDbEntity* entity) { return entity->m_entityImp; }

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer);

    static bool isValidLineWeight(int lineWeight);

    // A fresh entity has colour index 257: no colour until database defaults are applied.
    AcCmColor m_color;
    AcDbObjectId m_layerId;
    AcDbObjectId m_linetypeId;
    double m_linetypeScale = 1.0;
    AcDb::LineWeight m_lineWeight = AcDb::kLnWtByLayer;
    AcDb::Visibility m_visibility = AcDb::kVisible;
};
