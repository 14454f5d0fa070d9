#pragma once

#include <optional>
#include <string>

#include "platform/Foundation/NSObject.h"

namespace host::property_list {

/// The XML form in UTF-8, with the keys in order. Nothing when the list holds what no property list
/// can, itself for instance, or exceeds the bounds of reading.
std::optional<std::string> xml_of(objc::Object list);

}  // namespace host::property_list
