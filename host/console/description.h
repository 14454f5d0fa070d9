#pragma once

#include <string>
#include <vector>

#include "objc/object.h"

namespace host::console {

/// Describes a class: what it inherits from, its instance variables and its methods with their
/// types, sorted; of the classes above, the number of methods. An encoding that the console cannot
/// send is shown as it is.
std::vector<std::string> description_of(objc::Class cls);

}  // namespace host::console
