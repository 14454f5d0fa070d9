#pragma once

#include <memory>
#include <string>

#include "host/springboard/switcher/switcher_row.h"
#include "objc/class_builder.h"
#include "platform/SpringBoard/SBApplication.h"
#include "platform/UIKit/UIWindow.h"

namespace host::springboard {

struct SBAppSwitcherController
    : objc::Bound<SBAppSwitcherController, "SBAppSwitcherController", NSObject> {};

/// The application switcher: a row of cards over the blurred wallpaper. The home screen's card is
/// first, followed by one for each application that was opened, the latest first. A tap on a card
/// opens the application; throwing the card upwards closes it.
class AppSwitcher : public objc::Implementation<AppSwitcher, SBAppSwitcherController> {
 public:
  using Implementation::Implementation;
  ~AppSwitcher();

  bool is_showing() const { return showing_; }
  void show();
  /// Returns to whatever was in front.
  void dismiss();
  void dismiss_at_once();
  SwitcherRow* row() { return row_.get(); }

  /// The row's delegate method: makes it stop with a card in the middle.
  void will_end_dragging(UIScrollView view, CGPoint velocity, CGPoint* target);

 private:
  void build();
  void add_card(SBApplication application);
  void add_home_card();
  SwitcherCard::Callbacks callbacks_for(const std::string& bundle);
  void choose(const std::string& bundle);
  void throw_away(const std::string& bundle);
  void leave_onto(const std::string& bundle);
  void fade();

  objc::Ref<UIWindow> window_;
  std::unique_ptr<SwitcherRow> row_;
  std::unique_ptr<SurfaceActions> actions_;
  bool showing_ = false;
  int shows_ = 0;
  /// Expires with this object, which an animation may outlive.
  std::shared_ptr<void> life_ = std::make_shared<char>();
};

AppSwitcher& app_switcher();

void export_app_switcher();

}  // namespace host::springboard
