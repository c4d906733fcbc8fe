// The host's basic entities: lines, circles, arcs and single-line text.
#pragma once

#include "AcDbArc.h"
#include "AcDbCircle.h"
#include "AcDbCurve.h"
#include "AcDbEntity.h"
#include "AcDbLine.h"
#include "AcDbText.h"
