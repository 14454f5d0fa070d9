#include "host/console/print.h"

#include <fmt/format.h>

#include <algorithm>

#include "host/console/objects.h"
#include "platform/Foundation/NSString.h"

namespace host::console {
namespace {

// A collection may contain itself.
constexpr int kDeepestPrinted = 8;

std::string printed(const Value& value, int depth);

std::string in_quotes(std::string_view text) {
  std::string made = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') made += '\\';
    if (c == '\n') {
      made += "\\n";
    } else if (c == '\t') {
      made += "\\t";
    } else if (static_cast<unsigned char>(c) < ' ') {
      made += fmt::format("\\x{:02x}", static_cast<unsigned char>(c));
    } else {
      made += c;
    }
  }
  return made + '"';
}

std::string printed(const Number& number) {
  switch (number.form) {
    case Number::Form::Boolean:
      return number.value != 0 ? "YES" : "NO";
    case Number::Form::Integer:
      return fmt::format("{:.0f}", number.value);
    case Number::Form::Single:
      return fmt::format("{}", static_cast<float>(number.value));
    default:
      return fmt::format("{}", static_cast<double>(number.value));
  }
}

std::string printed(const Structure& members, int depth) {
  std::string made = "{";
  for (const Value& member : members) {
    if (made.size() > 1) made += ", ";
    made += printed(member, depth + 1);
  }
  return made + '}';
}

bool is_a(objc::Object object, const char* class_name) {
  return objc::cast<NSObject>(object).isKindOfClass(objc_getClass(class_name));
}

std::vector<std::string> printed_elements(objc::Object enumerator, int depth) {
  std::vector<std::string> made;
  while (const auto element = objc::send<objc::Object>(enumerator, "nextObject"_sel))
    made.push_back(printed(object_value(element), depth + 1));
  return made;
}

std::string printed_dictionary(objc::Object dictionary, int depth) {
  const auto keys = objc::send<objc::Object>(dictionary, "keyEnumerator"_sel);
  std::vector<std::string> entries;
  while (const auto key = objc::send<objc::Object>(keys, "nextObject"_sel)) {
    const auto held = objc::send<objc::Object>(dictionary, "objectForKey:"_sel, key);
    entries.push_back(fmt::format("{} = {}", printed(object_value(key), depth + 1),
                                  printed(object_value(held), depth + 1)));
  }
  std::sort(entries.begin(), entries.end());
  return fmt::format("{{{}}}", fmt::join(entries, "; "));
}

std::string printed_by_description(objc::Object object) {
  const auto described = objc::cast<NSObject>(object).description();
  std::string text = described ? text_in(described).value_or("") : "";
  std::replace(text.begin(), text.end(), '\n', ' ');
  if (text.starts_with('<') && text.ends_with('>')) return text;
  return fmt::format("<{} {}>", class_getName(objc::class_of(object.id())), text);
}

std::string printed(objc::Object object, int depth) {
  // Proxies and the runtime's own objects do not respond to the messages below.
  if (!class_getInstanceMethod(objc::class_of(object.id()), "isKindOfClass:"_sel))
    return fmt::format("<{}>", class_getName(objc::class_of(object.id())));
  if (const auto text = text_in(object)) return in_quotes(*text);
  if (const auto number = number_in(object)) return printed(*number);
  if (const auto value = value_in(object)) return printed(*value, depth + 1);
  const bool collection = depth < kDeepestPrinted;
  if (collection && is_a(object, "NSDictionary")) return printed_dictionary(object, depth);
  if (collection && (is_a(object, "NSArray") || is_a(object, "NSSet"))) {
    const auto enumerator = objc::send<objc::Object>(object, "objectEnumerator"_sel);
    return fmt::format("({})", fmt::join(printed_elements(enumerator, depth), ", "));
  }
  if (is_a(object, "NSArray") || is_a(object, "NSSet") || is_a(object, "NSDictionary")) return "…";
  return printed_by_description(object);
}

std::string printed(const Value& value, int depth) {
  return std::visit(
      [depth]<class Content>(const Content& content) -> std::string {
        if constexpr (std::is_same_v<Content, NilValue>) {
          return "nil";
        } else if constexpr (std::is_same_v<Content, Void>) {
          return "void";
        } else if constexpr (std::is_same_v<Content, Number>) {
          return printed(content);
        } else if constexpr (std::is_same_v<Content, objc::Class>) {
          return class_getName(content);
        } else if constexpr (std::is_same_v<Content, Pointer>) {
          return fmt::format("<pointer {}>", content.address);
        } else {
          return printed(content, depth);
        }
      },
      value.content);
}

}  // namespace

std::string text_of(const Value& value) {
  return printed(value, 0);
}

}  // namespace host::console
