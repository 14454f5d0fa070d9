#include "tweak/drag/icon_watch.h"

#include "platform/SpringBoard/SBIcon.h"
#include "tweak/Sonavue2.h"
#include "tweak/look/music_application.h"

namespace sonavue {
namespace {

bool is_music(SBIconView icon) {
  return icon.icon().application().bundleIdentifier().isEqualToString("com.apple.Music"_ns);
}

void detach() {
  remove_gesture_recognizers(musicIcon);
  added = NO;
}

// The view that we knew shows another icon now, or none.
void find_icon_again(SpringBoard self) {
  remove_gesture_recognizers(musicIcon);
  if (!find_music_application()) return;
  musicIcon = find_music_icon();
  if (is_in_folder(musicIcon)) {
    added = NO;
    return;
  }
  attach_drag(self);
  added = YES;
}

void keep_attached(SpringBoard self) {
  const bool in_folder = is_in_folder(musicIcon);
  if (!added && !in_folder) {
    attach_drag(self);
    added = YES;
  } else if (added && in_folder) {
    detach();
  }
  if (added && musicIcon.isEditing()) detach();
}

}  // namespace

void Loping1(SpringBoard self) {
  if (!enabled) return;
  if (is_music(musicIcon)) {
    keep_attached(self);
  } else {
    find_icon_again(self);
  }
}

}  // namespace sonavue
