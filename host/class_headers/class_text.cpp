#include "host/class_headers/class_text.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <string_view>
#include <vector>

#include "host/runtime/class_lists.h"

extern "C" {
std::size_t class_getInstanceSize(objc::Class cls);
const char* protocol_getName(objc::Protocol protocol);
}

namespace host::class_headers {
namespace {

constexpr std::size_t kWord = sizeof(void*);

objc::Class metaclass_of(objc::Class cls) {
  return objc::class_of(reinterpret_cast<objc::Id>(cls));
}

std::vector<objc::Method> own_methods(objc::Class cls) {
  const ClassMethods methods(cls);
  std::vector<objc::Method> own(methods.items().begin(), methods.items().end());
  std::sort(own.begin(), own.end(), [](objc::Method left, objc::Method right) {
    return std::string_view(sel_getName(method_getName(left))) < sel_getName(method_getName(right));
  });
  return own;
}

/// What every class inherits, or only the runtime sends.
bool is_left_out(std::string_view selector) {
  constexpr std::string_view kLeftOut[] = {"allocWithZone:", "dealloc", "initialize", "load"};
  return std::find(std::begin(kLeftOut), std::end(kLeftOut), selector) != std::end(kLeftOut) ||
         !(std::isalpha(static_cast<unsigned char>(selector.front())) || selector.front() == '_');
}

/// "- (void)setFrame:(CGRect)a1;"; empty when the types are not known, or leave out an argument
/// that the method ignores.
std::string declaration(objc::Method method, char kind, Structures& structures) {
  const auto types = console::parse_method_types(method_getTypeEncoding(method));
  std::string_view selector = sel_getName(method_getName(method));
  const auto colons = std::count(selector.begin(), selector.end(), ':');
  if (!types || types->arguments.size() != static_cast<std::size_t>(colons)) return {};
  std::string text = fmt::format("{} ({})", kind, c_type(types->result, structures));
  int number = 0;
  for (const console::Type& argument : types->arguments) {
    const auto part = selector.substr(0, selector.find(':') + 1);
    selector.remove_prefix(part.size());
    text += fmt::format("{}{}({})a{}", number ? " " : "", part, c_type(argument, structures),
                        number + 1);
    ++number;
  }
  return text + std::string(selector) + ";\n";
}

std::string declarations(objc::Class cls, char kind, const std::set<std::string>& known,
                         Structures& structures) {
  std::string text;
  for (const objc::Method method : own_methods(cls)) {
    const std::string selector = sel_getName(method_getName(method));
    if (!is_left_out(selector) && !known.contains(kind + selector))
      text += declaration(method, kind, structures);
  }
  return text;
}

std::string all_declarations(objc::Class cls, const std::set<std::string>& known,
                             Structures& structures) {
  return declarations(metaclass_of(cls), '+', known, structures) +
         declarations(cls, '-', known, structures);
}

std::string protocols_of(objc::Class cls) {
  const ClassProtocols protocols(cls);
  std::string names;
  for (const objc::Protocol protocol : protocols.items())
    names += (names.empty() ? " <" : ", ") + std::string(protocol_getName(protocol));
  return names.empty() ? names : names + ">";
}

std::size_t words_of(objc::Class cls) {
  return cls ? (class_getInstanceSize(cls) + kWord - 1) / kWord : 0;
}

}  // namespace

std::set<std::string> methods_of(objc::Class cls) {
  std::set<std::string> names;
  for (const objc::Method method : own_methods(cls))
    names.insert(std::string("-") + sel_getName(method_getName(method)));
  for (const objc::Method method : own_methods(metaclass_of(cls)))
    names.insert(std::string("+") + sel_getName(method_getName(method)));
  return names;
}

std::string interface_of(objc::Class cls, Structures& structures) {
  const objc::Class base = class_getSuperclass(cls);
  const std::size_t words = words_of(cls) - words_of(base);
  const std::string state =
      words == 0 ? ""
                 : fmt::format("{{\n @private\n  void *{}_[{}];\n}}\n", class_getName(cls), words);
  return fmt::format("@interface {} : {}{}\n{}{}@end\n\n", class_getName(cls), class_getName(base),
                     protocols_of(cls), state, all_declarations(cls, {}, structures));
}

std::string category_of(objc::Class cls, const std::string& category,
                        const std::set<std::string>& known, Structures& structures) {
  const std::string text = all_declarations(cls, known, structures);
  if (text.empty()) return text;
  return fmt::format("@interface {} ({})\n{}@end\n\n", class_getName(cls), category, text);
}

}  // namespace host::class_headers
