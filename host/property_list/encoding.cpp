#include "host/property_list/encoding.h"

#include <glib.h>

#include <memory>

namespace host::property_list {
namespace {

struct Free {
  void operator()(char* text) const { g_free(text); }
};

std::optional<std::string> if_valid(std::string text) {
  if (!g_utf8_validate(text.data(), static_cast<gssize>(text.size()), nullptr)) return std::nullopt;
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

std::string utf8_from_units(std::u16string_view units) {
  constexpr std::uint32_t kReplacement = 0xFFFD;
  std::string text;
  for (std::size_t i = 0; i < units.size(); ++i) {
    std::uint32_t code = units[i];
    const bool has_low = i + 1 < units.size() && (units[i + 1] & 0xFC00) == 0xDC00;
    if ((code & 0xFC00) == 0xD800 && has_low)
      code = 0x10000 + ((code & 0x3FF) << 10) + (units[++i] & 0x3FFU);
    if (code != 0 && !append_character(text, code)) append_character(text, kReplacement);
  }
  return text;
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
  if (code == 0 || !g_unichar_validate(code)) return false;
  char bytes[6];
  text.append(bytes, static_cast<std::size_t>(g_unichar_to_utf8(code, bytes)));
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
