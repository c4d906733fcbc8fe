// SvgCanvas: turns recorded primitives into SVG elements in page coordinates (the world's
// x, and y negated), one element per primitive, in the colour and stroke width given.
#pragma once

#include <string>

#include "AcDbExtents.h"
#include "headless/RecordedPrimitive.h"

namespace hostfile {

class SvgCanvas {
public:
    // extents: what the picture shows (for lines without end: xlines and rays);
    // unitsPerPixel: how many drawing units one pixel of the picture spans.
    SvgCanvas(const AcDbExtents& extents, double unitsPerPixel) : m_extents(extents), m_unitsPerPixel(unitsPerPixel) {}

    // The element for the primitive, or empty for primitives a picture does not show
    // (declared extents, clips). colour: "#rrggbb"; strokeWidth in pixels; dashes: the
    // linetype's pattern in drawing units (positive draws, negative skips, zero is a dot),
    // empty for a continuous line.
    std::string element(const headless::RecordedPrimitive& p, const std::string& colour, double strokeWidth,
                        const std::vector<double>& dashes = {}) const;

    // A linetype's pattern as an SVG dash array (alternate drawn and skipped lengths, the
    // first drawn), or empty when it has nothing to skip.
    std::string dashArray(const std::vector<double>& dashes) const;

    // Text with the characters XML reserves escaped, as UTF-8.
    static std::string escape(const std::wstring& text);
    static std::string number(double value);

private:
    std::string point(const AcGePoint3d& p) const;
    std::string strokeAttributes(const std::string& colour, double width, bool filled,
                                 const std::string& dashArray) const;
    std::string polyline(const std::vector<AcGePoint3d>& points, bool closed, const std::string& attributes) const;
    std::string circle(const headless::RecordedPrimitive& p, const std::string& attributes) const;
    std::string arc(const headless::RecordedPrimitive& p, const std::string& attributes) const;
    std::string bulgePath(const headless::RecordedPrimitive& p, const std::string& attributes) const;
    std::string text(const headless::RecordedPrimitive& p, const std::string& colour) const;
    std::string endlessLine(const headless::RecordedPrimitive& p, bool bothWays, const std::string& attributes) const;

    AcDbExtents m_extents;
    double m_unitsPerPixel;
};

}  // namespace hostfile
