// What the layout lines' suites share.
#include "LineTestSupport.h"

#include <algorithm>
#include <memory>

#include "ModuleTestSupport.h"
#include "Qx/LinetypeUtil.h"
#include "dbpl.h"
#include "dbsymtb.h"

namespace linetest {

std::vector<AcGePoint3d> Vertices(const AcDbPolyline& polyline)
{
    std::vector<AcGePoint3d> points;
    for (unsigned int i = 0; i < polyline.numVerts(); ++i) {
        AcGePoint2d p;
        EXPECT_EQ(polyline.getPointAt(i, p), Acad::eOk);
        points.emplace_back(p.x, p.y, 0.0);
    }
    return points;
}

std::vector<AcGePoint3d> TakeVertices(AcDbPolyline* polyline)
{
    std::unique_ptr<AcDbPolyline> owned(polyline);
    return Vertices(*owned);
}

::testing::AssertionResult SamePoints(const std::vector<AcGePoint3d>& actual, const std::vector<AcGePoint3d>& expected,
                                      double tol)
{
    if (actual.size() != expected.size())
        return ::testing::AssertionFailure() << actual.size() << " points against " << expected.size();
    for (std::size_t i = 0; i < actual.size(); ++i)
        if (actual[i].distanceTo(expected[i]) > tol)
            return ::testing::AssertionFailure() << "point " << i << ": " << actual[i] << " instead of " << expected[i];
    return ::testing::AssertionSuccess();
}

::testing::AssertionResult SamePointSet(std::vector<AcGePoint3d> actual, const std::vector<AcGePoint3d>& expected)
{
    if (actual.size() != expected.size())
        return ::testing::AssertionFailure() << actual.size() << " points against " << expected.size();
    for (const AcGePoint3d& e : expected) {
        auto found =
            std::find_if(actual.begin(), actual.end(), [&](const AcGePoint3d& a) { return a.distanceTo(e) < 1e-9; });
        if (found == actual.end())
            return ::testing::AssertionFailure() << e << " is missing";
        actual.erase(found);
    }
    return ::testing::AssertionSuccess();
}

AcDbObjectId AddLayer(AcDbDatabase* db, const ACHAR* name)
{
    AcDbLayerTable* layers = nullptr;
    EXPECT_EQ(db->getLayerTable(layers, AcDb::kForWrite), Acad::eOk);
    auto* record = new AcDbLayerTableRecord();
    record->setName(name);
    AcDbObjectId id;
    EXPECT_EQ(layers->add(id, record), Acad::eOk);
    record->close();
    layers->close();
    return id;
}

AcDbObjectId LoadDashed(AcDbDatabase* db)
{
    EXPECT_EQ(Qx::LinetypeUtil::LoadSystemLinetype(L"DASHED", db), Acad::eOk);
    return Qx::LinetypeUtil::GetLinetype(L"DASHED", db);
}

}  // namespace linetest
