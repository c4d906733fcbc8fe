// SavedTraits: every sub-entity trait a layout line's draw may change, taken when a part
// of the line is about to be drawn in a style of its own and put back afterwards, so that
// the parts drawn next carry the entity's own traits again.
#pragma once

#include "AcCmEntityColor.h"
#include "acdb.h"
#include "acgidefs.h"
#include "dbid.h"

class AcGiSubEntityTraits;

class SavedTraits {
public:
    explicit SavedTraits(AcGiSubEntityTraits& traits);

    void Restore();

private:
    AcGiSubEntityTraits& m_traits;
    AcCmEntityColor m_trueColor;
    AcDbObjectId m_layer;
    AcDbObjectId m_linetype;
    AcGiFillType m_fill;
    AcDb::LineWeight m_lineWeight;
    double m_linetypeScale;
    double m_thickness;
};
