// The host's fixed-size integer types and boolean, as its SDK spells them.
// Module code uses these names so that it compiles unchanged against the real SDK.
#pragma once

#include <cstddef>
#include <cstdint>

namespace Adesk {
using Int8 = std::int8_t;
using Int16 = std::int16_t;
using Int32 = std::int32_t;
using Int64 = std::int64_t;
using UInt8 = std::uint8_t;
using UInt16 = std::uint16_t;
using UInt32 = std::uint32_t;
using UInt64 = std::uint64_t;
using uchar = unsigned char;
using ushort = unsigned short;
using uint = unsigned int;
using IntPtr = std::intptr_t;
using UIntPtr = std::uintptr_t;
using LongPtr = std::intptr_t;
using ULongPtr = std::uintptr_t;
using GsMarker = std::intptr_t;
using Boolean = bool;
constexpr Boolean kFalse = false;
constexpr Boolean kTrue = true;
}  // namespace Adesk

// Text is wide throughout the interface. ACHAR is wchar_t on every platform the
// headless host runs on; its width differs, so files never hold raw ACHARs.
using ACHAR = wchar_t;

#ifndef _T
#define QX_WIDEN2(x) L##x
#define _T(x) QX_WIDEN2(x)
#endif
#ifndef ACRX_T
#define ACRX_T(x) _T(x)
#endif
#ifndef ACHAR_T
#define ACHAR_T(x) _T(x)
#endif

// Symbols the module exports to other modules of the product.
#if defined(_WIN32)
#define ADESK_EXPORT __declspec(dllexport)
#define ADESK_IMPORT __declspec(dllimport)
#else
#define ADESK_EXPORT __attribute__((visibility("default")))
#define ADESK_IMPORT __attribute__((visibility("default")))
#endif
#define ADESK_NO_VTABLE
#define ADESK_SEALED_VIRTUAL virtual
#define ADESK_OVERRIDE override
#define ADESK_SEALED final
#define ADESK_DEPRECATED [[deprecated]]

// The headless host's own library exports.
#if defined(_WIN32)
#define ACHOST_API
#else
#define ACHOST_API __attribute__((visibility("default")))
#endif
