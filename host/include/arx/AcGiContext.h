// AcGiContext: what a drawable may ask about the draw it is in: the database being drawn,
// and whether the draw is for plotting or bounded by a clip.
#pragma once

#include "rxboiler.h"

class AcDbDatabase;

class ACHOST_API AcGiContext : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcGiContext);

public:
    ~AcGiContext() override;

    virtual Adesk::Boolean isPsOut() const = 0;
    virtual Adesk::Boolean isPlotGeneration() const = 0;
    virtual AcDbDatabase* database() const = 0;
    virtual bool isBoundaryClipping() const = 0;

protected:
    AcGiContext();
};
