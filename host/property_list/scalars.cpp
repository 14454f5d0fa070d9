#include "host/property_list/scalars.h"

#include <fmt/format.h>

#include <charconv>
#include <chrono>
#include <limits>
#include <optional>

namespace host::property_list {
namespace {

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kSpaces = " \t\r\n";
  const auto begin = text.find_first_not_of(kSpaces);
  if (begin == text.npos) return {};
  return text.substr(begin, text.find_last_not_of(kSpaces) - begin + 1);
}

/// Removes a sign; returns whether it is a minus.
bool take_sign(std::string_view& text) {
  const bool is_negative = text.starts_with('-');
  if (is_negative || text.starts_with('+')) text.remove_prefix(1);
  return is_negative;
}

objc::Object not_a(const char* kind, std::string_view text, Builder& builder) {
  constexpr std::size_t kShown = 40;
  return builder.damaged(fmt::format("\"{}\" is no {}", text.substr(0, kShown), kind));
}

/// Reads as many digits as `digits` has, and moves behind them.
std::optional<int> take_digits(std::string_view& text, std::size_t digits) {
  int value = 0;
  if (text.size() < digits) return std::nullopt;
  for (const char digit : text.substr(0, digits)) {
    if (digit < '0' || digit > '9') return std::nullopt;
    value = value * 10 + (digit - '0');
  }
  text.remove_prefix(digits);
  return value;
}

bool take(std::string_view& text, char expected) {
  if (!text.starts_with(expected)) return false;
  text.remove_prefix(1);
  return true;
}

/// Reads `2001-01-01` or `00:00:09`.
struct Triple {
  int first = 0, second = 0, third = 0;
};
std::optional<Triple> take_triple(std::string_view& text, std::size_t digits, char between) {
  const auto first = take_digits(text, digits);
  if (!first || !take(text, between)) return std::nullopt;
  const auto second = take_digits(text, 2);
  if (!second || !take(text, between)) return std::nullopt;
  const auto third = take_digits(text, 2);
  if (!third) return std::nullopt;
  return Triple{*first, *second, *third};
}

/// Seconds east of Greenwich: `Z` or ` +0100`.
std::optional<int> zone(std::string_view text) {
  if (text == "Z") return 0;
  take(text, ' ');
  if (!text.starts_with('+') && !text.starts_with('-')) return std::nullopt;
  const bool is_west = take_sign(text);
  const auto hours = take_digits(text, 2);
  const auto minutes = take_digits(text, 2);
  if (!hours || !minutes || !text.empty()) return std::nullopt;
  const int seconds = (*hours * 60 + *minutes) * 60;
  return is_west ? -seconds : seconds;
}

}  // namespace

objc::Object integer_from(std::string_view text, Builder& builder) {
  std::string_view digits = trimmed(text);
  const bool is_negative = take_sign(digits);
  const bool is_hex = digits.starts_with("0x") || digits.starts_with("0X");
  if (is_hex) digits.remove_prefix(2);
  std::uint64_t value = 0;
  const char* end = digits.data() + digits.size();
  const auto parsed = std::from_chars(digits.data(), end, value, is_hex ? 16 : 10);
  constexpr auto kMost = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
  const bool fits = !is_negative || value <= kMost + 1;
  if (parsed.ec != std::errc() || parsed.ptr != end || !fits)
    return not_a("integer", text, builder);
  if (is_negative) return builder.integer(static_cast<std::int64_t>(0 - value));
  if (value > kMost) return builder.unsigned_integer(value);
  return builder.integer(static_cast<std::int64_t>(value));
}

objc::Object real_from(std::string_view text, Builder& builder) {
  std::string_view digits = trimmed(text);
  const bool is_negative = take_sign(digits);
  double value = 0;
  const char* end = digits.data() + digits.size();
  const auto parsed = std::from_chars(digits.data(), end, value);
  const bool has_two_signs = digits.starts_with('-');
  if (parsed.ec != std::errc() || parsed.ptr != end || has_two_signs)
    return not_a("number", text, builder);
  return builder.real(is_negative ? -value : value);
}

objc::Object date_from(std::string_view text, Builder& builder) {
  std::string_view rest = trimmed(text);
  const auto day = take_triple(rest, 4, '-');
  const bool is_separated = take(rest, 'T') || take(rest, ' ');
  const auto time = take_triple(rest, 2, ':');
  const auto east = zone(rest);
  if (!day || !is_separated || !time || !east) return not_a("date", text, builder);
  const std::chrono::year_month_day date{std::chrono::year(day->first),
                                         std::chrono::month(static_cast<unsigned>(day->second)),
                                         std::chrono::day(static_cast<unsigned>(day->third))};
  if (!date.ok() || time->first > 23 || time->second > 59 || time->third > 60)
    return not_a("date", text, builder);
  const std::chrono::duration<double, std::chrono::days::period> days =
      std::chrono::sys_days(date).time_since_epoch();
  return builder.date(days.count() * 86400 + time->first * 3600 + time->second * 60 + time->third -
                      *east);
}

}  // namespace host::property_list
