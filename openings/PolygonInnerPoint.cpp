// PolygonInnerPoint: a search over square cells, best first. A cell can hold no point
// farther from the edges than its centre's distance plus its half-diagonal, so cells that
// cannot beat the best point found by more than the precision are not split further.
#include "PolygonInnerPoint.h"

#include <algorithm>
#include <cmath>
#include <queue>

#include "dbpl.h"

namespace {

// The search stops this close (relative to the polygon's larger extent) to the best point.
constexpr double kRelativePrecision = 1e-3;
// An upper bound on point-to-edge distance evaluations, so that a polygon of very many
// vertices still costs milliseconds; the search then returns the best point so far.
constexpr std::size_t kEvaluationBudget = 1000000;
// The first grid has at most this many cells along the polygon's longer side.
constexpr double kMaxInitialCellsAcross = 64.0;
// The list of candidate cells is pruned to those still within reach when it grows past this.
constexpr std::size_t kCandidatesBeforePruning = 4096;
// Arcs become chords of at most this angle (radians) for label placement.
constexpr double kArcStepAngle = 3.14159265358979323846 / 16.0;
constexpr int kMaxChordsPerArc = 32;

double SegmentDistanceSquared(const AcGePoint2d& p, const AcGePoint2d& a, const AcGePoint2d& b)
{
    double x = a.x;
    double y = a.y;
    double dx = b.x - x;
    double dy = b.y - y;
    if (dx != 0.0 || dy != 0.0) {
        const double t = ((p.x - x) * dx + (p.y - y) * dy) / (dx * dx + dy * dy);
        if (t > 1.0) {
            x = b.x;
            y = b.y;
        } else if (t > 0.0) {
            x += dx * t;
            y += dy * t;
        }
    }
    dx = p.x - x;
    dy = p.y - y;
    return dx * dx + dy * dy;
}

struct Cell {
    AcGePoint2d center;
    double half;       // half the cell's side
    double distance;   // from the centre to the boundary, negative outside
    double potential;  // the most any point of the cell can reach
};

struct ByPotential {
    bool operator()(const Cell& a, const Cell& b) const { return a.potential < b.potential; }
};

// The area centroid, or the mean of the points for a polygon without area.
AcGePoint2d Centroid(const std::vector<AcGePoint2d>& polygon, double& area)
{
    double cx = 0.0;
    double cy = 0.0;
    area = 0.0;
    const std::size_t n = polygon.size();
    for (std::size_t i = 0, j = n - 1; i < n; j = i++) {
        const AcGePoint2d& a = polygon[i];
        const AcGePoint2d& b = polygon[j];
        const double f = a.x * b.y - b.x * a.y;
        cx += (a.x + b.x) * f;
        cy += (a.y + b.y) * f;
        area += f * 3.0;
    }
    if (area == 0.0) {
        for (const AcGePoint2d& p : polygon) {
            cx += p.x;
            cy += p.y;
        }
        return AcGePoint2d(cx / static_cast<double>(n), cy / static_cast<double>(n));
    }
    return AcGePoint2d(cx / area, cy / area);
}

}  // namespace

double PolygonInnerPoint::SignedDistance(const std::vector<AcGePoint2d>& polygon, const AcGePoint2d& point)
{
    bool inside = false;
    double best = HUGE_VAL;
    const std::size_t n = polygon.size();
    for (std::size_t i = 0, j = n - 1; i < n; j = i++) {
        const AcGePoint2d& a = polygon[i];
        const AcGePoint2d& b = polygon[j];
        if ((a.y > point.y) != (b.y > point.y) && point.x < (b.x - a.x) * (point.y - a.y) / (b.y - a.y) + a.x)
            inside = !inside;
        best = std::min(best, SegmentDistanceSquared(point, a, b));
    }
    const double distance = std::sqrt(best);
    return inside ? distance : -distance;
}

bool PolygonInnerPoint::Find(const std::vector<AcGePoint2d>& polygon, AcGePoint2d& point)
{
    if (polygon.empty())
        return false;
    double minX = polygon[0].x;
    double minY = polygon[0].y;
    double maxX = minX;
    double maxY = minY;
    for (const AcGePoint2d& p : polygon) {
        minX = std::min(minX, p.x);
        minY = std::min(minY, p.y);
        maxX = std::max(maxX, p.x);
        maxY = std::max(maxY, p.y);
    }
    const double width = maxX - minX;
    const double height = maxY - minY;
    if (!std::isfinite(width) || !std::isfinite(height))
        return false;
    const AcGePoint2d boxCenter(minX + width * 0.5, minY + height * 0.5);
    double area = 0.0;
    const AcGePoint2d centroid = polygon.size() >= 3 ? Centroid(polygon, area) : boxCenter;
    if (polygon.size() < 3 || area == 0.0 || !std::isfinite(area) || !(std::min(width, height) > 0.0)) {
        point = boxCenter;
        return true;
    }
    // Square cells as wide as the polygon is narrow, but never more than a grid's worth
    // of them across a long thin polygon.
    const double cellSize = std::max(std::min(width, height), std::max(width, height) / kMaxInitialCellsAcross);
    const int columns = static_cast<int>(std::ceil(width / cellSize));
    const int rows = static_cast<int>(std::ceil(height / cellSize));

    const double precision = kRelativePrecision * std::max(width, height);
    std::size_t evaluations = 0;
    double bestDistance = -HUGE_VAL;
    // Only cells that may end within the precision of the best are kept for the final
    // choice: the best only grows, so a cell left out now would be left out at the end.
    std::vector<Cell> candidates;
    std::size_t pruneAt = kCandidatesBeforePruning;
    auto makeCell = [&](const AcGePoint2d& center, double half) {
        evaluations += polygon.size();
        const double distance = SignedDistance(polygon, center);
        const Cell cell{center, half, distance, distance + half * std::sqrt(2.0)};
        if (distance >= bestDistance - precision)
            candidates.push_back(cell);
        return cell;
    };

    // A cell that cannot beat the best by more than the precision is never split, so it is
    // not queued at all: the queue of a polygon with a far-out spike would otherwise hold
    // hundreds of thousands of such cells.
    std::priority_queue<Cell, std::vector<Cell>, ByPotential> queue;
    auto consider = [&](const Cell& cell) {
        bestDistance = std::max(bestDistance, cell.distance);
        if (cell.potential - bestDistance > precision)
            queue.push(cell);
    };
    consider(makeCell(centroid, 0.0));
    consider(makeCell(boxCenter, 0.0));
    const double half = cellSize * 0.5;
    for (int column = 0; column < columns; ++column) {
        for (int row = 0; row < rows; ++row)
            consider(makeCell(AcGePoint2d(minX + column * cellSize + half, minY + row * cellSize + half), half));
    }

    while (!queue.empty() && evaluations < kEvaluationBudget) {
        const Cell cell = queue.top();
        queue.pop();
        if (cell.potential - bestDistance <= precision)
            continue;
        const double quarter = cell.half * 0.5;
        for (const double dx : {-quarter, quarter}) {
            for (const double dy : {-quarter, quarter})
                consider(makeCell(AcGePoint2d(cell.center.x + dx, cell.center.y + dy), quarter));
        }
        if (candidates.size() > pruneAt) {
            const double floor = bestDistance - precision;
            candidates.erase(std::remove_if(candidates.begin(), candidates.end(),
                                            [floor](const Cell& c) { return c.distance < floor; }),
                             candidates.end());
            pruneAt = std::max(kCandidatesBeforePruning, 2 * candidates.size());
        }
    }

    // Of the points within the precision of the best, the one nearest the centroid: a
    // choice that does not hang on which of many equally good cells was split first.
    const Cell* chosen = nullptr;
    for (const Cell& cell : candidates) {
        if (cell.distance < bestDistance - precision)
            continue;
        if (chosen == nullptr || cell.center.distanceTo(centroid) < chosen->center.distanceTo(centroid))
            chosen = &cell;
    }
    point = chosen->center;
    return true;
}

std::vector<AcGePoint2d> PolygonInnerPoint::Flatten(const AcDbPolyline& polyline)
{
    std::vector<AcGePoint2d> points;
    const unsigned int n = polyline.numVerts();
    const unsigned int segments = polyline.isClosed() ? n : (n > 0 ? n - 1 : 0);
    for (unsigned int i = 0; i < n; ++i) {
        AcGePoint2d from;
        polyline.getPointAt(i, from);
        points.push_back(from);
        double bulge = 0.0;
        if (i >= segments || polyline.getBulgeAt(i, bulge) != Acad::eOk || bulge == 0.0 || !std::isfinite(bulge))
            continue;
        AcGePoint2d to;
        polyline.getPointAt((i + 1) % n, to);
        const AcGeVector2d chord = to - from;
        const double length = chord.length();
        if (length == 0.0)
            continue;
        // The arc's sweep is four times the bulge's arctangent; its centre lies on the
        // chord's perpendicular bisector, to the left for a positive (counter-clockwise) bulge.
        const double sweep = 4.0 * std::atan(bulge);
        const double radius = length * (1.0 + bulge * bulge) / (4.0 * std::fabs(bulge));
        const AcGePoint2d middle = from + chord * 0.5;
        const AcGeVector2d left(-chord.y / length, chord.x / length);
        const double sagittaToCenter = radius - std::fabs(bulge) * length * 0.5;
        const AcGePoint2d center = middle + left * (bulge > 0.0 ? sagittaToCenter : -sagittaToCenter);
        const double startAngle = std::atan2(from.y - center.y, from.x - center.x);
        const int steps =
            std::clamp(static_cast<int>(std::ceil(std::fabs(sweep) / kArcStepAngle)), 2, kMaxChordsPerArc);
        for (int k = 1; k < steps; ++k) {
            const double angle = startAngle + sweep * static_cast<double>(k) / static_cast<double>(steps);
            points.emplace_back(center.x + radius * std::cos(angle), center.y + radius * std::sin(angle));
        }
    }
    return points;
}
