#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace host::console {

/// One type of the runtime's encodings. `code` is its letter, '{' for a structure, whose members
/// lie at `offset` from its start. Every kind of pointer has the code '^', and every object '@'.
struct Type {
  char code = 'v';
  std::size_t size = 0;
  std::size_t alignment = 1;
  std::size_t offset = 0;
  std::string structure;
  std::vector<Type> members;

  bool is_integer() const;
};

/// A method's result and argument types, without the receiver and the selector.
struct MethodTypes {
  Type result;
  std::vector<Type> arguments;
};

/// Empty for types that the console cannot handle: unions, bit fields and arrays.
std::optional<Type> parse_type(const char* encoding);
std::optional<MethodTypes> parse_method_types(const char* encoding);

}  // namespace host::console
