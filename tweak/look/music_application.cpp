#include "tweak/look/music_application.h"

#include "platform/Foundation/NSLog.h"
#include "platform/SpringBoard/SBApplicationController.h"
#include "platform/SpringBoard/SBIconController.h"
#include "platform/SpringBoard/SBIconModel.h"
#include "platform/SpringBoard/SBIconViewMap.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "tweak/Sonavue2.h"

namespace sonavue {
namespace {

NSString music_identifier() {
  return "com.apple.Music"_ns;
}

// Later systems have moved it to the controller.
SBIconViewMap home_screen_map() {
  if (SBIconViewMap::hasHomescreenMap()) return SBIconViewMap::homescreenMap();
  const auto controller = SBIconController::sharedInstance();
  return controller.hasHomescreenIconViewMap() ? controller.homescreenIconViewMap()
                                               : SBIconViewMap();
}

}  // namespace

SBApplication find_music_application() {
  const SBApplication found =
      SBApplicationController::sharedInstance().applicationWithBundleIdentifier(music_identifier());
  if (!found) NSLog("<Sonavue> Error while hooking Music app!"_ns.id());
  return found;
}

SBIconView find_music_icon() {
  const SBIcon icon = SBIconController::sharedInstance().model().expectedIconForDisplayIdentifier(
      music_identifier());
  return home_screen_map().mappedIconViewForIcon(icon);
}

bool is_in_folder(SBIconView icon) {
  const UIView list = icon.superview();
  return list && NSString::stringWithUTF8String(class_getName(list.classOf()))
                     .isEqualToString("SBFolderIconListView"_ns);
}

void remove_gesture_recognizers(UIView view) {
  const NSArray recognizers = view.gestureRecognizers().copy();
  for (const auto recognizer : recognizers.of<UIGestureRecognizer>()) {
    view.removeGestureRecognizer(recognizer);
  }
  recognizers.release();
}

void attach_drag(objc::Object target) {
  const auto pan = UIPanGestureRecognizer::alloc().initWithTarget(target, "sposta:"_sel);
  remove_gesture_recognizers(musicIcon);
  musicIcon.addGestureRecognizer(pan);
  musicIcon.setUserInteractionEnabled(YES);
  pan.setCancelsTouchesInView(YES);
  pan.release();
}

}  // namespace sonavue
