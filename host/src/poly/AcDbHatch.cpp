// AcDbHatch: construction, the pattern, the hatch's own properties and its loops.
#include "AcDbHatch.h"

#include <cmath>

#include "HatchPattern.h"
#include "gearc2d.h"
#include "gelnsg2d.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbHatch, AcDbEntity, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, HATCH, HeadlessHost)

namespace {

// Loop vertices (and edge ends) this close are the same point.
constexpr double kSameVertex = 1e-10;
// Edges given for a loop must meet within this (drawing units).
constexpr double kEdgeJoin = 1e-8;
// An arc edge sweeping this far is a whole circle.
constexpr double kWholeTurn = 6.283185307179586 - 1e-12;

}  // namespace

AcDbHatch::AcDbHatch() = default;

AcDbHatch::~AcDbHatch() = default;

AcDbHatch::HatchPatternType AcDbHatch::patternType() const
{
    assertReadEnabled();
    return m_patternType;
}

const ACHAR* AcDbHatch::patternName() const
{
    assertReadEnabled();
    return m_patternName.c_str();
}

Acad::ErrorStatus AcDbHatch::setPattern(HatchPatternType patType, const ACHAR* patName)
{
    assertWriteEnabled();
    std::wstring canonical;
    std::vector<hostpoly::PatternLine> lines;
    switch (patType) {
    case kUserDefined:
        canonical = hostpoly::kUserPatternName;
        break;
    case kPreDefined:
    case kCustomDefined:
        // The headless host has no pattern files: custom names are looked up among the
        // built-in patterns too.
        if (!hostpoly::findPattern(patName, canonical, lines))
            return Acad::eInvalidInput;
        break;
    default:
        return Acad::eInvalidInput;
    }
    m_patternType = patType;
    m_patternName = canonical;
    dropLines();
    return Acad::eOk;
}

Adesk::Boolean AcDbHatch::isSolidFill() const
{
    assertReadEnabled();
    return m_patternType != kUserDefined && m_patternName == hostpoly::kSolidPatternName;
}

double AcDbHatch::patternAngle() const
{
    assertReadEnabled();
    return m_patternAngle;
}

Acad::ErrorStatus AcDbHatch::setPatternAngle(double angle)
{
    assertWriteEnabled();
    if (!std::isfinite(angle))
        return Acad::eInvalidInput;
    m_patternAngle = angle;
    dropLines();
    return Acad::eOk;
}

double AcDbHatch::patternScale() const
{
    assertReadEnabled();
    return m_patternScale;
}

Acad::ErrorStatus AcDbHatch::setPatternScale(double scale)
{
    assertWriteEnabled();
    if (!std::isfinite(scale) || scale <= 0.0)
        return Acad::eInvalidInput;
    m_patternScale = scale;
    dropLines();
    return Acad::eOk;
}

double AcDbHatch::patternSpace() const
{
    assertReadEnabled();
    return m_patternSpace;
}

Acad::ErrorStatus AcDbHatch::setPatternSpace(double space)
{
    assertWriteEnabled();
    if (!std::isfinite(space) || space <= 0.0)
        return Acad::eInvalidInput;
    m_patternSpace = space;
    dropLines();
    return Acad::eOk;
}

Adesk::Boolean AcDbHatch::patternDouble() const
{
    assertReadEnabled();
    return m_patternDouble;
}

Acad::ErrorStatus AcDbHatch::setPatternDouble(Adesk::Boolean isDouble)
{
    assertWriteEnabled();
    m_patternDouble = isDouble;
    dropLines();
    return Acad::eOk;
}

AcGePoint2d AcDbHatch::originPoint() const
{
    assertReadEnabled();
    return m_origin;
}

Acad::ErrorStatus AcDbHatch::setOriginPoint(const AcGePoint2d& pt)
{
    assertWriteEnabled();
    if (!std::isfinite(pt.x) || !std::isfinite(pt.y))
        return Acad::eInvalidInput;
    m_origin = pt;
    dropLines();
    return Acad::eOk;
}

Adesk::Boolean AcDbHatch::associative() const
{
    assertReadEnabled();
    return m_associative;
}

Acad::ErrorStatus AcDbHatch::setAssociative(Adesk::Boolean isAssociative)
{
    assertWriteEnabled();
    m_associative = isAssociative;
    return Acad::eOk;
}

AcGeVector3d AcDbHatch::normal() const
{
    assertReadEnabled();
    return m_normal;
}

Acad::ErrorStatus AcDbHatch::setNormal(const AcGeVector3d& normal)
{
    assertWriteEnabled();
    const double len = normal.length();
    if (!std::isfinite(len) || len == 0.0)
        return Acad::eInvalidInput;
    m_normal = normal / len;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbHatch::elevation() const
{
    assertReadEnabled();
    return m_elevation;
}

Acad::ErrorStatus AcDbHatch::setElevation(double elevation)
{
    assertWriteEnabled();
    if (!std::isfinite(elevation))
        return Acad::eInvalidInput;
    m_elevation = elevation;
    recordGraphicsModified();
    return Acad::eOk;
}

AcDbHatch::HatchStyle AcDbHatch::hatchStyle() const
{
    assertReadEnabled();
    return m_style;
}

Acad::ErrorStatus AcDbHatch::setHatchStyle(HatchStyle hstyle)
{
    assertWriteEnabled();
    if (hstyle != kNormal && hstyle != kOuter && hstyle != kIgnore)
        return Acad::eInvalidInput;
    m_style = hstyle;
    dropLines();
    return Acad::eOk;
}

AcDbHatch::HatchObjectType AcDbHatch::hatchObjectType() const
{
    return kHatchObject;
}

Adesk::Boolean AcDbHatch::isGradient() const
{
    return Adesk::kFalse;
}

int AcDbHatch::numLoops() const
{
    assertReadEnabled();
    return static_cast<int>(m_loops.size());
}

Adesk::Int32 AcDbHatch::loopTypeAt(int loopIndex) const
{
    assertReadEnabled();
    if (loopIndex < 0 || loopIndex >= static_cast<int>(m_loops.size()))
        return -1;
    return m_loops[loopIndex].type;
}

Acad::ErrorStatus AcDbHatch::makeLoop(Adesk::Int32 loopType, const AcGePoint2dArray& vertices,
                                      const AcGeDoubleArray& bulges, Loop& loop) const
{
    if (bulges.length() != 0 && bulges.length() != vertices.length())
        return Acad::eInvalidInput;
    loop.vertices.reserve(static_cast<std::size_t>(vertices.length()));
    loop.bulges.reserve(static_cast<std::size_t>(vertices.length()));
    for (int i = 0; i < vertices.length(); ++i) {
        const double bulge = bulges.length() != 0 ? bulges[i] : 0.0;
        if (!std::isfinite(vertices[i].x) || !std::isfinite(vertices[i].y) || !std::isfinite(bulge))
            return Acad::eInvalidInput;
        loop.vertices.push_back(vertices[i]);
        loop.bulges.push_back(bulge);
    }
    // The closing vertex may be given again; the loop closes by itself.
    if (loop.vertices.size() > 1 && loop.vertices.back().distanceTo(loop.vertices.front()) <= kSameVertex) {
        loop.vertices.pop_back();
        loop.bulges.pop_back();
    }
    size_t distinct = 0;
    for (size_t i = 0; i < loop.vertices.size(); ++i) {
        if (loop.vertices[i].distanceTo(loop.vertices[(i + 1) % loop.vertices.size()]) > kSameVertex)
            ++distinct;
    }
    if (loop.vertices.size() < 2 || distinct < 2)
        return Acad::eInvalidInput;
    loop.type = loopType | kPolyline;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbHatch::appendLoop(Adesk::Int32 loopType, const AcGePoint2dArray& vertices,
                                        const AcGeDoubleArray& bulges)
{
    return insertLoopAt(numLoops(), loopType, vertices, bulges);
}

Acad::ErrorStatus AcDbHatch::appendLoop(Adesk::Int32 loopType, const AcGeVoidPointerArray& edgePtrs,
                                        const AcGeIntArray& edgeTypes)
{
    assertWriteEnabled();
    if (edgePtrs.length() == 0 || edgePtrs.length() != edgeTypes.length())
        return Acad::eInvalidInput;
    Loop loop;
    AcGePoint2d previousEnd;
    for (int i = 0; i < edgePtrs.length(); ++i) {
        if (edgePtrs[i] == nullptr)
            return Acad::eInvalidInput;
        AcGePoint2d start;
        AcGePoint2d end;
        double bulge = 0.0;
        bool whole = false;
        AcGePoint2d halfway;
        switch (edgeTypes[i]) {
        case kLine: {
            const auto* line = static_cast<const AcGeLineSeg2d*>(edgePtrs[i]);
            start = line->startPoint();
            end = line->endPoint();
            break;
        }
        case kCirArc: {
            const auto* arc = static_cast<const AcGeCircArc2d*>(edgePtrs[i]);
            start = arc->startPoint();
            end = arc->endPoint();
            const double sweep = arc->endAng() - arc->startAng();
            const double sense = arc->isClockWise() ? -1.0 : 1.0;
            // A whole circle is kept as two half turns.
            whole = sweep >= kWholeTurn;
            halfway = arc->evalPoint(arc->startAng() + sweep / 2.0);
            bulge = whole ? sense : sense * std::tan(sweep / 4.0);
            break;
        }
        case kEllArc:
        case kSpline:
            return Acad::eNotImplementedYet;
        default:
            return Acad::eInvalidInput;
        }
        if (i > 0 && previousEnd.distanceTo(start) > kEdgeJoin)
            return Acad::eInvalidInput;
        loop.vertices.push_back(start);
        loop.bulges.push_back(bulge);
        if (whole) {
            loop.vertices.push_back(halfway);
            loop.bulges.push_back(bulge);
        }
        previousEnd = end;
    }
    if (previousEnd.distanceTo(loop.vertices.front()) > kEdgeJoin)
        return Acad::eInvalidInput;
    if (loop.vertices.size() < 2)
        return Acad::eInvalidInput;
    loop.type = loopType;
    m_loops.push_back(std::move(loop));
    dropLines();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbHatch::insertLoopAt(int loopIndex, Adesk::Int32 loopType, const AcGePoint2dArray& vertices,
                                          const AcGeDoubleArray& bulges)
{
    assertWriteEnabled();
    if (loopIndex < 0 || loopIndex > static_cast<int>(m_loops.size()))
        return Acad::eInvalidIndex;
    Loop loop;
    const Acad::ErrorStatus es = makeLoop(loopType, vertices, bulges, loop);
    if (es != Acad::eOk)
        return es;
    m_loops.insert(m_loops.begin() + loopIndex, std::move(loop));
    dropLines();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbHatch::getLoopAt(int loopIndex, Adesk::Int32& loopType, AcGePoint2dArray& vertices,
                                       AcGeDoubleArray& bulges) const
{
    assertReadEnabled();
    if (loopIndex < 0 || loopIndex >= static_cast<int>(m_loops.size()))
        return Acad::eInvalidIndex;
    const Loop& loop = m_loops[loopIndex];
    loopType = loop.type;
    vertices.removeAll();
    bulges.removeAll();
    for (size_t i = 0; i < loop.vertices.size(); ++i) {
        vertices.append(loop.vertices[i]);
        bulges.append(loop.bulges[i]);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbHatch::getLoopAt(int loopIndex, Adesk::Int32& loopType, AcGeVoidPointerArray& edgePtrs,
                                       AcGeIntArray& edgeTypes) const
{
    assertReadEnabled();
    if (loopIndex < 0 || loopIndex >= static_cast<int>(m_loops.size()))
        return Acad::eInvalidIndex;
    const Loop& loop = m_loops[loopIndex];
    loopType = loop.type;
    const size_t n = loop.vertices.size();
    for (size_t i = 0; i < n; ++i) {
        const AcGePoint2d& start = loop.vertices[i];
        const AcGePoint2d& end = loop.vertices[(i + 1) % n];
        if (start.distanceTo(end) <= kSameVertex)
            continue;
        if (loop.bulges[i] == 0.0) {
            edgePtrs.append(new AcGeLineSeg2d(start, end));
            edgeTypes.append(kLine);
        } else {
            edgePtrs.append(new AcGeCircArc2d(start, end, loop.bulges[i], Adesk::kFalse));
            edgeTypes.append(kCirArc);
        }
    }
    return Acad::eOk;
}

Acad::ErrorStatus AcDbHatch::removeLoopAt(int loopIndex)
{
    assertWriteEnabled();
    if (loopIndex < 0 || loopIndex >= static_cast<int>(m_loops.size()))
        return Acad::eInvalidIndex;
    m_loops.erase(m_loops.begin() + loopIndex);
    dropLines();
    return Acad::eOk;
}

void AcDbHatch::dropLines()
{
    m_evaluated = false;
    m_lines.clear();
    recordGraphicsModified();
}
