// SvgPlot: a drawing's model space as an SVG picture. Every entity is drawn through the
// recording world draw (proxies draw their kept graphics) and its primitives become SVG
// shapes: lines, polylines (arcs of bulges included), circles, arcs, texts with their
// direction and height; the y axis is flipped so that the picture looks as the drawing
// does. Colours are the host's colours (index colours through the palette, by-layer
// through the layer's colour, index 7 and by-block as black on the white page); each
// layer is a group <g id="layer-NAME">; the view box is the drawing's extents with a
// margin; texts use a font list that shows Chinese.
#pragma once

#include <string>

#include "AcDbDatabase.h"

namespace headless {

struct ACHOST_API SvgPlotOptions {
    // The margin around the extents, as a fraction of their larger side.
    double marginFraction = 0.05;
    // The picture's width in pixels; the height follows the extents' proportions.
    int widthPixels = 1200;
    // Shown as the document's title when not empty.
    std::wstring title;
};

class ACHOST_API SvgPlot {
public:
    // The SVG document, UTF-8.
    static std::string render(AcDbDatabase* db, const SvgPlotOptions& options = SvgPlotOptions());
    // Writes the document to path. eFilerError when the file cannot be written.
    static Acad::ErrorStatus plot(AcDbDatabase* db, const std::wstring& path,
                                  const SvgPlotOptions& options = SvgPlotOptions());
};

}  // namespace headless
