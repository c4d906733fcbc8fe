// RecordingDwgFiler: logs every typed call with its value as a line of text, the form of
// the golden transcripts of an object's filing, and replays what was written to reads.
// Lines look like "writeInt32 7", "writeString \"Standard\"", "writePoint3d (1, 2, 0)",
// "writeSoftPointerId 1F"; doubles print with 12 significant digits and -0 as 0.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "AcDbDwgFiler.h"

namespace headless {

class ACHOST_API RecordingDwgFiler : public AcDbDwgFiler {
public:
    explicit RecordingDwgFiler(AcDb::FilerType type = AcDb::kFileFiler);
    ~RecordingDwgFiler() override;

    // Every call so far, reads and writes, one line each (UTF-8).
    const std::vector<std::string>& lines() const { return m_lines; }
    // The lines joined, each ended by a newline.
    std::string transcript() const;
    void clearLines() { m_lines.clear(); }
    // Reads replay the written values in order from the start; a read whose type differs
    // from the next written value fails with eFilerError, one past the last with eEndOfFile.
    void rewind();
    int writtenCount() const { return static_cast<int>(m_values.size()); }

    Acad::ErrorStatus filerStatus() const override { return m_status; }
    AcDb::FilerType filerType() const override { return m_type; }
    void setFilerStatus(Acad::ErrorStatus status) override { m_status = status; }
    void resetFilerStatus() override { m_status = Acad::eOk; }

    Acad::ErrorStatus readHardOwnershipId(AcDbHardOwnershipId* id) override;
    Acad::ErrorStatus writeHardOwnershipId(const AcDbHardOwnershipId& id) override;
    Acad::ErrorStatus readSoftOwnershipId(AcDbSoftOwnershipId* id) override;
    Acad::ErrorStatus writeSoftOwnershipId(const AcDbSoftOwnershipId& id) override;
    Acad::ErrorStatus readHardPointerId(AcDbHardPointerId* id) override;
    Acad::ErrorStatus writeHardPointerId(const AcDbHardPointerId& id) override;
    Acad::ErrorStatus readSoftPointerId(AcDbSoftPointerId* id) override;
    Acad::ErrorStatus writeSoftPointerId(const AcDbSoftPointerId& id) override;

    Acad::ErrorStatus readString(ACHAR** value) override;
    Acad::ErrorStatus writeString(const ACHAR* value) override;
    Acad::ErrorStatus readString(AcString& value) override;
    Acad::ErrorStatus writeString(const AcString& value) override;

    Acad::ErrorStatus readBChunk(ads_binary* value) override;
    Acad::ErrorStatus writeBChunk(const ads_binary& value) override;

    Acad::ErrorStatus readAcDbHandle(AcDbHandle* value) override;
    Acad::ErrorStatus writeAcDbHandle(const AcDbHandle& value) override;

    Acad::ErrorStatus readInt64(Adesk::Int64* value) override;
    Acad::ErrorStatus writeInt64(Adesk::Int64 value) override;
    Acad::ErrorStatus readInt32(Adesk::Int32* value) override;
    Acad::ErrorStatus writeInt32(Adesk::Int32 value) override;
    Acad::ErrorStatus readInt16(Adesk::Int16* value) override;
    Acad::ErrorStatus writeInt16(Adesk::Int16 value) override;
    Acad::ErrorStatus readInt8(Adesk::Int8* value) override;
    Acad::ErrorStatus writeInt8(Adesk::Int8 value) override;
    Acad::ErrorStatus readUInt64(Adesk::UInt64* value) override;
    Acad::ErrorStatus writeUInt64(Adesk::UInt64 value) override;
    Acad::ErrorStatus readUInt32(Adesk::UInt32* value) override;
    Acad::ErrorStatus writeUInt32(Adesk::UInt32 value) override;
    Acad::ErrorStatus readUInt16(Adesk::UInt16* value) override;
    Acad::ErrorStatus writeUInt16(Adesk::UInt16 value) override;
    Acad::ErrorStatus readUInt8(Adesk::UInt8* value) override;
    Acad::ErrorStatus writeUInt8(Adesk::UInt8 value) override;
    Acad::ErrorStatus readBoolean(Adesk::Boolean* value) override;
    Acad::ErrorStatus writeBoolean(Adesk::Boolean value) override;
    Acad::ErrorStatus readBool(bool* value) override;
    Acad::ErrorStatus writeBool(bool value) override;
    Acad::ErrorStatus readDouble(double* value) override;
    Acad::ErrorStatus writeDouble(double value) override;

    Acad::ErrorStatus readPoint2d(AcGePoint2d* value) override;
    Acad::ErrorStatus writePoint2d(const AcGePoint2d& value) override;
    Acad::ErrorStatus readPoint3d(AcGePoint3d* value) override;
    Acad::ErrorStatus writePoint3d(const AcGePoint3d& value) override;
    Acad::ErrorStatus readVector2d(AcGeVector2d* value) override;
    Acad::ErrorStatus writeVector2d(const AcGeVector2d& value) override;
    Acad::ErrorStatus readVector3d(AcGeVector3d* value) override;
    Acad::ErrorStatus writeVector3d(const AcGeVector3d& value) override;
    Acad::ErrorStatus readScale3d(AcGeScale3d* value) override;
    Acad::ErrorStatus writeScale3d(const AcGeScale3d& value) override;

    Acad::ErrorStatus readBytes(void* buffer, Adesk::UIntPtr count) override;
    Acad::ErrorStatus writeBytes(const void* buffer, Adesk::UIntPtr count) override;
    // Addresses print as "set" or "null": their values differ from run to run.
    Acad::ErrorStatus readAddress(void** value) override;
    Acad::ErrorStatus writeAddress(const void* value) override;

    // Positions count written values.
    Acad::ErrorStatus seek(Adesk::Int64 offset, int method) override;
    Adesk::Int64 tell() const override { return static_cast<Adesk::Int64>(m_next); }

private:
    enum class Kind {
        kHardOwnershipId, kSoftOwnershipId, kHardPointerId, kSoftPointerId, kString, kBChunk,
        kHandle, kInt64, kInt32, kInt16, kInt8, kUInt64, kUInt32, kUInt16, kUInt8, kBoolean,
        kBool, kDouble, kPoint2d, kPoint3d, kVector2d, kVector3d, kScale3d, kBytes, kAddress,
    };
    struct Value {
        explicit Value(Kind k) : kind(k) {}
        Kind kind;
        std::int64_t integer = 0;      // signed integers, booleans, handles (as bits)
        std::uint64_t unsignedValue = 0;
        double reals[3] = {0.0, 0.0, 0.0};
        std::wstring text;
        std::vector<std::uint8_t> bytes;
        AcDbObjectId id;
        const void* address = nullptr;
    };

    static const char* nameOf(Kind kind);
    static std::string render(const Value& value);
    Acad::ErrorStatus record(Value value);
    // The next written value for a read of kind; logs the read. Null when the read fails.
    const Value* replay(Kind kind);

    AcDb::FilerType m_type;
    Acad::ErrorStatus m_status = Acad::eOk;
    std::vector<Value> m_values;
    std::size_t m_next = 0;
    std::vector<std::string> m_lines;
};

}  // namespace headless
