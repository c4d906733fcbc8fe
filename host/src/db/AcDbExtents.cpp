// AcDbExtents: an axis-aligned box; empty while its minimum lies above its maximum.
#include "AcDbExtents.h"

#include <algorithm>
#include <ostream>

namespace {

// The corners of an empty box: any point added replaces both.
constexpr double kEmptyBound = 1e20;

}  // namespace

AcDbExtents::AcDbExtents()
    : m_min(kEmptyBound, kEmptyBound, kEmptyBound), m_max(-kEmptyBound, -kEmptyBound, -kEmptyBound)
{
}

AcDbExtents::AcDbExtents(const AcGePoint3d& min, const AcGePoint3d& max) : AcDbExtents()
{
    set(min, max);
}

Acad::ErrorStatus AcDbExtents::set(const AcGePoint3d& min, const AcGePoint3d& max)
{
    if (min.x > max.x || min.y > max.y || min.z > max.z)
        return Acad::eInvalidExtents;
    m_min = min;
    m_max = max;
    return Acad::eOk;
}

void AcDbExtents::addPoint(const AcGePoint3d& pt)
{
    m_min.set(std::min(m_min.x, pt.x), std::min(m_min.y, pt.y), std::min(m_min.z, pt.z));
    m_max.set(std::max(m_max.x, pt.x), std::max(m_max.y, pt.y), std::max(m_max.z, pt.z));
}

void AcDbExtents::addExt(const AcDbExtents& other)
{
    if (other.isEmpty())
        return;
    addPoint(other.m_min);
    addPoint(other.m_max);
}

// A positive component moves the maximum out, a negative one the minimum.
void AcDbExtents::expandBy(const AcGeVector3d& vec)
{
    if (isEmpty())
        return;
    const double d[3] = {vec.x, vec.y, vec.z};
    double* lo[3] = {&m_min.x, &m_min.y, &m_min.z};
    double* hi[3] = {&m_max.x, &m_max.y, &m_max.z};
    for (int i = 0; i < 3; ++i) {
        if (d[i] > 0.0)
            *hi[i] += d[i];
        else
            *lo[i] += d[i];
    }
}

void AcDbExtents::transformBy(const AcGeMatrix3d& mat)
{
    if (isEmpty())
        return;
    const AcGePoint3d lo = m_min;
    const AcGePoint3d hi = m_max;
    *this = AcDbExtents();
    for (int corner = 0; corner < 8; ++corner) {
        const AcGePoint3d pt((corner & 1) != 0 ? hi.x : lo.x, (corner & 2) != 0 ? hi.y : lo.y,
                             (corner & 4) != 0 ? hi.z : lo.z);
        addPoint(mat * pt);
    }
}

bool AcDbExtents::isEmpty() const
{
    return m_min.x > m_max.x || m_min.y > m_max.y || m_min.z > m_max.z;
}

bool AcDbExtents::contains(const AcGePoint3d& pt, double tol) const
{
    return pt.x >= m_min.x - tol && pt.x <= m_max.x + tol && pt.y >= m_min.y - tol && pt.y <= m_max.y + tol &&
           pt.z >= m_min.z - tol && pt.z <= m_max.z + tol;
}

std::ostream& operator<<(std::ostream& os, const AcDbExtents& ext)
{
    if (ext.isEmpty())
        return os << "(empty)";
    return os << '[' << ext.minPoint() << " .. " << ext.maxPoint() << ']';
}
