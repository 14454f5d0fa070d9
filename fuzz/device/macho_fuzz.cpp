#include <cstdint>

#include "device/macho/frame_table.h"
#include "device/macho/image.h"

using namespace sonavue::device;

namespace {

/// Calls what may refuse the file.
template <class Read>
void read_part(Read read) {
  try {
    read();
  } catch (const FormatError&) {
  }
}

}  // namespace

// The first byte selects the processor.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return 0;
  read_part([&] {
    const Image image(Bytes(data + 1, data + size), data[0] % 2 ? kX86 : kArm64);
    for (const Section& section : image.sections())
      read_part([&] { image.content(section); });
    read_part([&] { image.own_name(); });
    read_part([&] { image.libraries(); });
    read_part([&] { image.symbols(); });
    read_part([&] { image.function_starts(); });
    read_part([&] { image.strings(); });
    read_part([&] { frame_descriptions(image); });
  });
  return 0;
}
