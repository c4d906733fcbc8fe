// The runtime classes of this area of the host, registered parents first.
#include "rx/HostClasses.h"

#include "AcDbDatabase.h"
#include "AcDbDwgFiler.h"
#include "AcDbObject.h"
#include "dbidmap.h"
#include "dbsymtb.h"
#include "rxevent.h"

namespace hostdb {

void registerDbClasses()
{
    AcDbDwgFiler::rxInit();
    AcDbDatabase::rxInit();
    AcDbObject::rxInit();
    AcDbSymbolTable::rxInit();
    AcDbSymbolTableRecord::rxInit();
    AcDbBlockTable::rxInit();
    AcDbLayerTable::rxInit();
    AcDbLinetypeTable::rxInit();
    AcDbTextStyleTable::rxInit();
    AcDbDimStyleTable::rxInit();
    AcDbBlockTableRecord::rxInit();
    AcDbLayerTableRecord::rxInit();
    AcDbLinetypeTableRecord::rxInit();
    AcDbTextStyleTableRecord::rxInit();
    AcDbDimStyleTableRecord::rxInit();
    AcDbIdMapping::rxInit();
    AcDbIdMappingIter::rxInit();
    AcRxEventReactor::rxInit();
    AcRxEvent::rxInit();
    acrxSysRegistry()->atPut(ACRX_EVENT_OBJ, new AcRxEvent());
}

}  // namespace hostdb
