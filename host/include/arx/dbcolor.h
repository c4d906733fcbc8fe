// The host's colour header: entity colours, interface colours with colour-book names,
// and transparency. Module code includes this one header, as with the host SDK.
#pragma once

#include "AcCmColor.h"
#include "AcCmColorBase.h"
#include "AcCmEntityColor.h"
#include "AcCmTransparency.h"
