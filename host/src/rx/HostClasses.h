// The host's own runtime classes, registered when the system registry is first used.
#pragma once

namespace hostrx {

// Registers every class the host itself defines, parents first.
void registerHostClasses();

}  // namespace hostrx
