// The system registry and the class dictionary: creating, finding and deleting runtime
// classes.
#include <algorithm>

#include "HostClasses.h"
#include "headless/RegistryJournal.h"
#include "rxclass.h"
#include "rxdict.h"
#include "rxregsvc.h"

namespace {

// Host process state, touched only from the main thread. It is created on first use and
// lives as long as the process.
AcRxDictionary* g_sysRegistry = nullptr;
AcRxDictionary* g_classDictionary = nullptr;
headless::RegistryJournal* g_journal = nullptr;

// Kept as a direct pointer: casts look classes up here, so this must not cast.
AcRxDictionary* classDictionary()
{
    acrxSysRegistry();
    return g_classDictionary;
}

// Only descriptors are ever filed in the class dictionary.
AcRxClass* asClass(AcRxObject* obj)
{
    return static_cast<AcRxClass*>(obj);
}

}  // namespace

// Builds descriptors; the only code allowed to construct and destroy AcRxClass objects.
class AcRxClassRegistry {
public:
    static AcRxClass* create(const ACHAR* className, const ACHAR* parentName, int dwgVer, int maintVer,
                             int proxyFlags, AcRxClass::PseudoConstructor ctor, const ACHAR* dxfName,
                             const ACHAR* appName, AppNameChangeFuncPtr appNameChange)
    {
        if (className == nullptr || *className == L'\0')
            acrx_abort(L"newAcRxClass: a runtime class needs a name");
        AcRxDictionary* classes = classDictionary();
        if (classes->at(className) != nullptr)
            acrx_abort(L"newAcRxClass: a class named %s is already registered", className);
        AcRxClass* parent = nullptr;
        if (parentName != nullptr && *parentName != L'\0') {
            parent = asClass(classes->at(parentName));
            if (parent == nullptr)
                acrx_abort(L"newAcRxClass: parent class %s of %s is not registered", parentName, className);
        }
        auto* cls = new AcRxClass(className, parent, dwgVer, maintVer, proxyFlags, ctor, dxfName, appName,
                                  appNameChange);
        classes->atPut(className, cls);
        if (parent != nullptr)
            parent->m_children.push_back(cls);
        if (g_journal != nullptr)
            g_journal->noteCreated(className);
        return cls;
    }

    static void destroy(AcRxClass* cls)
    {
        AcRxDictionary* classes = classDictionary();
        if (classes->at(cls->name()) != cls)
            return;  // not a registered descriptor: nothing to undo
        if (g_journal != nullptr)
            g_journal->noteDeleted(cls->name());
        classes->remove(cls->name());
        if (cls->m_parent != nullptr) {
            auto& siblings = cls->m_parent->m_children;
            siblings.erase(std::remove(siblings.begin(), siblings.end(), cls), siblings.end());
        }
        for (AcRxClass* child : cls->m_children)
            child->m_parent = nullptr;
        delete cls;
    }

    static void rebuildChildren()
    {
        AcRxDictionary* classes = classDictionary();
        for (AcRxDictionaryIterator it(*classes); !it.done(); it.next())
            asClass(it.object())->m_children.clear();
        for (AcRxDictionaryIterator it(*classes); !it.done(); it.next()) {
            AcRxClass* cls = asClass(it.object());
            if (cls->m_parent != nullptr)
                cls->m_parent->m_children.push_back(cls);
        }
    }
};

AcRxDictionary* acrxSysRegistry()
{
    if (g_sysRegistry == nullptr) {
        g_sysRegistry = new AcRxDictionary(true);
        g_classDictionary = new AcRxDictionary(true);
        g_sysRegistry->atPut(ACRX_CLASS_DICTIONARY, g_classDictionary);
        // The root classes first: everything else names one of them as its parent.
        AcRxClassRegistry::create(L"AcRxObject", nullptr, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
        AcRxClassRegistry::create(L"AcRxClass", L"AcRxObject", 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
        AcRxClassRegistry::create(L"AcRxDictionary", L"AcRxObject", 0, 0, 0, nullptr, nullptr, nullptr,
                                  nullptr);
        hostrx::registerHostClasses();
    }
    return g_sysRegistry;
}

AcRxClass* newAcRxClass(const ACHAR* className, const ACHAR* parentClassName, int dwgVer, int maintVer,
                        int proxyFlags, AcRxObject* (*pseudoConstructor)(), const ACHAR* dxfName,
                        const ACHAR* appName, AppNameChangeFuncPtr func)
{
    return AcRxClassRegistry::create(className, parentClassName, dwgVer, maintVer, proxyFlags,
                                     pseudoConstructor, dxfName, appName, func);
}

AcRxClass* newAcRxClass(const ACHAR* className, const ACHAR* parentClassName, int proxyFlags,
                        AcRxObject* (*pseudoConstructor)(), const ACHAR* dxfName, const ACHAR* appName)
{
    return AcRxClassRegistry::create(className, parentClassName, 0, 0, proxyFlags, pseudoConstructor,
                                     dxfName, appName, nullptr);
}

AcRxClass* acrxFindAcRxClass(const ACHAR* className)
{
    return asClass(classDictionary()->at(className));
}

void deleteAcRxClass(AcRxClass* cls)
{
    if (cls != nullptr)
        AcRxClassRegistry::destroy(cls);
}

void acrxBuildClassHierarchy()
{
    AcRxClassRegistry::rebuildChildren();
}

namespace headless {

RegistryJournal::RegistryJournal() : m_previous(g_journal)
{
    acrxSysRegistry();  // the host's own classes are not part of what a journal records
    g_journal = this;
}

RegistryJournal::~RegistryJournal()
{
    g_journal = m_previous;
}

}  // namespace headless
