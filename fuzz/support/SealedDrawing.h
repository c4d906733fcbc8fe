// Drawing files whose header and record checksums are made to match their contents again.
// The fuzzing build's reader takes every checksum as it stands, so what the fuzzer finds
// has stale ones; sealed, such a file reads in every other build as it read under the
// fuzzer, and its seeds replay there as they ran. Header only: the host's tests use it too.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace fuzzing {

// zlib's CRC-32, which the header and every record carry, bit by bit.
inline std::uint32_t DrawingChecksum(const std::uint8_t* data, std::size_t size)
{
    std::uint32_t crc = 0xFFFFFFFFu;
    for (std::size_t i = 0; i < size; ++i) {
        crc ^= data[i];
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc >> 1) ^ (0xEDB88320u & (0u - (crc & 1u)));
    }
    return ~crc;
}

// The header's checksum (its last 4 of 32 bytes) and that of every record the reader would
// find: a record is its marker, a kind byte, a 4-byte length, the payload and the checksum
// of kind, length and payload; after one whose length runs past the end the reader looks
// for the next marker, and so does this.
inline std::vector<std::uint8_t> SealedDrawing(std::vector<std::uint8_t> bytes)
{
    constexpr std::size_t kHeaderBytes = 32;
    constexpr std::uint32_t kRecordMarker = 0x1A525851;
    auto load = [&bytes](std::size_t at) {
        std::uint32_t value = 0;
        for (std::size_t i = 4; i-- > 0;)
            value = (value << 8) | bytes[at + i];
        return value;
    };
    auto store = [&bytes](std::size_t at, std::uint32_t value) {
        for (std::size_t i = 0; i < 4; ++i)
            bytes[at + i] = static_cast<std::uint8_t>(value >> (8 * i));
    };
    if (bytes.size() < kHeaderBytes)
        return bytes;
    store(kHeaderBytes - 4, DrawingChecksum(bytes.data(), kHeaderBytes - 4));
    std::size_t at = kHeaderBytes;
    while (at + 13 <= bytes.size()) {
        const std::size_t payload = load(at + 5);
        if (load(at) != kRecordMarker || payload > bytes.size() - at - 13) {
            ++at;
            continue;
        }
        store(at + 9 + payload, DrawingChecksum(bytes.data() + at + 4, 5 + payload));
        at += 13 + payload;
    }
    return bytes;
}

}  // namespace fuzzing
