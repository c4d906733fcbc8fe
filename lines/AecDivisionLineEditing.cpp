// AecDivisionLine: editing through the host: transformation, stretch and the five grips.
#include <algorithm>
#include <cmath>

#include "AecDivisionLine.h"
#include "AecDivisionLineImp.h"
#include "DivisionLineGeometry.h"

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
    imp.startPoint.transformBy(xform);
    imp.endPoint.transformBy(xform);
    if (imp.HasIdentifierPoint())
        imp.boundaryIdentifierPoint.transformBy(xform);
    imp.startPoint.z = 0.0;
    imp.endPoint.z = 0.0;
    DivisionLineGeometry::ApplyLengthRule(imp.endPoint, imp.startPoint, imp.Direction());
    double left = (xform * AcGeVector3d(imp.indentLeft, 0.0, 0.0)).length();
    double right = (xform * AcGeVector3d(imp.indentRight, 0.0, 0.0)).length();
    // A mirror turns the line's left into the image's right, and its arc the other way
    // round: the image of an anticlockwise arc runs clockwise.
    if (xform.det() < 0.0) {
        std::swap(left, right);
        imp.bulge = -imp.bulge;
    }
    imp.indentLeft = left;
    imp.indentRight = right;
    imp.Refresh();
    return Acad::eOk;
}

Acad::ErrorStatus AecDivisionLine::subGetStretchPoints(AcGePoint3dArray& stretchPoints) const
{
    assertReadEnabled();
    stretchPoints.append(m_imp->startPoint);
    stretchPoints.append(m_imp->endPoint);
    return Acad::eOk;
}

Acad::ErrorStatus AecDivisionLine::subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    if (indices.isEmpty())
        return QxPolylineBasedCurve::subMoveGripPointsAt(indices, offset);
    assertWriteEnabled();
    Imp& imp = *m_imp;
    for (int index : indices) {
        const AcGeVector3d previous = imp.Direction();
        if (index == 0) {
            imp.startPoint += offset;
            DivisionLineGeometry::ApplyLengthRule(imp.startPoint, imp.endPoint, -previous);
        } else if (index == 1) {
            imp.endPoint += offset;
            DivisionLineGeometry::ApplyLengthRule(imp.endPoint, imp.startPoint, previous);
        } else {
            continue;
        }
        imp.Refresh();
    }
    return Acad::eOk;
}

Acad::ErrorStatus AecDivisionLine::subGetGripPoints(AcDbGripDataPtrArray& grips, const double, const int,
                                                    const AcGeVector3d&, const int) const
{
    assertReadEnabled();
    Imp& imp = *m_imp;
    imp.FreeGripRecords();
    const AcGePoint3d points[] = {
        imp.startPoint,
        imp.endPoint,
        DivisionLineGeometry::DefaultIdentifierPoint(imp.startPoint, imp.endPoint, imp.bulge),
        imp.EffectiveIdentifierPoint(),
        DivisionLineGeometry::PointOnSegment(imp.startPoint, imp.endPoint, imp.bulge, kMoveGripFraction),
    };
    const DivisionLineGrip kinds[] = {DivisionLineGrip::kStart, DivisionLineGrip::kEnd, DivisionLineGrip::kMiddle,
                                      DivisionLineGrip::kIdentifier, DivisionLineGrip::kMove};
    for (int i = 0; i < 5; ++i) {
        imp.gripRecords.push_back(std::make_unique<DivisionLineGripRecord>(
            DivisionLineGripRecord{kinds[i], static_cast<Adesk::Int32>(i), points[i]}));
        grips.append(new AcDbGripData(points[i], imp.gripRecords.back().get()));
    }
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
        const DivisionLineGripRecord* record = imp.FindGripRecord(appData);
        if (record == nullptr)
            continue;
        switch (record->kind) {
        case DivisionLineGrip::kStart:
        case DivisionLineGrip::kEnd: {
            // The label keeps its signed distance from the chord; one never placed is
            // left to the refresh.
            const bool placed = imp.HasIdentifierPoint();
            const AcGeVector3d normal = DivisionLineGeometry::ChordNormal(imp.startPoint, imp.endPoint);
            const double side = placed && !normal.isZeroLength()
                                    ? (imp.boundaryIdentifierPoint - imp.ChordMidpoint()).dotProduct(normal)
                                    : 0.0;
            const AcGeVector3d previous = imp.Direction();
            if (record->kind == DivisionLineGrip::kStart) {
                imp.startPoint += offset;
                DivisionLineGeometry::ApplyLengthRule(imp.startPoint, imp.endPoint, -previous);
            } else {
                imp.endPoint += offset;
                DivisionLineGeometry::ApplyLengthRule(imp.endPoint, imp.startPoint, previous);
            }
            imp.Refresh();
            if (placed) {
                const AcGeVector3d moved = DivisionLineGeometry::ChordNormal(imp.startPoint, imp.endPoint);
                imp.boundaryIdentifierPoint =
                    moved.isZeroLength() ? imp.ChordMidpoint() : imp.ChordMidpoint() + moved * side;
            }
            break;
        }
        case DivisionLineGrip::kMiddle:
            break;
        case DivisionLineGrip::kIdentifier: {
            const AcGeVector3d normal = DivisionLineGeometry::ChordNormal(imp.startPoint, imp.endPoint);
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
        m_imp->FreeGripRecords();
    QxPolylineBasedCurve::subGripStatus(status);
}
