// OutputFile: results written whole or not at all.
#include "OutputFile.h"

#include <cstdio>
#include <filesystem>
#include <system_error>

#include <unistd.h>

#include "ToolError.h"

namespace quarvo {

void OutputFile::Write(const std::string& path, const std::string& bytes)
{
    const std::string temporary = TemporaryFor(path);
    std::FILE* file = std::fopen(temporary.c_str(), "wb");
    bool written = file != nullptr && std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    if (file != nullptr)
        written = std::fclose(file) == 0 && written;
    if (!written) {
        Discard(temporary);
        throw ToolError("cannot write " + path);
    }
    Replace(temporary, path);
}

std::string OutputFile::TemporaryFor(const std::string& path)
{
    return path + ".part" + std::to_string(static_cast<long>(getpid()));
}

void OutputFile::Replace(const std::string& temporary, const std::string& path)
{
    std::error_code error;
    std::filesystem::rename(std::filesystem::u8path(temporary), std::filesystem::u8path(path), error);
    if (error) {
        Discard(temporary);
        throw ToolError("cannot write " + path + ": " + error.message());
    }
}

void OutputFile::Discard(const std::string& temporary)
{
    std::error_code error;
    std::filesystem::remove(std::filesystem::u8path(temporary), error);
}

}  // namespace quarvo
