// Feeds arbitrary bytes to the panel text label's reader through a memory filer. Whatever
// the bytes, the read must neither crash nor read out of bounds nor spin on a hostile
// count, and a label that was read must file out the same way twice.
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "data/DwgFilerIoAdapter.h"
#include "geometry/TextLabel.h"
#include "headless/MemoryDwgFiler.h"

namespace {

std::vector<std::uint8_t> FiledOut(const DbxPanel::TextLabel& label)
{
    headless::MemoryDwgFiler filer;
    DwgFilerIoAdapter io(&filer);
    label.DataOut(&io);
    return filer.bytes();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    headless::MemoryDwgFiler reader(std::vector<std::uint8_t>(data, data + size), AcDb::kFileFiler, nullptr);
    DwgFilerIoAdapter io(&reader);
    DbxPanel::TextLabel label;
    if (!label.DataIn(&io))
        return 0;
    const std::vector<std::uint8_t> first = FiledOut(label);
    headless::MemoryDwgFiler again(first, AcDb::kFileFiler, nullptr);
    DwgFilerIoAdapter againIo(&again);
    DbxPanel::TextLabel reread;
    if (!reread.DataIn(&againIo) || FiledOut(reread) != first)
        std::abort();
    return 0;
}
