// Drawings holding objects of classes that are not loaded: they open as proxies that are
// written back unchanged, draw the kept graphics, answer extents, keep their references,
// obey their class's proxy flags, and open as full objects once the class is back.
#include <gtest/gtest.h>

#include <functional>

#include "FileTestSupport.h"
#include "dbproxy.h"
#include "headless/RecordingWorldDraw.h"
#include "headless/UndoHistory.h"

using namespace filetest;
using clonetest::inspect;

namespace {

AcDbObjectId sameHandle(AcDbDatabase* db, AcDbObjectId original)
{
    AcDbObjectId id;
    db->getAcDbObjectId(id, false, original.handle());
    return id;
}

std::string drawn(AcDbObjectId id)
{
    AcDbEntity* entity = nullptr;
    if (acdbOpenObject(entity, id, AcDb::kForRead) != Acad::eOk)
        return "cannot open";
    headless::RecordingWorldDraw draw;
    draw.drawDrawable(entity);
    entity->close();
    return draw.transcript();
}

class DrawingProxyTest : public ::testing::Test {
protected:
    void TearDown() override
    {
        read.reset();
        FileTestShape::writeVersion = 1;
        FileTestShape::registerWith(AcDbProxyFlags::kAllButCloningAllowed);
        FileTestRecord::registerWith(AcDbProxyFlags::kNoOperation);
    }

    // Writes the sample with the shape registered under flags, then reads it with neither
    // test class loaded.
    void openWithoutClasses(int shapeFlags)
    {
        FileTestShape::registerWith(shapeFlags);
        FileTestRecord::registerWith(AcDbProxyFlags::kNoOperation);
        {
            AcDbDatabase db;
            sample = buildSample(&db);
            original = writeBytes(&db);
            shapeADrawing = drawn(sample.shapeA);
        }
        FileTestShape::unregister();
        FileTestRecord::unregister();
        read = readBytes(original, &report);
        ASSERT_NE(read, nullptr);
    }

    Sample sample;
    Bytes original;
    std::string shapeADrawing;
    headless::DrawingReadReport report;
    std::unique_ptr<AcDbDatabase> read;
};

TEST_F(DrawingProxyTest, ObjectsOfUnloadedClassesOpenAsProxiesAndAreWrittenBackUnchanged)
{
    headless::CommandLineCapture capture;
    openWithoutClasses(AcDbProxyFlags::kAllButCloningAllowed);
    EXPECT_EQ(report.proxies, 3);
    EXPECT_TRUE(report.complete);
    const std::string said = capture.utf8();
    EXPECT_NE(said.find("Class FileTestShape (FILE_TEST_SHAPE) of application \"FileTests\" is not loaded: 2 "
                        "objects kept as proxies."),
              std::string::npos)
        << said;
    EXPECT_NE(said.find("Class FileTestRecord"), std::string::npos) << said;

    const AcDbObjectId shape = sameHandle(read.get(), sample.shapeA);
    AcDbProxyEntity* proxy = nullptr;
    ASSERT_EQ(acdbOpenObject(proxy, shape, AcDb::kForRead), Acad::eOk);
    EXPECT_TRUE(proxy->isAProxy());
    EXPECT_EQ(std::wstring(proxy->originalClassName()), L"FileTestShape");
    EXPECT_EQ(std::wstring(proxy->originalDxfName()), L"FILE_TEST_SHAPE");
    EXPECT_EQ(proxy->proxyFlags(), AcDbProxyFlags::kAllButCloningAllowed);
    EXPECT_EQ(proxy->graphicsMetafileType(), AcDbProxyEntity::kFullGraphics);
    proxy->close();
    EXPECT_TRUE(AcDbProxyObject::cast(nullptr) == nullptr);
    EXPECT_EQ(clonetest::entitiesOf(read.get()).size(), 5u);

    EXPECT_EQ(writeBytes(read.get()), original);
}

TEST_F(DrawingProxyTest, AProxyDrawsTheGraphicsItsEntityDrew)
{
    openWithoutClasses(AcDbProxyFlags::kAllButCloningAllowed);
    EXPECT_EQ(drawn(sameHandle(read.get(), sample.shapeA)), shapeADrawing);
    EXPECT_NE(shapeADrawing.find("circle"), std::string::npos);

    AcDbEntity* proxy = nullptr;
    ASSERT_EQ(acdbOpenObject(proxy, sameHandle(read.get(), sample.shapeA), AcDb::kForRead), Acad::eOk);
    AcDbExtents box;
    EXPECT_EQ(proxy->getGeomExtents(box), Acad::eOk);
    proxy->close();
    // The circle of radius 4 about (40, 40) and its label of three full-width characters
    // of height 2 starting at the centre.
    EXPECT_NEAR(box.minPoint().x, 36.0, 1e-9);
    EXPECT_NEAR(box.minPoint().y, 36.0, 1e-9);
    EXPECT_NEAR(box.maxPoint().x, 46.0, 1e-9);
    EXPECT_NEAR(box.maxPoint().y, 44.0, 1e-9);
}

TEST_F(DrawingProxyTest, ProxiesKeepTheirReferencesLive)
{
    openWithoutClasses(AcDbProxyFlags::kAllButCloningAllowed);
    AcDbProxyEntity* shape = nullptr;
    ASSERT_EQ(acdbOpenObject(shape, sameHandle(read.get(), sample.shapeA), AcDb::kForRead), Acad::eOk);
    AcDbObjectIdArray ids;
    shape->getReferenceObjectIds(ids);
    shape->close();
    ASSERT_EQ(ids.length(), 1);
    EXPECT_EQ(ids[0], sameHandle(read.get(), sample.shapeB));

    AcDbProxyObject* record = nullptr;
    ASSERT_EQ(acdbOpenObject(record, sameHandle(read.get(), sample.record), AcDb::kForRead), Acad::eOk);
    AcDbObjectIdArray targets;
    record->getReferenceObjectIds(targets);
    record->close();
    ASSERT_EQ(targets.length(), 1);
    EXPECT_EQ(targets[0], sameHandle(read.get(), sample.shapeA));
}

TEST_F(DrawingProxyTest, OnceTheClassIsBackTheObjectsOpenFull)
{
    openWithoutClasses(AcDbProxyFlags::kAllButCloningAllowed);
    const Bytes viaProxies = writeBytes(read.get());
    read.reset();
    FileTestShape::registerWith(AcDbProxyFlags::kAllButCloningAllowed);
    FileTestRecord::registerWith(AcDbProxyFlags::kNoOperation);
    headless::DrawingReadReport full;
    read = readBytes(viaProxies, &full);
    EXPECT_EQ(full.proxies, 0);
    const AcDbObjectId shapeA = sameHandle(read.get(), sample.shapeA);
    EXPECT_EQ(inspect(shapeA, &FileTestShape::label), AcString(L"转角板"));
    EXPECT_EQ(inspect(shapeA, &FileTestShape::link), sameHandle(read.get(), sample.shapeB));
    EXPECT_EQ(inspect(sameHandle(read.get(), sample.record), &FileTestRecord::number), 17);
}

TEST_F(DrawingProxyTest, ANewerVersionStaysAProxyWithTheClassLoaded)
{
    FileTestShape::writeVersion = 2;
    FileTestShape::registerWith(AcDbProxyFlags::kAllButCloningAllowed);
    FileTestRecord::registerWith(AcDbProxyFlags::kNoOperation);
    AcDbDatabase db;
    sample = buildSample(&db);
    original = writeBytes(&db);
    FileTestShape::writeVersion = 1;
    headless::CommandLineCapture capture;
    read = readBytes(original, &report);
    EXPECT_EQ(report.proxies, 2);
    EXPECT_NE(capture.utf8().find("written by a newer version of its class; kept as a proxy"), std::string::npos);
    EXPECT_TRUE(inspect(sameHandle(read.get(), sample.shapeA), &AcDbObject::isAProxy));
    EXPECT_EQ(writeBytes(read.get()), original);
}

struct FlagCase {
    const char* name;
    int flag;
    std::function<Acad::ErrorStatus(AcDbEntity*)> operation;
};

TEST_F(DrawingProxyTest, TheClassFlagsGovernWhatMayBeDoneToAProxy)
{
    const FlagCase cases[] = {
        {"erase", AcDbProxyFlags::kEraseAllowed, [](AcDbEntity* e) { return e->erase(); }},
        {"transform", AcDbProxyFlags::kTransformAllowed,
         [](AcDbEntity* e) { return e->transformBy(AcGeMatrix3d::translation(AcGeVector3d(1, 0, 0))); }},
        {"colour", AcDbProxyFlags::kColorChangeAllowed, [](AcDbEntity* e) { return e->setColorIndex(3); }},
        {"layer", AcDbProxyFlags::kLayerChangeAllowed, [](AcDbEntity* e) { return e->setLayer(L"0"); }},
        {"linetype", AcDbProxyFlags::kLinetypeChangeAllowed,
         [](AcDbEntity* e) { return e->setLinetype(L"Continuous"); }},
        {"linetype scale", AcDbProxyFlags::kLinetypeScaleChangeAllowed,
         [](AcDbEntity* e) { return e->setLinetypeScale(2.0); }},
        {"visibility", AcDbProxyFlags::kVisibilityChangeAllowed,
         [](AcDbEntity* e) { return e->setVisibility(AcDb::kInvisible); }},
        {"lineweight", AcDbProxyFlags::kLineWeightChangeAllowed,
         [](AcDbEntity* e) { return e->setLineWeight(AcDb::kLnWt050); }},
    };
    for (const FlagCase& c : cases) {
        for (const bool allowed : {false, true}) {
            SCOPED_TRACE(std::string(c.name) + (allowed ? " allowed" : " refused"));
            openWithoutClasses(allowed ? c.flag : AcDbProxyFlags::kAllAllowedBits & ~c.flag);
            AcDbEntity* proxy = nullptr;
            ASSERT_EQ(acdbOpenObject(proxy, sameHandle(read.get(), sample.shapeA), AcDb::kForWrite), Acad::eOk);
            EXPECT_EQ(c.operation(proxy), allowed ? Acad::eOk : Acad::eNotAllowedForThisProxy);
            proxy->close();
            read.reset();
        }
    }
}

TEST_F(DrawingProxyTest, CloningAProxyNeedsItsClassToAllowIt)
{
    for (const bool allowed : {false, true}) {
        SCOPED_TRACE(allowed ? "allowed" : "refused");
        openWithoutClasses(allowed ? AcDbProxyFlags::kAllAllowedBits : AcDbProxyFlags::kAllButCloningAllowed);
        AcDbObjectIdArray ids;
        ids.append(sameHandle(read.get(), sample.shapeA));
        AcDbIdMapping map;
        const Acad::ErrorStatus es = read->deepCloneObjects(ids, read->currentSpaceId(), map);
        EXPECT_EQ(es, allowed ? Acad::eOk : Acad::eNotAllowedForThisProxy);
        if (allowed) {
            AcDbIdPair pair(ids[0], AcDbObjectId(), false);
            ASSERT_TRUE(map.compute(pair));
            // The clone is a proxy of the same class that draws the same graphics.
            EXPECT_TRUE(inspect(pair.value(), &AcDbObject::isAProxy));
            EXPECT_EQ(drawn(pair.value()), shapeADrawing);
        }
        read.reset();
    }
}

TEST_F(DrawingProxyTest, AMovedProxyMovesItsEntityOnceTheClassIsBack)
{
    openWithoutClasses(AcDbProxyFlags::kAllButCloningAllowed);
    const AcGeMatrix3d shift = AcGeMatrix3d::translation(AcGeVector3d(10, -5, 0));
    clonetest::edit<AcDbEntity>(sameHandle(read.get(), sample.shapeA),
                                [&](AcDbEntity* e) { EXPECT_EQ(e->transformBy(shift), Acad::eOk); });
    EXPECT_NE(drawn(sameHandle(read.get(), sample.shapeA)).find("center=(50,35,0)"), std::string::npos)
        << drawn(sameHandle(read.get(), sample.shapeA));
    const Bytes moved = writeBytes(read.get());
    EXPECT_NE(moved, original);
    read.reset();
    FileTestShape::registerWith(AcDbProxyFlags::kAllButCloningAllowed);
    FileTestRecord::registerWith(AcDbProxyFlags::kNoOperation);
    read = readBytes(moved);
    EXPECT_EQ(inspect(sameHandle(read.get(), sample.shapeA), &FileTestShape::center), AcGePoint3d(50, 35, 0));
    EXPECT_EQ(inspect(sameHandle(read.get(), sample.shapeB), &FileTestShape::center), AcGePoint3d(60, 10, 0));
}

TEST_F(DrawingProxyTest, UndoOfAProxyChangeRestoresIt)
{
    openWithoutClasses(AcDbProxyFlags::kAllButCloningAllowed);
    headless::UndoHistory& undo = headless::UndoHistory::of(read.get());
    undo.beginGroup();
    clonetest::edit<AcDbEntity>(sameHandle(read.get(), sample.shapeA),
                                [](AcDbEntity* e) { EXPECT_EQ(e->setColorIndex(3), Acad::eOk); });
    undo.endGroup();
    EXPECT_NE(writeBytes(read.get()), original);
    ASSERT_EQ(undo.undo(), Acad::eOk);
    EXPECT_EQ(writeBytes(read.get()), original);
}

}  // namespace
