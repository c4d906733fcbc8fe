// Registration services of the runtime layer: creating, finding and deleting runtime
// classes, rebuilding the class tree, and stopping the host on a fatal module error.
#pragma once

#include "rxclass.h"

// Full form. The parent must already be registered; the versions are not filed but
// reported to filers and drawing files; appName may carry "|"-separated product details.
ACHOST_API AcRxClass* newAcRxClass(const ACHAR* className, const ACHAR* parentClassName, int dwgVer,
                                   int maintVer, int proxyFlags, AcRxObject* (*pseudoConstructor)(),
                                   const ACHAR* dxfName, const ACHAR* appName,
                                   AppNameChangeFuncPtr func = nullptr);

// Short form for classes that are never filed: versions 0. The defaults are UNCONFIRMED;
// no DXF name, no application name and no constructor are the natural ones.
ACHOST_API AcRxClass* newAcRxClass(const ACHAR* className, const ACHAR* parentClassName,
                                   int proxyFlags = 0, AcRxObject* (*pseudoConstructor)() = nullptr,
                                   const ACHAR* dxfName = nullptr, const ACHAR* appName = nullptr);

// The class registered under name, or null.
ACHOST_API AcRxClass* acrxFindAcRxClass(const ACHAR* className);

// Unregisters and destroys the class. Registered children lose their parent link.
ACHOST_API void deleteAcRxClass(AcRxClass* cls);

// Rebuilds every class's list of children from the parent links.
ACHOST_API void acrxBuildClassHierarchy();

// Stops the host with a printf-style message (host wide-format rules). The headless host
// raises its host error carrying the message instead of ending the process.
[[noreturn]] ACHOST_API void acrx_abort(const ACHAR* format, ...);

// Module bookkeeping: pkt is the module handle given with kInitAppMsg.
ACHOST_API bool acrxUnlockApplication(void* pkt);
ACHOST_API bool acrxLockApplication(void* pkt);
ACHOST_API bool acrxApplicationIsLocked(const ACHAR* modulename);
ACHOST_API bool acrxRegisterAppMDIAware(void* pkt);
ACHOST_API bool acrxRegisterAppNotMDIAware(void* pkt);
ACHOST_API bool acrxIsAppMDIAware(const ACHAR* moduleName);
