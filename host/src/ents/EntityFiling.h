// Filing helpers of the basic entities: each class's own fields start with a 16-bit
// version, and readers refuse values that no valid entity has (non-finite numbers, zero
// normals) with eDwgObjectImproperlyRead, keeping the entity as it was.
#pragma once

#include <cmath>

#include "AcDbDwgFiler.h"

namespace hostents {

inline bool isFinite(const AcGePoint3d& p)
{
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

inline bool isFinite(const AcGeVector3d& v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

// A usable normal: finite and not zero.
inline bool isUsableNormal(const AcGeVector3d& v)
{
    return isFinite(v) && v.length() > 0.0;
}

// Unit vectors on file come back as filed (normalising again could change their last
// bits, and a second filing must give the same bytes); others are brought to unit length.
inline AcGeVector3d unitAsFiled(const AcGeVector3d& v)
{
    constexpr double kUnitTolerance = 1e-12;
    const double length = v.length();
    return std::fabs(length - 1.0) <= kUnitTolerance ? v : v / length;
}

// Marks the filer's status and answers it.
inline Acad::ErrorStatus improperlyRead(AcDbDwgFiler* filer)
{
    filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
    return Acad::eDwgObjectImproperlyRead;
}

// Reads the class version; eMakeMeProxy for a version newer than known.
inline Acad::ErrorStatus readClassVersion(AcDbDwgFiler* filer, Adesk::Int16 known, Adesk::Int16& version)
{
    if (filer->readInt16(&version) != Acad::eOk)
        return filer->filerStatus();
    if (version > known)
        return Acad::eMakeMeProxy;
    if (version < 1)
        return improperlyRead(filer);
    return Acad::eOk;
}

}  // namespace hostents
