#pragma once

#include <map>

#include "tests/macho/loader/opcode_stream.h"

namespace macho_tests {

/// A pointer that is set to the address of an imported symbol.
struct Binding {
  std::uint64_t place;
  std::string symbol;
  std::string library;  // empty if any library may have it
  std::int64_t addend;
  bool may_be_missing;

  bool operator==(const Binding&) const = default;
};

/// The addresses of the pointers that are relocated with the image.
std::vector<std::uint64_t> rebased_places(const Image& image);

/// The bindings of all three tables, in order. Lazy ones are treated like the others: everything is
/// bound before any of the image's code runs.
std::vector<Binding> bindings(const Image& image);

/// The addresses of the exported symbols, by name.
std::map<std::string, std::uint64_t> exports(const Image& image);

}  // namespace macho_tests
