// AciPalette: the 256 colours behind the colour indices, and the search for the index
// closest to a true colour. Internal to the headless host; module code reaches it through
// AcCmEntityColor::lookUpRGB and lookUpACI.
#pragma once

#include "adesk.h"

namespace headless {

class AciPalette {
public:
    static constexpr int kSize = 256;

    // The colour of an index as 0x00RRGGBB.
    static Adesk::UInt32 rgb(Adesk::UInt8 index);

    // The index 1..255 whose colour is nearest (squared distance in RGB); equally near
    // colours give the lowest index, so a standard colour wins over its repeat in the hues.
    static Adesk::UInt8 closestIndex(Adesk::UInt8 red, Adesk::UInt8 green, Adesk::UInt8 blue);
};

}  // namespace headless
