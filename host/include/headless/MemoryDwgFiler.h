// MemoryDwgFiler: a binary filer over a byte buffer. The layout is the drawing file's:
// little endian, integers at their width, booleans as one byte 0 or 1, doubles as their
// IEEE 754 bits, points and vectors as their doubles, strings as UTF-16 with a 32-bit code
// unit count, binary chunks with a 16-bit length, object references as 64-bit handles.
#pragma once

#include <cstdint>
#include <vector>

#include "AcDbDwgFiler.h"

class AcDbDatabase;

namespace headless {

class ACHOST_API MemoryDwgFiler : public AcDbDwgFiler {
public:
    // References resolve through database. A filer without one takes the database of the
    // first reference it writes.
    explicit MemoryDwgFiler(AcDb::FilerType type = AcDb::kFileFiler, AcDbDatabase* database = nullptr);
    MemoryDwgFiler(std::vector<std::uint8_t> bytes, AcDb::FilerType type, AcDbDatabase* database);
    ~MemoryDwgFiler() override;

    const std::vector<std::uint8_t>& bytes() const;
    // Hands the data over without a copy; the filer is then empty, at position 0.
    std::vector<std::uint8_t> takeBytes();
    // Replaces the data, moves to its start and clears the status.
    void setBytes(std::vector<std::uint8_t> bytes);
    AcDbDatabase* database() const { return m_database; }
    void setDatabase(AcDbDatabase* database) { m_database = database; }
    // Reading a handle the database does not know gives a null id, or, when told so, an id
    // for a stub that the object with that handle fills in later (as a drawing is read).
    void setCreatesStubs(bool create) { m_createStubs = create; }
    bool createsStubs() const { return m_createStubs; }
    void setDwgVersion(AcDb::AcDbDwgVersion version, AcDb::MaintenanceReleaseVersion maintenance);
    // Bytes between the position and the end.
    Adesk::UInt64 remaining() const { return m_end - m_position; }

    Acad::ErrorStatus filerStatus() const override { return m_status; }
    AcDb::FilerType filerType() const override { return m_type; }
    void setFilerStatus(Acad::ErrorStatus status) override { m_status = status; }
    void resetFilerStatus() override { m_status = Acad::eOk; }
    Acad::ErrorStatus dwgVersion(AcDb::AcDbDwgVersion& version,
                                 AcDb::MaintenanceReleaseVersion& maintenance) const override;

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
    // File filers refuse addresses (eNotApplicable): they mean nothing in another session.
    Acad::ErrorStatus readAddress(void** value) override;
    Acad::ErrorStatus writeAddress(const void* value) override;

    // Positions outside the data fail with eInvalidInput, which becomes the status.
    Acad::ErrorStatus seek(Adesk::Int64 offset, int method) override;
    Adesk::Int64 tell() const override { return static_cast<Adesk::Int64>(m_position); }

private:
    Acad::ErrorStatus put(const void* data, std::size_t count);
    // Room for count bytes at the position (the data grows as needed), which moves past them.
    std::uint8_t* makeRoom(std::size_t count);
    Acad::ErrorStatus take(void* data, std::size_t count);
    template <typename T>
    Acad::ErrorStatus putLittle(T value);
    template <typename T>
    Acad::ErrorStatus takeLittle(T* value);
    Acad::ErrorStatus putDoubles(const double* values, int count);
    Acad::ErrorStatus takeDoubles(double* values, int count);
    Acad::ErrorStatus putId(const AcDbObjectId& id);
    Acad::ErrorStatus takeId(AcDbObjectId* id);
    Acad::ErrorStatus putString(const ACHAR* text, std::size_t length);
    Acad::ErrorStatus takeString(std::wstring& text);
    Acad::ErrorStatus fail(Acad::ErrorStatus status);

    // Written values land in room made ahead (past m_end, zero filled, made in large steps):
    // growing a vector by each value's few bytes cost more than writing them. bytes() cuts
    // the room off, hence mutable.
    mutable std::vector<std::uint8_t> m_bytes;
    std::size_t m_end = 0;  // the data is m_bytes[0, m_end)
    std::size_t m_position = 0;
    AcDb::FilerType m_type;
    AcDbDatabase* m_database;
    Acad::ErrorStatus m_status = Acad::eOk;
    bool m_createStubs = false;
    AcDb::AcDbDwgVersion m_version = AcDb::kDHL_CURRENT;
    AcDb::MaintenanceReleaseVersion m_maintenance = AcDb::kMReleaseCurrent;
};

}  // namespace headless
