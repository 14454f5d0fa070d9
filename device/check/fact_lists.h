#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>

namespace sonavue::device {

/// Messages that the facts alone do not prove, by name.
struct FactLists {
  /// Messages that the library checks for before it sends them, each with the reason.
  std::map<std::string, std::string> guarded;
  /// Messages that the dumps do not cover for every system of the range.
  std::set<std::string> uncovered;
};

/// Throws FormatError, with the file and the line, for an invalid or a repeated row.
FactLists read_fact_lists(const std::filesystem::path& folder);

}  // namespace sonavue::device
