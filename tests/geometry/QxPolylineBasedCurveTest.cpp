// The polyline-based curve: a subclass over a polyline answers every curve question as
// that polyline does, a subclass without one gets the documented null answers, and the
// modifying operations run between the two hooks.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "ModuleTestSupport.h"
#include "dbents.h"
#include "geometry/QxPolylineBasedCurve.h"
#include "headless/CommandLine.h"
#include "headless/HostHeap.h"

namespace {

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

// A curve over a polyline it owns; it records the hooks it is given.
class PolylineCurve : public QxPolylineBasedCurve {
public:
    explicit PolylineCurve(bool withPolyline = true)
    {
        if (withPolyline) {
            m_polyline = std::make_unique<AcDbPolyline>();
            m_polyline->addVertexAt(0, AcGePoint2d(0, 0), 0.0);
            m_polyline->addVertexAt(1, AcGePoint2d(100, 0), 0.5);
            m_polyline->addVertexAt(2, AcGePoint2d(100, 100), 0.0);
            m_polyline->addVertexAt(3, AcGePoint2d(0, 150), 0.0);
        }
    }

    const AcDbPolyline* GetCurveBaseConstPolyline() const override { return m_polyline.get(); }
    const AcDbPolyline& Reference() const { return *m_polyline; }

    std::vector<std::string> hooks;

protected:
    AcDbPolyline* GetCurveBasePolyline() override { return m_polyline.get(); }
    void OnBeginModifyPolyline() override
    {
        QxPolylineBasedCurve::OnBeginModifyPolyline();
        hooks.push_back("begin " + Describe());
    }
    void OnEndModifyPolyline() override
    {
        QxPolylineBasedCurve::OnEndModifyPolyline();
        hooks.push_back("end " + Describe());
    }

private:
    std::string Describe() const
    {
        if (!m_polyline)
            return "none";
        AcGePoint3d start;
        m_polyline->getStartPoint(start);
        return std::to_string(static_cast<int>(start.x)) + "," + std::to_string(static_cast<int>(start.y));
    }

    std::unique_ptr<AcDbPolyline> m_polyline;
};

TEST(QxPolylineBasedCurveTest, CurveQuestionsAreThePolylinesAnswers)
{
    PolylineCurve curve;
    const AcDbPolyline& reference = curve.Reference();

    double a = 0;
    double b = 0;
    EXPECT_EQ(curve.getEndParam(a), reference.getEndParam(b));
    EXPECT_EQ(a, b);
    for (double param : {0.0, 0.25, 1.0, 1.5, 2.75, 3.0}) {
        SCOPED_TRACE(param);
        AcGePoint3d p;
        AcGePoint3d q;
        EXPECT_EQ(curve.getPointAtParam(param, p), reference.getPointAtParam(param, q));
        EXPECT_EQ(p, q);
        double d1 = 0;
        double d2 = 0;
        EXPECT_EQ(curve.getDistAtParam(param, d1), reference.getDistAtParam(param, d2));
        EXPECT_EQ(d1, d2);
        AcGeVector3d v1;
        AcGeVector3d v2;
        EXPECT_EQ(curve.getFirstDeriv(param, v1), reference.getFirstDeriv(param, v2));
        EXPECT_EQ(v1, v2);
    }
    const AcGePoint3d probe(130, 40, 0);
    AcGePoint3d c1;
    AcGePoint3d c2;
    EXPECT_EQ(curve.getClosestPointTo(probe, c1), reference.getClosestPointTo(probe, c2));
    EXPECT_EQ(c1, c2);
    double area1 = 0;
    double area2 = 0;
    EXPECT_EQ(curve.getArea(area1), reference.getArea(area2));
    EXPECT_EQ(area1, area2);

    AcDbExtents e1;
    AcDbExtents e2;
    EXPECT_EQ(curve.getGeomExtents(e1), reference.getGeomExtents(e2));
    EXPECT_EQ(e1.minPoint(), e2.minPoint());
    EXPECT_EQ(e1.maxPoint(), e2.maxPoint());

    AcGePoint3dArray s1;
    AcGePoint3dArray s2;
    AcDbIntArray g1;
    AcDbIntArray g2;
    EXPECT_EQ(curve.getOsnapPoints(AcDb::kOsModeMid, 0, probe, probe, AcGeMatrix3d::kIdentity, s1, g1),
              reference.getOsnapPoints(AcDb::kOsModeMid, 0, probe, probe, AcGeMatrix3d::kIdentity, s2, g2));
    ASSERT_EQ(s1.length(), s2.length());
    for (int i = 0; i < s1.length(); ++i)
        EXPECT_EQ(s1[i], s2[i]);

    AcDbLine crossing(AcGePoint3d(50, -10, 0), AcGePoint3d(50, 200, 0));
    AcGePoint3dArray i1;
    AcGePoint3dArray i2;
    EXPECT_EQ(curve.intersectWith(&crossing, AcDb::kOnBothOperands, i1),
              reference.intersectWith(&crossing, AcDb::kOnBothOperands, i2));
    EXPECT_EQ(i1.length(), i2.length());
    EXPECT_GT(i1.length(), 0);
}

TEST(QxPolylineBasedCurveTest, LineEntitiesAnswerAsNonPlanar)
{
    PolylineCurve curve;
    EXPECT_FALSE(curve.isPlanar());
    AcGePlane plane;
    AcDb::Planarity planarity = AcDb::kPlanar;
    EXPECT_EQ(curve.getPlane(plane, planarity), Acad::eNotApplicable);
}

TEST(QxPolylineBasedCurveTest, WithoutAPolylineTheDocumentedAnswersCome)
{
    PolylineCurve curve(false);
    const AcGePoint3d pick(0, 0, 0);
    AcGePoint3dArray snaps;
    AcDbIntArray ids;
    {
        headless::CommandLineCapture capture;
        EXPECT_EQ(curve.getOsnapPoints(AcDb::kOsModeEnd, 0, pick, pick, AcGeMatrix3d::kIdentity, snaps, ids),
                  Acad::eNotImplementedYet);
        EXPECT_TRUE(capture.text().empty());
    }
    {
        headless::CommandLineCapture capture;
        EXPECT_EQ(curve.getOsnapPoints(AcDb::kOsModeEnd, 0, pick, pick, AcGeMatrix3d::kIdentity, snaps, ids,
                                       AcGeMatrix3d::kIdentity),
                  Acad::eNotImplementedYet);
        EXPECT_EQ(capture.text(),
                  L"\n警告: QxPolylineBasedCurve::subGetOsnapPoints() - GetCurveBaseConstPolyline() 返回了空指针\n");
    }
    AcDbExtents extents;
    EXPECT_EQ(curve.getGeomExtents(extents), Acad::eInvalidInput);
    AcDbLine other(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 1, 0));
    AcGePoint3dArray points;
    EXPECT_EQ(curve.intersectWith(&other, AcDb::kOnBothOperands, points), Acad::eNotImplementedYet);
    EXPECT_FALSE(curve.isClosed());
}

TEST(QxPolylineBasedCurveTest, ModifyingOperationsRunBetweenTheHooks)
{
    PolylineCurve curve;
    ASSERT_EQ(curve.reverseCurve(), Acad::eOk);
    const std::vector<std::string> expected = {"begin 0,0", "end 0,150"};
    EXPECT_EQ(curve.hooks, expected);
    AcGePoint3d start;
    curve.getStartPoint(start);
    EXPECT_EQ(start, AcGePoint3d(0, 150, 0));

    curve.hooks.clear();
    // The first segment now runs from (0,150) to (100,100); its extension passes (-100,200).
    ASSERT_EQ(curve.extend(Adesk::kTrue, AcGePoint3d(-100, 200, 0)), Acad::eOk);
    ASSERT_EQ(curve.hooks.size(), 2u);
    EXPECT_EQ(curve.hooks[1], "end -100,200");
}

TEST(QxPolylineBasedCurveTest, LivesOnTheHostHeap)
{
    // A curve without a polyline allocates nothing on the host heap but itself.
    const headless::HostHeapCounts before = headless::hostHeapCounts();
    auto* curve = new PolylineCurve(false);
    const headless::HostHeapCounts made = headless::hostHeapCounts();
    EXPECT_EQ(made.allocations - before.allocations, 1u);
    delete curve;
    const headless::HostHeapCounts after = headless::hostHeapCounts();
    EXPECT_EQ(after.frees - made.frees, 1u);
    EXPECT_EQ(after.allocations, made.allocations);
}

}  // namespace
