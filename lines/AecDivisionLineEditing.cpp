// AecDivisionLine: editing through the host: transformation, stretch and the five grips.
#include <algorithm>
#include <cmath>

#include "AecDivisionLine.h"
#include "AecDivisionLineImp.h"
#include "DivisionLineGeometry.h"
#include "LayoutLineGeometry.h"

namespace {

// The move grip sits this far along the segment, clear of the middle grip.
constexpr double kMoveGripFraction = 0.25;
// The identifier may be dragged off the chord by half the chord plus the arc's sagitta,
// so that the arc's own midpoint is always within reach.
constexpr double kIdentifierReachChordFraction = 0.5;

}  // namespace

Acad::ErrorStatus AecDivisionLine::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    Imp& imp = *m_imp;
    LayoutLineGeometry::TransformEnds(xform, imp.startPoint, imp.endPoint);
    if (imp.HasIdentifierPoint())
        imp.boundaryIdentifierPoint.transformBy(xform);
    LayoutLineGeometry::TransformWidths(xform, imp.indentLeft, imp.indentRight);
    // A mirror turns the arc the other way round: the image of an anticlockwise arc runs
    // clockwise.
    if (xform.det() < 0.0)
        imp.bulge = -imp.bulge;
    imp.Refresh();
    return Acad::eOk;
}

QX_DEFINE_LINE_STRETCH(AecDivisionLine, Refresh)

Acad::ErrorStatus AecDivisionLine::subGetGripPoints(AcDbGripDataPtrArray& grips, const double, const int,
                                                    const AcGeVector3d&, const int) const
{
    assertReadEnabled();
    Imp& imp = *m_imp;
    imp.grips.Clear();
    const AcGePoint3d points[] = {
        imp.startPoint,
        imp.endPoint,
        DivisionLineGeometry::DefaultIdentifierPoint(imp.startPoint, imp.endPoint, imp.bulge),
        imp.EffectiveIdentifierPoint(),
        DivisionLineGeometry::PointOnSegment(imp.startPoint, imp.endPoint, imp.bulge, kMoveGripFraction),
    };
    const DivisionLineGrip kinds[] = {DivisionLineGrip::kStart, DivisionLineGrip::kEnd, DivisionLineGrip::kMiddle,
                                      DivisionLineGrip::kIdentifier, DivisionLineGrip::kMove};
    for (int i = 0; i < 5; ++i)
        grips.append(imp.grips.HandOut(kinds[i], points[i]));
    return Acad::eOk;
}

Acad::ErrorStatus AecDivisionLine::subGetGripPoints(AcGePoint3dArray&, AcDbIntArray&, AcDbIntArray&) const
{
    return Acad::eNotImplementedYet;
}

// Every hot grip the host passes is moved in turn; records the line did not hand out
// are ignored. A zero offset changes nothing, not even by rounding.
Acad::ErrorStatus AecDivisionLine::subMoveGripPointsAt(const AcDbVoidPtrArray& gripAppData,
                                                       const AcGeVector3d& offset, const int)
{
    assertWriteEnabled();
    if (offset.isZeroLength())
        return Acad::eOk;
    Imp& imp = *m_imp;
    for (void* appData : gripAppData) {
        const auto* record = imp.grips.Find(appData);
        if (record == nullptr)
            continue;
        switch (record->kind) {
        case DivisionLineGrip::kStart:
        case DivisionLineGrip::kEnd: {
            // The label keeps its signed distance from the chord; one never placed is
            // left to the refresh.
            const bool placed = imp.HasIdentifierPoint();
            const AcGeVector3d normal = LayoutLineGeometry::ChordNormal(imp.startPoint, imp.endPoint);
            const double side = placed && !normal.isZeroLength()
                                    ? (imp.boundaryIdentifierPoint - imp.ChordMidpoint()).dotProduct(normal)
                                    : 0.0;
            LayoutLineGeometry::MoveStretchPoint(record->kind == DivisionLineGrip::kStart ? 0 : 1, offset,
                                                 imp.startPoint, imp.endPoint);
            imp.Refresh();
            if (placed) {
                const AcGeVector3d moved = LayoutLineGeometry::ChordNormal(imp.startPoint, imp.endPoint);
                imp.boundaryIdentifierPoint =
                    moved.isZeroLength() ? imp.ChordMidpoint() : imp.ChordMidpoint() + moved * side;
            }
            break;
        }
        case DivisionLineGrip::kMiddle:
            break;
        case DivisionLineGrip::kIdentifier: {
            const AcGeVector3d normal = LayoutLineGeometry::ChordNormal(imp.startPoint, imp.endPoint);
            if (normal.isZeroLength())
                break;
            const AcGePoint3d mid = imp.ChordMidpoint();
            const double chord = imp.startPoint.distanceTo(imp.endPoint);
            const double reach = chord * kIdentifierReachChordFraction + std::fabs(imp.bulge) * chord * 0.5;
            const AcGePoint3d cursor = imp.EffectiveIdentifierPoint() + offset;
            const double side = std::clamp((cursor - mid).dotProduct(normal), -reach, reach);
            imp.boundaryIdentifierPoint = mid + normal * side;
            recordGraphicsModified();
            break;
        }
        case DivisionLineGrip::kMove:
            imp.startPoint += offset;
            imp.endPoint += offset;
            if (imp.HasIdentifierPoint())
                imp.boundaryIdentifierPoint += offset;
            imp.Refresh();
            break;
        }
    }
    return Acad::eOk;
}

Acad::ErrorStatus AecDivisionLine::subMoveGripPointsAt(const AcDbIntArray&, const AcGeVector3d&)
{
    return Acad::eNotImplementedYet;
}

void AecDivisionLine::subGripStatus(const AcDb::GripStat status)
{
    if (status == AcDb::kGripsToBeDeleted)
        m_imp->grips.Clear();
    QxPolylineBasedCurve::subGripStatus(status);
}
