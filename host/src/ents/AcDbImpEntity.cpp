// AcDbImpEntity: the entity's display properties and their filing.
#include "AcDbImpEntity.h"

#include <cmath>

AcDbImpEntity::AcDbImpEntity()
{
    m_color.setColorIndex(AcCm::kACInone);
}

bool AcDbImpEntity::isValidLineWeight(int lineWeight)
{
    static constexpr int kValid[] = {
        AcDb::kLnWt000, AcDb::kLnWt005, AcDb::kLnWt009, AcDb::kLnWt013, AcDb::kLnWt015, AcDb::kLnWt018,
        AcDb::kLnWt020, AcDb::kLnWt025, AcDb::kLnWt030, AcDb::kLnWt035, AcDb::kLnWt040, AcDb::kLnWt050,
        AcDb::kLnWt053, AcDb::kLnWt060, AcDb::kLnWt070, AcDb::kLnWt080, AcDb::kLnWt090, AcDb::kLnWt100,
        AcDb::kLnWt106, AcDb::kLnWt120, AcDb::kLnWt140, AcDb::kLnWt158, AcDb::kLnWt200, AcDb::kLnWt211,
        AcDb::kLnWtByLayer, AcDb::kLnWtByBlock, AcDb::kLnWtByLwDefault,
    };
    for (int valid : kValid) {
        if (valid == lineWeight)
            return true;
    }
    return false;
}

// On file: version, colour word, colour name, book name, layer, linetype, linetype scale,
// lineweight, visibility.
Acad::ErrorStatus AcDbImpEntity::dwgOutFields(AcDbDwgFiler* filer) const
{
    filer->writeInt16(kFieldsVersion);
    filer->writeUInt32(m_color.getRGBM());
    filer->writeString(m_color.colorName());
    filer->writeString(m_color.bookName());
    filer->writeHardPointerId(m_layerId);
    filer->writeHardPointerId(m_linetypeId);
    filer->writeDouble(m_linetypeScale);
    filer->writeInt16(static_cast<Adesk::Int16>(m_lineWeight));
    filer->writeInt16(static_cast<Adesk::Int16>(m_visibility));
    return filer->filerStatus();
}

Acad::ErrorStatus AcDbImpEntity::dwgInFields(AcDbDwgFiler* filer)
{
    Adesk::Int16 version = 0;
    if (filer->readInt16(&version) != Acad::eOk)
        return filer->filerStatus();
    if (version > kFieldsVersion)
        return Acad::eMakeMeProxy;
    Adesk::UInt32 rgbm = 0;
    AcString colorName;
    AcString bookName;
    AcDbHardPointerId layerId;
    AcDbHardPointerId linetypeId;
    double linetypeScale = 1.0;
    Adesk::Int16 lineWeight = 0;
    Adesk::Int16 visibility = 0;
    filer->readUInt32(&rgbm);
    filer->readString(colorName);
    filer->readString(bookName);
    filer->readHardPointerId(&layerId);
    filer->readHardPointerId(&linetypeId);
    filer->readDouble(&linetypeScale);
    filer->readInt16(&lineWeight);
    filer->readInt16(&visibility);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();

    // Damaged values are refused whole: the entity keeps what it had.
    AcCmColor color;
    const Adesk::UInt32 method = rgbm >> 24;
    const bool valid = version >= 1 && method >= AcCm::kByLayer && method <= AcCm::kNone &&
                       color.setRGBM(rgbm) == Acad::eOk && std::isfinite(linetypeScale) &&
                       linetypeScale > 0.0 && isValidLineWeight(lineWeight) &&
                       (visibility == AcDb::kVisible || visibility == AcDb::kInvisible);
    if (!valid) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return Acad::eDwgObjectImproperlyRead;
    }
    if (!colorName.isEmpty())
        color.setNames(colorName.kwszPtr(), bookName.isEmpty() ? nullptr : bookName.kwszPtr());
    m_color = color;
    m_layerId = layerId;
    m_linetypeId = linetypeId;
    m_linetypeScale = linetypeScale;
    m_lineWeight = static_cast<AcDb::LineWeight>(lineWeight);
    m_visibility = static_cast<AcDb::Visibility>(visibility);
    return Acad::eOk;
}
