// Editor services of the host that the module may call: alerts.
#pragma once

#include "adesk.h"

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
