#include <fmt/core.h>

#include <exception>

#include "device/check/check.h"

// sonavue_check SOURCE PACKAGE prints what is wrong with a package for the phone, one line each.
// The exit status is 0 if nothing is wrong, 1 if something is, and 2 if the check itself failed.

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
