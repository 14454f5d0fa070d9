#include "device/check/fact_lists.h"

#include <fmt/core.h>

#include <fstream>

#include "device/check/message.h"

namespace sonavue::device {
namespace {

namespace fs = std::filesystem;

/// Passes each row of a list to `take`. Adds the file and line to errors that it throws.
template <class Take>
void read_list(const fs::path& path, Take take) {
  std::ifstream lines(path);
  if (!lines) throw FormatError(path.string() + ": cannot be read");
  int number = 0;
  for (std::string line; std::getline(lines, line);) {
    ++number;
    if (line.empty() || line[0] == '#') continue;
    try {
      take(line);
    } catch (const FormatError& problem) {
      throw FormatError(fmt::format("{}:{}: {}", path.string(), number, problem.what()));
    }
  }
}

void require_new(bool is_new, const std::string& row) {
  if (!is_new) throw FormatError(fmt::format("'{}' is listed twice", row));
}

}  // namespace

FactLists read_fact_lists(const fs::path& folder) {
  FactLists lists;
  read_list(folder / "guarded", [&](const std::string& row) {
    const std::size_t colon = row.find("]: ");
    if (colon == std::string::npos) throw FormatError(fmt::format("'{}' gives no reason", row));
    const std::string name = message_in(row.substr(0, colon + 1)).name();
    require_new(lists.guarded.emplace(name, row.substr(colon + 3)).second, name);
  });
  read_list(folder / "uncovered", [&](const std::string& row) {
    require_new(lists.uncovered.insert(message_in(row).name()).second, row);
  });
  return lists;
}

}  // namespace sonavue::device
