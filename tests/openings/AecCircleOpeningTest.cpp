// The circle opening: its filing, list output, grips, explode, transform, draw and undo.
#include <gtest/gtest.h>

#include "ModuleTestSupport.h"
#include "dbsymtb.h"
#include "headless/CommandLine.h"
#include "headless/DrawingFile.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/RecordingDwgFiler.h"
#include "headless/TextCodec.h"
#include "headless/UndoHistory.h"
#include "openings/AecCircleOpening.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

class AecCircleOpeningTest : public ::testing::Test {
protected:
    // An opening at (100, 200) with radius 50 and a visible title above it.
    AecCircleOpening* MakeOpening(const ACHAR* title = L"D1", bool visible = true)
    {
        auto* opening = new AecCircleOpening();
        opening->setCenter(AcGePoint3d(100, 200, 0));
        opening->setRadius(50);
        CircleOpeningData data = opening->GetData();
        data.titleLabel.SetLabel(title);
        data.titleLabel.SetVisible(visible);
        data.titleLabel.SetPosition(AcGePoint3d(100, 300, 0));
        data.titleLabel.SetHeight(100);
        opening->SetData(data);
        return opening;
    }

    AcDbObjectId AddTextStyle(const ACHAR* name)
    {
        AcDbTextStyleTable* styles = nullptr;
        EXPECT_EQ(working.db()->getTextStyleTable(styles, AcDb::kForWrite), Acad::eOk);
        auto* record = new AcDbTextStyleTableRecord();
        record->setName(name);
        AcDbObjectId id;
        EXPECT_EQ(styles->add(id, record), Acad::eOk);
        record->close();
        styles->close();
        return id;
    }

    qxtest::WorkingDatabase working;
};

TEST_F(AecCircleOpeningTest, FilesTheTreeAfterTheCircle)
{
    std::unique_ptr<AecCircleOpening> opening(MakeOpening());
    headless::RecordingDwgFiler baseOnly;
    opening->AcDbCircle::dwgOutFields(&baseOnly);
    const auto lines = qxtest::FilingTranscript(opening.get());
    ASSERT_GT(lines.size(), baseOnly.lines().size());
    const std::vector<std::string> own(lines.begin() + static_cast<long>(baseOnly.lines().size()), lines.end());
    ACHAR style[20];
    opening->GetData().textStyleId.handle().getIntoAsciiBuffer(style);
    const std::vector<std::string> expected = {
        "writeInt32 1",      // class version
        "writeInt32 -1001",  // tree header
        "writeInt32 1",
        "writeInt32 0",  // root: no values
        "writeInt32 1",  // one child
        "writeString \"CircleOpeningData\"",
        "writeInt32 1",
        "writeString \"TextStyleId\"",
        "writeInt32 8",
        "writeSoftPointerId " + headless::toUtf8(style),
        "writeInt32 1",
        "writeString \"TitleLabel\"",
        "writeInt32 6",
        "writeString \"bVisible\"", "writeInt32 3", "writeBool true",
        "writeString \"dir\"", "writeInt32 7", "writeVector3d (1, 0, 0)",
        "writeString \"extension\"", "writeInt32 2", "writeString \"\"",
        "writeString \"height\"", "writeInt32 1", "writeDouble 100",
        "writeString \"label\"", "writeInt32 2", "writeString \"D1\"",
        "writeString \"pos\"", "writeInt32 5", "writePoint3d (100, 300, 0)",
        "writeInt32 0",  // the label has no children
    };
    EXPECT_EQ(own, expected);
}

TEST_F(AecCircleOpeningTest, AnOpeningWithoutDataFilesAnEmptyRoot)
{
    AecCircleOpening opening;
    headless::RecordingDwgFiler baseOnly;
    opening.AcDbCircle::dwgOutFields(&baseOnly);
    const auto lines = qxtest::FilingTranscript(&opening);
    const std::vector<std::string> own(lines.begin() + static_cast<long>(baseOnly.lines().size()), lines.end());
    const std::vector<std::string> expected = {"writeInt32 1", "writeInt32 -1001", "writeInt32 1", "writeInt32 0",
                                               "writeInt32 0"};
    EXPECT_EQ(own, expected);
}

TEST_F(AecCircleOpeningTest, ARoundTripKeepsCircleStyleAndTitle)
{
    const AcDbObjectId style = AddTextStyle(L"洞口文字");
    std::unique_ptr<AecCircleOpening> source(MakeOpening(L"圆洞 D=100"));
    source->setNormal(AcGeVector3d(0, 0, -1));
    CircleOpeningData data = source->GetData();
    data.textStyleId = style;
    source->SetData(data);

    const qxtest::Bytes bytes = qxtest::FileOut(source.get(), working.db());
    AecCircleOpening copy;
    ASSERT_EQ(qxtest::FileIn(&copy, bytes, working.db()), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(copy.center(), AcGePoint3d(100, 200, 0)));
    EXPECT_EQ(copy.radius(), 50);
    EXPECT_TRUE(qxtest::Near(copy.normal(), AcGeVector3d(0, 0, -1)));
    const CircleOpeningData read = copy.GetData();
    EXPECT_EQ(read.textStyleId, style);
    EXPECT_EQ(read.titleLabel.GetLabel(), AcString(L"圆洞 D=100"));
    EXPECT_TRUE(read.titleLabel.IsVisible());
    EXPECT_TRUE(qxtest::Near(read.titleLabel.GetPosition(), AcGePoint3d(100, 300, 0)));
    EXPECT_EQ(read.titleLabel.GetHeight(), 100);
    EXPECT_EQ(qxtest::FileOut(&copy, working.db()), bytes);
}

TEST_F(AecCircleOpeningTest, ADrawingSavedAndReopenedKeepsTheOpening)
{
    const AcDbObjectId style = AddTextStyle(L"洞口文字");
    AecCircleOpening* source = MakeOpening(L"圆洞 D=100");
    source->setNormal(AcGeVector3d(0, 0, -1));
    CircleOpeningData data = source->GetData();
    data.textStyleId = style;
    source->SetData(data);
    const AcDbObjectId id = working.Add(source);

    std::vector<std::uint8_t> file;
    ASSERT_EQ(headless::DrawingFile::write(working.db(), file), Acad::eOk);
    AcDbDatabase* reopened = nullptr;
    ASSERT_EQ(headless::DrawingFile::read(file, reopened), Acad::eOk);
    std::unique_ptr<AcDbDatabase> owner(reopened);

    AcDbObjectId copyId;
    ASSERT_EQ(reopened->getAcDbObjectId(copyId, false, id.handle()), Acad::eOk);
    AecCircleOpening* copy = nullptr;
    ASSERT_EQ(acdbOpenObject(copy, copyId, AcDb::kForRead), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(copy->center(), AcGePoint3d(100, 200, 0)));
    EXPECT_EQ(copy->radius(), 50);
    EXPECT_TRUE(qxtest::Near(copy->normal(), AcGeVector3d(0, 0, -1)));
    const CircleOpeningData read = copy->GetData();
    EXPECT_EQ(read.textStyleId.handle(), style.handle());
    EXPECT_EQ(read.textStyleId.database(), reopened);
    EXPECT_EQ(read.titleLabel.GetLabel(), AcString(L"圆洞 D=100"));
    EXPECT_TRUE(read.titleLabel.IsVisible());
    EXPECT_TRUE(qxtest::Near(read.titleLabel.GetPosition(), AcGePoint3d(100, 300, 0)));
    EXPECT_EQ(read.titleLabel.GetHeight(), 100);
    copy->close();

    std::vector<std::uint8_t> again;
    ASSERT_EQ(headless::DrawingFile::write(reopened, again), Acad::eOk);
    EXPECT_EQ(again, file);
}

TEST_F(AecCircleOpeningTest, ANewerClassVersionIsRefused)
{
    std::unique_ptr<AecCircleOpening> source(MakeOpening());
    qxtest::Bytes bytes = qxtest::FileOut(source.get(), working.db());
    headless::MemoryDwgFiler baseOnly(AcDb::kFileFiler, working.db());
    source->AcDbCircle::dwgOutFields(&baseOnly);
    const std::size_t versionAt = baseOnly.bytes().size();
    ASSERT_EQ(bytes[versionAt], 1);
    bytes[versionAt] = 2;
    AecCircleOpening target;
    EXPECT_EQ(qxtest::FileIn(&target, bytes, working.db()), Acad::eMakeMeProxy);
    EXPECT_FALSE(target.GetData().titleLabel.IsVisible());
}

TEST_F(AecCircleOpeningTest, ListsCentreTitleAndStyle)
{
    std::unique_ptr<AecCircleOpening> opening(MakeOpening(L"D1"));
    const AcDbObjectId style = AddTextStyle(L"Quarvo");
    CircleOpeningData data = opening->GetData();
    data.textStyleId = style;
    opening->SetData(data);
    const std::wstring own = L"\n圆形洞口: 圆心 (100.00, 200.00, 0.00)，半径 50.00，直径 100.00"
                             L"\n标题: 显示，\"D1\""
                             L"\n文字样式: Quarvo";
    const std::wstring output = qxtest::ListOutput(opening.get());
    ASSERT_GE(output.size(), own.size());
    EXPECT_EQ(output.substr(output.size() - own.size()), own) << headless::toUtf8(output);
}

TEST_F(AecCircleOpeningTest, ListSaysWhenTheStyleFellBack)
{
    std::unique_ptr<AecCircleOpening> opening(MakeOpening(L"", false));
    CircleOpeningData data = opening->GetData();
    data.textStyleId = AcDbObjectId::kNull;  // purged, as far as the opening knows
    opening->SetData(data);
    const std::wstring output = qxtest::ListOutput(opening.get());
    const std::wstring tail = L"\n标题: 隐藏，\"\"\n文字样式: Standard（默认兜底）";
    ASSERT_GE(output.size(), tail.size());
    EXPECT_EQ(output.substr(output.size() - tail.size()), tail) << headless::toUtf8(output);

    // A "_Standard" style is the first fallback.
    AddTextStyle(L"_Standard");
    const std::wstring again = qxtest::ListOutput(opening.get());
    EXPECT_NE(again.find(L"\n文字样式: _Standard（默认兜底）"), std::wstring::npos) << headless::toUtf8(again);
}

TEST_F(AecCircleOpeningTest, FiveGripsInOrderAndTheirMoves)
{
    std::unique_ptr<AecCircleOpening> opening(MakeOpening());
    AcDbGripDataPtrArray grips;
    ASSERT_EQ(opening->getGripPoints(grips, 1.0, 5, AcGeVector3d::kZAxis, 0), Acad::eOk);
    ASSERT_EQ(grips.length(), 5);
    const AcGePoint3d expected[] = {{100, 200, 0}, {150, 200, 0}, {100, 250, 0}, {50, 200, 0}, {100, 150, 0}};
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(qxtest::Near(grips[i]->gripPoint(), expected[i])) << "grip " << i;
        EXPECT_EQ(reinterpret_cast<Adesk::IntPtr>(grips[i]->appData()), i);
    }

    // Grip 1 dragged onto the centre leaves the smallest radius, not zero.
    AcDbVoidPtrArray which;
    which.append(grips[1]->appData());
    ASSERT_EQ(opening->moveGripPointsAt(which, AcGeVector3d(-50, 0, 0), 0), Acad::eOk);
    EXPECT_EQ(opening->radius(), 1e-6);

    // Grip 3 dragged outwards sets the radius to the new distance.
    AcDbVoidPtrArray third;
    third.append(grips[3]->appData());
    ASSERT_EQ(opening->moveGripPointsAt(third, AcGeVector3d(-80, 0, 0), 0), Acad::eOk);
    EXPECT_NEAR(opening->radius(), 80.000001, 1e-9);

    // Grip 0 moves everything, title included.
    AcDbVoidPtrArray centre;
    centre.append(grips[0]->appData());
    ASSERT_EQ(opening->moveGripPointsAt(centre, AcGeVector3d(10, 20, 0), 0), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(opening->center(), AcGePoint3d(110, 220, 0)));
    EXPECT_TRUE(qxtest::Near(opening->GetData().titleLabel.GetPosition(), AcGePoint3d(110, 320, 0)));

    // A zero move and an empty selection change nothing.
    EXPECT_EQ(opening->moveGripPointsAt(centre, AcGeVector3d(0, 0, 0), 0), Acad::eOk);
    EXPECT_EQ(opening->moveGripPointsAt(AcDbVoidPtrArray(), AcGeVector3d(1, 0, 0), 0), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(opening->center(), AcGePoint3d(110, 220, 0)));
    for (AcDbGripData* grip : grips)
        delete grip;

    // The point forms are refused so that the host takes the grip-data forms.
    AcGePoint3dArray points;
    AcDbIntArray modes;
    AcDbIntArray ids;
    EXPECT_EQ(opening->getGripPoints(points, modes, ids), Acad::eNotImplementedYet);
    EXPECT_EQ(opening->moveGripPointsAt(AcDbIntArray(), AcGeVector3d(1, 0, 0)), Acad::eNotImplementedYet);
}

TEST_F(AecCircleOpeningTest, ADownwardNormalUsesTheXAndYAxes)
{
    std::unique_ptr<AecCircleOpening> opening(MakeOpening());
    opening->setNormal(AcGeVector3d(0, 0, -1));
    AcDbGripDataPtrArray grips;
    ASSERT_EQ(opening->getGripPoints(grips, 1.0, 5, AcGeVector3d::kZAxis, 0), Acad::eOk);
    ASSERT_EQ(grips.length(), 5);
    EXPECT_TRUE(qxtest::Near(grips[1]->gripPoint(), AcGePoint3d(150, 200, 0)));
    EXPECT_TRUE(qxtest::Near(grips[2]->gripPoint(), AcGePoint3d(100, 250, 0)));
    for (AcDbGripData* grip : grips)
        delete grip;

    // A tilted normal takes u = normal x Z and v = normal x u.
    opening->setNormal(AcGeVector3d(1, 0, 0));
    AcDbGripDataPtrArray tilted;
    ASSERT_EQ(opening->getGripPoints(tilted, 1.0, 5, AcGeVector3d::kZAxis, 0), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(tilted[1]->gripPoint(), AcGePoint3d(100, 150, 0)));  // u = (0, -1, 0)
    EXPECT_TRUE(qxtest::Near(tilted[2]->gripPoint(), AcGePoint3d(100, 200, -50)));  // v = (0, 0, -1)
    for (AcDbGripData* grip : tilted)
        delete grip;
}

TEST_F(AecCircleOpeningTest, ExplodesIntoTheCircleAndTheVisibleTitle)
{
    struct Row {
        const char* what;
        const ACHAR* title;
        bool visible;
        int count;
    };
    const Row rows[] = {
        {"visible title", L"D1", true, 2},
        {"hidden title", L"D1", false, 1},
        {"visible but empty title", L"", true, 1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        AecCircleOpening* opening = MakeOpening(row.title, row.visible);
        opening->setColorIndex(3);
        working.Add(opening);
        AcDbEntity* entity = nullptr;
        ASSERT_EQ(acdbOpenAcDbEntity(entity, opening->objectId(), AcDb::kForRead), Acad::eOk);
        AcDbVoidPtrArray pieces;
        ASSERT_EQ(entity->explode(pieces), Acad::eOk);
        ASSERT_EQ(pieces.length(), row.count);
        auto* circle = static_cast<AcDbEntity*>(pieces[0]);
        ASSERT_EQ(circle->isA(), AcDbCircle::desc());
        EXPECT_EQ(AcDbCircle::cast(circle)->radius(), 50);
        EXPECT_EQ(circle->colorIndex(), 3);
        if (row.count == 2) {
            auto* title = AcDbMText::cast(static_cast<AcDbEntity*>(pieces[1]));
            ASSERT_NE(title, nullptr);
            EXPECT_EQ(title->attachment(), AcDbMText::kMiddleCenter);
            EXPECT_TRUE(qxtest::Near(title->location(), AcGePoint3d(100, 300, 0)));
        }
        for (void* piece : pieces)
            delete static_cast<AcDbEntity*>(piece);
        entity->close();
    }
}

TEST_F(AecCircleOpeningTest, TransformMovesTurnsAndScalesTheTitle)
{
    std::unique_ptr<AecCircleOpening> opening(MakeOpening());
    const AcGeMatrix3d turn = AcGeMatrix3d::rotation(kPi / 2, AcGeVector3d::kZAxis, AcGePoint3d(100, 200, 0));
    const AcGeMatrix3d grow = AcGeMatrix3d::scaling(2.0, AcGePoint3d(100, 200, 0));
    const AcGeMatrix3d move = AcGeMatrix3d::translation(AcGeVector3d(5, 5, 0));
    ASSERT_EQ(opening->transformBy(move * grow * turn), Acad::eOk);
    EXPECT_TRUE(qxtest::Near(opening->center(), AcGePoint3d(105, 205, 0)));
    EXPECT_NEAR(opening->radius(), 100, 1e-9);
    const TextBaseLabel title = opening->GetData().titleLabel;
    EXPECT_TRUE(qxtest::Near(title.GetPosition(), AcGePoint3d(-95, 205, 0), 1e-9));
    EXPECT_TRUE(qxtest::Near(title.GetTextDirX(), AcGeVector3d(0, 2, 0), 1e-9));
    EXPECT_NEAR(title.GetHeight(), 200, 1e-9);
}

TEST_F(AecCircleOpeningTest, DrawsTheCircleThenTheTitle)
{
    AecCircleOpening* opening = MakeOpening(L"D1");
    const AcDbObjectId id = working.Add(opening);
    AcDbEntity* entity = nullptr;
    ASSERT_EQ(acdbOpenAcDbEntity(entity, id, AcDb::kForRead), Acad::eOk);
    const auto primitives = qxtest::Draw(entity);
    ASSERT_GE(primitives.size(), 2u);
    EXPECT_EQ(primitives[0].kind, headless::PrimitiveKind::kCircle);
    EXPECT_TRUE(qxtest::Near(primitives[0].points[0], AcGePoint3d(100, 200, 0)));
    EXPECT_EQ(primitives.back().kind, headless::PrimitiveKind::kText);
    EXPECT_EQ(primitives.back().text, L"D1");
    entity->close();
}

TEST_F(AecCircleOpeningTest, UndoRestoresTheRecord)
{
    AecCircleOpening* created = MakeOpening(L"before");
    const AcDbObjectId id = working.Add(created);
    headless::UndoHistory& history = headless::UndoHistory::of(working.db());
    history.beginGroup();
    AecCircleOpening* opening = nullptr;
    ASSERT_EQ(acdbOpenObject(opening, id, AcDb::kForWrite), Acad::eOk);
    CircleOpeningData data = opening->GetData();
    data.titleLabel.SetLabel(L"after");
    opening->SetData(data);
    opening->close();
    history.endGroup();

    ASSERT_EQ(history.undo(), Acad::eOk);
    ASSERT_EQ(acdbOpenObject(opening, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(opening->GetData().titleLabel.GetLabel(), AcString(L"before"));
    opening->close();
    ASSERT_EQ(history.redo(), Acad::eOk);
    ASSERT_EQ(acdbOpenObject(opening, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(opening->GetData().titleLabel.GetLabel(), AcString(L"after"));
    opening->close();
}

}  // namespace
