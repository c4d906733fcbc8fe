// AcGiClipBoundary: a clipping boundary that a drawable pushes around the primitives it
// draws (a polygon in its own plane, optional front and back clipping planes).
#pragma once

#include <iosfwd>

#include "gemat3d.h"
#include "gept2dar.h"
#include "gepnt3d.h"
#include "gevec3d.h"

struct AcGiClipBoundary {
    AcGeVector3d m_vNormal;
    AcGePoint3d m_ptPoint;
    AcGePoint2dArray m_aptPoints;              // the boundary polygon in clip space
    AcGeMatrix3d m_xToClipSpace;
    AcGeMatrix3d m_xInverseBlockRefXForm;
    Adesk::Boolean m_bClippingFront = false;
    Adesk::Boolean m_bClippingBack = false;
    double m_dFrontClipZ = 0.0;
    double m_dBackClipZ = 0.0;
    Adesk::Boolean m_bDrawBoundary = false;
};

// e.g. "AcGiClipBoundary(4 points, front 1, back -1)" (clip planes only when in use).
ACHOST_API std::ostream& operator<<(std::ostream& os, const AcGiClipBoundary& boundary);
