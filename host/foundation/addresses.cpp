#include <algorithm>
#include <optional>
#include <string_view>

#include "host/foundation/exports.h"
#include "host/runtime/class_family.h"
#include "objc/field.h"
#include "platform/Foundation/NSURL.h"

// The desktop's Foundation reads "reader://user?name=x" as having a host called "user?name=x",
// which is invalid, and returns no URL. Such an address is parsed with the empty path written out,
// but still returns the original text.

namespace host::foundation {
namespace {

objc::Imp original_init = nullptr;
objc::Imp original_text = nullptr;
objc::Imp original_url_path = nullptr;

constexpr bool is_ascii(char unit) {
  return static_cast<unsigned char>(unit) < 0x80;
}

/// Returns the end of the host in "scheme://host?…" or "scheme://host#…"; nothing when there is a
/// path.
std::optional<NSUInteger> end_of_host_without_path(NSString text) {
  constexpr std::string_view kBeforeHost = "://";
  const std::string_view address = text ? text.UTF8String() : "";
  const auto before_host = address.find(kBeforeHost);
  if (before_host == address.npos || before_host != address.find_first_of(":/?#"))
    return std::nullopt;
  const auto end = address.find_first_of("/?#", before_host + kBeforeHost.size());
  if (end == address.npos || address[end] == '/') return std::nullopt;
  // Valid addresses are ASCII; in any other text, bytes and characters have different indexes.
  const bool is_plain = std::all_of(address.begin(), address.end(), is_ascii);
  return is_plain ? std::optional<NSUInteger>(end) : std::nullopt;
}

bool lacks_path(NSURL self) {
  return end_of_host_without_path(self.relativeString()).has_value();
}

NSURL read(NSURL self, NSString text, NSURL base) {
  using Function = NSURL (*)(NSURL, objc::Sel, NSString, NSURL);
  const auto read_text = reinterpret_cast<Function>(original_init);
  return read_text(self, "initWithString:relativeToURL:"_sel, text, base);
}

NSURL init(NSURL self, NSString text, NSURL base) {
  const auto end = end_of_host_without_path(text);
  if (!end) return read(self, text, base);
  const NSString whole =
      text.substringToIndex(*end).stringByAppendingString("/"_ns).stringByAppendingString(
          text.substringFromIndex(*end));
  const NSURL made = read(self, whole, base);
  if (auto* given = objc::field<NSString>(made, "_urlString")) {
    given->release();
    *given = objc::send<NSString>(text, "copy"_sel);
  }
  return made;
}

using TextOf = NSString (*)(NSURL, objc::Sel);

NSString absolute_string(NSURL self) {
  if (lacks_path(self)) return self.relativeString();
  return reinterpret_cast<TextOf>(original_text)(self, "absoluteString"_sel);
}

NSString path(NSURL self) {
  if (lacks_path(self)) return ""_ns;
  return reinterpret_cast<TextOf>(original_url_path)(self, "path"_sel);
}

}  // namespace

void export_addresses() {
  if (original_init) return;
  const objc::Class cls = objc_getClass("NSURL");
  original_init = replace_in_family<&init>(cls, "initWithString:relativeToURL:");
  original_text = replace_in_family<&absolute_string>(cls, "absoluteString");
  original_url_path = replace_in_family<&path>(cls, "path");
}

}  // namespace host::foundation
