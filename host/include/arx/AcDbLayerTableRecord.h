// AcDbLayerTableRecord: a layer: its colour, linetype and lineweight, which entities "by
// layer" take, and whether it is off, frozen or locked.
#pragma once

#include "AcDbSymbolTableRecord.h"
#include "dbcolor.h"

class ACHOST_API AcDbLayerTableRecord : public AcDbSymbolTableRecord {
    ACRX_DECLARE_MEMBERS(AcDbLayerTableRecord);

public:
    // White (index 7), no linetype until one is set, the default lineweight, on, thawed,
    // unlocked.
    AcDbLayerTableRecord();
    ~AcDbLayerTableRecord() override;

    AcCmColor color() const;
    // eInvalidInput for by layer and by block: a layer's colour is a colour.
    Acad::ErrorStatus setColor(const AcCmColor& color);
    AcDbObjectId linetypeObjectId() const;
    Acad::ErrorStatus setLinetypeObjectId(AcDbObjectId id);
    AcDb::LineWeight lineWeight() const;
    // eInvalidInput for by layer and by block.
    Acad::ErrorStatus setLineWeight(AcDb::LineWeight weight);

    bool isOff() const;
    void setIsOff(bool off);
    bool isFrozen() const;
    Acad::ErrorStatus setIsFrozen(bool frozen);
    bool isLocked() const;
    void setIsLocked(bool locked);

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

private:
    AcCmColor m_color;
    AcDbObjectId m_linetype;
    AcDb::LineWeight m_lineWeight = AcDb::kLnWtByLwDefault;
    bool m_off = false;
    bool m_frozen = false;
    bool m_locked = false;
};
