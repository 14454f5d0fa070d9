#pragma once

#include <optional>

#include "host/springboard/model/home_layout.h"
#include "platform/Foundation/NSString.h"

namespace host::springboard {

/// The file on the device that holds the arrangement of the icons.
inline constexpr const char* kIconStatePath = "/var/mobile/Library/SpringBoard/IconState.plist";

/// Reads a property list of the form {buttonBar: [icon…], iconLists: [[icon…]…]}, where an icon is
/// an identifier or, for a folder, {displayName, iconLists: [[identifier…]]}. Returns nothing when
/// the file is missing or malformed; a malformed file is logged. Skips entries that are not icons.
std::optional<HomeLayout> read_icon_state(NSString path, HomeLayout::Capacity capacity);

/// Writes the file atomically and creates its folder if necessary. Returns false, with a log line,
/// on failure.
bool write_icon_state(const HomeLayout& layout, NSString path);

}  // namespace host::springboard
