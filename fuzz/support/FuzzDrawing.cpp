#include "FuzzDrawing.h"

#include <memory>

#include "AcDbDatabase.h"
#include "app/ClassRegistration.h"
#include "dbapserv.h"
#include "dbmain.h"
#include "rxregsvc.h"

namespace fuzzing {

AcDbDatabase* WorkingDrawing()
{
    static AcDbDatabase* const drawing = [] {
        Quarvo::RegisterModuleClasses();
        acrxBuildClassHierarchy();
        auto* db = new AcDbDatabase();
        acdbHostApplicationServices()->setWorkingDatabase(db);
        return db;
    }();
    return drawing;
}

void FillIdQuarantine()
{
    constexpr Adesk::UInt64 kIds = 70000;
    auto db = std::make_unique<AcDbDatabase>(false, true);
    for (Adesk::UInt64 handle = 1; handle <= kIds; ++handle) {
        AcDbObjectId id;
        db->getAcDbObjectId(id, true, AcDbHandle(handle));
    }
}

}  // namespace fuzzing
