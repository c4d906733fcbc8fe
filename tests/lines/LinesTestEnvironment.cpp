// The module is loaded once for the whole program, whichever of its tests run.
#include "ModuleTestSupport.h"

namespace {

const bool kModuleLoaded = qxtest::RegisterModuleEnvironment();

}  // namespace
