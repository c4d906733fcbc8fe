// LineListing: the parts of the list output that the layout lines print alike: the
// heading with the chord's basic geometry, and the section of the three JSON blocks.
#pragma once

#include "AcString.h"
#include "gepnt3d.h"

class LineJsonBlocks;

class LineListing {
public:
    // The list prints angles with this rounded pi, as it always has.
    static constexpr double kListPi = 3.14159265359;

    // Whether each JSON block that has text is followed by its length in characters.
    enum class JsonLengths { kShown, kOmitted };

    // The title, "[Basic Geometry Info]", the start and end points, the segment length and
    // the direction angle of start -> end; answers the segment length.
    static double PrintBasicGeometry(const ACHAR* title, const AcGePoint3d& start, const AcGePoint3d& end);
    // "[JSON Data Info]" and the three blocks, "[无数据]" for an empty one.
    static void PrintJsonSection(const LineJsonBlocks& json, JsonLengths lengths);
};
