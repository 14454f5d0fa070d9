#pragma once

#include "device/macho/image.h"

namespace sonavue::device {

/// What `__eh_frame` says of one piece of code: how its callers are found from within it.
struct FrameDescription {
  std::size_t offset;         // of the description in the section
  std::size_t address_place;  // in the section: where the code's address stands, counted from there
  std::uint64_t address;
  std::uint64_t size;
};

/// All of them, in the section's order; none where there is no such section. Throws FormatError for
/// a table that is damaged or of a kind that code without handlers of its own does not have.
std::vector<FrameDescription> frame_descriptions(const Image& image);

/// Where the table lies; null where the image has none.
const Section* frame_table(const Image& image);

}  // namespace sonavue::device
