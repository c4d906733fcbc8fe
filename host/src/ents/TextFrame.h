// The frame a single-line text is laid out in: its direction and up vector in the plane of
// its normal, the width the font model gives it, and where each justification puts the
// alignment point relative to the position (in text units along direction and up).
//
// The font model (FontModel.h): advances 0.6 (1.0 for full-width characters) x height x
// width factor; cap height = height; descent 0.2 x height. Justification points:
//   horizontal  left 0, center w/2, right w, aligned and fit w (the end of the baseline),
//               middle w/2
//   vertical    baseline 0, bottom -0.2h, middle h/2, top h; the "middle" horizontal mode
//               uses the middle of the whole box, 0.4h (halfway from -0.2h to h)
// Text mirrored in X runs backwards from its position (x negated), text mirrored in Y hangs
// upside down (y negated).
#pragma once

#include "acdb.h"
#include "gepnt3d.h"
#include "gevec3d.h"

namespace hostents {

struct TextFrame {
    AcGeVector3d direction;  // unit, in the plane
    AcGeVector3d up;         // normal x direction
    double width = 0.0;      // the advance of the whole string
    double height = 0.0;
    bool backward = false;
    bool upsideDown = false;

    static TextFrame of(const AcGeVector3d& normal, double rotation, double height, double widthFactor,
                        const wchar_t* text, bool backward, bool upsideDown);
    // The alignment point's offset from the position, in text units.
    void justificationOffset(AcDb::TextHorzMode h, AcDb::TextVertMode v, double& x, double& y) const;
    AcGePoint3d at(const AcGePoint3d& origin, double x, double y) const;
};

// The rotation of a direction about a normal, from the x axis of the normal's object
// coordinate system, in [0, 2 pi).
double rotationOf(const AcGeVector3d& normal, const AcGeVector3d& direction);

// The in-plane frame a transform gives a text (d, u the transformed unit direction and up,
// n their normal). False when the transform skews or flattens the text. With a mirror one
// axis is turned back so the text stays readable: the direction nearest to the text's old
// direction is kept (the transformed one when both are as near).
bool readableFrame(const AcGeMatrix3d& xform, const AcGeVector3d& direction, const AcGeVector3d& up,
                   AcGeVector3d& newDirection, AcGeVector3d& newUp, AcGeVector3d& newNormal, double& scaleAlong,
                   double& scaleAcross);

}  // namespace hostents
