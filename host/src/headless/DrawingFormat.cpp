// The drawing file's checksum: zlib's CRC-32.
#include "DrawingFormat.h"

#include <zlib.h>

namespace hostfile {

std::uint32_t checksum(const std::uint8_t* data, std::size_t size)
{
    uLong crc = crc32(0L, Z_NULL, 0);
    // zlib takes at most 4 GiB per call.
    constexpr std::size_t kChunk = 0x40000000u;
    while (size > 0) {
        const std::size_t chunk = size > kChunk ? kChunk : size;
        crc = crc32(crc, data, static_cast<uInt>(chunk));
        data += chunk;
        size -= chunk;
    }
    return static_cast<std::uint32_t>(crc);
}

}  // namespace hostfile
