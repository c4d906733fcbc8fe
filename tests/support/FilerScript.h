// Filer streams written by hand as a list of values, each written with the filer's call
// for its type: Int32 for int, Double, Bool, String for text, Point3d, Vector3d and
// SoftPointerId. Tests write hostile or older records with it, and spell out golden
// transcripts as such lists.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "AcDbDwgFiler.h"

namespace qxtest {

using FilerItem = std::variant<int, double, bool, const wchar_t*, AcGePoint3d, AcGeVector3d, AcDbSoftPointerId>;

void WriteItems(AcDbDwgFiler& filer, const std::vector<FilerItem>& items);

// The lines a recording filer logs for the items ("writeInt32 7", "writeString \"a\"" ...).
std::vector<std::string> ItemLines(const std::vector<FilerItem>& items);

}  // namespace qxtest
