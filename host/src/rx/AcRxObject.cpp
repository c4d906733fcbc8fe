// AcRxObject: the root runtime class.
#include "rxobject.h"

#include "rxclass.h"
#include "rxregsvc.h"

AcRxObject::~AcRxObject() = default;

AcRxClass* AcRxObject::desc()
{
    static AcRxClass* cls = nullptr;
    if (cls == nullptr)
        cls = acrxFindAcRxClass(L"AcRxObject");
    return cls;
}

AcRxClass* AcRxObject::isA() const
{
    return AcRxObject::desc();
}

bool AcRxObject::isKindOf(const AcRxClass* cls) const
{
    const AcRxClass* mine = isA();
    return cls != nullptr && mine != nullptr && mine->isDerivedFrom(cls);
}

AcRxObject* AcRxObject::clone() const
{
    return nullptr;
}

Acad::ErrorStatus AcRxObject::copyFrom(const AcRxObject*)
{
    return Acad::eNotApplicable;
}

bool AcRxObject::isEqualTo(const AcRxObject* other) const
{
    return other == this;
}

AcRx::Ordering AcRxObject::comparedTo(const AcRxObject* other) const
{
    return other == this ? AcRx::kEqual : AcRx::kNotOrderable;
}
