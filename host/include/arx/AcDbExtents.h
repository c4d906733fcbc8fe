// AcDbExtents: an axis-aligned box in world coordinates. A new box is empty: its minimum
// lies above its maximum until a point is added.
#pragma once

#include <iosfwd>

#include "acadstrc.h"
#include "gemat3d.h"
#include "gepnt3d.h"

class ACHOST_API AcDbExtents {
public:
    AcDbExtents();
    AcDbExtents(const AcGePoint3d& min, const AcGePoint3d& max);

    const AcGePoint3d& minPoint() const { return m_min; }
    const AcGePoint3d& maxPoint() const { return m_max; }
    Acad::ErrorStatus set(const AcGePoint3d& min, const AcGePoint3d& max);  // eInvalidExtents if min > max
    void addPoint(const AcGePoint3d& pt);
    void addExt(const AcDbExtents& other);
    void expandBy(const AcGeVector3d& vec);
    // Transforms the eight corners and keeps the box around them.
    void transformBy(const AcGeMatrix3d& mat);
    bool isEmpty() const;
    // True when pt lies inside or on the box, within tol in every direction.
    bool contains(const AcGePoint3d& pt, double tol = 1e-9) const;

private:
    AcGePoint3d m_min;
    AcGePoint3d m_max;
};

ACHOST_API std::ostream& operator<<(std::ostream& os, const AcDbExtents& ext);
