// What every entity of the module promises the host: a default instance is valid; filing
// is lossless and byte-stable, in memory and through a drawing file; a null filer is
// refused; a newer class version is refused and kept as a proxy; transform then inverse
// restores the geometry; extents contain the grips; a zero grip move changes nothing; the
// draw stops on an aborted regeneration; undo restores the state.
#include <gtest/gtest.h>

#include <memory>

#include "ConformanceCases.h"
#include "ModuleTestSupport.h"
#include "geplane.h"
#include "DrawingFilePatch.h"
#include "dbproxy.h"
#include "headless/DrawingFile.h"
#include "headless/MemoryDwgFiler.h"
#include "headless/RecordingWorldDraw.h"
#include "headless/CommandLine.h"
#include "headless/UndoHistory.h"

namespace {

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

long ReadLittleEndian(const std::vector<std::uint8_t>& bytes, std::size_t at, std::size_t size)
{
    unsigned long value = 0;
    for (std::size_t i = 0; i < size; ++i)
        value |= static_cast<unsigned long>(bytes[at + i]) << (8 * i);
    return static_cast<long>(value);
}

void WriteLittleEndian(std::vector<std::uint8_t>& bytes, std::size_t at, std::size_t size, long value)
{
    for (std::size_t i = 0; i < size; ++i)
        bytes[at + i] = static_cast<std::uint8_t>(static_cast<unsigned long>(value) >> (8 * i));
}

template <typename T>
class EntityConformanceTest : public ::testing::Test {
protected:
    using Case = ConformanceCase<T>;

    // A sample appended to the working database, opened as asked.
    T* AddSample(AcDb::OpenMode mode, AcDbObjectId* idOut = nullptr)
    {
        const AcDbObjectId id = working.Add(Case::MakeSample());
        if (idOut != nullptr)
            *idOut = id;
        return Open(id, mode);
    }

    T* Open(AcDbObjectId id, AcDb::OpenMode mode)
    {
        T* entity = nullptr;
        EXPECT_EQ(acdbOpenObject(entity, id, mode), Acad::eOk);
        return entity;
    }

    // New-form grips, or the points of the old form when the entity has only those.
    std::vector<AcGePoint3d> GripPoints(const T* entity)
    {
        std::vector<AcGePoint3d> points;
        AcDbGripDataPtrArray grips;
        if (entity->getGripPoints(grips, 1.0, 5, AcGeVector3d::kZAxis, 0) == Acad::eOk) {
            for (AcDbGripData* grip : grips) {
                points.push_back(grip->gripPoint());
                delete grip;
            }
            return points;
        }
        AcGePoint3dArray old;
        AcDbIntArray modes;
        AcDbIntArray ids;
        EXPECT_EQ(entity->getGripPoints(old, modes, ids), Acad::eOk);
        for (const AcGePoint3d& p : old)
            points.push_back(p);
        return points;
    }

    // Edits the sample inside an undo group; undo must give back the filing byte for byte and
    // redo the edited filing. Answers the edited filing.
    template <typename Edit>
    qxtest::Bytes ExpectUndoAndRedoRestoreTheFiling(Edit edit)
    {
        AcDbObjectId id;
        T* entity = AddSample(AcDb::kForRead, &id);
        const qxtest::Bytes before = qxtest::FileOut(entity);
        entity->close();

        headless::UndoHistory& history = headless::UndoHistory::of(working.db());
        history.beginGroup();
        entity = Open(id, AcDb::kForWrite);
        edit(entity);
        const qxtest::Bytes edited = qxtest::FileOut(entity);
        entity->close();
        history.endGroup();

        EXPECT_EQ(history.undo(), Acad::eOk);
        entity = Open(id, AcDb::kForRead);
        EXPECT_EQ(qxtest::FileOut(entity), before);
        entity->close();
        EXPECT_EQ(history.redo(), Acad::eOk);
        entity = Open(id, AcDb::kForRead);
        EXPECT_EQ(qxtest::FileOut(entity), edited);
        entity->close();
        return edited;
    }

    qxtest::WorkingDatabase working;
};

TYPED_TEST_SUITE(EntityConformanceTest, ConformanceTypes);

// Valid: what the host needs of a default entity, the kind it makes by the class's
// constructor when it reads a drawing. It is of its class, files, and its bytes read back
// into another default; reading may settle what a default leaves open (a line without
// length gets the shortest length), and what it settled files the same ever after. It
// lists under its DXF name and draws.
TYPED_TEST(EntityConformanceTest, ADefaultEntityIsValid)
{
    AcRxObject* made = TypeParam::desc()->create();
    ASSERT_NE(TypeParam::cast(made), nullptr);
    EXPECT_EQ(made->isA(), TypeParam::desc());
    TypeParam* entity = this->Open(this->working.Add(TypeParam::cast(made)), AcDb::kForRead);
    const qxtest::Bytes bytes = qxtest::FileOut(entity);
    TypeParam* copy = this->Open(this->working.Add(new TypeParam()), AcDb::kForWrite);
    EXPECT_EQ(qxtest::FileIn(copy, bytes), Acad::eOk);
    const qxtest::Bytes settled = qxtest::FileOut(copy);
    EXPECT_EQ(qxtest::FileIn(copy, settled), Acad::eOk);
    EXPECT_EQ(qxtest::FileOut(copy), settled);
    copy->close();
    EXPECT_NE(qxtest::ListOutput(entity).find(TypeParam::desc()->dxfName()), std::wstring::npos);
    headless::RecordingWorldDraw draw;
    draw.setDatabase(entity->database());
    EXPECT_TRUE(draw.drawDrawable(entity));
    entity->close();
}

TYPED_TEST(EntityConformanceTest, FilingIsLosslessAndByteStable)
{
    TypeParam* entity = this->AddSample(AcDb::kForRead);
    const qxtest::Bytes first = qxtest::FileOut(entity);
    const auto drawn = qxtest::Draw(entity);

    entity->close();

    // Read into a second entity of the same drawing, so that it draws in the same context.
    TypeParam* copy = this->Open(this->working.Add(new TypeParam()), AcDb::kForWrite);
    ASSERT_EQ(qxtest::FileIn(copy, first), Acad::eOk);
    EXPECT_EQ(qxtest::FileOut(copy), first);
    EXPECT_TRUE(qxtest::SamePrimitives(qxtest::Draw(copy), drawn, 0.0));
    copy->close();
}

TYPED_TEST(EntityConformanceTest, ADrawingSavedAndReopenedGivesTheEntityBackAsItWas)
{
    AcDbObjectId id;
    TypeParam* entity = this->AddSample(AcDb::kForRead, &id);
    const qxtest::Bytes bytes = qxtest::FileOut(entity);
    const auto drawn = qxtest::Draw(entity);
    entity->close();
    std::vector<std::uint8_t> file;
    ASSERT_EQ(headless::DrawingFile::write(this->working.db(), file), Acad::eOk);

    AcDbDatabase* reopened = nullptr;
    headless::DrawingReadReport report;
    ASSERT_EQ(headless::DrawingFile::read(file, reopened, &report), Acad::eOk);
    std::unique_ptr<AcDbDatabase> owner(reopened);
    EXPECT_EQ(report.proxies, 0);
    AcDbObjectId copyId;
    ASSERT_EQ(reopened->getAcDbObjectId(copyId, false, id.handle()), Acad::eOk);
    TypeParam* copy = this->Open(copyId, AcDb::kForRead);
    ASSERT_NE(copy, nullptr);
    EXPECT_EQ(qxtest::FileOut(copy), bytes);
    EXPECT_TRUE(qxtest::SamePrimitives(qxtest::Draw(copy), drawn, 0.0));
    copy->close();
    std::vector<std::uint8_t> again;
    ASSERT_EQ(headless::DrawingFile::write(reopened, again), Acad::eOk);
    EXPECT_EQ(again, file);
}

TYPED_TEST(EntityConformanceTest, ANullFilerAnswers15InAndOutAndChangesNothing)
{
    TypeParam* entity = this->AddSample(AcDb::kForWrite);
    const qxtest::Bytes before = qxtest::FileOut(entity);
    EXPECT_EQ(static_cast<int>(entity->dwgOutFields(nullptr)), 15);
    EXPECT_EQ(static_cast<int>(entity->dwgInFields(nullptr)), 15);
    EXPECT_EQ(qxtest::FileOut(entity), before);
    entity->close();
}

TYPED_TEST(EntityConformanceTest, ANewerClassVersionIsRefused)
{
    TypeParam* entity = this->AddSample(AcDb::kForRead);
    qxtest::Bytes bytes = qxtest::FileOut(entity);
    headless::MemoryDwgFiler hostPart(AcDb::kFileFiler, this->working.db());
    using HostBase = typename ConformanceCase<TypeParam>::HostBase;
    ASSERT_EQ(entity->HostBase::dwgOutFields(&hostPart), Acad::eOk);
    entity->close();

    // The class version comes right after the host class's fields.
    using Version = ClassVersion<TypeParam>;
    const std::size_t at = hostPart.bytes().size();
    ASSERT_LE(at + Version::kBytes, bytes.size());
    EXPECT_EQ(ReadLittleEndian(bytes, at, Version::kBytes), Version::kCurrent);
    WriteLittleEndian(bytes, at, Version::kBytes, Version::kCurrent + 1);
    std::unique_ptr<TypeParam> target(new TypeParam());
    EXPECT_EQ(qxtest::FileIn(target.get(), bytes, this->working.db()), Acad::eMakeMeProxy);
}

TYPED_TEST(EntityConformanceTest, ADrawingKeepsANewerVersionAsAProxyAndLosesNothing)
{
    AcDbObjectId id;
    TypeParam* entity = this->AddSample(AcDb::kForRead, &id);
    const AcDbHandle handle = entity->objectId().handle();
    headless::MemoryDwgFiler hostPart(AcDb::kFileFiler, this->working.db());
    using HostBase = typename ConformanceCase<TypeParam>::HostBase;
    ASSERT_EQ(entity->HostBase::dwgOutFields(&hostPart), Acad::eOk);
    const std::size_t versionAt = hostPart.bytes().size();
    entity->close();

    std::vector<std::uint8_t> file;
    ASSERT_EQ(headless::DrawingFile::write(this->working.db(), file), Acad::eOk);
    ASSERT_TRUE(qxtest::PatchObjectBytes(file, handle, [&](std::vector<std::uint8_t>& bytes) {
        WriteLittleEndian(bytes, versionAt, ClassVersion<TypeParam>::kBytes, ClassVersion<TypeParam>::kCurrent + 1);
    }));

    AcDbDatabase* reopened = nullptr;
    headless::DrawingReadReport report;
    headless::CommandLineCapture quiet;
    ASSERT_EQ(headless::DrawingFile::read(file, reopened, &report), Acad::eOk);
    std::unique_ptr<AcDbDatabase> owner(reopened);
    EXPECT_EQ(report.proxies, 1);
    AcDbObjectId proxyId;
    ASSERT_EQ(reopened->getAcDbObjectId(proxyId, false, handle), Acad::eOk);
    AcDbObject* proxy = nullptr;
    ASSERT_EQ(acdbOpenObject(proxy, proxyId, AcDb::kForRead), Acad::eOk);
    EXPECT_TRUE(proxy->isAProxy());
    EXPECT_NE(AcDbProxyEntity::cast(proxy), nullptr);
    proxy->close();

    std::vector<std::uint8_t> saved;
    ASSERT_EQ(headless::DrawingFile::write(reopened, saved), Acad::eOk);
    EXPECT_EQ(saved, file);
}

TYPED_TEST(EntityConformanceTest, TransformThenInverseRestoresTheGeometry)
{
    struct Row {
        const char* what;
        AcGeMatrix3d matrix;
    };
    const AcGePoint3d pivot(300, -200, 0);
    const Row rows[] = {
        {"translation", AcGeMatrix3d::translation(AcGeVector3d(250, -75, 0))},
        {"rotation", AcGeMatrix3d::rotation(0.7, AcGeVector3d::kZAxis, pivot)},
        {"uniform scale", AcGeMatrix3d::scaling(2.5, pivot)},
        {"mirror", AcGeMatrix3d::mirroring(AcGePlane(pivot, AcGeVector3d(2, -1, 0)))},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        TypeParam* entity = this->AddSample(AcDb::kForWrite);
        const auto before = qxtest::Draw(entity);
        ASSERT_EQ(entity->transformBy(row.matrix), Acad::eOk);
        ASSERT_EQ(entity->transformBy(row.matrix.inverse()), Acad::eOk);
        EXPECT_TRUE(qxtest::SamePrimitives(qxtest::Draw(entity), before, 1e-6));
        entity->close();
    }
}

TYPED_TEST(EntityConformanceTest, ExtentsContainTheGripPoints)
{
    TypeParam* entity = this->AddSample(AcDb::kForRead);
    AcDbExtents extents;
    ASSERT_EQ(entity->getGeomExtents(extents), Acad::eOk);
    const auto grips = this->GripPoints(entity);
    EXPECT_FALSE(grips.empty());
    for (const AcGePoint3d& p : grips)
        EXPECT_TRUE(extents.contains(p, 1e-6)) << p << " outside " << extents;
    entity->close();
}

TYPED_TEST(EntityConformanceTest, MovingAGripByZeroChangesNothing)
{
    TypeParam* entity = this->AddSample(AcDb::kForWrite);
    const qxtest::Bytes before = qxtest::FileOut(entity);
    AcDbGripDataPtrArray grips;
    if (entity->getGripPoints(grips, 1.0, 5, AcGeVector3d::kZAxis, 0) == Acad::eOk) {
        for (AcDbGripData* grip : grips) {
            AcDbVoidPtrArray one;
            one.append(grip->appData());
            EXPECT_EQ(entity->moveGripPointsAt(one, AcGeVector3d::kIdentity, 0), Acad::eOk);
        }
        entity->gripStatus(AcDb::kGripsToBeDeleted);
        for (AcDbGripData* grip : grips)
            delete grip;
    } else {
        AcGePoint3dArray points;
        AcDbIntArray modes;
        AcDbIntArray ids;
        ASSERT_EQ(entity->getGripPoints(points, modes, ids), Acad::eOk);
        for (int i = 0; i < points.length(); ++i) {
            AcDbIntArray one;
            one.append(i);
            EXPECT_EQ(entity->moveGripPointsAt(one, AcGeVector3d::kIdentity), Acad::eOk);
        }
    }
    EXPECT_EQ(qxtest::FileOut(entity), before);
    entity->close();
}

TYPED_TEST(EntityConformanceTest, TheDrawStopsOnAnAbortedRegeneration)
{
    TypeParam* entity = this->AddSample(AcDb::kForRead);
    ASSERT_FALSE(qxtest::Draw(entity).empty());
    headless::RecordingWorldDraw aborted;
    aborted.setDatabase(entity->database());
    aborted.abortNow();
    aborted.drawDrawable(entity);
    EXPECT_TRUE(aborted.primitives().empty());

    headless::RecordingWorldDraw afterOne;
    afterOne.setDatabase(entity->database());
    afterOne.abortAfter(1);
    afterOne.drawDrawable(entity);
    EXPECT_LE(afterOne.primitives().size(), 1u);
    entity->close();
}

TYPED_TEST(EntityConformanceTest, UndoRestoresTheState)
{
    AcDbObjectId id;
    TypeParam* sample = this->AddSample(AcDb::kForRead, &id);
    const qxtest::Bytes before = qxtest::FileOut(sample);
    sample->close();
    EXPECT_NE(this->ExpectUndoAndRedoRestoreTheFiling([](TypeParam* e) { ConformanceCase<TypeParam>::Edit(e); }),
              before);
}

// The host's own edits, which every entity answers: a move, a grip dragged, every stretch
// point dragged.
TYPED_TEST(EntityConformanceTest, UndoAndRedoOfHostEditsRestoreTheFilingByteForByte)
{
    const AcGeVector3d offset(12.5, -7.25, 0);
    SCOPED_TRACE("transformBy");
    this->ExpectUndoAndRedoRestoreTheFiling([&](TypeParam* e) { e->transformBy(AcGeMatrix3d::translation(offset)); });
    SCOPED_TRACE("moveGripPointsAt");
    this->ExpectUndoAndRedoRestoreTheFiling([&](TypeParam* e) {
        AcGePoint3dArray grips;
        AcDbIntArray osnapModes, geomIds;
        e->getGripPoints(grips, osnapModes, geomIds);
        AcDbIntArray first;
        first.append(0);
        e->moveGripPointsAt(first, offset);
    });
    SCOPED_TRACE("moveStretchPointsAt");
    this->ExpectUndoAndRedoRestoreTheFiling([&](TypeParam* e) {
        AcGePoint3dArray points;
        e->getStretchPoints(points);
        AcDbIntArray all;
        for (int i = 0; i < points.length(); ++i)
            all.append(i);
        e->moveStretchPointsAt(all, offset);
    });
}

}  // namespace
