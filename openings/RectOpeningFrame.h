// RectOpeningFrame: the rectangle of a rectangular opening as it is stored (anchor point,
// which of nine points of the rectangle the anchor is, X direction, width, height) and the
// corners, edges and anchor points that follow from it.
#pragma once

#include <array>

#include "acadstrc.h"
#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"

struct RectOpeningFrame {
    using Corners = std::array<AcGePoint3d, 4>;

    // Anchor types 0-8 (top-left ... bottom-right); anything else anchors at the
    // bottom-left corner.
    Adesk::Int32 anchorType = 2;
    AcGePoint3d anchor = AcGePoint3d::kOrigin;
    AcGeVector3d dirX = AcGeVector3d::kXAxis;
    double width = 1000.0;
    double height = 1000.0;

    // Positive finite sizes, a finite anchor and a direction with an XY part.
    bool IsUsable() const;

    // The width direction in the XY plane, normalised (the X axis for a vertical or zero
    // direction); v is u turned by +90 degrees.
    AcGeVector3d U() const;
    AcGeVector3d V() const;
    AcGePoint3d BottomLeft() const;
    // Bottom-left, bottom-right, top-right, top-left (counter-clockwise), at the anchor's z.
    Corners GetCorners() const;
    AcGePoint3d Center() const;
    // Edge i runs from corner i to corner i + 1: bottom, right, top, left.
    AcGePoint3d EdgeMidpoint(int edge) const;
    AcGeVector3d EdgeOutwardNormal(int edge) const;
    // The size an edge move changes: the height for the bottom and top edges, the width
    // for the others.
    double SizeAcross(int edge) const;

    // The point of an anchor type on a rectangle given by its corners: the midpoint of two
    // corners (a corner paired with itself for the corner types); the bottom-left corner
    // for an unknown type.
    static AcGePoint3d AnchorOn(const Corners& corners, Adesk::Int32 type);
    // Takes width (corners 0-1), height (corners 1-2) and X direction (corner 1 - corner 0)
    // from a new rectangle and re-anchors it for the current type.
    void SetFromCorners(const Corners& corners);
    // The rectangle mapped by m, re-anchored for the same type. A mirror turns the image
    // clockwise seen from above; its corners are then taken in counter-clockwise order
    // again, starting so that the X direction turns the least.
    void TransformBy(const AcGeMatrix3d& m);
};
