#include "device/check/control_fields.h"

#include <fmt/core.h>

#include <map>
#include <set>
#include <sstream>

namespace sonavue::device {
namespace {

using Fields = std::map<std::string, std::string>;

/// A line that starts with a space continues the previous field.
Fields fields_of(const std::string& control) {
  Fields fields;
  std::string name;
  std::istringstream lines(control);
  for (std::string line; std::getline(lines, line);) {
    if (line.rfind(' ', 0) == 0) {
      fields[name] += "\n" + line;
      continue;
    }
    const std::size_t colon = line.find(':');
    name = line.substr(0, colon);
    const std::size_t value =
        colon == std::string::npos ? colon : line.find_first_not_of(' ', colon + 1);
    fields[name] = value == std::string::npos ? "" : line.substr(value);
  }
  return fields;
}

/// Whether both a web server and a package list accept the text as an address without escaping.
bool is_address(const std::string& text) {
  constexpr const char* kDigitsAndLetters =
      "0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
  const std::string allowed = std::string(kDigitsAndLetters) + ".:/_~%+,@=-";
  for (const char* scheme : {"http://", "https://"}) {
    if (text.rfind(scheme, 0) != 0) continue;
    const std::string rest = text.substr(std::string(scheme).size());
    return rest.find_first_of(kDigitsAndLetters) == 0 &&
           rest.find_first_not_of(allowed) == std::string::npos;
  }
  return false;
}

}  // namespace

void check_control_fields(const std::string& control, Findings& findings) {
  const std::set<std::string> known = {
      "Package", "Name",     "Version", "Architecture", "Maintainer",     "Author",
      "Section", "Priority", "Depends", "Description",  "Installed-Size",
  };
  const std::set<std::string> addresses = {"Depiction", "Homepage", "Icon"};
  const Fields fields = fields_of(control);
  std::size_t given = 0;
  for (const auto& [name, value] : fields) {
    if (addresses.count(name) != 0) {
      ++given;
      if (!is_address(value))
        findings.push_back(fmt::format("control: {} is not a valid address: `{}`", name, value));
    } else if (known.count(name) == 0) {
      findings.push_back(fmt::format("control: unexpected field `{}`", name));
    }
  }
  if (given != 0 && given != addresses.size())
    findings.push_back("control: has only some of Depiction, Homepage and Icon");
}

}  // namespace sonavue::device
