#pragma once

#include "platform/Foundation/NSArray.h"

namespace host::springboard {

/// The wallpapers that the phone comes with, by the names of their pictures.
NSArray wallpaper_names();

/// What was chosen, or the one that the phone begins with.
NSString chosen_wallpaper();
/// Kept in the home screen's preferences, beside whatever else is in them.
void choose_wallpaper(NSString name);

}  // namespace host::springboard
