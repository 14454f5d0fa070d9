#include "host/screen/window_memory.h"

#include <fmt/format.h>

#include <charconv>
#include <cmath>
#include <filesystem>

#include "host/files/read_file.h"
#include "host/files/replace_file.h"
#include "host/runtime/log.h"
#include "host/runtime/log_line.h"

namespace host::screen {
namespace {

constexpr int kSmallestSide = 100;
constexpr int kLargestSide = 16000;
constexpr std::size_t kMostBytesOfSize = 64;

bool is_side(int side) {
  return side >= kSmallestSide && side <= kLargestSide;
}

std::optional<CGSize> size_in(const std::string& text) {
  int width = 0;
  int height = 0;
  const char* const end = text.data() + text.size();
  const auto first = std::from_chars(text.data(), end, width);
  if (first.ec != std::errc{} || first.ptr == end || *first.ptr != ' ') return std::nullopt;
  const auto second = std::from_chars(first.ptr + 1, end, height);
  if (second.ec != std::errc{} || std::string_view(second.ptr, end) != "\n") return std::nullopt;
  if (!is_side(width) || !is_side(height)) return std::nullopt;
  return CGSize{static_cast<double>(width), static_cast<double>(height)};
}

}  // namespace

std::optional<CGSize> WindowMemory::recall() {
  if (file_.empty()) return std::nullopt;
  const auto [text, error] = files::read_file(file_, kMostBytesOfSize);
  if (files::is_missing(error)) return std::nullopt;
  if (!error) kept_ = size_in(text);
  if (!kept_) {
    spdlog::warn("{} does not hold the size of a window{}; it is ignored until the window closes",
                 on_one_line(file_), error ? ": " + error.message() : "");
  }
  return kept_;
}

void WindowMemory::keep(CGSize size) {
  if (file_.empty() || size == kept_) return;
  std::error_code ignored;
  std::filesystem::create_directories(std::filesystem::path(file_).parent_path(), ignored);
  const auto replaced = files::replace_file(
      file_, fmt::format("{} {}\n", std::lround(size.width), std::lround(size.height)));
  if (!replaced.error) kept_ = size;
}

}  // namespace host::screen
