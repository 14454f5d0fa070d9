#include "host/springboard/processes/running_processes.h"
#include "host/springboard/surfaces/surfaces.h"
#include "host/springboard/system/keyboard_receiver.h"
#include "host/springboard/system/system_actions.h"
#include "host/springboard/system/windows_in_the_way.h"
#include "host/uikit/shortcuts/shortcuts.h"
#include "host/uikit/text/key_input.h"
#include "host/uikit/touch/touch_input.h"
#include "platform/SpringBoard/SBIconView.h"
#include "platform/SpringBoard/SBIconViewDelegate.h"
#include "platform/SpringBoard/SBMediaController.h"

namespace host::springboard {
namespace {

SBMediaController media() {
  return SBMediaController::sharedInstance();
}

struct PlayerKey {
  std::string_view key;
  void (*act)();
};

void toggle() {
  media().togglePlayPause();
}
void next() {
  media().changeTrack(1);
}
void previous() {
  media().changeTrack(-1);
}

// Keys for the player alone, which no text field has a use for.
constexpr PlayerKey kMediaKeys[] = {
    {"media-play", &toggle},
    {"media-next", &next},
    {"media-previous", &previous},
    {"media-stop",
     [] {
       if (media().isPlaying()) toggle();
     }},
};

constexpr PlayerKey kPlayerKeys[] = {
    {"space", &toggle},
    {"control-right", &next},
    {"control-left", &previous},
    {"control-up", [] { press_volume(VolumeButton::kUp); }},
    {"control-down", [] { press_volume(VolumeButton::kDown); }},
};

template <std::size_t Count>
bool acts(const PlayerKey (&keys)[Count], std::string_view pressed) {
  for (const auto& [key, act] : keys) {
    if (key != pressed) continue;
    act();
    return true;
  }
  return false;
}

/// Whether a window covers a part of the home screen, or of the application in front.
bool is_covered() {
  for (const auto& [window, point] : windows_in_the_way()) {
    if (window.windowLevel() > UIWindowLevelNormal) return true;
  }
  return false;
}

}  // namespace

std::optional<CGRect> caret_on_screen() {
  if (const auto here = uikit::caret_on_screen()) return here;
  const auto receiver = keyboard_receiver();
  return receiver ? receiver->caret() : std::nullopt;
}

bool press_key(const std::string& name) {
  if (acts(kMediaKeys, name)) return true;
  if (uikit::caret_on_screen()) return uikit::take_key(name);
  if (caret_on_screen()) return press_key_in_application(name);
  if (acts(kPlayerKeys, name)) return true;
  if (is_covered()) {
    end_focus_in_application();
    if (name != "escape") return uikit::perform_shortcut(name);
    press_home();
    return true;
  }
  return press_key_in_application(name) || uikit::perform_shortcut(name);
}

bool hold_icon_at(CGPoint point) {
  UIView view = uikit::hit_of_pointer(point).view;
  while (view && !view.isKindOfClass(SBIconView::cls()))
    view = view.superview();
  if (!view) return false;
  const auto icon = objc::cast<SBIconView>(view);
  objc::cast<SBIconViewDelegate>(icon.delegate()).iconHandleLongPress(icon);
  return true;
}

}  // namespace host::springboard
