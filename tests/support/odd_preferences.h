#pragma once

#include <string>
#include <vector>

namespace host::test {

/// Returns the entries of damaged preferences: for each type that a property list supports, one
/// string with a value of that type for every key.
inline std::vector<std::string> odd_preferences() {
  const char* const keys[] = {"enable",  "apex",      "cover",  "square", "legibility",
                              "cloud",   "blur",      "play",   "tint",   "font_tint",
                              "checked", "firstBoot", "(null)", "another"};
  const char* const values[] = {"<array><string>dark</string></array>",
                                "<dict><key>blur</key><true/></dict>",
                                "<data>AAEC</data>",
                                "<date>2015-01-01T00:00:00Z</date>",
                                "<integer>-9223372036854775808</integer>",
                                "<real>nan</real>",
                                "<string/>",
                                "<string>YES</string>",
                                "<false/>"};
  std::vector<std::string> all;
  for (const char* value : values) {
    std::string& entries = all.emplace_back();
    for (const std::string key : keys)
      entries += "<key>" + key + "</key>" + value;
  }
  return all;
}

}  // namespace host::test
