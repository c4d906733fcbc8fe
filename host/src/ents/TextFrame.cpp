// Text frames: directions, justification offsets and readable transforms of text.
#include "TextFrame.h"

#include <cmath>

#include "ArcGeometry.h"
#include "gemat3d.h"
#include "gi/FontModel.h"
#include "gi/PlaneMath.h"

namespace hostents {
namespace {

// Transformed axes whose cosine exceeds this no longer count as perpendicular.
constexpr double kSkewTolerance = 1e-9;

}  // namespace

TextFrame TextFrame::of(const AcGeVector3d& normal, double rotation, double height, double widthFactor,
                        const wchar_t* text, bool backward, bool upsideDown)
{
    TextFrame frame;
    const AcGeVector3d x = hostgi::ocsXAxis(normal);
    const AcGeVector3d y = hostgi::ocsYAxis(normal);
    frame.direction = x * std::cos(rotation) + y * std::sin(rotation);
    frame.up = (normal / normal.length()).crossProduct(frame.direction);
    frame.height = height;
    frame.width = hostgi::FontModel::width(hostgi::FontModel::displayed(text, -1, false), height, widthFactor);
    frame.backward = backward;
    frame.upsideDown = upsideDown;
    return frame;
}

void TextFrame::justificationOffset(AcDb::TextHorzMode h, AcDb::TextVertMode v, double& x, double& y) const
{
    switch (h) {
    case AcDb::kTextCenter:
    case AcDb::kTextMid: x = width / 2.0; break;
    case AcDb::kTextRight:
    case AcDb::kTextAlign:
    case AcDb::kTextFit: x = width; break;
    default: x = 0.0; break;
    }
    if (h == AcDb::kTextMid) {
        y = height * (1.0 - hostgi::FontModel::kDescent) / 2.0;
    } else {
        switch (v) {
        case AcDb::kTextBottom: y = -hostgi::FontModel::kDescent * height; break;
        case AcDb::kTextVertMid: y = height / 2.0; break;
        case AcDb::kTextTop: y = height; break;
        default: y = 0.0; break;
        }
    }
    if (backward)
        x = -x;
    if (upsideDown)
        y = -y;
}

AcGePoint3d TextFrame::at(const AcGePoint3d& origin, double x, double y) const
{
    return origin + direction * x + up * y;
}

double rotationOf(const AcGeVector3d& normal, const AcGeVector3d& direction)
{
    return hostgi::angleAbout(hostgi::ocsXAxis(normal), direction, normal);
}

bool readableFrame(const AcGeMatrix3d& xform, const AcGeVector3d& direction, const AcGeVector3d& up,
                   AcGeVector3d& newDirection, AcGeVector3d& newUp, AcGeVector3d& newNormal, double& scaleAlong,
                   double& scaleAcross)
{
    AcGeVector3d d = direction;
    AcGeVector3d u = up;
    d.transformBy(xform);
    u.transformBy(xform);
    scaleAlong = d.length();
    scaleAcross = u.length();
    if (scaleAlong == 0.0 || scaleAcross == 0.0)
        return false;
    d /= scaleAlong;
    u /= scaleAcross;
    if (std::fabs(d.dotProduct(u)) > kSkewTolerance)
        return false;
    AcGeVector3d n = direction.crossProduct(up);
    n.transformBy(xform);
    // A mirror turns the text's own frame against the transformed plane's normal.
    if (d.crossProduct(u).dotProduct(n) < 0.0) {
        if (-d.dotProduct(direction) > d.dotProduct(direction) + kSkewTolerance)
            d = -d;
        else
            u = -u;
    }
    newDirection = d;
    newUp = u;
    newNormal = d.crossProduct(u);
    return true;
}

}  // namespace hostents
