// CloneFiler: references kept as ids, noted for following, and translated on the way back.
#include "CloneFiler.h"

#include "AcDbStub.h"
#include "IdMappingState.h"

namespace hostdb {

CloneFiler::CloneFiler(AcDb::FilerType type) : headless::MemoryDwgFiler(type, nullptr) {}

AcDbObjectId CloneFiler::translate(const AcDbObjectId& id, const AcDbIdMapping& map)
{
    if (id.isNull())
        return id;
    const IdMappingState& state = IdMappingState::of(map);
    if (const AcDbIdPair* pair = state.find(id)) {
        if (!pair->value().isNull())
            return pair->value();
    }
    // A reference to something that was not cloned stays as it is within one database;
    // across databases it would name an object of the source, so it becomes null.
    return id.database() == state.destDb ? id : AcDbObjectId();
}

Acad::ErrorStatus CloneFiler::putReference(const AcDbObjectId& id, AcDb::ReferenceType kind)
{
    const Acad::ErrorStatus es = writeAddress(static_cast<const AcDbStub*>(id));
    if (es == Acad::eOk && !id.isNull())
        m_references.push_back({id, kind});
    return es;
}

Acad::ErrorStatus CloneFiler::takeReference(AcDbObjectId* id)
{
    void* address = nullptr;
    const Acad::ErrorStatus es = readAddress(&address);
    if (es != Acad::eOk)
        return es;
    AcDbObjectId read(static_cast<AcDbStub*>(address));
    if (m_map != nullptr)
        read = translate(read, *m_map);
    if (id != nullptr)
        *id = read;
    return Acad::eOk;
}

Acad::ErrorStatus CloneFiler::readHardOwnershipId(AcDbHardOwnershipId* id) { return takeReference(id); }
Acad::ErrorStatus CloneFiler::readSoftOwnershipId(AcDbSoftOwnershipId* id) { return takeReference(id); }
Acad::ErrorStatus CloneFiler::readHardPointerId(AcDbHardPointerId* id) { return takeReference(id); }
Acad::ErrorStatus CloneFiler::readSoftPointerId(AcDbSoftPointerId* id) { return takeReference(id); }

Acad::ErrorStatus CloneFiler::writeHardOwnershipId(const AcDbHardOwnershipId& id)
{
    return putReference(id, AcDb::kHardOwnershipRef);
}

Acad::ErrorStatus CloneFiler::writeSoftOwnershipId(const AcDbSoftOwnershipId& id)
{
    return putReference(id, AcDb::kSoftOwnershipRef);
}

Acad::ErrorStatus CloneFiler::writeHardPointerId(const AcDbHardPointerId& id)
{
    return putReference(id, AcDb::kHardPointerRef);
}

Acad::ErrorStatus CloneFiler::writeSoftPointerId(const AcDbSoftPointerId& id)
{
    return putReference(id, AcDb::kSoftPointerRef);
}

}  // namespace hostdb
