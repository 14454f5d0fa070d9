#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace host::console {

/// Why a line failed, and the byte offset of the cause in the line.
struct Problem {
  std::string text;
  std::size_t offset = 0;
};

/// A value, or the problem that prevented it.
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

/// Empty on success, otherwise the problem.
using Check = std::optional<Problem>;

/// Returns `text (column N)`. As in an editor, columns count characters from 1, not bytes.
std::string describe(const Problem& problem, std::string_view line);

}  // namespace host::console
