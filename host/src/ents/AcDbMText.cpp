// AcDbMText: construction, properties, contents, filing, database defaults and listing.
#include "AcDbMText.h"

#include <algorithm>
#include <cmath>

#include "AcDbDatabase.h"
#include "ArcGeometry.h"
#include "EntityDatabase.h"
#include "EntityFiling.h"
#include "EntityListing.h"
#include "MTextLayout.h"
#include "TextFrame.h"
#include "gi/PlaneMath.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbMText, AcDbEntity, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0, MTEXT, HeadlessHost)

namespace {

constexpr Adesk::Int16 kMTextVersion = 1;
constexpr double kMinLineSpacing = 0.25;
constexpr double kMaxLineSpacing = 4.0;

bool isLayoutAttachment(int attachment)
{
    return attachment >= AcDbMText::kTopLeft && attachment <= AcDbMText::kBottomRight;
}

bool isValidFlow(int flow)
{
    return flow >= AcDbMText::kLtoR && flow <= AcDbMText::kByStyle;
}

bool isValidSpacing(double factor)
{
    return std::isfinite(factor) && factor >= kMinLineSpacing && factor <= kMaxLineSpacing;
}

const ACHAR* attachmentName(int attachment)
{
    static const ACHAR* const kNames[] = {L"top left",    L"top center",    L"top right",
                                          L"middle left", L"middle center", L"middle right",
                                          L"bottom left", L"bottom center", L"bottom right"};
    return isLayoutAttachment(attachment) ? kNames[attachment - 1] : L"other";
}

const ACHAR* flowName(int flow)
{
    switch (flow) {
    case AcDbMText::kRtoL: return L"right to left";
    case AcDbMText::kTtoB: return L"top to bottom";
    case AcDbMText::kBtoT: return L"bottom to top";
    case AcDbMText::kByStyle: return L"by style";
    default: return L"left to right";
    }
}

}  // namespace

AcDbMText::AcDbMText() = default;

AcDbMText::~AcDbMText() = default;

AcGePoint3d AcDbMText::location() const
{
    assertReadEnabled();
    return m_location;
}

Acad::ErrorStatus AcDbMText::setLocation(const AcGePoint3d& point)
{
    assertWriteEnabled();
    if (!hostents::isFinite(point))
        return Acad::eInvalidInput;
    m_location = point;
    recordGraphicsModified();
    return Acad::eOk;
}

AcGeVector3d AcDbMText::normal() const
{
    assertReadEnabled();
    return m_normal;
}

Acad::ErrorStatus AcDbMText::setNormal(const AcGeVector3d& normal)
{
    assertWriteEnabled();
    if (!hostents::isUsableNormal(normal))
        return Acad::eInvalidInput;
    m_normal = normal / normal.length();
    m_direction = hostgi::ocsXAxis(m_normal);
    recordGraphicsModified();
    return Acad::eOk;
}

AcGeVector3d AcDbMText::direction() const
{
    assertReadEnabled();
    return m_direction;
}

Acad::ErrorStatus AcDbMText::setDirection(const AcGeVector3d& direction)
{
    assertWriteEnabled();
    if (!hostents::isFinite(direction))
        return Acad::eInvalidInput;
    const AcGeVector3d inPlane = direction - m_normal * direction.dotProduct(m_normal);
    const double length = inPlane.length();
    if (length <= hostents::kOnCurveTolerance * std::max(1.0, direction.length()))
        return Acad::eInvalidInput;
    m_direction = inPlane / length;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbMText::rotation() const
{
    assertReadEnabled();
    return hostents::rotationOf(m_normal, m_direction);
}

Acad::ErrorStatus AcDbMText::setRotation(double rotation)
{
    assertWriteEnabled();
    if (!std::isfinite(rotation))
        return Acad::eInvalidInput;
    m_direction = hostgi::ocsXAxis(m_normal) * std::cos(rotation) + hostgi::ocsYAxis(m_normal) * std::sin(rotation);
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbMText::width() const
{
    assertReadEnabled();
    return m_width;
}

Acad::ErrorStatus AcDbMText::setWidth(double width)
{
    assertWriteEnabled();
    if (!std::isfinite(width) || width < 0.0)
        return Acad::eInvalidInput;
    m_width = width;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbMText::textHeight() const
{
    assertReadEnabled();
    return m_textHeight;
}

Acad::ErrorStatus AcDbMText::setTextHeight(double height)
{
    assertWriteEnabled();
    if (!std::isfinite(height) || height <= 0.0)
        return Acad::eInvalidInput;
    m_textHeight = height;
    recordGraphicsModified();
    return Acad::eOk;
}

AcDbObjectId AcDbMText::textStyle() const
{
    assertReadEnabled();
    return m_textStyle;
}

Acad::ErrorStatus AcDbMText::setTextStyle(AcDbObjectId style)
{
    assertWriteEnabled();
    m_textStyle = style;
    recordGraphicsModified();
    return Acad::eOk;
}

AcDbMText::AttachmentPoint AcDbMText::attachment() const
{
    assertReadEnabled();
    return m_attachment;
}

Acad::ErrorStatus AcDbMText::setAttachment(AttachmentPoint attachment)
{
    assertWriteEnabled();
    if (!isLayoutAttachment(attachment))
        return Acad::eInvalidInput;
    m_attachment = attachment;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbMText::setAttachmentMovingLocation(AttachmentPoint attachment)
{
    assertWriteEnabled();
    if (!isLayoutAttachment(attachment))
        return Acad::eInvalidInput;
    const hostents::MTextLayout layout(m_contents.wstr(), m_textHeight, m_width, m_lineSpacingFactor, m_attachment);
    double left = 0.0;
    double top = 0.0;
    hostents::MTextLayout::boxCorner(attachment, layout.boxWidth(), layout.actualHeight(), left, top);
    const AcGeVector3d up = m_normal.crossProduct(m_direction);
    m_location += m_direction * (layout.boxLeft() - left) + up * (layout.boxTop() - top);
    m_attachment = attachment;
    recordGraphicsModified();
    return Acad::eOk;
}

AcDbMText::FlowDirection AcDbMText::flowDirection() const
{
    assertReadEnabled();
    return m_flowDirection;
}

Acad::ErrorStatus AcDbMText::setFlowDirection(FlowDirection flow)
{
    assertWriteEnabled();
    if (!isValidFlow(flow))
        return Acad::eInvalidInput;
    m_flowDirection = flow;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbMText::lineSpacingFactor() const
{
    assertReadEnabled();
    return m_lineSpacingFactor;
}

Acad::ErrorStatus AcDbMText::setLineSpacingFactor(double factor)
{
    assertWriteEnabled();
    if (!isValidSpacing(factor))
        return Acad::eInvalidInput;
    m_lineSpacingFactor = factor;
    recordGraphicsModified();
    return Acad::eOk;
}

ACHAR* AcDbMText::contents() const
{
    assertReadEnabled();
    ACHAR* copy = nullptr;
    acutNewString(m_contents.kwszPtr(), copy);
    return copy;
}

Acad::ErrorStatus AcDbMText::contents(AcString& text) const
{
    assertReadEnabled();
    text = m_contents;
    return Acad::eOk;
}

ACHAR* AcDbMText::text() const
{
    assertReadEnabled();
    std::wstring plain;
    const std::vector<std::wstring> paragraphs = hostents::MTextLayout::paragraphs(m_contents.wstr());
    for (size_t i = 0; i < paragraphs.size(); ++i)
        plain += (i == 0 ? L"" : L"\n") + paragraphs[i];
    ACHAR* copy = nullptr;
    acutNewString(plain.c_str(), copy);
    return copy;
}

int AcDbMText::setContents(const ACHAR* text)
{
    assertWriteEnabled();
    m_contents = text;
    recordGraphicsModified();
    return m_contents.length();
}

double AcDbMText::actualHeight() const
{
    assertReadEnabled();
    return hostents::MTextLayout(m_contents.wstr(), m_textHeight, m_width, m_lineSpacingFactor, m_attachment)
        .actualHeight();
}

double AcDbMText::actualWidth() const
{
    assertReadEnabled();
    return hostents::MTextLayout(m_contents.wstr(), m_textHeight, m_width, m_lineSpacingFactor, m_attachment)
        .actualWidth();
}

void AcDbMText::subSetDatabaseDefaults(AcDbDatabase* db)
{
    AcDbEntity::subSetDatabaseDefaults(db);
    if (db != nullptr && m_textStyle.isNull())
        m_textStyle = db->textstyle();
}

// On file after the entity's fields: version, location, normal, direction, text height,
// width, line spacing factor, attachment, flow direction, contents, text style.
Acad::ErrorStatus AcDbMText::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = AcDbEntity::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt16(kMTextVersion);
    filer->writePoint3d(m_location);
    filer->writeVector3d(m_normal);
    filer->writeVector3d(m_direction);
    filer->writeDouble(m_textHeight);
    filer->writeDouble(m_width);
    filer->writeDouble(m_lineSpacingFactor);
    filer->writeInt16(static_cast<Adesk::Int16>(m_attachment));
    filer->writeInt16(static_cast<Adesk::Int16>(m_flowDirection));
    filer->writeString(m_contents);
    filer->writeHardPointerId(m_textStyle);
    return filer->filerStatus();
}

Acad::ErrorStatus AcDbMText::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    Acad::ErrorStatus es = AcDbEntity::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int16 version = 0;
    es = hostents::readClassVersion(filer, kMTextVersion, version);
    if (es != Acad::eOk)
        return es;
    AcGePoint3d location;
    AcGeVector3d normal;
    AcGeVector3d direction;
    double height = 0.0;
    double width = 0.0;
    double spacing = 0.0;
    Adesk::Int16 attachment = 0;
    Adesk::Int16 flow = 0;
    AcString contents;
    AcDbHardPointerId style;
    filer->readPoint3d(&location);
    filer->readVector3d(&normal);
    filer->readVector3d(&direction);
    filer->readDouble(&height);
    filer->readDouble(&width);
    filer->readDouble(&spacing);
    filer->readInt16(&attachment);
    filer->readInt16(&flow);
    filer->readString(contents);
    filer->readHardPointerId(&style);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    bool valid = hostents::isFinite(location) && hostents::isUsableNormal(normal) && hostents::isFinite(direction) &&
                 std::isfinite(height) && height >= 0.0 && std::isfinite(width) && width >= 0.0 &&
                 isValidSpacing(spacing) && isLayoutAttachment(attachment) && isValidFlow(flow);
    AcGeVector3d inPlane;
    if (valid) {
        normal = hostents::unitAsFiled(normal);
        // A direction filed in the plane comes back exactly as it was.
        const double off = direction.dotProduct(normal);
        inPlane = std::fabs(off) <= hostents::kOnCurveTolerance ? direction : direction - normal * off;
        valid = inPlane.length() > hostents::kOnCurveTolerance;
    }
    if (!valid)
        return hostents::improperlyRead(filer);
    m_location = location;
    m_normal = normal;
    m_direction = hostents::unitAsFiled(inPlane);
    m_textHeight = height;
    m_width = width;
    m_lineSpacingFactor = spacing;
    m_attachment = static_cast<AttachmentPoint>(attachment);
    m_flowDirection = static_cast<FlowDirection>(flow);
    m_contents = contents;
    m_textStyle = style;
    return Acad::eOk;
}

void AcDbMText::subList() const
{
    assertReadEnabled();
    AcDbEntity::subList();
    const hostents::MTextLayout layout(m_contents.wstr(), m_textHeight, m_width, m_lineSpacingFactor, m_attachment);
    hostents::listText(L"style", hostents::recordName(m_textStyle).kwszPtr());
    hostents::listText(L"contents", m_contents.kwszPtr());
    hostents::listPoint(L"location", m_location);
    hostents::listValue(L"text height", m_textHeight);
    hostents::listValue(L"defined width", m_width);
    hostents::listLine(L"attachment", AcString(attachmentName(m_attachment)));
    hostents::listLine(L"flow direction", AcString(flowName(m_flowDirection)));
    hostents::listAngle(L"rotation", hostents::rotationOf(m_normal, m_direction));
    hostents::listValue(L"line spacing factor", m_lineSpacingFactor);
    hostents::listValue(L"actual width", layout.actualWidth());
    hostents::listValue(L"actual height", layout.actualHeight());
    if (m_normal != AcGeVector3d::kZAxis)
        hostents::listVector(L"normal", m_normal);
}
