// A primitive as a recording draw kept it: a plain value (kind, points, vectors, numbers,
// integers, text) in world coordinates, with the traits that were in force. Tests, the
// plotters and the drawing-file writer read these; the one-line text form is stable and
// made for golden transcripts.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

#include "AcCmEntityColor.h"
#include "AcGiTextStyle.h"
#include "acdb.h"
#include "acgidefs.h"
#include "dbid.h"
#include "gepnt3d.h"
#include "gevec3d.h"

namespace headless {

// What each kind keeps (world coordinates, unit vectors):
//   circle       points {centre}; vectors {normal}; numbers {radius}
//   arc          points {centre, start, end}; vectors {normal, start direction};
//                numbers {radius, sweep angle}; integers {arc type}  (counter-clockwise about normal)
//   polyline     points {vertices}; vectors {normal} when one was given; integers {base marker}
//   polygon      points {vertices}
//   pline        points {vertices}; vectors {normal}; numbers {elevation, then per vertex
//                bulge, start width, end width}; integers {from index, number of
//                segments, closed: 0 or 1}
//   mesh         points {vertices, row-major}; integers {rows, columns}
//   shell        points {vertices}; integers {the face list as given}
//   text         points {position}; vectors {normal, direction}; numbers {height, width
//                factor, oblique, tracking}; text {the string}; style {the text style};
//                integers {raw: 0 or 1}
//   xline, ray   points {the two defining points}
//   worldLine    points {the two points}
//   extents      points {min, max} as the drawable declared them
//   clip         points {boundary points in clip space, z 0}; clipEnd: nothing
enum class PrimitiveKind {
    kCircle,
    kArc,
    kPolyline,
    kPolygon,
    kPline,
    kMesh,
    kShell,
    kText,
    kXline,
    kRay,
    kWorldLine,
    kExtents,
    kClip,
    kClipEnd,
};

ACHOST_API const char* primitiveKindName(PrimitiveKind kind);

// The sub-entity traits in force when a primitive was drawn.
struct ACHOST_API RecordedTraits {
    Adesk::UInt16 color = 7;
    AcCmEntityColor trueColor = AcCmEntityColor(AcCm::kByACI);
    AcDbObjectId layerId;
    AcDbObjectId linetypeId;
    AcDb::LineWeight lineWeight = AcDb::kLnWtByLayer;
    double linetypeScale = 1.0;
    double thickness = 0.0;
    AcGiFillType fillType = kAcGiFillNever;
    Adesk::LongPtr selectionMarker = 0;

    bool operator==(const RecordedTraits& other) const;
    bool operator!=(const RecordedTraits& other) const { return !(*this == other); }
};

struct ACHOST_API RecordedPrimitive {
    PrimitiveKind kind = PrimitiveKind::kPolyline;
    std::vector<AcGePoint3d> points;
    std::vector<AcGeVector3d> vectors;
    std::vector<double> numbers;
    std::vector<Adesk::Int64> integers;
    std::wstring text;
    AcGiTextStyle style;
    RecordedTraits traits;
    // 0 for the drawable being drawn, 1 for a drawable it drew with draw(), and so on.
    int depth = 0;

    // The stable one-line form: numbers with at most six decimals, ids by handle.
    std::string toLine() const;
};

// Numbers as the transcripts print them: at most six decimals, no trailing zeros, no "-0".
ACHOST_API std::string formatRecordedNumber(double value);

ACHOST_API std::ostream& operator<<(std::ostream& os, const RecordedTraits& traits);
ACHOST_API std::ostream& operator<<(std::ostream& os, const RecordedPrimitive& primitive);

}  // namespace headless
