// DrawingFiler: the file filer that writes an object's record. It writes like the memory
// filer and notes where each reference lands and of which kind, for the record's
// reference table (what a proxy of the object needs to keep its references live).
#pragma once

#include <vector>

#include "ProxyData.h"
#include "headless/MemoryDwgFiler.h"

namespace hostfile {

class DrawingFiler : public headless::MemoryDwgFiler {
public:
    explicit DrawingFiler(AcDbDatabase* db) : headless::MemoryDwgFiler(AcDb::kFileFiler, db) {}

    const std::vector<ProxyReference>& references() const { return m_references; }

    Acad::ErrorStatus writeHardOwnershipId(const AcDbHardOwnershipId& id) override;
    Acad::ErrorStatus writeSoftOwnershipId(const AcDbSoftOwnershipId& id) override;
    Acad::ErrorStatus writeHardPointerId(const AcDbHardPointerId& id) override;
    Acad::ErrorStatus writeSoftPointerId(const AcDbSoftPointerId& id) override;

private:
    void note(const AcDbObjectId& id, AcDb::ReferenceType kind);

    std::vector<ProxyReference> m_references;
};

}  // namespace hostfile
