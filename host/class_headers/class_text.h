#pragma once

#include <set>
#include <string>

#include "host/class_headers/c_types.h"
#include "objc/abi.h"

namespace host::class_headers {

/// The methods of a class and of its metaclass, as "-name" and "+name".
std::set<std::string> methods_of(objc::Class cls);

/// The interface of a class. Its instance variables take as much room as the class's own state, so
/// that those of a compiled subclass begin after it.
std::string interface_of(objc::Class cls, Structures& structures);

/// The methods of a class that are not among `known`, as a category; empty if there are none.
std::string category_of(objc::Class cls, const std::string& category,
                        const std::set<std::string>& known, Structures& structures);

}  // namespace host::class_headers
