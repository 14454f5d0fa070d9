#include "host/social/delivery/addresses.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "host/social/delivery/configuration.h"
#include "host/social/delivery/desktop_handlers.h"
#include "host/social/delivery/hand_over.h"

namespace host::social {
namespace {

constexpr std::array<std::string_view, 3> kAlways{"http", "https", "mailto"};
constexpr std::string_view kTelephoneText = "sms";
constexpr const char* kLinkKind = "link";

bool is_in_scheme(unsigned char sign) {
  return std::isalnum(sign) || sign == '+' || sign == '-' || sign == '.';
}

}  // namespace

std::string scheme_of(std::string_view address) {
  const std::size_t colon = address.find(':');
  if (colon == address.npos || colon == 0) return {};
  std::string scheme(address.substr(0, colon));
  const bool is_scheme = std::isalpha(static_cast<unsigned char>(scheme[0])) &&
                         std::all_of(scheme.begin(), scheme.end(), is_in_scheme);
  if (!is_scheme) return {};
  std::transform(scheme.begin(), scheme.end(), scheme.begin(),
                 [](unsigned char sign) { return static_cast<char>(std::tolower(sign)); });
  return scheme;
}

bool can_open_address(const std::string& address) {
  const std::string scheme = scheme_of(address);
  if (scheme.empty()) return false;
  if (std::find(kAlways.begin(), kAlways.end(), scheme) != kAlways.end()) return true;
  if (configuration().desktop == Desktop::Absent) return scheme == kTelephoneText;
  return desktop_handles(scheme);
}

bool open_address(const std::string& address) {
  return can_open_address(address) && hand_over(kLinkKind, address, address) != HandedTo::Failed;
}

}  // namespace host::social
