// AcDbHatch: the pattern's lines, area, filing, drawing, listing, transformation and extents.
#include <cmath>

#include "AcDbHatch.h"
#include "AcGiWorldDraw.h"
#include "HatchFill.h"
#include "PolylineView.h"
#include "ents/EntityFiling.h"
#include "ents/EntityListing.h"

namespace {

// The hatch's own fields on file: version 1.
constexpr Adesk::Int16 kHatchVersion = 1;
// Axis lengths and the cosine between the transformed plane axes within this (relatively)
// count as a uniform scale of the plane.
constexpr double kUniformScaleTolerance = 1e-9;

AcGeVector2d turned(const AcGeVector2d& v, double angle)
{
    const double c = std::cos(angle);
    const double s = std::sin(angle);
    return AcGeVector2d(v.x * c - v.y * s, v.x * s + v.y * c);
}

// The boundaries of loops given as vertices with one bulge each.
template <class Loops>
std::vector<hostpoly::HatchBoundary> boundariesOf(const Loops& loops)
{
    std::vector<hostpoly::HatchBoundary> boundaries;
    for (const auto& loop : loops) {
        hostpoly::HatchBoundary boundary;
        const size_t n = loop.vertices.size();
        for (size_t i = 0; i < n; ++i)
            boundary.segments.emplace_back(loop.vertices[i], loop.vertices[(i + 1) % n], loop.bulges[i]);
        boundaries.push_back(std::move(boundary));
    }
    return boundaries;
}

AcGePoint3d worldOf(const hostpoly::OcsFrame& frame, const AcGePoint2d& p)
{
    return frame.toWorld(p);
}

// The pattern's lines in the hatch's plane: turned by the hatch's angle, scaled, and based
// at its origin.
std::vector<hostpoly::PatternLine> hatchPattern(AcDbHatch::HatchPatternType type, const std::wstring& name, double angle,
                                      double scale, double space, bool doubled, const AcGePoint2d& origin)
{
    std::vector<hostpoly::PatternLine> lines;
    if (type == AcDbHatch::kUserDefined) {
        lines = hostpoly::userDefinedPattern(angle, space, doubled);
        for (hostpoly::PatternLine& line : lines) {
            line.baseX = origin.x;
            line.baseY = origin.y;
        }
        return lines;
    }
    std::wstring canonical;
    if (!hostpoly::findPattern(name.c_str(), canonical, lines))
        return {};
    for (hostpoly::PatternLine& line : lines) {
        const AcGeVector2d base = turned(AcGeVector2d(line.baseX, line.baseY) * scale, angle);
        line.angle += angle;
        line.baseX = origin.x + base.x;
        line.baseY = origin.y + base.y;
        line.offsetX *= scale;
        line.offsetY *= scale;
        for (double& dash : line.dashes)
            dash *= scale;
    }
    return lines;
}

}  // namespace

int AcDbHatch::numPatternDefinitions() const
{
    assertReadEnabled();
    return static_cast<int>(hatchPattern(m_patternType, m_patternName, m_patternAngle, m_patternScale,
                                                   m_patternSpace, m_patternDouble, m_origin)
                                .size());
}

Acad::ErrorStatus AcDbHatch::getPatternDefinitionAt(int index, double& angle, double& baseX, double& baseY,
                                                    double& offsetX, double& offsetY, AcGeDoubleArray& dashes) const
{
    assertReadEnabled();
    const std::vector<hostpoly::PatternLine> lines = hatchPattern(
        m_patternType, m_patternName, m_patternAngle, m_patternScale, m_patternSpace, m_patternDouble, m_origin);
    if (index < 0 || index >= static_cast<int>(lines.size()))
        return Acad::eInvalidIndex;
    const hostpoly::PatternLine& line = lines[index];
    angle = line.angle;
    baseX = line.baseX;
    baseY = line.baseY;
    offsetX = line.offsetX;
    offsetY = line.offsetY;
    dashes.removeAll();
    for (double dash : line.dashes)
        dashes.append(dash);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbHatch::computeLines(std::vector<Line2d>& lines) const
{
    lines.clear();
    if (isSolidFill())
        return Acad::eOk;
    const std::vector<hostpoly::PatternLine> pattern = hatchPattern(
        m_patternType, m_patternName, m_patternAngle, m_patternScale, m_patternSpace, m_patternDouble, m_origin);
    const std::vector<hostpoly::HatchBoundary> boundaries = boundariesOf(m_loops);
    std::vector<hostpoly::HatchSegment> pieces;
    const Acad::ErrorStatus es =
        hostpoly::clipPatternLines(boundaries, hostpoly::nestingDepths(boundaries), m_style, pattern, pieces);
    if (es != Acad::eOk)
        return es;
    // Sized once: an evaluated hatch keeps its lines as long as it lives.
    lines.reserve(pieces.size());
    for (const hostpoly::HatchSegment& piece : pieces)
        lines.push_back({piece.start, piece.end});
    return Acad::eOk;
}

Acad::ErrorStatus AcDbHatch::evaluateHatch(bool)
{
    assertWriteEnabled();
    std::vector<Line2d> lines;
    const Acad::ErrorStatus es = computeLines(lines);
    m_lines.swap(lines);
    m_evaluated = es == Acad::eOk;
    if (!m_evaluated)
        m_lines.clear();
    recordGraphicsModified();
    return es;
}

int AcDbHatch::numHatchLines() const
{
    assertReadEnabled();
    return static_cast<int>(m_lines.size());
}

Acad::ErrorStatus AcDbHatch::getHatchLineDataAt(int index, AcGePoint2d& startPt, AcGePoint2d& endPt) const
{
    assertReadEnabled();
    if (index < 0 || index >= static_cast<int>(m_lines.size()))
        return Acad::eInvalidIndex;
    startPt = m_lines[index].start;
    endPt = m_lines[index].end;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbHatch::getHatchLinesData(AcGePoint2dArray& startPts, AcGePoint2dArray& endPts) const
{
    assertReadEnabled();
    startPts.removeAll();
    endPts.removeAll();
    for (const Line2d& line : m_lines) {
        startPts.append(line.start);
        endPts.append(line.end);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbHatch::getArea(double& area) const
{
    assertReadEnabled();
    const std::vector<hostpoly::HatchBoundary> boundaries = boundariesOf(m_loops);
    area = std::fabs(hostpoly::filledArea(boundaries, hostpoly::nestingDepths(boundaries), m_style));
    return Acad::eOk;
}

// On file after the entity's fields: version, pattern type, name, angle, scale, spacing,
// double, origin, associative, normal, elevation, style, then the loops (type, vertex
// count, and each vertex with its bulge). The clipped lines are not filed: they follow
// from the rest.
Acad::ErrorStatus AcDbHatch::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = AcDbEntity::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt16(kHatchVersion);
    filer->writeInt16(static_cast<Adesk::Int16>(m_patternType));
    filer->writeString(AcString(m_patternName.c_str()));
    filer->writeDouble(m_patternAngle);
    filer->writeDouble(m_patternScale);
    filer->writeDouble(m_patternSpace);
    filer->writeBool(m_patternDouble);
    filer->writePoint2d(m_origin);
    filer->writeBool(m_associative);
    filer->writeVector3d(m_normal);
    filer->writeDouble(m_elevation);
    filer->writeInt16(static_cast<Adesk::Int16>(m_style));
    filer->writeUInt32(static_cast<Adesk::UInt32>(m_loops.size()));
    for (const Loop& loop : m_loops) {
        filer->writeInt32(loop.type);
        filer->writeUInt32(static_cast<Adesk::UInt32>(loop.vertices.size()));
        for (size_t i = 0; i < loop.vertices.size(); ++i) {
            filer->writePoint2d(loop.vertices[i]);
            filer->writeDouble(loop.bulges[i]);
        }
    }
    return filer->filerStatus();
}

// Loops and vertices are read one at a time as the data holds them: counts that promise
// more than the filer has end at the filer's error.
Acad::ErrorStatus AcDbHatch::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    Acad::ErrorStatus es = AcDbEntity::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int16 version = 0;
    es = hostents::readClassVersion(filer, kHatchVersion, version);
    if (es != Acad::eOk)
        return es;
    Adesk::Int16 type = 0;
    AcString name;
    double angle = 0.0;
    double scale = 0.0;
    double space = 0.0;
    bool doubled = false;
    AcGePoint2d origin;
    bool associative = false;
    AcGeVector3d normal;
    double elevation = 0.0;
    Adesk::Int16 style = 0;
    Adesk::UInt32 loopCount = 0;
    filer->readInt16(&type);
    filer->readString(name);
    filer->readDouble(&angle);
    filer->readDouble(&scale);
    filer->readDouble(&space);
    filer->readBool(&doubled);
    filer->readPoint2d(&origin);
    filer->readBool(&associative);
    filer->readVector3d(&normal);
    filer->readDouble(&elevation);
    filer->readInt16(&style);
    filer->readUInt32(&loopCount);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (type < kUserDefined || type > kCustomDefined || style < kNormal || style > kIgnore || !std::isfinite(angle) ||
        !std::isfinite(scale) || scale <= 0.0 || !std::isfinite(space) || space <= 0.0 ||
        !std::isfinite(origin.x) || !std::isfinite(origin.y) || !hostents::isUsableNormal(normal) ||
        !std::isfinite(elevation))
        return hostents::improperlyRead(filer);
    std::vector<Loop> loops;
    for (Adesk::UInt32 i = 0; i < loopCount; ++i) {
        Loop loop;
        Adesk::UInt32 count = 0;
        filer->readInt32(&loop.type);
        filer->readUInt32(&count);
        for (Adesk::UInt32 k = 0; k < count && filer->filerStatus() == Acad::eOk; ++k) {
            AcGePoint2d point;
            double bulge = 0.0;
            filer->readPoint2d(&point);
            filer->readDouble(&bulge);
            if (!std::isfinite(point.x) || !std::isfinite(point.y) || !std::isfinite(bulge))
                return hostents::improperlyRead(filer);
            loop.vertices.push_back(point);
            loop.bulges.push_back(bulge);
        }
        if (filer->filerStatus() != Acad::eOk)
            return filer->filerStatus();
        loops.push_back(std::move(loop));
    }
    m_patternType = static_cast<HatchPatternType>(type);
    m_patternName = name.kwszPtr();
    m_patternAngle = angle;
    m_patternScale = scale;
    m_patternSpace = space;
    m_patternDouble = doubled;
    m_origin = origin;
    m_associative = associative;
    m_normal = hostents::unitAsFiled(normal);
    m_elevation = elevation;
    m_style = static_cast<HatchStyle>(style);
    m_loops.swap(loops);
    m_evaluated = false;
    m_lines.clear();
    return Acad::eOk;
}

Adesk::Boolean AcDbHatch::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    if (worldDraw == nullptr || worldDraw->regenAbort())
        return Adesk::kTrue;
    const hostpoly::OcsFrame frame(m_normal, m_elevation);
    if (isSolidFill()) {
        const std::vector<hostpoly::HatchBoundary> boundaries = boundariesOf(m_loops);
        AcGiSubEntityTraits& traits = worldDraw->subEntityTraits();
        const AcGiFillType previous = traits.fillType();
        traits.setFillType(kAcGiFillAlways);
        for (const hostpoly::FillRegion& region :
             hostpoly::fillRegions(boundaries, hostpoly::nestingDepths(boundaries), m_style)) {
            std::vector<AcGePoint3d> points;
            for (const AcGePoint2d& p : region.outline)
                points.push_back(worldOf(frame, p));
            if (region.holes.empty()) {
                worldDraw->geometry().polygon(static_cast<Adesk::UInt32>(points.size()), points.data());
                continue;
            }
            // One face for the outline, then each hole as a face of negative count.
            std::vector<Adesk::Int32> faces;
            faces.push_back(static_cast<Adesk::Int32>(region.outline.size()));
            for (size_t i = 0; i < region.outline.size(); ++i)
                faces.push_back(static_cast<Adesk::Int32>(i));
            for (const std::vector<AcGePoint2d>& hole : region.holes) {
                faces.push_back(-static_cast<Adesk::Int32>(hole.size()));
                for (const AcGePoint2d& p : hole) {
                    faces.push_back(static_cast<Adesk::Int32>(points.size()));
                    points.push_back(worldOf(frame, p));
                }
            }
            worldDraw->geometry().shell(static_cast<Adesk::UInt32>(points.size()), points.data(),
                                        static_cast<Adesk::UInt32>(faces.size()), faces.data());
        }
        traits.setFillType(previous);
        return Adesk::kTrue;
    }
    std::vector<Line2d> computed;
    if (!m_evaluated && computeLines(computed) != Acad::eOk)
        return Adesk::kTrue;
    const std::vector<Line2d>& lines = m_evaluated ? m_lines : computed;
    for (const Line2d& line : lines) {
        if (worldDraw->regenAbort())
            break;
        const AcGePoint3d points[2] = {worldOf(frame, line.start), worldOf(frame, line.end)};
        worldDraw->geometry().polyline(2, points);
    }
    return Adesk::kTrue;
}

void AcDbHatch::subList() const
{
    assertReadEnabled();
    AcDbEntity::subList();
    static const ACHAR* const kTypeNames[] = {L"User defined", L"Predefined", L"Custom"};
    static const ACHAR* const kStyleNames[] = {L"Normal", L"Outer", L"Ignore"};
    hostents::listText(L"Hatch pattern", m_patternName.c_str());
    hostents::listLine(L"Pattern type", AcString(kTypeNames[m_patternType]));
    if (m_patternType == kUserDefined) {
        hostents::listValue(L"Spacing", m_patternSpace);
        if (m_patternDouble)
            hostents::listNote(AcString(L"Double"));
    } else {
        hostents::listValue(L"Scale", m_patternScale);
    }
    hostents::listAngle(L"Angle", m_patternAngle);
    hostents::listNote(AcString(m_associative ? L"Associative" : L"Nonassociative"));
    hostents::listLine(L"Hatch style", AcString(kStyleNames[m_style]));
    AcString loops;
    loops.format(L"%d", static_cast<int>(m_loops.size()));
    hostents::listLine(L"Loops", loops);
    double area = 0.0;
    getArea(area);
    hostents::listValue(L"area", area);
    if (m_elevation != 0.0)
        hostents::listValue(L"elevation", m_elevation);
    if (m_normal != AcGeVector3d::kZAxis)
        hostents::listVector(L"normal", m_normal);
}

Acad::ErrorStatus AcDbHatch::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    const hostpoly::OcsFrame frame(m_normal, m_elevation);
    const AcGeVector3d u = xform * frame.xAxis;
    const AcGeVector3d v = xform * frame.yAxis;
    const AcGeVector3d n = xform * frame.normal;
    const AcGeVector3d across = u.crossProduct(v);
    const double area = across.length();
    const double lu = u.length();
    const double lv = v.length();
    if (!std::isfinite(area) || area == 0.0 || std::fabs(lu - lv) > kUniformScaleTolerance * std::max(lu, lv) ||
        std::fabs(u.dotProduct(v)) > kUniformScaleTolerance * lu * lv)
        return Acad::eCannotScaleNonUniformly;
    const bool flips = across.dotProduct(n) < 0.0;
    const AcGeVector3d newNormal = flips ? -across / area : across / area;
    const hostpoly::OcsFrame target(newNormal, 0.0);

    std::vector<Loop> loops = m_loops;
    for (Loop& loop : loops) {
        for (size_t i = 0; i < loop.vertices.size(); ++i) {
            loop.vertices[i] = target.toPlane(xform * frame.toWorld(loop.vertices[i]));
            if (flips)
                loop.bulges[i] = -loop.bulges[i];
        }
    }
    const AcGePoint3d origin = xform * frame.toWorld(m_origin);
    const AcGeVector2d direction =
        target.toPlane(xform * frame.toWorld(AcGeVector2d(std::cos(m_patternAngle), std::sin(m_patternAngle))));
    m_loops.swap(loops);
    m_origin = target.toPlane(origin);
    m_elevation = target.heightOf(origin);
    m_normal = newNormal;
    m_patternAngle = std::atan2(direction.y, direction.x);
    m_patternScale *= lu;
    m_patternSpace *= lu;
    const bool wasEvaluated = m_evaluated;
    dropLines();
    if (wasEvaluated && computeLines(m_lines) == Acad::eOk)
        m_evaluated = true;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbHatch::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    if (m_loops.empty())
        return Acad::eInvalidExtents;
    const hostpoly::OcsFrame frame(m_normal, m_elevation);
    const AcGeVector3d worldAxes[3] = {AcGeVector3d::kXAxis, AcGeVector3d::kYAxis, AcGeVector3d::kZAxis};
    AcDbExtents box;
    for (const hostpoly::HatchBoundary& boundary : boundariesOf(m_loops)) {
        for (const hostpoly::BulgeSegment& seg : boundary.segments) {
            box.addPoint(frame.toWorld(seg.start()));
            for (const AcGeVector3d& axis : worldAxes) {
                double fractions[2];
                const int count = seg.extremeFractions(frame.toPlane(axis), fractions);
                for (int k = 0; k < count; ++k)
                    box.addPoint(frame.toWorld(seg.pointAt(fractions[k])));
            }
        }
    }
    extents = box;
    return Acad::eOk;
}
