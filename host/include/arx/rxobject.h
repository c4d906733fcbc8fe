// AcRxObject: the root of every class the host knows by its runtime class.
#pragma once

#include "AcHeapOpers.h"
#include "acadstrc.h"
#include "adesk.h"
#include "rxdefs.h"

class AcRxClass;

class ACHOST_API AcRxObject : public AcHeapOperators {
public:
    virtual ~AcRxObject();

    static AcRxClass* desc();
    static AcRxObject* cast(const AcRxObject* inPtr) { return const_cast<AcRxObject*>(inPtr); }
    virtual AcRxClass* isA() const;

    // True when this object's class is cls or derives from it.
    bool isKindOf(const AcRxClass* cls) const;

    virtual AcRxObject* clone() const;                 // null: not clonable
    virtual Acad::ErrorStatus copyFrom(const AcRxObject* other);  // eNotApplicable by default
    virtual bool isEqualTo(const AcRxObject* other) const;        // identity by default
    virtual AcRx::Ordering comparedTo(const AcRxObject* other) const;

protected:
    AcRxObject() = default;
};
