// The host's own runtime classes, registered when the system registry is first used.
#pragma once

namespace hostrx {

// Registers every class the host itself defines, parents first.
void registerHostClasses();

}  // namespace hostrx

// Each area registers its classes, parents first; registerHostClasses calls them in the
// order of the class tree (drawing before database objects before entities).
namespace hostgi {
void registerGiClasses();
}
namespace hostdb {
void registerDbClasses();
}
namespace hostents {
void registerEntityClasses();
}
namespace hostpoly {
void registerPolylineClasses();
}
namespace hostap {
void registerApClasses();
}
namespace hostfile {
void registerFileClasses();
// Called last: every class registered by then is the host's own.
void noteHostClasses();
}
