// AecOverlapLine: filing. After the host curve's fields: the class version, the line's own
// fields as a typed-array record, the three JSON blocks without counts, then the data tree.
#include "AecOverlapLine.h"
#include "AecOverlapLineImp.h"
#include "LayoutLineGeometry.h"
#include "data/DwgFilerIoAdapter.h"
#include "data/TypedArrayRecord.h"
#include "dbfiler.h"

namespace {

// Places in the record's integers: the draw options, the four colours, the direction.
constexpr std::size_t kDrawOptionsAt = 0;
constexpr std::size_t kColorsAt = 1;
constexpr std::size_t kDirectionAt = 5;

}  // namespace

Acad::ErrorStatus AecOverlapLine::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    if (filer == nullptr || m_imp == nullptr || m_imp->owner == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = QxPolylineBasedCurve::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt32(kCurrentVersion);

    const Imp& imp = *m_imp;
    TypedArrayRecord record;
    record.ints = {static_cast<Adesk::Int32>(imp.drawOptions)};
    imp.display.AppendColorIndices(record.ints);
    record.ints.push_back(static_cast<Adesk::Int32>(imp.direction));
    record.doubles = {imp.overlapLeft, imp.overlapRight};
    imp.display.AppendLayerNames(record.strings);
    record.points = {imp.startPoint, imp.endPoint};
    DwgFilerIoAdapter io(filer);
    record.Write(io);
    imp.json.Write(io);

    DataNodeRoot::DataOut(filer);
    return filer->filerStatus();
}

// Values are taken by position as far as each stored count reaches: a record from a writer
// that stored five integers keeps the direction the line had. Non-finite widths and
// points are not taken (no writer makes them).
Acad::ErrorStatus AecOverlapLine::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    if (filer == nullptr || m_imp == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = QxPolylineBasedCurve::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int32 version = 0;
    filer->readInt32(&version);
    if (version > kCurrentVersion)
        return Acad::eMakeMeProxy;

    Imp& imp = *m_imp;
    const AcGeVector3d previous = imp.endPoint - imp.startPoint;
    DwgFilerIoAdapter io(filer);
    TypedArrayRecord record;
    record.Read(io);
    Adesk::Int32 value = 0;
    if (TypedArrayRecord::Take(record.ints, kDrawOptionsAt, value))
        imp.drawOptions = static_cast<OverlapDrawOptions>(value);
    imp.display.TakeColorIndices(record.ints, kColorsAt);
    if (TypedArrayRecord::Take(record.ints, kDirectionAt, value))
        imp.direction = static_cast<OverlapDirection>(value);
    TypedArrayRecord::TakeFinite(record.doubles, 0, imp.overlapLeft);
    TypedArrayRecord::TakeFinite(record.doubles, 1, imp.overlapRight);
    imp.display.TakeLayerNames(record.strings, 0);
    const std::vector<AcGePoint3d>& points = record.points;
    if (points.size() >= 2 && LayoutLineGeometry::IsFinite(points[0]) && LayoutLineGeometry::IsFinite(points[1])) {
        imp.startPoint = points[0];
        imp.endPoint = points[1];
    }
    imp.json.Read(io);

    DataNodeRoot::DataIn(filer);

    imp.startPoint.z = 0.0;
    imp.endPoint.z = 0.0;
    LayoutLineGeometry::ApplyLengthRule(imp.endPoint, imp.startPoint, previous);
    imp.Changed();
    return filer->filerStatus();
}
