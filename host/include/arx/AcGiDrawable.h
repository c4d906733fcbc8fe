// AcGiDrawable: anything the graphics system can ask to draw itself.
// The public calls are the host's entry points; classes override the protected sub... forms.
#pragma once

#include "dbid.h"
#include "rxboiler.h"

class AcGiWorldDraw;
class AcGiViewportDraw;
class AcGiDrawableTraits;

class ACHOST_API AcGiDrawable : public AcRxObject {
    ACRX_DECLARE_MEMBERS(AcGiDrawable);

public:
    enum SetAttributesFlags {
        kDrawableNone = 0,
        kDrawableIsAnEntity = 1,
        kDrawableUsesNesting = 2,
        kDrawableIsCompoundObject = 4,
        kDrawableViewIndependentViewportDraw = 8,
        kDrawableIsInvisible = 16,
    };

    ~AcGiDrawable() override;

    // Sets the traits that the following primitives use; answers SetAttributesFlags.
    Adesk::UInt32 setAttributes(AcGiDrawableTraits* traits);
    // Draws the view-independent geometry; true when no viewport draw is needed.
    Adesk::Boolean worldDraw(AcGiWorldDraw* worldDraw);
    void viewportDraw(AcGiViewportDraw* viewportDraw);

    virtual Adesk::Boolean isPersistent() const = 0;
    virtual AcDbObjectId id() const = 0;

protected:
    AcGiDrawable();
    virtual Adesk::UInt32 subSetAttributes(AcGiDrawableTraits* traits) = 0;
    virtual Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) = 0;
    virtual void subViewportDraw(AcGiViewportDraw* viewportDraw) = 0;
};
