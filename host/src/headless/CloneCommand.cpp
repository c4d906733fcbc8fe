// The host commands' side of cloning: choosing the context, and the copy command.
#include "headless/CloneCommand.h"

#include "AcDbDatabase.h"
#include "db/IdMappingState.h"

namespace headless {

Acad::ErrorStatus setDeepCloneContext(AcDbIdMapping& map, AcDb::DeepCloneType context)
{
    hostdb::IdMappingState& state = hostdb::IdMappingState::of(map);
    if (state.inProgress || state.finished)
        return Acad::eInvalidContext;
    state.context = context;
    state.contextChosen = true;
    return Acad::eOk;
}

Acad::ErrorStatus copyObjects(const AcDbObjectIdArray& ids, AcDbObjectIdArray& clones, AcDbObjectId owner)
{
    if (ids.isEmpty())
        return Acad::eOk;
    AcDbDatabase* db = ids[0].database();
    if (db == nullptr)
        return Acad::eNullObjectId;
    if (owner.isNull())
        owner = db->currentSpaceId();
    AcDbIdMapping map;
    setDeepCloneContext(map, AcDb::kDcCopy);
    const Acad::ErrorStatus es = db->deepCloneObjects(ids, owner, map);
    if (es != Acad::eOk)
        return es;
    for (const AcDbObjectId& id : ids) {
        AcDbIdPair pair(id, AcDbObjectId(), false);
        if (map.compute(pair) && pair.isCloned())
            clones.append(pair.value());
    }
    return Acad::eOk;
}

}  // namespace headless
