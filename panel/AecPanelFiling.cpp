// AecPanel: filing. After the host entity's fields: the version, the loops, labels and six
// information texts through the data channel (each loop, each vertex and the panel record
// preceded by an empty typed-array record kept for later fields), the loop polylines and
// the hatch filed whole, then the data tree.
#include <cmath>
#include <memory>

#include "AecPanel.h"
#include "AecPanelImp.h"
#include "data/DwgFilerIoAdapter.h"
#include "data/TypedArrayRecord.h"
#include "dbfiler.h"

using DbxPanel::PanelLoop;
using DbxPanel::PanelVertex;

namespace {

// What the implementation record holds, read in full before the panel takes any of it.
struct PanelRecord {
    std::vector<PanelLoop> loops;
    std::vector<DbxPanel::TextLabel> labels;
    AcString texts[6];
    std::vector<std::shared_ptr<AcDbPolyline>> polylines;
    bool hatchDisplayEnabled = true;
    std::shared_ptr<AcDbHatch> hatch;
};

bool Healthy(AcDbDwgFiler* filer)
{
    return filer->filerStatus() == Acad::eOk;
}

// A count that cannot come from any writer marks the record damaged.
bool TakeCount(AcDbDwgFiler* filer, Adesk::Int32 count)
{
    if (count >= 0)
        return true;
    filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
    return false;
}

// Reads and forgets one reserved record.
bool SkipReserved(DwgFilerIoAdapter& io)
{
    TypedArrayRecord reserved;
    return reserved.Read(io) == Acad::eOk;
}

bool ReadRecord(AcDbDwgFiler* filer, PanelRecord& record)
{
    DwgFilerIoAdapter io(filer);
    Adesk::Int32 loopCount = 0;
    io.Read(loopCount);
    if (!Healthy(filer) || !TakeCount(filer, loopCount))
        return false;
    // Counts are trusted only as far as the data really goes: each item is read before the
    // next is made room for.
    for (Adesk::Int32 i = 0; i < loopCount; ++i) {
        if (!SkipReserved(io))
            return false;
        Adesk::Int32 vertexCount = 0;
        io.Read(vertexCount);
        if (!Healthy(filer) || !TakeCount(filer, vertexCount))
            return false;
        PanelLoop loop;
        for (Adesk::Int32 v = 0; v < vertexCount; ++v) {
            if (!SkipReserved(io))
                return false;
            PanelVertex vertex;
            io.Read(vertex.point);
            io.Read(vertex.bulge);
            if (!Healthy(filer))
                return false;
            loop.push_back(vertex);
        }
        record.loops.push_back(std::move(loop));
    }
    Adesk::Int32 labelCount = 0;
    io.Read(labelCount);
    if (!Healthy(filer) || !TakeCount(filer, labelCount))
        return false;
    for (Adesk::Int32 i = 0; i < labelCount; ++i) {
        DbxPanel::TextLabel label;
        if (!label.DataIn(&io) || !Healthy(filer)) {
            if (Healthy(filer))
                filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
            return false;
        }
        record.labels.push_back(label);
    }
    if (!SkipReserved(io))
        return false;
    for (AcString& text : record.texts)
        io.Read(text);
    if (!Healthy(filer))
        return false;

    Adesk::Int32 polylineCount = 0;
    filer->readInt32(&polylineCount);
    if (!Healthy(filer) || !TakeCount(filer, polylineCount))
        return false;
    for (Adesk::Int32 i = 0; i < polylineCount; ++i) {
        auto polyline = std::make_shared<AcDbPolyline>();
        if (polyline->dwgIn(filer) != Acad::eOk || !Healthy(filer)) {
            if (Healthy(filer))
                filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
            return false;
        }
        record.polylines.push_back(std::move(polyline));
    }
    bool present = false;
    filer->readBool(&record.hatchDisplayEnabled);
    filer->readBool(&present);
    if (!Healthy(filer))
        return false;
    if (present) {
        auto hatch = std::make_shared<AcDbHatch>();
        if (hatch->dwgIn(filer) != Acad::eOk || !Healthy(filer)) {
            if (Healthy(filer))
                filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
            return false;
        }
        record.hatch = std::move(hatch);
    }
    return true;
}

}  // namespace

Acad::ErrorStatus AecPanel::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = AcDbEntity::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt32(kCurrentVersion);

    const Imp& imp = *m_imp;
    DwgFilerIoAdapter io(filer);
    const TypedArrayRecord reserved;
    io.Write(static_cast<Adesk::Int32>(imp.loops.size()));
    for (const PanelLoop& loop : imp.loops) {
        reserved.Write(io);
        io.Write(static_cast<Adesk::Int32>(loop.size()));
        for (const PanelVertex& vertex : loop) {
            reserved.Write(io);
            io.Write(vertex.point);
            io.Write(vertex.bulge);
        }
    }
    io.Write(static_cast<Adesk::Int32>(imp.labels.size()));
    for (const DbxPanel::TextLabel& label : imp.labels)
        label.DataOut(&io);
    reserved.Write(io);
    for (const AcString* text :
         {&imp.basicInfo, &imp.numberingInfo, &imp.hatchInfo, &imp.mergeInfo, &imp.shapeInfo, &imp.accessoryInfo})
        io.Write(*text);

    filer->writeInt32(static_cast<Adesk::Int32>(imp.loopPolylines.size()));
    for (const auto& polyline : imp.loopPolylines)
        polyline->dwgOut(filer);
    filer->writeBool(imp.hatchDisplayEnabled);
    filer->writeBool(imp.hatch != nullptr);
    if (imp.hatch != nullptr)
        imp.hatch->dwgOut(filer);

    DataNodeRoot::DataOut(filer);
    return filer->filerStatus();
}

// A damaged or cut record changes nothing: everything is read first and taken only when
// the whole of it was read.
Acad::ErrorStatus AecPanel::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    if (filer == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = AcDbEntity::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int32 version = 0;
    filer->readInt32(&version);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (version > kCurrentVersion)
        return Acad::eMakeMeProxy;

    PanelRecord record;
    if (!ReadRecord(filer, record))
        return filer->filerStatus() != Acad::eOk ? filer->filerStatus() : Acad::eDwgObjectImproperlyRead;

    Imp& imp = *m_imp;
    imp.loops = std::move(record.loops);
    imp.labels = std::move(record.labels);
    AcString* texts[] = {&imp.basicInfo, &imp.numberingInfo, &imp.hatchInfo,
                         &imp.mergeInfo, &imp.shapeInfo,     &imp.accessoryInfo};
    for (int i = 0; i < 6; ++i)
        *texts[i] = record.texts[i];
    imp.loopPolylines = std::move(record.polylines);
    imp.hatchDisplayEnabled = record.hatchDisplayEnabled;
    imp.hatch = std::move(record.hatch);
    imp.hatchPresent = imp.hatch != nullptr;
    imp.hatchInputs = 0;

    DataNodeRoot::DataIn(filer);
    return filer->filerStatus();
}
