// AcGiSubEntityTraits: the drawing properties that apply to the primitives that follow,
// until they are changed or the draw call ends (colour, layer, linetype, lineweight,
// linetype scale, thickness, fill, selection marker).
#pragma once

#include "AcCmEntityColor.h"
#include "AcCmTransparency.h"
#include "acdb.h"
#include "acgidefs.h"
#include "dbid.h"
#include "rxboiler.h"

class ACHOST_API AcGiSubEntityTraits : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcGiSubEntityTraits);

public:
    ~AcGiSubEntityTraits() override;

    // An index colour (0 by block, 256 by layer, 1..255).
    virtual void setColor(const Adesk::UInt16 color) = 0;
    virtual void setTrueColor(const AcCmEntityColor& color) = 0;
    virtual void setLayer(const AcDbObjectId layerId) = 0;
    virtual void setLineType(const AcDbObjectId linetypeId) = 0;
    // Tags the following primitives so that a pick can name the sub-entity; 0 is no marker.
    virtual void setSelectionMarker(const Adesk::LongPtr markerId) = 0;
    virtual void setFillType(const AcGiFillType fillType) = 0;
    virtual void setLineWeight(const AcDb::LineWeight lineWeight) = 0;
    virtual void setLineTypeScale(double scale = 1.0) = 0;
    virtual void setThickness(double thickness) = 0;
    // Material and transparency are kept by drawing back ends that render them; this
    // base ignores them.
    virtual void setMaterial(const AcDbObjectId materialId);
    virtual void setTransparency(const AcCmTransparency& transparency);

    virtual Adesk::UInt16 color() const = 0;
    virtual AcCmEntityColor trueColor() const = 0;
    virtual AcDbObjectId layerId() const = 0;
    virtual AcDbObjectId lineTypeId() const = 0;
    virtual AcGiFillType fillType() const = 0;
    virtual AcDb::LineWeight lineWeight() const = 0;
    virtual double lineTypeScale() const = 0;
    virtual double thickness() const = 0;
    virtual AcDbObjectId materialId() const;            // null in this base
    virtual AcCmTransparency transparency() const;      // by layer in this base

protected:
    AcGiSubEntityTraits();
};
