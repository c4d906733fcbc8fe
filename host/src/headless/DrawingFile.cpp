// DrawingFile: drawings to and from bytes and files. Saving goes through a temporary file
// that is renamed over the target once it is complete and flushed.
#include "headless/DrawingFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <unistd.h>

#include "DrawingFileReader.h"
#include "DrawingFileWriter.h"
#include "DrawingFormat.h"
#include "acutads.h"
#include "headless/TextCodec.h"

namespace headless {

namespace {

void fileError(const std::wstring& what, const std::wstring& path)
{
    acutPrintf(L"\n%s \"%s\": %s.", what.c_str(), path.c_str(), fromUtf8(std::strerror(errno)).c_str());
}

}  // namespace

Acad::ErrorStatus DrawingFile::write(AcDbDatabase* db, std::vector<std::uint8_t>& bytes)
{
    if (db == nullptr)
        return Acad::eNoDatabase;
    // The writer frames the file into the memory of the bytes it replaces: saving a drawing
    // again takes no fresh pages from the system.
    const Acad::ErrorStatus es = hostfile::DrawingFileWriter(db).write(bytes);
    if (es != Acad::eOk)
        bytes.clear();
    return es;
}

Acad::ErrorStatus DrawingFile::save(AcDbDatabase* db, const std::wstring& path)
{
    std::vector<std::uint8_t> bytes;
    const Acad::ErrorStatus es = write(db, bytes);
    if (es != Acad::eOk)
        return es;
    const std::string target = toUtf8(path);
    const std::string temporary = target + ".saving-" + std::to_string(static_cast<long>(getpid()));
    std::FILE* file = std::fopen(temporary.c_str(), "wb");
    if (file == nullptr) {
        fileError(L"Cannot write the drawing file", path);
        return Acad::eFilerError;
    }
    bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    written = std::fflush(file) == 0 && written;
    written = fsync(fileno(file)) == 0 && written;
    written = std::fclose(file) == 0 && written;
    if (!written || std::rename(temporary.c_str(), target.c_str()) != 0) {
        fileError(L"Cannot write the drawing file", path);
        std::remove(temporary.c_str());
        return Acad::eFilerError;
    }
    return Acad::eOk;
}

Acad::ErrorStatus DrawingFile::read(const std::vector<std::uint8_t>& bytes, AcDbDatabase*& db,
                                    DrawingReadReport* report)
{
    DrawingReadReport local;
    DrawingReadReport& out = report != nullptr ? *report : local;
    out = DrawingReadReport();
    return hostfile::DrawingFileReader(bytes, out).read(db);
}

Acad::ErrorStatus DrawingFile::open(const std::wstring& path, AcDbDatabase*& db, DrawingReadReport* report)
{
    db = nullptr;
    std::FILE* file = std::fopen(toUtf8(path).c_str(), "rb");
    if (file == nullptr) {
        fileError(L"Cannot open the drawing file", path);
        return Acad::eFilerError;
    }
    std::vector<std::uint8_t> bytes;
    std::uint8_t buffer[1 << 16];
    std::size_t got = 0;
    bool tooLarge = false;
    while ((got = std::fread(buffer, 1, sizeof buffer, file)) > 0) {
        if (bytes.size() + got > hostfile::kMaxFileBytes) {
            tooLarge = true;
            break;
        }
        bytes.insert(bytes.end(), buffer, buffer + got);
    }
    const bool failed = std::ferror(file) != 0;
    std::fclose(file);
    if (failed) {
        fileError(L"Cannot read the drawing file", path);
        return Acad::eFilerError;
    }
    if (tooLarge) {
        acutPrintf(L"\nThe drawing file \"%s\" is larger than this host reads.", path.c_str());
        return Acad::eFilerError;
    }
    return read(bytes, db, report);
}

}  // namespace headless
