// AcDbImpDatabase: objects by handle, and the default drawing every new database starts from.
#include "AcDbImpDatabase.h"

#include <vector>

#include "AcDbImpObject.h"
#include "AcDbStub.h"
#include "dbapserv.h"
#include "dbsymtb.h"

AcDbImpDatabase::AcDbImpDatabase(AcDbDatabase* api) : m_api(api), m_undo(api) {}

AcDbImpDatabase::~AcDbImpDatabase()
{
    if (acdbHostApplicationServices()->workingDatabase() == m_api)
        acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    // Objects first, all of them, so that no destructor finds another object's stub dead.
    for (auto& [handle, stub] : m_stubs) {
        if (AcDbObject* obj = stub->object()) {
            AcDbImpObject::of(obj)->detach();
            delete obj;
        }
    }
    for (auto& [handle, stub] : m_stubs)
        AcDbStub::release(stub);
}

AcDbStub* AcDbImpDatabase::find(Adesk::UInt64 handle) const
{
    const auto it = m_stubs.find(handle);
    return it != m_stubs.end() ? it->second : nullptr;
}

AcDbStub* AcDbImpDatabase::stubFor(Adesk::UInt64 handle)
{
    if (AcDbStub* stub = find(handle))
        return stub;
    AcDbStub* stub = AcDbStub::allocate(m_api, AcDbHandle(handle));
    m_stubs.emplace(handle, stub);
    raiseHandseed(handle + 1);
    return stub;
}

void AcDbImpDatabase::raiseHandseed(Adesk::UInt64 seed)
{
    if (seed > m_handseed)
        m_handseed = seed;
}

Acad::ErrorStatus AcDbImpDatabase::add(AcDbObject* obj, AcDbObjectId& id)
{
    while (find(m_handseed) != nullptr)
        ++m_handseed;  // handles that references reserved are not given out again
    return addAt(obj, m_handseed, id);
}

Acad::ErrorStatus AcDbImpDatabase::addAt(AcDbObject* obj, Adesk::UInt64 handle, AcDbObjectId& id)
{
    if (obj == nullptr)
        return Acad::eNullObjectPointer;
    if (obj->database() != nullptr)
        return Acad::eAlreadyInDb;
    if (handle == 0)
        return Acad::eNullHandle;
    AcDbStub* stub = find(handle);
    if (stub != nullptr && stub->object() != nullptr)
        return Acad::eHandleInUse;
    return attach(obj, stub != nullptr ? stub : stubFor(handle), id);
}

Acad::ErrorStatus AcDbImpDatabase::attach(AcDbObject* obj, AcDbStub* stub, AcDbObjectId& id)
{
    AcDbImpObject::of(obj)->attach(stub);
    m_undo.noteErasure(stub, true);  // before the append the object did not exist
    adoptTable(obj);
    id = AcDbObjectId(stub);
    return Acad::eOk;
}

void AcDbImpDatabase::adoptTable(AcDbObject* obj)
{
    struct Slot {
        AcRxClass* cls;
        AcDbObjectId* id;
    };
    const Slot slots[] = {
        {AcDbBlockTable::desc(), &m_blockTable},
        {AcDbLayerTable::desc(), &m_layerTable},
        {AcDbLinetypeTable::desc(), &m_linetypeTable},
        {AcDbTextStyleTable::desc(), &m_textStyleTable},
        {AcDbDimStyleTable::desc(), &m_dimStyleTable},
    };
    for (const Slot& slot : slots) {
        if (obj->isA() == slot.cls && slot.id->isNull())
            *slot.id = obj->objectId();
    }
}

AcDbObjectId AcDbImpDatabase::standardRecord(AcDbObjectId& cache, const AcDbObjectId& table,
                                             const ACHAR* name) const
{
    if (cache.isNull() || cache.isErased()) {
        if (const auto* symbols = AcDbSymbolTable::cast(AcDbStub::objectOf(table)))
            cache = symbols->find(name, false);
    }
    return cache;
}

namespace {

// Adds a record to an open table and keeps it open in opened, for closing at the end.
template <class Table, class Record>
AcDbObjectId addRecord(Table* table, Record* record, const ACHAR* name, std::vector<AcDbObject*>& opened)
{
    record->setName(name);
    AcDbObjectId id;
    if (table->add(id, record) != Acad::eOk) {
        delete record;
        return AcDbObjectId();
    }
    opened.push_back(record);
    return id;
}

template <class Table>
Table* addTable(AcDbDatabase* db, std::vector<AcDbObject*>& opened)
{
    auto* table = new Table();
    AcDbObjectId id;
    db->addAcDbObject(id, table);
    opened.push_back(table);
    return table;
}

}  // namespace

// The default drawing, in a fixed order so that its handles are always the same.
void AcDbImpDatabase::buildDefaultDrawing()
{
    std::vector<AcDbObject*> opened;
    auto* blocks = addTable<AcDbBlockTable>(m_api, opened);
    auto* layers = addTable<AcDbLayerTable>(m_api, opened);
    auto* linetypes = addTable<AcDbLinetypeTable>(m_api, opened);
    auto* textStyles = addTable<AcDbTextStyleTable>(m_api, opened);
    auto* dimStyles = addTable<AcDbDimStyleTable>(m_api, opened);

    m_modelSpace = addRecord(blocks, new AcDbBlockTableRecord(), ACDB_MODEL_SPACE, opened);
    addRecord(blocks, new AcDbBlockTableRecord(), ACDB_PAPER_SPACE, opened);

    m_byBlockLinetype = addRecord(linetypes, new AcDbLinetypeTableRecord(), L"ByBlock", opened);
    m_byLayerLinetype = addRecord(linetypes, new AcDbLinetypeTableRecord(), L"ByLayer", opened);
    auto* continuous = new AcDbLinetypeTableRecord();
    continuous->setComments(L"Solid line");
    m_continuousLinetype = addRecord(linetypes, continuous, L"Continuous", opened);

    auto* zero = new AcDbLayerTableRecord();
    zero->setLinetypeObjectId(m_continuousLinetype);
    m_layerZero = addRecord(layers, zero, L"0", opened);

    auto* standardText = new AcDbTextStyleTableRecord();
    standardText->setFileName(L"txt");
    m_textstyle = addRecord(textStyles, standardText, L"Standard", opened);

    auto* standardDim = new AcDbDimStyleTableRecord();
    standardDim->setDimtxsty(m_textstyle);
    m_dimstyle = addRecord(dimStyles, standardDim, L"Standard", opened);

    for (AcDbObject* obj : opened)
        obj->close();

    m_clayer = m_layerZero;
    m_celtype = m_byLayerLinetype;
}
