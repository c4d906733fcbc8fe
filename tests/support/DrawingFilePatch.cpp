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

bool PatchObjectBytes(std::vector<std::uint8_t>& file, const AcDbHandle& handle,
                      const std::function<void(std::vector<std::uint8_t>&)>& edit)
{
    std::size_t at = kHeaderSize;
    while (at + kFrameHead <= file.size() && std::memcmp(&file[at], kMarker, 4) == 0) {
        const std::uint8_t kind = file[at + 4];
        const auto length = static_cast<std::size_t>(Get(file, at + 5, 4));
        const std::size_t payload = at + kFrameHead;
        if (payload + length + 4 > file.size())
            return false;
        if (kind == 'O' && Get(file, payload, 8) == handle.value()) {
            // handle (8), class (4), owner (8), flags (4), then the counted object bytes.
            const std::size_t countAt = payload + 24;
            const auto count = static_cast<std::size_t>(Get(file, countAt, 4));
            std::vector<std::uint8_t> object(file.begin() + static_cast<long>(countAt + 4),
                                             file.begin() + static_cast<long>(countAt + 4 + count));
            edit(object);
            std::vector<std::uint8_t> rebuilt(file.begin() + static_cast<long>(payload),
                                              file.begin() + static_cast<long>(countAt));
            rebuilt.resize(rebuilt.size() + 4);
            Put(rebuilt, rebuilt.size() - 4, object.size(), 4);
            rebuilt.insert(rebuilt.end(), object.begin(), object.end());
            rebuilt.insert(rebuilt.end(), file.begin() + static_cast<long>(countAt + 4 + count),
                           file.begin() + static_cast<long>(payload + length));
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

}  // namespace qxtest
