// GraphicsCodec: per primitive its kind and depth, the points, vectors, numbers, integers
// and text, the text style, and the traits; references (layer, linetype) as soft pointers.
#include "GraphicsCodec.h"

#include <cstdint>

#include "acutads.h"
#include "acutmem.h"
#include "db/DbChecks.h"

namespace hostfile {

namespace {

using headless::PrimitiveKind;
using headless::RecordedPrimitive;

// The least a primitive takes on file (kind, depth, five empty lists, the style's fixed
// part and the traits): a count larger than budget / this cannot be true.
constexpr std::size_t kMinimumPrimitiveBytes = 64;
constexpr std::size_t kPointBytes = 24;
constexpr int kLastKind = static_cast<int>(PrimitiveKind::kClipEnd);

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

void writeTraits(AcDbDwgFiler* filer, const headless::RecordedTraits& traits)
{
    filer->writeUInt16(traits.color);
    filer->writeUInt32(traits.trueColor.getRGBM());
    filer->writeSoftPointerId(traits.layerId);
    filer->writeSoftPointerId(traits.linetypeId);
    filer->writeInt16(static_cast<Adesk::Int16>(traits.lineWeight));
    filer->writeDouble(traits.linetypeScale);
    filer->writeDouble(traits.thickness);
    filer->writeUInt8(static_cast<Adesk::UInt8>(traits.fillType));
    filer->writeInt64(static_cast<Adesk::Int64>(traits.selectionMarker));
}

Acad::ErrorStatus readTraits(AcDbDwgFiler* filer, headless::RecordedTraits& traits)
{
    Adesk::UInt32 rgbm = 0;
    AcDbSoftPointerId layer, linetype;
    Adesk::Int16 lineWeight = 0;
    Adesk::UInt8 fill = 0;
    Adesk::Int64 marker = 0;
    filer->readUInt16(&traits.color);
    filer->readUInt32(&rgbm);
    filer->readSoftPointerId(&layer);
    filer->readSoftPointerId(&linetype);
    filer->readInt16(&lineWeight);
    filer->readDouble(&traits.linetypeScale);
    filer->readDouble(&traits.thickness);
    filer->readUInt8(&fill);
    filer->readInt64(&marker);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (!hostdb::isValidLineWeight(lineWeight)) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return Acad::eDwgObjectImproperlyRead;
    }
    traits.trueColor.setRGBM(rgbm);
    traits.layerId = layer;
    traits.linetypeId = linetype;
    traits.lineWeight = static_cast<AcDb::LineWeight>(lineWeight);
    traits.fillType = fill == kAcGiFillAlways ? kAcGiFillAlways : kAcGiFillNever;
    traits.selectionMarker = static_cast<Adesk::LongPtr>(marker);
    return Acad::eOk;
}

}  // namespace

Acad::ErrorStatus GraphicsCodec::write(AcDbDwgFiler* filer, const std::vector<RecordedPrimitive>& primitives)
{
    filer->writeUInt32(static_cast<Adesk::UInt32>(primitives.size()));
    for (const RecordedPrimitive& p : primitives) {
        filer->writeUInt8(static_cast<Adesk::UInt8>(p.kind));
        filer->writeInt32(p.depth);
        filer->writeUInt32(static_cast<Adesk::UInt32>(p.points.size()));
        for (const AcGePoint3d& point : p.points)
            filer->writePoint3d(point);
        filer->writeUInt32(static_cast<Adesk::UInt32>(p.vectors.size()));
        for (const AcGeVector3d& vector : p.vectors)
            filer->writeVector3d(vector);
        filer->writeUInt32(static_cast<Adesk::UInt32>(p.numbers.size()));
        for (double number : p.numbers)
            filer->writeDouble(number);
        filer->writeUInt32(static_cast<Adesk::UInt32>(p.integers.size()));
        for (Adesk::Int64 integer : p.integers)
            filer->writeInt64(integer);
        filer->writeString(p.text.c_str());
        writeStyle(filer, p.style);
        writeTraits(filer, p.traits);
    }
    return filer->filerStatus();
}

Acad::ErrorStatus GraphicsCodec::read(AcDbDwgFiler* filer, std::size_t budget,
                                      std::vector<RecordedPrimitive>& primitives)
{
    primitives.clear();
    std::size_t count = 0;
    if (readCount(filer, budget, kMinimumPrimitiveBytes, count) != Acad::eOk)
        return filer->filerStatus();
    primitives.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        RecordedPrimitive p;
        Adesk::UInt8 kind = 0;
        Adesk::Int32 depth = 0;
        filer->readUInt8(&kind);
        filer->readInt32(&depth);
        if (filer->filerStatus() != Acad::eOk)
            return filer->filerStatus();
        if (kind > kLastKind || depth < 0) {
            filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
            return Acad::eDwgObjectImproperlyRead;
        }
        p.kind = static_cast<PrimitiveKind>(kind);
        p.depth = depth;
        std::size_t n = 0;
        if (readCount(filer, budget, kPointBytes, n) != Acad::eOk)
            return filer->filerStatus();
        p.points.resize(n);
        for (AcGePoint3d& point : p.points)
            filer->readPoint3d(&point);
        if (readCount(filer, budget, kPointBytes, n) != Acad::eOk)
            return filer->filerStatus();
        p.vectors.resize(n);
        for (AcGeVector3d& vector : p.vectors)
            filer->readVector3d(&vector);
        if (readCount(filer, budget, sizeof(double), n) != Acad::eOk)
            return filer->filerStatus();
        p.numbers.resize(n);
        for (double& number : p.numbers)
            filer->readDouble(&number);
        if (readCount(filer, budget, sizeof(Adesk::Int64), n) != Acad::eOk)
            return filer->filerStatus();
        p.integers.resize(n);
        for (Adesk::Int64& integer : p.integers)
            filer->readInt64(&integer);
        AcString text;
        filer->readString(text);
        p.text = text.kwszPtr();
        if (readStyle(filer, p.style) != Acad::eOk || readTraits(filer, p.traits) != Acad::eOk)
            return filer->filerStatus();
        primitives.push_back(std::move(p));
    }
    return filer->filerStatus();
}

}  // namespace hostfile
