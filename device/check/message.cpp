#include "device/check/message.h"

#include <fmt/core.h>

#include <regex>

namespace sonavue::device {
namespace {

/// Decodes a string template argument, which is mangled letter by letter: `Lc115E` is an s.
std::string spelled_in(const std::string& symbol) {
  static const std::regex letter("Lc([0-9]+)E");
  std::string name;
  for (std::sregex_iterator each(symbol.begin(), symbol.end(), letter), end; each != end; ++each)
    name.push_back(static_cast<char>(std::stoi((*each)[1].str())));
  return name;
}

}  // namespace

std::string Message::name() const {
  return fmt::format("{}[{} {}]", selector.substr(0, 1), cls, selector.substr(1));
}

Message message_in(const std::string& text) {
  static const std::regex pattern("([-+])\\[([A-Za-z0-9_]+) ([A-Za-z0-9_:]+)\\](?: (.+))?");
  std::smatch parts;
  if (!std::regex_match(text, parts, pattern))
    throw FormatError(fmt::format("'{}' is not a message", text));
  return {parts[2], parts[1].str() + parts[3].str(), parts[4]};
}

std::set<std::string> texts_of_symbols(const Image& library, const std::string& prefix) {
  std::set<std::string> texts;
  for (const Symbol& symbol : library.symbols())
    if (symbol.name.rfind(prefix, 0) == 0) texts.insert(spelled_in(symbol.name));
  return texts;
}

}  // namespace sonavue::device
