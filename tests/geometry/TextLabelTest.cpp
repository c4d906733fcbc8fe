// The panel text label: its two sets of defaults, its colour words, the typed calls of its
// filing, reading of every version and of damaged records, and the host text it makes.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

#include "ModuleTestSupport.h"
#include "data/ArrayDataIoAdapter.h"
#include "data/DwgFilerIoAdapter.h"
#include "dbapserv.h"
#include "dbents.h"
#include "dbsymtb.h"
#include "geometry/TextLabel.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/RecordingDwgFiler.h"

namespace {

using DbxPanel::PredefinedTextPosition;
using DbxPanel::TextDirectionMode;
using DbxPanel::TextLabel;
using DbxPanel::TextLabelType;

constexpr double kPi = 3.14159265358979323846;
// The host's word for colour index 1: method byte 0xC3 (by colour index), index in the low bits.
constexpr Adesk::UInt32 kPackedIndex1 = 0xC3000001u;
constexpr Adesk::UInt32 kPackedRed = 0xC2FF0000u;  // true colour 255, 0, 0

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

TextLabel SampleLabel()
{
    TextLabel label(L"WM-A1-012", true, 250, 0.75, AcDbObjectId::kNull);
    label.SetPos(AcGePoint3d(10, 20, 0));
    label.SetDir(AcGeVector3d(0, 1, 0));
    label.SetType(TextLabelType::kNumber);
    label.SetPredefinedPositionType(PredefinedTextPosition::kNearBottomEdge);
    label.SetColorIndex(1);
    label.SetDirectionMode(TextDirectionMode::kFixedAngle);
    label.SetFixedAngleRadians(0.5);
    return label;
}

class TextLabelTest : public ::testing::Test {
protected:
    template <typename Table, typename Record>
    AcDbObjectId AddRecord(Acad::ErrorStatus (AcDbDatabase::*getTable)(Table*&, AcDb::OpenMode), const ACHAR* name)
    {
        Table* table = nullptr;
        EXPECT_EQ((working.db()->*getTable)(table, AcDb::kForWrite), Acad::eOk);
        auto* record = new Record();
        record->setName(name);
        AcDbObjectId id;
        EXPECT_EQ(table->add(id, record), Acad::eOk);
        record->close();
        table->close();
        return id;
    }
    AcDbObjectId AddTextStyle(const ACHAR* name)
    {
        return AddRecord<AcDbTextStyleTable, AcDbTextStyleTableRecord>(&AcDbDatabase::getTextStyleTable, name);
    }
    AcDbObjectId AddLayer(const ACHAR* name)
    {
        return AddRecord<AcDbLayerTable, AcDbLayerTableRecord>(&AcDbDatabase::getLayerTable, name);
    }

    qxtest::WorkingDatabase working;
};

TEST_F(TextLabelTest, TheTwoConstructorsHaveTheirOwnDefaults)
{
    const TextLabel plain;
    EXPECT_TRUE(plain.IsVisible());
    EXPECT_TRUE(plain.GetString().isEmpty());
    EXPECT_EQ(plain.GetTextHeight(), 250.0);
    EXPECT_EQ(plain.GetWidthFactor(), 0.75);
    EXPECT_TRUE(plain.GetTextStyleId().isNull());
    EXPECT_EQ(plain.GetDir(), AcGeVector3d(1, 0, 0));
    EXPECT_EQ(plain.GetType(), TextLabelType::kUnknown);
    EXPECT_EQ(static_cast<int>(plain.GetType()), 100);
    EXPECT_EQ(static_cast<int>(plain.GetPredefinedPositionType()), 0);
    EXPECT_EQ(plain.GetPos(), AcGePoint3d(0, 0, 0));
    EXPECT_TRUE(plain.GetLayerId().isNull());
    EXPECT_EQ(plain.GetColorPacked(), 0u);
    EXPECT_EQ(static_cast<int>(plain.GetDirectionMode()), 0);
    EXPECT_EQ(plain.GetFixedAngleRadians(), 0.0);

    const AcDbObjectId style = working.db()->textstyle();
    const TextLabel given(L"底部文字", false, 120, 0.9, style);
    EXPECT_EQ(given.GetString(), AcString(L"底部文字"));
    EXPECT_FALSE(given.IsVisible());
    EXPECT_EQ(given.GetTextHeight(), 120.0);
    EXPECT_EQ(given.GetWidthFactor(), 0.9);
    EXPECT_EQ(given.GetTextStyleId(), style);
    EXPECT_EQ(given.GetType(), TextLabelType::kUnknown);
    // Everything else is zero, the direction included, and the colour is unset.
    const AcGeVector3d dir = given.GetDir();
    EXPECT_EQ(dir.x * dir.x + dir.y * dir.y + dir.z * dir.z, 0.0);
    EXPECT_EQ(given.GetColorPacked(), 0u);
    EXPECT_TRUE(TextLabel(nullptr, true, 1, 1, AcDbObjectId::kNull).GetString().isEmpty());
}

TEST_F(TextLabelTest, ColoursGoThroughThePackedWord)
{
    TextLabel label;
    label.SetColorIndex(1);
    EXPECT_EQ(label.GetColorPacked(), kPackedIndex1);
    EXPECT_EQ(label.GetColorIndex(), 1);
    label.SetColorByRGB(255, 0, 0);
    EXPECT_EQ(label.GetColorPacked(), kPackedRed);
    EXPECT_EQ(label.GetColorIndex(), 0);  // a true colour has no index
    label.SetColorByACI(256);
    EXPECT_EQ(label.GetColorIndex(), 256);
    EXPECT_TRUE(label.GetAcCmColor().isByLayer());
    for (int outside : {0, 257, -1}) {
        label.SetColorIndex(outside);
        EXPECT_EQ(label.GetColorPacked(), 0u) << outside;
    }
    label.SetColorPacked(kPackedRed);
    EXPECT_EQ(label.GetAcCmColor().red(), 255);
}

TEST_F(TextLabelTest, FilingIsTheVersionAReservedBlockAndTheFieldsInOrder)
{
    headless::RecordingDwgFiler filer;
    DwgFilerIoAdapter io(&filer);
    SampleLabel().DataOut(&io);
    const std::vector<std::string> expected = {
        "writeInt32 3",  // version
        "writeInt32 0",
        "writeInt32 0",
        "writeInt32 0",
        "writeInt32 0",  // reserved: bools, ints, doubles, strings
        "writeInt32 0",
        "writeInt32 0",
        "writeInt32 0",
        "writeInt32 0",  // 3D vectors, 3D points, 2D points, ids
        "writeBool true",
        "writePoint3d (10, 20, 0)",
        "writeVector3d (0, 1, 0)",
        "writeString \"WM-A1-012\"",
        "writeDouble 250",
        "writeDouble 0.75",
        "writeHardPointerId null",  // text style
        "writeInt32 0",             // type: number
        "writeInt32 20",            // predefined position
        "writeHardPointerId null",  // layer
        "writeUInt32 3271557121",   // 0xC3000001
        "writeInt32 2",             // direction mode: fixed angle
        "writeDouble 0.5",
    };
    EXPECT_EQ(filer.lines(), expected);
}

TEST_F(TextLabelTest, ALabelReadBackIsEqualThroughEitherChannel)
{
    TextLabel label = SampleLabel();
    label.SetTextStyleId(AddTextStyle(L"面板文字"));
    label.SetLayerId(AddLayer(L"QX-Panel-Text"));
    label.SetColorByRGB(12, 34, 56);
    label.SetVisible(false);

    // Through a drawing filer the ids travel as handles.
    headless::MemoryDwgFiler out(AcDb::kFileFiler, working.db());
    DwgFilerIoAdapter outIo(&out);
    label.DataOut(&outIo);
    headless::MemoryDwgFiler in(out.bytes(), AcDb::kFileFiler, working.db());
    DwgFilerIoAdapter inIo(&in);
    TextLabel read;
    ASSERT_TRUE(read.DataIn(&inIo));
    EXPECT_EQ(read, label) << read;
    EXPECT_EQ(in.remaining(), 0u);

    ArrayDataIoAdapter memory;
    label.DataOut(&memory);
    TextLabel fromMemory;
    ASSERT_TRUE(fromMemory.DataIn(&memory));
    EXPECT_EQ(fromMemory, label) << fromMemory;
}

// Writes a label record of the given version by hand, with a stored type, followed by two
// values that belong to whatever comes next in the stream.
void WriteRecord(IDataIO& io, Adesk::Int32 version, Adesk::Int32 type, const AcDbObjectId& layer,
                 bool reservedElements = false)
{
    io.Write(version);
    if (reservedElements) {
        // What a later writer might keep there: two flags, a double, a string, a 2D point, an id.
        io.Write(Adesk::Int32(2));
        io.Write(true);
        io.Write(false);
        io.Write(Adesk::Int32(0));
        io.Write(Adesk::Int32(1));
        io.Write(9.5);
        io.Write(Adesk::Int32(1));
        io.Write(AcString(L"later"));
        io.Write(Adesk::Int32(0));
        io.Write(Adesk::Int32(0));
        io.Write(Adesk::Int32(1));
        io.Write(AcGePoint2d(1, 1));
        io.Write(Adesk::Int32(1));
        io.Write(AcDbHardPointerId());
    } else {
        for (int array = 0; array < 8; ++array)
            io.Write(Adesk::Int32(0));
    }
    io.Write(true);
    io.Write(AcGePoint3d(1, 2, 0));
    io.Write(AcGeVector3d(1, 0, 0));
    io.Write(AcString(L"板"));
    io.Write(300.0);
    io.Write(0.8);
    io.Write(AcDbHardPointerId());
    io.Write(type);
    io.Write(Adesk::Int32(5));
    if (version >= 2) {
        io.Write(AcDbHardPointerId(layer));
        io.Write(kPackedRed);
    }
    if (version >= 3) {
        io.Write(Adesk::Int32(1));
        io.Write(0.25);
    }
    io.Write(Adesk::Int32(777));
    io.Write(AcString(L"next"));
}

TEST_F(TextLabelTest, OlderVersionsLeaveTheLaterFieldsAtZero)
{
    const AcDbObjectId layer = AddLayer(L"标注");
    struct Row {
        Adesk::Int32 stored;
        Adesk::Int32 writtenAs;  // an unknown version is laid out as the current one
        bool hasLayerAndColor;
        bool hasDirectionMode;
    };
    const Row rows[] = {{1, 1, false, false}, {2, 2, true, false}, {3, 3, true, true}, {7, 3, true, true}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.stored);
        headless::MemoryDwgFiler out(AcDb::kFileFiler, working.db());
        DwgFilerIoAdapter outIo(&out);
        WriteRecord(outIo, row.writtenAs, 7, layer);
        std::vector<std::uint8_t> bytes = out.bytes();
        bytes[0] = static_cast<std::uint8_t>(row.stored);  // little endian version

        headless::MemoryDwgFiler in(bytes, AcDb::kFileFiler, working.db());
        DwgFilerIoAdapter io(&in);
        // The label held later fields before; an older record must not leave them behind.
        TextLabel label = SampleLabel();
        label.SetLayerId(working.db()->layerZero());
        ASSERT_TRUE(label.DataIn(&io));
        EXPECT_EQ(label.GetString(), AcString(L"板"));
        EXPECT_EQ(label.GetTextHeight(), 300.0);
        EXPECT_EQ(label.GetWidthFactor(), 0.8);
        EXPECT_EQ(label.GetType(), TextLabelType::kMaterialCode);
        EXPECT_EQ(label.GetPredefinedPositionType(), PredefinedTextPosition::kTopCenter);
        EXPECT_EQ(label.GetLayerId(), row.hasLayerAndColor ? layer : AcDbObjectId::kNull);
        EXPECT_EQ(label.GetColorPacked(), row.hasLayerAndColor ? kPackedRed : 0u);
        EXPECT_EQ(label.GetDirectionMode(),
                  row.hasDirectionMode ? TextDirectionMode::kPerpendicular : TextDirectionMode::kAlongReference);
        EXPECT_EQ(label.GetFixedAngleRadians(), row.hasDirectionMode ? 0.25 : 0.0);

        // Exactly the record was read: the next values are still there.
        Adesk::Int32 next = 0;
        AcString text;
        io.Read(next);
        io.Read(text);
        EXPECT_EQ(next, 777);
        EXPECT_EQ(text, AcString(L"next"));
        EXPECT_EQ(in.filerStatus(), Acad::eOk);
    }
}

TEST_F(TextLabelTest, StoredTypesOutsideTheKnownRangeReadAsUnknown)
{
    const std::pair<Adesk::Int32, int> rows[] = {{0, 0},    {7, 7},     {13, 13},  {14, 100},
                                                 {99, 100}, {250, 100}, {-1, 100}, {100, 100}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first);
        ArrayDataIoAdapter io;
        WriteRecord(io, 3, row.first, AcDbObjectId::kNull);
        TextLabel label;
        ASSERT_TRUE(label.DataIn(&io));
        EXPECT_EQ(static_cast<int>(label.GetType()), row.second);
    }
}

TEST_F(TextLabelTest, ReservedElementsOfALaterWriterAreSkipped)
{
    headless::MemoryDwgFiler out(AcDb::kFileFiler, working.db());
    DwgFilerIoAdapter outIo(&out);
    WriteRecord(outIo, 3, 4, AcDbObjectId::kNull, true);
    headless::MemoryDwgFiler in(out.bytes(), AcDb::kFileFiler, working.db());
    DwgFilerIoAdapter io(&in);
    TextLabel label;
    ASSERT_TRUE(label.DataIn(&io));
    EXPECT_EQ(label.GetString(), AcString(L"板"));
    EXPECT_EQ(label.GetType(), TextLabelType::kSize);
    EXPECT_EQ(label.GetFixedAngleRadians(), 0.25);
    Adesk::Int32 next = 0;
    io.Read(next);
    EXPECT_EQ(next, 777);
}

TEST_F(TextLabelTest, ADamagedRecordChangesNothingAndTellsTheFiler)
{
    struct Row {
        const char* what;
        Adesk::Int32 reservedCount;
        int keepBytes;  // of the written record; 0 keeps all
    };
    const Row rows[] = {
        {"negative reserved count", -1, 0},
        {"reserved count beyond reason", 1 << 20, 0},
        {"record cut short", 0, 60},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        headless::MemoryDwgFiler out(AcDb::kFileFiler, working.db());
        DwgFilerIoAdapter outIo(&out);
        WriteRecord(outIo, 3, 1, AcDbObjectId::kNull);
        std::vector<std::uint8_t> bytes = out.bytes();
        const Adesk::UInt32 count = static_cast<Adesk::UInt32>(row.reservedCount);
        for (int i = 0; i < 4; ++i)
            bytes[4 + i] = static_cast<std::uint8_t>(count >> (8 * i));  // the booleans' count
        if (row.keepBytes > 0)
            bytes.resize(static_cast<std::size_t>(row.keepBytes));

        headless::MemoryDwgFiler in(bytes, AcDb::kFileFiler, working.db());
        DwgFilerIoAdapter io(&in);
        TextLabel label = SampleLabel();
        EXPECT_FALSE(label.DataIn(&io));
        EXPECT_EQ(label, SampleLabel()) << label;
        EXPECT_NE(in.filerStatus(), Acad::eOk);
    }

    // The in-memory channel never fails, so the count alone must be refused.
    for (Adesk::Int32 count : {-5, 1 << 20}) {
        SCOPED_TRACE(count);
        ArrayDataIoAdapter memory;
        memory.Write(Adesk::Int32(3));
        memory.Write(count);
        TextLabel label = SampleLabel();
        EXPECT_FALSE(label.DataIn(&memory));
        EXPECT_EQ(label, SampleLabel());
    }
    TextLabel label = SampleLabel();
    EXPECT_FALSE(label.DataIn(nullptr));
}

TEST_F(TextLabelTest, TheHostTextIsCentredOnThePosition)
{
    TextLabel label = SampleLabel();
    label.SetDir(AcGeVector3d(-1, -1, 0));
    const AcDbObjectId layer = AddLayer(L"QX-Panel-Text");
    label.SetLayerId(layer);
    label.SetColorByRGB(255, 0, 0);
    std::unique_ptr<AcDbText> text(label.CreateDbText());
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->database(), nullptr);  // the caller adds it where it wants
    AcString string(text->textStringConst());
    EXPECT_EQ(string, AcString(L"WM-A1-012"));
    EXPECT_EQ(text->height(), 250.0);
    EXPECT_EQ(text->widthFactor(), 0.75);
    EXPECT_NEAR(text->rotation(), -3 * kPi / 4, 1e-12);
    EXPECT_EQ(text->horizontalMode(), AcDb::kTextCenter);
    EXPECT_EQ(text->verticalMode(), AcDb::kTextVertMid);
    EXPECT_EQ(text->alignmentPoint(), AcGePoint3d(10, 20, 0));
    EXPECT_EQ(text->layerId(), layer);
    EXPECT_EQ(text->color().red(), 255);
    EXPECT_EQ(text->color().green(), 0);

    // Without a layer or colour the database's defaults stay.
    TextLabel plain = SampleLabel();
    plain.SetColorPacked(0);
    std::unique_ptr<AcDbText> defaults(plain.CreateDbText());
    ASSERT_NE(defaults, nullptr);
    EXPECT_EQ(defaults->layerId(), working.db()->clayer());
}

TEST_F(TextLabelTest, ImpossibleSizesCreateNoText)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    struct Row {
        const char* what;
        double height;
        double width;
        AcGePoint3d pos;
    };
    const Row rows[] = {
        {"height 0", 0.0, 0.75, {0, 0, 0}},        {"negative height", -10.0, 0.75, {0, 0, 0}},
        {"width factor 0", 250.0, 0.0, {0, 0, 0}}, {"negative width factor", 250.0, -0.5, {0, 0, 0}},
        {"NaN height", nan, 0.75, {0, 0, 0}},      {"NaN position", 250.0, 0.75, {nan, 0, 0}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        TextLabel label = SampleLabel();
        label.SetTextHeight(row.height);
        label.SetWidthFactor(row.width);
        label.SetPos(row.pos);
        EXPECT_EQ(label.CreateDbText(), nullptr);
    }

    AcDbDatabase* working_db = acdbHostApplicationServices()->workingDatabase();
    acdbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(SampleLabel().CreateDbText(), nullptr);
    acdbHostApplicationServices()->setWorkingDatabase(working_db);
}

TEST_F(TextLabelTest, StyleFallsBackToStandardThenToTheCurrentStyle)
{
    const AcDbObjectId current = working.db()->textstyle();
    auto styleOf = [](const TextLabel& label) {
        std::unique_ptr<AcDbText> text(label.CreateDbText());
        return text != nullptr ? text->textStyle() : AcDbObjectId::kNull;
    };

    // No style of its own and no "_Standard" in the drawing: the current style.
    TextLabel label = SampleLabel();
    EXPECT_EQ(styleOf(label), current);

    const AcDbObjectId standard = AddTextStyle(L"_Standard");
    EXPECT_EQ(styleOf(label), standard);

    const AcDbObjectId own = AddTextStyle(L"编号");
    label.SetTextStyleId(own);
    EXPECT_EQ(styleOf(label), own);

    // A style of another drawing is no style here.
    AcDbDatabase other;
    label.SetTextStyleId(other.textstyle());
    EXPECT_EQ(styleOf(label), standard);
}

}  // namespace
