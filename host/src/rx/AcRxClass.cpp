// AcRxClass: runtime class descriptors.
#include "rxclass.h"

#include "rxregsvc.h"

AcRxClass::AcRxClass(const ACHAR* name, AcRxClass* parent, int dwgVer, int maintVer, int proxyFlags,
                     PseudoConstructor ctor, const ACHAR* dxfName, const ACHAR* appName,
                     AppNameChangeFuncPtr appNameChange)
    : m_name(name),
      m_parent(parent),
      m_dwgVersion(dwgVer),
      m_maintVersion(maintVer),
      m_proxyFlags(proxyFlags),
      m_constructor(ctor),
      m_dxfName(dxfName),
      m_appName(appName),
      m_appNameChange(appNameChange)
{
}

AcRxClass::~AcRxClass() = default;

AcRxClass* AcRxClass::desc()
{
    static AcRxClass* cls = nullptr;
    if (cls == nullptr)
        cls = acrxFindAcRxClass(L"AcRxClass");
    return cls;
}

AcRxClass* AcRxClass::cast(const AcRxObject* inPtr)
{
    return (inPtr == nullptr || !inPtr->isKindOf(AcRxClass::desc()))
               ? nullptr
               : static_cast<AcRxClass*>(const_cast<AcRxObject*>(inPtr));
}

AcRxClass* AcRxClass::isA() const
{
    return AcRxClass::desc();
}

Acad::ErrorStatus AcRxClass::getClassVersion(int& dwgVer, int& maintVer) const
{
    dwgVer = m_dwgVersion;
    maintVer = m_maintVersion;
    return Acad::eOk;
}

bool AcRxClass::isDerivedFrom(const AcRxClass* other) const
{
    for (const AcRxClass* c = this; c != nullptr; c = c->m_parent)
        if (c == other)
            return true;
    return false;
}

AcRxObject* AcRxClass::create() const
{
    return m_constructor != nullptr ? m_constructor() : nullptr;
}
