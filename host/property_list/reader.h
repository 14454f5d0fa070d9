#pragma once

#include <string>
#include <string_view>

#include "platform/Foundation/NSObject.h"

// Property lists from untrusted bytes. Whatever the bytes are, reading them takes time and memory
// in proportion to their number.

namespace host::property_list {

/// In bytes; a larger list is refused unread.
inline constexpr std::size_t kLargestList = 32 << 20;

enum class Mutability { kNone, kContainers, kContainersAndLeaves };

/// The values of NSPropertyListFormat.
enum class Form { kText = 1, kXml = 100, kBinary = 200 };

struct Reading {
  /// Autoreleased; nil when the bytes are no property list, or one that exceeds the bounds.
  objc::Object list;
  Form form = Form::kText;
  /// Completes "… is not read: ". Empty when there is a list.
  std::string problem;
  /// Whether the problem is the size of the list and not its grammar.
  bool exceeds_bounds = false;
};

/// What reading more than kLargestList bytes gives.
Reading too_large();

Reading read(std::string_view bytes, Mutability mutability = Mutability::kNone);

/// Reads a table of texts, `"key" = "value";` for each, as a dictionary.
Reading read_texts(std::string_view bytes);

}  // namespace host::property_list
