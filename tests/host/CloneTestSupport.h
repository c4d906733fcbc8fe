// Helpers of the clone and drawing-file suites: drawings with linked test entities, and
// reading an object's fields back through the open protocol.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <vector>

#include "CloneTestObjects.h"
#include "dbidmap.h"
#include "dbmain.h"
#include "dbsymtb.h"

namespace clonetest {

inline AcDbObjectId modelSpaceOf(AcDbDatabase* db)
{
    return db->currentSpaceId();
}

// Appends the entity to the block (model space when null) and closes it.
inline AcDbObjectId append(AcDbDatabase* db, AcDbEntity* entity, AcDbObjectId block = AcDbObjectId::kNull)
{
    AcDbBlockTableRecord* record = nullptr;
    EXPECT_EQ(acdbOpenObject(record, block.isNull() ? modelSpaceOf(db) : block, AcDb::kForWrite), Acad::eOk);
    AcDbObjectId id;
    EXPECT_EQ(record->appendAcDbEntity(id, entity), Acad::eOk);
    record->close();
    entity->close();
    return id;
}

// A link with the tag in model space.
inline AcDbObjectId addLink(AcDbDatabase* db, int tag)
{
    auto* link = new CloneTestLink();
    link->setTag(tag);
    return append(db, link);
}

// Runs change on the object open for write.
template <class T>
void edit(AcDbObjectId id, const std::function<void(T*)>& change)
{
    T* obj = nullptr;
    ASSERT_EQ(acdbOpenObject(obj, id, AcDb::kForWrite), Acad::eOk);
    change(obj);
    obj->close();
}

// The answer of read on the object open for read.
template <class T, class R>
R inspect(AcDbObjectId id, R (T::*read)() const)
{
    T* obj = nullptr;
    if (acdbOpenObject(obj, id, AcDb::kForRead) != Acad::eOk) {
        ADD_FAILURE() << "cannot open " << id;
        return R();
    }
    R value = (obj->*read)();
    obj->close();
    return value;
}

// The live entities of a block (model space when null), in order.
inline std::vector<AcDbObjectId> entitiesOf(AcDbDatabase* db, AcDbObjectId block = AcDbObjectId::kNull)
{
    std::vector<AcDbObjectId> ids;
    AcDbBlockTableRecord* record = nullptr;
    if (acdbOpenObject(record, block.isNull() ? modelSpaceOf(db) : block, AcDb::kForRead) != Acad::eOk)
        return ids;
    AcDbBlockTableRecordIterator* it = nullptr;
    record->newIterator(it);
    for (; !it->done(); it->step()) {
        AcDbObjectId id;
        it->getEntityId(id);
        ids.push_back(id);
    }
    delete it;
    record->close();
    return ids;
}

// Adds a layer with the colour index and answers its id.
inline AcDbObjectId addLayer(AcDbDatabase* db, const ACHAR* name, Adesk::UInt16 color)
{
    AcDbLayerTable* layers = nullptr;
    EXPECT_EQ(db->getLayerTable(layers, AcDb::kForWrite), Acad::eOk);
    auto* record = new AcDbLayerTableRecord();
    record->setName(name);
    AcCmColor c;
    c.setColorIndex(color);
    record->setColor(c);
    record->setLinetypeObjectId(db->continuousLinetype());
    AcDbObjectId id;
    EXPECT_EQ(layers->add(id, record), Acad::eOk);
    record->close();
    layers->close();
    return id;
}

inline AcString nameOf(AcDbObjectId recordId)
{
    AcDbSymbolTableRecord* record = nullptr;
    AcString name;
    if (acdbOpenObject(record, recordId, AcDb::kForRead) == Acad::eOk) {
        record->getName(name);
        record->close();
    }
    return name;
}

}  // namespace clonetest
