// RecordingDwgFiler: the transcript of a filing, and the replay of its written values.
#include "headless/RecordingDwgFiler.h"

#include <algorithm>
#include <cstdio>
#include <cwchar>
#include <iterator>

#include "headless/TextCodec.h"

namespace headless {

namespace {

// Golden transcripts must not change with the last bits of a computation.
constexpr int kSignificantDigits = 12;

std::string formatReal(double value)
{
    if (value == 0.0)
        value = 0.0;  // -0 prints as 0
    char text[40];
    std::snprintf(text, sizeof text, "%.*g", kSignificantDigits, value);
    return text;
}

std::string formatHex(const std::vector<std::uint8_t>& bytes)
{
    std::string text = std::to_string(bytes.size()) + " [";
    char digits[4];
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        std::snprintf(digits, sizeof digits, "%02X", bytes[i]);
        if (i != 0)
            text += ' ';
        text += digits;
    }
    return text + "]";
}

std::string quote(const std::wstring& text)
{
    std::string out = "\"";
    for (char c : toUtf8(text)) {
        const unsigned char u = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (c == '\n') {
            out += "\\n";
        } else if (u < 0x20) {
            char escaped[8];
            std::snprintf(escaped, sizeof escaped, "\\x%02X", u);
            out += escaped;
        } else {
            out += c;
        }
    }
    return out + "\"";
}

std::string formatHandle(const AcDbHandle& handle)
{
    ACHAR text[17];
    handle.getIntoAsciiBuffer(text);
    return toUtf8(text);
}

}  // namespace

RecordingDwgFiler::RecordingDwgFiler(AcDb::FilerType type) : m_type(type) {}

RecordingDwgFiler::~RecordingDwgFiler() = default;

std::string RecordingDwgFiler::transcript() const
{
    std::string text;
    for (const std::string& line : m_lines)
        text += line + "\n";
    return text;
}

void RecordingDwgFiler::rewind()
{
    m_next = 0;
}

const char* RecordingDwgFiler::nameOf(Kind kind)
{
    switch (kind) {
    case Kind::kHardOwnershipId: return "HardOwnershipId";
    case Kind::kSoftOwnershipId: return "SoftOwnershipId";
    case Kind::kHardPointerId: return "HardPointerId";
    case Kind::kSoftPointerId: return "SoftPointerId";
    case Kind::kString: return "String";
    case Kind::kBChunk: return "BChunk";
    case Kind::kHandle: return "AcDbHandle";
    case Kind::kInt64: return "Int64";
    case Kind::kInt32: return "Int32";
    case Kind::kInt16: return "Int16";
    case Kind::kInt8: return "Int8";
    case Kind::kUInt64: return "UInt64";
    case Kind::kUInt32: return "UInt32";
    case Kind::kUInt16: return "UInt16";
    case Kind::kUInt8: return "UInt8";
    case Kind::kBoolean: return "Boolean";
    case Kind::kBool: return "Bool";
    case Kind::kDouble: return "Double";
    case Kind::kPoint2d: return "Point2d";
    case Kind::kPoint3d: return "Point3d";
    case Kind::kVector2d: return "Vector2d";
    case Kind::kVector3d: return "Vector3d";
    case Kind::kScale3d: return "Scale3d";
    case Kind::kBytes: return "Bytes";
    case Kind::kAddress: return "Address";
    }
    return "?";
}

std::string RecordingDwgFiler::render(const Value& v)
{
    switch (v.kind) {
    case Kind::kHardOwnershipId:
    case Kind::kSoftOwnershipId:
    case Kind::kHardPointerId:
    case Kind::kSoftPointerId:
        return v.id.isNull() ? "null" : formatHandle(v.id.handle());
    case Kind::kString:
        return quote(v.text);
    case Kind::kBChunk:
    case Kind::kBytes:
        return formatHex(v.bytes);
    case Kind::kHandle:
        return formatHandle(AcDbHandle(v.unsignedValue));
    case Kind::kInt64:
    case Kind::kInt32:
    case Kind::kInt16:
    case Kind::kInt8:
        return std::to_string(v.integer);
    case Kind::kUInt64:
    case Kind::kUInt32:
    case Kind::kUInt16:
    case Kind::kUInt8:
        return std::to_string(v.unsignedValue);
    case Kind::kBoolean:
    case Kind::kBool:
        return v.integer != 0 ? "true" : "false";
    case Kind::kDouble:
        return formatReal(v.reals[0]);
    case Kind::kPoint2d:
    case Kind::kVector2d:
        return "(" + formatReal(v.reals[0]) + ", " + formatReal(v.reals[1]) + ")";
    case Kind::kPoint3d:
    case Kind::kVector3d:
    case Kind::kScale3d:
        return "(" + formatReal(v.reals[0]) + ", " + formatReal(v.reals[1]) + ", " + formatReal(v.reals[2]) + ")";
    case Kind::kAddress:
        return v.address != nullptr ? "set" : "null";
    }
    return "?";
}

Acad::ErrorStatus RecordingDwgFiler::record(Value value)
{
    if (m_status != Acad::eOk) {
        m_lines.push_back(std::string("write") + nameOf(value.kind) + " skipped (" +
                          toUtf8(acadErrorStatusText(m_status)) + ")");
        return m_status;
    }
    m_lines.push_back(std::string("write") + nameOf(value.kind) + " " + render(value));
    // Writing after a seek back replaces what followed.
    m_values.erase(m_values.begin() + static_cast<std::ptrdiff_t>(m_next), m_values.end());
    m_values.push_back(std::move(value));
    m_next = m_values.size();
    return Acad::eOk;
}

const RecordingDwgFiler::Value* RecordingDwgFiler::replay(Kind kind)
{
    const std::string call = std::string("read") + nameOf(kind);
    if (m_status == Acad::eOk) {
        if (m_next >= m_values.size()) {
            m_status = Acad::eEndOfFile;
        } else {
            const Kind written = m_values[m_next].kind;
            const bool booleans = (written == Kind::kBool || written == Kind::kBoolean) &&
                                  (kind == Kind::kBool || kind == Kind::kBoolean);
            if (written != kind && !booleans)
                m_status = Acad::eFilerError;
        }
    }
    if (m_status != Acad::eOk) {
        m_lines.push_back(call + " failed (" + toUtf8(acadErrorStatusText(m_status)) + ")");
        return nullptr;
    }
    const Value& value = m_values[m_next++];
    m_lines.push_back(call + " " + render(value));
    return &value;
}

namespace {

template <typename Id>
Acad::ErrorStatus assignId(const void* found, Id* id, const AcDbObjectId& value, Acad::ErrorStatus status)
{
    if (found != nullptr && id != nullptr)
        *id = value;
    return status;
}

}  // namespace

#define QX_RECORD_ID(NAME, TYPE, KIND)                                                   \
    Acad::ErrorStatus RecordingDwgFiler::read##NAME(TYPE* id)                            \
    {                                                                                    \
        const Value* v = replay(Kind::KIND);                                             \
        return assignId(v, id, v != nullptr ? v->id : AcDbObjectId(), m_status);         \
    }                                                                                    \
    Acad::ErrorStatus RecordingDwgFiler::write##NAME(const TYPE& id)                     \
    {                                                                                    \
        Value v(Kind::KIND);                                                             \
        v.id = id;                                                                       \
        return record(std::move(v));                                                     \
    }

QX_RECORD_ID(HardOwnershipId, AcDbHardOwnershipId, kHardOwnershipId)
QX_RECORD_ID(SoftOwnershipId, AcDbSoftOwnershipId, kSoftOwnershipId)
QX_RECORD_ID(HardPointerId, AcDbHardPointerId, kHardPointerId)
QX_RECORD_ID(SoftPointerId, AcDbSoftPointerId, kSoftPointerId)
#undef QX_RECORD_ID

Acad::ErrorStatus RecordingDwgFiler::readString(ACHAR** value)
{
    if (value != nullptr)
        *value = nullptr;
    const Value* v = replay(Kind::kString);
    if (v != nullptr && value != nullptr) {
        *value = new ACHAR[v->text.size() + 1];
        std::wmemcpy(*value, v->text.c_str(), v->text.size() + 1);
    }
    return m_status;
}

Acad::ErrorStatus RecordingDwgFiler::writeString(const ACHAR* value)
{
    Value v(Kind::kString);
    v.text = value != nullptr ? value : L"";
    return record(std::move(v));
}

Acad::ErrorStatus RecordingDwgFiler::readString(AcString& value)
{
    if (const Value* v = replay(Kind::kString))
        value = AcString(v->text);
    return m_status;
}

Acad::ErrorStatus RecordingDwgFiler::writeString(const AcString& value)
{
    Value v(Kind::kString);
    v.text = value.wstr();
    return record(std::move(v));
}

Acad::ErrorStatus RecordingDwgFiler::readBChunk(ads_binary* value)
{
    if (value != nullptr) {
        value->clen = 0;
        value->buf = nullptr;
    }
    const Value* v = replay(Kind::kBChunk);
    if (v != nullptr && value != nullptr && !v->bytes.empty()) {
        value->buf = new char[v->bytes.size()];
        std::copy(v->bytes.begin(), v->bytes.end(), value->buf);
        value->clen = static_cast<short>(v->bytes.size());
    }
    return m_status;
}

Acad::ErrorStatus RecordingDwgFiler::writeBChunk(const ads_binary& value)
{
    if (m_status == Acad::eOk && (value.clen < 0 || (value.clen > 0 && value.buf == nullptr)))
        m_status = Acad::eInvalidInput;
    Value v(Kind::kBChunk);
    if (m_status == Acad::eOk)
        v.bytes.assign(value.buf, value.buf + value.clen);
    return record(std::move(v));
}

Acad::ErrorStatus RecordingDwgFiler::readAcDbHandle(AcDbHandle* value)
{
    const Value* v = replay(Kind::kHandle);
    if (v != nullptr && value != nullptr)
        *value = AcDbHandle(v->unsignedValue);
    return m_status;
}

Acad::ErrorStatus RecordingDwgFiler::writeAcDbHandle(const AcDbHandle& value)
{
    Value v(Kind::kHandle);
    v.unsignedValue = value.value();
    return record(std::move(v));
}

#define QX_RECORD_SIGNED(NAME, TYPE)                                                     \
    Acad::ErrorStatus RecordingDwgFiler::read##NAME(TYPE* value)                         \
    {                                                                                    \
        const Value* v = replay(Kind::k##NAME);                                          \
        if (v != nullptr && value != nullptr)                                            \
            *value = static_cast<TYPE>(v->integer);                                      \
        return m_status;                                                                 \
    }                                                                                    \
    Acad::ErrorStatus RecordingDwgFiler::write##NAME(TYPE value)                         \
    {                                                                                    \
        Value v(Kind::k##NAME);                                                          \
        v.integer = value;                                                               \
        return record(std::move(v));                                                     \
    }

#define QX_RECORD_UNSIGNED(NAME, TYPE)                                                   \
    Acad::ErrorStatus RecordingDwgFiler::read##NAME(TYPE* value)                         \
    {                                                                                    \
        const Value* v = replay(Kind::k##NAME);                                          \
        if (v != nullptr && value != nullptr)                                            \
            *value = static_cast<TYPE>(v->unsignedValue);                                \
        return m_status;                                                                 \
    }                                                                                    \
    Acad::ErrorStatus RecordingDwgFiler::write##NAME(TYPE value)                         \
    {                                                                                    \
        Value v(Kind::k##NAME);                                                          \
        v.unsignedValue = value;                                                         \
        return record(std::move(v));                                                     \
    }

QX_RECORD_SIGNED(Int64, Adesk::Int64)
QX_RECORD_SIGNED(Int32, Adesk::Int32)
QX_RECORD_SIGNED(Int16, Adesk::Int16)
QX_RECORD_SIGNED(Int8, Adesk::Int8)
QX_RECORD_UNSIGNED(UInt64, Adesk::UInt64)
QX_RECORD_UNSIGNED(UInt32, Adesk::UInt32)
QX_RECORD_UNSIGNED(UInt16, Adesk::UInt16)
QX_RECORD_UNSIGNED(UInt8, Adesk::UInt8)
#undef QX_RECORD_SIGNED
#undef QX_RECORD_UNSIGNED

Acad::ErrorStatus RecordingDwgFiler::readBoolean(Adesk::Boolean* value)
{
    const Value* v = replay(Kind::kBoolean);
    if (v != nullptr && value != nullptr)
        *value = v->integer != 0;
    return m_status;
}

Acad::ErrorStatus RecordingDwgFiler::writeBoolean(Adesk::Boolean value)
{
    Value v(Kind::kBoolean);
    v.integer = value ? 1 : 0;
    return record(std::move(v));
}

Acad::ErrorStatus RecordingDwgFiler::readBool(bool* value)
{
    const Value* v = replay(Kind::kBool);
    if (v != nullptr && value != nullptr)
        *value = v->integer != 0;
    return m_status;
}

Acad::ErrorStatus RecordingDwgFiler::writeBool(bool value)
{
    Value v(Kind::kBool);
    v.integer = value ? 1 : 0;
    return record(std::move(v));
}

Acad::ErrorStatus RecordingDwgFiler::readDouble(double* value)
{
    const Value* v = replay(Kind::kDouble);
    if (v != nullptr && value != nullptr)
        *value = v->reals[0];
    return m_status;
}

Acad::ErrorStatus RecordingDwgFiler::writeDouble(double value)
{
    Value v(Kind::kDouble);
    v.reals[0] = value;
    return record(std::move(v));
}

#define QX_RECORD_REALS(NAME, TYPE, SET, ...)                                            \
    Acad::ErrorStatus RecordingDwgFiler::read##NAME(TYPE* value)                         \
    {                                                                                    \
        const Value* v = replay(Kind::k##NAME);                                          \
        if (v != nullptr && value != nullptr)                                            \
            SET;                                                                         \
        return m_status;                                                                 \
    }                                                                                    \
    Acad::ErrorStatus RecordingDwgFiler::write##NAME(const TYPE& value)                  \
    {                                                                                    \
        Value v(Kind::k##NAME);                                                          \
        const double reals[] = {__VA_ARGS__};                                            \
        std::copy(std::begin(reals), std::end(reals), v.reals);                          \
        return record(std::move(v));                                                     \
    }

QX_RECORD_REALS(Point2d, AcGePoint2d, value->set(v->reals[0], v->reals[1]), value.x, value.y)
QX_RECORD_REALS(Point3d, AcGePoint3d, value->set(v->reals[0], v->reals[1], v->reals[2]), value.x, value.y,
                value.z)
QX_RECORD_REALS(Vector2d, AcGeVector2d, value->set(v->reals[0], v->reals[1]), value.x, value.y)
QX_RECORD_REALS(Vector3d, AcGeVector3d, value->set(v->reals[0], v->reals[1], v->reals[2]), value.x, value.y,
                value.z)
QX_RECORD_REALS(Scale3d, AcGeScale3d, value->set(v->reals[0], v->reals[1], v->reals[2]), value.sx, value.sy,
                value.sz)
#undef QX_RECORD_REALS

Acad::ErrorStatus RecordingDwgFiler::readBytes(void* buffer, Adesk::UIntPtr count)
{
    const Value* v = replay(Kind::kBytes);
    if (v == nullptr)
        return m_status;
    if (v->bytes.size() != count || (buffer == nullptr && count != 0)) {
        m_status = Acad::eFilerError;  // a different length was written
        return m_status;
    }
    std::copy(v->bytes.begin(), v->bytes.end(), static_cast<std::uint8_t*>(buffer));
    return m_status;
}

Acad::ErrorStatus RecordingDwgFiler::writeBytes(const void* buffer, Adesk::UIntPtr count)
{
    if (m_status == Acad::eOk && buffer == nullptr && count != 0)
        m_status = Acad::eInvalidInput;
    Value v(Kind::kBytes);
    if (m_status == Acad::eOk) {
        const auto* bytes = static_cast<const std::uint8_t*>(buffer);
        v.bytes.assign(bytes, bytes + count);
    }
    return record(std::move(v));
}

Acad::ErrorStatus RecordingDwgFiler::readAddress(void** value)
{
    const Value* v = replay(Kind::kAddress);
    if (value != nullptr)
        *value = v != nullptr ? const_cast<void*>(v->address) : nullptr;
    return m_status;
}

Acad::ErrorStatus RecordingDwgFiler::writeAddress(const void* value)
{
    Value v(Kind::kAddress);
    v.address = value;
    return record(std::move(v));
}

Acad::ErrorStatus RecordingDwgFiler::seek(Adesk::Int64 offset, int method)
{
    const auto size = static_cast<Adesk::Int64>(m_values.size());
    Adesk::Int64 base = 0;
    if (method == AcDb::kSeekFromCurrent)
        base = static_cast<Adesk::Int64>(m_next);
    else if (method == AcDb::kSeekFromEnd)
        base = size;
    else if (method != AcDb::kSeekFromStart)
        return m_status = Acad::eInvalidInput;
    if (offset < -size || offset > size || base + offset < 0 || base + offset > size)
        return m_status = Acad::eInvalidInput;
    m_next = static_cast<std::size_t>(base + offset);
    return Acad::eOk;
}

}  // namespace headless
