// Qx::WorldDrawUtil: drawing host geometry into a world draw.
#pragma once

class AcDbPolyline;
class AcGiWorldDraw;

namespace Qx {

class WorldDrawUtil {
public:
    // Draws the polyline with its bulges (and widths) as one primitive; answers true when
    // the regeneration was aborted. A null polyline or draw draws nothing.
    static bool DrawPolyline(AcGiWorldDraw* worldDraw, const AcDbPolyline* polyline);
};

}  // namespace Qx
