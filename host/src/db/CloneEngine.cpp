// CloneEngine: the two phases of a clone operation (cloning, then translating references
// through the id mapping) with the notifications between them, and the default clone of
// one object.
#include "CloneEngine.h"

#include <algorithm>

#include "AcDbImpObject.h"
#include "AcDbStub.h"
#include "CloneFiler.h"
#include "CloneNotifier.h"
#include "IdMappingState.h"
#include "dbsymtb.h"

namespace hostdb {

namespace {

// An object to change while something up the call stack may already hold it open for
// write (the owner of the operation, a clone being made): then it is used as it is;
// otherwise it is opened here and closed again at the end of the scope.
class WriteAccess {
public:
    explicit WriteAccess(const AcDbObjectId& id)
    {
        AcDbObject* held = AcDbStub::objectOf(id);
        if (held != nullptr && held->isWriteEnabled()) {
            m_object = held;
            return;
        }
        m_status = acdbOpenObject(m_object, id, AcDb::kForWrite);
        m_opened = m_status == Acad::eOk;
    }
    ~WriteAccess()
    {
        if (m_opened)
            m_object->close();
    }
    WriteAccess(const WriteAccess&) = delete;
    WriteAccess& operator=(const WriteAccess&) = delete;

    AcDbObject* object() const { return m_status == Acad::eOk ? m_object : nullptr; }
    Acad::ErrorStatus status() const { return m_status; }

private:
    AcDbObject* m_object = nullptr;
    Acad::ErrorStatus m_status = Acad::eOk;
    bool m_opened = false;
};

// Closes a clone the default clone left open for write (a clone that an override
// already closed, or one still in no database, is left alone).
void closeClone(AcDbObject* clone)
{
    if (clone != nullptr && clone->database() != nullptr && clone->isWriteEnabled())
        clone->close();
}

bool isCloneOfOperation(const AcDbObject* obj)
{
    return obj->isAcDbObjectIdsInFlux();
}

// The table of dest that holds records of the kind table holds.
AcDbObjectId matchingTable(const AcDbObject* table, AcDbDatabase* dest)
{
    const AcDbObjectId candidates[] = {dest->blockTableId(), dest->layerTableId(), dest->linetypeTableId(),
                                       dest->textStyleTableId(), dest->dimStyleTableId()};
    for (const AcDbObjectId& id : candidates) {
        if (!id.isNull() && id.objectClass() == table->isA())
            return id;
    }
    return AcDbObjectId();
}

}  // namespace

Acad::ErrorStatus CloneEngine::checkOperation(AcDbDatabase* source, const AcDbObjectIdArray& ids,
                                              const AcDbObjectId& owner, AcDbIdMapping& map, Kind kind)
{
    IdMappingState& state = IdMappingState::of(map);
    if (state.finished)
        return Acad::eInvalidIdMap;  // one mapping per operation
    if (state.inProgress && state.wblock != (kind == Kind::kWblock))
        return Acad::eInvalidContext;
    if (owner.isNull())
        return Acad::eNullObjectId;
    if (!owner.isValid() || !owner.isResident())
        return Acad::eInvalidOwnerObject;
    AcDbDatabase* ownerDb = owner.database();
    if (kind == Kind::kDeep && ownerDb != source)
        return Acad::eWrongDatabase;  // deepCloneObjects stays within one database
    if (state.destDb != nullptr && state.destDb != ownerDb)
        return Acad::eWrongDatabase;
    if (state.origDb != nullptr && state.origDb != source)
        return Acad::eWrongDatabase;
    for (const AcDbObjectId& id : ids) {
        if (id.isNull())
            return Acad::eNullObjectId;
        if (id.database() != source)
            return Acad::eWrongDatabase;
    }
    return Acad::eOk;
}

void CloneEngine::begin(AcDbDatabase* source, AcDbIdMapping& map, Kind kind, AcDb::DuplicateRecordCloning records)
{
    IdMappingState& state = IdMappingState::of(map);
    state.inProgress = true;
    state.wblock = kind == Kind::kWblock;
    state.origDb = source;
    // A host command (copy, insert) chooses its context beforehand; a plain call is an
    // object copy within the drawing or a wblock of objects.
    if (!state.contextChosen)
        state.context = state.wblock ? AcDb::kDcWblkObjects : AcDb::kDcCopy;
    state.duplicateRecords = state.wblock ? records : AcDb::kDrcNotApplicable;
    CloneNotifier::beginDeepClone(state.destDb, map);
    if (state.wblock)
        CloneNotifier::beginWblockObjects(source, map);
}

Acad::ErrorStatus CloneEngine::run(AcDbDatabase* source, const AcDbObjectIdArray& ids, const AcDbObjectId& owner,
                                   AcDbIdMapping& map, Kind kind, AcDb::DuplicateRecordCloning records, bool defer)
{
    Acad::ErrorStatus es = checkOperation(source, ids, owner, map, kind);
    if (es != Acad::eOk)
        return es;
    IdMappingState& state = IdMappingState::of(map);
    state.destDb = owner.database();
    if (!state.inProgress)
        begin(source, map, kind, records);
    es = clonePrimaries(ids, owner, map, kind);
    if (es != Acad::eOk)
        return abort(map, es);
    return defer ? Acad::eOk : finish(map);
}

Acad::ErrorStatus CloneEngine::clonePrimaries(const AcDbObjectIdArray& ids, const AcDbObjectId& owner,
                                              AcDbIdMapping& map, Kind kind)
{
    WriteAccess ownerAccess(owner);
    AcDbObject* ownerObject = ownerAccess.object();
    if (ownerObject == nullptr)
        return ownerAccess.status();
    const IdMappingState& state = IdMappingState::of(map);
    for (const AcDbObjectId& id : ids) {
        const AcDbIdPair* done = state.find(id);
        if (done != nullptr && done->isCloned())
            continue;  // came along with an object cloned before it
        AcDbObject* source = nullptr;
        Acad::ErrorStatus es = acdbOpenObject(source, id, AcDb::kForRead);
        if (es != Acad::eOk)
            return es;
        AcDbObject* clone = nullptr;
        es = kind == Kind::kWblock ? source->wblockClone(ownerObject, clone, map, Adesk::kTrue)
                                   : source->deepClone(ownerObject, clone, map, Adesk::kTrue);
        source->close();
        closeClone(clone);
        if (es != Acad::eOk)
            return es;
    }
    return Acad::eOk;
}

Acad::ErrorStatus CloneEngine::finish(AcDbIdMapping& map)
{
    Acad::ErrorStatus es = CloneNotifier::beginDeepCloneXlation(map);
    if (es != Acad::eOk)
        return abort(map, es);
    es = translateAll(map);
    if (es != Acad::eOk)
        return abort(map, es);
    IdMappingState& state = IdMappingState::of(map);
    state.inProgress = false;
    state.finished = true;
    CloneNotifier::endDeepClone(map);
    return Acad::eOk;
}

// Every clone is filed out and read back with its references translated; owners that
// were left for translation are translated the same way.
Acad::ErrorStatus CloneEngine::translateAll(AcDbIdMapping& map)
{
    const IdMappingState& state = IdMappingState::of(map);
    for (std::size_t i = 0; i < state.pairs.size(); ++i) {
        const AcDbIdPair pair = state.pairs[i];
        if (!pair.isCloned() || pair.value().isNull() || pair.value().database() != state.destDb)
            continue;
        if (pair.value().isErased())
            continue;
        WriteAccess access(pair.value());
        AcDbObject* clone = access.object();
        if (clone == nullptr)
            return access.status();
        CloneFiler filer(AcDb::kIdXlateFiler);
        Acad::ErrorStatus es = clone->dwgOut(&filer);
        if (es != Acad::eOk)
            return es;
        // Reading the clone back only changes the references it holds: when every one of
        // them stays as it is (a style, a layer, nothing cloned with it), there is nothing
        // to read back.
        const auto translates = [&map](const CloneFiler::Reference& reference) {
            return CloneFiler::translate(reference.id, map) != reference.id;
        };
        if (std::any_of(filer.references().begin(), filer.references().end(), translates)) {
            es = filer.rewind();
            filer.translateThrough(&map);
            if (es == Acad::eOk)
                es = clone->dwgIn(&filer);
            if (es != Acad::eOk)
                return es;
        }
        AcDbImpObject* imp = AcDbImpObject::of(clone);
        if (!pair.isOwnerXlated())
            imp->setOwner(CloneFiler::translate(clone->ownerId(), map));
        imp->m_idsInFlux = false;
    }
    return Acad::eOk;
}

// The reactors are told first, while the clones still exist; then the clones are erased
// so that nothing half-copied stays in the drawing.
Acad::ErrorStatus CloneEngine::abort(AcDbIdMapping& map, Acad::ErrorStatus why)
{
    IdMappingState& state = IdMappingState::of(map);
    state.inProgress = false;
    state.finished = true;
    CloneNotifier::abortDeepClone(map);
    for (const AcDbIdPair& pair : state.pairs) {
        if (!pair.isCloned() || pair.value().isNull() || pair.value().isErased())
            continue;
        WriteAccess access(pair.value());
        if (AcDbObject* clone = access.object())
            clone->erase();
    }
    return why;
}

Acad::ErrorStatus CloneEngine::cloneObject(const AcDbObject* source, AcRxObject* owner, AcDbObject*& clone,
                                           AcDbIdMapping& map, bool isPrimary, Kind kind)
{
    clone = nullptr;
    if (owner == nullptr)
        return Acad::eInvalidOwnerObject;
    const IdMappingState& state = IdMappingState::of(map);
    if (state.find(source->objectId()) != nullptr)
        return Acad::eOk;  // already cloned, or stood for by an object of the destination
    const AcRxClass* cls = source->isA();
    AcRxObject* made = cls != nullptr ? cls->create() : nullptr;
    AcDbObject* copy = AcDbObject::cast(made);
    if (copy == nullptr) {
        delete made;
        return Acad::eNotApplicable;  // a class without a constructor cannot be cloned
    }
    CloneFiler filer(kind == Kind::kWblock ? AcDb::kWblockCloneFiler : AcDb::kDeepCloneFiler);
    Acad::ErrorStatus es = source->dwgOut(&filer);
    if (es == Acad::eOk)
        es = filer.rewind();
    if (es == Acad::eOk)
        es = copy->dwgIn(&filer);
    if (es == Acad::eOk)
        es = place(copy, owner, isPrimary);
    if (es != Acad::eOk) {
        delete copy;
        return es;
    }
    copy->setAcDbObjectIdsInFlux();
    map.assign(AcDbIdPair(source->objectId(), copy->objectId(), true, isPrimary, true));
    for (const CloneFiler::Reference& reference : filer.references()) {
        es = follow(reference.id, reference.kind, copy, map, kind);
        if (es != Acad::eOk) {
            clone = copy;  // placed and paired: the operation's abort erases it
            return es;
        }
    }
    clone = copy;
    return Acad::eOk;
}

// An entity placed into a block is appended to it, unless that block is itself a clone of
// this operation: its entity list came along with it and is translated. A record placed
// into a symbol table is added to the table. Anything else joins the owner's database and
// is owned by the owner.
Acad::ErrorStatus CloneEngine::place(AcDbObject* clone, AcRxObject* owner, bool isPrimary)
{
    AcDbObject* ownerObject = AcDbObject::cast(owner);
    if (ownerObject == nullptr) {
        AcDbDatabase* db = AcDbDatabase::cast(owner);
        return db != nullptr ? db->addAcDbObject(clone) : Acad::eInvalidOwnerObject;
    }
    AcDbDatabase* db = ownerObject->database();
    if (db == nullptr)
        return Acad::eOwnerNotInDatabase;
    AcDbEntity* entity = AcDbEntity::cast(clone);
    AcDbBlockTableRecord* block = AcDbBlockTableRecord::cast(ownerObject);
    if (entity != nullptr && block != nullptr && (isPrimary || !isCloneOfOperation(block))) {
        if (!block->isWriteEnabled())
            return Acad::eOwnerNotOpenForWrite;
        return block->appendAcDbEntity(entity);
    }
    AcDbSymbolTableRecord* record = AcDbSymbolTableRecord::cast(clone);
    AcDbSymbolTable* table = AcDbSymbolTable::cast(ownerObject);
    if (record != nullptr && table != nullptr) {
        if (!table->isWriteEnabled())
            return Acad::eOwnerNotOpenForWrite;
        return table->add(record);
    }
    AcDbObjectId id;
    const Acad::ErrorStatus es = db->addAcDbObject(id, clone);
    if (es == Acad::eOk)
        AcDbImpObject::of(clone)->setOwner(ownerObject->objectId());
    return es;
}

// Deep clone brings owned objects along; wblock also what is hard-pointed to. Soft
// pointers are only translated. Erased objects and references whose object never
// arrived are not cloned.
Acad::ErrorStatus CloneEngine::follow(const AcDbObjectId& id, AcDb::ReferenceType kind, AcDbObject* cloneOwner,
                                      AcDbIdMapping& map, Kind cloneKind)
{
    const bool owned = kind == AcDb::kHardOwnershipRef || kind == AcDb::kSoftOwnershipRef;
    const bool pointer = cloneKind == Kind::kWblock && kind == AcDb::kHardPointerRef;
    if (!owned && !pointer)
        return Acad::eOk;
    const IdMappingState& state = IdMappingState::of(map);
    if (state.find(id) != nullptr || !id.isValid() || !id.isResident() || id.isErased())
        return Acad::eOk;
    if (pointer && id.database() == state.destDb)
        return Acad::eOk;  // already in the destination
    AcDbObject* target = nullptr;
    Acad::ErrorStatus es = acdbOpenObject(target, id, AcDb::kForRead);
    if (es != Acad::eOk)
        return es;
    if (owned) {
        AcDbObject* clone = nullptr;
        es = cloneKind == Kind::kWblock ? target->wblockClone(cloneOwner, clone, map, Adesk::kFalse)
                                        : target->deepClone(cloneOwner, clone, map, Adesk::kFalse);
        closeClone(clone);
    } else if (AcDbSymbolTableRecord* record = AcDbSymbolTableRecord::cast(target)) {
        es = mapRecord(record, map);
    } else {
        es = followPointer(target, map);
    }
    target->close();
    return es;
}

// The clone's owner is the clone of the target's owner when there is one; otherwise the
// destination's table of the same kind, or its block of the same name; otherwise the
// destination database itself (the clone then has no owner).
Acad::ErrorStatus CloneEngine::followPointer(AcDbObject* target, AcDbIdMapping& map)
{
    const IdMappingState& state = IdMappingState::of(map);
    AcDbDatabase* dest = state.destDb;
    const AcDbObjectId sourceOwner = target->ownerId();
    AcDbObjectId destOwner;
    if (const AcDbIdPair* pair = state.find(sourceOwner))
        destOwner = pair->value();
    const AcDbObject* owner = AcDbStub::objectOf(sourceOwner);
    if (destOwner.isNull() && AcDbSymbolTable::cast(owner) != nullptr)
        destOwner = matchingTable(owner, dest);
    if (destOwner.isNull() && AcDbBlockTableRecord::cast(owner) != nullptr) {
        AcString blockName;
        AcDbBlockTableRecord* sourceBlock = nullptr;
        if (acdbOpenObject(sourceBlock, sourceOwner, AcDb::kForRead) == Acad::eOk) {
            sourceBlock->getName(blockName);
            sourceBlock->close();
        }
        AcDbBlockTable* blocks = nullptr;
        if (!blockName.isEmpty() && dest->getBlockTable(blocks, AcDb::kForRead) == Acad::eOk) {
            blocks->getAt(blockName.kwszPtr(), destOwner);
            blocks->close();
        }
    }
    AcDbObject* clone = nullptr;
    Acad::ErrorStatus es = Acad::eOk;
    if (destOwner.isNull()) {
        es = target->wblockClone(dest, clone, map, Adesk::kFalse);
    } else {
        WriteAccess ownerAccess(destOwner);
        if (ownerAccess.object() == nullptr)
            return ownerAccess.status();
        es = target->wblockClone(ownerAccess.object(), clone, map, Adesk::kFalse);
    }
    closeClone(clone);
    return es;
}

Acad::ErrorStatus CloneEngine::mapRecord(AcDbSymbolTableRecord* record, AcDbIdMapping& map)
{
    const IdMappingState& state = IdMappingState::of(map);
    const AcDbObject* sourceTable = AcDbStub::objectOf(record->ownerId());
    if (sourceTable == nullptr)
        return Acad::eOk;  // a record outside any table has nothing to stand for it
    const AcDbObjectId tableId = matchingTable(sourceTable, state.destDb);
    if (tableId.isNull())
        return Acad::eOk;
    AcString name;
    record->getName(name);
    WriteAccess tableAccess(tableId);
    auto* table = AcDbSymbolTable::cast(tableAccess.object());
    if (table == nullptr)
        return tableAccess.status();
    AcDbObjectId existing;
    if (table->getAt(name.kwszPtr(), existing) == Acad::eOk) {
        const bool replace = state.duplicateRecords == AcDb::kDrcReplace &&
            AcDbBlockTableRecord::cast(record) == nullptr && existing != record->objectId();
        if (!replace)
            return map.assign(AcDbIdPair(record->objectId(), existing, false, false, true));
        // The existing record takes the source's fields and is translated like a clone.
        WriteAccess recordAccess(existing);
        AcDbObject* target = recordAccess.object();
        if (target == nullptr)
            return recordAccess.status();
        CloneFiler filer(AcDb::kWblockCloneFiler);
        Acad::ErrorStatus es = record->dwgOut(&filer);
        if (es == Acad::eOk)
            es = filer.rewind();
        if (es == Acad::eOk)
            es = target->dwgIn(&filer);
        if (es != Acad::eOk)
            return es;
        map.assign(AcDbIdPair(record->objectId(), existing, true, false, true));
        for (const CloneFiler::Reference& reference : filer.references()) {
            es = follow(reference.id, reference.kind, target, map, Kind::kWblock);
            if (es != Acad::eOk)
                return es;
        }
        return Acad::eOk;
    }
    AcDbObject* clone = nullptr;
    const Acad::ErrorStatus es = record->wblockClone(table, clone, map, Adesk::kFalse);
    closeClone(clone);
    return es;
}

}  // namespace hostdb
