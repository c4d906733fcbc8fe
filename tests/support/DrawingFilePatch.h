// Editing an object's record inside a saved drawing, as a damaged or future drawing would
// have it: the record's checksum is recomputed so that the reader takes the edit as data.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "AcDbHandle.h"

namespace qxtest {

// Finds the object record of handle in file and lets edit change the object's bytes (what
// its dwgOutFields wrote); the record's lengths and checksum are brought up to date.
// Answers false when the file has no such record.
bool PatchObjectBytes(std::vector<std::uint8_t>& file, const AcDbHandle& handle,
                      const std::function<void(std::vector<std::uint8_t>&)>& edit);

// The same for the object's kept graphics (the block after its reference table). Answers
// false when the file has no such record or the record keeps no graphics.
bool PatchObjectGraphics(std::vector<std::uint8_t>& file, const AcDbHandle& handle,
                         const std::function<void(std::vector<std::uint8_t>&)>& edit);

// Writes value little-endian at offset of bytes.
void PutInt32(std::vector<std::uint8_t>& bytes, std::size_t offset, std::int32_t value);

}  // namespace qxtest
