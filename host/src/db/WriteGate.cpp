// The write gate the document layer installs.
#include "WriteGate.h"

namespace hostdb {

namespace {
WriteGate g_gate = nullptr;
}

void setWriteGate(WriteGate gate)
{
    g_gate = gate;
}

Acad::ErrorStatus passWriteGate(const AcDbDatabase* db)
{
    return g_gate != nullptr && db != nullptr ? g_gate(db) : Acad::eOk;
}

}  // namespace hostdb
