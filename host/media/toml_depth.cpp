#include "host/media/toml_depth.h"

#include <algorithm>
#include <cstddef>

namespace host::media {
namespace {

constexpr int most_brackets = 16;
constexpr int most_key_parts = 16;

// Walks over a text and counts what is open, skipping strings and comments.
class Depth {
 public:
  explicit Depth(std::string_view text) : rest_(text) {}

  bool is_too_deep() {
    while (!rest_.empty()) {
      take();
      if (brackets_ > most_brackets || key_parts_ > most_key_parts) return true;
    }
    return false;
  }

 private:
  void take() {
    const char letter = rest_.front();
    if (letter == '"' || letter == '\'') return skip_string(letter);
    if (letter == '#') return skip_comment();
    rest_.remove_prefix(1);
    if (letter == '.') ++key_parts_;
    if (letter == '[' || letter == '{') ++brackets_;
    if (letter == ']' || letter == '}') --brackets_;
    if (std::string_view{"\n=,[]{}"}.find(letter) != std::string_view::npos) key_parts_ = 1;
  }

  void skip(std::size_t count) { rest_.remove_prefix(std::min(count, rest_.size())); }

  void skip_comment() { skip(rest_.find('\n')); }

  std::size_t quotes(char quote) const {
    return std::min(rest_.find_first_not_of(quote), rest_.size());
  }

  void skip_string(char quote) {
    const std::size_t opening = quotes(quote);
    if (opening == 2) return skip(2);
    const bool spans_lines = opening >= 3;
    skip(spans_lines ? 3 : 1);
    while (!rest_.empty()) {
      const char letter = rest_.front();
      if (letter == '\n' && !spans_lines) return;
      if (letter == quote && !spans_lines) return skip(1);
      // Up to two quotes before the closing ones belong to the text.
      if (letter == quote && quotes(quote) >= 3)
        return skip(std::min<std::size_t>(quotes(quote), 5));
      skip(letter == '\\' && quote == '"' ? 2 : 1);
    }
  }

  std::string_view rest_;
  int brackets_ = 0;
  int key_parts_ = 1;
};

}  // namespace

bool is_toml_nested_too_deeply(std::string_view text) {
  return Depth{text}.is_too_deep();
}

}  // namespace host::media
