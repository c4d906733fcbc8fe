// Undo and redo: states recorded through the objects' own filing once per group, appends
// and erasures, objects that record partial undo, and what undo refuses.
#include <gtest/gtest.h>

#include "DbTestObjects.h"
#include "dbmain.h"
#include "dbsymtb.h"
#include "headless/UndoHistory.h"

namespace {

using headless::UndoHistory;

class DbUndoTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        registerDbTestClasses();
        // The thing exists before any group: its creation is not undone.
        auto* thing = new DbTestThing();
        thing->setValue(1);
        thing->setText(L"first");
        thing->setLength(0.125);
        ASSERT_EQ(m_db.addAcDbObject(m_id, thing), Acad::eOk);
        thing->close();
    }

    UndoHistory& history() { return UndoHistory::of(&m_db); }

    DbTestThing* open(AcDb::OpenMode mode, bool openErased = false)
    {
        DbTestThing* thing = nullptr;
        EXPECT_EQ(acdbOpenObject(thing, m_id, mode, openErased), Acad::eOk);
        return thing;
    }

    // Opens, applies change, closes.
    template <class Change>
    void edit(Change change)
    {
        DbTestThing* thing = open(AcDb::kForWrite);
        change(thing);
        thing->close();
    }

    struct Fields {
        int value;
        std::wstring text;
        double length;
        AcDbObjectId reference;
    };
    Fields fields()
    {
        DbTestThing* thing = open(AcDb::kForRead);
        Fields f{thing->value(), thing->text().wstr(), thing->length(), thing->reference()};
        thing->close();
        return f;
    }

    AcDbDatabase m_db;
    AcDbObjectId m_id;
};

TEST_F(DbUndoTest, UndoRestoresTheFieldsExactlyAndRedoReappliesThem)
{
    history().beginGroup();
    edit([this](DbTestThing* t) {
        t->setValue(2);
        t->setText(L"second \x9762");
        t->setLength(1.0 / 3.0);
        t->setReference(m_db.layerZero());
    });
    history().endGroup();
    EXPECT_EQ(history().groupCount(), 1);

    ASSERT_EQ(history().undo(), Acad::eOk);
    Fields f = fields();
    EXPECT_EQ(f.value, 1);
    EXPECT_EQ(f.text, L"first");
    EXPECT_EQ(f.length, 0.125);
    EXPECT_TRUE(f.reference.isNull());
    EXPECT_EQ(history().groupCount(), 0);
    EXPECT_EQ(history().redoCount(), 1);

    ASSERT_EQ(history().redo(), Acad::eOk);
    f = fields();
    EXPECT_EQ(f.value, 2);
    EXPECT_EQ(f.text, L"second \x9762");
    EXPECT_EQ(f.length, 1.0 / 3.0);
    EXPECT_EQ(f.reference, m_db.layerZero());
    EXPECT_EQ(history().groupCount(), 1);
    EXPECT_EQ(history().redoCount(), 0);

    ASSERT_EQ(history().undo(), Acad::eOk);  // and back again
    EXPECT_EQ(fields().value, 1);
}

TEST_F(DbUndoTest, StateIsRecordedOncePerGroup)
{
    history().beginGroup();
    edit([](DbTestThing* t) { t->setValue(2); });
    edit([](DbTestThing* t) {
        t->setValue(3);
        t->setText(L"again");
    });
    history().endGroup();
    EXPECT_EQ(history().recordCount(), 1);
    history().beginGroup();
    edit([](DbTestThing* t) { t->setValue(4); });
    history().endGroup();
    EXPECT_EQ(history().recordCount(), 2);

    ASSERT_EQ(history().undo(), Acad::eOk);
    EXPECT_EQ(fields().value, 3);
    ASSERT_EQ(history().undo(), Acad::eOk);
    EXPECT_EQ(fields().value, 1);  // not 2: the group kept the state it started from
    EXPECT_EQ(history().undo(), Acad::eNotApplicable);
}

TEST_F(DbUndoTest, NestedGroupsCloseWithTheOutermost)
{
    history().beginGroup();
    history().beginGroup();
    edit([](DbTestThing* t) { t->setValue(2); });
    history().endGroup();
    EXPECT_TRUE(history().isGroupOpen());
    EXPECT_EQ(history().undo(), Acad::eInvalidContext);
    edit([](DbTestThing* t) { t->setValue(3); });
    history().endGroup();
    EXPECT_EQ(history().groupCount(), 1);
    ASSERT_EQ(history().undo(), Acad::eOk);
    EXPECT_EQ(fields().value, 1);
}

TEST_F(DbUndoTest, UndoOfAnAppendErasesAndRedoBringsItBack)
{
    history().beginGroup();
    auto* added = new DbTestThing();
    added->setValue(5);
    AcDbObjectId id;
    ASSERT_EQ(m_db.addAcDbObject(id, added), Acad::eOk);
    added->setValue(6);  // still new: nothing more to record
    added->close();
    history().endGroup();

    ASSERT_EQ(history().undo(), Acad::eOk);
    EXPECT_TRUE(id.isErased());
    DbTestThing* thing = nullptr;
    EXPECT_EQ(acdbOpenObject(thing, id, AcDb::kForRead), Acad::eWasErased);

    ASSERT_EQ(history().redo(), Acad::eOk);
    EXPECT_FALSE(id.isErased());
    ASSERT_EQ(acdbOpenObject(thing, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(thing->value(), 6);
    thing->close();
}

TEST_F(DbUndoTest, UndoOfAnEraseUnerases)
{
    history().beginGroup();
    edit([](DbTestThing* t) {
        t->setValue(9);
        EXPECT_EQ(t->erase(), Acad::eOk);
    });
    history().endGroup();
    EXPECT_TRUE(m_id.isErased());
    ASSERT_EQ(history().undo(), Acad::eOk);
    EXPECT_FALSE(m_id.isErased());
    EXPECT_EQ(fields().value, 1);
    ASSERT_EQ(history().redo(), Acad::eOk);
    EXPECT_TRUE(m_id.isErased());
    DbTestThing* thing = open(AcDb::kForRead, true);
    EXPECT_EQ(thing->value(), 9);
    thing->close();
}

TEST_F(DbUndoTest, ObjectsAreUndoingWhileTheirStateIsFiledBackIn)
{
    history().beginGroup();
    edit([](DbTestThing* t) { t->setValue(2); });
    history().endGroup();
    ASSERT_EQ(history().undo(), Acad::eOk);
    DbTestThing* thing = open(AcDb::kForRead);
    EXPECT_TRUE(thing->sawUndoing());
    EXPECT_FALSE(thing->isUndoing());
    thing->close();
    EXPECT_FALSE(history().isUndoing());
}

TEST_F(DbUndoTest, AnOpenObjectStopsTheUndoBeforeAnythingChanges)
{
    history().beginGroup();
    edit([](DbTestThing* t) { t->setValue(2); });
    history().endGroup();
    DbTestThing* reader = open(AcDb::kForRead);
    EXPECT_EQ(history().undo(), Acad::eWasOpenForRead);
    EXPECT_EQ(reader->value(), 2);
    reader->close();
    DbTestThing* writer = open(AcDb::kForWrite);
    EXPECT_EQ(history().undo(), Acad::eWasOpenForWrite);
    writer->close();
    EXPECT_EQ(history().groupCount(), 1);
    EXPECT_EQ(history().undo(), Acad::eOk);
}

TEST_F(DbUndoTest, NothingIsRecordedOutsideGroupsOrWhileRecordingIsOff)
{
    edit([](DbTestThing* t) { t->setValue(2); });
    EXPECT_EQ(history().groupCount(), 0);

    history().setRecording(false);
    history().beginGroup();
    edit([](DbTestThing* t) { t->setValue(3); });
    history().endGroup();
    EXPECT_EQ(history().groupCount(), 0);
    history().setRecording(true);
    EXPECT_EQ(history().undo(), Acad::eNotApplicable);
    EXPECT_EQ(fields().value, 3);
}

TEST_F(DbUndoTest, ANewChangeDiscardsRedo)
{
    history().beginGroup();
    edit([](DbTestThing* t) { t->setValue(2); });
    history().endGroup();
    ASSERT_EQ(history().undo(), Acad::eOk);
    EXPECT_EQ(history().redoCount(), 1);
    history().beginGroup();
    edit([](DbTestThing* t) { t->setValue(5); });
    history().endGroup();
    EXPECT_EQ(history().redoCount(), 0);
    EXPECT_EQ(history().redo(), Acad::eNotApplicable);
}

TEST_F(DbUndoTest, ChangesOfOneGroupGoBackInReverseOrder)
{
    AcDbObjectId layerId;
    history().beginGroup();
    {
        AcDbLayerTable* layers = nullptr;
        ASSERT_EQ(m_db.getLayerTable(layers, AcDb::kForWrite), Acad::eOk);
        auto* layer = new AcDbLayerTableRecord();
        layer->setName(L"Panels");
        ASSERT_EQ(layers->add(layerId, layer), Acad::eOk);
        layer->close();
        layers->close();
    }
    {
        AcDbLayerTableRecord* layer = nullptr;
        ASSERT_EQ(acdbOpenObject(layer, layerId, AcDb::kForWrite), Acad::eOk);
        AcCmColor red;
        red.setColorIndex(1);
        layer->setColor(red);
        layer->setIsLocked(true);
        layer->close();
    }
    history().endGroup();

    ASSERT_EQ(history().undo(), Acad::eOk);
    EXPECT_TRUE(layerId.isErased());
    AcDbLayerTable* layers = nullptr;
    ASSERT_EQ(m_db.getLayerTable(layers), Acad::eOk);
    EXPECT_FALSE(layers->has(L"Panels"));
    layers->close();

    ASSERT_EQ(history().redo(), Acad::eOk);
    AcDbLayerTableRecord* layer = nullptr;
    ASSERT_EQ(acdbOpenObject(layer, layerId, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(layer->color().colorIndex(), 1);
    EXPECT_TRUE(layer->isLocked());
    layer->close();
}

TEST_F(DbUndoTest, PartialUndoIsAppliedByTheObjectAndRedoneByIt)
{
    auto* counter = new DbTestCounter();
    AcDbObjectId id;
    ASSERT_EQ(m_db.addAcDbObject(id, counter), Acad::eOk);
    counter->close();

    history().beginGroup();
    for (int count : {1, 2, 3}) {
        ASSERT_EQ(acdbOpenObject(counter, id, AcDb::kForWrite), Acad::eOk);
        counter->setCount(count);
        counter->close();
    }
    history().endGroup();

    auto countNow = [&]() {
        DbTestCounter* c = nullptr;
        EXPECT_EQ(acdbOpenObject(c, id, AcDb::kForRead), Acad::eOk);
        const int value = c->count();
        c->close();
        return value;
    };
    ASSERT_EQ(history().undo(), Acad::eOk);
    EXPECT_EQ(countNow(), 0);
    ASSERT_EQ(history().redo(), Acad::eOk);
    EXPECT_EQ(countNow(), 3);
    ASSERT_EQ(history().undo(), Acad::eOk);
    EXPECT_EQ(countNow(), 0);
}

TEST_F(DbUndoTest, ClearForgetsEverything)
{
    history().beginGroup();
    edit([](DbTestThing* t) { t->setValue(2); });
    history().endGroup();
    history().clear();
    EXPECT_EQ(history().groupCount(), 0);
    EXPECT_EQ(history().undo(), Acad::eNotApplicable);
}

}  // namespace
