#include "device/check/linker_stubs.h"

#include <fmt/core.h>

#include <fstream>
#include <regex>
#include <set>

namespace sonavue::device {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

Names stub_symbols(const fs::path& source) {
  static const std::regex symbol(" +- ([^ \\[]+)");
  Names names;
  for (const auto& each : fs::directory_iterator(source / "device/stubs")) {
    std::ifstream lines(each.path());
    std::smatch found;
    for (std::string line; std::getline(lines, line);)
      if (std::regex_match(line, found, symbol)) names.insert(found[1]);
  }
  return names;
}

}  // namespace

void check_symbols(const Image& library, const Image& bundle, const fs::path& source,
                   Findings& findings) {
  const Names stubs = stub_symbols(source);
  Names unused = stubs;
  for (const Image* image : {&library, &bundle})
    for (const Symbol& symbol : image->symbols()) {
      if (!symbol.is_undefined()) continue;
      unused.erase(symbol.name);
      if (stubs.count(symbol.name) == 0)
        findings.push_back(fmt::format("library: needs {}, which is in no stub", symbol.name));
    }
  for (const std::string& name : unused)
    findings.push_back(fmt::format("stubs: {} is not used", name));
}

}  // namespace sonavue::device
