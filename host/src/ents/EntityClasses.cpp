// The runtime classes of the host's entities, registered parents first.
#include "rx/HostClasses.h"

#include "AcDbArc.h"
#include "AcDbCircle.h"
#include "AcDbCurve.h"
#include "AcDbEntity.h"
#include "AcDbLine.h"
#include "AcDbMText.h"
#include "AcDbText.h"

namespace hostents {

void registerEntityClasses()
{
    AcDbEntity::rxInit();
    AcDbCurve::rxInit();
    AcDbLine::rxInit();
    AcDbCircle::rxInit();
    AcDbArc::rxInit();
    AcDbText::rxInit();
    AcDbMText::rxInit();
}

}  // namespace hostents
