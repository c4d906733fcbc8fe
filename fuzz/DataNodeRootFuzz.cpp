// Feeds arbitrary bytes to the data tree reader through a memory filer. Whatever the bytes,
// the read must neither crash nor read out of bounds nor allocate without bound, and
// whatever tree came of them must file out, read back whole and file out the same again.
#include <cstdint>
#include <cstdlib>
#include <vector>

#include "data/DataNodeRoot.h"
#include "headless/MemoryDwgFiler.h"

namespace {

class FuzzTree : public DataNodeRoot {
public:
    FuzzTree() : DataNodeRoot(nullptr) {}
    bool Read(AcDbDwgFiler* filer) { return DataIn(filer); }
    bool Write(AcDbDwgFiler* filer) const { return DataOut(filer); }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::uint8_t> bytes(data, data + size);
    headless::MemoryDwgFiler reader(bytes, AcDb::kFileFiler, nullptr);
    FuzzTree tree;
    tree.Read(&reader);
    headless::MemoryDwgFiler writer;
    tree.Write(&writer);

    headless::MemoryDwgFiler again(writer.bytes(), AcDb::kFileFiler, nullptr);
    FuzzTree copy;
    if (!copy.Read(&again) || again.remaining() != 0)
        std::abort();  // a tree this module wrote must read back whole
    headless::MemoryDwgFiler rewriter;
    copy.Write(&rewriter);
    if (rewriter.bytes() != writer.bytes())
        std::abort();
    return 0;
}
