#pragma once

#include <string_view>

#include "host/property_list/builder.h"

namespace host::property_list {

// Each reads the list with the builder's objects; nil after a problem, which the builder keeps. The
// text of the last three is UTF-8.

bool is_binary(std::string_view bytes);
objc::Object read_binary(std::string_view bytes, Builder& builder);

bool is_xml(std::string_view text);
objc::Object read_xml(std::string_view text, Builder& builder);

objc::Object read_text(std::string_view text, Builder& builder);
/// Only the entries of a dictionary, without braces.
objc::Object read_entries(std::string_view text, Builder& builder);

}  // namespace host::property_list
