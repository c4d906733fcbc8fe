// Filer streams written by hand.
#include "FilerScript.h"

#include "AcString.h"
#include "headless/RecordingDwgFiler.h"

namespace qxtest {
namespace {

struct ItemWriter {
    AcDbDwgFiler& filer;
    void operator()(int value) { filer.writeInt32(value); }
    void operator()(double value) { filer.writeDouble(value); }
    void operator()(bool value) { filer.writeBool(value); }
    void operator()(const wchar_t* value) { filer.writeString(AcString(value)); }
    void operator()(const AcGePoint2d& value) { filer.writePoint2d(value); }
    void operator()(const AcGePoint3d& value) { filer.writePoint3d(value); }
    void operator()(const AcGeVector2d& value) { filer.writeVector2d(value); }
    void operator()(const AcGeVector3d& value) { filer.writeVector3d(value); }
    void operator()(const AcDbSoftPointerId& value) { filer.writeSoftPointerId(value); }
    void operator()(const AcDbHardPointerId& value) { filer.writeHardPointerId(value); }
};

}  // namespace

void WriteItems(AcDbDwgFiler& filer, const std::vector<FilerItem>& items)
{
    for (const FilerItem& item : items)
        std::visit(ItemWriter{filer}, item);
}

std::vector<std::string> ItemLines(const std::vector<FilerItem>& items)
{
    headless::RecordingDwgFiler filer;
    WriteItems(filer, items);
    return filer.lines();
}

}  // namespace qxtest
