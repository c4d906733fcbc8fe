// The write gate: a check that opening an object for write must pass besides the open
// protocol. The document layer installs one that refuses writes to a document's drawing
// that the caller has not locked (eLockViolation); without one every write passes.
#pragma once

#include "acadstrc.h"

class AcDbDatabase;

namespace hostdb {

using WriteGate = Acad::ErrorStatus (*)(const AcDbDatabase* db);

void setWriteGate(WriteGate gate);
// eOk, or the installed gate's refusal.
Acad::ErrorStatus passWriteGate(const AcDbDatabase* db);

}  // namespace hostdb
