// Recorded primitives: their stable one-line text form for transcripts and test output.
#include "headless/RecordedPrimitive.h"

#include <cmath>
#include <cstdio>
#include <ostream>
#include <sstream>

#include "AcDbHandle.h"
#include "headless/TextCodec.h"

namespace headless {
namespace {

void putPoint(std::ostream& os, const AcGePoint3d& p)
{
    os << '(' << formatRecordedNumber(p.x) << ',' << formatRecordedNumber(p.y) << ','
       << formatRecordedNumber(p.z) << ')';
}

void putVector(std::ostream& os, const AcGeVector3d& v)
{
    os << '(' << formatRecordedNumber(v.x) << ',' << formatRecordedNumber(v.y) << ','
       << formatRecordedNumber(v.z) << ')';
}

void putPoints(std::ostream& os, const std::vector<AcGePoint3d>& points)
{
    for (const AcGePoint3d& p : points) {
        os << ' ';
        putPoint(os, p);
    }
}

void putId(std::ostream& os, const AcDbObjectId& id)
{
    if (id.isNull())
        os << "null";
    else
        os << id.handle();
}

void putQuoted(std::ostream& os, const std::wstring& text)
{
    os << '"';
    for (char c : toUtf8(text)) {
        switch (c) {
        case '"': os << "\\\""; break;
        case '\\': os << "\\\\"; break;
        case '\n': os << "\\n"; break;
        case '\r': os << "\\r"; break;
        case '\t': os << "\\t"; break;
        default: os << c; break;
        }
    }
    os << '"';
}

const char* arcTypeName(Adesk::Int64 type)
{
    switch (type) {
    case kAcGiArcSimple: return "simple";
    case kAcGiArcSector: return "sector";
    case kAcGiArcChord: return "chord";
    default: return "unknown";
    }
}

double numberAt(const std::vector<double>& numbers, size_t index)
{
    return index < numbers.size() ? numbers[index] : 0.0;
}

Adesk::Int64 integerAt(const std::vector<Adesk::Int64>& integers, size_t index, Adesk::Int64 fallback)
{
    return index < integers.size() ? integers[index] : fallback;
}

}  // namespace

const char* primitiveKindName(PrimitiveKind kind)
{
    switch (kind) {
    case PrimitiveKind::kCircle: return "circle";
    case PrimitiveKind::kArc: return "arc";
    case PrimitiveKind::kPolyline: return "polyline";
    case PrimitiveKind::kPolygon: return "polygon";
    case PrimitiveKind::kPline: return "pline";
    case PrimitiveKind::kMesh: return "mesh";
    case PrimitiveKind::kShell: return "shell";
    case PrimitiveKind::kText: return "text";
    case PrimitiveKind::kXline: return "xline";
    case PrimitiveKind::kRay: return "ray";
    case PrimitiveKind::kWorldLine: return "worldLine";
    case PrimitiveKind::kExtents: return "extents";
    case PrimitiveKind::kClip: return "clip";
    case PrimitiveKind::kClipEnd: return "clipEnd";
    }
    return "unknown";
}

std::string formatRecordedNumber(double value)
{
    if (std::isnan(value))
        return "nan";
    if (std::isinf(value))
        return value > 0 ? "inf" : "-inf";
    char buffer[64];
    std::snprintf(buffer, sizeof buffer, "%.6f", value);
    std::string text(buffer);
    while (!text.empty() && text.back() == '0')
        text.pop_back();
    if (!text.empty() && text.back() == '.')
        text.pop_back();
    if (text == "-0")
        text = "0";
    return text;
}

bool RecordedTraits::operator==(const RecordedTraits& o) const
{
    return color == o.color && trueColor == o.trueColor && layerId == o.layerId && linetypeId == o.linetypeId &&
           lineWeight == o.lineWeight && linetypeScale == o.linetypeScale && thickness == o.thickness &&
           fillType == o.fillType && selectionMarker == o.selectionMarker;
}

std::ostream& operator<<(std::ostream& os, const RecordedTraits& traits)
{
    os << "color=" << traits.color;
    if (traits.trueColor.isByColor())
        os << " rgb=" << int(traits.trueColor.red()) << ',' << int(traits.trueColor.green()) << ','
           << int(traits.trueColor.blue());
    os << " layer=";
    putId(os, traits.layerId);
    os << " linetype=";
    putId(os, traits.linetypeId);
    os << " lineweight=" << static_cast<int>(traits.lineWeight) << " ltscale=" << formatRecordedNumber(traits.linetypeScale);
    if (traits.thickness != 0.0)
        os << " thickness=" << formatRecordedNumber(traits.thickness);
    os << " fill=" << (traits.fillType == kAcGiFillAlways ? "always" : "never") << " marker=" << traits.selectionMarker;
    return os;
}

std::string RecordedPrimitive::toLine() const
{
    std::ostringstream os;
    os << primitiveKindName(kind);
    switch (kind) {
    case PrimitiveKind::kCircle:
        if (!points.empty() && !vectors.empty()) {
            os << " center=";
            putPoint(os, points[0]);
            os << " normal=";
            putVector(os, vectors[0]);
        }
        os << " radius=" << formatRecordedNumber(numberAt(numbers, 0));
        break;
    case PrimitiveKind::kArc:
        if (points.size() >= 3 && vectors.size() >= 2) {
            os << " center=";
            putPoint(os, points[0]);
            os << " start=";
            putPoint(os, points[1]);
            os << " end=";
            putPoint(os, points[2]);
            os << " normal=";
            putVector(os, vectors[0]);
        }
        os << " radius=" << formatRecordedNumber(numberAt(numbers, 0))
           << " sweep=" << formatRecordedNumber(numberAt(numbers, 1)) << " type=" << arcTypeName(integerAt(integers, 0, 0));
        break;
    case PrimitiveKind::kPolyline:
        os << " n=" << points.size();
        putPoints(os, points);
        if (!vectors.empty()) {
            os << " normal=";
            putVector(os, vectors[0]);
        }
        if (integerAt(integers, 0, -1) != -1)
            os << " baseMarker=" << integers[0];
        break;
    case PrimitiveKind::kPolygon:
    case PrimitiveKind::kClip:
        os << " n=" << points.size();
        putPoints(os, points);
        break;
    case PrimitiveKind::kPline:
        os << " from=" << integerAt(integers, 0, 0) << " segments=" << integerAt(integers, 1, 0);
        if (integerAt(integers, 2, 0) != 0)
            os << " closed";
        os << " n=" << points.size();
        putPoints(os, points);
        if (!vectors.empty()) {
            os << " normal=";
            putVector(os, vectors[0]);
        }
        os << " elevation=" << formatRecordedNumber(numberAt(numbers, 0));
        // Each vertex as bulge/start width/end width.
        os << " vertices=[";
        for (size_t i = 1; i + 2 < numbers.size(); i += 3) {
            os << (i == 1 ? "" : " ") << formatRecordedNumber(numbers[i]) << '/' << formatRecordedNumber(numbers[i + 1])
               << '/' << formatRecordedNumber(numbers[i + 2]);
        }
        os << ']';
        break;
    case PrimitiveKind::kMesh:
        os << " rows=" << integerAt(integers, 0, 0) << " columns=" << integerAt(integers, 1, 0);
        putPoints(os, points);
        break;
    case PrimitiveKind::kShell:
        os << " vertices=" << points.size();
        putPoints(os, points);
        os << " faces=[";
        for (size_t i = 0; i < integers.size(); ++i)
            os << (i == 0 ? "" : " ") << integers[i];
        os << ']';
        break;
    case PrimitiveKind::kText:
        os << ' ';
        putQuoted(os, text);
        if (!points.empty() && vectors.size() >= 2) {
            os << " position=";
            putPoint(os, points[0]);
            os << " normal=";
            putVector(os, vectors[0]);
            os << " direction=";
            putVector(os, vectors[1]);
        }
        os << " height=" << formatRecordedNumber(numberAt(numbers, 0))
           << " width=" << formatRecordedNumber(numberAt(numbers, 1))
           << " oblique=" << formatRecordedNumber(numberAt(numbers, 2));
        if (numberAt(numbers, 3) != 1.0)
            os << " tracking=" << formatRecordedNumber(numberAt(numbers, 3));
        if (integerAt(integers, 0, 0) != 0)
            os << " raw";
        if (*style.styleName() != L'\0') {
            os << " style=";
            putQuoted(os, style.styleName());
        }
        if (*style.fileName() != L'\0') {
            os << " font=";
            putQuoted(os, style.fileName());
        }
        if (style.isBackward())
            os << " backward";
        if (style.isUpsideDown())
            os << " upsideDown";
        break;
    case PrimitiveKind::kXline:
    case PrimitiveKind::kRay:
    case PrimitiveKind::kWorldLine:
    case PrimitiveKind::kExtents:
        putPoints(os, points);
        break;
    case PrimitiveKind::kClipEnd:
        break;
    }
    os << " | " << traits;
    return os.str();
}

std::ostream& operator<<(std::ostream& os, const RecordedPrimitive& primitive)
{
    return os << primitive.toLine();
}

}  // namespace headless
