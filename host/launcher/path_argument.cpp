#include "host/launcher/path_argument.h"

#include <charconv>

namespace host::launcher {
namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";
constexpr int kBase = 16;

}  // namespace

std::string path_argument(const std::filesystem::path& path) {
  std::string argument;
  for (const char sign : path.native()) {
    const auto byte = static_cast<unsigned char>(sign);
    if (byte >= ' ' && byte < 0x7F && sign != '%') {
      argument += sign;
    } else {
      argument += {'%', kDigits[byte / kBase], kDigits[byte % kBase]};
    }
  }
  return argument;
}

std::filesystem::path path_from_argument(std::string_view argument) {
  std::string path;
  for (; !argument.empty(); argument.remove_prefix(1)) {
    unsigned byte = 0;
    const char* const digits = argument.data() + 1;
    const bool is_escape = argument.size() > 2 && argument.front() == '%' &&
                           std::from_chars(digits, digits + 2, byte, kBase).ptr == digits + 2;
    path += is_escape ? static_cast<char>(byte) : argument.front();
    if (is_escape) argument.remove_prefix(2);
  }
  return path;
}

}  // namespace host::launcher
