// StraightLineGrips: the grips of a straight layout line: its start, its end and a move
// grip at its middle. Start and end move under the length rule; the move grip carries
// the whole line.
#pragma once

#include "LineGripRecords.h"
#include "gevec3d.h"

class StraightLineGrips {
public:
    enum class Kind : Adesk::Int32 { kStart = 0, kEnd = 1, kMove = 2 };

    // Forgets the grips handed out before.
    void HandOut(const AcGePoint3d& start, const AcGePoint3d& end, AcDbGripDataPtrArray& grips);
    // Moves the ends as the grip whose application data is appData asks; false, with
    // nothing changed, when it is none of the grips handed out.
    bool Move(const void* appData, const AcGeVector3d& offset, AcGePoint3d& start, AcGePoint3d& end) const;
    void Clear() { m_records.Clear(); }

private:
    LineGripRecords<Kind> m_records;
};
