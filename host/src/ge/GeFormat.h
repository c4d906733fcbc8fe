// Printing for the geometry types' stream operators: each coordinate in the fewest digits
// that read back as the same double, whatever the stream's own precision settings.
#pragma once

#include <initializer_list>
#include <iosfwd>

namespace hostge {

// The number alone.
void writeNumber(std::ostream& os, double value);
// "(a, b, c)".
void writeCoordinates(std::ostream& os, std::initializer_list<double> values);

}  // namespace hostge
