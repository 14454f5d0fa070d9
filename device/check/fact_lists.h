#pragma once

#include <filesystem>
#include <map>
#include <set>
#include <string>

namespace sonavue::device {

/// What the facts alone do not prove, listed by name.
struct FactLists {
  /// Messages that the library asks for before it sends them, with the reason why.
  std::map<std::string, std::string> guarded;
  /// Messages that no dump tells of for every system of the range.
  std::set<std::string> uncovered;
};

/// Throws FormatError, with the file and the line, for an invalid or a repeated row.
FactLists read_fact_lists(const std::filesystem::path& folder);

}  // namespace sonavue::device
