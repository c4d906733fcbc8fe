// PrimitiveGeometry: what proxies and plots need to do with recorded primitives: move
// them, measure them, flatten arcs into points, box texts, and draw them again.
#pragma once

#include <array>
#include <vector>

#include "AcDbExtents.h"
#include "AcGiWorldDraw.h"
#include "headless/RecordedPrimitive.h"

namespace hostfile {

class PrimitiveGeometry {
public:
    // The primitive as its drawable would have drawn it under xform (sizes scale with the
    // transform's scale along the primitive's plane).
    static void transform(headless::RecordedPrimitive& p, const AcGeMatrix3d& xform);
    // Adds what the primitive covers to box. Infinite lines, clips and declared extents
    // add nothing (false).
    static bool addExtents(const headless::RecordedPrimitive& p, AcDbExtents& box);
    // The points of an arc or circle primitive, start to end counter-clockwise about its
    // normal, with segments of at most maxStep radians.
    static std::vector<AcGePoint3d> curvePoints(const headless::RecordedPrimitive& p, double maxStep);
    // The corners of a text primitive's box (base line first), after the host's font model.
    static std::array<AcGePoint3d, 4> textBox(const headless::RecordedPrimitive& p);
    // Draws the primitive through geometry (clip records are left out).
    static void replay(const headless::RecordedPrimitive& p, AcGiWorldGeometry& geometry);
};

}  // namespace hostfile
