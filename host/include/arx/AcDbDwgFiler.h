// AcDbDwgFiler: the typed channel through which objects file their fields.
// Every read and write first checks the filer's status: once it is not eOk, operations
// do nothing and answer that status (the status is sticky until reset).
#pragma once

#include "AcDbHandle.h"
#include "AcString.h"
#include "acdb.h"
#include "adsdef.h"
#include "dbid.h"
#include "gepnt2d.h"
#include "gepnt3d.h"
#include "gescl3d.h"
#include "gevec2d.h"
#include "gevec3d.h"
#include "rxboiler.h"

class AcDbAuditInfo;
class AcDbIdRefQueue;
class AcDbFilerController;

class ACHOST_API AcDbDwgFiler : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcDbDwgFiler);

public:
    AcDbDwgFiler();
    ~AcDbDwgFiler() override;

    virtual Acad::ErrorStatus filerStatus() const = 0;
    virtual AcDb::FilerType filerType() const = 0;
    virtual void setFilerStatus(Acad::ErrorStatus status) = 0;
    virtual void resetFilerStatus() = 0;

    // The drawing format level the data is in; the current level unless a filer says otherwise.
    virtual Acad::ErrorStatus dwgVersion(AcDb::AcDbDwgVersion& version,
                                         AcDb::MaintenanceReleaseVersion& maintenance) const;
    virtual Acad::ErrorStatus extendedDwgMaintenanceReleaseVersion(AcDb::MaintenanceReleaseVersion& v) const;

    virtual Acad::ErrorStatus readHardOwnershipId(AcDbHardOwnershipId* id) = 0;
    virtual Acad::ErrorStatus writeHardOwnershipId(const AcDbHardOwnershipId& id) = 0;
    virtual Acad::ErrorStatus readSoftOwnershipId(AcDbSoftOwnershipId* id) = 0;
    virtual Acad::ErrorStatus writeSoftOwnershipId(const AcDbSoftOwnershipId& id) = 0;
    virtual Acad::ErrorStatus readHardPointerId(AcDbHardPointerId* id) = 0;
    virtual Acad::ErrorStatus writeHardPointerId(const AcDbHardPointerId& id) = 0;
    virtual Acad::ErrorStatus readSoftPointerId(AcDbSoftPointerId* id) = 0;
    virtual Acad::ErrorStatus writeSoftPointerId(const AcDbSoftPointerId& id) = 0;

    // readString(ACHAR**) allocates; free the result with acutDelString (UNCONFIRMED
    // allocator: the host's string allocator is the natural one).
    virtual Acad::ErrorStatus readString(ACHAR** value) = 0;
    virtual Acad::ErrorStatus writeString(const ACHAR* value) = 0;
    virtual Acad::ErrorStatus readString(AcString& value) = 0;
    virtual Acad::ErrorStatus writeString(const AcString& value) = 0;

    // A chunk of at most 32767 bytes; readBChunk allocates buf (free with delete[]).
    virtual Acad::ErrorStatus readBChunk(ads_binary* value) = 0;
    virtual Acad::ErrorStatus writeBChunk(const ads_binary& value) = 0;

    virtual Acad::ErrorStatus readAcDbHandle(AcDbHandle* value) = 0;
    virtual Acad::ErrorStatus writeAcDbHandle(const AcDbHandle& value) = 0;

    virtual Acad::ErrorStatus readInt64(Adesk::Int64* value) = 0;
    virtual Acad::ErrorStatus writeInt64(Adesk::Int64 value) = 0;
    virtual Acad::ErrorStatus readInt32(Adesk::Int32* value) = 0;
    virtual Acad::ErrorStatus writeInt32(Adesk::Int32 value) = 0;
    virtual Acad::ErrorStatus readInt16(Adesk::Int16* value) = 0;
    virtual Acad::ErrorStatus writeInt16(Adesk::Int16 value) = 0;
    virtual Acad::ErrorStatus readInt8(Adesk::Int8* value) = 0;
    virtual Acad::ErrorStatus writeInt8(Adesk::Int8 value) = 0;
    virtual Acad::ErrorStatus readUInt64(Adesk::UInt64* value) = 0;
    virtual Acad::ErrorStatus writeUInt64(Adesk::UInt64 value) = 0;
    virtual Acad::ErrorStatus readUInt32(Adesk::UInt32* value) = 0;
    virtual Acad::ErrorStatus writeUInt32(Adesk::UInt32 value) = 0;
    virtual Acad::ErrorStatus readUInt16(Adesk::UInt16* value) = 0;
    virtual Acad::ErrorStatus writeUInt16(Adesk::UInt16 value) = 0;
    virtual Acad::ErrorStatus readUInt8(Adesk::UInt8* value) = 0;
    virtual Acad::ErrorStatus writeUInt8(Adesk::UInt8 value) = 0;
    virtual Acad::ErrorStatus readBoolean(Adesk::Boolean* value) = 0;
    virtual Acad::ErrorStatus writeBoolean(Adesk::Boolean value) = 0;
    virtual Acad::ErrorStatus readBool(bool* value) = 0;
    virtual Acad::ErrorStatus writeBool(bool value) = 0;
    virtual Acad::ErrorStatus readDouble(double* value) = 0;
    virtual Acad::ErrorStatus writeDouble(double value) = 0;

    virtual Acad::ErrorStatus readPoint2d(AcGePoint2d* value) = 0;
    virtual Acad::ErrorStatus writePoint2d(const AcGePoint2d& value) = 0;
    virtual Acad::ErrorStatus readPoint3d(AcGePoint3d* value) = 0;
    virtual Acad::ErrorStatus writePoint3d(const AcGePoint3d& value) = 0;
    virtual Acad::ErrorStatus readVector2d(AcGeVector2d* value) = 0;
    virtual Acad::ErrorStatus writeVector2d(const AcGeVector2d& value) = 0;
    virtual Acad::ErrorStatus readVector3d(AcGeVector3d* value) = 0;
    virtual Acad::ErrorStatus writeVector3d(const AcGeVector3d& value) = 0;
    virtual Acad::ErrorStatus readScale3d(AcGeScale3d* value) = 0;
    virtual Acad::ErrorStatus writeScale3d(const AcGeScale3d& value) = 0;

    virtual Acad::ErrorStatus readBytes(void* buffer, Adesk::UIntPtr count) = 0;
    virtual Acad::ErrorStatus writeBytes(const void* buffer, Adesk::UIntPtr count) = 0;
    // Addresses are only meaningful within one session (undo, copy); files refuse them.
    virtual Acad::ErrorStatus readAddress(void** value) = 0;
    virtual Acad::ErrorStatus writeAddress(const void* value) = 0;

    virtual Acad::ErrorStatus seek(Adesk::Int64 offset, int method) = 0;
    virtual Adesk::Int64 tell() const = 0;

    virtual Acad::ErrorStatus addReferences(AcDbIdRefQueue& queue);
    virtual bool usesReferences() const;
    virtual AcDbAuditInfo* getAuditInfo() const;
    virtual AcDbFilerController& controller() const;

    // Convenience overloads that pick the typed operation.
    Acad::ErrorStatus readItem(AcDbHardOwnershipId* v) { return readHardOwnershipId(v); }
    Acad::ErrorStatus writeItem(const AcDbHardOwnershipId& v) { return writeHardOwnershipId(v); }
    Acad::ErrorStatus readItem(AcDbSoftOwnershipId* v) { return readSoftOwnershipId(v); }
    Acad::ErrorStatus writeItem(const AcDbSoftOwnershipId& v) { return writeSoftOwnershipId(v); }
    Acad::ErrorStatus readItem(AcDbHardPointerId* v) { return readHardPointerId(v); }
    Acad::ErrorStatus writeItem(const AcDbHardPointerId& v) { return writeHardPointerId(v); }
    Acad::ErrorStatus readItem(AcDbSoftPointerId* v) { return readSoftPointerId(v); }
    Acad::ErrorStatus writeItem(const AcDbSoftPointerId& v) { return writeSoftPointerId(v); }
    Acad::ErrorStatus readItem(AcString& v) { return readString(v); }
    Acad::ErrorStatus writeItem(const AcString& v) { return writeString(v); }
    Acad::ErrorStatus writeItem(const ACHAR* v) { return writeString(v); }
    Acad::ErrorStatus readItem(AcDbHandle* v) { return readAcDbHandle(v); }
    Acad::ErrorStatus writeItem(const AcDbHandle& v) { return writeAcDbHandle(v); }
    Acad::ErrorStatus readItem(Adesk::Int64* v) { return readInt64(v); }
    Acad::ErrorStatus writeItem(Adesk::Int64 v) { return writeInt64(v); }
    Acad::ErrorStatus readItem(Adesk::Int32* v) { return readInt32(v); }
    Acad::ErrorStatus writeItem(Adesk::Int32 v) { return writeInt32(v); }
    Acad::ErrorStatus readItem(Adesk::Int16* v) { return readInt16(v); }
    Acad::ErrorStatus writeItem(Adesk::Int16 v) { return writeInt16(v); }
    Acad::ErrorStatus readItem(Adesk::Int8* v) { return readInt8(v); }
    Acad::ErrorStatus writeItem(Adesk::Int8 v) { return writeInt8(v); }
    Acad::ErrorStatus readItem(Adesk::UInt64* v) { return readUInt64(v); }
    Acad::ErrorStatus writeItem(Adesk::UInt64 v) { return writeUInt64(v); }
    Acad::ErrorStatus readItem(Adesk::UInt32* v) { return readUInt32(v); }
    Acad::ErrorStatus writeItem(Adesk::UInt32 v) { return writeUInt32(v); }
    Acad::ErrorStatus readItem(Adesk::UInt16* v) { return readUInt16(v); }
    Acad::ErrorStatus writeItem(Adesk::UInt16 v) { return writeUInt16(v); }
    Acad::ErrorStatus readItem(Adesk::UInt8* v) { return readUInt8(v); }
    Acad::ErrorStatus writeItem(Adesk::UInt8 v) { return writeUInt8(v); }
    Acad::ErrorStatus readItem(bool* v) { return readBool(v); }
    Acad::ErrorStatus writeItem(bool v) { return writeBool(v); }
    Acad::ErrorStatus readItem(double* v) { return readDouble(v); }
    Acad::ErrorStatus writeItem(double v) { return writeDouble(v); }
    Acad::ErrorStatus readItem(AcGePoint2d* v) { return readPoint2d(v); }
    Acad::ErrorStatus writeItem(const AcGePoint2d& v) { return writePoint2d(v); }
    Acad::ErrorStatus readItem(AcGePoint3d* v) { return readPoint3d(v); }
    Acad::ErrorStatus writeItem(const AcGePoint3d& v) { return writePoint3d(v); }
    Acad::ErrorStatus readItem(AcGeVector2d* v) { return readVector2d(v); }
    Acad::ErrorStatus writeItem(const AcGeVector2d& v) { return writeVector2d(v); }
    Acad::ErrorStatus readItem(AcGeVector3d* v) { return readVector3d(v); }
    Acad::ErrorStatus writeItem(const AcGeVector3d& v) { return writeVector3d(v); }
    Acad::ErrorStatus readItem(AcGeScale3d* v) { return readScale3d(v); }
    Acad::ErrorStatus writeItem(const AcGeScale3d& v) { return writeScale3d(v); }
};
