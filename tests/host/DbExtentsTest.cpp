// AcDbExtents: empty boxes, growing by points and boxes, expanding, transforming, and
// containment; AcDbFullSubentPath equality.
#include <gtest/gtest.h>

#include <sstream>

#include "AcDbExtents.h"
#include "AcDbFullSubentPath.h"
#include "dbmain.h"

namespace {

TEST(DbExtentsTest, NewBoxIsEmptyUntilAPointIsAdded)
{
    AcDbExtents box;
    EXPECT_TRUE(box.isEmpty());
    std::ostringstream os;
    os << box;
    EXPECT_EQ(os.str(), "(empty)");
    box.addPoint(AcGePoint3d(1, 2, 3));
    EXPECT_FALSE(box.isEmpty());
    EXPECT_EQ(box.minPoint(), AcGePoint3d(1, 2, 3));
    EXPECT_EQ(box.maxPoint(), AcGePoint3d(1, 2, 3));
}

TEST(DbExtentsTest, Growing)
{
    struct Row {
        const char* what;
        std::vector<AcGePoint3d> points;
        AcGePoint3d min;
        AcGePoint3d max;
    };
    const Row rows[] = {
        {"one point", {{1, 1, 1}}, {1, 1, 1}, {1, 1, 1}},
        {"diagonal", {{0, 0, 0}, {2, 3, 4}}, {0, 0, 0}, {2, 3, 4}},
        {"mixed corners", {{5, -1, 0}, {-2, 4, 1}, {0, 0, -3}}, {-2, -1, -3}, {5, 4, 1}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        AcDbExtents byPoints;
        for (const AcGePoint3d& pt : row.points)
            byPoints.addPoint(pt);
        EXPECT_EQ(byPoints.minPoint(), row.min);
        EXPECT_EQ(byPoints.maxPoint(), row.max);
        AcDbExtents byBoxes;
        byBoxes.addExt(AcDbExtents());  // an empty box adds nothing
        for (const AcGePoint3d& pt : row.points)
            byBoxes.addExt(AcDbExtents(pt, pt));
        EXPECT_EQ(byBoxes.minPoint(), row.min);
        EXPECT_EQ(byBoxes.maxPoint(), row.max);
        for (const AcGePoint3d& pt : row.points)
            EXPECT_TRUE(byPoints.contains(pt));
    }
}

TEST(DbExtentsTest, SetRefusesAnInvertedBox)
{
    AcDbExtents box(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 1));
    EXPECT_EQ(box.set(AcGePoint3d(2, 0, 0), AcGePoint3d(1, 1, 1)), Acad::eInvalidExtents);
    EXPECT_EQ(box.maxPoint(), AcGePoint3d(1, 1, 1));
}

TEST(DbExtentsTest, ExpandMovesTheSideTheVectorPointsTo)
{
    AcDbExtents box(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 1));
    box.expandBy(AcGeVector3d(2, -3, 0));
    EXPECT_EQ(box.minPoint(), AcGePoint3d(0, -3, 0));
    EXPECT_EQ(box.maxPoint(), AcGePoint3d(3, 1, 1));
}

TEST(DbExtentsTest, TransformKeepsTheBoxAroundTheCorners)
{
    AcDbExtents box(AcGePoint3d(0, 0, 0), AcGePoint3d(2, 1, 0));
    box.transformBy(AcGeMatrix3d::translation(AcGeVector3d(10, 0, 5)));
    EXPECT_EQ(box.minPoint(), AcGePoint3d(10, 0, 5));
    EXPECT_EQ(box.maxPoint(), AcGePoint3d(12, 1, 5));
    AcDbExtents empty;
    empty.transformBy(AcGeMatrix3d::translation(AcGeVector3d(1, 1, 1)));
    EXPECT_TRUE(empty.isEmpty());
}

TEST(DbExtentsTest, ContainsWithinTolerance)
{
    const AcDbExtents box(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 1));
    EXPECT_TRUE(box.contains(AcGePoint3d(1 + 1e-10, 0.5, 0.5)));
    EXPECT_FALSE(box.contains(AcGePoint3d(1.01, 0.5, 0.5)));
    EXPECT_TRUE(box.contains(AcGePoint3d(1.01, 0.5, 0.5), 0.02));
}

TEST(DbSubentPathTest, PathsCompareByIdsAndSubentity)
{
    AcDbDatabase db;
    const AcDbFullSubentPath a(db.layerZero(), AcDb::kEdgeSubentType, 3);
    const AcDbFullSubentPath b(db.layerZero(), AcDb::kEdgeSubentType, 3);
    const AcDbFullSubentPath c(db.layerZero(), AcDb::kVertexSubentType, 3);
    EXPECT_TRUE(a == b);
    EXPECT_TRUE(a != c);
    EXPECT_TRUE(kNullSubent == AcDbFullSubentPath());
    EXPECT_TRUE(a != kNullSubent);
    std::ostringstream os;
    os << a << " / " << kNullSubent;
    EXPECT_EQ(os.str(), "(B) edge 3 / null 0");
}

}  // namespace
