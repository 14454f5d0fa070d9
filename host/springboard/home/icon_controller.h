#pragma once

#include <memory>
#include <string>

#include "host/springboard/home/folder_presenter.h"
#include "host/springboard/home/home_screen.h"
#include "host/springboard/home/icon_drag.h"
#include "objc/class_builder.h"
#include "platform/SpringBoard/SBIconController.h"
#include "platform/SpringBoard/SBIconViewDelegate.h"
#include "platform/UIKit/UIGestureRecognizer.h"

namespace host::springboard {

/// Owns the model and the views of the home screen's icons, and decides what a touch on an icon
/// does.
class IconController final : public objc::Implementation<IconController, SBIconController> {
 public:
  using Implementation::Implementation;
  ~IconController();

  SBIconController init();
  SBIconModel model() const { return model_.get(); }
  BOOL is_editing() const { return editing_; }
  void set_is_editing(BOOL editing);
  BOOL has_open_folder() const { return folders_->is_open(); }
  void close_folder_animated(BOOL animated);
  NSInteger current_icon_list_index() const;
  BOOL scroll_to_icon_list(NSInteger index, BOOL animated);
  void scroll_view_did_scroll(UIScrollView view);
  void folder_background_tapped(UIGestureRecognizer recognizer);
  // The delegate methods of the icon views.
  void icon_touch_began(SBIconView icon_view);
  void icon_touch_moved(SBIconView icon_view, UITouch touch);
  void icon_touch_ended(SBIconView icon_view, BOOL lifted);
  void icon_tapped(SBIconView icon_view);
  void icon_handle_long_press(SBIconView icon_view);

  HomeScreen& home() { return *home_; }
  IconModel& icon_model() { return objc::state_of<IconModel>(model_.get()); }
  /// Shows and saves an arrangement that was changed from outside; closes an open folder.
  void layout_changed();

 private:
  objc::Ref<SBIconModel> model_;
  std::unique_ptr<HomeScreen> home_;
  std::unique_ptr<FolderPresenter> folders_;
  std::unique_ptr<IconDrag> drag_;
  BOOL editing_ = NO;
};

/// The shared one's state.
inline IconController& icon_controller() {
  return objc::state_of<IconController>(SBIconController::sharedInstance());
}

void export_icon_controller();

}  // namespace host::springboard
