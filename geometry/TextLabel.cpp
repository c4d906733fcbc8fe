// TextLabel: making the host text, and filing. The record starts with its version and a
// reserved block of counted arrays that leaves room for later fields; the label's own
// fields follow in a fixed order, the later versions' at the end.
#include "TextLabel.h"

#include <cmath>
#include <ostream>

#include "Qx/TextStyleUtil.h"
#include "data/DwgFilerIoAdapter.h"
#include "data/IDataIO.h"
#include "dbapserv.h"
#include "dbents.h"
#include "dbfiler.h"
#include "dbmain.h"

namespace DbxPanel {

namespace {

const ACHAR* const kFallbackStyleName = L"_Standard";

constexpr Adesk::Int32 kFirstLabelType = 0;
constexpr Adesk::Int32 kLastLabelType = 13;
// No version writes anything into the reserved block yet; a count beyond this cannot come
// from any writer, and honouring it would let a damaged record spin for minutes.
constexpr Adesk::Int32 kMaxReservedCount = 1 << 16;

bool IsFinite(const AcGePoint3d& p)
{
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

bool IsFinite(const AcGeVector3d& v)
{
    return std::isfinite(v.x) && std::isfinite(v.y) && std::isfinite(v.z);
}

bool IsPositive(double value)
{
    return std::isfinite(value) && value > 0.0;
}

// The channel reports trouble only through its medium: over a drawing filer that is the
// filer's status; the in-memory channel never fails.
AcDbDwgFiler* FilerOf(IDataIO* io)
{
    auto* adapter = dynamic_cast<DwgFilerIoAdapter*>(io);
    return adapter != nullptr ? adapter->GetFiler() : nullptr;
}

bool Failed(const AcDbDwgFiler* filer)
{
    return filer != nullptr && filer->filerStatus() != Acad::eOk;
}

// Reads one reserved array (a count, then its elements) and drops it.
template <typename T>
bool SkipReservedArray(IDataIO* io, const AcDbDwgFiler* filer)
{
    Adesk::Int32 count = 0;
    io->Read(count);
    if (Failed(filer) || count < 0 || count > kMaxReservedCount)
        return false;
    for (Adesk::Int32 i = 0; i < count && !Failed(filer); ++i) {
        T element{};
        io->Read(element);
    }
    return !Failed(filer);
}

void WriteReservedBlock(IDataIO* io)
{
    // Booleans, integers, doubles, strings, 3D vectors, 3D points, 2D points, object ids.
    for (int array = 0; array < 8; ++array)
        io->Write(Adesk::Int32(0));
}

bool SkipReservedBlock(IDataIO* io, const AcDbDwgFiler* filer)
{
    return SkipReservedArray<bool>(io, filer) && SkipReservedArray<Adesk::Int32>(io, filer) &&
        SkipReservedArray<double>(io, filer) && SkipReservedArray<AcString>(io, filer) &&
        SkipReservedArray<AcGeVector3d>(io, filer) && SkipReservedArray<AcGePoint3d>(io, filer) &&
        SkipReservedArray<AcGePoint2d>(io, filer) && SkipReservedArray<AcDbHardPointerId>(io, filer);
}

TextLabelType TypeFromStored(Adesk::Int32 value)
{
    if (value < kFirstLabelType || value > kLastLabelType)
        return TextLabelType::kUnknown;
    return static_cast<TextLabelType>(value);
}

bool SameVector(const AcGeVector3d& a, const AcGeVector3d& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

bool SamePoint(const AcGePoint3d& a, const AcGePoint3d& b)
{
    return a.x == b.x && a.y == b.y && a.z == b.z;
}

}  // namespace

TextLabel::TextLabel(const wchar_t* text, bool visible, double textHeight, double widthFactor,
                     const AcDbObjectId& textStyleId)
    : m_visible(visible), m_string(text), m_textHeight(textHeight), m_widthFactor(widthFactor),
      m_textStyleId(textStyleId), m_direction(0.0, 0.0, 0.0)
{}

AcDbText* TextLabel::CreateDbText() const
{
    AcDbDatabase* db = acdbHostApplicationServices()->workingDatabase();
    if (db == nullptr || !IsPositive(m_textHeight) || !IsPositive(m_widthFactor) || !IsFinite(m_position) ||
        !IsFinite(m_direction))
        return nullptr;

    AcDbObjectId style = m_textStyleId;
    if (!style.isWellBehaved() || style.database() != db)
        style = Qx::TextStyleUtil::GetAt(kFallbackStyleName, db);
    if (!style.isValid())
        style = db->textstyle();

    auto* text = new AcDbText();
    text->setDatabaseDefaults(db);
    text->setTextStyle(style);
    text->setTextString(m_string.kwszPtr());
    text->setHeight(m_textHeight);
    text->setWidthFactor(m_widthFactor);
    text->setRotation(std::atan2(m_direction.y, m_direction.x));
    text->setPosition(m_position);
    text->setVerticalMode(AcDb::kTextVertMid);
    text->setHorizontalMode(AcDb::kTextCenter);
    text->setAlignmentPoint(m_position);
    text->adjustAlignment(db);
    if (!m_layerId.isNull())
        text->setLayer(m_layerId);
    if (!m_color.IsUnset())
        text->setColor(m_color.ToAcCmColor());
    return text;
}

// Style and layer are hard pointers, as a text's own are: a wblock of the owner brings
// them along into the new drawing.
void TextLabel::DataOut(IDataIO* io) const
{
    if (io == nullptr)
        return;
    io->Write(kCurrentVersion);
    WriteReservedBlock(io);
    io->Write(m_visible);
    io->Write(m_position);
    io->Write(m_direction);
    io->Write(m_string);
    io->Write(m_textHeight);
    io->Write(m_widthFactor);
    io->Write(AcDbHardPointerId(m_textStyleId));
    io->Write(static_cast<Adesk::Int32>(m_type));
    io->Write(static_cast<Adesk::Int32>(m_predefinedPosition));
    io->Write(AcDbHardPointerId(m_layerId));
    m_color.DataOut(io);
    io->Write(static_cast<Adesk::Int32>(m_directionMode));
    io->Write(m_fixedAngle);
}

bool TextLabel::DataIn(IDataIO* io)
{
    if (io == nullptr)
        return false;
    AcDbDwgFiler* filer = FilerOf(io);
    Adesk::Int32 version = 0;
    io->Read(version);
    // A version this reader does not know is read as the current one.
    const bool hasLayerAndColor = version != 1;
    const bool hasDirectionMode = version != 1 && version != 2;
    if (!SkipReservedBlock(io, filer)) {
        if (filer != nullptr && filer->filerStatus() == Acad::eOk)
            filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return false;
    }

    // Every field starts at zero, which is what older versions leave in the fields they lack.
    TextLabel read(nullptr, false, 0.0, 0.0, AcDbObjectId::kNull);
    io->Read(read.m_visible);
    io->Read(read.m_position);
    io->Read(read.m_direction);
    io->Read(read.m_string);
    io->Read(read.m_textHeight);
    io->Read(read.m_widthFactor);
    AcDbHardPointerId style;
    io->Read(style);
    read.m_textStyleId = style;
    Adesk::Int32 type = 0;
    io->Read(type);
    read.m_type = TypeFromStored(type);
    Adesk::Int32 position = 0;
    io->Read(position);
    read.m_predefinedPosition = static_cast<PredefinedTextPosition>(position);
    if (hasLayerAndColor) {
        AcDbHardPointerId layer;
        io->Read(layer);
        read.m_layerId = layer;
        read.m_color.DataIn(io);
    }
    if (hasDirectionMode) {
        Adesk::Int32 mode = 0;
        io->Read(mode);
        read.m_directionMode = static_cast<TextDirectionMode>(mode);
        io->Read(read.m_fixedAngle);
    }
    if (Failed(filer))
        return false;
    *this = read;
    return true;
}

bool TextLabel::operator==(const TextLabel& other) const
{
    return m_visible == other.m_visible && m_string == other.m_string && m_textHeight == other.m_textHeight &&
        m_widthFactor == other.m_widthFactor && m_textStyleId == other.m_textStyleId &&
        SameVector(m_direction, other.m_direction) && m_type == other.m_type &&
        m_predefinedPosition == other.m_predefinedPosition && SamePoint(m_position, other.m_position) &&
        m_layerId == other.m_layerId && m_color == other.m_color && m_directionMode == other.m_directionMode &&
        m_fixedAngle == other.m_fixedAngle;
}

std::ostream& operator<<(std::ostream& os, const TextLabel& label)
{
    return os << "{\"" << label.GetString() << "\" " << (label.IsVisible() ? "visible" : "hidden") << ", pos "
              << label.GetPos() << ", dir " << label.GetDir() << ", height " << label.GetTextHeight() << ", width "
              << label.GetWidthFactor() << ", style " << label.GetTextStyleId() << ", type "
              << static_cast<Adesk::Int32>(label.GetType()) << ", position "
              << static_cast<Adesk::Int32>(label.GetPredefinedPositionType()) << ", layer " << label.GetLayerId()
              << ", colour " << PackedColor(label.GetColorPacked()) << ", mode "
              << static_cast<Adesk::Int32>(label.GetDirectionMode()) << ", angle " << label.GetFixedAngleRadians()
              << '}';
}

}  // namespace DbxPanel
