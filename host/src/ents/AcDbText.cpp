// AcDbText: construction, properties, filing, database defaults and listing.
#include "AcDbText.h"

#include <cmath>

#include "AcDbDatabase.h"
#include "EntityDatabase.h"
#include "EntityFiling.h"
#include "EntityListing.h"
#include "TextFrame.h"
#include "dbsymtb.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbText, AcDbEntity, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, TEXT, HeadlessHost)

namespace {

constexpr Adesk::Int16 kTextVersion = 1;
constexpr Adesk::Int16 kMirrorXBit = 2;
constexpr Adesk::Int16 kMirrorYBit = 4;

bool isValidHorizontal(int mode)
{
    return mode >= AcDb::kTextLeft && mode <= AcDb::kTextFit;
}

bool isValidVertical(int mode)
{
    return mode >= AcDb::kTextBase && mode <= AcDb::kTextTop;
}

const ACHAR* horizontalName(AcDb::TextHorzMode mode)
{
    switch (mode) {
    case AcDb::kTextCenter: return L"center";
    case AcDb::kTextRight: return L"right";
    case AcDb::kTextAlign: return L"aligned";
    case AcDb::kTextMid: return L"middle";
    case AcDb::kTextFit: return L"fit";
    default: return L"left";
    }
}

const ACHAR* verticalName(AcDb::TextVertMode mode)
{
    switch (mode) {
    case AcDb::kTextBottom: return L"bottom";
    case AcDb::kTextVertMid: return L"middle";
    case AcDb::kTextTop: return L"top";
    default: return L"baseline";
    }
}

}  // namespace

AcDbText::AcDbText() = default;

AcDbText::AcDbText(const AcGePoint3d& position, const ACHAR* text, AcDbObjectId style, double height,
                   double rotation)
    : m_position(position),
      m_height(std::isfinite(height) && height >= 0.0 ? height : 0.0),
      m_rotation(std::isfinite(rotation) ? rotation : 0.0),
      m_text(text),
      m_textStyle(style)
{
}

AcDbText::~AcDbText() = default;

AcGePoint3d AcDbText::position() const
{
    assertReadEnabled();
    return m_position;
}

Acad::ErrorStatus AcDbText::setPosition(const AcGePoint3d& position)
{
    assertWriteEnabled();
    if (!hostents::isFinite(position))
        return Acad::eInvalidInput;
    m_position = position;
    recordGraphicsModified();
    return Acad::eOk;
}

AcGePoint3d AcDbText::alignmentPoint() const
{
    assertReadEnabled();
    return m_alignmentPoint;
}

Acad::ErrorStatus AcDbText::setAlignmentPoint(const AcGePoint3d& point)
{
    assertWriteEnabled();
    if (!hostents::isFinite(point))
        return Acad::eInvalidInput;
    m_alignmentPoint = point;
    recordGraphicsModified();
    return Acad::eOk;
}

Adesk::Boolean AcDbText::isDefaultAlignment() const
{
    assertReadEnabled();
    return m_horizontalMode == AcDb::kTextLeft && m_verticalMode == AcDb::kTextBase;
}

AcGeVector3d AcDbText::normal() const
{
    assertReadEnabled();
    return m_normal;
}

Acad::ErrorStatus AcDbText::setNormal(const AcGeVector3d& normal)
{
    assertWriteEnabled();
    if (!hostents::isUsableNormal(normal))
        return Acad::eInvalidInput;
    m_normal = normal / normal.length();
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbText::thickness() const
{
    assertReadEnabled();
    return m_thickness;
}

Acad::ErrorStatus AcDbText::setThickness(double thickness)
{
    assertWriteEnabled();
    if (!std::isfinite(thickness))
        return Acad::eInvalidInput;
    m_thickness = thickness;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbText::oblique() const
{
    assertReadEnabled();
    return m_oblique;
}

Acad::ErrorStatus AcDbText::setOblique(double oblique)
{
    assertWriteEnabled();
    if (!std::isfinite(oblique))
        return Acad::eInvalidInput;
    m_oblique = oblique;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbText::rotation() const
{
    assertReadEnabled();
    return m_rotation;
}

Acad::ErrorStatus AcDbText::setRotation(double rotation)
{
    assertWriteEnabled();
    if (!std::isfinite(rotation))
        return Acad::eInvalidInput;
    m_rotation = rotation;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbText::height() const
{
    assertReadEnabled();
    return m_height;
}

Acad::ErrorStatus AcDbText::setHeight(double height)
{
    assertWriteEnabled();
    if (!std::isfinite(height) || height < 0.0)
        return Acad::eInvalidInput;
    m_height = height;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbText::widthFactor() const
{
    assertReadEnabled();
    return m_widthFactor;
}

Acad::ErrorStatus AcDbText::setWidthFactor(double widthFactor)
{
    assertWriteEnabled();
    if (!std::isfinite(widthFactor) || widthFactor <= 0.0)
        return Acad::eInvalidInput;
    m_widthFactor = widthFactor;
    recordGraphicsModified();
    return Acad::eOk;
}

Adesk::Boolean AcDbText::isMirroredInX() const
{
    assertReadEnabled();
    return m_mirroredInX;
}

Acad::ErrorStatus AcDbText::mirrorInX(Adesk::Boolean mirror)
{
    assertWriteEnabled();
    m_mirroredInX = mirror;
    recordGraphicsModified();
    return Acad::eOk;
}

Adesk::Boolean AcDbText::isMirroredInY() const
{
    assertReadEnabled();
    return m_mirroredInY;
}

Acad::ErrorStatus AcDbText::mirrorInY(Adesk::Boolean mirror)
{
    assertWriteEnabled();
    m_mirroredInY = mirror;
    recordGraphicsModified();
    return Acad::eOk;
}

AcDb::TextHorzMode AcDbText::horizontalMode() const
{
    assertReadEnabled();
    return m_horizontalMode;
}

Acad::ErrorStatus AcDbText::setHorizontalMode(AcDb::TextHorzMode mode)
{
    assertWriteEnabled();
    if (!isValidHorizontal(mode))
        return Acad::eInvalidInput;
    m_horizontalMode = mode;
    recordGraphicsModified();
    return Acad::eOk;
}

AcDb::TextVertMode AcDbText::verticalMode() const
{
    assertReadEnabled();
    return m_verticalMode;
}

Acad::ErrorStatus AcDbText::setVerticalMode(AcDb::TextVertMode mode)
{
    assertWriteEnabled();
    if (!isValidVertical(mode))
        return Acad::eInvalidInput;
    m_verticalMode = mode;
    recordGraphicsModified();
    return Acad::eOk;
}

ACHAR* AcDbText::textString() const
{
    assertReadEnabled();
    ACHAR* copy = nullptr;
    acutNewString(m_text.kwszPtr(), copy);
    return copy;
}

Acad::ErrorStatus AcDbText::textString(AcString& text) const
{
    assertReadEnabled();
    text = m_text;
    return Acad::eOk;
}

const ACHAR* AcDbText::textStringConst() const
{
    assertReadEnabled();
    return m_text.kwszPtr();
}

Acad::ErrorStatus AcDbText::setTextString(const ACHAR* text)
{
    assertWriteEnabled();
    if (text == nullptr)
        return Acad::eInvalidInput;
    m_text = text;
    recordGraphicsModified();
    return Acad::eOk;
}

AcDbObjectId AcDbText::textStyle() const
{
    assertReadEnabled();
    return m_textStyle;
}

Acad::ErrorStatus AcDbText::setTextStyle(AcDbObjectId style)
{
    assertWriteEnabled();
    m_textStyle = style;
    recordGraphicsModified();
    return Acad::eOk;
}

void AcDbText::subSetDatabaseDefaults(AcDbDatabase* db)
{
    AcDbEntity::subSetDatabaseDefaults(db);
    if (db != nullptr && m_textStyle.isNull())
        m_textStyle = db->textstyle();
}

// On file after the entity's fields: version, position, alignment point, normal,
// thickness, height, rotation, width factor, oblique, generation flags (2 mirrored in X,
// 4 mirrored in Y), horizontal and vertical mode, the string, the text style.
Acad::ErrorStatus AcDbText::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = AcDbEntity::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt16(kTextVersion);
    filer->writePoint3d(m_position);
    filer->writePoint3d(m_alignmentPoint);
    filer->writeVector3d(m_normal);
    filer->writeDouble(m_thickness);
    filer->writeDouble(m_height);
    filer->writeDouble(m_rotation);
    filer->writeDouble(m_widthFactor);
    filer->writeDouble(m_oblique);
    filer->writeInt16(static_cast<Adesk::Int16>((m_mirroredInX ? kMirrorXBit : 0) | (m_mirroredInY ? kMirrorYBit : 0)));
    filer->writeInt16(static_cast<Adesk::Int16>(m_horizontalMode));
    filer->writeInt16(static_cast<Adesk::Int16>(m_verticalMode));
    filer->writeString(m_text);
    filer->writeHardPointerId(m_textStyle);
    return filer->filerStatus();
}

Acad::ErrorStatus AcDbText::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    Acad::ErrorStatus es = AcDbEntity::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int16 version = 0;
    es = hostents::readClassVersion(filer, kTextVersion, version);
    if (es != Acad::eOk)
        return es;
    AcGePoint3d position;
    AcGePoint3d alignment;
    AcGeVector3d normal;
    double thickness = 0.0;
    double height = 0.0;
    double rotation = 0.0;
    double widthFactor = 0.0;
    double oblique = 0.0;
    Adesk::Int16 flags = 0;
    Adesk::Int16 horizontal = 0;
    Adesk::Int16 vertical = 0;
    AcString text;
    AcDbHardPointerId style;
    filer->readPoint3d(&position);
    filer->readPoint3d(&alignment);
    filer->readVector3d(&normal);
    filer->readDouble(&thickness);
    filer->readDouble(&height);
    filer->readDouble(&rotation);
    filer->readDouble(&widthFactor);
    filer->readDouble(&oblique);
    filer->readInt16(&flags);
    filer->readInt16(&horizontal);
    filer->readInt16(&vertical);
    filer->readString(text);
    filer->readHardPointerId(&style);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    const bool valid = hostents::isFinite(position) && hostents::isFinite(alignment) &&
                       hostents::isUsableNormal(normal) && std::isfinite(thickness) && std::isfinite(height) &&
                       height >= 0.0 && std::isfinite(rotation) && std::isfinite(widthFactor) && widthFactor > 0.0 &&
                       std::isfinite(oblique) && (flags & ~(kMirrorXBit | kMirrorYBit)) == 0 &&
                       isValidHorizontal(horizontal) && isValidVertical(vertical);
    if (!valid)
        return hostents::improperlyRead(filer);
    m_position = position;
    m_alignmentPoint = alignment;
    m_normal = hostents::unitAsFiled(normal);
    m_thickness = thickness;
    m_height = height;
    m_rotation = rotation;
    m_widthFactor = widthFactor;
    m_oblique = oblique;
    m_mirroredInX = (flags & kMirrorXBit) != 0;
    m_mirroredInY = (flags & kMirrorYBit) != 0;
    m_horizontalMode = static_cast<AcDb::TextHorzMode>(horizontal);
    m_verticalMode = static_cast<AcDb::TextVertMode>(vertical);
    m_text = text;
    m_textStyle = style;
    return Acad::eOk;
}

void AcDbText::subList() const
{
    assertReadEnabled();
    AcDbEntity::subList();
    hostents::listText(L"style", hostents::recordName(m_textStyle).kwszPtr());
    hostents::listText(L"text", m_text.kwszPtr());
    hostents::listPoint(L"position", m_position);
    if (m_horizontalMode != AcDb::kTextLeft || m_verticalMode != AcDb::kTextBase)
        hostents::listPoint(L"alignment point", m_alignmentPoint);
    hostents::listValue(L"height", m_height);
    hostents::listAngle(L"rotation", m_rotation);
    hostents::listValue(L"width factor", m_widthFactor);
    hostents::listAngle(L"oblique", m_oblique);
    hostents::listLine(L"justification", AcString(horizontalName(m_horizontalMode)) + L" " +
                                             verticalName(m_verticalMode));
    if (m_mirroredInX || m_mirroredInY)
        hostents::listLine(L"mirrored", AcString(m_mirroredInX ? L"in X" : L"") +
                                            (m_mirroredInX && m_mirroredInY ? L" and " : L"") +
                                            (m_mirroredInY ? L"in Y" : L""));
    if (m_thickness != 0.0)
        hostents::listValue(L"thickness", m_thickness);
    if (m_normal != AcGeVector3d::kZAxis)
        hostents::listVector(L"normal", m_normal);
}
