// Panels the panel tests start from.
#pragma once

#include "panel/AecPanel.h"

namespace paneltest {

// Sets the outline to the rectangle (0,0)-(length,width), counter-clockwise.
void MakeRectangle(AecPanel& panel, double length, double width);
// Appends a square hole of side 2*half around (x, y).
void AddSquareHole(AecPanel& panel, double x, double y, double half);
// A 12 m sheet laid along X with an arced end, a square and a round hole, a number and a
// bottom text, and every information block filled; owned by the caller.
AecPanel* RichPanel();

}  // namespace paneltest
