#include "tweak/look/music_application.h"

#include "platform/Foundation/NSLog.h"
#include "platform/SpringBoard/SBApplicationController.h"
#include "platform/SpringBoard/SBIcon.h"
#include "platform/SpringBoard/SBIconController.h"
#include "platform/SpringBoard/SBIconModel.h"
#include "platform/SpringBoard/SBIconViewMap.h"

namespace sonavue {
namespace {

NSString music_identifier() {
  return "com.apple.Music"_ns;
}

// Later systems moved the map to the controller.
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

bool shows_music_icon(SBIconView icon) {
  return icon.icon().application().bundleIdentifier().isEqualToString(music_identifier());
}

bool is_in_folder(SBIconView icon) {
  const UIView list = icon.superview();
  return list && NSString::stringWithUTF8String(class_getName(list.classOf()))
                     .isEqualToString("SBFolderIconListView"_ns);
}

}  // namespace sonavue
