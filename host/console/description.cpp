#include "host/console/description.h"

#include <fmt/format.h>

#include <set>
#include <string_view>

#include "host/console/type_encoding.h"
#include "host/runtime/class_lists.h"

extern "C" {
const char* ivar_getName(objc::Ivar ivar);
const char* ivar_getTypeEncoding(objc::Ivar ivar);
}

namespace host::console {
namespace {

constexpr std::pair<char, const char*> kTypeNames[] = {
    {'v', "void"},          {'c', "BOOL"},         {'C', "unsigned char"},
    {'B', "bool"},          {'s', "short"},        {'S', "unsigned short"},
    {'i', "int"},           {'I', "unsigned int"}, {'l', "long"},
    {'L', "unsigned long"}, {'q', "long long"},    {'Q', "unsigned long long"},
    {'f', "float"},         {'d', "double"},       {'@', "id"},
    {'#', "Class"},         {':', "SEL"},          {'*', "char *"},
    {'^', "void *"},
};

std::string name_of(const Type& type) {
  for (const auto& [code, name] : kTypeNames) {
    if (code == type.code) return name;
  }
  return type.structure.empty() || type.structure == "?" ? "struct" : type.structure;
}

std::string signature_of(objc::Method method) {
  const std::string selector = sel_getName(method_getName(method));
  const char* encoding = method_getTypeEncoding(method);
  const auto types = parse_method_types(encoding);
  if (!types) return fmt::format("{} with the types {}", selector, encoding ? encoding : "");
  std::string text = fmt::format("({}) ", name_of(types->result));
  std::string_view rest = selector;
  for (const Type& argument : types->arguments) {
    const auto colon = rest.find(':');
    if (colon == std::string_view::npos) break;
    if (rest.size() < selector.size()) text += ' ';
    text += fmt::format("{}({})", rest.substr(0, colon + 1), name_of(argument));
    rest.remove_prefix(colon + 1);
  }
  return text + std::string(rest);
}

void add_methods(std::vector<std::string>& lines, objc::Class cls, char sign) {
  // Sorted by the selector, which is what one looks for.
  std::set<std::pair<std::string, std::string>> found;
  const ClassMethods methods(cls);
  for (const objc::Method method : methods.items())
    found.emplace(sel_getName(method_getName(method)), signature_of(method));
  for (const auto& [selector, signature] : found)
    lines.push_back(fmt::format("{} {}", sign, signature));
}

void add_ivars(std::vector<std::string>& lines, objc::Class cls) {
  const ClassIvars ivars(cls);
  for (const objc::Ivar ivar : ivars.items()) {
    const char* encoding = ivar_getTypeEncoding(ivar);
    const auto type = parse_type(encoding);
    const char* name = ivar_getName(ivar);
    lines.push_back(fmt::format("ivar ({}) {}",
                                type       ? name_of(*type)
                                : encoding ? encoding
                                           : "",
                                name ? name : ""));
  }
}

}  // namespace

std::vector<std::string> description_of(objc::Class cls) {
  std::vector<std::string> lines = {class_getName(cls)};
  std::vector<std::string> inherited;
  for (auto above = class_getSuperclass(cls); above; above = class_getSuperclass(above)) {
    lines.front() += fmt::format(" : {}", class_getName(above));
    inherited.push_back(
        fmt::format("{} {}", class_getName(above), ClassMethods(above).items().size()));
  }
  add_ivars(lines, cls);
  add_methods(lines, objc::class_of(reinterpret_cast<objc::Id>(cls)), '+');
  add_methods(lines, cls, '-');
  if (!inherited.empty())
    lines.push_back(fmt::format("inherited methods: {}", fmt::join(inherited, ", ")));
  return lines;
}

}  // namespace host::console
