// AcDbProxyEntity: an entity kept for a class that could not read it. It draws the
// graphics the entity drew when the drawing was saved, and its class's proxy flags say
// which edits it accepts.
#include "dbproxy.h"

#include "AcGiSubEntityTraits.h"
#include "AcGiWorldDraw.h"
#include "AcGiWorldGeometry.h"
#include "PrimitiveGeometry.h"
#include "ProxyData.h"
#include "acutads.h"
#include "db/AcDbImpObject.h"
#include "headless/RecordingWorldDraw.h"

namespace {

// The fill in force when the graphics were kept (drawings keep them with the proxy regen
// type): primitives recorded with it take the fill of the draw they are replayed in.
AcGiFillType fillWhenKept()
{
    static const AcGiFillType fill = [] {
        headless::RecordingWorldDraw draw;
        draw.setRegenType(kAcGiSaveWorldDrawForProxy);
        return draw.subEntityTraits().fillType();
    }();
    return fill;
}

}  // namespace

ACRX_DXF_DEFINE_MEMBERS(AcDbProxyEntity, AcDbEntity, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0,
                        ACAD_PROXY_ENTITY, HeadlessHost)

AcDbProxyEntity::AcDbProxyEntity() : m_data(new hostfile::ProxyData())
{
    AcDbImpObject::of(this)->m_isProxy = true;
}

AcDbProxyEntity::~AcDbProxyEntity()
{
    delete m_data;
}

Acad::ErrorStatus AcDbProxyEntity::allowed(int flag) const
{
    return (m_data->cls.proxyFlags & static_cast<Adesk::UInt32>(flag)) != 0 ? Acad::eOk
                                                                           : Acad::eNotAllowedForThisProxy;
}

int AcDbProxyEntity::proxyFlags() const
{
    assertReadEnabled();
    return static_cast<int>(m_data->cls.proxyFlags);
}

const ACHAR* AcDbProxyEntity::originalClassName() const
{
    assertReadEnabled();
    return m_data->cls.name.kwszPtr();
}

const ACHAR* AcDbProxyEntity::originalDxfName() const
{
    assertReadEnabled();
    return m_data->cls.dxfName.kwszPtr();
}

const ACHAR* AcDbProxyEntity::applicationDescription() const
{
    assertReadEnabled();
    return m_data->cls.appName.kwszPtr();
}

Acad::ErrorStatus AcDbProxyEntity::getReferenceObjectIds(AcDbObjectIdArray& ids) const
{
    assertReadEnabled();
    for (const hostfile::ProxyReference& reference : m_data->references)
        ids.append(reference.id);
    return Acad::eOk;
}

AcDbProxyEntity::GraphicsMetafileType AcDbProxyEntity::graphicsMetafileType() const
{
    assertReadEnabled();
    return m_data->hasGraphics ? kFullGraphics : kNoMetafile;
}

Acad::ErrorStatus AcDbProxyEntity::setColor(const AcCmColor& color, Adesk::Boolean doSubents)
{
    const Acad::ErrorStatus es = allowed(kColorChangeAllowed);
    return es != Acad::eOk ? es : AcDbEntity::setColor(color, doSubents);
}

Acad::ErrorStatus AcDbProxyEntity::setColorIndex(Adesk::UInt16 color, Adesk::Boolean doSubents)
{
    const Acad::ErrorStatus es = allowed(kColorChangeAllowed);
    return es != Acad::eOk ? es : AcDbEntity::setColorIndex(color, doSubents);
}

Acad::ErrorStatus AcDbProxyEntity::setLayer(const ACHAR* newVal, Adesk::Boolean doSubents)
{
    const Acad::ErrorStatus es = allowed(kLayerChangeAllowed);
    return es != Acad::eOk ? es : AcDbEntity::setLayer(newVal, doSubents);
}

Acad::ErrorStatus AcDbProxyEntity::setLayer(AcDbObjectId newVal, Adesk::Boolean doSubents)
{
    const Acad::ErrorStatus es = allowed(kLayerChangeAllowed);
    return es != Acad::eOk ? es : AcDbEntity::setLayer(newVal, doSubents);
}

Acad::ErrorStatus AcDbProxyEntity::setLinetype(const ACHAR* newVal, Adesk::Boolean doSubents)
{
    const Acad::ErrorStatus es = allowed(kLinetypeChangeAllowed);
    return es != Acad::eOk ? es : AcDbEntity::setLinetype(newVal, doSubents);
}

Acad::ErrorStatus AcDbProxyEntity::setLinetype(AcDbObjectId newVal, Adesk::Boolean doSubents)
{
    const Acad::ErrorStatus es = allowed(kLinetypeChangeAllowed);
    return es != Acad::eOk ? es : AcDbEntity::setLinetype(newVal, doSubents);
}

Acad::ErrorStatus AcDbProxyEntity::setLinetypeScale(double newVal, Adesk::Boolean doSubents)
{
    const Acad::ErrorStatus es = allowed(kLinetypeScaleChangeAllowed);
    return es != Acad::eOk ? es : AcDbEntity::setLinetypeScale(newVal, doSubents);
}

Acad::ErrorStatus AcDbProxyEntity::setLineWeight(AcDb::LineWeight newVal, Adesk::Boolean doSubents)
{
    const Acad::ErrorStatus es = allowed(kLineWeightChangeAllowed);
    return es != Acad::eOk ? es : AcDbEntity::setLineWeight(newVal, doSubents);
}

Acad::ErrorStatus AcDbProxyEntity::setVisibility(AcDb::Visibility newVal, Adesk::Boolean doSubents)
{
    const Acad::ErrorStatus es = allowed(kVisibilityChangeAllowed);
    return es != Acad::eOk ? es : AcDbEntity::setVisibility(newVal, doSubents);
}

Acad::ErrorStatus AcDbProxyEntity::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = AcDbEntity::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    return filer->filerType() == AcDb::kFileFiler ? m_data->writeBytes(filer) : m_data->writeSession(filer);
}

// See AcDbProxyObject::dwgInFields: only session filers refill a proxy.
Acad::ErrorStatus AcDbProxyEntity::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    const Acad::ErrorStatus es = AcDbEntity::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    if (filer->filerType() == AcDb::kFileFiler)
        return Acad::eNotApplicable;
    return m_data->readSession(filer);
}

// Graphics drawn with the properties the entity had follow the proxy's current ones (so
// that an allowed colour or layer change shows); others keep their recorded traits.
Adesk::Boolean AcDbProxyEntity::subWorldDraw(AcGiWorldDraw* worldDraw)
{
    assertReadEnabled();
    const hostfile::DrawnProperties& drawn = m_data->drawnWith;
    const hostfile::DrawnProperties now = hostfile::DrawnProperties::of(this);
    AcGiSubEntityTraits& traits = worldDraw->subEntityTraits();
    const AcGiFillType drawFill = traits.fillType();
    for (const headless::RecordedPrimitive& p : m_data->graphics) {
        if (worldDraw->regenAbort())
            break;
        const headless::RecordedTraits& t = p.traits;
        traits.setTrueColor(t.trueColor == drawn.color ? now.color : t.trueColor);
        traits.setLayer(t.layerId == drawn.layerId ? now.layerId : t.layerId);
        traits.setLineType(t.linetypeId == drawn.linetypeId ? now.linetypeId : t.linetypeId);
        traits.setLineWeight(t.lineWeight == drawn.lineWeight ? now.lineWeight : t.lineWeight);
        traits.setLineTypeScale(t.linetypeScale == drawn.linetypeScale ? now.linetypeScale : t.linetypeScale);
        traits.setThickness(t.thickness);
        traits.setFillType(t.fillType == fillWhenKept() ? drawFill : t.fillType);
        traits.setSelectionMarker(t.selectionMarker);
        hostfile::PrimitiveGeometry::replay(p, worldDraw->geometry());
    }
    return Adesk::kTrue;
}

Acad::ErrorStatus AcDbProxyEntity::subGetGeomExtents(AcDbExtents& extents) const
{
    assertReadEnabled();
    AcDbExtents box;
    bool any = false;
    for (const headless::RecordedPrimitive& p : m_data->graphics)
        any = hostfile::PrimitiveGeometry::addExtents(p, box) || any;
    if (!any)
        return Acad::eNullExtents;
    extents = box;
    return Acad::eOk;
}

Acad::ErrorStatus AcDbProxyEntity::subTransformBy(const AcGeMatrix3d& xform)
{
    const Acad::ErrorStatus es = allowed(kTransformAllowed);
    if (es != Acad::eOk)
        return es;
    assertWriteEnabled();
    for (headless::RecordedPrimitive& p : m_data->graphics)
        hostfile::PrimitiveGeometry::transform(p, xform);
    m_data->transform = m_data->hasTransform ? xform * m_data->transform : xform;
    m_data->hasTransform = true;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbProxyEntity::subErase(Adesk::Boolean erasing)
{
    if (erasing && allowed(kEraseAllowed) != Acad::eOk)
        return Acad::eNotAllowedForThisProxy;
    return AcDbEntity::subErase(erasing);
}

void AcDbProxyEntity::subList() const
{
    AcDbEntity::subList();
    const hostfile::ClassRecord& cls = m_data->cls;
    acutPrintf(L"\n                  Proxy of class %s (%s) of application \"%s\"", cls.name.kwszPtr(),
               cls.dxfName.kwszPtr(), cls.application().kwszPtr());
}

Acad::ErrorStatus AcDbProxyEntity::subDeepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                                Adesk::Boolean isPrimary) const
{
    clone = nullptr;
    const Acad::ErrorStatus es = allowed(kCloningAllowed);
    return es != Acad::eOk ? es : AcDbEntity::subDeepClone(owner, clone, idMap, isPrimary);
}

Acad::ErrorStatus AcDbProxyEntity::subWblockClone(AcRxObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                                  Adesk::Boolean isPrimary) const
{
    clone = nullptr;
    const Acad::ErrorStatus es = allowed(kCloningAllowed);
    return es != Acad::eOk ? es : AcDbEntity::subWblockClone(owner, clone, idMap, isPrimary);
}
