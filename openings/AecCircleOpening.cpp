// AecCircleOpening: filing, drawing, listing, explode, transform and grips.
#include "AecCircleOpening.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "acgi.h"
#include "acutads.h"
#include "app/ModuleClassFlags.h"
#include "dbapserv.h"
#include "dbsymtb.h"

ACRX_DXF_DEFINE_MEMBERS(AecCircleOpening, AcDbCircle, Quarvo::kClassDwgVersion, Quarvo::kClassMaintenanceVersion,
                        Quarvo::kClassProxyFlags, QX_CIRCLE_OPENING, QX_AEC_DB_APP)

namespace {

const ACHAR* const kRecordNode = L"CircleOpeningData";
// A grip dragged onto the centre must not collapse the circle.
constexpr double kMinimumRadius = 1e-6;

bool IsFinite(const TextBaseLabel& label)
{
    const AcGePoint3d& p = label.GetPosition();
    const AcGeVector3d d = label.GetTextDirX();
    const double values[] = {p.x, p.y, p.z, label.GetHeight(), d.x, d.y, d.z};
    return std::all_of(std::begin(values), std::end(values), [](double v) { return std::isfinite(v); });
}

enum CircleGrip : Adesk::IntPtr { kCenterGrip = 0, kPlusUGrip, kPlusVGrip, kMinusUGrip, kMinusVGrip, kGripCount };

}  // namespace

struct AecCircleOpening::Imp {
    explicit Imp(AecCircleOpening* o) : owner(o) {}

    AecCircleOpening* owner;
    CircleOpeningData data;

    // The circle's in-plane axes: X and Y for a normal along Z either way, otherwise
    // normal × Z and normal × u.
    void GetAxes(AcGeVector3d& u, AcGeVector3d& v) const
    {
        const AcGeVector3d normal = owner->normal();
        if (normal.isParallelTo(AcGeVector3d::kZAxis)) {
            u = AcGeVector3d::kXAxis;
            v = AcGeVector3d::kYAxis;
            return;
        }
        u = normal.crossProduct(AcGeVector3d::kZAxis).normal();
        v = normal.crossProduct(u).normal();
    }

    AcGePoint3d GripPoint(Adesk::IntPtr grip) const
    {
        AcGeVector3d u;
        AcGeVector3d v;
        GetAxes(u, v);
        const AcGePoint3d center = owner->center();
        const double r = owner->radius();
        switch (grip) {
        case kPlusUGrip: return center + u * r;
        case kPlusVGrip: return center + v * r;
        case kMinusUGrip: return center - u * r;
        case kMinusVGrip: return center - v * r;
        default: return center;
        }
    }

    AcDbDatabase* DatabaseToUse() const
    {
        AcDbDatabase* db = owner->database();
        return db != nullptr ? db : acdbHostApplicationServices()->workingDatabase();
    }
};

AecCircleOpening::AecCircleOpening() : DataNodeRoot(this), m_imp(std::make_unique<Imp>(this)) {}

AecCircleOpening::~AecCircleOpening() = default;

CircleOpeningData AecCircleOpening::GetData() const
{
    assertReadEnabled();
    return m_imp->data;
}

Acad::ErrorStatus AecCircleOpening::SetData(const CircleOpeningData& data)
{
    assertWriteEnabled();
    if (!IsFinite(data.titleLabel))
        return Acad::eInvalidInput;
    m_imp->data.CopyFrom(&data);
    SaveToNode();
    return Acad::eOk;
}

void AecCircleOpening::SaveToNode()
{
    m_imp->data.SaveToNodeData(AddNode(kRecordNode));
}

void AecCircleOpening::LoadFromNode()
{
    if (DataNode* node = GetNode(kRecordNode))
        m_imp->data.LoadFromNodeData(node);
}

// A null filer is answered before the host circle's own filing would use it.
Acad::ErrorStatus AecCircleOpening::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    if (filer == nullptr || m_imp == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = AcDbCircle::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt32(kCurrentVersion);
    DataNodeRoot::DataOut(filer);
    return filer->filerStatus();
}

Acad::ErrorStatus AecCircleOpening::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    if (filer == nullptr || m_imp == nullptr)
        return Acad::eNullObjectPointer;
    const Acad::ErrorStatus es = AcDbCircle::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int32 version = 0;
    filer->readInt32(&version);
    if (version > kCurrentVersion)
        return Acad::eMakeMeProxy;
    DataNodeRoot::DataIn(filer);
    LoadFromNode();
    return filer->filerStatus();
}

Adesk::Boolean AecCircleOpening::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    AcDbCircle::subWorldDraw(worldDraw);
    if (worldDraw->regenAbort())
        return Adesk::kTrue;
    for (AcDbEntity* entity : m_imp->data.GetAllEnts(database())) {
        entity->worldDraw(worldDraw);
        delete entity;
    }
    return Adesk::kTrue;
}

void AecCircleOpening::subList() const
{
    assertReadEnabled();
    AcDbCircle::subList();
    AcDbDatabase* db = m_imp->DatabaseToUse();
    const AcGePoint3d c = center();
    const double r = radius();
    acutPrintf(L"\n圆形洞口: 圆心 (%.2f, %.2f, %.2f)，半径 %.2f，直径 %.2f", c.x, c.y, c.z, r, 2.0 * r);

    const TextBaseLabel& title = m_imp->data.titleLabel;
    acutPrintf(L"\n标题: %s，\"%s\"", title.IsVisible() ? L"显示" : L"隐藏", title.GetLabel().kwszPtr());

    bool fellBack = false;
    const AcDbObjectId styleId = m_imp->data.ResolveTextStyle(db, &fellBack);
    AcString styleName;
    AcDbTextStyleTableRecord* style = nullptr;
    if (!styleId.isNull() && acdbOpenObject(style, styleId, AcDb::kForRead) == Acad::eOk) {
        const ACHAR* name = nullptr;
        if (style->getName(name) == Acad::eOk && name != nullptr)
            styleName = name;
        style->close();
    }
    acutPrintf(L"\n文字样式: %s%s", styleName.isEmpty() ? L"<无效>" : styleName.kwszPtr(),
               fellBack ? L"（默认兜底）" : L"");
}

Acad::ErrorStatus AecCircleOpening::subExplode(AcDbVoidPtrArray& entitySet) const
{
    assertReadEnabled();
    auto* circle = new AcDbCircle(center(), normal(), radius());
    circle->setPropertiesFrom(this);
    entitySet.append(circle);
    for (AcDbEntity* entity : m_imp->data.GetAllEnts(database()))
        entitySet.append(entity);
    return Acad::eOk;
}

Acad::ErrorStatus AecCircleOpening::subTransformBy(const AcGeMatrix3d& xform)
{
    assertWriteEnabled();
    const Acad::ErrorStatus es = AcDbCircle::subTransformBy(xform);
    if (es == Acad::eOk)
        m_imp->data.TransformBy(xform);
    return es;
}

Acad::ErrorStatus AecCircleOpening::subGetGripPoints(AcDbGripDataPtrArray& grips, const double, const int,
                                                     const AcGeVector3d&, const int) const
{
    assertReadEnabled();
    for (Adesk::IntPtr grip = kCenterGrip; grip < kGripCount; ++grip) {
        auto* data = new AcDbGripData();
        data->setGripPoint(m_imp->GripPoint(grip));
        data->setAppData(reinterpret_cast<void*>(grip));
        grips.append(data);
    }
    return Acad::eOk;
}

Acad::ErrorStatus AecCircleOpening::subGetGripPoints(AcGePoint3dArray&, AcDbIntArray&, AcDbIntArray&) const
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AecCircleOpening::subMoveGripPointsAt(const AcDbVoidPtrArray& gripAppData,
                                                        const AcGeVector3d& offset, const int)
{
    assertWriteEnabled();
    if (gripAppData.isEmpty() || offset.isZeroLength())
        return Acad::eOk;
    const auto grip = reinterpret_cast<Adesk::IntPtr>(gripAppData[0]);
    if (grip == kCenterGrip)
        return transformBy(AcGeMatrix3d::translation(offset));
    if (grip > kCenterGrip && grip < kGripCount) {
        const AcGePoint3d moved = m_imp->GripPoint(grip) + offset;
        return setRadius(std::max(moved.distanceTo(center()), kMinimumRadius));
    }
    return Acad::eOk;
}

Acad::ErrorStatus AecCircleOpening::subMoveGripPointsAt(const AcDbIntArray&, const AcGeVector3d&)
{
    return Acad::eNotImplementedYet;
}

Acad::ErrorStatus AecCircleOpening::subGetClassID(CLSID*) const
{
    return Acad::eNotApplicable;
}
