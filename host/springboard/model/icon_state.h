#pragma once

#include <optional>

#include "host/springboard/model/home_layout.h"
#include "platform/Foundation/NSString.h"

namespace host::springboard {

/// Where the arrangement of the icons is kept on the device.
inline constexpr const char* kIconStatePath = "/var/mobile/Library/SpringBoard/IconState.plist";

/// Reads a property list of the form {buttonBar: [icon…], iconLists: [[icon…]…]}, an icon being an
/// identifier or {displayName, iconLists: [[identifier…]]} for a folder. Nothing when there is no
/// such file; one that is malformed gives nothing either and is logged. Entries that are no icons
/// are passed over.
std::optional<HomeLayout> read_icon_state(NSString path, HomeLayout::Capacity capacity);

/// Writes it in one step, making the folder when it is missing; false, and logged, when it cannot.
bool write_icon_state(const HomeLayout& layout, NSString path);

}  // namespace host::springboard
