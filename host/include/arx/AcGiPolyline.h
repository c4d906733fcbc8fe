// AcGiPolyline: the argument object of the polyline primitive's object form: the
// vertices, an optional normal and the selection marker of the first segment.
#pragma once

#include <iosfwd>

#include "gepnt3d.h"
#include "gevec3d.h"

class ACHOST_API AcGiPolyline {
public:
    enum LinetypeGeneration { kPerSegment = 0, kEndToEnd = 1 };

    AcGiPolyline() = default;
    // The vertices are not copied: they must outlive the object, as in the host.
    AcGiPolyline(Adesk::UInt32 nbPoints, const AcGePoint3d* vertexList, const AcGeVector3d* normal = nullptr,
                 Adesk::LongPtr baseSubEntMarker = -1)
        : m_nbPoints(nbPoints), m_vertexList(vertexList), m_normal(normal), m_baseSubEntMarker(baseSubEntMarker)
    {
    }

    Adesk::UInt32 points() const { return m_nbPoints; }
    const AcGePoint3d* vertexList() const { return m_vertexList; }
    const AcGeVector3d* normal() const { return m_normal; }
    Adesk::LongPtr baseSubEntMarker() const { return m_baseSubEntMarker; }
    LinetypeGeneration linetypeGen() const { return m_linetypeGen; }
    void setLinetypeGen(LinetypeGeneration gen) { m_linetypeGen = gen; }
    double constantWidth() const { return m_constantWidth; }
    void setConstantWidth(double width) { m_constantWidth = width; }

private:
    Adesk::UInt32 m_nbPoints = 0;
    const AcGePoint3d* m_vertexList = nullptr;
    const AcGeVector3d* m_normal = nullptr;
    Adesk::LongPtr m_baseSubEntMarker = -1;
    LinetypeGeneration m_linetypeGen = kPerSegment;
    double m_constantWidth = 0.0;
};

// e.g. "AcGiPolyline(3 points, marker 10)".
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGiPolyline& polyline);
