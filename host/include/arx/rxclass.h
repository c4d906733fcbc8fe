// AcRxClass: the runtime class of an object: name, parent, filing names and versions,
// proxy flags and the pseudo-constructor that makes a default instance.
#pragma once

#include <vector>

#include "AcString.h"
#include "rxobject.h"

class ACHOST_API AcRxClass : public AcRxObject {
public:
    using PseudoConstructor = AcRxObject* (*)();

    static AcRxClass* desc();
    static AcRxClass* cast(const AcRxObject* inPtr);
    AcRxClass* isA() const override;

    const ACHAR* name() const { return m_name.kwszPtr(); }
    AcRxClass* myParent() const { return m_parent; }
    const ACHAR* dxfName() const { return m_dxfName.isEmpty() ? nullptr : m_dxfName.kwszPtr(); }
    const ACHAR* appName() const { return m_appName.isEmpty() ? nullptr : m_appName.kwszPtr(); }
    int proxyFlags() const { return m_proxyFlags; }
    Acad::ErrorStatus getClassVersion(int& dwgVer, int& maintVer) const;
    AppNameChangeFuncPtr appNameCallbackPtr() const { return m_appNameChange; }

    // Reflexive: a class derives from itself.
    bool isDerivedFrom(const AcRxClass* other) const;
    // A new default instance, or null for an abstract class.
    AcRxObject* create() const;
    PseudoConstructor pseudoConstructor() const { return m_constructor; }

    // The classes whose parent this is, as the last acrxBuildClassHierarchy() found them.
    const std::vector<AcRxClass*>& children() const { return m_children; }

private:
    friend class AcRxClassRegistry;
    AcRxClass(const ACHAR* name, AcRxClass* parent, int dwgVer, int maintVer, int proxyFlags,
              PseudoConstructor ctor, const ACHAR* dxfName, const ACHAR* appName,
              AppNameChangeFuncPtr appNameChange);
    ~AcRxClass() override;

    AcString m_name;
    AcRxClass* m_parent;
    int m_dwgVersion;
    int m_maintVersion;
    int m_proxyFlags;
    PseudoConstructor m_constructor;
    AcString m_dxfName;
    AcString m_appName;
    AppNameChangeFuncPtr m_appNameChange;
    std::vector<AcRxClass*> m_children;
};
