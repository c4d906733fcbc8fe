// Editing an object's record inside a saved drawing (the layout is docs/drawing-file-format.md).
#include "DrawingFilePatch.h"

#include <zlib.h>

#include <cstring>

namespace qxtest {
namespace {

constexpr std::size_t kHeaderSize = 32;
constexpr std::uint8_t kMarker[4] = {'Q', 'X', 'R', 0x1A};
constexpr std::size_t kFrameHead = 4 + 1 + 4;  // marker, kind, payload length

std::uint64_t Get(const std::vector<std::uint8_t>& bytes, std::size_t at, int size)
{
    std::uint64_t value = 0;
    for (int i = size - 1; i >= 0; --i)
        value = (value << 8) | bytes[at + static_cast<std::size_t>(i)];
    return value;
}

void Put(std::vector<std::uint8_t>& bytes, std::size_t at, std::uint64_t value, int size)
{
    for (int i = 0; i < size; ++i)
        bytes[at + static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(value >> (8 * i));
}

}  // namespace

void PutInt32(std::vector<std::uint8_t>& bytes, std::size_t offset, std::int32_t value)
{
    Put(bytes, offset, static_cast<std::uint32_t>(value), 4);
}

namespace {

// Finds the object record of handle and lets rewrite change its payload; the frame's length
// and checksum are brought up to date.
bool PatchObjectPayload(std::vector<std::uint8_t>& file, const AcDbHandle& handle,
                        const std::function<void(std::vector<std::uint8_t>&)>& rewrite)
{
    std::size_t at = kHeaderSize;
    while (at + kFrameHead <= file.size() && std::memcmp(&file[at], kMarker, 4) == 0) {
        const std::uint8_t kind = file[at + 4];
        const auto length = static_cast<std::size_t>(Get(file, at + 5, 4));
        const std::size_t payload = at + kFrameHead;
        if (payload + length + 4 > file.size())
            return false;
        if (kind == 'O' && Get(file, payload, 8) == handle.value()) {
            std::vector<std::uint8_t> rebuilt(file.begin() + static_cast<long>(payload),
                                              file.begin() + static_cast<long>(payload + length));
            rewrite(rebuilt);
            std::vector<std::uint8_t> frame(file.begin() + static_cast<long>(at),
                                            file.begin() + static_cast<long>(payload));
            Put(frame, 5, rebuilt.size(), 4);
            frame.insert(frame.end(), rebuilt.begin(), rebuilt.end());
            // The checksum covers the kind, the length and the payload.
            const auto crc = crc32(0L, frame.data() + 4, static_cast<uInt>(frame.size() - 4));
            frame.resize(frame.size() + 4);
            Put(frame, frame.size() - 4, crc, 4);
            file.erase(file.begin() + static_cast<long>(at), file.begin() + static_cast<long>(payload + length + 4));
            file.insert(file.begin() + static_cast<long>(at), frame.begin(), frame.end());
            return true;
        }
        at = payload + length + 4;
    }
    return false;
}

// Replaces the counted block at countAt of payload with what edit makes of it.
void EditCounted(std::vector<std::uint8_t>& payload, std::size_t countAt,
                 const std::function<void(std::vector<std::uint8_t>&)>& edit)
{
    const auto count = static_cast<std::size_t>(Get(payload, countAt, 4));
    std::vector<std::uint8_t> block(payload.begin() + static_cast<long>(countAt + 4),
                                    payload.begin() + static_cast<long>(countAt + 4 + count));
    edit(block);
    payload.erase(payload.begin() + static_cast<long>(countAt),
                  payload.begin() + static_cast<long>(countAt + 4 + count));
    std::vector<std::uint8_t> counted(4);
    Put(counted, 0, block.size(), 4);
    counted.insert(counted.end(), block.begin(), block.end());
    payload.insert(payload.begin() + static_cast<long>(countAt), counted.begin(), counted.end());
}

// handle (8), class (4), owner (8), flags (4), then the counted object bytes.
constexpr std::size_t kObjectBytesAt = 24;
constexpr std::size_t kReferenceEntryBytes = 5;

}  // namespace

bool PatchObjectBytes(std::vector<std::uint8_t>& file, const AcDbHandle& handle,
                      const std::function<void(std::vector<std::uint8_t>&)>& edit)
{
    return PatchObjectPayload(file, handle,
                              [&](std::vector<std::uint8_t>& payload) { EditCounted(payload, kObjectBytesAt, edit); });
}

bool PatchObjectGraphics(std::vector<std::uint8_t>& file, const AcDbHandle& handle,
                         const std::function<void(std::vector<std::uint8_t>&)>& edit)
{
    bool hadGraphics = false;
    const bool found = PatchObjectPayload(file, handle, [&](std::vector<std::uint8_t>& payload) {
        if ((Get(payload, 20, 4) & 1) == 0)
            return;
        hadGraphics = true;
        // The object bytes, then the reference table, then the counted graphics.
        const std::size_t referencesAt = kObjectBytesAt + 4 + static_cast<std::size_t>(Get(payload, kObjectBytesAt, 4));
        const auto references = static_cast<std::size_t>(Get(payload, referencesAt, 4));
        EditCounted(payload, referencesAt + 4 + references * kReferenceEntryBytes, edit);
    });
    return found && hadGraphics;
}

}  // namespace qxtest
