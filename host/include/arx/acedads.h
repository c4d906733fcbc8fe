// Editor services of the host that the module may call: alerts and coordinate system
// transformations.
#pragma once

#include "adesk.h"
#include "adsdef.h"

// Result codes of the editor's C-level services. Numbers UNCONFIRMED; these follow the
// long-standing convention (RTNORM 5100, errors negative).
constexpr int RTNONE = 5000;
constexpr int RTNORM = 5100;
constexpr int RTERROR = -5001;
constexpr int RTCAN = -5002;
constexpr int RTREJ = -5003;
constexpr int RTFAIL = -5004;
constexpr int RTKWORD = -5005;

// Shows a message that the user must acknowledge. Headless: recorded and echoed on the
// command line, answered RTNORM.
ACHOST_API int acedAlert(const ACHAR* message);

// Transforms pt from one coordinate system to another. from and to are RTSHORT codes
// (0 world, 1 current user system, 2 display system of the current viewport, 3 paper
// space display system, which pairs only with 2), an RT3DPOINT extrusion direction (the
// object system of that normal) or an RTENAME entity (its object system: the plane of a
// planar curve, else the world). disp non-zero: pt is a displacement. The headless host's
// user system is the world system and its one view is a plan view with the target at the
// origin, so codes 0 to 3 all give world coordinates. RTNORM, or RTERROR for a missing
// or unknown system (result untouched).
ACHOST_API int acedTrans(const ads_point pt, const struct resbuf* from, const struct resbuf* to, int disp,
                         ads_point result);
