// Symbol tables: the default drawing, look-ups by name, adding and renaming records,
// iteration, blocks and their entities, current values, and the records' filing.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <random>

#include "DbTestObjects.h"
#include "dbmain.h"
#include "dbsymtb.h"
#include "headless/HostError.h"
#include "headless/MemoryDwgFiler.h"

namespace {

// Names of a table's records in iteration order.
template <class Table, class Iterator>
std::vector<std::wstring> namesIn(Table* table, bool skipDeleted = true, bool forward = true)
{
    std::vector<std::wstring> names;
    Iterator* it = nullptr;
    EXPECT_EQ(table->newIterator(it, forward, skipDeleted), Acad::eOk);
    for (; !it->done(); it->step(forward, skipDeleted)) {
        AcDbSymbolTableRecord* record = nullptr;
        EXPECT_EQ(it->getRecord(record, AcDb::kForRead, true), Acad::eOk);
        AcString name;
        record->getName(name);
        names.push_back(name.wstr());
        record->close();
    }
    delete it;
    return names;
}

class DbSymbolTableTest : public ::testing::Test {
protected:
    void SetUp() override { registerDbTestClasses(); }

    AcDbObjectId addLayer(const ACHAR* name, Acad::ErrorStatus expected = Acad::eOk)
    {
        AcDbLayerTable* layers = nullptr;
        EXPECT_EQ(m_db.getLayerTable(layers, AcDb::kForWrite), Acad::eOk);
        auto* layer = new AcDbLayerTableRecord();
        const Acad::ErrorStatus named = layer->setName(name);
        AcDbObjectId id;
        const Acad::ErrorStatus es = named != Acad::eOk ? named : layers->add(id, layer);
        EXPECT_EQ(es, expected) << (name != nullptr ? AcString(name).utf8() : "(null)");
        if (es == Acad::eOk)
            layer->close();
        else
            delete layer;
        layers->close();
        return id;
    }

    AcDbDatabase m_db;
};

TEST_F(DbSymbolTableTest, DefaultDrawingHasTheStandardRecords)
{
    AcDbBlockTable* blocks = nullptr;
    ASSERT_EQ(m_db.getBlockTable(blocks), Acad::eOk);
    EXPECT_EQ((namesIn<AcDbBlockTable, AcDbBlockTableIterator>(blocks)),
              (std::vector<std::wstring>{L"*Model_Space", L"*Paper_Space"}));
    AcDbObjectId modelSpace;
    EXPECT_EQ(blocks->getAt(ACDB_MODEL_SPACE, modelSpace), Acad::eOk);
    EXPECT_EQ(modelSpace, m_db.currentSpaceId());
    blocks->close();

    AcDbLinetypeTable* linetypes = nullptr;
    ASSERT_EQ(m_db.getLinetypeTable(linetypes), Acad::eOk);
    EXPECT_EQ((namesIn<AcDbLinetypeTable, AcDbLinetypeTableIterator>(linetypes)),
              (std::vector<std::wstring>{L"ByBlock", L"ByLayer", L"Continuous"}));
    linetypes->close();

    AcDbLayerTable* layers = nullptr;
    ASSERT_EQ(m_db.getLayerTable(layers), Acad::eOk);
    EXPECT_EQ((namesIn<AcDbLayerTable, AcDbLayerTableIterator>(layers)), (std::vector<std::wstring>{L"0"}));
    layers->close();

    AcDbTextStyleTable* styles = nullptr;
    ASSERT_EQ(m_db.getTextStyleTable(styles), Acad::eOk);
    EXPECT_EQ((namesIn<AcDbTextStyleTable, AcDbTextStyleTableIterator>(styles)),
              (std::vector<std::wstring>{L"Standard"}));
    styles->close();

    AcDbDimStyleTable* dimStyles = nullptr;
    ASSERT_EQ(m_db.getDimStyleTable(dimStyles), Acad::eOk);
    EXPECT_EQ((namesIn<AcDbDimStyleTable, AcDbDimStyleTableIterator>(dimStyles)),
              (std::vector<std::wstring>{L"Standard"}));
    dimStyles->close();

    EXPECT_EQ(m_db.clayer(), m_db.layerZero());
    EXPECT_EQ(m_db.celtype(), m_db.byLayerLinetype());
    EXPECT_TRUE(m_db.cecolor().isByLayer());
    EXPECT_EQ(m_db.celtscale(), 1.0);
    EXPECT_EQ(m_db.ltscale(), 1.0);
    EXPECT_EQ(m_db.celweight(), AcDb::kLnWtByLayer);

    AcDbLayerTableRecord* zero = nullptr;
    ASSERT_EQ(acdbOpenObject(zero, m_db.layerZero(), AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(zero->color().colorIndex(), 7);
    EXPECT_EQ(zero->linetypeObjectId(), m_db.continuousLinetype());
    EXPECT_EQ(zero->ownerId(), m_db.layerTableId());
    zero->close();
}

TEST_F(DbSymbolTableTest, DefaultDrawingHandlesAreFixed)
{
    struct Row {
        const char* what;
        AcDbObjectId id;
        Adesk::UInt64 handle;
    };
    const Row rows[] = {
        {"block table", m_db.blockTableId(), 1},   {"layer table", m_db.layerTableId(), 2},
        {"linetype table", m_db.linetypeTableId(), 3}, {"text style table", m_db.textStyleTableId(), 4},
        {"dim style table", m_db.dimStyleTableId(), 5}, {"model space", m_db.currentSpaceId(), 6},
        {"ByBlock", m_db.byBlockLinetype(), 8},    {"ByLayer", m_db.byLayerLinetype(), 9},
        {"Continuous", m_db.continuousLinetype(), 0xA}, {"layer 0", m_db.layerZero(), 0xB},
        {"Standard", m_db.textstyle(), 0xC},       {"Standard dim", m_db.dimstyle(), 0xD},
    };
    for (const Row& row : rows)
        EXPECT_EQ(row.id.handle().value(), row.handle) << row.what;
    EXPECT_EQ(m_db.handseed().value(), 0xEu);
}

TEST_F(DbSymbolTableTest, EmptyDatabaseHasNoTables)
{
    AcDbDatabase empty(false);
    AcDbLayerTable* layers = nullptr;
    EXPECT_EQ(empty.getLayerTable(layers), Acad::eNullObjectId);
    EXPECT_TRUE(empty.layerZero().isNull());
    EXPECT_TRUE(empty.currentSpaceId().isNull());
}

TEST_F(DbSymbolTableTest, LookUpIgnoresCase)
{
    AcDbLinetypeTable* linetypes = nullptr;
    ASSERT_EQ(m_db.getLinetypeTable(linetypes), Acad::eOk);
    for (const ACHAR* name : {L"continuous", L"CONTINUOUS", L"Continuous"}) {
        AcDbObjectId id;
        EXPECT_EQ(linetypes->getAt(name, id), Acad::eOk);
        EXPECT_EQ(id, m_db.continuousLinetype());
        EXPECT_TRUE(linetypes->has(name));
    }
    AcDbObjectId id;
    EXPECT_EQ(linetypes->getAt(L"Dashed", id), Acad::eKeyNotFound);
    EXPECT_EQ(linetypes->getAt(nullptr, id), Acad::eKeyNotFound);
    EXPECT_TRUE(linetypes->has(m_db.byLayerLinetype()));
    EXPECT_FALSE(linetypes->has(m_db.layerZero()));

    AcDbLinetypeTableRecord* record = nullptr;
    ASSERT_EQ(linetypes->getAt(L"bylayer", record, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(record->objectId(), m_db.byLayerLinetype());
    record->close();
    linetypes->close();
}

TEST_F(DbSymbolTableTest, RecordNamesAreChecked)
{
    addLayer(L"Panels");
    addLayer(L"\x9762\x677F");  // 面板
    addLayer(L"PANELS", Acad::eDuplicateRecordName);
    addLayer(L"", Acad::eInvalidSymbolTableName);
    addLayer(nullptr, Acad::eInvalidSymbolTableName);
    for (const ACHAR* bad : {L"a<b", L"a>b", L"a/b", L"a\\b", L"a\"b", L"a:b", L"a;b", L"a?b", L"a*b", L"a|b",
                             L"a,b", L"a=b", L"a`b", L"*star", L"tab\there"}) {
        addLayer(bad, Acad::eInvalidSymbolTableName);
    }
    addLayer(std::wstring(255, L'x').c_str());
    addLayer(std::wstring(256, L'y').c_str(), Acad::eInvalidSymbolTableName);
}

TEST_F(DbSymbolTableTest, AddingNeedsTheRightRecordAndAWritableTable)
{
    AcDbLayerTable* layers = nullptr;
    ASSERT_EQ(m_db.getLayerTable(layers, AcDb::kForWrite), Acad::eOk);
    auto* style = new AcDbTextStyleTableRecord();
    style->setName(L"Wrong");
    EXPECT_EQ(layers->AcDbSymbolTable::add(style), Acad::eWrongObjectType);
    delete style;
    EXPECT_EQ(layers->add(static_cast<AcDbLayerTableRecord*>(nullptr)), Acad::eNullObjectPointer);
    layers->close();

    ASSERT_EQ(m_db.getLayerTable(layers, AcDb::kForRead), Acad::eOk);
    auto* layer = new AcDbLayerTableRecord();
    layer->setName(L"ReadOnly");
    EXPECT_THROW(layers->add(layer), headless::HostError);
    delete layer;
    layers->close();
}

TEST_F(DbSymbolTableTest, RenamingKeepsNamesUnique)
{
    const AcDbObjectId panels = addLayer(L"Panels");
    addLayer(L"Lines");
    AcDbLayerTableRecord* layer = nullptr;
    ASSERT_EQ(acdbOpenObject(layer, panels, AcDb::kForWrite), Acad::eOk);
    EXPECT_EQ(layer->setName(L"lines"), Acad::eDuplicateRecordName);
    EXPECT_EQ(layer->setName(L"PANELS"), Acad::eOk);  // itself in another case
    EXPECT_EQ(layer->setName(L"Roof"), Acad::eOk);
    layer->close();
    AcDbLayerTable* layers = nullptr;
    ASSERT_EQ(m_db.getLayerTable(layers), Acad::eOk);
    EXPECT_TRUE(layers->has(L"roof"));
    EXPECT_FALSE(layers->has(L"Panels"));
    layers->close();
}

TEST_F(DbSymbolTableTest, ErasedRecordsStepAside)
{
    const AcDbObjectId old = addLayer(L"Temp");
    addLayer(L"Keep");
    AcDbLayerTableRecord* layer = nullptr;
    ASSERT_EQ(acdbOpenObject(layer, old, AcDb::kForWrite), Acad::eOk);
    ASSERT_EQ(layer->erase(), Acad::eOk);
    layer->close();

    AcDbLayerTable* layers = nullptr;
    ASSERT_EQ(m_db.getLayerTable(layers), Acad::eOk);
    AcDbObjectId id;
    EXPECT_EQ(layers->getAt(L"Temp", id), Acad::eKeyNotFound);
    EXPECT_EQ(layers->getAt(L"Temp", id, true), Acad::eOk);
    EXPECT_EQ(id, old);
    EXPECT_EQ((namesIn<AcDbLayerTable, AcDbLayerTableIterator>(layers)),
              (std::vector<std::wstring>{L"0", L"Keep"}));
    EXPECT_EQ((namesIn<AcDbLayerTable, AcDbLayerTableIterator>(layers, false)),
              (std::vector<std::wstring>{L"0", L"Temp", L"Keep"}));
    EXPECT_EQ((namesIn<AcDbLayerTable, AcDbLayerTableIterator>(layers, true, false)),
              (std::vector<std::wstring>{L"Keep", L"0"}));
    layers->close();

    const AcDbObjectId again = addLayer(L"Temp");
    EXPECT_NE(again, old);
}

TEST_F(DbSymbolTableTest, IteratorSeeksAndStopsAtTheEnds)
{
    const AcDbObjectId second = addLayer(L"Second");
    AcDbLayerTable* layers = nullptr;
    ASSERT_EQ(m_db.getLayerTable(layers), Acad::eOk);
    AcDbLayerTableIterator* it = nullptr;
    ASSERT_EQ(layers->newIterator(it), Acad::eOk);
    EXPECT_EQ(it->seek(second), Acad::eOk);
    AcDbObjectId id;
    EXPECT_EQ(it->getRecordId(id), Acad::eOk);
    EXPECT_EQ(id, second);
    it->step();
    EXPECT_TRUE(it->done());
    EXPECT_EQ(it->getRecordId(id), Acad::eIteratorDone);
    AcDbLayerTableRecord* record = nullptr;
    EXPECT_EQ(it->getRecord(record, AcDb::kForRead), Acad::eIteratorDone);
    EXPECT_EQ(it->seek(m_db.byLayerLinetype()), Acad::eKeyNotFound);
    delete it;
    layers->close();
}

TEST_F(DbSymbolTableTest, BlocksOwnTheirEntitiesInOrder)
{
    AcDbBlockTableRecord* space = nullptr;
    ASSERT_EQ(acdbOpenObject(space, m_db.currentSpaceId(), AcDb::kForWrite), Acad::eOk);
    std::vector<AcDbObjectId> ids;
    for (int i = 0; i < 3; ++i) {
        auto* entity = new DbTestEntity();
        AcDbObjectId id;
        ASSERT_EQ(space->appendAcDbEntity(id, entity), Acad::eOk);
        EXPECT_EQ(entity->objectId(), id);
        EXPECT_EQ(entity->ownerId(), m_db.currentSpaceId());
        EXPECT_TRUE(entity->isWriteEnabled());
        EXPECT_TRUE(entity->isNewObject());
        if (i == 1) {
            EXPECT_EQ(entity->erase(), Acad::eOk);
        }
        entity->close();
        ids.push_back(id);
    }
    EXPECT_EQ(space->appendAcDbEntity(nullptr), Acad::eNullEntityPointer);
    space->close();

    ASSERT_EQ(acdbOpenObject(space, m_db.currentSpaceId(), AcDb::kForRead), Acad::eOk);
    auto collect = [&](bool skipDeleted) {
        std::vector<AcDbObjectId> seen;
        AcDbBlockTableRecordIterator* it = nullptr;
        EXPECT_EQ(space->newIterator(it, true, skipDeleted), Acad::eOk);
        for (; !it->done(); it->step(true, skipDeleted)) {
            AcDbObjectId id;
            it->getEntityId(id);
            seen.push_back(id);
        }
        delete it;
        return seen;
    };
    EXPECT_EQ(collect(false), ids);
    EXPECT_EQ(collect(true), (std::vector<AcDbObjectId>{ids[0], ids[2]}));

    AcDbBlockTableRecordIterator* it = nullptr;
    ASSERT_EQ(space->newIterator(it), Acad::eOk);
    AcDbEntity* entity = nullptr;
    ASSERT_EQ(it->getEntity(entity, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(entity->objectId(), ids[0]);
    entity->close();
    EXPECT_EQ(it->blockTableRecord(), space);
    delete it;

    auto* loose = new DbTestEntity();
    EXPECT_THROW(space->appendAcDbEntity(loose), headless::HostError);  // open for read only
    delete loose;
    space->close();
}

TEST_F(DbSymbolTableTest, CurrentValuesTakeOnlyRecordsOfTheirTable)
{
    const AcDbObjectId panels = addLayer(L"Panels");
    AcDbDatabase other;
    struct Row {
        const char* what;
        AcDbObjectId id;
        Acad::ErrorStatus expected;
    };
    const Row rows[] = {
        {"a layer", panels, Acad::eOk},
        {"null", AcDbObjectId::kNull, Acad::eNullObjectId},
        {"a linetype", m_db.continuousLinetype(), Acad::eWrongObjectType},
        {"another drawing's layer", other.layerZero(), Acad::eWrongDatabase},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        EXPECT_EQ(m_db.setClayer(row.id), row.expected);
    }
    EXPECT_EQ(m_db.clayer(), panels);
    EXPECT_EQ(m_db.setCeltype(m_db.continuousLinetype()), Acad::eOk);
    EXPECT_EQ(m_db.setTextstyle(m_db.layerZero()), Acad::eWrongObjectType);
    EXPECT_EQ(m_db.setCeltscale(0.0), Acad::eInvalidInput);
    EXPECT_EQ(m_db.setLtscale(std::nan("")), Acad::eInvalidInput);
    EXPECT_EQ(m_db.setCeltscale(2.0), Acad::eOk);
    EXPECT_EQ(m_db.setCelweight(static_cast<AcDb::LineWeight>(17)), Acad::eInvalidInput);
    EXPECT_EQ(m_db.setCelweight(AcDb::kLnWt050), Acad::eOk);
    EXPECT_EQ(m_db.celweight(), AcDb::kLnWt050);
}

// Files a record out, reads it into a fresh one, and files that out again.
template <class Record>
void expectRoundTrip(AcDbDatabase& db, Record* source, Record& target)
{
    headless::MemoryDwgFiler out(AcDb::kFileFiler, &db);
    ASSERT_EQ(source->dwgOut(&out), Acad::eOk);
    headless::MemoryDwgFiler in(out.bytes(), AcDb::kFileFiler, &db);
    ASSERT_EQ(target.dwgIn(&in), Acad::eOk);
    EXPECT_EQ(in.remaining(), 0u);
    headless::MemoryDwgFiler again(AcDb::kFileFiler, &db);
    ASSERT_EQ(target.dwgOut(&again), Acad::eOk);
    EXPECT_EQ(again.bytes(), out.bytes());
}

TEST_F(DbSymbolTableTest, RecordsFileTheirFields)
{
    auto* layer = new AcDbLayerTableRecord();
    layer->setName(L"Roof");
    AcCmColor color;
    color.setRGB(10, 20, 30);
    color.setNames(L"Steel", L"Book");
    layer->setColor(color);
    layer->setLinetypeObjectId(m_db.continuousLinetype());
    layer->setLineWeight(AcDb::kLnWt035);
    layer->setIsOff(true);
    layer->setIsLocked(true);
    AcDbLayerTableRecord layerCopy;
    expectRoundTrip(m_db, layer, layerCopy);
    EXPECT_EQ(layerCopy.color(), color);
    EXPECT_EQ(layerCopy.linetypeObjectId(), m_db.continuousLinetype());
    EXPECT_EQ(layerCopy.lineWeight(), AcDb::kLnWt035);
    EXPECT_TRUE(layerCopy.isOff());
    EXPECT_FALSE(layerCopy.isFrozen());
    EXPECT_TRUE(layerCopy.isLocked());
    AcString name;
    layerCopy.getName(name);
    EXPECT_EQ(name, AcString(L"Roof"));
    delete layer;

    AcDbLinetypeTableRecord linetype;
    linetype.setName(L"Mine");
    linetype.setComments(L"Mine __ . __");
    linetype.setNumDashes(3);
    linetype.setDashLengthAt(0, 0.5);
    linetype.setDashLengthAt(1, -0.25);
    linetype.setPatternLength(0.75);
    AcDbLinetypeTableRecord linetypeCopy;
    expectRoundTrip(m_db, &linetype, linetypeCopy);
    EXPECT_EQ(linetypeCopy.numDashes(), 3);
    EXPECT_EQ(linetypeCopy.dashLengthAt(1), -0.25);
    EXPECT_EQ(linetypeCopy.dashLengthAt(2), 0.0);
    EXPECT_EQ(linetypeCopy.patternLength(), 0.75);

    AcDbTextStyleTableRecord style;
    style.setName(L"Labels");
    style.setTextSize(2.5);
    style.setXScale(0.8);
    style.setObliquingAngle(0.2);
    style.setFileName(L"simplex.shx");
    style.setBigFontFileName(L"gbcbig.shx");
    AcDbTextStyleTableRecord styleCopy;
    expectRoundTrip(m_db, &style, styleCopy);
    AcString file;
    styleCopy.fileName(file);
    EXPECT_EQ(file, AcString(L"simplex.shx"));
    EXPECT_EQ(styleCopy.xScale(), 0.8);

    AcDbDimStyleTableRecord dim;
    dim.setName(L"Iso");
    dim.setDimasz(2.5);
    dim.setDimdec(2);
    dim.setDimtxsty(m_db.textstyle());
    AcDbDimStyleTableRecord dimCopy;
    expectRoundTrip(m_db, &dim, dimCopy);
    EXPECT_EQ(dimCopy.dimasz(), 2.5);
    EXPECT_EQ(dimCopy.dimdec(), 2);
    EXPECT_EQ(dimCopy.dimtxsty(), m_db.textstyle());
}

TEST_F(DbSymbolTableTest, DamagedRecordsAreRefused)
{
    struct Row {
        const char* what;
        Adesk::Int32 dashCount;
        double patternLength;
    };
    const Row rows[] = {
        {"negative count", -1, 1.0},
        {"count past the host's limit", 13, 1.0},
        {"huge count", 0x7FFFFFFF, 1.0},
        {"negative length", 0, -1.0},
        {"length not a number", 0, std::nan("")},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        headless::MemoryDwgFiler f(AcDb::kFileFiler, &m_db);
        f.writeSoftPointerId(AcDbObjectId::kNull);
        f.writeString(L"Bad");
        f.writeString(L"");
        f.writeDouble(row.patternLength);
        f.writeBool(false);
        f.writeInt32(row.dashCount);
        f.seek(0, AcDb::kSeekFromStart);
        AcDbLinetypeTableRecord record;
        EXPECT_EQ(record.dwgIn(&f), Acad::eDwgObjectImproperlyRead);
        EXPECT_EQ(record.numDashes(), 0);
    }
}

TEST_F(DbSymbolTableTest, TablesStopAtTheEndOfDataWhateverTheCount)
{
    AcDbLayerTable* layers = nullptr;
    ASSERT_EQ(m_db.getLayerTable(layers), Acad::eOk);
    headless::MemoryDwgFiler out(AcDb::kFileFiler, &m_db);
    ASSERT_EQ(layers->dwgOut(&out), Acad::eOk);
    layers->close();

    std::vector<std::uint8_t> hostile = out.bytes();
    hostile[8] = 0xFF;  // the record count after the owner: now far more than the data holds
    hostile[9] = 0xFF;
    hostile[10] = 0xFF;
    hostile[11] = 0x7F;
    headless::MemoryDwgFiler in(hostile, AcDb::kFileFiler, &m_db);
    AcDbLayerTable copy;
    EXPECT_EQ(copy.dwgIn(&in), Acad::eEndOfFile);
}

// Arbitrary bytes: each reader either reads something or fails with a status, and never
// reads outside the data (the sanitizer build watches).
TEST_F(DbSymbolTableTest, ReadersSurviveArbitraryBytes)
{
    const std::vector<std::function<AcDbObject*()>> makers = {
        [] { return new AcDbBlockTableRecord(); },     [] { return new AcDbLayerTableRecord(); },
        [] { return new AcDbLinetypeTableRecord(); },  [] { return new AcDbTextStyleTableRecord(); },
        [] { return new AcDbDimStyleTableRecord(); },  [] { return new AcDbLayerTable(); },
        [] { return new AcDbBlockTable(); },
    };
    std::mt19937 random(20240611);
    std::uniform_int_distribution<int> byte(0, 255);
    std::uniform_int_distribution<int> length(0, 160);
    int failures = 0;
    for (int round = 0; round < 300; ++round) {
        std::vector<std::uint8_t> bytes(static_cast<size_t>(length(random)));
        for (std::uint8_t& b : bytes)
            b = static_cast<std::uint8_t>(byte(random));
        for (const auto& make : makers) {
            std::unique_ptr<AcDbObject> object(make());
            headless::MemoryDwgFiler in(bytes, AcDb::kFileFiler, &m_db);
            if (object->dwgIn(&in) != Acad::eOk)
                ++failures;
        }
    }
    EXPECT_GT(failures, 0);
}

}  // namespace
