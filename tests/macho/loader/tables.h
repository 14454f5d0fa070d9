#pragma once

#include <map>

#include "tests/macho/loader/opcode_stream.h"

namespace macho_tests {

/// A pointer that gets the address of a symbol of somebody else.
struct Binding {
  std::uint64_t place;
  std::string symbol;
  std::string library;  // empty where any may have it
  std::int64_t addend;
  bool may_be_missing;

  bool operator==(const Binding&) const = default;
};

/// Addresses of the pointers that move with the image.
std::vector<std::uint64_t> rebased_places(const Image& image);

/// The bindings of all three tables, in the order in which they are made. Lazy ones are no
/// different here: everything is bound before any of the image's code runs.
std::vector<Binding> bindings(const Image& image);

/// Addresses by symbol.
std::map<std::string, std::uint64_t> exports(const Image& image);

}  // namespace macho_tests
