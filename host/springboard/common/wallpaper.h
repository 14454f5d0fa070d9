#pragma once

#include "platform/Foundation/NSArray.h"

namespace host::springboard {

/// The picture names of the wallpapers that come with the phone.
NSArray wallpaper_names();

/// The wallpaper that the user chose, or the phone's default one.
NSString chosen_wallpaper();
/// Stores the choice in the home screen's preferences; their other entries stay as they are.
void choose_wallpaper(NSString name);

}  // namespace host::springboard
