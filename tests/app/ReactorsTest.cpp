// The module's reactors driven through the host as a user would: the copy command on
// merge and corner groups (one alert a copy, and only into the active drawing), block and
// wblock clones left alone, DASHED in every document, a document switch clearing the
// hidden labels, and the message filter's handlers.
#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "ModuleTestSupport.h"
#include "Qx/LinetypeUtil.h"
#include "app/CAecProcessMessageReactorManager.h"
#include "app/DeepCloneReactor.h"
#include "app/DocReactor.h"
#include "dbidmap.h"
#include "geometry/EntityCreation.h"
#include "headless/CloneCommand.h"
#include "headless/CommandLine.h"
#include "headless/Session.h"
#include "panel/AecPanel.h"

namespace {

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

AcString HandleOf(const AcDbObjectId& id)
{
    ACHAR buffer[32] = {};
    id.handle().getIntoAsciiBuffer(buffer, 32);
    return AcString(buffer);
}

AcDbObjectId AddTo(AcDbDatabase* db, AcDbEntity* entity)
{
    EXPECT_EQ(AddToCurrentSpace(entity, db), Acad::eOk);
    const AcDbObjectId id = entity->objectId();
    entity->close();
    return id;
}

AecPanel* Square(double x)
{
    auto* panel = new AecPanel();
    AcArray<AcGePoint2d> points;
    for (const AcGePoint2d& p :
         {AcGePoint2d(x, 0), AcGePoint2d(x + 750, 0), AcGePoint2d(x + 750, 6000), AcGePoint2d(x, 6000)})
        points.append(p);
    panel->SetOuterLoopFromPoints(points);
    return panel;
}

// Panels in db whose merge (or, with corner, corner) records name each other.
std::vector<AcDbObjectId> AddGroup(AcDbDatabase* db, int count, bool corner = false, int cornerKind = 1)
{
    std::vector<AcDbObjectId> ids;
    for (int i = 0; i < count; ++i)
        ids.push_back(AddTo(db, Square(1000.0 * i)));
    for (int i = 0; i < count; ++i) {
        std::vector<AcString> others;
        for (int j = 0; j < count; ++j)
            if (j != i)
                others.push_back(HandleOf(ids[static_cast<std::size_t>(j)]));
        AecPanel* panel = nullptr;
        EXPECT_EQ(acdbOpenObject(panel, ids[static_cast<std::size_t>(i)], AcDb::kForWrite), Acad::eOk);
        if (corner) {
            DbxPanel::PanelShapeInfo shape;
            shape.SetShapeType(cornerKind);
            shape.SetPosition(i + 1);
            shape.SetCornerPanelAngle(135);
            shape.SetZiMuKouType(2);
            shape.SetHandle(HandleOf(ids[static_cast<std::size_t>(i)]));
            shape.SetRelatedPanelHandles(others);
            panel->SetPanelShapeInfo(shape);
        } else {
            DbxPanel::PanelMergeInfo merge;
            merge.SetDirection(1);
            merge.SetSequenceNumber(i + 1);
            merge.SetHandle(HandleOf(ids[static_cast<std::size_t>(i)]));
            merge.SetRelatedPanelHandles(others);
            panel->SetPanelMergeInfo(merge);
        }
        panel->close();
    }
    return ids;
}

AcDbObjectIdArray Copy(const std::vector<AcDbObjectId>& ids)
{
    AcDbObjectIdArray from;
    for (const AcDbObjectId& id : ids)
        from.append(id);
    AcDbObjectIdArray clones;
    EXPECT_EQ(headless::copyObjects(from, clones), Acad::eOk);
    return clones;
}

DbxPanel::PanelMergeInfo MergeOf(const AcDbObjectId& id)
{
    DbxPanel::PanelMergeInfo merge;
    AecPanel* panel = nullptr;
    if (acdbOpenObject(panel, id, AcDb::kForRead) == Acad::eOk) {
        panel->GetPanelMergeInfo(merge);
        panel->close();
    }
    return merge;
}

DbxPanel::PanelShapeInfo ShapeOf(const AcDbObjectId& id)
{
    DbxPanel::PanelShapeInfo shape;
    AecPanel* panel = nullptr;
    if (acdbOpenObject(panel, id, AcDb::kForRead) == Acad::eOk) {
        panel->GetPanelShapeInfo(shape);
        panel->close();
    }
    return shape;
}

// The document is locked for write throughout, as a command of it would hold it.
class ReactorsTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_EQ(acDocManager->lockDocument(doc, AcAp::kWrite), Acad::eOk); }
    void TearDown() override { acDocManager->unlockDocument(doc); }
    headless::Session session;
    AcApDocument* doc = session.newDocument();
    AcDbDatabase* db() { return doc->database(); }
};

TEST_F(ReactorsTest, CopyingAWholeMergeGroupNamesTheCopiesAndAlertsNothing)
{
    const std::vector<AcDbObjectId> group = AddGroup(db(), 2);
    headless::CommandLineCapture capture;
    const AcDbObjectIdArray clones = Copy(group);
    ASSERT_EQ(clones.length(), 2);
    const DbxPanel::PanelMergeInfo first = MergeOf(clones[0]);
    const DbxPanel::PanelMergeInfo second = MergeOf(clones[1]);
    EXPECT_EQ(first.GetRelatedPanelHandles(), std::vector<AcString>{HandleOf(clones[1])});
    EXPECT_EQ(second.GetRelatedPanelHandles(), std::vector<AcString>{HandleOf(clones[0])});
    EXPECT_EQ(first.GetHandle(), HandleOf(clones[0]));
    EXPECT_EQ(first.GetDirection(), 1);
    EXPECT_TRUE(capture.alerts().empty());
    // The sources are untouched.
    EXPECT_EQ(MergeOf(group[0]).GetRelatedPanelHandles(), std::vector<AcString>{HandleOf(group[1])});
}

TEST_F(ReactorsTest, CopyingPartOfAGroupDissolvesItWithOneAlertForTheWholeCopy)
{
    const std::vector<AcDbObjectId> group = AddGroup(db(), 3);
    headless::CommandLineCapture capture;
    const AcDbObjectIdArray clones = Copy({group[0], group[1]});
    ASSERT_EQ(clones.length(), 2);
    for (const AcDbObjectId& clone : clones) {
        const DbxPanel::PanelMergeInfo merge = MergeOf(clone);
        EXPECT_EQ(merge.GetDirection(), 0);
        EXPECT_EQ(merge.GetSequenceNumber(), 1);
        EXPECT_TRUE(merge.GetRelatedPanelHandles().empty());
        EXPECT_EQ(merge.GetHandle(), HandleOf(clone));
    }
    ASSERT_EQ(capture.alerts().size(), 1u);
    EXPECT_EQ(capture.alerts()[0],
              std::wstring(L"检测到合并板或转角板未完整复制,已将本次复制出的相关板材转为普通直板。\n"
                           L"请完整框选同一合并组/转角组后再复制。"));
}

TEST_F(ReactorsTest, ACopyIntoADatabaseOfNoActiveDocumentIsRepairedSilently)
{
    qxtest::WorkingDatabase working;
    const std::vector<AcDbObjectId> group = AddGroup(working.db(), 2);
    headless::CommandLineCapture capture;
    const AcDbObjectIdArray clones = Copy({group[0]});
    ASSERT_EQ(clones.length(), 1);
    EXPECT_TRUE(MergeOf(clones[0]).GetRelatedPanelHandles().empty());
    EXPECT_TRUE(capture.alerts().empty());
}

TEST_F(ReactorsTest, BlockAndWblockClonesLeaveTheRecordsAlone)
{
    for (AcDb::DeepCloneType context : {AcDb::kDcBlock, AcDb::kDcWblock}) {
        SCOPED_TRACE(static_cast<int>(context));
        const std::vector<AcDbObjectId> group = AddGroup(db(), 2);
        AcDbIdMapping map;
        ASSERT_EQ(headless::setDeepCloneContext(map, context), Acad::eOk);
        AcDbObjectIdArray ids;
        ids.append(group[0]);
        headless::CommandLineCapture capture;
        ASSERT_EQ(db()->deepCloneObjects(ids, db()->currentSpaceId(), map), Acad::eOk);
        AcDbIdPair pair(group[0], AcDbObjectId::kNull, false);
        ASSERT_TRUE(map.compute(pair));
        EXPECT_EQ(MergeOf(pair.value()).GetRelatedPanelHandles(), std::vector<AcString>{HandleOf(group[1])});
        EXPECT_TRUE(capture.alerts().empty());
    }
}

TEST_F(ReactorsTest, CornerGroupsCopiedInPart)
{
    // Kinds 1 and 2 become ordinary panels, position kept; kind 3 keeps what was copied.
    struct Case {
        int kind;
        int shapeAfter;
        int angleAfter;
        int ziMuKouAfter;
        std::size_t membersAfter;
        std::size_t alerts;
    };
    for (const Case& c : {Case{1, 0, 90, 1, 0, 1}, Case{2, 0, 90, 1, 0, 1}, Case{3, 3, 135, 2, 1, 0}}) {
        SCOPED_TRACE(c.kind);
        const std::vector<AcDbObjectId> group = AddGroup(db(), 3, true, c.kind);
        headless::CommandLineCapture capture;
        const AcDbObjectIdArray clones = Copy({group[0], group[1]});
        const DbxPanel::PanelShapeInfo shape = ShapeOf(clones[0]);
        EXPECT_EQ(shape.GetShapeType(), c.shapeAfter);
        EXPECT_EQ(shape.GetCornerPanelAngle(), c.angleAfter);
        EXPECT_EQ(shape.GetZiMuKouType(), c.ziMuKouAfter);
        EXPECT_EQ(shape.GetPosition(), 1);
        EXPECT_EQ(shape.GetRelatedPanelHandles().size(), c.membersAfter);
        if (c.membersAfter == 1) {
            EXPECT_EQ(shape.GetRelatedPanelHandles()[0], HandleOf(clones[1]));
        }
        EXPECT_EQ(capture.alerts().size(), c.alerts);
    }
}

// A reactor that refuses every lock of one document, as another context holding it would.
class LockRefuser : public AcApDocManagerReactor {
public:
    void documentLockModeWillChange(AcApDocument* doc, AcAp::DocLockMode, AcAp::DocLockMode, AcAp::DocLockMode,
                                    const ACHAR*) override
    {
        if (refused == nullptr || doc == refused)
            veto();
    }
    AcApDocument* refused = nullptr;
};

TEST_F(ReactorsTest, EveryDocumentGetsDashedUnlessItCannotBeLocked)
{
    EXPECT_FALSE(Qx::LinetypeUtil::GetLinetype(L"DASHED", db()).isNull());
    AcApDocument* second = session.newDocument();
    EXPECT_FALSE(Qx::LinetypeUtil::GetLinetype(L"DASHED", second->database()).isNull());

    // Documents open when the reactor is installed are brought up to date then.
    DocReactor::Remove();
    AcApDocument* third = session.newDocument();
    EXPECT_TRUE(Qx::LinetypeUtil::GetLinetype(L"DASHED", third->database()).isNull());
    DocReactor::Install();
    EXPECT_FALSE(Qx::LinetypeUtil::GetLinetype(L"DASHED", third->database()).isNull());

    // A document that cannot be locked is skipped, silently.
    LockRefuser refuser;
    acDocManager->addReactor(&refuser);
    headless::CommandLineCapture capture;
    AcApDocument* locked = session.newDocument();
    acDocManager->removeReactor(&refuser);
    EXPECT_TRUE(Qx::LinetypeUtil::GetLinetype(L"DASHED", locked->database()).isNull());
    EXPECT_TRUE(capture.alerts().empty());
}

TEST_F(ReactorsTest, ADocumentSwitchClearsTheHiddenLabels)
{
    const AcDbObjectId id = AddTo(db(), Square(0));
    AecPanel::AddTemporaryHiddenPanelIds({id});
    ASSERT_TRUE(AecPanel::IsPanelTextTemporarilyHidden(id));
    AcApDocument* second = session.newDocument();
    ASSERT_EQ(session.setCurrent(second), Acad::eOk);
    EXPECT_FALSE(AecPanel::IsPanelTextTemporarilyHidden(id));
}

class Handler : public CAecProcessMessageReactor {
public:
    Handler(std::vector<int>& log, int name, bool handles) : m_log(log), m_name(name), m_handles(handles) {}
    bool OnProcessMessage(MSG*, const AcGePoint3d& point) override
    {
        m_log.push_back(m_name);
        lastPoint = point;
        return m_handles;
    }
    AcGePoint3d lastPoint = AcGePoint3d(1, 1, 1);

private:
    std::vector<int>& m_log;
    int m_name;
    bool m_handles;
};

TEST(MessageFilterTest, HandlersAreOfferedTheMessageInOrderUntilOneHandlesIt)
{
    CAecProcessMessageReactorManager& manager = CAecProcessMessageReactorManager::Instance();
    std::vector<int> log;
    Handler first(log, 1, false);
    Handler second(log, 2, true);
    Handler third(log, 3, true);
    MSG click{};
    click.message = WM_LBUTTONDBLCLK;
    EXPECT_FALSE(manager.ProcessMessage(&click));  // nobody listens yet
    manager.AddReactor(nullptr);
    manager.AddReactor(&first);
    manager.AddReactor(&second);
    manager.AddReactor(&first);  // already listed
    manager.AddReactor(&third);
    EXPECT_TRUE(manager.ProcessMessage(&click));
    EXPECT_EQ(log, (std::vector<int>{1, 2}));
    // No window is a drawing view here: the point is the origin.
    EXPECT_EQ(first.lastPoint, AcGePoint3d::kOrigin);
    manager.RemoveReactor(&second);
    log.clear();
    EXPECT_TRUE(manager.ProcessMessage(&click));
    EXPECT_EQ(log, (std::vector<int>{1, 3}));
    manager.RemoveReactor(&first);
    manager.RemoveReactor(&third);
    EXPECT_FALSE(manager.ProcessMessage(&click));
}

}  // namespace
