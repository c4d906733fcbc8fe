// AecShouBianLine: registration, the implementation object, vertex editing on a working
// copy, indents, appearance, the label and its text, filing, and editing through the host.
#include "AecShouBianLine.h"

#include <algorithm>
#include <cmath>

#include "AecShouBianLineImp.h"
#include "app/ModuleClassFlags.h"
#include "data/DwgFilerIoAdapter.h"
#include "data/JsonText.h"
#include "data/TypedArrayRecord.h"
#include "dbfiler.h"

ACRX_DXF_DEFINE_MEMBERS(AecShouBianLine, QxPolylineBasedCurve, Quarvo::kClassDwgVersion,
                        Quarvo::kClassMaintenanceVersion, Quarvo::kClassProxyFlags, QX_SHOU_BIAN_LINE, QX_AEC_DB_APP)

namespace {

bool Finite(const AcGePoint3d& p)
{
    return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
}

int HeldColorIndex(int index)
{
    return index < 0 || index > 256 ? 0 : index;
}

bool AcceptedIndent(double indent)
{
    return std::isfinite(indent) && indent >= 0.0 &&
        (indent < AecShouBianLine::kNoIndent ||
         (indent >= AecShouBianLine::kMinIndent && indent <= AecShouBianLine::kMaxIndent));
}

}  // namespace

// ---- the vertex list's rules

Acad::ErrorStatus AecShouBianLine::Imp::Validate(const std::vector<ShouBianVertex>& list, bool isClosed)
{
    if (list.size() > static_cast<std::size_t>(kMaxVertices))
        return Acad::eInvalidInput;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const ShouBianVertex& v = list[i];
        if (!std::isfinite(v.point.x) || !std::isfinite(v.point.y) || !std::isfinite(v.bulge) ||
            std::fabs(v.bulge) > kMaxBulge)
            return Acad::eInvalidInput;
        if (i > 0 && v.point.distanceTo(list[i - 1].point) < kVertexTolerance)
            return Acad::eDegenerateGeometry;
    }
    if (isClosed && list.size() > 2 && list.back().point.distanceTo(list.front().point) < kVertexTolerance)
        return Acad::eDegenerateGeometry;
    return Acad::eOk;
}

Acad::ErrorStatus AecShouBianLine::Imp::Replace(std::vector<ShouBianVertex> list, bool isClosed)
{
    if (list.size() >= 2) {
        const Acad::ErrorStatus es = Validate(list, isClosed);
        if (es != Acad::eOk)
            return es;
    }
    vertices = std::move(list);
    closed = isClosed;
    Changed();
    return Acad::eOk;
}

void AecShouBianLine::Imp::Changed()
{
    identifierPoint.z = 0.0;
    center.reset();
    boundaries.clear();
    labelPlaced = false;
    if (owner->isWriteEnabled())
        owner->recordGraphicsModified();
}

void AecShouBianLine::Imp::DeriveLabelText()
{
    if (!labels.empty())
        labels[0].SetString(LabelTextFromJson(json));
}

// ---- construction

AecShouBianLine::AecShouBianLine() : DataNodeRoot(this), m_imp(std::make_unique<Imp>(this))
{
    m_imp->DeriveLabelText();
}

AecShouBianLine::~AecShouBianLine() = default;

// ---- geometry

Acad::ErrorStatus AecShouBianLine::AppendVertex(const AcGePoint3d& point, double bulge)
{
    assertWriteEnabled();
    Imp& imp = *m_imp;
    if (!Finite(point) || !std::isfinite(bulge) || imp.vertices.size() >= static_cast<std::size_t>(kMaxVertices))
        return Acad::eInvalidInput;
    const AcGePoint2d flat(point.x, point.y);
    if (!imp.vertices.empty() && flat.distanceTo(imp.vertices.back().point) < kVertexTolerance)
        return Acad::eDegenerateGeometry;
    if (imp.closed && !imp.vertices.empty()) {
        if (std::fabs(imp.vertices.back().bulge) > 1e-10)
            return Acad::eInvalidInput;
        if (flat.distanceTo(imp.vertices.front().point) < kVertexTolerance)
            return Acad::eDegenerateGeometry;
    }
    // The rest of the list passed before: only the new vertex and its neighbour are new,
    // so a long line is built in linear time.
    if (std::fabs(bulge) > kMaxBulge)
        return Acad::eInvalidInput;
    imp.vertices.push_back({flat, bulge});
    imp.Changed();
    return Acad::eOk;
}

Acad::ErrorStatus AecShouBianLine::InsertVertex(int index, const AcGePoint3d& point)
{
    assertWriteEnabled();
    Imp& imp = *m_imp;
    if (index < 0 || index > static_cast<int>(imp.vertices.size()) || !Finite(point) ||
        imp.vertices.size() >= static_cast<std::size_t>(kMaxVertices))
        return Acad::eInvalidInput;
    std::vector<ShouBianVertex> copy = imp.vertices;
    copy.insert(copy.begin() + index, {AcGePoint2d(point.x, point.y), 0.0});
    return imp.Replace(std::move(copy), imp.closed);
}

Acad::ErrorStatus AecShouBianLine::RemoveVertex(int index)
{
    assertWriteEnabled();
    Imp& imp = *m_imp;
    if (index < 0 || index >= static_cast<int>(imp.vertices.size()))
        return Acad::eInvalidInput;
    std::vector<ShouBianVertex> copy = imp.vertices;
    copy.erase(copy.begin() + index);
    return imp.Replace(std::move(copy), imp.closed);
}

Acad::ErrorStatus AecShouBianLine::SetVertexAt(int index, const AcGePoint3d& point)
{
    assertWriteEnabled();
    Imp& imp = *m_imp;
    if (index < 0 || index >= static_cast<int>(imp.vertices.size()) || !Finite(point))
        return Acad::eInvalidInput;
    std::vector<ShouBianVertex> copy = imp.vertices;
    copy[static_cast<std::size_t>(index)].point.set(point.x, point.y);
    return imp.Replace(std::move(copy), imp.closed);
}

Acad::ErrorStatus AecShouBianLine::GetVertexAt(int index, AcGePoint3d& point) const
{
    assertReadEnabled();
    if (index < 0 || index >= static_cast<int>(m_imp->vertices.size()))
        return Acad::eInvalidInput;
    const AcGePoint2d& p = m_imp->vertices[static_cast<std::size_t>(index)].point;
    point.set(p.x, p.y, 0.0);
    return Acad::eOk;
}

int AecShouBianLine::GetVertexCount() const
{
    assertReadEnabled();
    return static_cast<int>(m_imp->vertices.size());
}

int AecShouBianLine::Imp::SegmentCount() const
{
    const int n = static_cast<int>(vertices.size());
    return closed ? n : std::max(0, n - 1);
}

Acad::ErrorStatus AecShouBianLine::SetBulgeAt(int index, double bulge)
{
    assertWriteEnabled();
    Imp& imp = *m_imp;
    if (index < 0 || index >= imp.SegmentCount() || !std::isfinite(bulge))
        return Acad::eInvalidInput;
    std::vector<ShouBianVertex> copy = imp.vertices;
    copy[static_cast<std::size_t>(index)].bulge = bulge;
    return imp.Replace(std::move(copy), imp.closed);
}

Acad::ErrorStatus AecShouBianLine::GetBulgeAt(int index, double& bulge) const
{
    assertReadEnabled();
    if (index < 0 || index >= m_imp->SegmentCount())
        return Acad::eInvalidInput;
    bulge = m_imp->vertices[static_cast<std::size_t>(index)].bulge;
    return Acad::eOk;
}

Acad::ErrorStatus AecShouBianLine::SetClosed(bool closed)
{
    assertWriteEnabled();
    return m_imp->Replace(m_imp->vertices, closed);
}

bool AecShouBianLine::IsClosed() const
{
    assertReadEnabled();
    return m_imp->closed;
}

Acad::ErrorStatus AecShouBianLine::SetPoints(const AcGePoint3d& start, const AcGePoint3d& end)
{
    assertWriteEnabled();
    if (!Finite(start) || !Finite(end))
        return Acad::eInvalidInput;
    return m_imp->Replace({{AcGePoint2d(start.x, start.y), 0.0}, {AcGePoint2d(end.x, end.y), 0.0}}, m_imp->closed);
}

Acad::ErrorStatus AecShouBianLine::SetFromPolyline(const AcDbPolyline* polyline)
{
    assertWriteEnabled();
    if (polyline == nullptr)
        return Acad::eNullObjectPointer;
    std::vector<ShouBianVertex> copy;
    for (unsigned int i = 0; i < polyline->numVerts(); ++i) {
        AcGePoint2d p;
        double bulge = 0.0;
        polyline->getPointAt(i, p);
        polyline->getBulgeAt(i, bulge);
        copy.push_back({p, bulge});
    }
    return m_imp->Replace(std::move(copy), polyline->isClosed());
}

AcGePoint3d AecShouBianLine::GetStartPoint() const
{
    assertReadEnabled();
    if (m_imp->vertices.empty())
        return AcGePoint3d::kOrigin;
    const AcGePoint2d& p = m_imp->vertices.front().point;
    return AcGePoint3d(p.x, p.y, 0.0);
}

AcGePoint3d AecShouBianLine::GetEndPoint() const
{
    assertReadEnabled();
    if (m_imp->vertices.empty())
        return AcGePoint3d::kOrigin;
    const AcGePoint2d& p = m_imp->vertices.back().point;
    return AcGePoint3d(p.x, p.y, 0.0);
}

// ---- indents and scene

Acad::ErrorStatus AecShouBianLine::SetIndentLeft(double indent)
{
    assertWriteEnabled();
    if (!AcceptedIndent(indent))
        return Acad::eOutOfRange;
    m_imp->indentLeft = indent;
    m_imp->Changed();
    return Acad::eOk;
}

Acad::ErrorStatus AecShouBianLine::SetIndentRight(double indent)
{
    assertWriteEnabled();
    if (!AcceptedIndent(indent))
        return Acad::eOutOfRange;
    m_imp->indentRight = indent;
    m_imp->Changed();
    return Acad::eOk;
}

double AecShouBianLine::GetIndentLeft() const
{
    assertReadEnabled();
    return m_imp->indentLeft;
}

double AecShouBianLine::GetIndentRight() const
{
    assertReadEnabled();
    return m_imp->indentRight;
}

void AecShouBianLine::SetStandalone(bool standalone)
{
    assertWriteEnabled();
    m_imp->standalone = standalone;
}

bool AecShouBianLine::IsStandalone() const
{
    assertReadEnabled();
    return m_imp->standalone;
}

void AecShouBianLine::SetSourceDivisionLineId(const AcDbObjectId& id)
{
    assertWriteEnabled();
    m_imp->sourceDivisionLine = id;
}

AcDbObjectId AecShouBianLine::GetSourceDivisionLineId() const
{
    assertReadEnabled();
    return m_imp->sourceDivisionLine;
}

Acad::ErrorStatus AecShouBianLine::SetBoundaryIdentifierPoint(const AcGePoint3d& point)
{
    assertWriteEnabled();
    if (!Finite(point))
        return Acad::eInvalidInput;
    m_imp->identifierPoint.set(point.x, point.y, 0.0);
    return Acad::eOk;
}

AcGePoint3d AecShouBianLine::GetBoundaryIdentifierPoint() const
{
    assertReadEnabled();
    return m_imp->identifierPoint;
}

// ---- appearance

void AecShouBianLine::SetDrawOptions(ShouBianDrawOptions options)
{
    assertWriteEnabled();
    m_imp->drawOptions = options;
    m_imp->Changed();
}

ShouBianDrawOptions AecShouBianLine::GetDrawOptions() const
{
    assertReadEnabled();
    return m_imp->drawOptions;
}

bool AecShouBianLine::IsDrawOptionEnabled(ShouBianDrawOptions options) const
{
    assertReadEnabled();
    return (m_imp->drawOptions & options) == options;
}

void AecShouBianLine::SetLineColorIndex(int index)
{
    assertWriteEnabled();
    m_imp->lineColor = HeldColorIndex(index);
    recordGraphicsModified();
}

int AecShouBianLine::GetLineColorIndex() const
{
    assertReadEnabled();
    return m_imp->lineColor;
}

void AecShouBianLine::SetBoundaryColorIndex(int index)
{
    assertWriteEnabled();
    m_imp->boundaryColor = HeldColorIndex(index);
    recordGraphicsModified();
}

int AecShouBianLine::GetBoundaryColorIndex() const
{
    assertReadEnabled();
    return m_imp->boundaryColor;
}

void AecShouBianLine::SetTextColorIndex(int index)
{
    assertWriteEnabled();
    m_imp->textColor = HeldColorIndex(index);
    recordGraphicsModified();
}

int AecShouBianLine::GetTextColorIndex() const
{
    assertReadEnabled();
    return m_imp->textColor;
}

void AecShouBianLine::SetLineLayerName(const wchar_t* name)
{
    assertWriteEnabled();
    m_imp->lineLayer = name != nullptr ? name : L"";
    recordGraphicsModified();
}

AcString AecShouBianLine::GetLineLayerName() const
{
    assertReadEnabled();
    return m_imp->lineLayer;
}

void AecShouBianLine::SetTextLayerName(const wchar_t* name)
{
    assertWriteEnabled();
    m_imp->textLayer = name != nullptr ? name : L"";
    recordGraphicsModified();
}

AcString AecShouBianLine::GetTextLayerName() const
{
    assertReadEnabled();
    return m_imp->textLayer;
}

int AecShouBianLine::GetTextLabelCount() const
{
    assertReadEnabled();
    return static_cast<int>(m_imp->labels.size());
}

Acad::ErrorStatus AecShouBianLine::GetTextLabelAt(int index, DbxPanel::TextLabel& label) const
{
    assertReadEnabled();
    if (index < 0 || index >= static_cast<int>(m_imp->labels.size()))
        return Acad::eInvalidInput;
    m_imp->PlaceLabel();
    label = m_imp->labels[static_cast<std::size_t>(index)];
    return Acad::eOk;
}

Acad::ErrorStatus AecShouBianLine::SetTextLabelAt(int index, const DbxPanel::TextLabel& label)
{
    assertWriteEnabled();
    if (index < 0 || index >= static_cast<int>(m_imp->labels.size()))
        return Acad::eInvalidInput;
    m_imp->labels[static_cast<std::size_t>(index)] = label;
    m_imp->DeriveLabelText();
    m_imp->labelPlaced = false;
    recordGraphicsModified();
    return Acad::eOk;
}

void AecShouBianLine::SetShouBianJsonStr(const wchar_t* json)
{
    assertWriteEnabled();
    m_imp->json = json != nullptr ? json : L"";
    m_imp->DeriveLabelText();
    recordGraphicsModified();
}

AcString AecShouBianLine::GetShouBianJsonStr() const
{
    assertReadEnabled();
    return m_imp->json;
}

AcString AecShouBianLine::LabelTextFromJson(const AcString& json)
{
    const AcString fallback(L"收边线");
    if (json.isEmpty())
        return fallback;
    JsonText::Document document;
    std::size_t offset = 0;
    if (!JsonText::Parse(json, document, offset) || !document.IsObject())
        return fallback;
    const auto base = document.FindMember(L"baseInfo");
    if (base == document.MemberEnd() || !base->value.IsObject())
        return fallback;
    auto text = [&](const wchar_t* key) {
        const auto member = base->value.FindMember(key);
        if (member == base->value.MemberEnd() || !member->value.IsString() || member->value.GetStringLength() == 0)
            return AcString();
        return AcString(std::wstring(member->value.GetString(), member->value.GetStringLength()));
    };
    const AcString number = text(L"shouBianNumber");
    const AcString name = text(L"shouBianName");
    if (!number.isEmpty() && !name.isEmpty()) {
        AcString both = number;
        both += L" ";
        both += name;
        return both;
    }
    if (!number.isEmpty())
        return number;
    if (!name.isEmpty())
        return name;
    return fallback;
}

// ---- filing

Acad::ErrorStatus AecShouBianLine::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    if (filer == nullptr || m_imp == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = QxPolylineBasedCurve::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt32(kCurrentVersion);
    const Imp& imp = *m_imp;
    imp.PlaceLabel();
    TypedArrayRecord record;
    record.bools = {imp.standalone, imp.closed};
    record.ints = {static_cast<Adesk::Int32>(imp.drawOptions), imp.lineColor, imp.boundaryColor, imp.textColor};
    record.doubles = {imp.indentLeft, imp.indentRight};
    record.strings = {imp.lineLayer, imp.textLayer};
    record.points = {imp.identifierPoint};
    record.softIds = {AcDbSoftPointerId(imp.sourceDivisionLine)};
    DwgFilerIoAdapter io(filer);
    record.Write(io);
    io.Write(static_cast<Adesk::Int32>(imp.vertices.size()));
    for (const ShouBianVertex& v : imp.vertices) {
        io.Write(v.point);
        io.Write(v.bulge);
    }
    if (!imp.labels.empty())
        imp.labels[0].DataOut(&io);
    io.Write(imp.json);
    DataNodeRoot::DataOut(filer);
    return filer->filerStatus();
}

Acad::ErrorStatus AecShouBianLine::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    if (filer == nullptr || m_imp == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = QxPolylineBasedCurve::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int32 version = 0;
    filer->readInt32(&version);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (version != kVersion_1 && version != kCurrentVersion)
        return Acad::eMakeMeProxy;

    Imp& imp = *m_imp;
    DwgFilerIoAdapter io(filer);
    TypedArrayRecord record;
    if (record.Read(io) != Acad::eOk)
        return filer->filerStatus();
    TypedArrayRecord::Take(record.bools, 0, imp.standalone);
    if (version >= kCurrentVersion)
        TypedArrayRecord::Take(record.bools, 1, imp.closed);
    else
        imp.closed = false;
    Adesk::Int32 options = imp.drawOptions;
    if (TypedArrayRecord::Take(record.ints, 0, options))
        imp.drawOptions = static_cast<ShouBianDrawOptions>(options);
    Adesk::Int32 color = 0;
    if (TypedArrayRecord::Take(record.ints, 1, color))
        imp.lineColor = HeldColorIndex(color);
    if (TypedArrayRecord::Take(record.ints, 2, color))
        imp.boundaryColor = HeldColorIndex(color);
    if (TypedArrayRecord::Take(record.ints, 3, color))
        imp.textColor = HeldColorIndex(color);
    // A non-finite indent reads as no indent.
    for (std::size_t i = 0; i < 2 && i < record.doubles.size(); ++i)
        (i == 0 ? imp.indentLeft : imp.indentRight) = std::isfinite(record.doubles[i]) ? record.doubles[i] : 0.0;
    TypedArrayRecord::Take(record.strings, 0, imp.lineLayer);
    TypedArrayRecord::Take(record.strings, 1, imp.textLayer);
    if (!record.points.empty() && Finite(record.points[0]))
        imp.identifierPoint = record.points[0];
    if (!record.softIds.empty())
        imp.sourceDivisionLine = record.softIds[0];

    Adesk::Int32 count = 0;
    io.Read(count);
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    if (count < 0) {
        filer->setFilerStatus(Acad::eDwgObjectImproperlyRead);
        return filer->filerStatus();
    }
    // Counts are trusted only as far as the data goes.
    std::vector<ShouBianVertex> vertices;
    for (Adesk::Int32 i = 0; i < count && filer->filerStatus() == Acad::eOk; ++i) {
        ShouBianVertex v;
        io.Read(v.point);
        io.Read(v.bulge);
        if (filer->filerStatus() == Acad::eOk)
            vertices.push_back(v);
    }
    if (filer->filerStatus() != Acad::eOk)
        return filer->filerStatus();
    imp.vertices = std::move(vertices);
    imp.labels.resize(1);
    imp.labels[0].DataIn(&io);
    io.Read(imp.json);
    DataNodeRoot::DataIn(filer);

    imp.DeriveLabelText();
    imp.identifierPoint.z = 0.0;
    if (!imp.closed && !imp.vertices.empty())
        imp.vertices.back().bulge = 0.0;
    imp.Changed();
    return filer->filerStatus();
}

// ---- editing through the host

// The vertices move with the matrix; a mirror turns each arc the other way and exchanges
// the sides, so the indents swap; a scale scales them when they stay within their limits.
Acad::ErrorStatus AecShouBianLine::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    Imp& imp = *m_imp;
    const AcGeVector3d x = xform * AcGeVector3d::kXAxis;
    const AcGeVector3d y = xform * AcGeVector3d::kYAxis;
    const bool mirrored = x.x * y.y - x.y * y.x < 0.0;
    std::vector<ShouBianVertex> copy = imp.vertices;
    for (ShouBianVertex& v : copy) {
        const AcGePoint3d p = xform * AcGePoint3d(v.point.x, v.point.y, 0.0);
        v.point.set(p.x, p.y);
        if (mirrored)
            v.bulge = -v.bulge;
    }
    if (mirrored)
        std::swap(imp.indentLeft, imp.indentRight);
    const double scale = x.length();
    for (double* indent : {&imp.indentLeft, &imp.indentRight})
        if (AcceptedIndent(*indent * scale))
            *indent *= scale;
    for (DbxPanel::TextLabel& label : imp.labels)
        label.SetTextHeight(label.GetTextHeight() * scale);
    imp.identifierPoint = xform * imp.identifierPoint;
    const Acad::ErrorStatus es = imp.Replace(std::move(copy), imp.closed);
    return es == Acad::eOk ? Acad::eOk : Acad::eInvalidInput;
}

Acad::ErrorStatus AecShouBianLine::subGetStretchPoints(AcGePoint3dArray& stretchPoints) const
{
    assertReadEnabled();
    for (const ShouBianVertex& v : m_imp->vertices)
        stretchPoints.append(AcGePoint3d(v.point.x, v.point.y, 0.0));
    return Acad::eOk;
}

// The chosen vertices move together; a move that would put a vertex on its neighbour is
// refused whole.
Acad::ErrorStatus AecShouBianLine::subMoveStretchPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    assertWriteEnabled();
    if (indices.isEmpty() || offset.isZeroLength())
        return Acad::eOk;
    std::vector<ShouBianVertex> copy = m_imp->vertices;
    bool moved = false;
    for (int index : indices) {
        if (index < 0 || index >= static_cast<int>(copy.size()))
            continue;
        copy[static_cast<std::size_t>(index)].point += AcGeVector2d(offset.x, offset.y);
        moved = true;
    }
    return moved ? m_imp->Replace(std::move(copy), m_imp->closed) : Acad::eOk;
}

Acad::ErrorStatus AecShouBianLine::subGetGripPoints(AcGePoint3dArray& gripPoints, AcDbIntArray& osnapModes,
                                                    AcDbIntArray& geomIds) const
{
    (void)osnapModes;
    (void)geomIds;
    return subGetStretchPoints(gripPoints);
}

Acad::ErrorStatus AecShouBianLine::subMoveGripPointsAt(const AcDbIntArray& indices, const AcGeVector3d& offset)
{
    return subMoveStretchPointsAt(indices, offset);
}

// ---- the curve base: the centre line

const AcDbPolyline* AecShouBianLine::GetCurveBaseConstPolyline() const
{
    return m_imp->Center();
}

AcDbPolyline* AecShouBianLine::GetCurveBasePolyline()
{
    return m_imp->Center();
}

void AecShouBianLine::OnBeginModifyPolyline()
{
    QxPolylineBasedCurve::OnBeginModifyPolyline();
}

void AecShouBianLine::OnEndModifyPolyline()
{
    QxPolylineBasedCurve::OnEndModifyPolyline();
    Imp& imp = *m_imp;
    const AcDbPolyline* center = imp.Center();
    std::vector<ShouBianVertex> edited;
    for (unsigned int i = 0; i < center->numVerts(); ++i) {
        AcGePoint2d p;
        double bulge = 0.0;
        center->getPointAt(i, p);
        center->getBulgeAt(i, bulge);
        edited.push_back({p, bulge});
    }
    const bool closed = center->isClosed();
    // An edit the line's rules refuse leaves the line as it was.
    if (imp.Replace(std::move(edited), closed) != Acad::eOk)
        imp.Changed();
}
