// AcDbEntity: display properties, database defaults, residency, and the host's default
// answers of the editing protocol, seen through a minimal entity and the basic ones.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "EntTestSupport.h"
#include "GeTestSupport.h"
#include "dbents.h"
#include "headless/HostError.h"
#include "headless/RecordingWorldDraw.h"

// An entity with nothing but a point that moves with transforms: what the base class
// does for everything else is the host's default.
class EntTestMark : public AcDbEntity {
    ACRX_DECLARE_MEMBERS(EntTestMark);

public:
    AcGePoint3d point() const
    {
        assertReadEnabled();
        return m_point;
    }
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override
    {
        const Acad::ErrorStatus es = AcDbEntity::dwgOutFields(filer);
        if (es != Acad::eOk)
            return es;
        filer->writePoint3d(m_point);
        return filer->filerStatus();
    }
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override
    {
        const Acad::ErrorStatus es = AcDbEntity::dwgInFields(filer);
        if (es != Acad::eOk)
            return es;
        filer->readPoint3d(&m_point);
        return filer->filerStatus();
    }

protected:
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override
    {
        assertWriteEnabled();
        m_point.transformBy(xform);
        return Acad::eOk;
    }

private:
    AcGePoint3d m_point{1, 1, 0};
};

// An entity that overrides nothing.
class EntTestBare : public AcDbEntity {
    ACRX_DECLARE_MEMBERS(EntTestBare);
};

ACRX_DXF_DEFINE_MEMBERS(EntTestBare, AcDbEntity, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, ENT_TEST_BARE,
                        QxHostTests)
ACRX_DXF_DEFINE_MEMBERS(EntTestMark, AcDbEntity, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, ENT_TEST_MARK,
                        QxHostTests)

namespace {

using enttest::WorkingDatabase;

class EntEntityTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        EntTestMark::rxInit();
        EntTestBare::rxInit();
    }

    WorkingDatabase m_wdb;
};

TEST_F(EntEntityTest, AFreshEntityHasNoColourUntilDatabaseDefaults)
{
    AcDbLine line(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0));
    EXPECT_EQ(line.colorIndex(), 257);
    EXPECT_TRUE(line.entityColor().isNone());
    EXPECT_TRUE(line.layerId().isNull());
    EXPECT_EQ(line.linetypeScale(), 1.0);
    EXPECT_EQ(line.lineWeight(), AcDb::kLnWtByLayer);
    EXPECT_EQ(line.visibility(), AcDb::kVisible);

    AcDbDatabase* db = m_wdb.db();
    line.setDatabaseDefaults();
    EXPECT_TRUE(line.color().isByLayer());
    EXPECT_EQ(line.layerId(), db->layerZero());
    EXPECT_EQ(line.layer(), AcString(L"0"));
    EXPECT_EQ(line.linetypeId(), db->celtype());

    // The database's current values, whatever they are.
    const AcDbObjectId walls = m_wdb.addLayer(L"Walls");
    ASSERT_EQ(db->setClayer(walls), Acad::eOk);
    AcCmColor red;
    red.setColorIndex(1);
    ASSERT_EQ(db->setCecolor(red), Acad::eOk);
    ASSERT_EQ(db->setCeltype(db->continuousLinetype()), Acad::eOk);
    ASSERT_EQ(db->setCeltscale(2.5), Acad::eOk);
    ASSERT_EQ(db->setCelweight(AcDb::kLnWt035), Acad::eOk);
    AcDbCircle circle;
    circle.setDatabaseDefaults(db);
    EXPECT_EQ(circle.colorIndex(), 1);
    EXPECT_EQ(circle.layer(), AcString(L"Walls"));
    EXPECT_EQ(circle.linetype(), AcString(L"Continuous"));
    EXPECT_EQ(circle.linetypeScale(), 2.5);
    EXPECT_EQ(circle.lineWeight(), AcDb::kLnWt035);

    AcDbText text;
    text.setDatabaseDefaults(db);
    EXPECT_EQ(text.textStyle(), db->textstyle());
}

TEST_F(EntEntityTest, ColourIndicesOutsideTheRangeAreRefused)
{
    struct Row {
        Adesk::UInt16 index;
        Acad::ErrorStatus expected;
        const char* kind;
    };
    const Row rows[] = {
        {0, Acad::eOk, "byblock"}, {1, Acad::eOk, "aci"},     {7, Acad::eOk, "aci"},
        {255, Acad::eOk, "aci"},   {256, Acad::eOk, "bylayer"}, {257, Acad::eOk, "none"},
        {258, Acad::eInvalidInput, "unchanged"}, {1000, Acad::eInvalidInput, "unchanged"},
    };
    for (const Row& row : rows) {
        AcDbCircle circle;
        circle.setColorIndex(3);
        EXPECT_EQ(circle.setColorIndex(row.index), row.expected) << row.index;
        const AcCmColor color = circle.color();
        const std::string kind = row.kind;
        if (kind == "byblock")
            EXPECT_TRUE(color.isByBlock());
        else if (kind == "bylayer")
            EXPECT_TRUE(color.isByLayer());
        else if (kind == "none")
            EXPECT_TRUE(color.isNone());
        else if (kind == "aci")
            EXPECT_EQ(circle.colorIndex(), row.index);
        else
            EXPECT_EQ(circle.colorIndex(), 3);
    }
}

TEST_F(EntEntityTest, SettersRefuseWhatNoEntityCarries)
{
    const AcDbObjectId walls = m_wdb.addLayer(L"Walls");
    AcDbLine line;
    EXPECT_EQ(line.setLayer(L"Walls"), Acad::eOk);
    EXPECT_EQ(line.layerId(), walls);
    EXPECT_EQ(line.setLayer(L"NoSuchLayer"), Acad::eKeyNotFound);
    EXPECT_EQ(line.setLayer(AcDbObjectId::kNull), Acad::eNullObjectId);
    EXPECT_EQ(line.setLayer(m_wdb.db()->continuousLinetype()), Acad::eWrongObjectType);
    EXPECT_EQ(line.layerId(), walls);
    EXPECT_EQ(line.setLinetype(L"Continuous"), Acad::eOk);
    EXPECT_EQ(line.linetypeId(), m_wdb.db()->continuousLinetype());
    EXPECT_EQ(line.setLinetype(walls), Acad::eWrongObjectType);
    EXPECT_EQ(line.setLinetype(L"Dashdot"), Acad::eKeyNotFound);
    for (double scale : {0.0, -1.0, std::nan(""), double(INFINITY)})
        EXPECT_EQ(line.setLinetypeScale(scale), Acad::eInvalidInput) << scale;
    EXPECT_EQ(line.setLineWeight(static_cast<AcDb::LineWeight>(7)), Acad::eInvalidInput);
    EXPECT_EQ(line.setVisibility(static_cast<AcDb::Visibility>(2)), Acad::eInvalidInput);
    EXPECT_EQ(line.linetypeScale(), 1.0);
    EXPECT_EQ(line.lineWeight(), AcDb::kLnWtByLayer);
}

TEST_F(EntEntityTest, PropertiesCopyFromAnotherEntity)
{
    const AcDbObjectId walls = m_wdb.addLayer(L"Walls");
    AcDbCircle from;
    AcCmColor color;
    color.setRGB(10, 20, 30);
    from.setColor(color);
    from.setLayer(walls);
    from.setLinetype(m_wdb.db()->continuousLinetype());
    from.setLinetypeScale(3.0);
    from.setLineWeight(AcDb::kLnWt100);
    from.setVisibility(AcDb::kInvisible);
    AcDbLine to;
    ASSERT_EQ(to.setPropertiesFrom(&from), Acad::eOk);
    EXPECT_EQ(to.color(), color);
    EXPECT_EQ(to.layerId(), walls);
    EXPECT_EQ(to.linetypeId(), m_wdb.db()->continuousLinetype());
    EXPECT_EQ(to.linetypeScale(), 3.0);
    EXPECT_EQ(to.lineWeight(), AcDb::kLnWt100);
    EXPECT_EQ(to.visibility(), AcDb::kInvisible);
    EXPECT_EQ(to.setPropertiesFrom(nullptr), Acad::eNullEntityPointer);
}

TEST_F(EntEntityTest, AnEntityInModelSpaceKeepsItsPropertiesAcrossOpens)
{
    const AcDbObjectId walls = m_wdb.addLayer(L"Walls");
    auto* line = new AcDbLine(AcGePoint3d(0, 0, 0), AcGePoint3d(3, 4, 0));
    line->setDatabaseDefaults(m_wdb.db());
    line->setLayer(walls);
    line->setColorIndex(5);
    line->setLinetypeScale(0.5);
    const AcDbObjectId id = m_wdb.addToModelSpace(line);

    AcDbEntity* entity = nullptr;
    ASSERT_EQ(acdbOpenAcDbEntity(entity, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(entity->layer(), AcString(L"Walls"));
    EXPECT_EQ(entity->colorIndex(), 5);
    EXPECT_EQ(entity->linetypeScale(), 0.5);
    EXPECT_EQ(entity->blockId(), m_wdb.db()->currentSpaceId());
    EXPECT_TRUE(getest::isNear(AcDbLine::cast(entity)->endPoint(), AcGePoint3d(3, 4, 0)));
    // Writing through a read-open entity is a misuse the host stops.
    EXPECT_THROW(entity->setColorIndex(2), headless::HostError);
    EXPECT_THROW(AcDbLine::cast(entity)->setStartPoint(AcGePoint3d::kOrigin), headless::HostError);
    ASSERT_EQ(entity->upgradeOpen(), Acad::eOk);
    entity->setColorIndex(2);
    EXPECT_TRUE(entity->isModifiedGraphics());
    entity->close();

    AcDbLine* reopened = nullptr;
    ASSERT_EQ(acdbOpenObject(reopened, id, AcDb::kForRead), Acad::eOk);
    EXPECT_EQ(reopened->colorIndex(), 2);
    reopened->close();

    AcDbEntity* notEntity = nullptr;
    EXPECT_EQ(acdbOpenAcDbEntity(notEntity, walls, AcDb::kForRead), Acad::eNotAnEntity);
    EXPECT_EQ(notEntity, nullptr);
}

TEST_F(EntEntityTest, TheHostsDefaultAnswers)
{
    EntTestMark mark;
    AcDbGripDataPtrArray grips;
    EXPECT_EQ(mark.getGripPoints(grips, 1.0, 5, AcGeVector3d::kZAxis, 0), Acad::eNotImplemented);
    EXPECT_EQ(grips.length(), 0);
    AcGePoint3dArray points;
    AcDbIntArray modes;
    AcDbIntArray ids;
    EXPECT_EQ(mark.getGripPoints(points, modes, ids), Acad::eOk);
    EXPECT_EQ(points.length(), 0);
    EXPECT_EQ(mark.getStretchPoints(points), Acad::eOk);
    EXPECT_EQ(points.length(), 0);
    AcDbVoidPtrArray exploded;
    EXPECT_EQ(mark.explode(exploded), Acad::eNotApplicable);
    AcDbExtents extents;
    EXPECT_EQ(mark.getGeomExtents(extents), Acad::eInvalidExtents);
    EXPECT_EQ(mark.getOsnapPoints(AcDb::kOsModeEnd, 0, AcGePoint3d::kOrigin, AcGePoint3d::kOrigin,
                                  AcGeMatrix3d::kIdentity, points, ids),
              Acad::eNotImplemented);
    AcDbLine line;
    EXPECT_EQ(mark.intersectWith(&line, AcDb::kOnBothOperands, points), Acad::eNotImplemented);
    EXPECT_EQ(mark.intersectWith(&line, AcDb::kOnBothOperands, AcGePlane::kXYPlane, points), Acad::eNotImplemented);
    EXPECT_EQ(mark.highlight(), Acad::eOk);
    EXPECT_EQ(mark.unhighlight(), Acad::eOk);
    AcArray<Adesk::GsMarker> markers;
    EXPECT_EQ(mark.getGsMarkersAtSubentPath(AcDbFullSubentPath(), markers), Acad::eNotApplicable);
    int numPaths = -1;
    AcDbFullSubentPath* paths = nullptr;
    EXPECT_EQ(mark.getSubentPathsAtGsMarker(AcDb::kEdgeSubentType, 1, AcGePoint3d::kOrigin, AcGeMatrix3d::kIdentity,
                                            numPaths, paths),
              Acad::eNotApplicable);
    EXPECT_EQ(numPaths, 0);
    EXPECT_EQ(mark.subentPtr(AcDbFullSubentPath()), nullptr);
    EXPECT_EQ(mark.getClassID(nullptr), Acad::eNotApplicable);
    // Without a transform of its own an entity refuses to be transformed, or copied so.
    EntTestBare bare;
    EXPECT_EQ(bare.transformBy(AcGeMatrix3d::kIdentity), Acad::eNotApplicable);
    AcDbEntity* copy = &bare;
    EXPECT_EQ(bare.getTransformedCopy(AcGeMatrix3d::kIdentity, copy), Acad::eNotApplicable);
    EXPECT_EQ(copy, nullptr);
}

TEST_F(EntEntityTest, GripAndStretchMovesDefaultToATranslation)
{
    EntTestMark mark;
    const AcGeVector3d offset(2, 3, 0);
    AcDbIntArray indices;
    indices.append(0);
    ASSERT_EQ(mark.moveGripPointsAt(indices, offset), Acad::eOk);
    EXPECT_TRUE(getest::isNear(mark.point(), AcGePoint3d(3, 4, 0)));
    ASSERT_EQ(mark.moveStretchPointsAt(indices, offset), Acad::eOk);
    EXPECT_TRUE(getest::isNear(mark.point(), AcGePoint3d(5, 7, 0)));
    AcDbVoidPtrArray appData;
    ASSERT_EQ(mark.moveGripPointsAt(appData, -offset, 0), Acad::eOk);
    EXPECT_TRUE(getest::isNear(mark.point(), AcGePoint3d(3, 4, 0)));
}

TEST_F(EntEntityTest, TransformedCopiesLeaveTheOriginal)
{
    EntTestMark mark;
    mark.setColorIndex(4);
    AcDbEntity* copy = nullptr;
    ASSERT_EQ(mark.getTransformedCopy(AcGeMatrix3d::translation(AcGeVector3d(0, 0, 5)), copy), Acad::eOk);
    std::unique_ptr<AcDbEntity> owned(copy);
    ASSERT_NE(EntTestMark::cast(copy), nullptr);
    EXPECT_TRUE(getest::isNear(EntTestMark::cast(copy)->point(), AcGePoint3d(1, 1, 5)));
    EXPECT_EQ(copy->colorIndex(), 4);
    EXPECT_TRUE(getest::isNear(mark.point(), AcGePoint3d(1, 1, 0)));

    AcDbCircle circle(AcGePoint3d::kOrigin, AcGeVector3d::kZAxis, 1.0);
    AcGeMatrix3d stretch;
    stretch.entry[0][0] = 2.0;
    copy = &circle;
    EXPECT_EQ(circle.getTransformedCopy(stretch, copy), Acad::eCannotScaleNonUniformly);
    EXPECT_EQ(copy, nullptr);
}

TEST_F(EntEntityTest, AttributesComeFromTheEntitysProperties)
{
    const AcDbObjectId walls = m_wdb.addLayer(L"Walls");
    AcDbCircle circle(AcGePoint3d(1, 2, 0), AcGeVector3d::kZAxis, 3.0);
    circle.setLayer(walls);
    circle.setColorIndex(6);
    circle.setLinetype(m_wdb.db()->continuousLinetype());
    circle.setLineWeight(AcDb::kLnWt025);
    circle.setLinetypeScale(4.0);
    headless::RecordingWorldDraw rec;
    EXPECT_TRUE(rec.drawDrawable(&circle));
    ASSERT_EQ(rec.primitives().size(), 1u);
    const headless::RecordedPrimitive& prim = rec.primitives()[0];
    EXPECT_EQ(prim.kind, headless::PrimitiveKind::kCircle);
    EXPECT_TRUE(getest::isNear(prim.points[0], AcGePoint3d(1, 2, 0)));
    EXPECT_EQ(prim.numbers[0], 3.0);
    EXPECT_EQ(prim.traits.color, 6);
    EXPECT_EQ(prim.traits.layerId, walls);
    EXPECT_EQ(prim.traits.linetypeId, m_wdb.db()->continuousLinetype());
    EXPECT_EQ(prim.traits.lineWeight, AcDb::kLnWt025);
    EXPECT_EQ(prim.traits.linetypeScale, 4.0);
    EXPECT_EQ(prim.traits.selectionMarker, 0);

    // A true colour reaches the traits as such; an invisible entity draws nothing.
    AcCmColor orange;
    orange.setRGB(255, 128, 0);
    circle.setColor(orange);
    rec.clear();
    rec.drawDrawable(&circle);
    EXPECT_TRUE(rec.primitives().at(0).traits.trueColor.isByColor());
    EXPECT_EQ(rec.primitives().at(0).traits.trueColor.green(), 128);
    circle.setVisibility(AcDb::kInvisible);
    rec.clear();
    rec.drawDrawable(&circle);
    EXPECT_TRUE(rec.primitives().empty());
}

}  // namespace
