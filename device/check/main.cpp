#include <fmt/core.h>

#include <exception>

#include "device/check/check.h"

// sonavue_check SOURCE PACKAGE says what is wrong with a package of the phone's, a line each. It
// ends with 0 when nothing is, with 1 when something is, with 2 when that could not be found out.

int main(int count, char** arguments) {
  constexpr int kCannotTell = 2;
  if (count != 3) {
    fmt::print(stderr, "Usage: sonavue_check SOURCE PACKAGE\n");
    return kCannotTell;
  }
  namespace device = sonavue::device;
  try {
    const device::PackageFile package = device::read_package(arguments[2]);
    const device::Findings findings = device::check_package(package, arguments[1]);
    for (const std::string& finding : findings)
      fmt::print("{}\n", finding);
    return findings.empty() ? 0 : 1;
  } catch (const std::exception& problem) {
    fmt::print(stderr, "{} cannot be checked: {}.\n", arguments[2], problem.what());
    return kCannotTell;
  }
}
