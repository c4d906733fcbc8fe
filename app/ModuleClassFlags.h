// The registration values every filed class of the module shares.
#pragma once

namespace Quarvo {

// The drawing-format level and maintenance release the classes declare as current.
constexpr int kClassDwgVersion = 33;
constexpr int kClassMaintenanceVersion = 327;
// Every proxy operation allowed except cloning (0x37F).
constexpr int kClassProxyFlags = 895;

}  // namespace Quarvo
