// Feeds arbitrary bytes to the drawing-file reader. Whatever the bytes, reading must
// neither crash nor read out of bounds nor allocate beyond the input, and a drawing that
// was read must save and plot (proxies draw whatever graphics the file claimed).
#include <cstdint>
#include <memory>
#include <vector>

#include "headless/CommandLine.h"
#include "headless/DrawingFile.h"
#include "headless/SvgPlot.h"
#include "support/FuzzDrawing.h"
#include "support/SealedDrawing.h"

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzzing::WorkingDrawing();  // the module's classes read their own records
    fuzzing::FillIdQuarantine();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    headless::CommandLineCapture quiet;
#ifdef FUZZING_BUILD_MODE_UNSAFE_FOR_PRODUCTION
    const std::vector<std::uint8_t> bytes(data, data + size);
#else
    // Replayed in an ordinary build, whose reader checks the checksums the fuzzer's did not.
    const std::vector<std::uint8_t> bytes = fuzzing::SealedDrawing({data, data + size});
#endif
    AcDbDatabase* read = nullptr;
    if (headless::DrawingFile::read(bytes, read) != Acad::eOk)
        return 0;
    std::unique_ptr<AcDbDatabase> db(read);
    std::vector<std::uint8_t> again;
    headless::DrawingFile::write(db.get(), again);
    headless::SvgPlot::render(db.get());
    return 0;
}
