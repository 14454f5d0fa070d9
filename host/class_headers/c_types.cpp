#include "host/class_headers/c_types.h"

#include <fmt/format.h>

#include <algorithm>
#include <string_view>
#include <utility>

namespace host::class_headers {
namespace {

constexpr std::pair<char, const char*> kScalars[] = {
    {'v', "void"},          {'c', "BOOL"},      {'C', "unsigned char"},
    {'B', "BOOL"},          {'s', "short"},     {'S', "unsigned short"},
    {'i', "int"},           {'I', "unsigned"},  {'l', "long"},
    {'L', "unsigned long"}, {'q', "NSInteger"}, {'Q', "NSUInteger"},
    {'f', "float"},         {'d', "CGFloat"},   {'@', "id"},
    {'#', "Class"},         {':', "SEL"},       {'*', "const char *"},
    {'^', "void *"},
};

/// The names of the members, which encodings do not have.
struct MemberNames {
  std::string_view structure;
  std::string_view members;  // separated by a space
};

constexpr MemberNames kMembers[] = {
    {"CGPoint", "x y"},
    {"CGSize", "width height"},
    {"CGRect", "origin size"},
    {"CGVector", "dx dy"},
    {"CGAffineTransform", "a b c d tx ty"},
    {"UIEdgeInsets", "top left bottom right"},
    {"UIOffset", "horizontal vertical"},
    {"CATransform3D", "m11 m12 m13 m14 m21 m22 m23 m24 m31 m32 m33 m34 m41 m42 m43 m44"},
};

std::string_view names_in(std::string_view structure) {
  for (const MemberNames& each : kMembers) {
    if (each.structure == structure) return each.members;
  }
  return {};
}

/// Takes the first name off, or makes one of the number.
std::string take_name(std::string_view& names, int number) {
  if (names.empty()) return fmt::format("member{}", number);
  const auto end = std::min(names.find(' '), names.size());
  const std::string name(names.substr(0, end));
  names.remove_prefix(std::min(end + 1, names.size()));
  return name;
}

}  // namespace

std::string Structures::name_of(const console::Type& structure) {
  const std::string& name = structure.structure;
  // Foundation's headers have these.
  if (name == "_NSRange") return "NSRange";
  if (!known_.insert(name).second) return name;
  std::string members;
  std::string_view names = names_in(name);
  int number = 0;
  for (const console::Type& member : structure.members)
    members += fmt::format("  {} {};\n", c_type(member, *this), take_name(names, number++));
  text_ += fmt::format("typedef struct {0} {{\n{1}}} {0};\n\n", name, members);
  return name;
}

std::string c_type(const console::Type& type, Structures& structures) {
  if (type.code == '{') return structures.name_of(type);
  for (const auto& [code, name] : kScalars) {
    if (code == type.code) return name;
  }
  return "void *";
}

}  // namespace host::class_headers
