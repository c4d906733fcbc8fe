// Drawing files: the headless host's own binary format (docs/drawing-file-format.md). A
// header, a class table, one checksummed record per object holding the bytes the object's
// own filing wrote, and the graphics of every custom entity. Objects whose class is not
// loaded, or whose filing refuses their data, open as proxies and are written back
// unchanged. Damaged records are reported and skipped; the rest of the drawing opens.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "AcDbDatabase.h"

namespace headless {

// The extension the headless host gives drawing files.
constexpr const wchar_t* kDrawingFileExtension = L".qxd";

// What reading a drawing found. Every message is also printed on the command line.
struct ACHOST_API DrawingReadReport {
    std::vector<std::wstring> messages;
    int objects = 0;  // objects that joined the drawing, proxies included
    int proxies = 0;
    int skippedRecords = 0;  // damaged records left out
    bool complete = true;    // false when the file ended early or records were skipped
};

class ACHOST_API DrawingFile {
public:
    // The file's bytes for db, in place of what bytes held (its memory is reused). Fails,
    // leaving bytes empty, when an object cannot be filed.
    static Acad::ErrorStatus write(AcDbDatabase* db, std::vector<std::uint8_t>& bytes);
    // Writes to a temporary file beside path and renames it over path, so that a good file
    // is never replaced by a partial one. eFilerError when the file cannot be written.
    static Acad::ErrorStatus save(AcDbDatabase* db, const std::wstring& path);

    // Reads a drawing into a new database (the caller's to delete). Damage inside the file
    // is reported and skipped; only a file that is not a drawing, or of a newer format,
    // fails: eUnsupportedFileFormat, eInvalidDwgVersion (db is then null).
    static Acad::ErrorStatus read(const std::vector<std::uint8_t>& bytes, AcDbDatabase*& db,
                                  DrawingReadReport* report = nullptr);
    // As read, from a file. eFilerError when the file cannot be read.
    static Acad::ErrorStatus open(const std::wstring& path, AcDbDatabase*& db, DrawingReadReport* report = nullptr);
};

}  // namespace headless
