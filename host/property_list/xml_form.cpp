#include <charconv>
#include <optional>
#include <string>

#include "host/property_list/cursor.h"
#include "host/property_list/encoding.h"
#include "host/property_list/forms.h"
#include "host/property_list/scalars.h"

namespace host::property_list {
namespace {

struct Tag {
  std::string_view name;
  bool closes = false;
  bool is_empty = false;
};

class XmlReader {
 public:
  XmlReader(std::string_view text, Builder& builder) : at_(text, builder), builder_(builder) {}

  objc::Object top() {
    auto tag = next_tag();
    const bool is_wrapped = tag && tag->name == "plist" && !tag->closes && !tag->is_empty;
    if (is_wrapped) tag = next_tag();
    const objc::Object list = tag ? value(*tag) : objc::Object();
    if (!list) return nil;
    if (is_wrapped && !is_closing(next_tag(), "plist")) return at_.damaged("</plist> is missing");
    skip_remarks();
    return at_.is_at_end() ? list : at_.damaged("something follows the list");
  }

 private:
  static bool is_closing(const std::optional<Tag>& tag, std::string_view name) {
    return tag && tag->closes && tag->name == name;
  }

  void skip_remarks() {
    for (;;) {
      at_.skip_spaces();
      if (at_.take("<!--")) {
        at_.skip_past("-->");
      } else if (at_.take("<?")) {
        at_.skip_past("?>");
      } else if (at_.take("<!DOCTYPE")) {
        // Entities that it declares are not known.
        skip_to_end_of_tag();
      } else {
        return;
      }
    }
  }

  /// Returns the last character before `>`.
  char skip_to_end_of_tag() {
    char last = '\0';
    char quote = '\0';
    for (; !at_.is_at_end() && (quote || at_.next() != '>'); at_.skip()) {
      last = at_.next();
      if (quote == last) {
        quote = '\0';
      } else if (!quote && (last == '"' || last == '\'')) {
        quote = last;
      }
    }
    if (!at_.take('>')) at_.damaged("a '>' is missing");
    return last;
  }

  std::optional<Tag> next_tag() {
    skip_remarks();
    if (!at_.take('<')) {
      at_.damaged(at_.is_at_end() ? "it ends too early" : "a tag is missing");
      return std::nullopt;
    }
    Tag tag;
    tag.closes = at_.take('/');
    tag.name = at_.take_while([](char c) { return c >= 'a' && c <= 'z'; });
    tag.is_empty = skip_to_end_of_tag() == '/';
    return tag;
  }

  objc::Object value(const Tag& tag) {
    if (tag.closes) return at_.damaged("a value is missing");
    if (tag.name == "dict" || tag.name == "array") {
      if (!builder_.enter()) return nil;
      const auto made = tag.name == "dict" ? dictionary(tag) : array(tag);
      builder_.leave();
      return made;
    }
    const auto text = content(tag);
    if (!text) return nil;
    if (tag.name == "string") return builder_.text(*text);
    if (tag.name == "true" || tag.name == "false") return builder_.boolean(tag.name == "true");
    if (tag.name == "integer") return integer_from(*text, builder_);
    if (tag.name == "real") return real_from(*text, builder_);
    if (tag.name == "date") return date_from(*text, builder_);
    if (tag.name != "data") return at_.damaged("an unknown tag");
    const auto bytes = from_base64(*text);
    return bytes ? builder_.data(*bytes) : at_.damaged("data that is not base64");
  }

  objc::Object array(const Tag& tag) {
    Objects objects;
    while (!tag.is_empty) {
      const auto inner = next_tag();
      if (is_closing(inner, "array")) break;
      const objc::Object object = inner ? value(*inner) : objc::Object();
      if (!object) return nil;
      objects.push_back(object);
    }
    return builder_.array(objects);
  }

  objc::Object dictionary(const Tag& tag) {
    Objects keys;
    Objects values;
    while (!tag.is_empty) {
      const auto inner = next_tag();
      if (is_closing(inner, "dict")) break;
      if (!inner || inner->closes || inner->name != "key") return at_.damaged("a <key> is missing");
      const auto key = content(*inner);
      const auto next = key ? next_tag() : std::nullopt;
      const objc::Object value_of_key = next ? value(*next) : objc::Object();
      if (!value_of_key) return nil;
      values.push_back(value_of_key);
      keys.push_back(builder_.key(*key));
      if (!keys.back()) return nil;
    }
    return builder_.dictionary(keys, values);
  }

  /// Returns the text up to the closing tag; nothing after a problem.
  std::optional<std::string> content(const Tag& tag) {
    std::string text;
    std::string_view part;
    while (!tag.is_empty) {
      text += at_.take_while([](char c) { return c != '<' && c != '&'; });
      if (at_.take("<![CDATA[")) {
        if (!at_.take_until("]]>", part)) break;
        text += part;
      } else if (at_.take("<!--")) {
        at_.skip_past("-->");
      } else if (!at_.take('&')) {
        break;
      } else if (!at_.take_until(";", part) || !append_entity(text, part)) {
        at_.damaged("an unknown entity");
        return std::nullopt;
      }
    }
    if (tag.is_empty || is_closing(next_tag(), tag.name)) return text;
    at_.damaged(fmt::format("</{}> is missing", tag.name));
    return std::nullopt;
  }

  static bool append_entity(std::string& text, std::string_view name) {
    struct Entity {
      std::string_view name;
      char character;
    };
    static constexpr Entity kEntities[] = {
        {"lt", '<'}, {"gt", '>'}, {"amp", '&'}, {"quot", '"'}, {"apos", '\''}};
    for (const auto& [known, character] : kEntities) {
      if (known == name) return text += character, true;
    }
    if (!name.starts_with('#')) return false;
    const bool is_hex = name.starts_with("#x");
    name.remove_prefix(is_hex ? 2 : 1);
    std::uint32_t code = 0;
    const char* end = name.data() + name.size();
    const auto parsed = std::from_chars(name.data(), end, code, is_hex ? 16 : 10);
    return parsed.ec == std::errc() && parsed.ptr == end && append_character(text, code);
  }

  Cursor at_;
  Builder& builder_;
};

}  // namespace

bool is_xml(std::string_view text) {
  const auto begin = text.find_first_not_of(" \t\r\n");
  if (begin == text.npos) return false;
  text.remove_prefix(begin);
  return text.starts_with("<?xml") || text.starts_with("<!") || text.starts_with("<plist");
}

objc::Object read_xml(std::string_view text, Builder& builder) {
  return XmlReader(text, builder).top();
}

}  // namespace host::property_list
