// The geometry library's curves against closed-form answers: segments, arcs from three
// points, from a bulge (both readings of the bulge flag) and from a centre, composites of
// them, the entity hierarchy, evaluation, closest points, lengths, areas, boxes, splits,
// reversal and transforms.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <sstream>

#include "GeTestSupport.h"
#include "gearc2d.h"
#include "gearc3d.h"
#include "gecomp2d.h"
#include "gecomp3d.h"
#include "geline2d.h"
#include "geline3d.h"
#include "gelnsg2d.h"
#include "gelnsg3d.h"
#include "geplane.h"
#include "headless/HostError.h"

namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr double kTol = 1e-9;

using getest::isNear;

template <class T>
std::string printed(const T& value)
{
    std::ostringstream os;
    os << value;
    return os.str();
}

std::unique_ptr<AcGeCompositeCurve3d> compositeOfOne()
{
    const AcGeLineSeg3d seg(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0));
    AcGeVoidPointerArray pieces;
    pieces.append(const_cast<AcGeLineSeg3d*>(&seg));
    return std::make_unique<AcGeCompositeCurve3d>(pieces);
}

TEST(GeCurveTest, EntitiesKnowTheirKindsAndCopyThemselves)
{
    struct Row {
        const char* name;
        std::unique_ptr<AcGeEntity3d> entity;
        AcGe::EntityId type;
        std::vector<AcGe::EntityId> kinds;
        std::vector<AcGe::EntityId> notKinds;
    };
    Row rows[] = {
        {"line", std::make_unique<AcGeLine3d>(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0)), AcGe::kLine3d,
         {AcGe::kLine3d, AcGe::kLinearEnt3d, AcGe::kCurve3d, AcGe::kEntity3d}, {AcGe::kLineSeg3d, AcGe::kSurface}},
        {"segment", std::make_unique<AcGeLineSeg3d>(AcGePoint3d(0, 0, 0), AcGePoint3d(1, 0, 0)), AcGe::kLineSeg3d,
         {AcGe::kLineSeg3d, AcGe::kLinearEnt3d, AcGe::kCurve3d}, {AcGe::kLine3d, AcGe::kCircArc3d}},
        {"arc", std::make_unique<AcGeCircArc3d>(), AcGe::kCircArc3d, {AcGe::kCircArc3d, AcGe::kCurve3d},
         {AcGe::kLinearEnt3d}},
        {"composite", compositeOfOne(), AcGe::kCompositeCrv3d,
         {AcGe::kCompositeCrv3d, AcGe::kCurve3d}, {AcGe::kCircArc3d}},
        {"plane", std::make_unique<AcGePlane>(), AcGe::kPlane, {AcGe::kPlane, AcGe::kPlanarEnt, AcGe::kSurface,
                                                                AcGe::kEntity3d}, {AcGe::kCurve3d}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(row.entity->type(), row.type);
        for (AcGe::EntityId kind : row.kinds)
            EXPECT_TRUE(row.entity->isKindOf(kind)) << kind;
        for (AcGe::EntityId kind : row.notKinds)
            EXPECT_FALSE(row.entity->isKindOf(kind)) << kind;
        std::unique_ptr<AcGeEntity3d> copied(row.entity->copy());
        EXPECT_EQ(copied->type(), row.type);
        EXPECT_TRUE(copied->isEqualTo(*row.entity));
        copied->translateBy(AcGeVector3d(0, 0, 1));
        EXPECT_FALSE(copied->isEqualTo(*row.entity)) << "the copy is independent";
        EXPECT_EQ(printed(*row.entity).substr(0, 4), "AcGe");
    }
}

TEST(GeCurveTest, LineSegmentsRunFromZeroToOne)
{
    const AcGeLineSeg2d seg(AcGePoint2d(1, 1), AcGePoint2d(4, 5));
    AcGeInterval intrvl;
    AcGePoint2d start;
    AcGePoint2d end;
    seg.getInterval(intrvl, start, end);
    EXPECT_EQ(intrvl.lowerBound(), 0.0);
    EXPECT_EQ(intrvl.upperBound(), 1.0);
    EXPECT_TRUE(isNear(end, AcGePoint2d(4, 5)));
    EXPECT_NEAR(seg.length(), 5.0, kTol);
    EXPECT_NEAR(seg.length(0.2, 0.6), 2.0, kTol);
    EXPECT_NEAR(seg.paramAtLength(0.2, 2.0), 0.6, kTol);
    EXPECT_TRUE(isNear(seg.midPoint(), AcGePoint2d(2.5, 3)));

    struct Row {
        const char* name;
        AcGePoint2d given;
        AcGePoint2d nearest;
        double param;
    };
    const Row rows[] = {
        {"beside", {2.5 + 4, 3 - 3}, {2.5, 3}, 0.5},
        {"before the start", {-5, -5}, {1, 1}, 0.0},
        {"past the end", {10, 10}, {4, 5}, 1.0},
    };
    for (const Row& row : rows) {
        EXPECT_TRUE(isNear(seg.closestPointTo(row.given), row.nearest)) << row.name;
        EXPECT_NEAR(seg.paramOf(row.given), row.param, kTol) << row.name;
    }
    double param = -1.0;
    EXPECT_TRUE(seg.isOn(AcGePoint2d(2.5, 3), param));
    EXPECT_NEAR(param, 0.5, kTol);
    EXPECT_FALSE(seg.isOn(AcGePoint2d(2.5, 3.1), param));

    AcGeLineSeg2d reversed = seg;
    reversed.reverseParam();
    EXPECT_TRUE(isNear(reversed.startPoint(), AcGePoint2d(4, 5)));
    AcGeCurve2d* first = nullptr;
    AcGeCurve2d* second = nullptr;
    seg.getSplitCurves(0.25, first, second);
    std::unique_ptr<AcGeCurve2d> a(first);
    std::unique_ptr<AcGeCurve2d> b(second);
    ASSERT_TRUE(a && b);
    EXPECT_NEAR(a->length(0, 1) + b->length(0, 1), 5.0, kTol);

    AcGePoint2d hit;
    EXPECT_TRUE(seg.intersectWith(AcGeLineSeg2d(AcGePoint2d(1, 5), AcGePoint2d(4, 1)), hit));
    EXPECT_TRUE(isNear(hit, AcGePoint2d(2.5, 3)));
    EXPECT_FALSE(seg.intersectWith(AcGeLineSeg2d(AcGePoint2d(5, 5), AcGePoint2d(8, 1)), hit)) << "lines meet past the end";
    EXPECT_TRUE(AcGeLine2d(AcGePoint2d(5, 5), AcGePoint2d(8, 1)).intersectWith(AcGeLine2d(AcGePoint2d(1, 1), AcGePoint2d(4, 5)), hit));
}

// The arc from (2, 0) through (0, 2) to (-2, 0): a counter-clockwise half circle of radius 2.
TEST(GeCurveTest, ArcsFromThreePointsBulgesAndCentres)
{
    struct Row {
        const char* name;
        AcGeCircArc2d arc;
    };
    const Row rows[] = {
        {"three points", AcGeCircArc2d(AcGePoint2d(2, 0), AcGePoint2d(0, 2), AcGePoint2d(-2, 0))},
        {"bulge as tan", AcGeCircArc2d(AcGePoint2d(2, 0), AcGePoint2d(-2, 0), 1.0, Adesk::kFalse)},
        {"bulge as sagitta", AcGeCircArc2d(AcGePoint2d(2, 0), AcGePoint2d(-2, 0), 2.0, Adesk::kTrue)},
        {"centre and angles", AcGeCircArc2d(AcGePoint2d(0, 0), 2.0, 0.0, kPi)},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const AcGeCircArc2d& arc = row.arc;
        EXPECT_TRUE(isNear(arc.center(), AcGePoint2d(0, 0)));
        EXPECT_NEAR(arc.radius(), 2.0, kTol);
        EXPECT_TRUE(isNear(arc.startPoint(), AcGePoint2d(2, 0)));
        EXPECT_TRUE(isNear(arc.endPoint(), AcGePoint2d(-2, 0)));
        AcGeInterval intrvl;
        arc.getInterval(intrvl);
        EXPECT_NEAR(arc.length(intrvl.lowerBound(), intrvl.upperBound()), 2.0 * kPi, kTol);
        EXPECT_TRUE(isNear(arc.evalPoint((intrvl.lowerBound() + intrvl.upperBound()) / 2), AcGePoint2d(0, 2)));
        double area = 0.0;
        ASSERT_TRUE(arc.area(intrvl.lowerBound(), intrvl.upperBound(), area));
        EXPECT_NEAR(area, 2.0 * kPi, kTol) << "the half disc, counter-clockwise";
        EXPECT_TRUE(isNear(arc.closestPointTo(AcGePoint2d(0, 10)), AcGePoint2d(0, 2)));
        EXPECT_TRUE(isNear(arc.closestPointTo(AcGePoint2d(1, -5)), AcGePoint2d(2, 0))) << "below: the nearer end";
        AcGePoint2d lo;
        AcGePoint2d hi;
        arc.boundBlock().getMinMaxPoints(lo, hi);
        EXPECT_TRUE(isNear(lo, AcGePoint2d(-2, 0)));
        EXPECT_TRUE(isNear(hi, AcGePoint2d(2, 2))) << "the top quadrant point is inside the sweep";
    }
    // A negative bulge runs clockwise: the lower half circle, area negative.
    const AcGeCircArc2d lower(AcGePoint2d(2, 0), AcGePoint2d(-2, 0), -1.0, Adesk::kFalse);
    EXPECT_TRUE(lower.isClockWise());
    AcGeInterval intrvl;
    lower.getInterval(intrvl);
    EXPECT_TRUE(isNear(lower.evalPoint((intrvl.lowerBound() + intrvl.upperBound()) / 2), AcGePoint2d(0, -2)));
    double area = 0.0;
    lower.area(intrvl.lowerBound(), intrvl.upperBound(), area);
    EXPECT_NEAR(area, -2.0 * kPi, kTol);
    // A small bulge read as a sagitta of 0.5 over a chord of 4: b = 0.25.
    const AcGeCircArc2d shallow(AcGePoint2d(0, 0), AcGePoint2d(4, 0), 0.5);
    shallow.getInterval(intrvl);
    EXPECT_NEAR(shallow.evalPoint((intrvl.lowerBound() + intrvl.upperBound()) / 2).y, -0.5, kTol);
    EXPECT_NEAR(std::tan((intrvl.upperBound() - intrvl.lowerBound()) / 4), 0.25, kTol);

    EXPECT_THROW(AcGeCircArc2d(AcGePoint2d(0, 0), AcGePoint2d(1, 1), AcGePoint2d(2, 2)), headless::HostError);
    EXPECT_THROW(AcGeCircArc2d(AcGePoint2d(1, 1), AcGePoint2d(1, 1), 0.5), headless::HostError);
    EXPECT_THROW(AcGeCircArc2d(AcGePoint2d(0, 0), AcGePoint2d(1, 1), 0.0), headless::HostError);
}

TEST(GeCurveTest, ArcIntersectionsTransformsAndDerivatives)
{
    const AcGeCircArc2d arc(AcGePoint2d(0, 0), 2.0, 0.0, kPi);
    int count = 0;
    AcGePoint2d p1;
    AcGePoint2d p2;
    EXPECT_TRUE(arc.intersectWith(AcGeLine2d(AcGePoint2d(-5, 1), AcGeVector2d(1, 0)), count, p1, p2));
    EXPECT_EQ(count, 2);
    EXPECT_FALSE(arc.intersectWith(AcGeLine2d(AcGePoint2d(-5, -1), AcGeVector2d(1, 0)), count, p1, p2))
        << "the lower half of the circle is not part of the arc";
    const AcGeCircArc2d other(AcGePoint2d(2, 0), 2.0);
    EXPECT_TRUE(arc.intersectWith(other, count, p1, p2));
    EXPECT_EQ(count, 1);
    EXPECT_TRUE(isNear(p1, AcGePoint2d(1, std::sqrt(3.0))));

    AcGeVector2dArray derivs;
    const AcGePoint2d top = arc.evalPoint(kPi / 2, 2, derivs);
    EXPECT_TRUE(isNear(top, AcGePoint2d(0, 2)));
    EXPECT_TRUE(isNear(derivs[0], AcGeVector2d(-2, 0)));
    EXPECT_TRUE(isNear(derivs[1], AcGeVector2d(0, -2)));

    AcGeCircArc2d mirrored = arc;
    mirrored.mirror(AcGeLine2d::kXAxis);
    EXPECT_TRUE(mirrored.isClockWise());
    EXPECT_TRUE(isNear(mirrored.evalPoint(kPi / 2), AcGePoint2d(0, -2)));
    AcGeCircArc2d scaled = arc;
    scaled.scaleBy(3.0, AcGePoint2d(2, 0));
    EXPECT_NEAR(scaled.radius(), 6.0, kTol);
    EXPECT_TRUE(isNear(scaled.startPoint(), AcGePoint2d(2, 0)));
    AcGeMatrix2d stretch;
    stretch.entry[0][0] = 2.0;
    AcGeCircArc2d unchanged = arc;
    EXPECT_THROW(unchanged.transformBy(stretch), headless::HostError);
    EXPECT_TRUE(unchanged.isEqualTo(arc)) << "a refused transform changes nothing";

    AcGeCircArc2d reversed = arc;
    reversed.reverseParam();
    EXPECT_TRUE(isNear(reversed.startPoint(), arc.endPoint()));
    EXPECT_TRUE(isNear(reversed.endPoint(), arc.startPoint()));
    EXPECT_TRUE(isNear(reversed.evalPoint(kPi / 2), AcGePoint2d(0, 2)));
}

TEST(GeCurveTest, ArcsInSpace)
{
    // A quarter circle in the plane x = 1 about the x axis, from (1, 2, 0) to (1, 0, 2).
    const AcGeCircArc3d arc(AcGePoint3d(1, 2, 0), AcGePoint3d(1, std::sqrt(2.0), std::sqrt(2.0)), AcGePoint3d(1, 0, 2));
    EXPECT_TRUE(isNear(arc.center(), AcGePoint3d(1, 0, 0)));
    EXPECT_TRUE(isNear(arc.normal(), AcGeVector3d(1, 0, 0)));
    EXPECT_NEAR(arc.radius(), 2.0, kTol);
    EXPECT_NEAR(arc.endAng() - arc.startAng(), kPi / 2, kTol);
    AcGePlane plane;
    ASSERT_TRUE(arc.isPlanar(plane));
    EXPECT_TRUE(plane.isOn(AcGePoint3d(1, 5, -3)));
    AcGePoint3d lo;
    AcGePoint3d hi;
    arc.boundBlock().getMinMaxPoints(lo, hi);
    EXPECT_TRUE(isNear(lo, AcGePoint3d(1, 0, 0)));
    EXPECT_TRUE(isNear(hi, AcGePoint3d(1, 2, 2)));
    EXPECT_TRUE(isNear(arc.closestPointTo(AcGePoint3d(7, 5, 5)), AcGePoint3d(1, std::sqrt(2.0), std::sqrt(2.0))));

    AcGeCircArc3d mirrored = arc;
    mirrored.mirror(AcGePlane(AcGePoint3d(0, 0, 0), AcGeVector3d(1, 0, 0)));
    EXPECT_TRUE(isNear(mirrored.startPoint(), AcGePoint3d(-1, 2, 0)));
    EXPECT_TRUE(isNear(mirrored.endPoint(), AcGePoint3d(-1, 0, 2)));
    EXPECT_TRUE(isNear(mirrored.normal(), AcGeVector3d(1, 0, 0))) << "the normal turns over with the mirror";

    int count = 0;
    AcGePoint3d p1;
    AcGePoint3d p2;
    EXPECT_FALSE(arc.intersectWith(AcGeLine3d(AcGePoint3d(-4, 1, 1), AcGeVector3d(1, 0, 0)), count, p1, p2));
    EXPECT_EQ(count, 0) << "the line pierces the plane inside the circle";
    EXPECT_TRUE(arc.intersectWith(AcGeLine3d(AcGePoint3d(1, 0, 0), AcGeVector3d(0, 1, 1)), count, p1, p2));
    EXPECT_EQ(count, 1);
    EXPECT_TRUE(isNear(p1, AcGePoint3d(1, std::sqrt(2.0), std::sqrt(2.0))));
    const AcGeCircArc3d across(AcGePoint3d(1, 0, 0), AcGeVector3d(0, 0, 1), 2.0);
    EXPECT_TRUE(arc.intersectWith(across, count, p1, p2));
    EXPECT_EQ(count, 1);
    EXPECT_TRUE(isNear(p1, AcGePoint3d(1, 2, 0)));
}

// A slot: a line, a half circle, a line back and a half circle home.
AcGeCompositeCurve2d slot()
{
    const AcGeLineSeg2d bottom(AcGePoint2d(0, 0), AcGePoint2d(4, 0));
    const AcGeCircArc2d right(AcGePoint2d(4, 0), AcGePoint2d(4, 2), 1.0, Adesk::kFalse);
    const AcGeLineSeg2d top(AcGePoint2d(4, 2), AcGePoint2d(0, 2));
    const AcGeCircArc2d left(AcGePoint2d(0, 2), AcGePoint2d(0, 0), 1.0, Adesk::kFalse);
    AcGeVoidPointerArray pieces;
    pieces.append(const_cast<AcGeLineSeg2d*>(&bottom));
    pieces.append(const_cast<AcGeCircArc2d*>(&right));
    pieces.append(const_cast<AcGeLineSeg2d*>(&top));
    pieces.append(const_cast<AcGeCircArc2d*>(&left));
    return AcGeCompositeCurve2d(pieces);
}

TEST(GeCurveTest, CompositesLayTheirPiecesEndToEnd)
{
    const AcGeCompositeCurve2d curve = slot();
    AcGeInterval intrvl;
    curve.getInterval(intrvl);
    EXPECT_NEAR(intrvl.upperBound(), 2.0 + 2.0 * kPi, kTol) << "segments take 1, arcs their sweep";
    EXPECT_TRUE(curve.isClosed());
    EXPECT_NEAR(curve.length(0, intrvl.upperBound()), 8.0 + 2.0 * kPi, kTol);
    double area = 0.0;
    ASSERT_TRUE(curve.area(0, intrvl.upperBound(), area));
    EXPECT_NEAR(area, 8.0 + kPi, kTol);
    int piece = -1;
    const double local = curve.globalToLocalParam(1.0 + kPi / 2, piece);
    EXPECT_EQ(piece, 1);
    EXPECT_NEAR(curve.localToGlobalParam(local, piece), 1.0 + kPi / 2, kTol);
    EXPECT_TRUE(isNear(curve.evalPoint(1.0 + kPi / 2), AcGePoint2d(5, 1)));
    EXPECT_NEAR(curve.paramAtLength(0.0, 4.0 + kPi), 1.0 + kPi, kTol);
    EXPECT_NEAR(curve.paramOf(AcGePoint2d(-3, 1)), 2.0 + 1.5 * kPi, kTol);
    AcGePoint2d lo;
    AcGePoint2d hi;
    curve.boundBlock().getMinMaxPoints(lo, hi);
    EXPECT_TRUE(isNear(lo, AcGePoint2d(-1, 0)));
    EXPECT_TRUE(isNear(hi, AcGePoint2d(5, 2)));

    AcGeCurve2d* first = nullptr;
    AcGeCurve2d* second = nullptr;
    curve.getSplitCurves(1.5, first, second);
    std::unique_ptr<AcGeCurve2d> a(first);
    std::unique_ptr<AcGeCurve2d> b(second);
    ASSERT_TRUE(a && b);
    AcGeInterval ia;
    AcGeInterval ib;
    a->getInterval(ia);
    b->getInterval(ib);
    EXPECT_NEAR(a->length(0, ia.upperBound()) + b->length(0, ib.upperBound()), 8.0 + 2.0 * kPi, kTol);

    AcGeCompositeCurve2d reversed = curve;
    reversed.reverseParam();
    ASSERT_TRUE(reversed.area(0, intrvl.upperBound(), area));
    EXPECT_NEAR(area, -(8.0 + kPi), kTol) << "reversed, the slot runs clockwise";
    AcGeVoidPointerArray exploded;
    AcGeIntArray made;
    EXPECT_TRUE(curve.explode(exploded, made));
    ASSERT_EQ(exploded.length(), 4);
    for (int i = 0; i < exploded.length(); ++i) {
        EXPECT_EQ(made[i], 1);
        delete static_cast<AcGeCurve2d*>(exploded[i]);
    }

    const AcGeLineSeg2d gapA(AcGePoint2d(0, 0), AcGePoint2d(1, 0));
    const AcGeLineSeg2d gapB(AcGePoint2d(2, 0), AcGePoint2d(3, 0));
    AcGeVoidPointerArray apart;
    apart.append(const_cast<AcGeLineSeg2d*>(&gapA));
    apart.append(const_cast<AcGeLineSeg2d*>(&gapB));
    EXPECT_THROW(AcGeCompositeCurve2d{apart}, headless::HostError);
}

TEST(GeCurveTest, CompositesInSpaceFindTheirPlane)
{
    const AcGeLineSeg3d bottom(AcGePoint3d(0, 0, 5), AcGePoint3d(4, 0, 5));
    const AcGeCircArc3d right(AcGePoint3d(4, 1, 5), AcGeVector3d(0, 0, 1), AcGeVector3d(0, -1, 0), 1.0, 0.0, kPi);
    const AcGeLineSeg3d top(AcGePoint3d(4, 2, 5), AcGePoint3d(0, 2, 5));
    AcGeVoidPointerArray pieces;
    pieces.append(const_cast<AcGeLineSeg3d*>(&bottom));
    pieces.append(const_cast<AcGeCircArc3d*>(&right));
    pieces.append(const_cast<AcGeLineSeg3d*>(&top));
    AcGeCompositeCurve3d curve(pieces);
    AcGePlane plane;
    ASSERT_TRUE(curve.isPlanar(plane));
    EXPECT_TRUE(isNear(plane.normal(), AcGeVector3d(0, 0, 1)));
    AcGeInterval intrvl;
    curve.getInterval(intrvl);
    double area = 0.0;
    ASSERT_TRUE(curve.area(0, intrvl.upperBound(), area));
    EXPECT_NEAR(area, 8.0 + kPi / 2, kTol) << "closed by the chord from (0, 2) back to (0, 0)";
    curve.transformBy(AcGeMatrix3d::rotation(kPi / 2, AcGeVector3d::kXAxis));
    ASSERT_TRUE(curve.isPlanar(plane));
    ASSERT_TRUE(curve.area(0, intrvl.upperBound(), area));
    EXPECT_NEAR(area, 8.0 + kPi / 2, kTol) << "seen from its own normal the area is kept";
    const AcGeLineSeg3d skew(AcGePoint3d(0, 2, 5), AcGePoint3d(0, 2, 9));
    AcGeVoidPointerArray bent;
    bent.append(const_cast<AcGeLineSeg3d*>(&bottom));
    bent.append(const_cast<AcGeCircArc3d*>(&right));
    bent.append(const_cast<AcGeLineSeg3d*>(&top));
    bent.append(const_cast<AcGeLineSeg3d*>(&skew));
    EXPECT_FALSE(AcGeCompositeCurve3d(bent).isPlanar(plane));
}

}  // namespace
