// Qx::ConvertUtil: numbers as text, and points and vectors between 2D and 3D.
#pragma once

#include "AcString.h"
#include "gepnt2d.h"
#include "gepnt3d.h"
#include "gevec2d.h"
#include "gevec3d.h"

namespace Qx {

class ConvertUtil {
public:
    // Fixed notation with `decimals` digits after the point; -0 prints as 0.
    static AcString ToString(double value, int decimals = 2);
    // The shortest of up to `maxDecimals` digits: trailing zeros and a bare point dropped.
    static AcString ToTrimmedString(double value, int maxDecimals = 6);
    static AcString ToString(int value);

    static AcGePoint2d ToPoint2d(const AcGePoint3d& p) { return AcGePoint2d(p.x, p.y); }
    static AcGePoint3d ToPoint3d(const AcGePoint2d& p, double z = 0.0) { return AcGePoint3d(p.x, p.y, z); }
    static AcGeVector2d ToVector2d(const AcGeVector3d& v) { return AcGeVector2d(v.x, v.y); }
    static AcGeVector3d ToVector3d(const AcGeVector2d& v, double z = 0.0) { return AcGeVector3d(v.x, v.y, z); }
};

}  // namespace Qx
