#include "host/property_list/encoding.h"

#include <glib.h>

#include <memory>

#include "host/basics/utf8.h"

namespace host::property_list {
namespace {

struct Free {
  void operator()(char* text) const { g_free(text); }
};

std::optional<std::string> if_valid(std::string text) {
  if (!utf8::is_valid(text)) return std::nullopt;
  return text;
}

}  // namespace

std::optional<std::string> utf8_from_utf16(std::string_view bytes, bool is_big_endian) {
  if (bytes.empty()) return "";
  gsize length = 0;
  const std::unique_ptr<char, Free> text(g_convert(bytes.data(), static_cast<gssize>(bytes.size()),
                                                   "UTF-8", is_big_endian ? "UTF-16BE" : "UTF-16LE",
                                                   nullptr, &length, nullptr));
  if (!text) return std::nullopt;
  return std::string(text.get(), length);
}

std::optional<std::string> utf8_from_file(std::string_view bytes) {
  using namespace std::string_view_literals;
  if (bytes.starts_with("\xEF\xBB\xBF"sv)) return if_valid(std::string(bytes.substr(3)));
  const bool is_big_endian = bytes.starts_with("\xFE\xFF"sv);
  if (!is_big_endian && !bytes.starts_with("\xFF\xFE"sv)) return if_valid(std::string(bytes));
  auto text = utf8_from_utf16(bytes.substr(2), is_big_endian);
  return text ? if_valid(std::move(*text)) : std::nullopt;
}

bool append_character(std::string& text, std::uint32_t code) {
  const bool is_surrogate = code >= 0xD800 && code <= 0xDFFF;
  if (code == 0 || code > 0x10FFFF || is_surrogate) return false;
  utf8::append(text, code);
  return true;
}

std::optional<std::string> from_base64(std::string_view text) {
  constexpr std::string_view kDigits =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/= \t\r\n";
  if (text.find_first_not_of(kDigits) != text.npos) return std::nullopt;
  std::string bytes(text.size() / 4 * 3 + 3, '\0');
  int state = 0;
  guint kept = 0;
  bytes.resize(g_base64_decode_step(text.data(), text.size(),
                                    reinterpret_cast<guchar*>(bytes.data()), &state, &kept));
  return bytes;
}

std::string to_base64(std::string_view bytes) {
  const std::unique_ptr<char, Free> text(
      g_base64_encode(reinterpret_cast<const guchar*>(bytes.data()), bytes.size()));
  return text.get();
}

}  // namespace host::property_list
