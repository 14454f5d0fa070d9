#include "host/console/type_encoding.h"

#include <string_view>

#include "objc/abi.h"

namespace host::console {
namespace {

struct Scalar {
  char code;
  std::size_t size;
};

// On both platforms a simple type is aligned to its size.
constexpr Scalar kScalars[] = {
    {'v', 0},
    {'c', 1},
    {'C', 1},
    {'B', sizeof(bool)},
    {'s', sizeof(short)},
    {'S', sizeof(short)},
    {'i', sizeof(int)},
    {'I', sizeof(int)},
    {'l', sizeof(long)},
    {'L', sizeof(long)},
    {'q', sizeof(long long)},
    {'Q', sizeof(long long)},
    {'f', sizeof(float)},
    {'d', sizeof(double)},
    {'@', sizeof(objc::Id)},
    {'#', sizeof(objc::Class)},
    {':', sizeof(objc::Sel)},
    {'*', sizeof(char*)},
};

// Deeper nesting could overflow the stack; no structure of the platform comes near.
constexpr int kDeepestStructure = 32;

constexpr std::size_t rounded_up(std::size_t size, std::size_t alignment) {
  return (size + alignment - 1) / alignment * alignment;
}

class Reader {
 public:
  explicit Reader(const char* encoding) : rest_(encoding ? encoding : "") {}

  bool at_end() {
    skip("0123456789+-");
    return rest_.empty();
  }

  std::optional<Type> type() {
    skip("0123456789+-rnNoORVA");
    if (rest_.empty()) return std::nullopt;
    const char code = rest_.front();
    rest_.remove_prefix(1);
    if (code == '{') {
      if (depth_ == kDeepestStructure) return std::nullopt;
      ++depth_;
      auto made = structure();
      --depth_;
      return made;
    }
    if (code == '^') return pointer();
    for (const Scalar& scalar : kScalars) {
      if (scalar.code != code) continue;
      Type made;
      made.code = code;
      made.size = scalar.size;
      made.alignment = scalar.size > 0 ? scalar.size : 1;
      if (code == '@') skip_object_detail();
      return made;
    }
    return std::nullopt;
  }

 private:
  void skip(std::string_view letters) {
    while (!rest_.empty() && letters.find(rest_.front()) != std::string_view::npos)
      rest_.remove_prefix(1);
  }

  void skip_quoted() {
    if (rest_.empty() || rest_.front() != '"') return;
    const auto end = rest_.find('"', 1);
    rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + 1);
  }

  void skip_object_detail() {
    if (!rest_.empty() && rest_.front() == '?') rest_.remove_prefix(1);
    skip_quoted();
  }

  // The pointed-to type is ignored: it may be one that is not supported.
  std::optional<Type> pointer() {
    skip("0123456789+-rnNoORVA^");
    int depth = 0;
    do {
      if (rest_.empty()) return std::nullopt;
      const char letter = rest_.front();
      rest_.remove_prefix(1);
      if (letter == '{' || letter == '(' || letter == '[') ++depth;
      if (letter == '}' || letter == ')' || letter == ']') --depth;
    } while (depth > 0);
    Type made;
    made.code = '^';
    made.size = made.alignment = sizeof(void*);
    return made;
  }

  std::optional<Type> structure() {
    const auto equals = rest_.find_first_of("=}");
    if (equals == std::string_view::npos || rest_[equals] != '=') return std::nullopt;
    Type made;
    made.code = '{';
    made.structure = rest_.substr(0, equals);
    rest_.remove_prefix(equals + 1);
    for (skip_quoted(); !rest_.empty() && rest_.front() != '}'; skip_quoted()) {
      auto member = type();
      if (!member || member->size == 0) return std::nullopt;
      member->offset = rounded_up(made.size, member->alignment);
      made.size = member->offset + member->size;
      made.alignment = std::max(made.alignment, member->alignment);
      made.members.push_back(std::move(*member));
    }
    if (rest_.empty() || made.members.empty()) return std::nullopt;
    rest_.remove_prefix(1);
    made.size = rounded_up(made.size, made.alignment);
    return made;
  }

  std::string_view rest_;
  int depth_ = 0;
};

}  // namespace

bool Type::is_integer() const {
  return std::string_view("cCBsSiIlLqQ").find(code) != std::string_view::npos;
}

std::optional<Type> parse_type(const char* encoding) {
  Reader reader(encoding);
  return reader.type();
}

std::optional<MethodTypes> parse_method_types(const char* encoding) {
  Reader reader(encoding);
  MethodTypes made;
  auto result = reader.type();
  if (!result) return std::nullopt;
  made.result = std::move(*result);
  while (!reader.at_end()) {
    auto argument = reader.type();
    if (!argument) return std::nullopt;
    made.arguments.push_back(std::move(*argument));
  }
  // The receiver and the selector come first.
  if (made.arguments.size() < 2) return std::nullopt;
  made.arguments.erase(made.arguments.begin(), made.arguments.begin() + 2);
  return made;
}

}  // namespace host::console
