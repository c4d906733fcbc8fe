// Filer streams written by hand.
#include "FilerScript.h"

#include "AcString.h"
#include "headless/RecordingDwgFiler.h"

namespace qxtest {

void WriteItems(AcDbDwgFiler& filer, const std::vector<FilerItem>& items)
{
    for (const FilerItem& item : items) {
        if (const int* i = std::get_if<int>(&item))
            filer.writeInt32(*i);
        else if (const double* d = std::get_if<double>(&item))
            filer.writeDouble(*d);
        else if (const bool* b = std::get_if<bool>(&item))
            filer.writeBool(*b);
        else if (const wchar_t* const* text = std::get_if<const wchar_t*>(&item))
            filer.writeString(AcString(*text));
        else if (const AcGePoint3d* point = std::get_if<AcGePoint3d>(&item))
            filer.writePoint3d(*point);
        else if (const AcGeVector3d* vector = std::get_if<AcGeVector3d>(&item))
            filer.writeVector3d(*vector);
        else
            filer.writeSoftPointerId(std::get<AcDbSoftPointerId>(item));
    }
}

std::vector<std::string> ItemLines(const std::vector<FilerItem>& items)
{
    headless::RecordingDwgFiler filer;
    WriteItems(filer, items);
    return filer.lines();
}

}  // namespace qxtest
