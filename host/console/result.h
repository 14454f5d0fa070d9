#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace host::console {

/// Why a line was not carried out, and the byte of the line where the reason stands.
struct Problem {
  std::string text;
  std::size_t offset = 0;
};

/// A value, or the problem that stood in its way.
template <class T>
class Result {
 public:
  Result(T value) : content_(std::in_place_index<0>, std::move(value)) {}
  Result(Problem problem) : content_(std::in_place_index<1>, std::move(problem)) {}

  explicit operator bool() const { return content_.index() == 0; }
  T& operator*() { return std::get<0>(content_); }
  const T& operator*() const { return std::get<0>(content_); }
  T* operator->() { return &std::get<0>(content_); }
  const T* operator->() const { return &std::get<0>(content_); }
  const Problem& problem() const { return std::get<1>(content_); }

 private:
  std::variant<T, Problem> content_;
};

/// Nothing when all went well, otherwise the problem.
using Check = std::optional<Problem>;

/// `text (column N)`. Columns are counted from 1 in characters, not bytes, as an editor does.
std::string describe(const Problem& problem, std::string_view line);

}  // namespace host::console
