#include <fmt/core.h>

#include <exception>

#include "device/sign/code_signature.h"

// sonavue_sign IDENTIFIER LIBRARY OUTPUT signs a library for the phone.

int main(int count, char** arguments) {
  constexpr int kWrongUse = 2;
  if (count != 4) {
    fmt::print(stderr, "Usage: sonavue_sign IDENTIFIER LIBRARY OUTPUT\n");
    return kWrongUse;
  }
  namespace device = sonavue::device;
  try {
    const device::Image library(device::read_file(arguments[2]));
    device::write_file(arguments[3], device::signed_library(library, arguments[1]));
    return 0;
  } catch (const std::exception& problem) {
    fmt::print(stderr, "{} cannot be signed: {}.\n", arguments[2], problem.what());
    return 1;
  }
}
