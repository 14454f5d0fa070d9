#include "host/springboard/system/unrest.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "host/quartzcore/layers/animated_layers.h"
#include "host/springboard/common/screen_grid.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/home/icon_controller.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/surfaces/display.h"
#include "host/springboard/surfaces/surfaces.h"
#include "host/springboard/surfaces/volume_overlay.h"
#include "host/springboard/switcher/recent_applications.h"
#include "host/springboard/system/system_actions.h"
#include "host/springboard/system/windows_in_the_way.h"
#include "host/uikit/geometry/screen_space.h"
#include "host/uikit/geometry/window_list.h"
#include "host/uikit/touch/touch_traces.h"
#include "host/uikit/view/responder.h"
#include "platform/SpringBoard/SBBannerController.h"
#include "platform/SpringBoard/SBControlCenterController.h"
#include "platform/SpringBoard/SBIconViewMap.h"
#include "platform/SpringBoard/SBReachabilityManager.h"
#include "platform/SpringBoard/SBUIController.h"

namespace host::springboard {
namespace {

constexpr CGFloat kNearness = 0.01;
constexpr std::size_t kMostOfAKind = 3;

std::string class_of(NSObject object) {
  return class_getName(objc::class_of(object.id()));
}

bool near(CGPoint one, CGPoint other) {
  return std::abs(one.x - other.x) < kNearness && std::abs(one.y - other.y) < kNearness;
}

class Reasons {
 public:
  void add(bool holds, std::string_view words) {
    if (holds) words_.emplace_back(words);
  }
  void add(std::string words) { words_.push_back(std::move(words)); }
  /// Adds the first few and the number of the others.
  void add_some(const std::vector<std::string>& words) {
    const std::size_t said = std::min(words.size(), kMostOfAKind);
    words_.insert(words_.end(), words.begin(), words.begin() + static_cast<std::ptrdiff_t>(said));
    if (said < words.size()) words_.push_back(fmt::format("{} more like it", words.size() - said));
  }
  std::vector<std::string> take() { return std::move(words_); }

 private:
  std::vector<std::string> words_;
};

void add_open_surfaces(Reasons& reasons) {
  const SBIconController icons = SBIconController::sharedInstance();
  reasons.add(!SharedPart<Display>::get().is_on(), "the display is off");
  reasons.add(is_locked(), "the phone is locked");
  if (shown_now() == Shown::Application)
    reasons.add("an application is in front: " + recent_applications().front());
  reasons.add(SBUIController::sharedInstance().isAppSwitcherShowing(), "the switcher is open");
  reasons.add(SBControlCenterController::sharedInstance().isPresented(),
              "the control centre is open");
  reasons.add(is_notification_centre_open(), "the notification centre is open");
  reasons.add(SBReachabilityManager::sharedInstance().reachabilityModeActive(),
              "the screen is brought down");
  reasons.add(SBBannerController::sharedInstance().isShowingBanner(), "a notification is shown");
  reasons.add(SharedPart<VolumeOverlay>::get().is_showing(), "the volume is shown");
  reasons.add(icons.isEditing(), "the icons are being arranged");
  reasons.add(icons.hasOpenFolder(), "a folder is open");
  if (const UIResponder typing = uikit::first_responder())
    reasons.add(class_of(typing) + " takes text");
}

/// Reports icons that are not where their list places them.
void find_icons_out_of_place(SBIconListView list, std::vector<std::string>& found) {
  NSUInteger index = 0;
  for (const SBIcon icon : list.icons().of<SBIcon>()) {
    const SBIconView view = SBIconViewMap::homescreenMap().mappedIconViewForIcon(icon);
    const CGPoint origin = list.originForIconAtIndex(index++);
    const bool is_there = view.superview() == list && !view.isHidden() && view.alpha() == 1;
    if (!is_there || !near(CGRect(view.frame()).origin, origin))
      found.push_back(to_string(icon.nodeIdentifier()) + " is not in its slot");
  }
}

/// Reports icons whose centre does not receive touches.
void find_icons_out_of_reach(SBIconListView list, std::vector<std::string>& found) {
  for (const SBIcon icon : list.icons().of<SBIcon>()) {
    const SBIconView view = SBIconViewMap::homescreenMap().mappedIconViewForIcon(icon);
    const auto centre = uikit::centre_on_screen(view);
    const uikit::Hit hit = centre ? uikit::find_hit(*centre, nil) : uikit::Hit();
    if (!hit.view || !hit.view.isDescendantOfView(view)) {
      found.push_back(fmt::format("a finger on {} is on {}", to_string(icon.nodeIdentifier()),
                                  hit.view ? class_of(hit.view) : "nothing"));
    }
  }
}

void add_icons(Reasons& reasons) {
  const HomeScreen& home = icon_controller().home();
  std::vector<std::string> out_of_place;
  for (std::size_t page = 0; page < home.page_count(); ++page)
    find_icons_out_of_place(home.page_list(page), out_of_place);
  find_icons_out_of_place(home.dock_list(), out_of_place);
  std::vector<std::string> out_of_reach;
  find_icons_out_of_reach(home.page_list(home.current_page()), out_of_reach);
  find_icons_out_of_reach(home.dock_list(), out_of_reach);
  reasons.add_some(out_of_place);
  reasons.add_some(out_of_reach);
}

void add_windows_in_the_way(Reasons& reasons) {
  for (const auto& [window, point] : windows_in_the_way())
    reasons.add(fmt::format("{} of level {} takes touches at {{{}, {}}}", class_of(window),
                            window.windowLevel(), point.x, point.y));
}

/// Names the layer's view, or the layer itself when it has none.
std::string moving(CALayer layer) {
  const auto delegate = objc::cast<NSObject>(layer.delegate());
  return class_of(delegate ? delegate : NSObject(layer)) + " is animated";
}

void add_animations(Reasons& reasons) {
  std::vector<std::string> animated;
  for (const CALayer layer : quartzcore::animated_layers().all())
    animated.push_back(moving(layer));
  reasons.add_some(animated);
  reasons.add(animated.empty() && RunLoop::main().wants_frames(), "frames are still requested");
}

}  // namespace

std::vector<std::string> reasons_for_unrest() {
  Reasons reasons;
  add_open_surfaces(reasons);
  add_icons(reasons);
  add_windows_in_the_way(reasons);
  reasons.add_some(uikit::touch_traces());
  add_animations(reasons);
  return reasons.take();
}

}  // namespace host::springboard
