// The module's runtime classes: the one place that says in which order they are
// registered at load and deleted at unload.
#pragma once

#include <vector>

#include "AcString.h"

class AcRxClass;

namespace Quarvo {

// The DXF application name under which every filed class of the module is registered.
extern const ACHAR* const kApplicationName;

// Registers every class, parents before children; registering twice is harmless.
void RegisterModuleClasses();

// Deletes every class in the tear-down order.
void UnregisterModuleClasses();

// Class names in registration order and in tear-down order (for tools and tests).
std::vector<AcString> RegistrationOrder();
std::vector<AcString> TearDownOrder();

}  // namespace Quarvo
