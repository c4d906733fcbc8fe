// HostClassSet and the registration of the drawing-file layer's classes (the proxies).
#include "HostClassSet.h"

#include <set>

#include "dbproxy.h"
#include "rx/HostClasses.h"
#include "rxclass.h"

namespace hostfile {

namespace {
// Host process state, like the registry itself: written once while the host starts.
std::set<const AcRxClass*>* g_hostClasses = nullptr;
}  // namespace

void HostClassSet::noteHostClasses()
{
    if (g_hostClasses == nullptr)
        g_hostClasses = new std::set<const AcRxClass*>();
    AcRxDictionary* classes = acrxClassDictionary;
    for (AcRxDictionaryIterator it(*classes); !it.done(); it.next())
        g_hostClasses->insert(AcRxClass::cast(it.object()));
}

bool HostClassSet::isHostClass(const AcRxClass* cls)
{
    return g_hostClasses != nullptr && g_hostClasses->count(cls) != 0;
}

void noteHostClasses()
{
    HostClassSet::noteHostClasses();
}

void registerFileClasses()
{
    AcDbProxyObject::rxInit();
    AcDbProxyEntity::rxInit();
}

}  // namespace hostfile
