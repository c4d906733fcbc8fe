// AcDbDwgFiler: what every filer shares: the drawing format level it speaks and the
// reference and audit hooks, which the headless host's filers do not use.
#include "AcDbDwgFiler.h"

// The host's filers report progress to no one; the controller exists for the interface.
class AcDbFilerController {};

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbDwgFiler, AcRxObject)

AcDbDwgFiler::AcDbDwgFiler() = default;

AcDbDwgFiler::~AcDbDwgFiler() = default;

Acad::ErrorStatus AcDbDwgFiler::dwgVersion(AcDb::AcDbDwgVersion& version,
                                           AcDb::MaintenanceReleaseVersion& maintenance) const
{
    version = AcDb::kDHL_CURRENT;
    maintenance = AcDb::kMReleaseCurrent;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbDwgFiler::extendedDwgMaintenanceReleaseVersion(AcDb::MaintenanceReleaseVersion& v) const
{
    AcDb::AcDbDwgVersion version;
    return dwgVersion(version, v);
}

Acad::ErrorStatus AcDbDwgFiler::addReferences(AcDbIdRefQueue& /*queue*/)
{
    return Acad::eOk;
}

bool AcDbDwgFiler::usesReferences() const
{
    return false;
}

AcDbAuditInfo* AcDbDwgFiler::getAuditInfo() const
{
    return nullptr;
}

AcDbFilerController& AcDbDwgFiler::controller() const
{
    static AcDbFilerController controller;
    return controller;
}
