// AecRectOpening: editing through the host: transformation, the five grips and edits of
// the rectangle through the curve interface.
#include <memory>
#include <utility>

#include "AecRectOpening.h"
#include "AecRectOpeningImp.h"

using AecRectOpeningUnits::OpeningGripData;

// The rectangle is mapped corner by corner and re-anchored for its type; a matrix that
// collapses it (zero scale, a view along the plane) is refused with nothing changed. The
// title scales with the opening and is placed again below the new bottom edge.
Acad::ErrorStatus AecRectOpening::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    RectOpeningFrame frame = m_imp->frame;
    frame.TransformBy(xform);
    if (!frame.IsUsable())
        return Acad::eInvalidInput;
    m_imp->frame = frame;
    m_imp->title.TransformBy(xform);
    m_imp->Update();
    return Acad::eOk;
}

Acad::ErrorStatus AecRectOpening::subGetGripPoints(AcDbGripDataPtrArray& grips, const double, const int,
                                                   const AcGeVector3d&, const int) const
{
    assertReadEnabled();
    Imp& imp = *m_imp;
    imp.grips.clear();
    auto handOut = [&](std::unique_ptr<OpeningGripData> record, const AcGePoint3d& point) {
        auto* grip = new AcDbGripData(point, record.get());
        grip->setAppDataAcRxClass(OpeningGripData::desc());
        imp.grips.push_back(std::move(record));
        grips.append(grip);
    };
    handOut(std::make_unique<OpeningGripData>(), imp.frame.Center());
    for (int edge = 0; edge < 4; ++edge)
        handOut(std::make_unique<OpeningGripData>(edge), imp.frame.EdgeMidpoint(edge));
    return Acad::eOk;
}

Acad::ErrorStatus AecRectOpening::subGetGripPoints(AcGePoint3dArray&, AcDbIntArray&, AcDbIntArray&) const
{
    return Acad::eNotImplementedYet;
}

// Only the first hot grip counts; records this opening did not hand out are ignored. An
// edge moves along its own normal, and a move that would leave the opening narrower or
// lower than the minimum (or carry the edge past the opposite one) is ignored.
Acad::ErrorStatus AecRectOpening::subMoveGripPointsAt(const AcDbVoidPtrArray& gripAppData, const AcGeVector3d& offset,
                                                      const int)
{
    assertWriteEnabled();
    if (gripAppData.isEmpty() || offset.isZeroLength())
        return Acad::eOk;
    const OpeningGripData* grip = m_imp->FindGrip(gripAppData[0]);
    if (grip == nullptr)
        return Acad::eOk;
    RectOpeningFrame& frame = m_imp->frame;
    if (grip->GetKind() == OpeningGripData::Kind::kWholeOpening) {
        frame.anchor += offset;
        m_imp->Update();
        return Acad::eOk;
    }
    const int edge = grip->GetEdgeIndex();
    const AcGeVector3d normal = frame.EdgeOutwardNormal(edge);
    const double shift = offset.dotProduct(normal);
    if (frame.SizeAcross(edge) + shift < kMinimumSize)
        return Acad::eOk;
    RectOpeningFrame::Corners corners = frame.GetCorners();
    corners[static_cast<std::size_t>(edge)] += normal * shift;
    corners[static_cast<std::size_t>((edge + 1) % 4)] += normal * shift;
    frame.SetFromCorners(corners);
    m_imp->Update();
    return Acad::eOk;
}

Acad::ErrorStatus AecRectOpening::subMoveGripPointsAt(const AcDbIntArray&, const AcGeVector3d&)
{
    return Acad::eNotImplementedYet;
}

void AecRectOpening::subGripStatus(const AcDb::GripStat status)
{
    if (status == AcDb::kGripsToBeDeleted)
        m_imp->grips.clear();
    QxPolylineBasedCurve::subGripStatus(status);
}

// An edit that leaves no usable rectangle (fewer than four corners, a zero side) is
// undone by rebuilding the rectangle from the fields.
void AecRectOpening::OnEndModifyPolyline()
{
    QxPolylineBasedCurve::OnEndModifyPolyline();
    Imp& imp = *m_imp;
    const AcDbPolyline& edited = *imp.rectangle;
    AcGePoint3d start;
    AcGePoint3d c0;
    AcGePoint3d c1;
    AcGePoint3d c3;
    if (edited.numVerts() < 4 || edited.getStartPoint(start) != Acad::eOk || edited.getPointAt(0, c0) != Acad::eOk ||
        edited.getPointAt(1, c1) != Acad::eOk || edited.getPointAt(3, c3) != Acad::eOk) {
        imp.RebuildRectangle();
        return;
    }
    RectOpeningFrame frame = imp.frame;
    frame.anchor = start;
    frame.width = c0.distanceTo(c1);
    frame.height = c1.distanceTo(c3);
    const AcGeVector3d side = c1 - c0;
    frame.dirX = AcGeVector3d(side.x, side.y, 0.0);
    if (!frame.IsUsable()) {
        imp.RebuildRectangle();
        return;
    }
    imp.frame = frame;
    imp.Update();
}
