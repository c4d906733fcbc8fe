// StraightLineGrips: handing out and moving the three grips.
#include "StraightLineGrips.h"

#include "LayoutLineGeometry.h"

void StraightLineGrips::HandOut(const AcGePoint3d& start, const AcGePoint3d& end, AcDbGripDataPtrArray& grips)
{
    m_records.Clear();
    grips.append(m_records.HandOut(Kind::kStart, start));
    grips.append(m_records.HandOut(Kind::kEnd, end));
    grips.append(m_records.HandOut(Kind::kMove, LayoutLineGeometry::Midpoint(start, end)));
}

bool StraightLineGrips::Move(const void* appData, const AcGeVector3d& offset, AcGePoint3d& start,
                             AcGePoint3d& end) const
{
    const auto* record = m_records.Find(appData);
    if (record == nullptr)
        return false;
    switch (record->kind) {
    case Kind::kStart: return LayoutLineGeometry::MoveStretchPoint(0, offset, start, end);
    case Kind::kEnd: return LayoutLineGeometry::MoveStretchPoint(1, offset, start, end);
    case Kind::kMove:
        start += offset;
        end += offset;
        return true;
    }
    return false;
}
