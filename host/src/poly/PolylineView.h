// PolylineView: the geometry of a lightweight polyline as the host's curve questions need
// it: its object coordinate system, its segments as BulgeSegments, and the walk from
// parameters to segments, lengths and nearest points. A view reads the polyline's own
// storage (it is the polyline's friend) and must not outlive it.
#pragma once

#include <vector>

#include "AcDbPolyline.h"
#include "BulgeSegment.h"

namespace hostpoly {

// The object coordinate system of a normal at an elevation: the arbitrary axis rule of
// the drawing format.
struct OcsFrame {
    OcsFrame(const AcGeVector3d& normal, double elevation);

    AcGePoint3d toWorld(const AcGePoint2d& p) const { return origin + xAxis * p.x + yAxis * p.y; }
    AcGeVector3d toWorld(const AcGeVector2d& v) const { return xAxis * v.x + yAxis * v.y; }
    // The plane coordinates of a point's orthogonal projection.
    AcGePoint2d toPlane(const AcGePoint3d& p) const;
    AcGeVector2d toPlane(const AcGeVector3d& v) const;
    // How far a point lies above the plane, along the normal.
    double heightOf(const AcGePoint3d& p) const { return (p - origin).dotProduct(normal); }

    AcGePoint3d origin;  // the elevation along the normal
    AcGeVector3d xAxis;
    AcGeVector3d yAxis;
    AcGeVector3d normal;
};

// Where on the polyline a point lies: the segment, the fraction along it, the point.
struct CurvePlace {
    int segment = 0;
    double fraction = 0.0;
    AcGePoint2d point;
    double distance = 0.0;  // from the point asked about
};

class PolylineView {
public:
    explicit PolylineView(const AcDbPolyline& polyline);

    int numVerts() const { return static_cast<int>(m_vertices.size()); }
    // numVerts - 1 open, numVerts closed; 0 with fewer than two vertices.
    int numSegments() const;
    bool isClosed() const { return m_closed; }
    const OcsFrame& frame() const { return m_frame; }

    const AcGePoint2d& point(int i) const { return m_vertices[i].point; }
    double bulge(int i) const { return m_vertices[i].bulge; }
    double startWidth(int i) const;
    double endWidth(int i) const;
    Adesk::Int32 identifier(int i) const { return m_vertices[i].identifier; }
    // Segment i runs from vertex i to vertex i + 1 (to vertex 0 for a closed polyline's last).
    BulgeSegment segment(int i) const;
    AcGePoint3d worldPoint(int i) const { return m_frame.toWorld(point(i)); }

    // The end parameter (numSegments, or 0 for a single vertex).
    double endParam() const;
    // The segment and fraction of a parameter; false outside [0, endParam] (beyond a
    // rounding allowance). At an interior vertex the following segment answers; at the
    // end the last.
    bool locate(double param, int& segment, double& fraction) const;
    AcGePoint2d pointAt(int segment, double fraction) const;
    double totalLength() const;
    // The length from the start to the parameter (assumed located).
    double lengthTo(int segment, double fraction) const;
    // The segment and fraction at a distance from the start; false outside [0, length].
    bool locateDistance(double dist, int& segment, double& fraction) const;

    // The nearest point of the polyline. With extendEnds an open polyline's first and
    // last segments continue along their line or circle.
    CurvePlace nearest(const AcGePoint2d& p, bool extendEnds = false) const;
    // Polyline parameter of a place: segment + fraction.
    static double paramOf(const CurvePlace& place) { return place.segment + place.fraction; }

    // Shoelace over the vertices with each arc's circular segment, closed by the chord for
    // an open polyline; positive counter-clockwise.
    double signedArea() const;

private:
    const std::vector<AcDbPolyline::Vertex>& m_vertices;
    bool m_closed;
    double m_constantWidth;
    OcsFrame m_frame;
};

}  // namespace hostpoly
