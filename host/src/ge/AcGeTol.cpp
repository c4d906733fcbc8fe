// AcGeTol: printing the two tolerances for test output.
#include "getol.h"

#include <ostream>

#include "GeFormat.h"

std::ostream& operator<<(std::ostream& os, const AcGeTol& tol)
{
    os << "AcGeTol(equalPoint ";
    hostge::writeNumber(os, tol.equalPoint());
    os << ", equalVector ";
    hostge::writeNumber(os, tol.equalVector());
    return os << ')';
}
