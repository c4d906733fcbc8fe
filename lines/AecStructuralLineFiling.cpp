// AecStructuralLine: filing. After the host curve's fields: the class version, the line's
// own fields as a typed-array record, the three JSON blocks without counts, then the data
// tree.
#include "AecStructuralLine.h"
#include "AecStructuralLineImp.h"
#include "LayoutLineGeometry.h"
#include "data/DwgFilerIoAdapter.h"
#include "data/TypedArrayRecord.h"
#include "dbfiler.h"

namespace {

// Places in the record's integers: the draw options, the member type, the four colours.
constexpr std::size_t kDrawOptionsAt = 0;
constexpr std::size_t kMemberTypeAt = 1;
constexpr std::size_t kColorsAt = 2;

}  // namespace

Acad::ErrorStatus AecStructuralLine::dwgOutFields(AcDbDwgFiler* filer) const
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
    record.ints = {static_cast<Adesk::Int32>(imp.drawOptions), static_cast<Adesk::Int32>(imp.memberType)};
    imp.display.AppendColorIndices(record.ints);
    record.doubles = {imp.memberWidthLeft, imp.memberWidthRight, imp.indentLeft, imp.indentRight};
    imp.display.AppendLayerNames(record.strings);
    record.points = {imp.startPoint, imp.endPoint};
    DwgFilerIoAdapter io(filer);
    record.Write(io);
    imp.json.Write(io);

    DataNodeRoot::DataOut(filer);
    return filer->filerStatus();
}

// Values are taken by position as far as each stored count reaches; whatever a shorter
// record lacks keeps the value the line held. Non-finite lengths and points are not taken
// (no writer makes them).
Acad::ErrorStatus AecStructuralLine::dwgInFields(AcDbDwgFiler* filer)
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
        imp.drawOptions = static_cast<StructuralDrawOptions>(value);
    if (TypedArrayRecord::Take(record.ints, kMemberTypeAt, value))
        imp.memberType = static_cast<StructuralMemberType>(value);
    imp.display.TakeColorIndices(record.ints, kColorsAt);
    TypedArrayRecord::TakeFinite(record.doubles, 0, imp.memberWidthLeft);
    TypedArrayRecord::TakeFinite(record.doubles, 1, imp.memberWidthRight);
    TypedArrayRecord::TakeFinite(record.doubles, 2, imp.indentLeft);
    TypedArrayRecord::TakeFinite(record.doubles, 3, imp.indentRight);
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
