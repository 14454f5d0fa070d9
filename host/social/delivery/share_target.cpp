#include "host/social/delivery/share_target.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <optional>

#include "host/basics/descriptor.h"
#include "host/basics/percent.h"
#include "host/runtime/log.h"
#include "host/social/delivery/configuration.h"
#include "host/social/delivery/mail_lines.h"

namespace host::social {
namespace {

constexpr std::string_view kPlace = "{text}";
constexpr std::string_view kMail = "mailto:";
constexpr std::string_view kBlank = " \t\r\n";
constexpr const char* kShareKind = "share";
// In bytes.
constexpr std::size_t kLongestLine = 2048;

bool is_scheme_sign(unsigned char sign) {
  return (sign >= 'a' && sign <= 'z') || (sign >= 'A' && sign <= 'Z') ||
         (sign >= '0' && sign <= '9') || sign == '+' || sign == '-' || sign == '.';
}

bool is_letter(unsigned char sign) {
  return (sign >= 'a' && sign <= 'z') || (sign >= 'A' && sign <= 'Z');
}

/// An address must begin with a scheme: it cannot be mistaken for an option or a file then.
bool is_address_with_place(std::string_view line) {
  const std::size_t colon = line.find(':');
  if (colon == line.npos || colon == 0 || !is_letter(static_cast<unsigned char>(line[0])))
    return false;
  const std::string_view scheme = line.substr(0, colon);
  return std::all_of(scheme.begin(), scheme.end(), is_scheme_sign) &&
         line.find(kPlace) != line.npos &&
         std::none_of(line.begin(), line.end(),
                      [](unsigned char sign) { return sign <= ' ' || sign == 0x7F; });
}

std::string_view trimmed(std::string_view line) {
  const std::size_t begin = line.find_first_not_of(kBlank);
  if (begin == line.npos) return {};
  return line.substr(begin, line.find_last_not_of(kBlank) - begin + 1);
}

/// Returns nothing for a missing or empty file. Of what is no regular file, nothing is read: it may
/// never end.
std::optional<std::string> first_line(const std::filesystem::path& path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!file || fstat(file.get(), &status) != 0) return std::nullopt;
  if (!S_ISREG(status.st_mode)) return "";
  std::string line(kLongestLine + 1, '\0');
  const ssize_t length = ::read(file.get(), line.data(), line.size());
  if (length <= 0) return std::nullopt;
  line.resize(static_cast<std::size_t>(length));
  return line.substr(0, line.find('\n'));
}

}  // namespace

ShareTarget ShareTarget::read(const std::filesystem::path& file) {
  ShareTarget target;
  const auto line = first_line(file);
  if (!line) return target;
  const std::string_view address = trimmed(*line);
  if (line->size() <= kLongestLine && is_address_with_place(address)) {
    target.address_ = address;
  } else {
    spdlog::warn("{}: the first line is not an address with {}: sharing by mail", file.string(),
                 kPlace);
  }
  return target;
}

std::string ShareTarget::address_for(std::string_view text) const {
  const bool is_mail = address_.starts_with(kMail);
  const std::string encoded = percent_encoded(is_mail ? with_mail_line_ends(text) : text);
  std::string address = address_;
  for (std::size_t at = address.find(kPlace); at != address.npos;
       at = address.find(kPlace, at + encoded.size())) {
    address.replace(at, kPlace.size(), encoded);
  }
  return address;
}

HandedTo hand_over_share(std::string_view text) {
  const bool has_desktop = configuration().desktop == Desktop::Present;
  const ShareTarget target =
      has_desktop ? ShareTarget::read(configuration().share_target) : ShareTarget();
  return hand_over(kShareKind, target.address_for(text), text);
}

}  // namespace host::social
