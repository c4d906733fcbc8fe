// AcDbProxyObject: a non-graphical object kept for a class that could not read it.
#include "dbproxy.h"

#include "ProxyData.h"
#include "db/AcDbImpObject.h"

ACRX_DXF_DEFINE_MEMBERS(AcDbProxyObject, AcDbObject, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, 0,
                        ACAD_PROXY_OBJECT, HeadlessHost)

AcDbProxyObject::AcDbProxyObject() : m_data(new hostfile::ProxyData())
{
    AcDbImpObject::of(this)->m_isProxy = true;
}

AcDbProxyObject::~AcDbProxyObject()
{
    delete m_data;
}

int AcDbProxyObject::proxyFlags() const
{
    assertReadEnabled();
    return static_cast<int>(m_data->cls.proxyFlags);
}

const ACHAR* AcDbProxyObject::originalClassName() const
{
    assertReadEnabled();
    return m_data->cls.name.kwszPtr();
}

const ACHAR* AcDbProxyObject::originalDxfName() const
{
    assertReadEnabled();
    return m_data->cls.dxfName.kwszPtr();
}

const ACHAR* AcDbProxyObject::applicationDescription() const
{
    assertReadEnabled();
    return m_data->cls.appName.kwszPtr();
}

Acad::ErrorStatus AcDbProxyObject::getReferenceObjectIds(AcDbObjectIdArray& ids) const
{
    assertReadEnabled();
    for (const hostfile::ProxyReference& reference : m_data->references)
        ids.append(reference.id);
    return Acad::eOk;
}

Acad::ErrorStatus AcDbProxyObject::dwgOutFields(AcDbDwgFiler* filer) const
{
    assertReadEnabled();
    const Acad::ErrorStatus es = AcDbObject::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    return filer->filerType() == AcDb::kFileFiler ? m_data->writeBytes(filer) : m_data->writeSession(filer);
}

// Proxies come from drawing records, whose reader knows where the references lie; a
// file filer alone does not tell, so it cannot fill a proxy.
Acad::ErrorStatus AcDbProxyObject::dwgInFields(AcDbDwgFiler* filer)
{
    assertWriteEnabled();
    const Acad::ErrorStatus es = AcDbObject::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    if (filer->filerType() == AcDb::kFileFiler)
        return Acad::eNotApplicable;
    return m_data->readSession(filer);
}

Acad::ErrorStatus AcDbProxyObject::subErase(Adesk::Boolean erasing)
{
    if (erasing && (m_data->cls.proxyFlags & kEraseAllowed) == 0)
        return Acad::eNotAllowedForThisProxy;
    return AcDbObject::subErase(erasing);
}

Acad::ErrorStatus AcDbProxyObject::subDeepClone(AcDbObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                                Adesk::Boolean isPrimary) const
{
    clone = nullptr;
    if ((m_data->cls.proxyFlags & kCloningAllowed) == 0)
        return Acad::eNotAllowedForThisProxy;
    return AcDbObject::subDeepClone(owner, clone, idMap, isPrimary);
}

Acad::ErrorStatus AcDbProxyObject::subWblockClone(AcRxObject* owner, AcDbObject*& clone, AcDbIdMapping& idMap,
                                                  Adesk::Boolean isPrimary) const
{
    clone = nullptr;
    if ((m_data->cls.proxyFlags & kCloningAllowed) == 0)
        return Acad::eNotAllowedForThisProxy;
    return AcDbObject::subWblockClone(owner, clone, idMap, isPrimary);
}
