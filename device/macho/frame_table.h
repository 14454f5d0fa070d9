#pragma once

#include "device/macho/image.h"

namespace sonavue::device {

/// An entry of `__eh_frame`: how to find the caller from within one piece of code.
struct FrameDescription {
  std::size_t offset;         // of the description in the section
  std::size_t address_place;  // in the section, of the code's address, which is relative to it
  std::uint64_t address;
  std::uint64_t size;
};

/// All descriptions, in the section's order; empty if there is no such section. Throws FormatError
/// if the table is damaged or has entries that code without exception handlers does not have.
std::vector<FrameDescription> frame_descriptions(const Image& image);

/// The table's section; null if the image has none.
const Section* frame_table(const Image& image);

}  // namespace sonavue::device
