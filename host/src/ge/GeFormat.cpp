// Printing for the geometry types' stream operators.
#include "GeFormat.h"

#include <charconv>
#include <ostream>

namespace hostge {

namespace {

// Shortest round-trip form of a double is at most 24 characters ("-1.2345678901234567e-308").
constexpr int kDoubleTextCapacity = 32;

}  // namespace

void writeNumber(std::ostream& os, double value)
{
    char text[kDoubleTextCapacity];
    const std::to_chars_result result = std::to_chars(text, text + sizeof text, value);
    os.write(text, result.ptr - text);
}

void writeCoordinates(std::ostream& os, std::initializer_list<double> values)
{
    os << '(';
    bool first = true;
    for (double value : values) {
        if (!first)
            os << ", ";
        writeNumber(os, value);
        first = false;
    }
    os << ')';
}

}  // namespace hostge
