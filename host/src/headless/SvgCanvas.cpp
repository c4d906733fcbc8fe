// SvgCanvas: one SVG element per recorded primitive.
#include "SvgCanvas.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <sstream>

#include "PrimitiveGeometry.h"
#include "headless/TextCodec.h"

namespace hostfile {

namespace {

using headless::PrimitiveKind;
using headless::RecordedPrimitive;

constexpr double kPi = 3.14159265358979323846;
// Curves not in the page's plane are flattened into segments of at most this angle.
constexpr double kFlatteningStep = kPi / 72.0;
// A normal this close to the z axis keeps its curve a true SVG circle or arc.
constexpr double kPlanTolerance = 1e-9;

// +1 for a normal along +z, -1 along -z, 0 for any other.
int planSense(const AcGeVector3d& normal)
{
    if (std::fabs(normal.x) > kPlanTolerance || std::fabs(normal.y) > kPlanTolerance)
        return 0;
    return normal.z > 0 ? 1 : (normal.z < 0 ? -1 : 0);
}

double numberAt(const RecordedPrimitive& p, std::size_t i, double fallback)
{
    return i < p.numbers.size() ? p.numbers[i] : fallback;
}

}  // namespace

std::string SvgCanvas::number(double value)
{
    return headless::formatRecordedNumber(std::isfinite(value) ? value : 0.0);
}

std::string SvgCanvas::escape(const std::wstring& text)
{
    std::string out;
    for (char c : headless::toUtf8(text)) {
        switch (c) {
        case '&': out += "&amp;"; break;
        case '<': out += "&lt;"; break;
        case '>': out += "&gt;"; break;
        case '"': out += "&quot;"; break;
        case '\'': out += "&apos;"; break;
        default:
            // Control characters are not allowed in XML text.
            if (static_cast<unsigned char>(c) >= 0x20 || c == '\t')
                out += c;
            break;
        }
    }
    return out;
}

std::string SvgCanvas::point(const AcGePoint3d& p) const
{
    return number(p.x) + "," + number(-p.y);
}

std::string SvgCanvas::strokeAttributes(const std::string& colour, double width, bool filled,
                                        const std::string& dashArray) const
{
    std::string attributes = " stroke=\"" + colour + "\"";
    if (width != 1.0)
        attributes += " stroke-width=\"" + number(width * m_unitsPerPixel) + "\"";
    if (filled)
        attributes += " fill=\"" + colour + "\"";
    else if (!dashArray.empty())
        attributes += " stroke-dasharray=\"" + dashArray + "\"";
    return attributes;
}

std::string SvgCanvas::dashArray(const std::vector<double>& dashes) const
{
    // Runs of the same kind merge; a dot is drawn one pixel long so that it shows.
    std::vector<double> runs;
    bool drawing = true;
    bool skips = false;
    for (double dash : dashes) {
        if (!std::isfinite(dash))
            return std::string();
        const bool draws = dash >= 0.0;
        const double length = draws ? std::max(dash, m_unitsPerPixel) : -dash;
        skips = skips || !draws;
        if (runs.empty() && !draws)
            runs.push_back(0.0);  // the array starts with a drawn length
        else if (!runs.empty() && draws == drawing) {
            runs.back() += length;
            continue;
        }
        runs.push_back(length);
        drawing = draws;
    }
    if (!skips)
        return std::string();
    std::string out;
    for (std::size_t i = 0; i < runs.size(); ++i)
        out += (i == 0 ? "" : ",") + number(runs[i]);
    return out;
}

std::string SvgCanvas::polyline(const std::vector<AcGePoint3d>& points, bool closed,
                                const std::string& attributes) const
{
    if (points.size() < 2)
        return std::string();
    std::string out = closed ? "<polygon points=\"" : "<polyline points=\"";
    for (std::size_t i = 0; i < points.size(); ++i)
        out += (i == 0 ? "" : " ") + point(points[i]);
    return out + "\"" + attributes + "/>";
}

std::string SvgCanvas::circle(const RecordedPrimitive& p, const std::string& attributes) const
{
    if (p.points.empty() || p.vectors.empty() || p.numbers.empty())
        return std::string();
    if (planSense(p.vectors[0]) == 0)
        return polyline(PrimitiveGeometry::curvePoints(p, kFlatteningStep), true, attributes);
    return "<circle cx=\"" + number(p.points[0].x) + "\" cy=\"" + number(-p.points[0].y) + "\" r=\"" +
           number(p.numbers[0]) + "\"" + attributes + "/>";
}

// In the page, y runs down: an arc counter-clockwise about +z is drawn with the SVG sweep
// flag 0, one about -z with 1.
std::string SvgCanvas::arc(const RecordedPrimitive& p, const std::string& attributes) const
{
    if (p.points.size() < 3 || p.vectors.empty() || p.numbers.size() < 2)
        return std::string();
    const double sweep = p.numbers[1];
    const int sense = planSense(p.vectors[0]);
    const auto type = static_cast<AcGiArcType>(p.integers.empty() ? 0 : p.integers[0]);
    std::string path;
    if (sense == 0 || std::fabs(sweep) >= 2.0 * kPi - 1e-12) {
        const std::vector<AcGePoint3d> points = PrimitiveGeometry::curvePoints(p, kFlatteningStep);
        if (points.empty())
            return std::string();
        path = "M" + point(points[0]);
        for (std::size_t i = 1; i < points.size(); ++i)
            path += " L" + point(points[i]);
    } else {
        const bool large = std::fabs(sweep) > kPi;
        const bool counterClockwise = (sweep > 0) == (sense > 0);
        const std::string radius = number(p.numbers[0]);
        path = "M" + point(p.points[1]) + " A" + radius + "," + radius + " 0 " + (large ? "1" : "0") + "," +
               (counterClockwise ? "0" : "1") + " " + point(p.points[2]);
    }
    if (type == kAcGiArcSector)
        path += " L" + point(p.points[0]) + " Z";
    else if (type == kAcGiArcChord)
        path += " Z";
    return "<path d=\"" + path + "\"" + attributes + "/>";
}

// A lightweight polyline: its vertices, and per vertex a bulge (after the elevation, every
// third number); positive bulges turn counter-clockwise about the normal. Out of the
// page's plane the arcs are drawn as their chords.
std::string SvgCanvas::bulgePath(const RecordedPrimitive& p, const std::string& attributes) const
{
    const std::size_t n = p.points.size();
    const bool closed = p.integers.size() >= 3 && p.integers[2] != 0;
    if (n < 2)
        return std::string();
    const int sense = p.vectors.empty() ? 0 : planSense(p.vectors[0]);
    if (sense == 0 || p.numbers.size() < 1 + 3 * n)
        return polyline(p.points, closed, attributes);
    std::string path = "M" + point(p.points[0]);
    const std::size_t segments = closed ? n : n - 1;
    for (std::size_t i = 0; i < segments; ++i) {
        const AcGePoint3d& from = p.points[i];
        const AcGePoint3d& to = p.points[(i + 1) % n];
        const double bulge = p.numbers[1 + 3 * i];
        const double chord = from.distanceTo(to);
        if (bulge == 0.0 || chord == 0.0 || !std::isfinite(bulge)) {
            path += (closed && i + 1 == n) ? " Z" : " L" + point(to);
            continue;
        }
        const double radius = chord * (1.0 + bulge * bulge) / (4.0 * std::fabs(bulge));
        const bool counterClockwise = (bulge > 0) == (sense > 0);
        path += " A" + number(radius) + "," + number(radius) + " 0 " + (std::fabs(bulge) > 1.0 ? "1" : "0") + "," +
                (counterClockwise ? "0" : "1") + " " + point(to);
    }
    if (closed && path.back() != 'Z')
        path += " Z";
    return "<path d=\"" + path + "\"" + attributes + "/>";
}

std::string SvgCanvas::text(const RecordedPrimitive& p, const std::string& colour) const
{
    if (p.points.empty() || p.text.empty())
        return std::string();
    const AcGeVector3d direction = p.vectors.size() >= 2 ? p.vectors[1] : AcGeVector3d::kXAxis;
    const double degrees = std::atan2(direction.y, direction.x) * 180.0 / kPi;
    const double height = numberAt(p, 0, p.style.textSize());
    const double widthFactor = numberAt(p, 1, 1.0);
    const double oblique = numberAt(p, 2, 0.0);
    std::ostringstream out;
    out << "<text transform=\"translate(" << point(p.points[0]) << ")";
    if (degrees != 0.0)
        out << " rotate(" << number(-degrees) << ")";
    if (widthFactor != 1.0 && widthFactor > 0.0)
        out << " scale(" << number(widthFactor) << ",1)";
    if (oblique != 0.0)
        out << " skewX(" << number(-oblique * 180.0 / kPi) << ")";
    out << "\" font-size=\"" << number(height) << "\" fill=\"" << colour << "\">" << escape(p.text) << "</text>";
    return out.str();
}

// Lines without end reach across the picture (its diagonal twice over each way).
std::string SvgCanvas::endlessLine(const RecordedPrimitive& p, bool bothWays, const std::string& attributes) const
{
    if (p.points.size() < 2 || m_extents.isEmpty())
        return std::string();
    const AcGeVector3d along = p.points[1] - p.points[0];
    const double length = along.length();
    if (length == 0.0)
        return std::string();
    const double reach = 2.0 * (m_extents.maxPoint() - m_extents.minPoint()).length() +
                         (p.points[0] - m_extents.minPoint()).length();
    const AcGeVector3d step = along / length * reach;
    return polyline({bothWays ? p.points[0] - step : p.points[0], p.points[0] + step}, false, attributes);
}

std::string SvgCanvas::element(const RecordedPrimitive& p, const std::string& colour, double strokeWidth,
                               const std::vector<double>& dashes) const
{
    const bool filled = p.traits.fillType == kAcGiFillAlways;
    const std::string dash = dashArray(dashes);
    const std::string stroke = strokeAttributes(colour, strokeWidth, false, dash);
    switch (p.kind) {
    case PrimitiveKind::kCircle: return circle(p, strokeAttributes(colour, strokeWidth, filled, dash));
    case PrimitiveKind::kArc:
        return arc(p, strokeAttributes(colour, strokeWidth, filled && !p.integers.empty() && p.integers[0] != 0, dash));
    case PrimitiveKind::kPolyline:
    case PrimitiveKind::kWorldLine:
        return polyline(p.points, false, stroke);
    case PrimitiveKind::kPolygon: return polyline(p.points, true, strokeAttributes(colour, strokeWidth, filled, dash));
    case PrimitiveKind::kPline:
        return bulgePath(p, stroke);
    case PrimitiveKind::kMesh: {
        std::string out;
        const long long rows = p.integers.size() >= 2 ? p.integers[0] : 0;
        const long long columns = p.integers.size() >= 2 ? p.integers[1] : 0;
        const auto size = static_cast<long long>(p.points.size());
        if (rows <= 0 || columns <= 0 || rows > size || columns > size || rows * columns != size)
            return polyline(p.points, false, stroke);
        for (long long r = 0; r < rows; ++r) {
            std::vector<AcGePoint3d> row(p.points.begin() + r * columns, p.points.begin() + (r + 1) * columns);
            out += polyline(row, false, stroke);
        }
        for (long long c = 0; c < columns; ++c) {
            std::vector<AcGePoint3d> column;
            for (long long r = 0; r < rows; ++r)
                column.push_back(p.points[static_cast<std::size_t>(r * columns + c)]);
            out += polyline(column, false, stroke);
        }
        return out;
    }
    case PrimitiveKind::kShell: {
        // Faces: a vertex count and that many indices; holes (negative counts) as faces.
        std::string out;
        for (std::size_t i = 0; i < p.integers.size();) {
            const long long given = p.integers[i++];
            const long long count = given == LLONG_MIN ? 0 : (given < 0 ? -given : given);
            std::vector<AcGePoint3d> face;
            for (long long k = 0; k < count && i < p.integers.size(); ++k, ++i) {
                const long long index = p.integers[i];
                if (index >= 0 && static_cast<std::size_t>(index) < p.points.size())
                    face.push_back(p.points[static_cast<std::size_t>(index)]);
            }
            out += polyline(face, true, strokeAttributes(colour, strokeWidth, filled, dash));
        }
        return out;
    }
    case PrimitiveKind::kText:
        return text(p, colour);
    case PrimitiveKind::kXline:
        return endlessLine(p, true, stroke);
    case PrimitiveKind::kRay:
        return endlessLine(p, false, stroke);
    case PrimitiveKind::kExtents:
    case PrimitiveKind::kClip:
    case PrimitiveKind::kClipEnd:
        return std::string();
    }
    return std::string();
}

}  // namespace hostfile
