// Queries of the class registry the tool prints: the classes a module registered.
#pragma once

#include <string>
#include <vector>

#include "AcString.h"

class AcRxClass;

namespace quarvo {

// Registered classes whose application name (before any "|") is appName, by name.
std::vector<const AcRxClass*> ClassesOfApplication(const AcString& appName);

// One line per class: name, parent, DXF name, versions and proxy flags.
std::wstring DescribeClass(const AcRxClass& cls);

}  // namespace quarvo
