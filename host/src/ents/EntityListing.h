// The host's list format. Every line starts on a new line; a label is right-aligned in a
// column of 22 characters and its value follows after four spaces:
//
//                   LINE    Layer: "0"
//                           Space: Model space
//                           Color: 1 (red)
//                           Linetype: "DASHED"
//                           Handle = 2A
//             from point    X=0.0000  Y=0.0000  Z=0.0000
//                 length    10.0000
//
// The first line carries the entity's DXF name in the label column; the standard lines
// after it start in the value column. Numbers print with four decimals (no "-0.0000"),
// angles in degrees. Colour and linetype lines appear only when not by layer.
#pragma once

#include "AcString.h"
#include "gepnt3d.h"
#include "gevec3d.h"

namespace hostents {

constexpr int kListLabelWidth = 22;

// A value as the listing prints it: four decimals, with values that round to zero printed as 0.0000.
AcString listNumber(double value);

void listLine(const ACHAR* label, const AcString& value);
void listPoint(const ACHAR* label, const AcGePoint3d& point);
void listVector(const ACHAR* label, const AcGeVector3d& vector);
void listValue(const ACHAR* label, double value);
// Radians printed in degrees.
void listAngle(const ACHAR* label, double radians);
void listText(const ACHAR* label, const ACHAR* text);
// A line in the value column without a label.
void listNote(const AcString& text);

}  // namespace hostents
