// Pieces the host suites' own object classes share: accessors that read or write one field
// under the open protocol, as the host's own accessors do; the head of their filing (the
// base class's fields, then the class version); registration by hand with chosen flags.
#pragma once

#include "AcDbDwgFiler.h"
#include "AcDbObject.h"
#include "rxregsvc.h"

namespace testobj {

template <class Field>
Field readField(const AcDbObject* object, const Field& field)
{
    object->assertReadEnabled();
    return field;
}

template <class Field, class Value>
void writeField(AcDbObject* object, Field& field, const Value& value)
{
    object->assertWriteEnabled();
    field = value;
}

// Files out the base class's fields and the class version.
template <class Base>
Acad::ErrorStatus writeHead(const Base* object, AcDbDwgFiler* filer, Adesk::Int16 version)
{
    const Acad::ErrorStatus es = object->Base::dwgOutFields(filer);
    if (es != Acad::eOk)
        return es;
    filer->writeInt16(version);
    return filer->filerStatus();
}

// Files in the base class's fields and the class version; eMakeMeProxy for a newer version.
template <class Base>
Acad::ErrorStatus readHead(Base* object, AcDbDwgFiler* filer, Adesk::Int16 known)
{
    const Acad::ErrorStatus es = object->Base::dwgInFields(filer);
    if (es != Acad::eOk)
        return es;
    Adesk::Int16 version = 0;
    if (filer->readInt16(&version) != Acad::eOk)
        return filer->filerStatus();
    return version > known ? Acad::eMakeMeProxy : Acad::eOk;
}

// Deletes the class of that name if it is registered.
inline void unregisterByHand(const ACHAR* name)
{
    if (AcRxClass* cls = acrxFindAcRxClass(name))
        deleteAcRxClass(cls);
}

// Registers a class under the name, replacing a registration of that name; answers it.
inline AcRxClass* registerByHand(const ACHAR* name, const ACHAR* parent, int proxyFlags, AcRxObject* (*create)(),
                                 const ACHAR* dxfName, const ACHAR* appName)
{
    unregisterByHand(name);
    AcRxClass* cls = newAcRxClass(name, parent, AcDb::kDHL_CURRENT, AcDb::kMReleaseCurrent, proxyFlags, create,
                                  dxfName, appName);
    acrxBuildClassHierarchy();
    return cls;
}

}  // namespace testobj
