// LineDisplaySettings: the colour clamp, the settings' places in a record, and the two
// styles the lines draw with.
#include "LineDisplaySettings.h"

#include "AcGiSubEntityTraits.h"
#include "Qx/LinetypeUtil.h"
#include "data/PackedColor.h"
#include "data/TypedArrayRecord.h"
#include "dbmain.h"
#include "dbsymtb.h"

namespace {

constexpr int kLowestColorIndex = 0;
constexpr int kHighestColorIndex = 256;

const ACHAR* const kDashedLinetype = L"DASHED";

AcCmEntityColor TrueColorOf(int index)
{
    return PackedColor::FromLegacyInt(index).ToAcCmEntityColor();
}

}  // namespace

int LineDisplaySettings::ClampColorIndex(int index)
{
    return index < kLowestColorIndex || index > kHighestColorIndex ? 0 : index;
}

void LineDisplaySettings::AppendColorIndices(std::vector<Adesk::Int32>& ints) const
{
    ints.insert(ints.end(),
                {jieDianTextColorIndex, jieDianBoundaryColorIndex, shouBianTextColorIndex, shouBianLineColorIndex});
}

void LineDisplaySettings::TakeColorIndices(const std::vector<Adesk::Int32>& ints, std::size_t first)
{
    TypedArrayRecord::Take(ints, first, jieDianTextColorIndex);
    TypedArrayRecord::Take(ints, first + 1, jieDianBoundaryColorIndex);
    TypedArrayRecord::Take(ints, first + 2, shouBianTextColorIndex);
    TypedArrayRecord::Take(ints, first + 3, shouBianLineColorIndex);
}

void LineDisplaySettings::AppendLayerNames(std::vector<AcString>& strings) const
{
    strings.insert(strings.end(),
                   {jieDianTextLayerName, jieDianBoundaryLayerName, shouBianTextLayerName, shouBianLineLayerName});
}

void LineDisplaySettings::TakeLayerNames(const std::vector<AcString>& strings, std::size_t first)
{
    TypedArrayRecord::Take(strings, first, jieDianTextLayerName);
    TypedArrayRecord::Take(strings, first + 1, jieDianBoundaryLayerName);
    TypedArrayRecord::Take(strings, first + 2, shouBianTextLayerName);
    TypedArrayRecord::Take(strings, first + 3, shouBianLineLayerName);
}

void LineDisplaySettings::ApplyBoundaryStyle(AcGiSubEntityTraits& traits, AcDbDatabase* db) const
{
    const AcDbObjectId layer = FindLayer(db, jieDianBoundaryLayerName);
    if (!layer.isNull())
        traits.setLayer(layer);
    if (jieDianBoundaryColorIndex != 0)
        traits.setTrueColor(TrueColorOf(jieDianBoundaryColorIndex));
}

void LineDisplaySettings::ApplyBoundaryStyle(AcDbEntity& piece, AcDbDatabase* db) const
{
    const AcDbObjectId layer = FindLayer(db, jieDianBoundaryLayerName);
    if (!layer.isNull())
        piece.setLayer(layer);
    if (jieDianBoundaryColorIndex != 0)
        piece.setColorIndex(static_cast<Adesk::UInt16>(jieDianBoundaryColorIndex));
}

void LineDisplaySettings::ApplyShouBianLineStyle(AcGiSubEntityTraits& traits, AcDbDatabase* db,
                                                 double linetypeScale) const
{
    const AcDbObjectId layer = FindLayer(db, shouBianLineLayerName);
    if (!layer.isNull())
        traits.setLayer(layer);
    if (shouBianLineColorIndex != 0)
        traits.setTrueColor(TrueColorOf(shouBianLineColorIndex));
    const AcDbObjectId dashed = FindLinetype(db, kDashedLinetype);
    if (!dashed.isNull())
        traits.setLineType(dashed);
    traits.setLineTypeScale(linetypeScale);
}

void LineDisplaySettings::ApplyShouBianLineStyle(AcDbEntity& piece, AcDbDatabase* db) const
{
    const AcDbObjectId layer = FindLayer(db, shouBianLineLayerName);
    if (!layer.isNull())
        piece.setLayer(layer);
    if (shouBianLineColorIndex != 0)
        piece.setColorIndex(static_cast<Adesk::UInt16>(shouBianLineColorIndex));
    const AcDbObjectId dashed = FindLinetype(db, kDashedLinetype);
    if (!dashed.isNull())
        piece.setLinetype(dashed);
}

AcDbObjectId LineDisplaySettings::FindLayer(AcDbDatabase* db, const AcString& name)
{
    if (name.isEmpty() || db == nullptr)
        return AcDbObjectId::kNull;
    AcDbLayerTable* layers = nullptr;
    if (db->getLayerTable(layers, AcDb::kForRead) != Acad::eOk || layers == nullptr)
        return AcDbObjectId::kNull;
    AcDbObjectId id;
    if (layers->getAt(name.kwszPtr(), id) != Acad::eOk)
        id = AcDbObjectId::kNull;
    layers->close();
    return id;
}

AcDbObjectId LineDisplaySettings::FindLinetype(AcDbDatabase* db, const ACHAR* name)
{
    if (db == nullptr)
        return AcDbObjectId::kNull;
    return Qx::LinetypeUtil::GetLinetype(name, db);
}
