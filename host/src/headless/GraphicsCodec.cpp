// GraphicsCodec: per primitive its kind, then (compact) the parts that follow or (verbose)
// its depth, the points, vectors, numbers, integers and text, the text style and the
// traits; references (layer, linetype) as soft pointers.
#include "GraphicsCodec.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>

#include "acutads.h"
#include "acutmem.h"
#include "db/DbChecks.h"

namespace hostfile {

namespace {

using headless::PrimitiveKind;
using headless::RecordedPrimitive;

// The least a primitive takes on file: in the verbose form its kind, depth, five empty
// lists, the style's fixed part and the traits; in the compact form its kind and the word
// that says which parts follow. A count larger than budget / this cannot be true.
constexpr std::size_t kMinimumVerboseBytes = 64;
constexpr std::size_t kMinimumCompactBytes = 3;
constexpr std::size_t kMinimumVarIntBytes = 1;
constexpr std::size_t kPointBytes = 24;
constexpr std::size_t kFlatPointBytes = 16;
constexpr int kLastKind = static_cast<int>(PrimitiveKind::kClipEnd);

// What follows a primitive's kind in the compact form, in this order. Counts, the depth,
// the integers and the marker are variable-length integers (seven bits a byte, low first;
// integers and the marker zigzag-coded, so that small negative numbers stay short).
enum Part : Adesk::UInt16 {
    kDepth = 1 << 0,
    kPoints = 1 << 1,
    kFlatPoints = 1 << 2,  // with kPoints: x and y only, every z is +0
    kVectors = 1 << 3,
    kNumbers = 1 << 4,
    kIntegers = 1 << 5,
    kText = 1 << 6,
    kStyle = 1 << 7,           // absent: the default text style
    kMarker = 1 << 8,          // absent: the selection marker of the primitive before
    kTraits = 1 << 9,          // absent: the other traits of the primitive before
    kUnitZNormal = 1 << 10,    // instead of kVectors: the one vector (0, 0, 1)
    kSparseNumbers = 1 << 11,  // with kNumbers: a bit a number, only those that are not +0 follow
};
constexpr Adesk::UInt16 kKnownParts = (1 << 12) - 1;
constexpr std::size_t kMaxVarIntBytes = 10;

enum StyleFlag : Adesk::UInt16 {
    kBackward = 1 << 0,
    kUpsideDown = 1 << 1,
    kVertical = 1 << 2,
    kUnderlined = 1 << 3,
    kOverlined = 1 << 4,
    kStrikethrough = 1 << 5,
    kBold = 1 << 6,
    kItalic = 1 << 7,
};

// A count read from the filer that the remaining budget can hold.
Acad::ErrorStatus readCount(AcDbDwgFiler* filer, std::size_t budget, std::size_t unitBytes, std::size_t& count)
{
    Adesk::UInt32 value = 0;
    if (filer->readUInt32(&value) != Acad::eOk)
        return filer->filerStatus();
    if (value > budget / unitBytes) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return Acad::eDwgObjectImproperlyRead;
    }
    count = value;
    return Acad::eOk;
}

void writeStyle(AcDbDwgFiler* filer, const AcGiTextStyle& style)
{
    ACHAR* typeface = nullptr;
    bool bold = false;
    bool italic = false;
    int charset = 0;
    int pitchAndFamily = 0;
    style.font(typeface, bold, italic, charset, pitchAndFamily);
    filer->writeString(style.styleName());
    filer->writeString(style.fileName());
    filer->writeString(style.bigFontFileName());
    filer->writeString(typeface != nullptr ? typeface : L"");
    acutDelString(typeface);
    filer->writeDouble(style.textSize());
    filer->writeDouble(style.xScale());
    filer->writeDouble(style.obliquingAngle());
    filer->writeDouble(style.trackingPercent());
    Adesk::UInt16 flags = 0;
    flags |= style.isBackward() ? kBackward : 0;
    flags |= style.isUpsideDown() ? kUpsideDown : 0;
    flags |= style.isVertical() ? kVertical : 0;
    flags |= style.isUnderlined() ? kUnderlined : 0;
    flags |= style.isOverlined() ? kOverlined : 0;
    flags |= style.isStrikethrough() ? kStrikethrough : 0;
    flags |= bold ? kBold : 0;
    flags |= italic ? kItalic : 0;
    filer->writeUInt16(flags);
    filer->writeInt32(charset);
    filer->writeInt32(pitchAndFamily);
}

Acad::ErrorStatus readStyle(AcDbDwgFiler* filer, AcGiTextStyle& style)
{
    AcString styleName, fileName, bigFont, typeface;
    double size = 1.0, xScale = 1.0, oblique = 0.0, tracking = 1.0;
    Adesk::UInt16 flags = 0;
    Adesk::Int32 charset = 0, pitch = 0;
    filer->readString(styleName);
    filer->readString(fileName);
    filer->readString(bigFont);
    filer->readString(typeface);
    filer->readDouble(&size);
    filer->readDouble(&xScale);
    filer->readDouble(&oblique);
    filer->readDouble(&tracking);
    filer->readUInt16(&flags);
    filer->readInt32(&charset);
    filer->readInt32(&pitch);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    style = AcGiTextStyle();
    style.setStyleName(styleName.kwszPtr());
    style.setFileName(fileName.kwszPtr());
    style.setBigFontFileName(bigFont.kwszPtr());
    style.setTextSize(size);
    style.setXScale(xScale);
    style.setObliquingAngle(oblique);
    style.setTrackingPercent(tracking);
    style.setBackward((flags & kBackward) != 0);
    style.setUpsideDown((flags & kUpsideDown) != 0);
    style.setVertical((flags & kVertical) != 0);
    style.setUnderlined((flags & kUnderlined) != 0);
    style.setOverlined((flags & kOverlined) != 0);
    style.setStrikethrough((flags & kStrikethrough) != 0);
    if (!typeface.isEmpty() || (flags & (kBold | kItalic)) != 0 || charset != 0 || pitch != 0)
        style.setFont(typeface.kwszPtr(), (flags & kBold) != 0, (flags & kItalic) != 0, charset, pitch);
    return Acad::eOk;
}

// The traits but the selection marker, which changes far more often than the rest.
void writeTraitsBody(AcDbDwgFiler* filer, const headless::RecordedTraits& traits)
{
    filer->writeUInt16(traits.color);
    filer->writeUInt32(traits.trueColor.getRGBM());
    filer->writeSoftPointerId(traits.layerId);
    filer->writeSoftPointerId(traits.linetypeId);
    filer->writeInt16(static_cast<Adesk::Int16>(traits.lineWeight));
    filer->writeDouble(traits.linetypeScale);
    filer->writeDouble(traits.thickness);
    filer->writeUInt8(static_cast<Adesk::UInt8>(traits.fillType));
}

Acad::ErrorStatus readTraitsBody(AcDbDwgFiler* filer, headless::RecordedTraits& traits)
{
    Adesk::UInt16 color = 0;
    Adesk::UInt32 rgbm = 0;
    AcDbSoftPointerId layer, linetype;
    Adesk::Int16 lineWeight = 0;
    double linetypeScale = 1.0;
    double thickness = 0.0;
    Adesk::UInt8 fill = 0;
    filer->readUInt16(&color);
    filer->readUInt32(&rgbm);
    filer->readSoftPointerId(&layer);
    filer->readSoftPointerId(&linetype);
    filer->readInt16(&lineWeight);
    filer->readDouble(&linetypeScale);
    filer->readDouble(&thickness);
    filer->readUInt8(&fill);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (!hostdb::isValidLineWeight(lineWeight)) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return Acad::eDwgObjectImproperlyRead;
    }
    traits.color = color;
    traits.trueColor.setRGBM(rgbm);
    traits.layerId = layer;
    traits.linetypeId = linetype;
    traits.lineWeight = static_cast<AcDb::LineWeight>(lineWeight);
    traits.linetypeScale = linetypeScale;
    traits.thickness = thickness;
    traits.fillType = fill == kAcGiFillAlways ? kAcGiFillAlways : kAcGiFillNever;
    return Acad::eOk;
}

Acad::ErrorStatus readMarker(AcDbDwgFiler* filer, headless::RecordedTraits& traits)
{
    Adesk::Int64 marker = 0;
    if (filer->readInt64(&marker) == Acad::eOk)
        traits.selectionMarker = static_cast<Adesk::LongPtr>(marker);
    return filer->filerStatus();
}

void writeVarUInt(AcDbDwgFiler* filer, std::uint64_t value)
{
    while (value >= 0x80) {
        filer->writeUInt8(static_cast<Adesk::UInt8>((value & 0x7F) | 0x80));
        value >>= 7;
    }
    filer->writeUInt8(static_cast<Adesk::UInt8>(value));
}

void writeVarInt(AcDbDwgFiler* filer, std::int64_t value)
{
    writeVarUInt(filer, (static_cast<std::uint64_t>(value) << 1) ^ static_cast<std::uint64_t>(value >> 63));
}

// Ten bytes at most, the tenth holding only the top bit of the 64.
Acad::ErrorStatus readVarUInt(AcDbDwgFiler* filer, std::uint64_t& value)
{
    value = 0;
    for (std::size_t i = 0; i < kMaxVarIntBytes; ++i) {
        Adesk::UInt8 byte = 0;
        if (filer->readUInt8(&byte) != Acad::eOk)
            return filer->filerStatus();
        if (i == kMaxVarIntBytes - 1 && byte > 1)
            break;
        value |= static_cast<std::uint64_t>(byte & 0x7F) << (7 * i);
        if ((byte & 0x80) == 0)
            return Acad::eOk;
    }
    filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
    return Acad::eDwgObjectImproperlyRead;
}

Acad::ErrorStatus readVarInt(AcDbDwgFiler* filer, std::int64_t& value)
{
    std::uint64_t coded = 0;
    if (readVarUInt(filer, coded) != Acad::eOk)
        return filer->filerStatus();
    value = static_cast<std::int64_t>((coded >> 1) ^ (~(coded & 1) + 1));
    return Acad::eOk;
}

// A count of units that the budget can hold: unitBytes bytes a unit, or unitsPerByte units
// a byte (the bits of a bit map).
Acad::ErrorStatus readVarCount(AcDbDwgFiler* filer, std::size_t budget, std::size_t unitBytes, std::size_t& count,
                               std::size_t unitsPerByte = 1)
{
    std::uint64_t value = 0;
    if (readVarUInt(filer, value) != Acad::eOk)
        return filer->filerStatus();
    if (value / unitsPerByte > budget / unitBytes) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return Acad::eDwgObjectImproperlyRead;
    }
    count = static_cast<std::size_t>(value);
    return Acad::eOk;
}

// Numbers compare by their bits, so that -0 and the payload of a NaN come back as they were.
bool sameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

bool sameTraitsBody(const headless::RecordedTraits& a, const headless::RecordedTraits& b)
{
    return a.color == b.color && a.trueColor.getRGBM() == b.trueColor.getRGBM() && a.layerId == b.layerId &&
        a.linetypeId == b.linetypeId && a.lineWeight == b.lineWeight && sameBits(a.linetypeScale, b.linetypeScale) &&
        sameBits(a.thickness, b.thickness) && a.fillType == b.fillType;
}

bool isDefaultStyle(const AcGiTextStyle& style)
{
    static const AcGiTextStyle kDefault;
    return style == kDefault && !std::signbit(style.obliquingAngle());
}

bool isFlat(const std::vector<AcGePoint3d>& points)
{
    return std::all_of(points.begin(), points.end(),
                       [](const AcGePoint3d& point) { return point.z == 0.0 && !std::signbit(point.z); });
}

bool isUnitZ(const std::vector<AcGeVector3d>& vectors)
{
    return vectors.size() == 1 && sameBits(vectors[0].x, 0.0) && sameBits(vectors[0].y, 0.0) &&
        sameBits(vectors[0].z, 1.0);
}

// The sparse form when the zeros it leaves out outweigh its bit map.
bool worthSparse(const std::vector<double>& numbers)
{
    const auto zeros = static_cast<std::size_t>(
        std::count_if(numbers.begin(), numbers.end(), [](double n) { return sameBits(n, 0.0); }));
    return zeros * sizeof(double) > (numbers.size() + 7) / 8;
}

Acad::ErrorStatus improperlyRead(AcDbDwgFiler* filer)
{
    filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
    return Acad::eDwgObjectImproperlyRead;
}

template <typename T, typename ReadOne>
Acad::ErrorStatus readList(AcDbDwgFiler* filer, std::size_t budget, std::size_t unitBytes, std::vector<T>& list,
                           ReadOne readOne)
{
    std::size_t n = 0;
    if (readCount(filer, budget, unitBytes, n) != Acad::eOk)
        return filer->filerStatus();
    list.resize(n);
    for (T& item : list)
        readOne(item);
    return filer->filerStatus();
}

Acad::ErrorStatus readVerbose(AcDbDwgFiler* filer, std::size_t budget, RecordedPrimitive& p)
{
    Adesk::UInt8 kind = 0;
    Adesk::Int32 depth = 0;
    filer->readUInt8(&kind);
    filer->readInt32(&depth);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (kind > kLastKind || depth < 0)
        return improperlyRead(filer);
    p.kind = static_cast<PrimitiveKind>(kind);
    p.depth = depth;
    readList(filer, budget, kPointBytes, p.points, [filer](AcGePoint3d& point) { filer->readPoint3d(&point); });
    readList(filer, budget, kPointBytes, p.vectors, [filer](AcGeVector3d& vector) { filer->readVector3d(&vector); });
    readList(filer, budget, sizeof(double), p.numbers, [filer](double& number) { filer->readDouble(&number); });
    readList(filer, budget, sizeof(Adesk::Int64), p.integers,
             [filer](Adesk::Int64& integer) { filer->readInt64(&integer); });
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    AcString text;
    filer->readString(text);
    p.text = text.kwszPtr();
    if (readStyle(filer, p.style) != Acad::eOk || readTraitsBody(filer, p.traits) != Acad::eOk)
        return filer->filerStatus();
    return readMarker(filer, p.traits);
}

// sparseLeft: how many more numbers the block's sparse lists may hold. Their zeros take a
// bit each on file, so the lists of a whole block together are held to one number a byte
// of the block (eight bytes of memory a byte read), not one a bit.
Acad::ErrorStatus readCompact(AcDbDwgFiler* filer, std::size_t budget, const headless::RecordedTraits& before,
                              std::size_t& sparseLeft, RecordedPrimitive& p)
{
    Adesk::UInt8 kind = 0;
    Adesk::UInt16 parts = 0;
    filer->readUInt8(&kind);
    filer->readUInt16(&parts);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    const auto has = [parts](Adesk::UInt16 part) { return (parts & part) != 0; };
    if (kind > kLastKind || (parts & ~kKnownParts) != 0 || (has(kFlatPoints) && !has(kPoints)) ||
        (has(kUnitZNormal) && has(kVectors)) || (has(kSparseNumbers) && !has(kNumbers)))
        return improperlyRead(filer);
    p.kind = static_cast<PrimitiveKind>(kind);
    if (has(kDepth)) {
        std::uint64_t depth = 0;
        if (readVarUInt(filer, depth) != Acad::eOk)
            return filer->filerStatus();
        if (depth > static_cast<std::uint64_t>(std::numeric_limits<int>::max()))
            return improperlyRead(filer);
        p.depth = static_cast<int>(depth);
    }
    std::size_t n = 0;
    if (has(kPoints)) {
        const bool flat = has(kFlatPoints);
        if (readVarCount(filer, budget, flat ? kFlatPointBytes : kPointBytes, n) != Acad::eOk)
            return filer->filerStatus();
        p.points.resize(n);
        for (AcGePoint3d& point : p.points) {
            if (flat) {
                AcGePoint2d xy;
                filer->readPoint2d(&xy);
                point.set(xy.x, xy.y, 0.0);
            } else {
                filer->readPoint3d(&point);
            }
        }
    }
    if (has(kUnitZNormal))
        p.vectors.assign(1, AcGeVector3d::kZAxis);
    if (has(kVectors)) {
        if (readVarCount(filer, budget, kPointBytes, n) != Acad::eOk)
            return filer->filerStatus();
        p.vectors.resize(n);
        for (AcGeVector3d& vector : p.vectors)
            filer->readVector3d(&vector);
    }
    if (has(kSparseNumbers)) {
        if (readVarCount(filer, budget, 1, n, 8) != Acad::eOk)
            return filer->filerStatus();
        if (n > sparseLeft)
            return improperlyRead(filer);
        sparseLeft -= n;
        p.numbers.assign(n, 0.0);
        Adesk::UInt8 bits = 0;
        for (std::size_t i = 0; i < n && filer->filerStatus() == Acad::eOk; ++i) {
            if (i % 8 == 0)
                filer->readUInt8(&bits);
            if ((bits >> (i % 8)) & 1)
                filer->readDouble(&p.numbers[i]);
        }
    } else if (has(kNumbers)) {
        if (readVarCount(filer, budget, sizeof(double), n) != Acad::eOk)
            return filer->filerStatus();
        p.numbers.resize(n);
        for (double& number : p.numbers)
            filer->readDouble(&number);
    }
    if (has(kIntegers)) {
        if (readVarCount(filer, budget, kMinimumVarIntBytes, n) != Acad::eOk)
            return filer->filerStatus();
        p.integers.resize(n);
        for (Adesk::Int64& integer : p.integers) {
            std::int64_t value = 0;
            if (readVarInt(filer, value) != Acad::eOk)
                return filer->filerStatus();
            integer = value;
        }
    }
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (has(kText)) {
        AcString text;
        if (filer->readString(text) != Acad::eOk)
            return filer->filerStatus();
        p.text = text.kwszPtr();
    }
    if (has(kStyle) && readStyle(filer, p.style) != Acad::eOk)
        return filer->filerStatus();
    p.traits = before;
    if (has(kMarker)) {
        std::int64_t marker = 0;
        if (readVarInt(filer, marker) != Acad::eOk)
            return filer->filerStatus();
        p.traits.selectionMarker = static_cast<Adesk::LongPtr>(marker);
    }
    if (has(kTraits) && readTraitsBody(filer, p.traits) != Acad::eOk)
        return filer->filerStatus();
    return filer->filerStatus();
}

}  // namespace

Acad::ErrorStatus GraphicsCodec::write(AcDbDwgFiler* filer, const std::vector<RecordedPrimitive>& primitives)
{
    filer->writeUInt32(static_cast<Adesk::UInt32>(primitives.size()));
    headless::RecordedTraits before;
    for (const RecordedPrimitive& p : primitives) {
        const bool flat = isFlat(p.points);
        const bool unitZ = isUnitZ(p.vectors);
        const bool sparse = worthSparse(p.numbers);
        Adesk::UInt16 parts = 0;
        parts |= p.depth != 0 ? kDepth : 0;
        parts |= !p.points.empty() ? (flat ? kPoints | kFlatPoints : kPoints) : 0;
        parts |= unitZ ? kUnitZNormal : (!p.vectors.empty() ? kVectors : 0);
        parts |= !p.numbers.empty() ? (sparse ? kNumbers | kSparseNumbers : kNumbers) : 0;
        parts |= !p.integers.empty() ? kIntegers : 0;
        parts |= !p.text.empty() ? kText : 0;
        parts |= !isDefaultStyle(p.style) ? kStyle : 0;
        parts |= p.traits.selectionMarker != before.selectionMarker ? kMarker : 0;
        parts |= !sameTraitsBody(p.traits, before) ? kTraits : 0;
        filer->writeUInt8(static_cast<Adesk::UInt8>(p.kind));
        filer->writeUInt16(parts);
        if ((parts & kDepth) != 0)
            writeVarUInt(filer, static_cast<std::uint64_t>(p.depth));
        if ((parts & kPoints) != 0) {
            writeVarUInt(filer, p.points.size());
            for (const AcGePoint3d& point : p.points) {
                if (flat)
                    filer->writePoint2d(AcGePoint2d(point.x, point.y));
                else
                    filer->writePoint3d(point);
            }
        }
        if ((parts & kVectors) != 0) {
            writeVarUInt(filer, p.vectors.size());
            for (const AcGeVector3d& vector : p.vectors)
                filer->writeVector3d(vector);
        }
        if (sparse) {
            writeVarUInt(filer, p.numbers.size());
            for (std::size_t first = 0; first < p.numbers.size(); first += 8) {
                const std::size_t end = std::min(first + 8, p.numbers.size());
                Adesk::UInt8 bits = 0;
                for (std::size_t i = first; i < end; ++i)
                    bits |= sameBits(p.numbers[i], 0.0) ? 0 : static_cast<Adesk::UInt8>(1 << (i - first));
                filer->writeUInt8(bits);
                for (std::size_t i = first; i < end; ++i) {
                    if (!sameBits(p.numbers[i], 0.0))
                        filer->writeDouble(p.numbers[i]);
                }
            }
        } else if ((parts & kNumbers) != 0) {
            writeVarUInt(filer, p.numbers.size());
            for (double number : p.numbers)
                filer->writeDouble(number);
        }
        if ((parts & kIntegers) != 0) {
            writeVarUInt(filer, p.integers.size());
            for (Adesk::Int64 integer : p.integers)
                writeVarInt(filer, integer);
        }
        if ((parts & kText) != 0)
            filer->writeString(p.text.c_str());
        if ((parts & kStyle) != 0)
            writeStyle(filer, p.style);
        if ((parts & kMarker) != 0)
            writeVarInt(filer, static_cast<std::int64_t>(p.traits.selectionMarker));
        if ((parts & kTraits) != 0)
            writeTraitsBody(filer, p.traits);
        before = p.traits;
    }
    return filer->filerStatus();
}

Acad::ErrorStatus GraphicsCodec::read(AcDbDwgFiler* filer, std::size_t budget,
                                      std::vector<RecordedPrimitive>& primitives, GraphicsForm form)
{
    primitives.clear();
    const bool compact = form == GraphicsForm::kCompact;
    std::size_t count = 0;
    if (readCount(filer, budget, compact ? kMinimumCompactBytes : kMinimumVerboseBytes, count) != Acad::eOk)
        return filer->filerStatus();
    primitives.reserve(count);
    headless::RecordedTraits before;
    std::size_t sparseLeft = budget;
    for (std::size_t i = 0; i < count; ++i) {
        RecordedPrimitive p;
        const Acad::ErrorStatus es =
            compact ? readCompact(filer, budget, before, sparseLeft, p) : readVerbose(filer, budget, p);
        if (es != Acad::eOk)
            return es;
        before = p.traits;
        primitives.push_back(std::move(p));
    }
    return filer->filerStatus();
}

}  // namespace hostfile
