// OverlapDirectionMark: the glyph that tells at a glance which sheet of an overlap lies on
// top. It is an arrow at the middle of the line, standing on the covering sheet's side and
// pointing across the line at the sheet it covers: a shaft and a filled triangular head
// whose tip stops just short of the centre line. The covering side is the side of the
// strip whose edge is drawn dashed (the covered sheet's hidden edge lies under it), so the
// arrow always agrees with the edges: -n for LeftOverRight, +n otherwise, n being the
// strip's normal (the Y axis for a line without length).
//
// Its size follows the line, a tenth of the segment length, but never less than 100 or
// more than 1000 drawing units (millimetres): a short line still shows a mark that can be
// read on a plot of the whole layout, and a long one does not carry a sign metres high.
#pragma once

#include "gepnt3d.h"
#include "gevec3d.h"

class OverlapDirectionMark {
public:
    static constexpr double kSizeFraction = 0.1;
    static constexpr double kMinimumSize = 100.0;
    static constexpr double kMaximumSize = 1000.0;
    // The head's length and half width, and the gap between its tip and the centre line,
    // as fractions of the size.
    static constexpr double kHeadLengthFraction = 0.35;
    static constexpr double kHeadHalfWidthFraction = 0.15;
    static constexpr double kTipGapFraction = 0.1;

    // The mark of the line from start to end with the given direction (any value other
    // than 0 counting as RightOverLeft).
    OverlapDirectionMark(const AcGePoint3d& start, const AcGePoint3d& end, int direction);

    // From the line's middle towards the covering sheet.
    AcGeVector3d CoveringSide() const { return m_side; }
    double Size() const { return m_size; }
    // The shaft runs from the head's base out to the tail.
    AcGePoint3d Tail() const;
    AcGePoint3d HeadBase() const;
    // The head: its tip, then the two corners of its base.
    AcGePoint3d Tip() const;
    AcGePoint3d HeadCorner(int which) const;

private:
    AcGePoint3d m_middle;
    AcGeVector3d m_side;
    // Along the line, square to m_side.
    AcGeVector3d m_across;
    double m_size;
};
