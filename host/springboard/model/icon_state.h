#pragma once

#include <optional>

#include "host/foundation/property_list_file.h"
#include "host/springboard/model/home_layout.h"

namespace host::springboard {

/// The file on the device that holds the arrangement of the icons.
inline constexpr const char* kIconStatePath = "/var/mobile/Library/SpringBoard/IconState.plist";

/// Reads a property list of the form {buttonBar: [icon…], iconLists: [[icon…]…]}, where an icon is
/// an identifier or, for a folder, {displayName, iconLists: [[identifier…]]}. Returns nothing when
/// the file is missing, unreadable or malformed; a malformed file is set aside. Skips entries that
/// are not icons.
std::optional<HomeLayout> read_icon_state(foundation::PropertyListFile& file,
                                          HomeLayout::Capacity capacity);

/// Writes the file atomically and creates its folder if necessary. Returns false, with a log line,
/// on failure. What could not be read is not replaced.
bool write_icon_state(const HomeLayout& layout, const foundation::PropertyListFile& file);

}  // namespace host::springboard
