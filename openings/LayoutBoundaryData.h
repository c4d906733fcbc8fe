// LayoutBoundaryData: the record a layout boundary carries besides its outline: the title
// drawn at the boundary, and a kind, reference point and size, flag and referenced object
// that the layout application keeps here (this module only files, copies and transforms
// them).
#pragma once

#include "AcString.h"
#include "acadstrc.h"
#include "dbid.h"
#include "gemat3d.h"
#include "gepnt3d.h"
#include "gevec3d.h"

class AcDbDwgFiler;

struct LayoutBoundaryData {
    static constexpr Adesk::Int32 kVersion_0 = 0;
    static constexpr Adesk::Int32 kCurrentVersion = kVersion_0;

    LayoutBoundaryData() = default;
    LayoutBoundaryData(const LayoutBoundaryData&) = default;
    LayoutBoundaryData& operator=(const LayoutBoundaryData&) = default;

    // Copies every field; null does nothing.
    void CopyFrom(const LayoutBoundaryData* other);
    // The reference point and the title offset as points, the title direction as a vector.
    void TransformBy(const AcGeMatrix3d& m);

    // Its own version (0), then the fields in order, each through the filer's own
    // operation. Reading refuses a newer version with eMakeMeProxy; the record changes only
    // when the whole of it was read, and non-finite numbers keep the fields they would
    // have replaced.
    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer);

    Adesk::Int32 kind = 0;
    AcGePoint3d referencePoint = AcGePoint3d::kOrigin;
    double referenceSize = 100.0;
    bool firstFlag = true;
    bool titleVisible = true;
    AcString titleText = L"布置轮廓";
    // Added to the centre of the boundary's extents to place the title.
    AcGePoint3d titleOffset = AcGePoint3d::kOrigin;
    double titleHeight = 100.0;
    AcGeVector3d titleDirection = AcGeVector3d::kXAxis;
    AcDbObjectId referencedObject;
};
