// Filing of the basic entities: a round trip through the memory filer is lossless and a
// second filing is byte-identical; a newer class version makes a proxy; truncated and
// damaged data is refused without touching the entity; the call sequence is pinned.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <limits>
#include <memory>

#include "EntTestSupport.h"
#include "dbents.h"
#include "dbmtext.h"
#include "headless/RecordingDwgFiler.h"

namespace {

using enttest::Bytes;
using enttest::WorkingDatabase;

struct Sample {
    const char* name;
    std::function<AcDbEntity*(AcDbDatabase*)> make;
};

void decorate(AcDbEntity* entity, AcDbDatabase* db)
{
    entity->setDatabaseDefaults(db);
    AcCmColor color;
    color.setRGB(12, 34, 56);
    color.setNames(L"Slate", L"House colours");
    entity->setColor(color);
    entity->setLinetype(db->continuousLinetype());
    entity->setLinetypeScale(0.25);
    entity->setLineWeight(AcDb::kLnWt030);
}

const Sample kSamples[] = {
    {"line",
     [](AcDbDatabase* db) {
         auto* line = new AcDbLine(AcGePoint3d(1.5, -2, 3), AcGePoint3d(-4, 5.25, 0));
         decorate(line, db);
         line->setThickness(2.0);
         line->setNormal(AcGeVector3d(0, 1, 1));
         return static_cast<AcDbEntity*>(line);
     }},
    {"circle",
     [](AcDbDatabase* db) {
         auto* circle = new AcDbCircle(AcGePoint3d(7, 8, 9), AcGeVector3d(1, 0, 0), 2.75);
         decorate(circle, db);
         circle->setThickness(-1.0);
         return static_cast<AcDbEntity*>(circle);
     }},
    {"arc",
     [](AcDbDatabase* db) {
         auto* arc = new AcDbArc(AcGePoint3d(-1, -1, 0), AcGeVector3d(0, 0, -1), 3.0, 5.5, 0.5);
         decorate(arc, db);
         return static_cast<AcDbEntity*>(arc);
     }},
    {"text",
     [](AcDbDatabase* db) {
         auto* text = new AcDbText(AcGePoint3d(1, 2, 0), L"Panel \x9762\x677F 12", AcDbObjectId::kNull, 2.5, 0.3);
         decorate(text, db);
         text->setHorizontalMode(AcDb::kTextCenter);
         text->setVerticalMode(AcDb::kTextTop);
         text->setAlignmentPoint(AcGePoint3d(10, 10, 0));
         text->setWidthFactor(0.8);
         text->setOblique(0.2);
         text->mirrorInX(true);
         text->adjustAlignment();
         return static_cast<AcDbEntity*>(text);
     }},
    {"mtext",
     [](AcDbDatabase* db) {
         auto* mtext = new AcDbMText();
         decorate(mtext, db);
         mtext->setLocation(AcGePoint3d(3, 4, 5));
         mtext->setTextHeight(3.5);
         mtext->setWidth(40.0);
         mtext->setAttachment(AcDbMText::kMiddleCenter);
         mtext->setRotation(1.0);
         mtext->setLineSpacingFactor(1.5);
         mtext->setFlowDirection(AcDbMText::kByStyle);
         mtext->setContents(L"First line\\PSecond {\\fArial;line}");
         return static_cast<AcDbEntity*>(mtext);
     }},
};

void PrintTo(const Sample& sample, std::ostream* os)
{
    *os << sample.name;
}

class EntFilingTest : public ::testing::TestWithParam<Sample> {
protected:
    std::unique_ptr<AcDbEntity> make() { return std::unique_ptr<AcDbEntity>(GetParam().make(m_wdb.db())); }
    std::unique_ptr<AcDbEntity> blank(const AcDbEntity* like)
    {
        return std::unique_ptr<AcDbEntity>(AcDbEntity::cast(like->isA()->create()));
    }
    // Where the class's own fields start: after what the entity base writes.
    size_t ownFieldsOffset(const AcDbEntity* entity)
    {
        headless::MemoryDwgFiler filer(AcDb::kFileFiler, m_wdb.db());
        entity->AcDbEntity::dwgOutFields(&filer);
        return filer.bytes().size();
    }

    WorkingDatabase m_wdb;
};

TEST_P(EntFilingTest, RoundTripIsLosslessAndRefilesTheSameBytes)
{
    const std::unique_ptr<AcDbEntity> original = make();
    const Bytes first = enttest::fileOut(original.get(), m_wdb.db());
    const std::unique_ptr<AcDbEntity> copy = blank(original.get());
    ASSERT_EQ(enttest::fileIn(copy.get(), first, m_wdb.db()), Acad::eOk);
    EXPECT_EQ(enttest::fileOut(copy.get(), m_wdb.db()), first);
    EXPECT_EQ(copy->color(), original->color());
    EXPECT_EQ(copy->layerId(), original->layerId());
    EXPECT_EQ(copy->linetypeId(), m_wdb.db()->continuousLinetype());
    EXPECT_EQ(copy->linetypeScale(), 0.25);
    EXPECT_EQ(copy->lineWeight(), AcDb::kLnWt030);
    EXPECT_EQ(enttest::listOf(copy.get()), enttest::listOf(original.get()));
}

TEST_P(EntFilingTest, ANewerClassVersionMakesAProxy)
{
    const std::unique_ptr<AcDbEntity> original = make();
    Bytes bytes = enttest::fileOut(original.get(), m_wdb.db());
    const size_t offset = ownFieldsOffset(original.get());
    ASSERT_LT(offset + 2, bytes.size());
    ASSERT_EQ(bytes[offset], 1);  // version 1, little endian
    bytes[offset] = 2;
    const std::unique_ptr<AcDbEntity> copy = blank(original.get());
    EXPECT_EQ(enttest::fileIn(copy.get(), bytes, m_wdb.db()), Acad::eMakeMeProxy);
}

TEST_P(EntFilingTest, TruncatedDataIsRefusedAndKeepsTheClassFields)
{
    const std::unique_ptr<AcDbEntity> original = make();
    const Bytes bytes = enttest::fileOut(original.get(), m_wdb.db());
    const size_t offset = ownFieldsOffset(original.get());
    for (size_t cut : {bytes.size() - 1, offset + 3, offset + 1}) {
        const std::unique_ptr<AcDbEntity> copy = blank(original.get());
        const Bytes before = enttest::fileOut(copy.get(), m_wdb.db());
        const size_t beforeOffset = ownFieldsOffset(copy.get());
        const Bytes truncated(bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(cut));
        EXPECT_NE(enttest::fileIn(copy.get(), truncated, m_wdb.db()), Acad::eOk) << cut;
        // The class's own fields are read whole before any is taken.
        const Bytes after = enttest::fileOut(copy.get(), m_wdb.db());
        const size_t afterOffset = ownFieldsOffset(copy.get());
        EXPECT_TRUE(std::equal(after.begin() + static_cast<std::ptrdiff_t>(afterOffset), after.end(),
                               before.begin() + static_cast<std::ptrdiff_t>(beforeOffset), before.end()))
            << cut;
    }
}

TEST_P(EntFilingTest, NonFiniteValuesAreRefused)
{
    const std::unique_ptr<AcDbEntity> original = make();
    Bytes bytes = enttest::fileOut(original.get(), m_wdb.db());
    const size_t offset = ownFieldsOffset(original.get());
    // Every class starts its own fields with the version and then a point.
    const double nan = std::numeric_limits<double>::quiet_NaN();
    std::memcpy(&bytes[offset + 2], &nan, sizeof nan);
    const std::unique_ptr<AcDbEntity> copy = blank(original.get());
    EXPECT_EQ(enttest::fileIn(copy.get(), bytes, m_wdb.db()), Acad::eDwgObjectImproperlyRead);
}

INSTANTIATE_TEST_SUITE_P(BasicEntities, EntFilingTest, ::testing::ValuesIn(kSamples),
                         [](const ::testing::TestParamInfo<Sample>& info) { return std::string(info.param.name); });

TEST(EntFilingGoldenTest, TheCircleFilesItsFieldsInOrder)
{
    AcDbCircle circle(AcGePoint3d(1, 2, 3), AcGeVector3d::kZAxis, 4.5);
    circle.setColorIndex(1);
    headless::RecordingDwgFiler filer;
    ASSERT_EQ(circle.dwgOut(&filer), Acad::eOk);
    EXPECT_EQ(filer.transcript(),
              "writeSoftPointerId null\n"
              "writeInt16 1\n"
              "writeUInt32 3271557121\n"
              "writeString \"\"\n"
              "writeString \"\"\n"
              "writeHardPointerId null\n"
              "writeHardPointerId null\n"
              "writeDouble 1\n"
              "writeInt16 -1\n"
              "writeInt16 0\n"
              "writeInt16 1\n"
              "writePoint3d (1, 2, 3)\n"
              "writeDouble 4.5\n"
              "writeVector3d (0, 0, 1)\n"
              "writeDouble 0\n");
}

TEST(EntFilingGoldenTest, DamagedPropertiesAreRefused)
{
    struct Row {
        const char* name;
        size_t at;        // byte offset of the value within the entity's common fields
        std::vector<std::uint8_t> value;
    };
    // Common fields: owner handle (8), version (2), colour word (4), colour name (4 + 0),
    // book name (4 + 0), layer (8), linetype (8), linetype scale (8), lineweight (2),
    // visibility (2).
    const Row rows[] = {
        {"colour method", 10 + 3, {0x12}},
        {"linetype scale", 38, {0, 0, 0, 0, 0, 0, 0xF0, 0xBF}},  // -1.0
        {"lineweight", 46, {7, 0}},
        {"visibility", 48, {2, 0}},
    };
    AcDbLine line(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0));
    line.setColorIndex(3);
    const Bytes good = enttest::fileOut(&line);
    for (const Row& row : rows) {
        Bytes bad = good;
        std::copy(row.value.begin(), row.value.end(), bad.begin() + static_cast<std::ptrdiff_t>(row.at));
        AcDbLine copy;
        copy.setColorIndex(5);
        EXPECT_EQ(enttest::fileIn(&copy, bad), Acad::eDwgObjectImproperlyRead) << row.name;
        EXPECT_EQ(copy.colorIndex(), 5) << row.name;
    }
}

}  // namespace
