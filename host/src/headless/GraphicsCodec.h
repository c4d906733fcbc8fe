// GraphicsCodec: recorded primitives through a filer, the form in which drawing files keep
// the graphics of custom entities and proxies carry them through undo and cloning.
// Counts are checked against the bytes that can still follow, so that a damaged record
// cannot make the reader allocate more than the record holds.
#pragma once

#include <cstddef>
#include <vector>

#include "AcDbDwgFiler.h"
#include "headless/RecordedPrimitive.h"

namespace hostfile {

class GraphicsCodec {
public:
    static Acad::ErrorStatus write(AcDbDwgFiler* filer, const std::vector<headless::RecordedPrimitive>& primitives);
    // budget: how many bytes can follow at most (the rest of the record).
    static Acad::ErrorStatus read(AcDbDwgFiler* filer, std::size_t budget,
                                  std::vector<headless::RecordedPrimitive>& primitives);
};

}  // namespace hostfile
