#include "tweak/drag/icon_watch.h"

#include "objc/ref.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "tweak/Sonavue2.h"
#include "tweak/look/music_application.h"
#include "tweak/preferences/preferences.h"

namespace sonavue {
namespace {

void remove_drag() {
  remove_gesture_recognizers(musicIcon);
  added = NO;
}

void add_drag(SpringBoard self) {
  attach_drag(self);
  added = YES;
}

// The known view now shows another icon, or none.
void find_icon_again(SpringBoard self) {
  remove_gesture_recognizers(musicIcon);
  if (!find_music_application()) return;
  musicIcon = find_music_icon();
  if (is_in_folder(musicIcon)) {
    added = NO;
    return;
  }
  add_drag(self);
}

void keep_attached(SpringBoard self) {
  const bool in_folder = is_in_folder(musicIcon);
  if (!added && !in_folder) {
    add_drag(self);
  } else if (added && in_folder) {
    remove_drag();
  }
  if (added && musicIcon.isEditing()) remove_drag();
}

}  // namespace

void remove_gesture_recognizers(UIView view) {
  const auto recognizers = objc::adopt(view.gestureRecognizers().copy());
  for (const auto recognizer : recognizers->of<UIGestureRecognizer>())
    view.removeGestureRecognizer(recognizer);
}

void attach_drag(SpringBoard self) {
  const auto pan = objc::adopt(UIPanGestureRecognizer::alloc().initWithTarget(self, "sposta:"_sel));
  remove_gesture_recognizers(musicIcon);
  musicIcon.addGestureRecognizer(pan);
  musicIcon.setUserInteractionEnabled(YES);
  pan->setCancelsTouchesInView(YES);
}

void attach_first_drag(SpringBoard self) {
  if (!is_in_folder(musicIcon) && !preference_is_on(preference::apex(), NO)) add_drag(self);
}

void Loping1(SpringBoard self) {
  if (!enabled) return;
  if (shows_music_icon(musicIcon)) {
    keep_attached(self);
  } else {
    find_icon_again(self);
  }
}

}  // namespace sonavue
