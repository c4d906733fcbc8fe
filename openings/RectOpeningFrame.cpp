// RectOpeningFrame: corners from the anchor, and the anchor from corners.
#include "RectOpeningFrame.h"

#include <cmath>

namespace {

// How far the bottom-left corner lies from the anchor of each type, in widths along u and
// heights along v.
struct AnchorOffset {
    double widths;
    double heights;
};
constexpr AnchorOffset kAnchorOffsets[9] = {
    {0.0, 1.0}, {0.0, 0.5}, {0.0, 0.0},  // top-left, middle-left, bottom-left
    {0.5, 1.0}, {0.5, 0.5}, {0.5, 0.0},  // top-centre, centre, bottom-centre
    {1.0, 1.0}, {1.0, 0.5}, {1.0, 0.0},  // top-right, middle-right, bottom-right
};

// The two corners whose midpoint is the anchor of each type.
constexpr int kAnchorCorners[9][2] = {{3, 3}, {3, 0}, {0, 0}, {2, 3}, {0, 2}, {0, 1}, {2, 2}, {1, 2}, {1, 1}};

bool IsKnownType(Adesk::Int32 type)
{
    return type >= 0 && type < 9;
}

}  // namespace

bool RectOpeningFrame::IsUsable() const
{
    return std::isfinite(width) && width > 0.0 && std::isfinite(height) && height > 0.0 && std::isfinite(anchor.x) &&
        std::isfinite(anchor.y) && std::isfinite(anchor.z) && std::isfinite(dirX.x) && std::isfinite(dirX.y) &&
        !AcGeVector3d(dirX.x, dirX.y, 0.0).isZeroLength();
}

AcGeVector3d RectOpeningFrame::U() const
{
    const AcGeVector3d flat(dirX.x, dirX.y, 0.0);
    return flat.isZeroLength() ? AcGeVector3d::kXAxis : flat.normal();
}

AcGeVector3d RectOpeningFrame::V() const
{
    const AcGeVector3d u = U();
    return AcGeVector3d(-u.y, u.x, 0.0).normal();
}

AcGePoint3d RectOpeningFrame::BottomLeft() const
{
    if (!IsKnownType(anchorType))
        return anchor;
    const AnchorOffset& offset = kAnchorOffsets[anchorType];
    return anchor - U() * (offset.widths * width) - V() * (offset.heights * height);
}

RectOpeningFrame::Corners RectOpeningFrame::GetCorners() const
{
    const AcGePoint3d b = BottomLeft();
    const AcGeVector3d w = U() * width;
    const AcGeVector3d h = V() * height;
    return {b, b + w, b + w + h, b + h};
}

AcGePoint3d RectOpeningFrame::Center() const
{
    return BottomLeft() + U() * (0.5 * width) + V() * (0.5 * height);
}

AcGePoint3d RectOpeningFrame::EdgeMidpoint(int edge) const
{
    const Corners c = GetCorners();
    const AcGePoint3d& from = c[static_cast<std::size_t>(edge % 4)];
    const AcGePoint3d& to = c[static_cast<std::size_t>((edge + 1) % 4)];
    return from + (to - from) * 0.5;
}

AcGeVector3d RectOpeningFrame::EdgeOutwardNormal(int edge) const
{
    switch (edge % 4) {
    case 0: return -V();
    case 1: return U();
    case 2: return V();
    default: return -U();
    }
}

double RectOpeningFrame::SizeAcross(int edge) const
{
    return edge % 2 == 0 ? height : width;
}

AcGePoint3d RectOpeningFrame::AnchorOn(const Corners& corners, Adesk::Int32 type)
{
    if (!IsKnownType(type))
        return corners[0];
    const AcGePoint3d& a = corners[static_cast<std::size_t>(kAnchorCorners[type][0])];
    const AcGePoint3d& b = corners[static_cast<std::size_t>(kAnchorCorners[type][1])];
    return a + (b - a) * 0.5;
}

void RectOpeningFrame::SetFromCorners(const Corners& corners)
{
    width = corners[0].distanceTo(corners[1]);
    height = corners[1].distanceTo(corners[2]);
    const AcGeVector3d side = corners[1] - corners[0];
    dirX = AcGeVector3d(side.x, side.y, 0.0);
    anchor = AnchorOn(corners, anchorType);
}

void RectOpeningFrame::TransformBy(const AcGeMatrix3d& m)
{
    Corners image = GetCorners();
    for (AcGePoint3d& corner : image)
        corner.transformBy(m);
    const AcGeVector3d turn = (image[1] - image[0]).crossProduct(image[3] - image[0]);
    if (turn.z < 0.0) {
        // Either the image's top or its bottom edge can be the new bottom edge: the one
        // whose direction stays nearer the old X direction keeps the title reading the
        // same way, and mirroring back gives the original frame again.
        const AcGeVector3d mirroredX = image[1] - image[0];
        if (mirroredX.x * U().x + mirroredX.y * U().y >= 0.0)
            image = {image[3], image[2], image[1], image[0]};
        else
            image = {image[1], image[0], image[3], image[2]};
    }
    SetFromCorners(image);
}
