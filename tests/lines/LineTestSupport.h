// What the layout lines' suites share: points at Z = 0 in short, the vertices of a
// polyline, point lists compared with the coordinates in the message, and the layers and
// linetype a styled draw is checked against.
#pragma once

#include <gtest/gtest.h>

#include <vector>

#include "dbmain.h"
#include "gepnt3d.h"

class AcDbPolyline;

namespace linetest {

inline AcGePoint3d P(double x, double y)
{
    return AcGePoint3d(x, y, 0.0);
}

std::vector<AcGePoint3d> Vertices(const AcDbPolyline& polyline);
// The vertices of a polyline the caller was handed, which is then deleted.
std::vector<AcGePoint3d> TakeVertices(AcDbPolyline* polyline);

// The same points in the same order, each within tol.
::testing::AssertionResult SamePoints(const std::vector<AcGePoint3d>& actual, const std::vector<AcGePoint3d>& expected,
                                      double tol = 1e-9);
// The same points in any order.
::testing::AssertionResult SamePointSet(std::vector<AcGePoint3d> actual, const std::vector<AcGePoint3d>& expected);

// A new layer of db, by name.
AcDbObjectId AddLayer(AcDbDatabase* db, const ACHAR* name);
// "DASHED" loaded into db from the host's standard linetype file.
AcDbObjectId LoadDashed(AcDbDatabase* db);

}  // namespace linetest
