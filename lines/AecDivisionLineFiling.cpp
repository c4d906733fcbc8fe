// AecDivisionLine: filing. After the host curve's fields: the class version, the line's
// own fields as a typed-array record, the three JSON blocks without counts, then the data
// tree.
#include "AecDivisionLine.h"
#include "AecDivisionLineImp.h"
#include "DivisionLineGeometry.h"
#include "LayoutLineGeometry.h"
#include "data/DwgFilerIoAdapter.h"
#include "data/TypedArrayRecord.h"
#include "dbfiler.h"

namespace {

// The record holds the start, end and identifier points in this order; fewer points are
// no geometry.
constexpr std::size_t kPointCount = 3;

}  // namespace

Acad::ErrorStatus AecDivisionLine::dwgOutFields(AcDbDwgFiler* filer) const
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
    record.bools = {imp.spareFlag};
    record.ints = {static_cast<Adesk::Int32>(imp.drawOptions)};
    imp.display.AppendColorIndices(record.ints);
    record.doubles = {imp.indentLeft, imp.indentRight, imp.bulge};
    imp.display.AppendLayerNames(record.strings);
    record.points = {imp.startPoint, imp.endPoint, imp.boundaryIdentifierPoint};
    DwgFilerIoAdapter io(filer);
    record.Write(io);
    imp.json.Write(io);

    DataNodeRoot::DataOut(filer);
    return filer->filerStatus();
}

// Values are taken by position as far as each stored count reaches; whatever a shorter
// record lacks keeps the value the line held. Non-finite lengths and points are not
// taken (no writer makes them), and a stored bulge is held to the usual limits.
Acad::ErrorStatus AecDivisionLine::dwgInFields(AcDbDwgFiler* filer)
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
    const AcGeVector3d previous = imp.Direction();
    DwgFilerIoAdapter io(filer);
    TypedArrayRecord record;
    record.Read(io);
    TypedArrayRecord::Take(record.bools, 0, imp.spareFlag);
    Adesk::Int32 options = 0;
    if (TypedArrayRecord::Take(record.ints, 0, options))
        imp.drawOptions = static_cast<DrawOptions>(options);
    imp.display.TakeColorIndices(record.ints, 1);
    TypedArrayRecord::TakeFinite(record.doubles, 0, imp.indentLeft);
    TypedArrayRecord::TakeFinite(record.doubles, 1, imp.indentRight);
    double bulge = 0.0;
    if (TypedArrayRecord::TakeFinite(record.doubles, 2, bulge))
        imp.bulge = DivisionLineGeometry::ClampBulge(bulge);
    imp.display.TakeLayerNames(record.strings, 0);
    const std::vector<AcGePoint3d>& points = record.points;
    if (points.size() >= kPointCount && LayoutLineGeometry::IsFinite(points[0]) &&
        LayoutLineGeometry::IsFinite(points[1]) && LayoutLineGeometry::IsFinite(points[2])) {
        imp.startPoint = points[0];
        imp.endPoint = points[1];
        imp.boundaryIdentifierPoint = points[2];
    }
    imp.json.Read(io);

    DataNodeRoot::DataIn(filer);

    imp.startPoint.z = 0.0;
    imp.endPoint.z = 0.0;
    LayoutLineGeometry::ApplyLengthRule(imp.endPoint, imp.startPoint, previous);
    imp.Refresh();
    return filer->filerStatus();
}
