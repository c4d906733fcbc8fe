// AcGiGeometry: the primitives a drawable draws with, in model coordinates (world
// coordinates under the pushed model transforms). Every primitive answers true when the
// regeneration was aborted and the primitive was not drawn (the host does not document
// the meaning of the answer; this is the headless host's choice), false when it was drawn.
#pragma once

#include "AcGiClipBoundary.h"
#include "AcGiPolyline.h"
#include "AcGiTextStyle.h"
#include "acgidefs.h"
#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"
#include "rxboiler.h"

class AcDbPolyline;
class AcGiDrawable;
class AcGiEdgeData;
class AcGiFaceData;
class AcGiVertexData;
struct resbuf;

class ACHOST_API AcGiGeometry : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcGiGeometry);

public:
    ~AcGiGeometry() override;

    // The product of the pushed model transforms, and its inverse.
    virtual void getModelToWorldTransform(AcGeMatrix3d& xform) const = 0;
    virtual void getWorldToModelTransform(AcGeMatrix3d& xform) const = 0;
    // Pushes a transform that the following primitives are drawn through (after the ones
    // already pushed). The normal form pushes the plane-to-world transform of that normal.
    virtual Adesk::Boolean pushModelTransform(const AcGeVector3d& normal) = 0;
    virtual Adesk::Boolean pushModelTransform(const AcGeMatrix3d& xform) = 0;
    virtual Adesk::Boolean popModelTransform() = 0;

    virtual Adesk::Boolean circle(const AcGePoint3d& center, const double radius,
                                  const AcGeVector3d& normal) const = 0;
    // The circle through three points.
    virtual Adesk::Boolean circle(const AcGePoint3d& p1, const AcGePoint3d& p2, const AcGePoint3d& p3) const = 0;
    // Counter-clockwise about normal from the start vector through the sweep angle (radians).
    virtual Adesk::Boolean circularArc(const AcGePoint3d& center, const double radius, const AcGeVector3d& normal,
                                       const AcGeVector3d& startVector, const double sweepAngle,
                                       const AcGiArcType arcType = kAcGiArcSimple) const = 0;
    // The arc from start through point to end.
    virtual Adesk::Boolean circularArc(const AcGePoint3d& start, const AcGePoint3d& point, const AcGePoint3d& end,
                                       const AcGiArcType arcType = kAcGiArcSimple) const = 0;
    // Open polyline through the vertices; segment i carries marker base + i when the base
    // is not -1.
    virtual Adesk::Boolean polyline(const Adesk::UInt32 nbPoints, const AcGePoint3d* vertexList,
                                    const AcGeVector3d* normal = nullptr,
                                    Adesk::LongPtr baseSubEntMarker = -1) const = 0;
    virtual Adesk::Boolean polyline(const AcGiPolyline& polylineObj) const = 0;
    // Closed polygon, filled when the fill type says so.
    virtual Adesk::Boolean polygon(const Adesk::UInt32 nbPoints, const AcGePoint3d* vertexList) const = 0;
    // Lightweight polyline segments [fromIndex, fromIndex + numSegs) with widths and
    // bulges; numSegs 0 draws to the end. The only primitive that renders widths.
    virtual Adesk::Boolean pline(const AcDbPolyline& lwBuf, Adesk::UInt32 fromIndex = 0,
                                 Adesk::UInt32 numSegs = 0) const = 0;
    // A grid of rows x columns vertices (row-major). Edge, face and vertex data are
    // optional decorations.
    virtual Adesk::Boolean mesh(const Adesk::UInt32 rows, const Adesk::UInt32 columns,
                                const AcGePoint3d* vertexList, const AcGiEdgeData* edgeData = nullptr,
                                const AcGiFaceData* faceData = nullptr, const AcGiVertexData* vertexData = nullptr,
                                const bool autoGenerateNormals = true) const = 0;
    // Faces given as a list: a vertex count n followed by n vertex indices, per face (a
    // negative count is a hole in the previous face).
    virtual Adesk::Boolean shell(const Adesk::UInt32 nbVertex, const AcGePoint3d* vertexList,
                                 const Adesk::UInt32 faceListSize, const Adesk::Int32* faceList,
                                 const AcGiEdgeData* edgeData = nullptr, const AcGiFaceData* faceData = nullptr,
                                 const AcGiVertexData* vertexData = nullptr, const struct resbuf* resBuf = nullptr,
                                 const bool autoGenerateNormals = true) const = 0;
    // Text in the current text style with the given height, width factor and oblique angle.
    virtual Adesk::Boolean text(const AcGePoint3d& position, const AcGeVector3d& normal,
                                const AcGeVector3d& direction, const double height, const double width,
                                const double oblique, const ACHAR* msg) const = 0;
    // Text in the given style; length -1 draws up to the terminating null; raw: %% codes are
    // drawn as they are.
    virtual Adesk::Boolean text(const AcGePoint3d& position, const AcGeVector3d& normal,
                                const AcGeVector3d& direction, const ACHAR* msg, const Adesk::Int32 length,
                                const Adesk::Boolean raw, const AcGiTextStyle& textStyle) const = 0;
    // Infinite line through two points, and half-line from base through a point.
    virtual Adesk::Boolean xline(const AcGePoint3d& p1, const AcGePoint3d& p2) const = 0;
    virtual Adesk::Boolean ray(const AcGePoint3d& base, const AcGePoint3d& through) const = 0;
    // A nested drawable: its setAttributes and worldDraw run into this draw, with the
    // current traits restored afterwards.
    virtual Adesk::Boolean draw(AcGiDrawable* drawable) const = 0;
    virtual Adesk::Boolean pushClipBoundary(AcGiClipBoundary* boundary) = 0;
    virtual void popClipBoundary() = 0;
    // A line between two world points, whatever model transforms are pushed.
    virtual Adesk::Boolean worldLine(const AcGePoint3d points[2]);

protected:
    AcGiGeometry();
};
