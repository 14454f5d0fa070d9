#include <algorithm>
#include <cstdlib>
#include <string>

#include "fuzz/support/input_file.h"
#include "host/runtime/log.h"
#include "host/social/delivery/share_target.h"

using host::social::ShareTarget;

extern "C" int LLVMFuzzerInitialize(int*, char***) {
  spdlog::set_level(spdlog::level::off);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const host::fuzz::InputFile file(data, size);
  const std::string text(reinterpret_cast<const char*>(data), size);
  const std::string address = ShareTarget::read(file.path()).address_for(text);
  // Whatever is shared, the desktop's opener gets one word that begins with a scheme.
  const auto is_sign = [](unsigned char sign) { return sign > ' ' && sign != 0x7F; };
  const bool is_one_word = std::all_of(address.begin(), address.end(), is_sign);
  if (!is_one_word || address.find(':') == address.npos || address.starts_with('-')) std::abort();
  return 0;
}
