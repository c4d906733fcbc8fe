// MemoryDwgFiler: the binary layout of the drawing file, read and written over a buffer.
// Every operation answers the sticky status first; a read that would pass the end of the
// data fails with eEndOfFile before it allocates or copies anything.
#include "headless/MemoryDwgFiler.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

#include "AcDbDatabase.h"
#include "acutmem.h"
#include "headless/TextCodec.h"

namespace headless {

namespace {

// A string is a 32-bit count of UTF-16 code units, each two bytes.
constexpr std::size_t kBytesPerCodeUnit = 2;

// Little-endian bytes of value at out, whatever the machine's byte order.
template <typename U>
void storeLittle(std::uint8_t* out, U value)
{
    for (std::size_t i = 0; i < sizeof(U); ++i) {
        out[i] = static_cast<std::uint8_t>(value & 0xFF);
        value = static_cast<U>(value >> 4 >> 4);
    }
}

// Whether every character is of the basic plane and no surrogate: such a text is the same
// code units in UTF-16.
bool isBasicPlaneText(const wchar_t* text, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i) {
        const auto c = static_cast<std::uint32_t>(text[i]);
        if (c >= 0xD800 && (c <= 0xDFFF || c >= 0x10000))
            return false;
    }
    return true;
}

template <typename U>
U loadLittle(const std::uint8_t* in)
{
    U value = 0;
    for (std::size_t i = sizeof(U); i-- > 0;)
        value = static_cast<U>((value << 4 << 4) | in[i]);
    return value;
}

}  // namespace

MemoryDwgFiler::MemoryDwgFiler(AcDb::FilerType type, AcDbDatabase* database) : m_type(type), m_database(database)
{
}

MemoryDwgFiler::MemoryDwgFiler(std::vector<std::uint8_t> bytes, AcDb::FilerType type, AcDbDatabase* database)
    : m_bytes(std::move(bytes)), m_end(m_bytes.size()), m_type(type), m_database(database)
{
}

MemoryDwgFiler::~MemoryDwgFiler() = default;

const std::vector<std::uint8_t>& MemoryDwgFiler::bytes() const
{
    m_bytes.resize(m_end);
    return m_bytes;
}

void MemoryDwgFiler::setBytes(std::vector<std::uint8_t> bytes)
{
    m_bytes = std::move(bytes);
    m_end = m_bytes.size();
    m_position = 0;
    m_status = Acad::eOk;
}

void MemoryDwgFiler::setDwgVersion(AcDb::AcDbDwgVersion version, AcDb::MaintenanceReleaseVersion maintenance)
{
    m_version = version;
    m_maintenance = maintenance;
}

Acad::ErrorStatus MemoryDwgFiler::dwgVersion(AcDb::AcDbDwgVersion& version,
                                             AcDb::MaintenanceReleaseVersion& maintenance) const
{
    version = m_version;
    maintenance = m_maintenance;
    return Acad::eOk;
}

std::vector<std::uint8_t> MemoryDwgFiler::takeBytes()
{
    m_bytes.resize(m_end);
    m_position = 0;
    m_end = 0;
    return std::exchange(m_bytes, {});
}

Acad::ErrorStatus MemoryDwgFiler::fail(Acad::ErrorStatus status)
{
    m_status = status;
    return status;
}

Acad::ErrorStatus MemoryDwgFiler::put(const void* data, std::size_t count)
{
    if (m_status != Acad::eOk)
        return m_status;
    if (count == 0)
        return Acad::eOk;
    std::memcpy(makeRoom(count), data, count);
    return Acad::eOk;
}

std::uint8_t* MemoryDwgFiler::makeRoom(std::size_t count)
{
    const std::size_t end = m_position + count;
    if (end > m_bytes.size())
        m_bytes.resize(std::max(end, std::max<std::size_t>(2 * m_bytes.size(), 256)));
    std::uint8_t* at = m_bytes.data() + m_position;
    m_position = end;
    if (end > m_end)
        m_end = end;
    return at;
}

Acad::ErrorStatus MemoryDwgFiler::take(void* data, std::size_t count)
{
    if (m_status != Acad::eOk)
        return m_status;
    if (count > remaining())
        return fail(Acad::eEndOfFile);
    if (count != 0)
        std::memcpy(data, m_bytes.data() + m_position, count);
    m_position += count;
    return Acad::eOk;
}

template <typename T>
Acad::ErrorStatus MemoryDwgFiler::putLittle(T value)
{
    using U = std::make_unsigned_t<T>;
    std::uint8_t out[sizeof(T)];
    storeLittle(out, static_cast<U>(value));
    return put(out, sizeof(T));
}

template <typename T>
Acad::ErrorStatus MemoryDwgFiler::takeLittle(T* value)
{
    using U = std::make_unsigned_t<T>;
    std::uint8_t in[sizeof(T)];
    const Acad::ErrorStatus es = take(in, sizeof(T));
    if (es != Acad::eOk)
        return es;
    if (value != nullptr)
        *value = static_cast<T>(loadLittle<U>(in));
    return Acad::eOk;
}

Acad::ErrorStatus MemoryDwgFiler::putDoubles(const double* values, int count)
{
    if (m_status != Acad::eOk || count <= 0)
        return m_status;
    std::uint8_t* out = makeRoom(static_cast<std::size_t>(count) * sizeof(std::uint64_t));
    for (int i = 0; i < count; ++i, out += sizeof(std::uint64_t)) {
        std::uint64_t bits;
        std::memcpy(&bits, &values[i], sizeof bits);
        storeLittle(out, bits);
    }
    return Acad::eOk;
}

Acad::ErrorStatus MemoryDwgFiler::takeDoubles(double* values, int count)
{
    if (m_status != Acad::eOk)
        return m_status;
    if (static_cast<std::size_t>(count) * sizeof(double) > remaining())
        return fail(Acad::eEndOfFile);  // a point is read whole or not at all
    const std::uint8_t* in = m_bytes.data() + m_position;
    for (int i = 0; i < count; ++i, in += sizeof(std::uint64_t)) {
        const auto bits = loadLittle<std::uint64_t>(in);
        std::memcpy(&values[i], &bits, sizeof bits);
    }
    m_position += static_cast<std::size_t>(count) * sizeof(std::uint64_t);
    return Acad::eOk;
}

Acad::ErrorStatus MemoryDwgFiler::putId(const AcDbObjectId& id)
{
    if (m_status != Acad::eOk)
        return m_status;
    if (id.isNull())
        return putLittle<std::uint64_t>(0);
    if (m_database == nullptr)
        m_database = id.database();
    return putLittle<std::uint64_t>(id.handle().value());
}

Acad::ErrorStatus MemoryDwgFiler::takeId(AcDbObjectId* id)
{
    std::uint64_t handle = 0;
    const Acad::ErrorStatus es = takeLittle(&handle);
    if (es != Acad::eOk)
        return es;
    AcDbObjectId resolved;
    if (handle != 0 && m_database != nullptr &&
        m_database->getAcDbObjectId(resolved, m_createStubs, AcDbHandle(handle)) != Acad::eOk) {
        resolved.setNull();  // a reference to an object the database does not have
    }
    if (id != nullptr)
        *id = resolved;
    return Acad::eOk;
}

Acad::ErrorStatus MemoryDwgFiler::putString(const ACHAR* text, std::size_t length)
{
    if (m_status != Acad::eOk)
        return m_status;
    const std::wstring_view wide(text != nullptr ? text : L"", length);
    // A text of the basic plane without surrogates, nearly every text, is its own code
    // units: written straight from the characters. Others are converted first.
    std::u16string converted;
    const bool plain = isBasicPlaneText(wide.data(), wide.size());
    if (!plain)
        converted = toUtf16(wide);
    const std::size_t count = plain ? wide.size() : converted.size();
    if (count > std::numeric_limits<std::uint32_t>::max())
        return fail(Acad::eStringTooLong);
    std::uint8_t* out = makeRoom(sizeof(std::uint32_t) + count * kBytesPerCodeUnit);
    storeLittle(out, static_cast<std::uint32_t>(count));
    out += sizeof(std::uint32_t);
    for (std::size_t i = 0; i < count; ++i, out += kBytesPerCodeUnit)
        storeLittle(out, static_cast<std::uint16_t>(plain ? wide[i] : converted[i]));
    return Acad::eOk;
}

Acad::ErrorStatus MemoryDwgFiler::takeString(std::wstring& text)
{
    std::uint32_t count = 0;
    Acad::ErrorStatus es = takeLittle(&count);
    if (es != Acad::eOk)
        return es;
    if (count > remaining() / kBytesPerCodeUnit)
        return fail(Acad::eEndOfFile);  // the length promises more than the data holds
    const std::uint8_t* first = m_bytes.data() + m_position;
    m_position += static_cast<std::size_t>(count) * kBytesPerCodeUnit;
    // Units outside the surrogates are characters as they stand; a text with surrogates
    // is decoded as a whole.
    text.resize(count);
    const std::uint8_t* unit = first;
    for (std::uint32_t i = 0; i < count; ++i, unit += kBytesPerCodeUnit) {
        const auto code = loadLittle<std::uint16_t>(unit);
        if (code >= 0xD800 && code <= 0xDFFF) {
            std::u16string units(count, u'\0');
            unit = first;
            for (std::uint32_t k = 0; k < count; ++k, unit += kBytesPerCodeUnit)
                units[k] = static_cast<char16_t>(loadLittle<std::uint16_t>(unit));
            text = fromUtf16(units);
            return Acad::eOk;
        }
        text[i] = static_cast<wchar_t>(code);
    }
    return Acad::eOk;
}

Acad::ErrorStatus MemoryDwgFiler::readHardOwnershipId(AcDbHardOwnershipId* id) { return takeId(id); }
Acad::ErrorStatus MemoryDwgFiler::writeHardOwnershipId(const AcDbHardOwnershipId& id) { return putId(id); }
Acad::ErrorStatus MemoryDwgFiler::readSoftOwnershipId(AcDbSoftOwnershipId* id) { return takeId(id); }
Acad::ErrorStatus MemoryDwgFiler::writeSoftOwnershipId(const AcDbSoftOwnershipId& id) { return putId(id); }
Acad::ErrorStatus MemoryDwgFiler::readHardPointerId(AcDbHardPointerId* id) { return takeId(id); }
Acad::ErrorStatus MemoryDwgFiler::writeHardPointerId(const AcDbHardPointerId& id) { return putId(id); }
Acad::ErrorStatus MemoryDwgFiler::readSoftPointerId(AcDbSoftPointerId* id) { return takeId(id); }
Acad::ErrorStatus MemoryDwgFiler::writeSoftPointerId(const AcDbSoftPointerId& id) { return putId(id); }

Acad::ErrorStatus MemoryDwgFiler::readString(ACHAR** value)
{
    if (value != nullptr)
        *value = nullptr;
    std::wstring text;
    const Acad::ErrorStatus es = takeString(text);
    if (es != Acad::eOk || value == nullptr)
        return es;
    *value = new ACHAR[text.size() + 1];
    std::wmemcpy(*value, text.c_str(), text.size() + 1);
    return Acad::eOk;
}

Acad::ErrorStatus MemoryDwgFiler::writeString(const ACHAR* value)
{
    return putString(value, value != nullptr ? std::wcslen(value) : 0);
}

Acad::ErrorStatus MemoryDwgFiler::readString(AcString& value)
{
    std::wstring text;
    const Acad::ErrorStatus es = takeString(text);
    if (es == Acad::eOk)
        value = AcString(text);
    return es;
}

Acad::ErrorStatus MemoryDwgFiler::writeString(const AcString& value)
{
    return putString(value.kwszPtr(), value.wstr().size());
}

Acad::ErrorStatus MemoryDwgFiler::readBChunk(ads_binary* value)
{
    if (value != nullptr) {
        value->clen = 0;
        value->buf = nullptr;
    }
    Adesk::Int16 length = 0;
    Acad::ErrorStatus es = takeLittle(&length);
    if (es != Acad::eOk)
        return es;
    if (length < 0)
        return fail(Acad::eFilerError);
    if (static_cast<std::size_t>(length) > remaining())
        return fail(Acad::eEndOfFile);
    if (value == nullptr || length == 0) {
        m_position += static_cast<std::size_t>(length);
        return Acad::eOk;
    }
    value->buf = new char[static_cast<std::size_t>(length)];
    value->clen = length;
    return take(value->buf, static_cast<std::size_t>(length));
}

Acad::ErrorStatus MemoryDwgFiler::writeBChunk(const ads_binary& value)
{
    if (m_status != Acad::eOk)
        return m_status;
    if (value.clen < 0 || (value.clen > 0 && value.buf == nullptr))
        return fail(Acad::eInvalidInput);
    putLittle<Adesk::Int16>(value.clen);
    return put(value.buf, static_cast<std::size_t>(value.clen));
}

Acad::ErrorStatus MemoryDwgFiler::readAcDbHandle(AcDbHandle* value)
{
    std::uint64_t handle = 0;
    const Acad::ErrorStatus es = takeLittle(&handle);
    if (es == Acad::eOk && value != nullptr)
        *value = AcDbHandle(handle);
    return es;
}

Acad::ErrorStatus MemoryDwgFiler::writeAcDbHandle(const AcDbHandle& value) { return putLittle(value.value()); }

Acad::ErrorStatus MemoryDwgFiler::readInt64(Adesk::Int64* value) { return takeLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::writeInt64(Adesk::Int64 value) { return putLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::readInt32(Adesk::Int32* value) { return takeLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::writeInt32(Adesk::Int32 value) { return putLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::readInt16(Adesk::Int16* value) { return takeLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::writeInt16(Adesk::Int16 value) { return putLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::readInt8(Adesk::Int8* value) { return takeLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::writeInt8(Adesk::Int8 value) { return putLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::readUInt64(Adesk::UInt64* value) { return takeLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::writeUInt64(Adesk::UInt64 value) { return putLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::readUInt32(Adesk::UInt32* value) { return takeLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::writeUInt32(Adesk::UInt32 value) { return putLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::readUInt16(Adesk::UInt16* value) { return takeLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::writeUInt16(Adesk::UInt16 value) { return putLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::readUInt8(Adesk::UInt8* value) { return takeLittle(value); }
Acad::ErrorStatus MemoryDwgFiler::writeUInt8(Adesk::UInt8 value) { return putLittle(value); }

Acad::ErrorStatus MemoryDwgFiler::readBool(bool* value)
{
    std::uint8_t byte = 0;
    const Acad::ErrorStatus es = takeLittle(&byte);
    if (es != Acad::eOk)
        return es;
    if (byte > 1)
        return fail(Acad::eFilerError);  // only 0 and 1 are booleans: anything else is damage
    if (value != nullptr)
        *value = byte == 1;
    return Acad::eOk;
}

Acad::ErrorStatus MemoryDwgFiler::writeBool(bool value) { return putLittle<std::uint8_t>(value ? 1 : 0); }
Acad::ErrorStatus MemoryDwgFiler::readBoolean(Adesk::Boolean* value) { return readBool(value); }
Acad::ErrorStatus MemoryDwgFiler::writeBoolean(Adesk::Boolean value) { return writeBool(value); }

Acad::ErrorStatus MemoryDwgFiler::readDouble(double* value)
{
    double v = 0.0;
    const Acad::ErrorStatus es = takeDoubles(&v, 1);
    if (es == Acad::eOk && value != nullptr)
        *value = v;
    return es;
}

Acad::ErrorStatus MemoryDwgFiler::writeDouble(double value) { return putDoubles(&value, 1); }

Acad::ErrorStatus MemoryDwgFiler::readPoint2d(AcGePoint2d* value)
{
    double v[2] = {0.0, 0.0};
    const Acad::ErrorStatus es = takeDoubles(v, 2);
    if (es == Acad::eOk && value != nullptr)
        value->set(v[0], v[1]);
    return es;
}

Acad::ErrorStatus MemoryDwgFiler::writePoint2d(const AcGePoint2d& value)
{
    const double v[2] = {value.x, value.y};
    return putDoubles(v, 2);
}

Acad::ErrorStatus MemoryDwgFiler::readPoint3d(AcGePoint3d* value)
{
    double v[3] = {0.0, 0.0, 0.0};
    const Acad::ErrorStatus es = takeDoubles(v, 3);
    if (es == Acad::eOk && value != nullptr)
        value->set(v[0], v[1], v[2]);
    return es;
}

Acad::ErrorStatus MemoryDwgFiler::writePoint3d(const AcGePoint3d& value)
{
    const double v[3] = {value.x, value.y, value.z};
    return putDoubles(v, 3);
}

Acad::ErrorStatus MemoryDwgFiler::readVector2d(AcGeVector2d* value)
{
    double v[2] = {0.0, 0.0};
    const Acad::ErrorStatus es = takeDoubles(v, 2);
    if (es == Acad::eOk && value != nullptr)
        value->set(v[0], v[1]);
    return es;
}

Acad::ErrorStatus MemoryDwgFiler::writeVector2d(const AcGeVector2d& value)
{
    const double v[2] = {value.x, value.y};
    return putDoubles(v, 2);
}

Acad::ErrorStatus MemoryDwgFiler::readVector3d(AcGeVector3d* value)
{
    double v[3] = {0.0, 0.0, 0.0};
    const Acad::ErrorStatus es = takeDoubles(v, 3);
    if (es == Acad::eOk && value != nullptr)
        value->set(v[0], v[1], v[2]);
    return es;
}

Acad::ErrorStatus MemoryDwgFiler::writeVector3d(const AcGeVector3d& value)
{
    const double v[3] = {value.x, value.y, value.z};
    return putDoubles(v, 3);
}

Acad::ErrorStatus MemoryDwgFiler::readScale3d(AcGeScale3d* value)
{
    double v[3] = {1.0, 1.0, 1.0};
    const Acad::ErrorStatus es = takeDoubles(v, 3);
    if (es == Acad::eOk && value != nullptr)
        value->set(v[0], v[1], v[2]);
    return es;
}

Acad::ErrorStatus MemoryDwgFiler::writeScale3d(const AcGeScale3d& value)
{
    const double v[3] = {value.sx, value.sy, value.sz};
    return putDoubles(v, 3);
}

Acad::ErrorStatus MemoryDwgFiler::readBytes(void* buffer, Adesk::UIntPtr count)
{
    if (buffer == nullptr && count != 0)
        return m_status != Acad::eOk ? m_status : fail(Acad::eInvalidInput);
    return take(buffer, count);
}

Acad::ErrorStatus MemoryDwgFiler::writeBytes(const void* buffer, Adesk::UIntPtr count)
{
    if (buffer == nullptr && count != 0)
        return m_status != Acad::eOk ? m_status : fail(Acad::eInvalidInput);
    return put(buffer, count);
}

Acad::ErrorStatus MemoryDwgFiler::readAddress(void** value)
{
    if (value != nullptr)
        *value = nullptr;
    if (m_status != Acad::eOk)
        return m_status;
    if (m_type == AcDb::kFileFiler)
        return fail(Acad::eNotApplicable);
    std::uint64_t bits = 0;
    const Acad::ErrorStatus es = takeLittle(&bits);
    if (es == Acad::eOk && value != nullptr)
        *value = reinterpret_cast<void*>(static_cast<std::uintptr_t>(bits));
    return es;
}

Acad::ErrorStatus MemoryDwgFiler::writeAddress(const void* value)
{
    if (m_status != Acad::eOk)
        return m_status;
    if (m_type == AcDb::kFileFiler)
        return fail(Acad::eNotApplicable);
    return putLittle(static_cast<std::uint64_t>(reinterpret_cast<std::uintptr_t>(value)));
}

Acad::ErrorStatus MemoryDwgFiler::seek(Adesk::Int64 offset, int method)
{
    std::int64_t base = 0;
    switch (method) {
    case AcDb::kSeekFromStart:
        base = 0;
        break;
    case AcDb::kSeekFromCurrent:
        base = static_cast<std::int64_t>(m_position);
        break;
    case AcDb::kSeekFromEnd: base = static_cast<std::int64_t>(m_end); break;
    default:
        return fail(Acad::eInvalidInput);
    }
    const std::int64_t size = static_cast<std::int64_t>(m_end);
    // Both terms lie in [-size, size] after the checks, so the sum cannot overflow.
    if (offset < -size || offset > size)
        return fail(Acad::eInvalidInput);
    const std::int64_t target = base + offset;
    if (target < 0 || target > size)
        return fail(Acad::eInvalidInput);
    m_position = static_cast<std::size_t>(target);
    return Acad::eOk;
}

}  // namespace headless
