// AcDbEntity: the display properties, database defaults and the filing of the properties.
#include "AcDbEntity.h"

#include <cmath>

#include "AcDbImpEntity.h"
#include "EntityDatabase.h"
#include "db/AcDbImpObject.h"
#include "headless/HostError.h"

ACRX_NO_CONS_DEFINE_MEMBERS(AcDbEntity, AcDbObject)

AcDbEntity::AcDbEntity() : m_entityImp(new AcDbImpEntity())
{
}

AcDbEntity::~AcDbEntity()
{
    delete m_entityImp;
}

AcDbObjectId AcDbEntity::blockId() const
{
    assertReadEnabled();
    return ownerId();
}

AcCmColor AcDbEntity::color() const
{
    assertReadEnabled();
    return m_entityImp->m_color;
}

Acad::ErrorStatus AcDbEntity::setColor(const AcCmColor& color, Adesk::Boolean)
{
    assertWriteEnabled();
    m_entityImp->m_color = color;
    recordGraphicsModified();
    return Acad::eOk;
}

Adesk::UInt16 AcDbEntity::colorIndex() const
{
    assertReadEnabled();
    return m_entityImp->m_color.colorIndex();
}

// Indices 0..257: by block, the palette, by layer and "no colour"; anything else is refused.
Acad::ErrorStatus AcDbEntity::setColorIndex(Adesk::UInt16 color, Adesk::Boolean)
{
    assertWriteEnabled();
    if (color > AcCm::kACInone)
        return Acad::eInvalidInput;
    AcCmColor next;
    const Acad::ErrorStatus es = next.setColorIndex(color);
    if (es != Acad::eOk)
        return es;
    m_entityImp->m_color = next;
    recordGraphicsModified();
    return Acad::eOk;
}

AcCmEntityColor AcDbEntity::entityColor() const
{
    assertReadEnabled();
    return m_entityImp->m_color.entityColor();
}

AcString AcDbEntity::layer() const
{
    assertReadEnabled();
    return hostents::recordName(m_entityImp->m_layerId);
}

AcDbObjectId AcDbEntity::layerId() const
{
    assertReadEnabled();
    return m_entityImp->m_layerId;
}

Acad::ErrorStatus AcDbEntity::setLayer(const ACHAR* newVal, Adesk::Boolean doSubents)
{
    assertWriteEnabled();
    if (newVal == nullptr || *newVal == L'\0')
        return Acad::eInvalidInput;
    AcDbObjectId id;
    const Acad::ErrorStatus es = hostents::findLayer(hostents::databaseFor(database()), newVal, id);
    if (es != Acad::eOk)
        return es;
    return setLayer(id, doSubents);
}

Acad::ErrorStatus AcDbEntity::setLayer(AcDbObjectId newVal, Adesk::Boolean)
{
    assertWriteEnabled();
    if (newVal.isNull())
        return Acad::eNullObjectId;
    if (!hostents::isLayerId(newVal))
        return Acad::eWrongObjectType;
    m_entityImp->m_layerId = newVal;
    recordGraphicsModified();
    return Acad::eOk;
}

AcString AcDbEntity::linetype() const
{
    assertReadEnabled();
    return hostents::recordName(m_entityImp->m_linetypeId);
}

AcDbObjectId AcDbEntity::linetypeId() const
{
    assertReadEnabled();
    return m_entityImp->m_linetypeId;
}

Acad::ErrorStatus AcDbEntity::setLinetype(const ACHAR* newVal, Adesk::Boolean doSubents)
{
    assertWriteEnabled();
    if (newVal == nullptr || *newVal == L'\0')
        return Acad::eInvalidInput;
    AcDbObjectId id;
    const Acad::ErrorStatus es = hostents::findLinetype(hostents::databaseFor(database()), newVal, id);
    if (es != Acad::eOk)
        return es;
    return setLinetype(id, doSubents);
}

Acad::ErrorStatus AcDbEntity::setLinetype(AcDbObjectId newVal, Adesk::Boolean)
{
    assertWriteEnabled();
    if (newVal.isNull())
        return Acad::eNullObjectId;
    if (!hostents::isLinetypeId(newVal))
        return Acad::eWrongObjectType;
    m_entityImp->m_linetypeId = newVal;
    recordGraphicsModified();
    return Acad::eOk;
}

double AcDbEntity::linetypeScale() const
{
    assertReadEnabled();
    return m_entityImp->m_linetypeScale;
}

// A scale must be a finite positive number.
Acad::ErrorStatus AcDbEntity::setLinetypeScale(double newVal, Adesk::Boolean)
{
    assertWriteEnabled();
    if (!std::isfinite(newVal) || newVal <= 0.0)
        return Acad::eInvalidInput;
    m_entityImp->m_linetypeScale = newVal;
    recordGraphicsModified();
    return Acad::eOk;
}

AcDb::LineWeight AcDbEntity::lineWeight() const
{
    assertReadEnabled();
    return m_entityImp->m_lineWeight;
}

Acad::ErrorStatus AcDbEntity::setLineWeight(AcDb::LineWeight newVal, Adesk::Boolean)
{
    assertWriteEnabled();
    if (!AcDbImpEntity::isValidLineWeight(newVal))
        return Acad::eInvalidInput;
    m_entityImp->m_lineWeight = newVal;
    recordGraphicsModified();
    return Acad::eOk;
}

AcDb::Visibility AcDbEntity::visibility() const
{
    assertReadEnabled();
    return m_entityImp->m_visibility;
}

Acad::ErrorStatus AcDbEntity::setVisibility(AcDb::Visibility newVal, Adesk::Boolean)
{
    assertWriteEnabled();
    if (newVal != AcDb::kVisible && newVal != AcDb::kInvisible)
        return Acad::eInvalidInput;
    m_entityImp->m_visibility = newVal;
    recordGraphicsModified();
    return Acad::eOk;
}

Acad::ErrorStatus AcDbEntity::setPropertiesFrom(const AcDbEntity* other, Adesk::Boolean)
{
    if (other == nullptr)
        return Acad::eNullEntityPointer;
    other->assertReadEnabled();
    assertWriteEnabled();
    if (other != this) {
        const AcDbImpEntity* from = other->m_entityImp;
        m_entityImp->m_color = from->m_color;
        m_entityImp->m_layerId = from->m_layerId;
        m_entityImp->m_linetypeId = from->m_linetypeId;
        m_entityImp->m_linetypeScale = from->m_linetypeScale;
        m_entityImp->m_lineWeight = from->m_lineWeight;
        m_entityImp->m_visibility = from->m_visibility;
    }
    recordGraphicsModified();
    return Acad::eOk;
}

void AcDbEntity::setDatabaseDefaults()
{
    setDatabaseDefaults(database());
}

void AcDbEntity::setDatabaseDefaults(AcDbDatabase* db)
{
    assertWriteEnabled();
    AcDbDatabase* source = hostents::databaseFor(db);
    if (source == nullptr)
        return;
    hostents::DatabaseDefaults defaults = hostents::currentDefaults(source);
    m_entityImp->m_color = defaults.color;
    m_entityImp->m_layerId = defaults.layerId;
    m_entityImp->m_linetypeId = defaults.linetypeId;
    m_entityImp->m_linetypeScale = defaults.linetypeScale;
    m_entityImp->m_lineWeight = defaults.lineWeight;
    subSetDatabaseDefaults(source);
    recordGraphicsModified();
}

void AcDbEntity::subSetDatabaseDefaults(AcDbDatabase*)
{
}

// Changed graphics are redrawn when the entity is closed. The entity must be open for write.
void AcDbEntity::recordGraphicsModified(Adesk::Boolean setModified)
{
    if (!isWriteEnabled())
        headless::raiseHostError(L"AcDbEntity::recordGraphicsModified: the %s is not open for write",
                                 isA() != nullptr ? isA()->name() : L"entity");
    AcDbImpObject* imp = AcDbImpObject::of(this);
    imp->m_modifiedGraphics = true;
    if (setModified)
        imp->m_modified = true;
}

Acad::ErrorStatus AcDbEntity::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = AcDbObject::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    return m_entityImp->dwgOutFields(filer);
}

Acad::ErrorStatus AcDbEntity::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    const Acad::ErrorStatus es = AcDbObject::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    return m_entityImp->dwgInFields(filer);
}

// An object that is not an entity is closed again and answered eNotAnEntity.
Acad::ErrorStatus acdbOpenAcDbEntity(AcDbEntity*& ent, AcDbObjectId id, AcDb::OpenMode mode, bool openErased)
{
    ent = nullptr;
    AcDbObject* obj = nullptr;
    const Acad::ErrorStatus es = acdbOpenObject(obj, id, mode, openErased);
    if (es != Acad::eOk)
        return es;
    ent = AcDbEntity::cast(obj);
    if (ent == nullptr) {
        obj->close();
        return Acad::eNotAnEntity;
    }
    return Acad::eOk;
}
