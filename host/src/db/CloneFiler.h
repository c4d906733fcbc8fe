// CloneFiler: the filer of the clone operations. It keeps an object's fields in memory
// with references as the ids themselves (not handles), remembers every reference written
// with its kind, so that cloning can follow owned (and, for wblock, hard-pointed)
// objects, and can translate the references it reads back through an id mapping.
#pragma once

#include <vector>

#include "dbidmap.h"
#include "headless/MemoryDwgFiler.h"

namespace hostdb {

class CloneFiler : public headless::MemoryDwgFiler {
public:
    struct Reference {
        AcDbObjectId id;
        AcDb::ReferenceType kind;
    };

    explicit CloneFiler(AcDb::FilerType type);

    // Every non-null reference written, in order.
    const std::vector<Reference>& references() const { return m_references; }
    // From now on references read come back translated: to the value of their pair in
    // map, else unchanged when they are in the destination database, else null.
    void translateThrough(const AcDbIdMapping* map) { m_map = map; }
    // Moves back to the start for reading.
    Acad::ErrorStatus rewind() { return seek(0, AcDb::kSeekFromStart); }

    Acad::ErrorStatus readHardOwnershipId(AcDbHardOwnershipId* id) override;
    Acad::ErrorStatus writeHardOwnershipId(const AcDbHardOwnershipId& id) override;
    Acad::ErrorStatus readSoftOwnershipId(AcDbSoftOwnershipId* id) override;
    Acad::ErrorStatus writeSoftOwnershipId(const AcDbSoftOwnershipId& id) override;
    Acad::ErrorStatus readHardPointerId(AcDbHardPointerId* id) override;
    Acad::ErrorStatus writeHardPointerId(const AcDbHardPointerId& id) override;
    Acad::ErrorStatus readSoftPointerId(AcDbSoftPointerId* id) override;
    Acad::ErrorStatus writeSoftPointerId(const AcDbSoftPointerId& id) override;

    // The translation rule on its own, for the host's other translations (owners).
    static AcDbObjectId translate(const AcDbObjectId& id, const AcDbIdMapping& map);

private:
    Acad::ErrorStatus putReference(const AcDbObjectId& id, AcDb::ReferenceType kind);
    Acad::ErrorStatus takeReference(AcDbObjectId* id);

    std::vector<Reference> m_references;
    const AcDbIdMapping* m_map = nullptr;
};

}  // namespace hostdb
