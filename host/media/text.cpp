#include "host/media/text.h"

#include <glib.h>

#include <algorithm>
#include <charconv>
#include <memory>
#include <span>

namespace host::media {
namespace {

using GText = std::unique_ptr<char, decltype(&g_free)>;

constexpr int largest_track_number = 9999;

bool is_control(unsigned char byte) {
  return byte < 0x20 || byte == 0x7f;
}

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::string repaired_text(std::string_view text) {
  // Cut before repairing, to avoid walking a megabyte of garbage. A replaced byte becomes three,
  // hence the second cut below.
  text = text.substr(0, longest_text_bytes * 2);
  const GText valid{g_utf8_make_valid(text.data(), static_cast<gssize>(text.size())), &g_free};
  std::string result{valid.get()};
  for (char& byte : result) {
    if (is_control(static_cast<unsigned char>(byte))) byte = ' ';
  }
  if (result.size() > longest_text_bytes) {
    const char* end = g_utf8_find_prev_char(result.data(), result.data() + longest_text_bytes + 1);
    result.resize(static_cast<std::size_t>(end - result.data()));
  }
  return std::string{trimmed(result)};
}

void append_folded(std::string& key, std::string_view text) {
  // Nearly every title is plain ASCII, which needs no tables.
  if (std::ranges::all_of(text,
                          [](char letter) { return static_cast<signed char>(letter) >= 0; })) {
    const std::size_t start = key.size();
    key += text;
    for (char& letter : std::span{key}.subspan(start)) {
      if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + ('a' - 'A'));
    }
    return;
  }
  const GText folded{g_utf8_casefold(text.data(), static_cast<gssize>(text.size())), &g_free};
  key += folded.get();
}

std::string folded_text(std::string_view text) {
  std::string key;
  append_folded(key, text);
  return key;
}

int number_in(std::string_view text) {
  text = trimmed(text);
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc{} || number < 0 || number > largest_track_number) return 0;
  return number;
}

}  // namespace host::media
