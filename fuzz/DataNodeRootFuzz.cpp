// Feeds arbitrary bytes to the data tree reader through a memory filer. Whatever the bytes,
// the read must neither crash nor read out of bounds nor allocate without bound, and a tree
// that was read must file out again.
#include <cstdint>
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
    return 0;
}
