// HostClassSet: the runtime classes the host itself defines, noted once when the host
// registers them. Drawing files keep graphics for every other entity class (the classes
// of modules), so that hosts without the module can still show them.
#pragma once

class AcRxClass;

namespace hostfile {

class HostClassSet {
public:
    // Notes every class registered now as the host's own.
    static void noteHostClasses();
    static bool isHostClass(const AcRxClass* cls);
};

}  // namespace hostfile
