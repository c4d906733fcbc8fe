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

// kVerbose: drawings of format 1.0 give every primitive all five lists, a whole text style
// and all traits. kCompact: a primitive says which parts follow; a text style only where
// one is not the default, traits only where they change from the primitive before, points
// in the plane z = 0 without their z, numbers that are zero as one bit, counts and integers
// in as many bytes as they need. Both read back exactly what was written.
enum class GraphicsForm { kVerbose, kCompact };

class GraphicsCodec {
public:
    // Always the compact form.
    static Acad::ErrorStatus write(AcDbDwgFiler* filer, const std::vector<headless::RecordedPrimitive>& primitives);
    // budget: how many bytes can follow at most (the rest of the record).
    static Acad::ErrorStatus read(AcDbDwgFiler* filer, std::size_t budget,
                                  std::vector<headless::RecordedPrimitive>& primitives,
                                  GraphicsForm form = GraphicsForm::kCompact);
};

}  // namespace hostfile
