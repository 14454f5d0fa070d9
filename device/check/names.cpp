#include "device/check/names.h"

#include <fmt/core.h>

#include <fstream>
#include <regex>
#include <set>

namespace sonavue::device {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

std::string text_of(const fs::path& path) {
  const Bytes bytes = read_file(path);
  return std::string(bytes.begin(), bytes.end());
}

void add_matches(Names& names, const std::string& text, const std::regex& pattern) {
  for (std::sregex_iterator each(text.begin(), text.end(), pattern), end; each != end; ++each)
    names.insert((*each)[1].str());
}

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

/// Every literal of the headers that bind the platform, and of the bridge below them.
Names bound_names(const fs::path& source) {
  static const std::regex literal("\"([^\"\n]*)\"");
  Names names;
  for (const char* folder : {"platform", "objc"})
    for (const auto& each : fs::recursive_directory_iterator(source / folder))
      if (each.path().extension() == ".h") add_matches(names, text_of(each.path()), literal);
  return names;
}

Names own_names(const fs::path& source) {
  Names names;
  std::ifstream lines(source / "device/check/own_names.txt");
  for (std::string line; std::getline(lines, line);)
    if (!line.empty() && line[0] != '#') names.insert(line);
  return names;
}

/// What a cache of the bridge is for stands in its symbol, letter by letter: `Lc115E` is an s.
std::string spelled_in(const std::string& symbol) {
  static const std::regex letter("Lc([0-9]+)E");
  std::string name;
  for (std::sregex_iterator each(symbol.begin(), symbol.end(), letter), end; each != end; ++each)
    name.push_back(static_cast<char>(std::stoi((*each)[1].str())));
  return name;
}

Names cached_names(const Image& library, const std::string& cache) {
  Names names;
  for (const Symbol& symbol : library.symbols())
    if (symbol.name.rfind(cache, 0) == 0) names.insert(spelled_in(symbol.name));
  return names;
}

/// Selectors given to the runtime as texts; those without an argument look like any other word.
Names selector_texts(const Image& library) {
  static const std::regex selector("(?:[A-Za-z_][A-Za-z0-9_]*:)+");
  Names names;
  for (const std::string& text : library.strings())
    if (std::regex_match(text, selector)) names.insert(text);
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
        findings.push_back(fmt::format("library: needs {}, which no stub has", symbol.name));
    }
  for (const std::string& name : unused)
    findings.push_back(fmt::format("stubs: {} is not used", name));
}

void check_names(const Image& library, const fs::path& source, Findings& findings) {
  Names known = bound_names(source);
  known.merge(own_names(source));
  Names selectors = cached_names(library, "__ZN4objc15cached_selector");
  const Names classes = cached_names(library, "__ZN4objc12cached_class");
  if (selectors.empty() || classes.empty())
    findings.push_back("library: its symbols tell no selectors or no classes");
  selectors.merge(selector_texts(library));
  for (const std::string& name : selectors)
    if (known.count(name) == 0)
      findings.push_back(fmt::format("library: the bindings know no selector {}", name));
  for (const std::string& name : classes)
    if (known.count(name) == 0)
      findings.push_back(fmt::format("library: the bindings know no class {}", name));
}

}  // namespace sonavue::device
