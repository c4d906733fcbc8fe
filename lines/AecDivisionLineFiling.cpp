// AecDivisionLine: filing. After the host curve's fields: the class version, the line's
// own fields as a typed-array record (nine counted groups, then the three JSON blocks
// without counts), then the data tree.
#include <cmath>
#include <vector>

#include "AecDivisionLine.h"
#include "AecDivisionLineImp.h"
#include "DivisionLineGeometry.h"
#include "data/DwgFilerIoAdapter.h"
#include "dbfiler.h"

namespace {

// The counts a version-1 record holds in each group.
constexpr Adesk::Int32 kBoolCount = 1;
constexpr Adesk::Int32 kIntCount = 5;
constexpr Adesk::Int32 kDoubleCount = 3;
constexpr Adesk::Int32 kStringCount = 4;
constexpr Adesk::Int32 kPoint3dCount = 3;

// Reads one group's count. A negative count cannot come from any writer: the record is
// damaged, the filer is told so and the group is read as empty.
Adesk::Int32 ReadCount(AcDbDwgFiler* filer, IDataIO& io)
{
    Adesk::Int32 count = 0;
    io.Read(count);
    if (count < 0) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return 0;
    }
    return count;
}

// Reads a group element by element, each into a fresh default, and hands the first
// `targets.size()` of them to `take`; the rest are dropped. Stops where the filer fails, so
// a hostile count costs no more than the data that is really there.
template <typename T, typename Take>
void ReadGroup(AcDbDwgFiler* filer, IDataIO& io, Take take)
{
    const Adesk::Int32 count = ReadCount(filer, io);
    for (Adesk::Int32 i = 0; i < count && filer->filerStatus() == Acad::eOk; ++i) {
        T value{};
        io.Read(value);
        if (filer->filerStatus() == Acad::eOk)
            take(i, value);
    }
}

bool IsFinite(const AcGePoint3d& p)
{
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

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
    DwgFilerIoAdapter io(filer);
    io.Write(kBoolCount);
    io.Write(imp.spareFlag);
    io.Write(kIntCount);
    io.Write(static_cast<Adesk::Int32>(imp.drawOptions));
    io.Write(static_cast<Adesk::Int32>(imp.jieDianTextColorIndex));
    io.Write(static_cast<Adesk::Int32>(imp.jieDianBoundaryColorIndex));
    io.Write(static_cast<Adesk::Int32>(imp.shouBianTextColorIndex));
    io.Write(static_cast<Adesk::Int32>(imp.shouBianLineColorIndex));
    io.Write(kDoubleCount);
    io.Write(imp.indentLeft);
    io.Write(imp.indentRight);
    io.Write(imp.bulge);
    io.Write(kStringCount);
    io.Write(imp.jieDianTextLayerName);
    io.Write(imp.jieDianBoundaryLayerName);
    io.Write(imp.shouBianTextLayerName);
    io.Write(imp.shouBianLineLayerName);
    io.Write(Adesk::Int32(0));  // 3D vectors
    io.Write(kPoint3dCount);
    io.Write(imp.startPoint);
    io.Write(imp.endPoint);
    io.Write(imp.boundaryIdentifierPoint);
    io.Write(Adesk::Int32(0));  // 2D points
    io.Write(std::vector<AcDbSoftPointerId>());
    io.Write(std::vector<AcDbHardPointerId>());
    io.Write(imp.nodeBasicJson);
    io.Write(imp.shouBianJson);
    io.Write(imp.accessoryJson);

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
    ReadGroup<bool>(filer, io, [&](Adesk::Int32 i, bool value) {
        if (i == 0)
            imp.spareFlag = value;
    });
    ReadGroup<Adesk::Int32>(filer, io, [&](Adesk::Int32 i, Adesk::Int32 value) {
        switch (i) {
        case 0: imp.drawOptions = static_cast<DrawOptions>(value); break;
        case 1: imp.jieDianTextColorIndex = value; break;
        case 2: imp.jieDianBoundaryColorIndex = value; break;
        case 3: imp.shouBianTextColorIndex = value; break;
        case 4: imp.shouBianLineColorIndex = value; break;
        default: break;
        }
    });
    ReadGroup<double>(filer, io, [&](Adesk::Int32 i, double value) {
        if (!std::isfinite(value))
            return;
        switch (i) {
        case 0: imp.indentLeft = value; break;
        case 1: imp.indentRight = value; break;
        case 2: imp.bulge = DivisionLineGeometry::ClampBulge(value); break;
        default: break;
        }
    });
    ReadGroup<AcString>(filer, io, [&](Adesk::Int32 i, const AcString& value) {
        switch (i) {
        case 0: imp.jieDianTextLayerName = value; break;
        case 1: imp.jieDianBoundaryLayerName = value; break;
        case 2: imp.shouBianTextLayerName = value; break;
        case 3: imp.shouBianLineLayerName = value; break;
        default: break;
        }
    });
    ReadGroup<AcGeVector3d>(filer, io, [](Adesk::Int32, const AcGeVector3d&) {});
    AcGePoint3d points[kPoint3dCount];
    Adesk::Int32 pointCount = 0;
    ReadGroup<AcGePoint3d>(filer, io, [&](Adesk::Int32 i, const AcGePoint3d& value) {
        if (i < kPoint3dCount)
            points[i] = value;
        pointCount = i + 1;
    });
    if (pointCount >= kPoint3dCount && IsFinite(points[0]) && IsFinite(points[1]) && IsFinite(points[2])) {
        imp.startPoint = points[0];
        imp.endPoint = points[1];
        imp.boundaryIdentifierPoint = points[2];
    }
    ReadGroup<AcGePoint2d>(filer, io, [](Adesk::Int32, const AcGePoint2d&) {});
    ReadGroup<AcDbSoftPointerId>(filer, io, [](Adesk::Int32, const AcDbSoftPointerId&) {});
    ReadGroup<AcDbHardPointerId>(filer, io, [](Adesk::Int32, const AcDbHardPointerId&) {});
    io.Read(imp.nodeBasicJson);
    io.Read(imp.shouBianJson);
    io.Read(imp.accessoryJson);

    DataNodeRoot::DataIn(filer);

    imp.startPoint.z = 0.0;
    imp.endPoint.z = 0.0;
    DivisionLineGeometry::ApplyLengthRule(imp.endPoint, imp.startPoint, previous);
    imp.Refresh();
    return filer->filerStatus();
}
