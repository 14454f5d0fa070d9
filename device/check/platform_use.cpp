#include "device/check/platform_use.h"

#include <cctype>
#include <regex>

namespace sonavue::device {
namespace {

/// Whether `c` can be part of a name. The byte before a string may be unrelated binary data; only a
/// name character means that the string is the end of a longer one.
bool is_of_name(char c) {
  return std::isalnum(static_cast<unsigned char>(c)) || c == '_' || c == '/' || c == '.' ||
         c == '-' || c == ' ';
}

class Reader {
 public:
  explicit Reader(const Image& library) : library_(library) {}

  PlatformUse read() {
    use_.classes = texts_of("__ZN4objc12cached_class");
    use_.classes.merge(texts_of("__ZN4objc9own_class"));
    use_.selectors = texts_of("__ZN4objc15cached_selector");
    for (const char* cache : {"__ZN4objc14cached_message", "__ZN4objc16replaced_message"})
      for (const std::string& text : texts_of(cache))
        use_.messages.insert(message_in(text));
    use_.asked = texts_of("__ZN4objc13asked_message");
    add_selectors_among_texts();
    add_texts();
    for (const std::string& each : library_.libraries())
      use_.linked.insert(each);
    return use_;
  }

 private:
  std::set<std::string> texts_of(const std::string& cache) {
    const auto texts = texts_of_symbols(library_, cache);
    if (texts.empty()) use_.silent.push_back(cache);
    return texts;
  }

  void add_selectors_among_texts() {
    static const std::regex selector("(?:[A-Za-z_][A-Za-z0-9_]*:)+");
    for (const std::string& text : library_.strings())
      if (std::regex_match(text, selector)) use_.selectors.insert(text);
  }

  /// Also reads the constants next to the code: template arguments are there and not among the C
  /// strings.
  void add_texts() {
    for (const Section& each : library_.sections()) {
      if (each.segment != "__TEXT" || (each.name != "__cstring" && each.name != "__const"))
        continue;
      const std::uint8_t* bytes = bytes_at(library_.bytes(), each.offset, each.size);
      use_.texts.append(bytes, bytes + each.size);
    }
  }

  const Image& library_;
  PlatformUse use_;
};

}  // namespace

bool PlatformUse::has_text(const std::string& text) const {
  const std::string ended = text + '\0';
  for (std::size_t at = texts.find(ended); at != std::string::npos; at = texts.find(ended, at + 1))
    if (at == 0 || !is_of_name(texts[at - 1])) return true;
  return false;
}

PlatformUse platform_use(const Image& library) {
  return Reader(library).read();
}

}  // namespace sonavue::device
