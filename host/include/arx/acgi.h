// The graphics interface: drawables, world and viewport draws, their geometry and traits,
// and text styles. Module code includes this one header, as with the host SDK.
#pragma once

#include "AcGiClipBoundary.h"
#include "AcGiCommonDraw.h"
#include "AcGiContext.h"
#include "AcGiDrawable.h"
#include "AcGiDrawableTraits.h"
#include "AcGiGeometry.h"
#include "AcGiPolyline.h"
#include "AcGiSubEntityTraits.h"
#include "AcGiTextStyle.h"
#include "AcGiViewport.h"
#include "AcGiViewportDraw.h"
#include "AcGiViewportGeometry.h"
#include "AcGiWorldDraw.h"
#include "AcGiWorldGeometry.h"
#include "acgidefs.h"
