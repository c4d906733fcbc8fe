// ArcGeometry: the geometry that circles and arcs share: a centre, a radius and a normal,
// angles measured counter-clockwise about the normal from the x axis of the normal's
// object coordinate system, and a sweep (2 pi for a whole circle).
#pragma once

#include <iosfwd>
#include <vector>

#include "AcDbExtents.h"
#include "acdb.h"
#include "gept3dar.h"
#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"

namespace hostents {

// Points closer than this to a curve count as on it (drawing units; far below any
// drawing precision, far above the rounding of the arithmetic).
constexpr double kOnCurveTolerance = 1e-8;

class ArcGeometry {
public:
    ArcGeometry() = default;
    ArcGeometry(const AcGePoint3d& center, double radius, const AcGeVector3d& normal, double startAngle,
                double sweep);

    // An arc from the start angle counter-clockwise to the end angle; equal angles make a whole turn.
    static ArcGeometry fromAngles(const AcGePoint3d& center, double radius, const AcGeVector3d& normal,
                                  double startAngle, double endAngle);

    AcGePoint3d center;
    double radius = 0.0;
    AcGeVector3d normal = AcGeVector3d::kZAxis;  // unit length
    double startAngle = 0.0;                     // in [0, 2 pi)
    double sweep = 0.0;                          // in (0, 2 pi]

    bool isFull() const;
    AcGeVector3d xAxis() const;
    AcGeVector3d yAxis() const;
    double endAngle() const { return startAngle + sweep; }

    AcGePoint3d pointAtAngle(double angle) const;
    AcGeVector3d firstDerivAtAngle(double angle) const;
    AcGeVector3d secondDerivAtAngle(double angle) const;
    // The angle of a point's projection on the plane, in [0, 2 pi).
    double angleOf(const AcGePoint3d& point) const;
    // The angle as an offset from the start, in [0, 2 pi).
    double offsetOf(double angle) const;
    // True when the angle lies within the sweep, with an angular tolerance.
    bool containsAngle(double angle) const;
    // True when the point lies on the circle and, unless full is asked, within the sweep.
    bool isOn(const AcGePoint3d& point, bool full = false) const;
    // The nearest point of the arc (or of its whole circle).
    AcGePoint3d closestPoint(const AcGePoint3d& point, bool full = false) const;

    // The box of the arc: its end points and the extreme points in each world axis that
    // lie within the sweep.
    AcDbExtents extents() const;
    // The quadrant points (0, 90, 180, 270 degrees in the object coordinate system) within the sweep.
    void quadrantPoints(AcGePoint3d out[4], int& count) const;
    // Tangent points from an outside point (two, or none from inside).
    int tangentPoints(const AcGePoint3d& from, AcGePoint3d out[2]) const;

    // The curve interface over the arc (ArcGeometryCurve.cpp). The parameter is the angle:
    // from startAngle to endAngle(); a whole circle is periodic and takes any parameter.
    // Parameters and distances outside the arc, and points off it, answer eInvalidInput.
    double startParam() const { return startAngle; }
    double endParam() const { return endAngle(); }
    Acad::ErrorStatus pointAtParam(double param, AcGePoint3d& point) const;
    Acad::ErrorStatus paramAtPoint(const AcGePoint3d& point, double& param) const;
    Acad::ErrorStatus distAtParam(double param, double& dist) const;
    Acad::ErrorStatus paramAtDist(double dist, double& param) const;
    Acad::ErrorStatus firstDeriv(double param, AcGeVector3d& deriv) const;
    Acad::ErrorStatus secondDeriv(double param, AcGeVector3d& deriv) const;
    // The point of the arc nearest the given point as seen along the direction.
    Acad::ErrorStatus closestPointAlong(const AcGePoint3d& given, const AcGeVector3d& direction, bool full,
                                        AcGePoint3d& point) const;
    // Area between the arc and its chord (the whole disc for a circle).
    double area() const;
    double length() const { return radius * sweep; }
    // Snap points of the arc: Cen, Quad, Near, Perp, Tan, and End and Mid when not a circle.
    void osnapPoints(AcDb::OsnapMode mode, const AcGePoint3d& pickPoint, const AcGePoint3d& lastPoint,
                     AcGePoint3dArray& snapPoints) const;
    // The sorted, distinct parameters of split values, as offsets from the start in
    // (0, sweep); false when one lies outside the arc.
    bool splitOffsets(const double* params, int count, std::vector<double>& offsets) const;

    // Transforms the arc; eCannotScaleNonUniformly when the transform does not keep the
    // plane's axes perpendicular and equally scaled. Under a mirror the normal turns over
    // so that the arc keeps its points.
    Acad::ErrorStatus transformBy(const AcGeMatrix3d& xform, double* thickness = nullptr);
};

// e.g. "arc center (0, 0, 0) radius 2 normal (0, 0, 1) start 0 sweep 1.5708".
std::ostream& operator<<(std::ostream& os, const ArcGeometry& arc);

}  // namespace hostents
