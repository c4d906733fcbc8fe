// PanelLabelPlacement: the placement table of a panel's labels.
#include "PanelLabelPlacement.h"

#include <algorithm>
#include <cmath>

#include "geometry/ObbCalculator.h"

namespace DbxPanel {

AcGeVector2d PanelLabelPlacement::MakeReadable(const AcGeVector2d& direction)
{
    AcGeVector2d v = direction;
    if (v.x < 0.0)
        v = -v;
    if (std::fabs(v.x) <= kVerticalTolerance && v.y < 0.0)
        v.y = -v.y;
    return v;
}

AcGeVector2d PanelLabelPlacement::DirectionFor(TextDirectionMode mode, double fixedAngle, const AcGeVector2d& laying)
{
    switch (mode) {
    case TextDirectionMode::kPerpendicular: return MakeReadable(AcGeVector2d(-laying.y, laying.x));
    case TextDirectionMode::kFixedAngle: return MakeReadable(AcGeVector2d(std::cos(fixedAngle), std::sin(fixedAngle)));
    default: return laying;
    }
}

AcGePoint2d PanelLabelPlacement::PositionFor(PredefinedTextPosition position, const std::vector<AcGePoint2d>& outline,
                                             const AcGeVector2d& laying)
{
    const OBBInfo2D box = ObbCalculator::CalculateSimplified(outline, laying);
    const double hx = box.halfExtentX;
    const double hy = box.halfExtentY;
    const double third = 1.0 / 6.0;
    const double fiveSixths = 5.0 / 6.0;
    double x = 0.0;
    double y = 0.0;
    // The outline's extremes in the box frame; the box's edges without an outline.
    auto extreme = [&](bool alongY, bool largest) {
        if (outline.empty())
            return (largest ? 1.0 : -1.0) * (alongY ? hy : hx);
        double value = largest ? -HUGE_VAL : HUGE_VAL;
        for (const AcGePoint2d& p : outline) {
            const AcGePoint2d local = box.worldToLocal * p;
            const double c = alongY ? local.y : local.x;
            value = largest ? std::max(value, c) : std::min(value, c);
        }
        return value;
    };
    switch (static_cast<int>(position)) {
    case 1:
        x = -hx + 2 * hx * third;
        y = -hy + 2 * hy * fiveSixths;
        break;
    case 2:
        x = -hx + 2 * hx * fiveSixths;
        y = -hy + 2 * hy * fiveSixths;
        break;
    case 3:
        x = -hx + 2 * hx * third;
        y = -hy + 2 * hy * third;
        break;
    case 4:
        x = -hx + 2 * hx * fiveSixths;
        y = -hy + 2 * hy * third;
        break;
    case 5: y = -hy + 2 * hy * fiveSixths; break;
    case 6: y = -hy + 2 * hy * third; break;
    case 7: x = -hx + 2 * hx * third; break;
    case 8: x = -hx + 2 * hx * fiveSixths; break;
    case 20: y = -hy + std::min(2 * hy * 0.1, kEdgeOffsetCap); break;
    case 21: y = hy - std::min(2 * hy * 0.1, kEdgeOffsetCap); break;
    case 30: y = extreme(true, true); break;
    case 31: y = extreme(true, false); break;
    case 32: x = extreme(false, false); break;
    case 33: x = extreme(false, true); break;
    default: break;
    }
    return box.localToWorld * AcGePoint2d(x, y);
}

void PanelLabelPlacement::Place(std::vector<TextLabel>& labels, const std::vector<AcGePoint2d>& outline,
                                const AcGeVector2d& laying)
{
    const AcGeVector2d readable = MakeReadable(laying);
    for (TextLabel& label : labels) {
        const AcGeVector2d d = DirectionFor(label.GetDirectionMode(), label.GetFixedAngleRadians(), readable);
        label.SetDir(AcGeVector3d(d.x, d.y, 0.0));
        if (label.GetPredefinedPositionType() == PredefinedTextPosition::kManual)
            continue;
        const AcGePoint2d at = PositionFor(label.GetPredefinedPositionType(), outline, readable);
        label.SetPos(AcGePoint3d(at.x, at.y, 0.0));
    }
}

}  // namespace DbxPanel
