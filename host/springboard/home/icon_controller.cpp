#include "host/springboard/home/icon_controller.h"

#include <algorithm>

#include "host/springboard/common/shared_instance.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/view/icon_view.h"
#include "host/springboard/view/icon_view_map.h"
#include "platform/SpringBoard/SBUIController.h"

namespace host::springboard {
namespace {

constexpr double kRearranging = 0.3;

}  // namespace

SBIconController IconController::init() {
  const auto made = super<SBIconController>("init"_sel);
  if (!made) return made;
  model_ = objc::Ref<SBIconModel>::adopt(SBIconModel::alloc().init());
  home_ = std::make_unique<HomeScreen>(icon_model(), self);
  folders_ = std::make_unique<FolderPresenter>(*home_, self);
  drag_ = std::make_unique<IconDrag>(*home_, icon_model(), *folders_);
  return made;
}

IconController::~IconController() {
  if (home_) view_map().forget_delegate();
}

void IconController::set_is_editing(BOOL editing) {
  if (editing_ == editing) return;
  editing_ = editing;
  if (!editing) drag_->end();
  view_map().for_each([&](SBIconView view) { view.setIsEditing(editing); });
}

void IconController::close_folder_animated(BOOL animated) {
  folders_->close(animated ? Motion::kAnimated : Motion::kAtOnce);
}

NSInteger IconController::current_icon_list_index() const {
  return static_cast<NSInteger>(home_->current_page());
}

BOOL IconController::scroll_to_icon_list(NSInteger index, BOOL animated) {
  const std::size_t before = home_->current_page();
  const auto wanted = static_cast<std::size_t>(std::max<NSInteger>(index, 0));
  const std::size_t page = std::min(wanted, icon_model().layout().pages().size() - 1);
  home_->scroll_to_page(page, animated);
  return page == before ? NO : YES;
}

void IconController::scroll_view_did_scroll(UIScrollView) {
  // The scroll view reports for the first time while the home screen is still being built.
  if (home_) home_->pages_scrolled();
}

void IconController::folder_background_tapped(UIGestureRecognizer) {
  self.closeFolderAnimated(YES);
}

void IconController::layout_changed() {
  drag_->end();
  self.closeFolderAnimated(NO);
  icon_model().layout().remove_empty_pages();
  home_->sync(kRearranging);
  icon_model().save();
}

void IconController::icon_touch_began(SBIconView icon_view) {
  // Another finger may already be dragging another icon.
  if (icon_view.isEditing() && !drag_->is_active())
    drag_->begin(icon_view, objc::state_of<IconView>(icon_view).touch_point());
}

void IconController::icon_touch_moved(SBIconView icon_view, UITouch touch) {
  if (drag_->carries(icon_view)) drag_->move(touch.locationInView(nil));
}

void IconController::icon_touch_ended(SBIconView icon_view, BOOL) {
  if (drag_->carries(icon_view)) drag_->end();
}

void IconController::icon_tapped(SBIconView icon_view) {
  const SBIcon icon = icon_view.icon();
  if (icon.isFolderIcon()) {
    folders_->open(to_string(icon.nodeIdentifier()), icon.displayName(), icon_view);
  } else if (!editing_) {
    SBUIController::sharedInstance().activateApplicationAnimated(icon.application());
  }
}

void IconController::icon_handle_long_press(SBIconView icon_view) {
  if (editing_) return;
  self.setIsEditing(YES);
  icon_touch_began(icon_view);
}

void export_icon_controller() {
  objc::ClassBuilder("SBIconController", "NSObject")
      .state<IconController>()
      .class_method<&shared_instance<SBIconController>>("sharedInstance")
      .method<&IconController::init>("init")
      .method<&IconController::model>("model")
      .method<&IconController::is_editing>("isEditing")
      .method<&IconController::set_is_editing>("setIsEditing:")
      .method<&IconController::has_open_folder>("hasOpenFolder")
      .method<&IconController::close_folder_animated>("closeFolderAnimated:")
      .method<&IconController::current_icon_list_index>("currentIconListIndex")
      .method<&IconController::scroll_to_icon_list>("scrollToIconListAtIndex:animate:")
      .method<&IconController::icon_touch_began>("iconTouchBegan:")
      .method<&IconController::icon_touch_moved>("icon:touchMoved:")
      .method<&IconController::icon_touch_ended>("icon:touchEnded:")
      .method<&IconController::icon_tapped>("iconTapped:")
      .method<&IconController::icon_handle_long_press>("iconHandleLongPress:")
      .method<&IconController::scroll_view_did_scroll>("scrollViewDidScroll:")
      .method<&IconController::folder_background_tapped>("folderBackgroundTapped:")
      .finish();
}

}  // namespace host::springboard
