// What the division line's suites share: points in the plane, a placed line, and the
// vertices and length of the polylines the line answers with.
#pragma once

#include <algorithm>
#include <memory>
#include <vector>

#include "ModuleTestSupport.h"
#include "dbpl.h"
#include "lines/AecDivisionLine.h"

namespace linetest {

inline AcGePoint3d P(double x, double y)
{
    return AcGePoint3d(x, y, 0.0);
}

// The bulge first, so that a label placed by the points lands on the arc.
inline std::unique_ptr<AecDivisionLine> MakeLine(const AcGePoint3d& start, const AcGePoint3d& end, double bulge = 0.0)
{
    std::unique_ptr<AecDivisionLine> line(new AecDivisionLine());
    EXPECT_EQ(line->SetBulge(bulge), Acad::eOk);
    EXPECT_EQ(line->SetPoints(start, end), Acad::eOk);
    return line;
}

inline std::vector<AcGePoint3d> Vertices(const AcDbPolyline& polyline)
{
    std::vector<AcGePoint3d> points;
    for (unsigned int i = 0; i < polyline.numVerts(); ++i) {
        AcGePoint2d p;
        EXPECT_EQ(polyline.getPointAt(i, p), Acad::eOk);
        points.emplace_back(p.x, p.y, 0.0);
    }
    return points;
}

inline std::vector<AcGePoint3d> BoundaryCorners(const AecDivisionLine& line)
{
    std::unique_ptr<AcDbPolyline> boundary(line.CreateBoundaryPolyline());
    return Vertices(*boundary);
}

inline double Length(const AcDbCurve& curve)
{
    double end = 0;
    double length = -1;
    EXPECT_EQ(curve.getEndParam(end), Acad::eOk);
    EXPECT_EQ(curve.getDistAtParam(end, length), Acad::eOk);
    return length;
}

// The same corners in the same order, within tol.
inline ::testing::AssertionResult SameCorners(const std::vector<AcGePoint3d>& actual,
                                              const std::vector<AcGePoint3d>& expected, double tol = 1e-9)
{
    if (actual.size() != expected.size())
        return ::testing::AssertionFailure() << actual.size() << " corners against " << expected.size();
    for (std::size_t i = 0; i < actual.size(); ++i)
        if (actual[i].distanceTo(expected[i]) > tol)
            return ::testing::AssertionFailure()
                << "corner " << i << ": " << actual[i] << " instead of " << expected[i];
    return ::testing::AssertionSuccess();
}

// The same corners in any order, within tol.
inline ::testing::AssertionResult SameCornerSet(std::vector<AcGePoint3d> actual,
                                                const std::vector<AcGePoint3d>& expected, double tol = 1e-9)
{
    if (actual.size() != expected.size())
        return ::testing::AssertionFailure() << actual.size() << " corners against " << expected.size();
    for (const AcGePoint3d& e : expected) {
        auto found =
            std::find_if(actual.begin(), actual.end(), [&](const AcGePoint3d& a) { return a.distanceTo(e) <= tol; });
        if (found == actual.end())
            return ::testing::AssertionFailure() << e << " is not a corner";
        actual.erase(found);
    }
    return ::testing::AssertionSuccess();
}

}  // namespace linetest
