// ProxyData: a proxy's kept bytes and graphics, and their filing.
#include "ProxyData.h"

#include "AcDbEntity.h"
#include "GraphicsCodec.h"
#include "dbproxy.h"
#include "db/DbChecks.h"
#include "rxclass.h"

namespace hostfile {

ClassRecord ClassRecord::of(const AcRxClass* cls)
{
    ClassRecord record;
    if (cls == nullptr)
        return record;
    record.name = cls->name();
    record.dxfName = cls->dxfName() != nullptr ? cls->dxfName() : L"";
    record.appName = cls->appName() != nullptr ? cls->appName() : L"";
    int dwg = 0;
    int maint = 0;
    cls->getClassVersion(dwg, maint);
    record.dwgVersion = dwg;
    record.maintVersion = maint;
    record.proxyFlags = static_cast<Adesk::UInt32>(cls->proxyFlags());
    for (const AcRxClass* parent = cls->myParent(); parent != nullptr && record.parents.size() < kMaxParents;
         parent = parent->myParent())
        record.parents.emplace_back(parent->name());
    return record;
}

bool ClassRecord::derivesFrom(const ACHAR* className) const
{
    if (name.compare(className) == 0)
        return true;
    for (const AcString& parent : parents) {
        if (parent.compare(className) == 0)
            return true;
    }
    return false;
}

AcString ClassRecord::application() const
{
    const std::wstring text = appName.kwszPtr();
    return AcString(text.substr(0, text.find(L'|')).c_str());
}

void ClassRecord::writeTo(AcDbDwgFiler* filer) const
{
    filer->writeString(name);
    filer->writeString(dxfName);
    filer->writeString(appName);
    filer->writeInt32(dwgVersion);
    filer->writeInt32(maintVersion);
    filer->writeUInt32(proxyFlags);
    filer->writeUInt16(static_cast<Adesk::UInt16>(parents.size()));
    for (const AcString& parent : parents)
        filer->writeString(parent);
}

Acad::ErrorStatus ClassRecord::readFrom(AcDbDwgFiler* filer)
{
    Adesk::UInt16 parentCount = 0;
    filer->readString(name);
    filer->readString(dxfName);
    filer->readString(appName);
    filer->readInt32(&dwgVersion);
    filer->readInt32(&maintVersion);
    filer->readUInt32(&proxyFlags);
    if (filer->readUInt16(&parentCount) != Acad::eOk)
        return filer->filerStatus();
    if (parentCount > kMaxParents || name.isEmpty()) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return Acad::eDwgObjectImproperlyRead;
    }
    parents.assign(parentCount, AcString());
    for (AcString& parent : parents)
        filer->readString(parent);
    return filer->filerStatus();
}

DrawnProperties DrawnProperties::of(const AcDbEntity* entity)
{
    DrawnProperties properties;
    properties.color = entity->entityColor();
    properties.layerId = entity->layerId();
    properties.linetypeId = entity->linetypeId();
    properties.lineWeight = entity->lineWeight();
    properties.linetypeScale = entity->linetypeScale();
    return properties;
}

namespace {

Acad::ErrorStatus writeReference(AcDbDwgFiler* filer, const ProxyReference& reference)
{
    switch (reference.kind) {
    case AcDb::kHardOwnershipRef: return filer->writeHardOwnershipId(reference.id);
    case AcDb::kSoftOwnershipRef: return filer->writeSoftOwnershipId(reference.id);
    case AcDb::kHardPointerRef: return filer->writeHardPointerId(reference.id);
    default: return filer->writeSoftPointerId(reference.id);
    }
}

Acad::ErrorStatus readReference(AcDbDwgFiler* filer, ProxyReference& reference)
{
    switch (reference.kind) {
    case AcDb::kHardOwnershipRef: {
        AcDbHardOwnershipId id;
        filer->readHardOwnershipId(&id);
        reference.id = id;
        break;
    }
    case AcDb::kSoftOwnershipRef: {
        AcDbSoftOwnershipId id;
        filer->readSoftOwnershipId(&id);
        reference.id = id;
        break;
    }
    case AcDb::kHardPointerRef: {
        AcDbHardPointerId id;
        filer->readHardPointerId(&id);
        reference.id = id;
        break;
    }
    default: {
        AcDbSoftPointerId id;
        filer->readSoftPointerId(&id);
        reference.id = id;
        break;
    }
    }
    return filer->filerStatus();
}

constexpr Adesk::UInt32 kHandleBytes = 8;

}  // namespace

Acad::ErrorStatus ProxyData::writeBytes(AcDbDwgFiler* filer) const
{
    std::size_t at = 0;
    for (const ProxyReference& reference : references) {
        if (reference.offset > at)
            filer->writeBytes(bytes.data() + at, reference.offset - at);
        writeReference(filer, reference);
        at = reference.offset + kHandleBytes;
    }
    if (bytes.size() > at)
        filer->writeBytes(bytes.data() + at, bytes.size() - at);
    return filer->filerStatus();
}

Acad::ErrorStatus ProxyData::writeSession(AcDbDwgFiler* filer) const
{
    cls.writeTo(filer);
    filer->writeUInt32(static_cast<Adesk::UInt32>(bytes.size()));
    filer->writeUInt32(static_cast<Adesk::UInt32>(references.size()));
    for (const ProxyReference& reference : references) {
        filer->writeUInt32(reference.offset);
        filer->writeUInt8(static_cast<Adesk::UInt8>(reference.kind));
    }
    writeBytes(filer);
    filer->writeBool(hasGraphics);
    if (hasGraphics) {
        GraphicsCodec::write(filer, graphics);
        filer->writeUInt32(drawnWith.color.getRGBM());
        filer->writeSoftPointerId(drawnWith.layerId);
        filer->writeSoftPointerId(drawnWith.linetypeId);
        filer->writeInt16(static_cast<Adesk::Int16>(drawnWith.lineWeight));
        filer->writeDouble(drawnWith.linetypeScale);
    }
    filer->writeBool(hasTransform);
    if (hasTransform) {
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 4; ++column)
                filer->writeDouble(transform(row, column));
    }
    return filer->filerStatus();
}

// Session filers carry what this process wrote: the sizes are trusted, but still checked
// for consistency so that a misused filer fails instead of reading out of bounds.
Acad::ErrorStatus ProxyData::readSession(AcDbDwgFiler* filer)
{
    ProxyData read;
    Adesk::UInt32 size = 0;
    Adesk::UInt32 count = 0;
    if (read.cls.readFrom(filer) != Acad::eOk)
        return filer->filerStatus();
    filer->readUInt32(&size);
    if (filer->readUInt32(&count) != Acad::eOk)
        return filer->filerStatus();
    if (static_cast<std::uint64_t>(count) * kHandleBytes > size) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return Acad::eDwgObjectImproperlyRead;
    }
    read.references.resize(count);
    Adesk::UInt32 next = 0;
    for (ProxyReference& reference : read.references) {
        Adesk::UInt8 kind = 0;
        filer->readUInt32(&reference.offset);
        filer->readUInt8(&kind);
        if (filer->filerStatus() != Acad::eOk)
            return filer->filerStatus();
        if (reference.offset < next || kind > AcDb::kHardOwnershipRef ||
            static_cast<std::uint64_t>(reference.offset) + kHandleBytes > size) {
            filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
            return Acad::eDwgObjectImproperlyRead;
        }
        reference.kind = static_cast<AcDb::ReferenceType>(kind);
        next = reference.offset + kHandleBytes;
    }
    read.bytes.assign(size, 0);
    std::size_t at = 0;
    for (ProxyReference& reference : read.references) {
        if (reference.offset > at)
            filer->readBytes(read.bytes.data() + at, reference.offset - at);
        readReference(filer, reference);
        const Adesk::UInt64 handle = reference.id.isNull() ? 0 : reference.id.handle().value();
        for (Adesk::UInt32 i = 0; i < kHandleBytes; ++i)
            read.bytes[reference.offset + i] = static_cast<std::uint8_t>(handle >> (8 * i));
        at = reference.offset + kHandleBytes;
    }
    if (read.bytes.size() > at)
        filer->readBytes(read.bytes.data() + at, read.bytes.size() - at);
    filer->readBool(&read.hasGraphics);
    if (read.hasGraphics) {
        Adesk::UInt32 rgbm = 0;
        AcDbSoftPointerId layer, linetype;
        Adesk::Int16 lineWeight = 0;
        GraphicsCodec::read(filer, SIZE_MAX, read.graphics);
        filer->readUInt32(&rgbm);
        filer->readSoftPointerId(&layer);
        filer->readSoftPointerId(&linetype);
        filer->readInt16(&lineWeight);
        filer->readDouble(&read.drawnWith.linetypeScale);
        read.drawnWith.color.setRGBM(rgbm);
        read.drawnWith.layerId = layer;
        read.drawnWith.linetypeId = linetype;
        if (!hostdb::isValidLineWeight(lineWeight)) {
            filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
            return Acad::eDwgObjectImproperlyRead;
        }
        read.drawnWith.lineWeight = static_cast<AcDb::LineWeight>(lineWeight);
    }
    filer->readBool(&read.hasTransform);
    if (read.hasTransform) {
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 4; ++column)
                filer->readDouble(&read.transform.entry[row][column]);
    }
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    *this = std::move(read);
    return Acad::eOk;
}

bool ProxyData::takeFrom(const std::vector<std::uint8_t>& record, std::size_t start,
                         const std::vector<ProxyReference>& recordReferences)
{
    if (start > record.size())
        return false;
    std::vector<ProxyReference> kept;
    for (const ProxyReference& reference : recordReferences) {
        if (reference.offset >= start) {
            ProxyReference shifted = reference;
            shifted.offset = static_cast<Adesk::UInt32>(reference.offset - start);
            kept.push_back(shifted);
        } else if (reference.offset + kHandleBytes > start) {
            return false;  // a reference across the end of the base fields
        }
    }
    bytes.assign(record.begin() + static_cast<std::ptrdiff_t>(start), record.end());
    references = std::move(kept);
    return true;
}

ProxyData* ProxyAccess::dataOf(const AcDbObject* obj)
{
    if (const auto* proxy = AcDbProxyObject::cast(obj))
        return proxy->m_data;
    if (const auto* proxy = AcDbProxyEntity::cast(obj))
        return proxy->m_data;
    return nullptr;
}

}  // namespace hostfile
