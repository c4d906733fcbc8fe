// Filer streams written by hand as a list of values, each written with the filer's call
// for its type: Int32 for int, Double, Bool, String for text, the points and vectors, and
// the soft and hard pointer ids. Tests write hostile or older records with it, and spell
// out golden transcripts as such lists.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "AcDbDwgFiler.h"

namespace qxtest {

using FilerItem = std::variant<int, double, bool, const wchar_t*, AcGePoint2d, AcGePoint3d, AcGeVector2d, AcGeVector3d,
                               AcDbSoftPointerId, AcDbHardPointerId>;

void WriteItems(AcDbDwgFiler& filer, const std::vector<FilerItem>& items);

// The lines a recording filer logs for the items ("writeInt32 7", "writeString \"a\"" ...).
std::vector<std::string> ItemLines(const std::vector<FilerItem>& items);

}  // namespace qxtest
