// DrawingFiler: references noted with their place in the record.
#include "DrawingFiler.h"

namespace hostfile {

void DrawingFiler::note(const AcDbObjectId& id, AcDb::ReferenceType kind)
{
    if (filerStatus() != Acad::eOk)
        return;
    ProxyReference reference;
    reference.offset = static_cast<Adesk::UInt32>(tell());
    reference.kind = kind;
    reference.id = id;
    m_references.push_back(reference);
}

Acad::ErrorStatus DrawingFiler::writeHardOwnershipId(const AcDbHardOwnershipId& id)
{
    note(id, AcDb::kHardOwnershipRef);
    return MemoryDwgFiler::writeHardOwnershipId(id);
}

Acad::ErrorStatus DrawingFiler::writeSoftOwnershipId(const AcDbSoftOwnershipId& id)
{
    note(id, AcDb::kSoftOwnershipRef);
    return MemoryDwgFiler::writeSoftOwnershipId(id);
}

Acad::ErrorStatus DrawingFiler::writeHardPointerId(const AcDbHardPointerId& id)
{
    note(id, AcDb::kHardPointerRef);
    return MemoryDwgFiler::writeHardPointerId(id);
}

Acad::ErrorStatus DrawingFiler::writeSoftPointerId(const AcDbSoftPointerId& id)
{
    note(id, AcDb::kSoftPointerRef);
    return MemoryDwgFiler::writeSoftPointerId(id);
}

}  // namespace hostfile
