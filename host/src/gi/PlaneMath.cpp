// Plane geometry shared by drawing and the basic entities.
#include "PlaneMath.h"

#include <cmath>


namespace hostgi {

AcGeVector3d ocsXAxis(const AcGeVector3d& normal)
{
    const double len = normal.length();
    if (len == 0.0)
        return AcGeVector3d::kXAxis;
    const AcGeVector3d n = normal / len;
    const AcGeVector3d axis = (std::fabs(n.x) < kArbitraryAxisLimit && std::fabs(n.y) < kArbitraryAxisLimit)
                                  ? AcGeVector3d::kYAxis.crossProduct(n)
                                  : AcGeVector3d::kZAxis.crossProduct(n);
    return axis / axis.length();
}

AcGeVector3d ocsYAxis(const AcGeVector3d& normal)
{
    const double len = normal.length();
    if (len == 0.0)
        return AcGeVector3d::kYAxis;
    const AcGeVector3d y = (normal / len).crossProduct(ocsXAxis(normal));
    return y / y.length();
}

bool circleThrough(const AcGePoint3d& p1, const AcGePoint3d& p2, const AcGePoint3d& p3, AcGePoint3d& center,
                   double& radius, AcGeVector3d& normal)
{
    const AcGeVector3d a = p2 - p1;
    const AcGeVector3d b = p3 - p1;
    const AcGeVector3d axb = a.crossProduct(b);
    const double axbLen2 = axb.dotProduct(axb);
    const double scale = a.dotProduct(a) * b.dotProduct(b);
    // Relative test: the sine of the angle at p1 must not vanish.
    if (scale == 0.0 || axbLen2 <= scale * 1e-24)
        return false;
    const AcGeVector3d toCenter =
        (axb.crossProduct(a) * b.dotProduct(b) + b.crossProduct(axb) * a.dotProduct(a)) / (2.0 * axbLen2);
    center = p1 + toCenter;
    radius = toCenter.length();
    normal = axb / std::sqrt(axbLen2);
    return true;
}

AcGeVector3d transformNormal(const AcGeMatrix3d& xform, const AcGeVector3d& normal)
{
    const AcGeVector3d u = ocsXAxis(normal);
    const AcGeVector3d v = ocsYAxis(normal);
    AcGeVector3d tu = u;
    AcGeVector3d tv = v;
    tu.transformBy(xform);
    tv.transformBy(xform);
    const AcGeVector3d n = tu.crossProduct(tv);
    const double len = n.length();
    return len == 0.0 ? normal : n / len;
}

double angleAbout(const AcGeVector3d& ref, const AcGeVector3d& v, const AcGeVector3d& normal)
{
    const double len = normal.length();
    if (len == 0.0)
        return 0.0;
    const AcGeVector3d n = normal / len;
    const double y = n.crossProduct(ref).dotProduct(v);
    const double x = ref.dotProduct(v);
    return normalizeAngle(std::atan2(y, x));
}

bool isTranslationOnly(const AcGeMatrix3d& xform)
{
    for (int row = 0; row < 4; ++row) {
        for (int col = 0; col < 3; ++col) {
            if (xform.entry[row][col] != (row == col ? 1.0 : 0.0))
                return false;
        }
    }
    return xform.entry[3][3] == 1.0;
}

double normalizeAngle(double angle)
{
    if (!std::isfinite(angle))
        return 0.0;
    double a = std::fmod(angle, kTwoPi);
    if (a < 0.0)
        a += kTwoPi;
    if (a >= kTwoPi)
        a = 0.0;
    return a;
}

}  // namespace hostgi
