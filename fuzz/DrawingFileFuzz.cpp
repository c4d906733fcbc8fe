// Feeds arbitrary bytes to the drawing-file reader. Whatever the bytes, reading must
// neither crash nor read out of bounds nor allocate beyond the input, and a drawing that
// was read must save and plot (proxies draw whatever graphics the file claimed).
#include <cstdint>
#include <memory>
#include <vector>

#include "AcDbDatabase.h"
#include "headless/CommandLine.h"
#include "headless/DrawingFile.h"
#include "headless/SvgPlot.h"

namespace {

// The host keeps the stubs of dead ids in a quarantine (of 65,536) before reusing them, so
// until it is full every run leaves a few stubs behind. libFuzzer sees more allocations
// than frees in such a run and scans the whole heap for leaks after it, which cost nine
// tenths of the time. One database with more ids than the quarantine holds fills it once.
void FillIdQuarantine()
{
    constexpr Adesk::UInt64 kIds = 70000;
    auto db = std::make_unique<AcDbDatabase>(false, true);
    for (Adesk::UInt64 handle = 1; handle <= kIds; ++handle) {
        AcDbObjectId id;
        db->getAcDbObjectId(id, true, AcDbHandle(handle));
    }
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    FillIdQuarantine();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    headless::CommandLineCapture quiet;
    const std::vector<std::uint8_t> bytes(data, data + size);
    AcDbDatabase* read = nullptr;
    if (headless::DrawingFile::read(bytes, read) != Acad::eOk)
        return 0;
    std::unique_ptr<AcDbDatabase> db(read);
    std::vector<std::uint8_t> again;
    headless::DrawingFile::write(db.get(), again);
    headless::SvgPlot::render(db.get());
    return 0;
}
