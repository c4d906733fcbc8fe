// AcDbLayerTableRecord: a layer's colour, linetype, lineweight and state flags.
#include "AcDbLayerTableRecord.h"

#include "DbChecks.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbLayerTableRecord, AcDbSymbolTableRecord, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0,
                        LAYER, HeadlessHost)

namespace {

// The state flags as they are filed, one bit each.
constexpr Adesk::UInt8 kOffBit = 0x1;
constexpr Adesk::UInt8 kFrozenBit = 0x2;
constexpr Adesk::UInt8 kLockedBit = 0x4;
// White: the colour of a new layer.
constexpr Adesk::UInt16 kDefaultLayerColorIndex = 7;

}  // namespace

AcDbLayerTableRecord::AcDbLayerTableRecord()
{
    m_color.setColorIndex(kDefaultLayerColorIndex);
}

AcDbLayerTableRecord::~AcDbLayerTableRecord() = default;

AcCmColor AcDbLayerTableRecord::color() const
{
    assertReadEnabled();
    return m_color;
}

Acad::ErrorStatus AcDbLayerTableRecord::setColor(const AcCmColor& color)
{
    assertWriteEnabled();
    if (color.isByLayer() || color.isByBlock())
        return Acad::eInvalidInput;
    m_color = color;
    return Acad::eOk;
}

AcDbObjectId AcDbLayerTableRecord::linetypeObjectId() const
{
    assertReadEnabled();
    return m_linetype;
}

Acad::ErrorStatus AcDbLayerTableRecord::setLinetypeObjectId(AcDbObjectId id)
{
    assertWriteEnabled();
    m_linetype = id;
    return Acad::eOk;
}

AcDb::LineWeight AcDbLayerTableRecord::lineWeight() const
{
    assertReadEnabled();
    return m_lineWeight;
}

Acad::ErrorStatus AcDbLayerTableRecord::setLineWeight(AcDb::LineWeight weight)
{
    assertWriteEnabled();
    if (!hostdb::isValidLineWeight(weight) || weight == AcDb::kLnWtByLayer || weight == AcDb::kLnWtByBlock)
        return Acad::eInvalidInput;
    m_lineWeight = weight;
    return Acad::eOk;
}

bool AcDbLayerTableRecord::isOff() const
{
    assertReadEnabled();
    return m_off;
}

void AcDbLayerTableRecord::setIsOff(bool off)
{
    assertWriteEnabled();
    m_off = off;
}

bool AcDbLayerTableRecord::isFrozen() const
{
    assertReadEnabled();
    return m_frozen;
}

Acad::ErrorStatus AcDbLayerTableRecord::setIsFrozen(bool frozen)
{
    assertWriteEnabled();
    m_frozen = frozen;
    return Acad::eOk;
}

bool AcDbLayerTableRecord::isLocked() const
{
    assertReadEnabled();
    return m_locked;
}

void AcDbLayerTableRecord::setIsLocked(bool locked)
{
    assertWriteEnabled();
    m_locked = locked;
}

Acad::ErrorStatus AcDbLayerTableRecord::dwgOutFields(AcDbDwgFiler* filer) const
{
    const Acad::ErrorStatus es = AcDbSymbolTableRecord::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeUInt32(m_color.color());
    filer->writeString(m_color.colorName());
    filer->writeString(m_color.bookName());
    filer->writeHardPointerId(m_linetype);
    filer->writeInt16(static_cast<Adesk::Int16>(m_lineWeight));
    const Adesk::UInt8 flags = static_cast<Adesk::UInt8>((m_off ? kOffBit : 0) | (m_frozen ? kFrozenBit : 0) |
                                                         (m_locked ? kLockedBit : 0));
    filer->writeUInt8(flags);
    return filer->filerStatus();
}

Acad::ErrorStatus AcDbLayerTableRecord::dwgInFields(AcDbDwgFiler* filer)
{
    const Acad::ErrorStatus es = AcDbSymbolTableRecord::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::UInt32 word = 0;
    AcString colorName;
    AcString bookName;
    AcDbHardPointerId linetype;
    Adesk::Int16 weight = 0;
    Adesk::UInt8 flags = 0;
    filer->readUInt32(&word);
    filer->readString(colorName);
    filer->readString(bookName);
    filer->readHardPointerId(&linetype);
    filer->readInt16(&weight);
    filer->readUInt8(&flags);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    AcCmColor color;
    if (color.setColor(word) != Acad::eOk || !hostdb::isValidLineWeight(weight)) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return filer->filerStatus();
    }
    color.setNames(colorName.isEmpty() ? nullptr : colorName.kwszPtr(),
                   bookName.isEmpty() ? nullptr : bookName.kwszPtr());
    m_color = color;
    m_linetype = linetype;
    m_lineWeight = static_cast<AcDb::LineWeight>(weight);
    m_off = (flags & kOffBit) != 0;
    m_frozen = (flags & kFrozenBit) != 0;
    m_locked = (flags & kLockedBit) != 0;
    return filer->filerStatus();
}
