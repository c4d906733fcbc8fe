// AcDbHatch: an area filled with a pattern of lines or solid, bounded by closed loops of
// lines and arcs in the object coordinate system of its normal, at its elevation. The
// hatch style decides how nested loops alternate; evaluateHatch clips the pattern's lines
// to the filled area. Boundaries are kept as given (the headless host keeps no links to
// boundary objects: associativity is a flag that is filed, nothing more). Where the host
// leaves a behaviour undocumented (a loop's repeated closing vertex, a pattern too dense
// to draw, pattern files), the comment at the call states the headless host's choice.
#pragma once

#include <string>
#include <vector>

#include "AcDbEntity.h"
#include "gedblar.h"
#include "geintarr.h"
#include "gept2dar.h"
#include "gevptar.h"

class ACHOST_API AcDbHatch : public AcDbEntity {
    ACRX_DECLARE_MEMBERS(AcDbHatch);

public:
    enum HatchPatternType { kUserDefined = 0, kPreDefined = 1, kCustomDefined = 2 };
    enum HatchStyle { kNormal = 0, kOuter = 1, kIgnore = 2 };
    // Bit flags.
    enum HatchLoopType {
        kDefault = 0,
        kExternal = 1,
        kPolyline = 2,
        kDerived = 4,
        kTextbox = 8,
        kOutermost = 0x10,
        kNotClosed = 0x20,
        kSelfIntersecting = 0x40,
        kTextIsland = 0x80,
        kDuplicate = 0x100
    };
    enum HatchEdgeType { kLine = 1, kCirArc = 2, kEllArc = 3, kSpline = 4 };
    enum HatchObjectType { kHatchObject = 0, kGradientObject = 1 };

    // No loops; a predefined pattern without a name (nothing to draw until one is set),
    // scale, spacing 1, angle 0, normal style, normal the z axis.
    AcDbHatch();
    ~AcDbHatch() override;

    HatchPatternType patternType() const;
    // "SOLID" and the other built-in names in upper case; "_USER" for a user-defined pattern.
    const ACHAR* patternName() const;
    // Predefined and custom names must be among the host's built-in patterns (SOLID, LINE,
    // ANSI31, ANSI32, ANSI37, NET, DOTS, CROSS, BRICK; any letter case): others answer
    // eInvalidInput and change nothing. A user-defined pattern draws lines patternSpace()
    // apart at patternAngle() (a second family at right angles when patternDouble()).
    Acad::ErrorStatus setPattern(HatchPatternType patType, const ACHAR* patName);
    Adesk::Boolean isSolidFill() const;
    // Radians.
    double patternAngle() const;
    Acad::ErrorStatus setPatternAngle(double angle);
    // eInvalidInput unless finite and above zero.
    double patternScale() const;
    Acad::ErrorStatus setPatternScale(double scale);
    double patternSpace() const;
    Acad::ErrorStatus setPatternSpace(double space);
    Adesk::Boolean patternDouble() const;
    Acad::ErrorStatus setPatternDouble(Adesk::Boolean isDouble);
    // The pattern's line families as drawn: angle, base point, offset and dashes after the
    // scale and angle (and spacing for a user-defined pattern) are applied.
    int numPatternDefinitions() const;
    Acad::ErrorStatus getPatternDefinitionAt(int index, double& angle, double& baseX, double& baseY, double& offsetX,
                                             double& offsetY, AcGeDoubleArray& dashes) const;
    // Where the pattern's base lies in the hatch's plane.
    AcGePoint2d originPoint() const;
    Acad::ErrorStatus setOriginPoint(const AcGePoint2d& pt);

    Adesk::Boolean associative() const;
    Acad::ErrorStatus setAssociative(Adesk::Boolean isAssociative);
    AcGeVector3d normal() const;
    // eInvalidInput for a zero or non-finite vector; stored at unit length.
    Acad::ErrorStatus setNormal(const AcGeVector3d& normal);
    double elevation() const;
    Acad::ErrorStatus setElevation(double elevation);
    HatchStyle hatchStyle() const;
    Acad::ErrorStatus setHatchStyle(HatchStyle hstyle);
    // Gradients are not part of the headless host: always kHatchObject.
    HatchObjectType hatchObjectType() const;
    Adesk::Boolean isGradient() const;

    int numLoops() const;
    // -1 for an index out of range.
    Adesk::Int32 loopTypeAt(int loopIndex) const;
    // A closed loop through the vertices; bulges empty or one per vertex (that of the
    // segment starting there). A last vertex repeating the first is dropped with its
    // bulge. The loop keeps the given type with kPolyline added. Fewer than two distinct
    // vertices, a bulge count that does not match, or non-finite values: eInvalidInput.
    Acad::ErrorStatus appendLoop(Adesk::Int32 loopType, const AcGePoint2dArray& vertices, const AcGeDoubleArray& bulges);
    // Edges AcGeLineSeg2d (kLine) and AcGeCircArc2d (kCirArc), each starting where the
    // previous one ends and the last ending at the first's start (the caller keeps them).
    // Elliptical and spline edges answer eNotImplementedYet.
    Acad::ErrorStatus appendLoop(Adesk::Int32 loopType, const AcGeVoidPointerArray& edgePtrs,
                                 const AcGeIntArray& edgeTypes);
    // As appendLoop, before loop loopIndex (numLoops() appends).
    Acad::ErrorStatus insertLoopAt(int loopIndex, Adesk::Int32 loopType, const AcGePoint2dArray& vertices,
                                   const AcGeDoubleArray& bulges);
    // Every loop reads in both forms: vertices with one bulge each (no repeated last
    // vertex), or new edges (owned by the caller) with their types.
    Acad::ErrorStatus getLoopAt(int loopIndex, Adesk::Int32& loopType, AcGePoint2dArray& vertices,
                                AcGeDoubleArray& bulges) const;
    Acad::ErrorStatus getLoopAt(int loopIndex, Adesk::Int32& loopType, AcGeVoidPointerArray& edgePtrs,
                                AcGeIntArray& edgeTypes) const;
    Acad::ErrorStatus removeLoopAt(int loopIndex);

    // Clips the pattern's lines to the filled area and keeps them (numHatchLines); any
    // change to the loops or the pattern drops them. A solid fill has no lines.
    // eOutOfRange, keeping no lines, when the pattern is too dense for the area (its lines
    // would span boundary segments, or make pieces, more than 200,000 times in all). The
    // flag is accepted and changes nothing.
    Acad::ErrorStatus evaluateHatch(bool underestimateNumLines = false);
    int numHatchLines() const;
    Acad::ErrorStatus getHatchLineDataAt(int index, AcGePoint2d& startPt, AcGePoint2d& endPt) const;
    Acad::ErrorStatus getHatchLinesData(AcGePoint2dArray& startPts, AcGePoint2dArray& endPts) const;

    // The area the style fills (for properly nested loops), never negative.
    Acad::ErrorStatus getArea(double& area) const;

    Acad::ErrorStatus dwgOutFields(AcDbDwgFiler* filer) const override;
    Acad::ErrorStatus dwgInFields(AcDbDwgFiler* filer) override;

protected:
    // A solid fill draws each filled area as a polygon (a shell when it has holes) with
    // the fill-always trait; a pattern draws its lines (evaluated for the draw when they
    // are not kept).
    Adesk::Boolean subWorldDraw(AcGiWorldDraw* worldDraw) override;
    void subList() const override;
    // The loops, the origin and the plane follow the transform; the pattern's angle turns
    // with the plane and its scale (or spacing) follows the plane's scale. A mirror runs
    // the loops the other way round. Uneven scaling answers eCannotScaleNonUniformly.
    Acad::ErrorStatus subTransformBy(const AcGeMatrix3d& xform) override;
    // The loops, with their arcs' extreme points.
    Acad::ErrorStatus subGetGeomExtents(AcDbExtents& extents) const override;

private:
    struct Loop {
        Adesk::Int32 type = 0;
        std::vector<AcGePoint2d> vertices;
        std::vector<double> bulges;  // one per vertex
    };
    struct Line2d {
        AcGePoint2d start;
        AcGePoint2d end;
    };

    Acad::ErrorStatus makeLoop(Adesk::Int32 loopType, const AcGePoint2dArray& vertices, const AcGeDoubleArray& bulges,
                               Loop& loop) const;
    // The pattern's lines clipped to the filled area.
    Acad::ErrorStatus computeLines(std::vector<Line2d>& lines) const;
    void dropLines();

    HatchPatternType m_patternType = kPreDefined;
    std::wstring m_patternName;
    double m_patternAngle = 0.0;
    double m_patternScale = 1.0;
    double m_patternSpace = 1.0;
    bool m_patternDouble = false;
    AcGePoint2d m_origin;
    bool m_associative = false;
    AcGeVector3d m_normal = AcGeVector3d::kZAxis;
    double m_elevation = 0.0;
    HatchStyle m_style = kNormal;
    std::vector<Loop> m_loops;
    bool m_evaluated = false;
    std::vector<Line2d> m_lines;
};
