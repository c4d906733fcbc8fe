// The geometry object of a recording draw: each primitive becomes a RecordedPrimitive in
// world coordinates (points through the pushed model transforms, normals so that arcs
// keep their counter-clockwise sense, text sizes scaled with the transform).
#pragma once

#include "AcGiWorldGeometry.h"
#include "RecordingState.h"

namespace hostgi {

class RecordingGeometry : public AcGiWorldGeometry {
public:
    explicit RecordingGeometry(RecordingState& state) : m_state(state) {}

    void getModelToWorldTransform(AcGeMatrix3d& xform) const override;
    void getWorldToModelTransform(AcGeMatrix3d& xform) const override;
    Adesk::Boolean pushModelTransform(const AcGeVector3d& normal) override;
    Adesk::Boolean pushModelTransform(const AcGeMatrix3d& xform) override;
    // Popping with nothing pushed is a misuse of the interface: the host error.
    Adesk::Boolean popModelTransform() override;

    Adesk::Boolean circle(const AcGePoint3d& center, const double radius, const AcGeVector3d& normal) const override;
    // Three collinear points make no circle: nothing is recorded.
    Adesk::Boolean circle(const AcGePoint3d& p1, const AcGePoint3d& p2, const AcGePoint3d& p3) const override;
    Adesk::Boolean circularArc(const AcGePoint3d& center, const double radius, const AcGeVector3d& normal,
                               const AcGeVector3d& startVector, const double sweepAngle,
                               const AcGiArcType arcType = kAcGiArcSimple) const override;
    // Three collinear points make no arc: nothing is recorded.
    Adesk::Boolean circularArc(const AcGePoint3d& start, const AcGePoint3d& point, const AcGePoint3d& end,
                               const AcGiArcType arcType = kAcGiArcSimple) const override;
    Adesk::Boolean polyline(const Adesk::UInt32 nbPoints, const AcGePoint3d* vertexList,
                            const AcGeVector3d* normal = nullptr,
                            Adesk::LongPtr baseSubEntMarker = -1) const override;
    Adesk::Boolean polyline(const AcGiPolyline& polylineObj) const override;
    Adesk::Boolean polygon(const Adesk::UInt32 nbPoints, const AcGePoint3d* vertexList) const override;
    // The polyline's vertices, bulges, widths, closed flag, normal and elevation.
    Adesk::Boolean pline(const AcDbPolyline& lwBuf, Adesk::UInt32 fromIndex = 0,
                         Adesk::UInt32 numSegs = 0) const override;
    // Edge, face and vertex decorations are not recorded.
    Adesk::Boolean mesh(const Adesk::UInt32 rows, const Adesk::UInt32 columns, const AcGePoint3d* vertexList,
                        const AcGiEdgeData* edgeData = nullptr, const AcGiFaceData* faceData = nullptr,
                        const AcGiVertexData* vertexData = nullptr,
                        const bool autoGenerateNormals = true) const override;
    Adesk::Boolean shell(const Adesk::UInt32 nbVertex, const AcGePoint3d* vertexList,
                         const Adesk::UInt32 faceListSize, const Adesk::Int32* faceList,
                         const AcGiEdgeData* edgeData = nullptr, const AcGiFaceData* faceData = nullptr,
                         const AcGiVertexData* vertexData = nullptr, const struct resbuf* resBuf = nullptr,
                         const bool autoGenerateNormals = true) const override;
    Adesk::Boolean text(const AcGePoint3d& position, const AcGeVector3d& normal, const AcGeVector3d& direction,
                        const double height, const double width, const double oblique,
                        const ACHAR* msg) const override;
    Adesk::Boolean text(const AcGePoint3d& position, const AcGeVector3d& normal, const AcGeVector3d& direction,
                        const ACHAR* msg, const Adesk::Int32 length, const Adesk::Boolean raw,
                        const AcGiTextStyle& textStyle) const override;
    Adesk::Boolean xline(const AcGePoint3d& p1, const AcGePoint3d& p2) const override;
    Adesk::Boolean ray(const AcGePoint3d& base, const AcGePoint3d& through) const override;
    Adesk::Boolean draw(AcGiDrawable* drawable) const override;
    Adesk::Boolean pushClipBoundary(AcGiClipBoundary* boundary) override;
    // Popping with no boundary pushed is a misuse of the interface: the host error.
    void popClipBoundary() override;
    Adesk::Boolean worldLine(const AcGePoint3d points[2]) override;
    void setExtents(AcGePoint3d* newExtents) const override;

    // Runs the drawable's setAttributes and worldDraw at the current depth. Shared by the
    // host's top-level draw and nested draws.
    Adesk::Boolean runDrawable(AcGiDrawable* drawable) const;

private:
    Adesk::Boolean recordPoints(headless::PrimitiveKind kind, Adesk::UInt32 count, const AcGePoint3d* points,
                                const char* call) const;
    Adesk::Boolean recordText(const AcGePoint3d& position, const AcGeVector3d& normal,
                              const AcGeVector3d& direction, std::wstring text, bool raw,
                              const AcGiTextStyle& style) const;

    RecordingState& m_state;
};

}  // namespace hostgi
