#include "device/check/system_range.h"

#include <regex>

#include "device/macho/bytes.h"

namespace sonavue::device {
namespace {

SystemVersion bound_of(const std::string& depends, const std::string& relation) {
  const std::regex pattern("(?:^|[ ,])firmware \\(" + relation + " ([^)]*)\\)");
  std::smatch found;
  if (!std::regex_search(depends, found, pattern))
    throw FormatError("control: promises no range of systems: no `firmware (" + relation + " …)`");
  return system_version(found[1]);
}

}  // namespace

std::string SystemRange::text() const {
  return from.text() + " up to and without " + to.text();
}

SystemRange promised_range(const std::string& control) {
  static const std::regex field("(?:^|\n)Depends: ([^\n]*)");
  std::smatch found;
  const std::string depends = std::regex_search(control, found, field) ? found[1].str() : "";
  return {bound_of(depends, ">="), bound_of(depends, "<<")};
}

}  // namespace sonavue::device
