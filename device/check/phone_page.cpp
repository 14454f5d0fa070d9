#include "device/check/phone_page.h"

#include <fmt/core.h>

#include "device/check/layout.h"
#include "device/macho/bytes.h"

namespace sonavue::device {

void check_phone_page(const std::filesystem::path& source, const SystemRange& range,
                      Findings& findings) {
  const Bytes bytes = read_file(source / "docs/phone.md");
  const std::string text(bytes.begin(), bytes.end());
  for (const std::string& row : {fmt::format("\n| phones | {}", kProcessors),
                                 fmt::format("\n| systems | {} |", range.text())})
    if (text.find(row) == std::string::npos)
      findings.push_back(fmt::format("docs/phone.md: its table has no row `{}`", row.substr(1)));
}

}  // namespace sonavue::device
