// Feeds arbitrary bytes to the filing readers of the lightweight polyline and the hatch
// through a memory filer: the first byte picks the class. Whatever the bytes, the read must
// neither crash nor read out of bounds nor allocate without bound, and what was read must
// answer its geometric questions and file out again.
#include <cstdint>
#include <vector>

#include "dbhatch.h"
#include "dbpl.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/RecordingWorldDraw.h"

namespace {

void exercise(AcDbPolyline& pline)
{
    double area = 0.0;
    pline.getArea(area);
    AcDbExtents extents;
    pline.getGeomExtents(extents);
    AcGePoint3d onCurve;
    pline.getClosestPointTo(AcGePoint3d(1, 2, 3), onCurve);
    double end = 0.0;
    double dist = 0.0;
    pline.getEndParam(end);
    pline.getDistAtParam(end / 2, dist);
    AcDbVoidPtrArray offsets;
    pline.getOffsetCurves(1.0, offsets);
    for (int i = 0; i < offsets.length(); ++i)
        delete static_cast<AcDbEntity*>(offsets[i]);
}

void exercise(AcDbHatch& hatch)
{
    double area = 0.0;
    hatch.getArea(area);
    AcDbExtents extents;
    hatch.getGeomExtents(extents);
    hatch.evaluateHatch();
    headless::RecordingWorldDraw draw;
    draw.drawDrawable(&hatch);
}

template <class T>
void readAndWrite(const std::vector<std::uint8_t>& bytes)
{
    headless::MemoryDwgFiler reader(bytes, AcDb::kFileFiler, nullptr);
    T entity;
    if (entity.dwgIn(&reader) == Acad::eOk)
        exercise(entity);
    headless::MemoryDwgFiler writer;
    entity.dwgOut(&writer);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const std::vector<std::uint8_t> bytes(data + 1, data + size);
    if (data[0] % 2 == 0)
        readAndWrite<AcDbPolyline>(bytes);
    else
        readAndWrite<AcDbHatch>(bytes);
    return 0;
}
