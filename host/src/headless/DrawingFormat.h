// The drawing file's fixed numbers: the header's magic and version, the record frame, the
// record kinds, and the limits readers hold hostile files to.
#pragma once

#include <cstddef>
#include <cstdint>

namespace hostfile {

// "QXDRAW" NUL SUB: a text tool shows the name and stops at the SUB.
constexpr std::uint8_t kMagic[8] = {'Q', 'X', 'D', 'R', 'A', 'W', 0x00, 0x1A};
// A reader refuses a newer major version; a newer minor version only adds record kinds,
// which older readers skip, and object flags, without which older readers lose no object.
// 1.1: kept graphics in the compact form (kCompactGraphics).
constexpr std::uint16_t kFormatMajor = 1;
constexpr std::uint16_t kFormatMinor = 1;
constexpr std::size_t kHeaderBytes = 32;

// Every record starts with this marker ("QXR" SUB), so that a reader can find the next
// record after a damaged one.
constexpr std::uint32_t kRecordMarker = 0x1A525851;
// Marker, kind, payload length before the payload; the checksum after it.
constexpr std::size_t kFrameHeadBytes = 9;
constexpr std::size_t kFrameTailBytes = 4;

enum RecordKind : std::uint8_t {
    kDatabaseRecord = 'D',
    kClassRecord = 'C',
    kObjectRecord = 'O',
    kEndRecord = 'Z',
};

// Object record flags.
constexpr std::uint32_t kHasGraphics = 0x1;
constexpr std::uint32_t kHasTransform = 0x2;
// The graphics are in the compact form; without it, in the verbose form of format 1.0.
constexpr std::uint32_t kCompactGraphics = 0x4;

// Files larger than this are refused before they are read into memory.
constexpr std::uint64_t kMaxFileBytes = std::uint64_t(1) << 31;

// CRC-32 (the zlib polynomial) of a byte range.
std::uint32_t checksum(const std::uint8_t* data, std::size_t size);

}  // namespace hostfile
