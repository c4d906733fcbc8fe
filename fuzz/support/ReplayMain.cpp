// Runs a fuzz target over every file of the folders (or files) named on the command line,
// so that seed corpora are checked in ordinary builds without libFuzzer.
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
// Optional, as under libFuzzer: targets that prepare once define it.
extern "C" __attribute__((weak)) int LLVMFuzzerInitialize(int* argc, char*** argv);

namespace {

int RunFile(const std::filesystem::path& path)
{
    std::ifstream in(path, std::ios::binary);
    std::vector<char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    return 1;
}

}  // namespace

int main(int argc, char** argv)
{
    if (LLVMFuzzerInitialize != nullptr)
        LLVMFuzzerInitialize(&argc, &argv);
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        const std::filesystem::path path(argv[i]);
        if (std::filesystem::is_directory(path)) {
            for (const auto& entry : std::filesystem::directory_iterator(path))
                if (entry.is_regular_file())
                    count += RunFile(entry.path());
        } else if (std::filesystem::is_regular_file(path)) {
            count += RunFile(path);
        } else {
            std::fprintf(stderr, "no such seed file or folder: %s\n", argv[i]);
            return 1;
        }
    }
    // An empty input is always a case worth running.
    LLVMFuzzerTestOneInput(nullptr, 0);
    std::printf("replayed %d inputs\n", count + 1);
    return 0;
}
