#include "host/springboard/home/icon_drag.h"

#include <algorithm>
#include <cmath>

#include "host/springboard/common/make_view.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/view/icon_view.h"
#include "platform/CoreGraphics/CGAffineTransform.h"
#include "platform/SpringBoard/SBIconController.h"
#include "platform/SpringBoard/SBIconViewMap.h"

namespace host::springboard {
namespace {

constexpr double kLifting = 0.15;
constexpr double kMakingRoom = 0.3;
constexpr double kSettling = 0.25;
constexpr CGFloat kLiftedScale = 1.15;
constexpr CGFloat kLiftedAlpha = 0.8;
constexpr CGFloat kRaisedScale = 1.12;

constexpr double kRestToMove = 0.25;
constexpr double kRestToDrop = 0.4;
constexpr double kRestToTurn = 0.7;
constexpr double kRestToLeave = 0.5;

// A share of the icon's side: an icon held closer than this to another's centre is dropped on it.
constexpr CGFloat kDropReach = 0.3;
constexpr CGFloat kTurningEdge = 18;

}  // namespace

IconDrag::IconDrag(HomeScreen& home, IconModel& model, FolderPresenter& folders)
    : home_(home), model_(model), folders_(folders) {}

IconDrag::~IconDrag() {
  stop_waiting();
}

void IconDrag::begin(SBIconView icon_view, CGPoint point) {
  if (is_active()) end();
  icon_view_.reset(icon_view);
  id_ = to_string(icon_view.icon().nodeIdentifier());
  finger_ = point;
  aim_ = {};
  auto& state = objc::state_of<IconView>(icon_view);
  const CGRect frame = icon_view.convertRectToView(state.image_frame(), home_.window());
  grip_ = {frame.centre().x - point.x, frame.centre().y - point.y};

  auto carried = make_view<UIImageView>(frame);
  carried->setImage(icon_view.icon().generateIconImage(SBIconImageFormatHomeScreen));
  carried->setUserInteractionEnabled(NO);
  home_.window().addSubview(*carried);
  carried_.reset(*carried);
  state.set_lifted(true);
  home_.set_paging_enabled(NO);
  const UIView lifted = *carried_;
  UIView::animateWithDuration(
      kLifting, objc::block([=] {
        lifted.setTransform(CGAffineTransformMakeScale(kLiftedScale, kLiftedScale));
        lifted.setAlpha(kLiftedAlpha);
      }));
}

void IconDrag::move(CGPoint point) {
  if (!is_active()) return;
  finger_ = point;
  const CGPoint centre{point.x + grip_.width, point.y + grip_.height};
  carried_->setCenter(centre);
  take_aim(aim_at(point, centre));
}

IconDrag::Aim IconDrag::aim_at(CGPoint finger, CGPoint centre) const {
  if (folders_.is_open()) return aim_in_folder(centre);
  if (finger.x <= kTurningEdge && home_.current_page() > 0) return {Intent::kTurnBack, {}, {}};
  if (finger.x >= home_.grid().screen.width - kTurningEdge) return {Intent::kTurnForward, {}, {}};
  return home_.grid().dock_frame().contains(centre) ? aim_in_dock(centre) : aim_on_page(centre);
}

IconDrag::Aim IconDrag::aim_in_folder(CGPoint centre) const {
  const CGRect panel = folders_.metrics().panel;
  if (!panel.contains(centre)) return {Intent::kLeaveFolder, {}, {}};
  const CGPoint point{centre.x - panel.min_x(), centre.y - panel.min_y()};
  return move_to({Area::kFolder, 0, folders_.folder(), folders_.metrics().index_at(point)});
}

IconDrag::Aim IconDrag::aim_in_dock(CGPoint centre) const {
  const HomeLayout::List& dock = model_.layout().dock();
  const CGRect frame = home_.grid().dock_frame();
  const CGPoint point{centre.x, centre.y - frame.min_y()};
  const std::size_t under = home_.grid().dock_index_at(point, dock.size());
  if (under < dock.size()) {
    CGPoint origin = home_.grid().dock_origin(under, dock.size());
    const CGFloat half = home_.grid().icon_side / 2;
    const CGPoint slot_centre{origin.x + half, origin.y + half};
    if (may_drop_on(dock[under], slot_centre, point))
      return {Intent::kDrop, {Area::kDock, 0, {}, under}, dock[under].id};
  }
  const auto from = model_.layout().find(id_);
  const bool stands_here = from && from->area == Area::kDock;
  if (!stands_here && dock.size() >= model_.layout().capacity().dock) return {};
  const std::size_t count = dock.size() + (stands_here ? 0 : 1);
  return move_to({Area::kDock, 0, {}, home_.grid().dock_index_at(point, count)});
}

IconDrag::Aim IconDrag::aim_on_page(CGPoint centre) const {
  const std::size_t page = std::min(home_.current_page(), model_.layout().pages().size() - 1);
  const HomeLayout::List& list = model_.layout().pages()[page];
  const CGPoint point{centre.x, centre.y - kStatusBarHeight};
  const std::size_t under = home_.grid().page_index_at(point);
  if (under < list.size()) {
    const CGPoint origin = home_.grid().page_origin(under);
    const CGFloat half = home_.grid().icon_side / 2;
    const CGPoint slot_centre{origin.x + half, origin.y + half};
    if (may_drop_on(list[under], slot_centre, point))
      return {Intent::kDrop, {Area::kPage, page, {}, under}, list[under].id};
  }
  return move_to({Area::kPage, page, {}, under});
}

bool IconDrag::may_drop_on(const Slot& slot, CGPoint slot_centre, CGPoint centre) const {
  const bool carries_folder = model_.layout().folder(id_) != nullptr;
  const CGFloat distance = std::hypot(slot_centre.x - centre.x, slot_centre.y - centre.y);
  return slot.id != id_ && !carries_folder && distance < home_.grid().icon_side * kDropReach;
}

IconDrag::Aim IconDrag::move_to(Place place) const {
  const auto from = model_.layout().find(id_);
  if (!from) return {};
  const bool same_list =
      from->area == place.area && from->page == place.page && from->folder == place.folder;
  std::size_t others = 0;
  switch (place.area) {
    case Area::kPage:
      others = model_.layout().pages()[place.page].size();
      break;
    case Area::kDock:
      others = model_.layout().dock().size();
      break;
    case Area::kFolder:
      others = model_.layout().folder(place.folder)->contents.size();
      break;
  }
  if (same_list) --others;
  place.index = std::min(place.index, others);
  return place == *from ? Aim() : Aim{Intent::kMove, place, {}};
}

void IconDrag::take_aim(Aim aim) {
  if (aim == aim_) return;
  stop_waiting();
  set_target_raised(false);
  aim_ = std::move(aim);
  double rest = 0;
  switch (aim_.intent) {
    case Intent::kStay:
      return;
    case Intent::kMove:
      rest = kRestToMove;
      break;
    case Intent::kDrop:
      rest = kRestToDrop;
      break;
    case Intent::kTurnBack:
    case Intent::kTurnForward:
      rest = kRestToTurn;
      break;
    case Intent::kLeaveFolder:
      rest = kRestToLeave;
      break;
  }
  RunLoop& loop = RunLoop::main();
  waiting_ = loop.add_timer(loop.now() + rest, 0, [this] {
    waiting_.reset();
    aim_rested();
  });
}

void IconDrag::aim_rested() {
  const Aim aim = std::exchange(aim_, {});
  switch (aim.intent) {
    case Intent::kStay:
      break;
    case Intent::kMove:
      move_icon(aim.place);
      break;
    case Intent::kDrop:
      aim_ = aim;
      set_target_raised(true);
      break;
    case Intent::kTurnBack:
      turn_page(home_.current_page() - 1);
      break;
    case Intent::kTurnForward:
      turn_page(home_.current_page() + 1);
      break;
    case Intent::kLeaveFolder:
      SBIconController::sharedInstance().closeFolderAnimated(YES);
      model_.layout().move_out_of_folder(id_);
      home_.sync(kMakingRoom);
      move(finger_);
      break;
  }
}

void IconDrag::move_icon(const Place& place) {
  if (model_.layout().move(id_, place)) home_.sync(kMakingRoom);
}

void IconDrag::turn_page(std::size_t page) {
  const auto& pages = model_.layout().pages();
  const bool alone_on_last = page == pages.size() && pages.back().size() <= 1;
  if (page > pages.size() || alone_on_last) return;
  model_.layout().move(id_, {Area::kPage, page, {}, page < pages.size() ? pages[page].size() : 0});
  home_.sync(0);
  SBIconController::sharedInstance().scrollToIconListAtIndex(static_cast<NSInteger>(page), YES);
}

void IconDrag::set_target_raised(bool raised) {
  if (raised == target_raised_) return;
  target_raised_ = raised;
  const auto at = model_.layout().find(aim_.target);
  if (!at) return;
  const HomeLayout::List& list =
      at->area == Area::kDock ? model_.layout().dock() : model_.layout().pages()[at->page];
  const SBIconView view =
      SBIconViewMap::homescreenMap().mappedIconViewForIcon(model_.icon(list[at->index]));
  objc::state_of<IconView>(view).set_image_scale(raised ? kRaisedScale : 1);
}

void IconDrag::stop_waiting() {
  if (waiting_) RunLoop::main().remove_timer(*waiting_);
  waiting_.reset();
}

void IconDrag::end() {
  if (!is_active()) return;
  stop_waiting();
  const bool drops = aim_.intent == Intent::kDrop && target_raised_;
  set_target_raised(false);
  const Aim aim = std::exchange(aim_, {});
  if (drops) {
    model_.layout().drop_on(id_, aim.target, kNewFolderTitle);
  } else if (aim.intent == Intent::kMove || aim.intent == Intent::kDrop) {
    model_.layout().move(id_, aim.place);
  }
  model_.layout().remove_empty_pages();
  home_.sync(kMakingRoom);
  model_.save();
  home_.set_paging_enabled(YES);
  settle();
}

void IconDrag::settle() {
  const auto icon_view = std::exchange(icon_view_, {});
  const auto carried = std::exchange(carried_, {});
  auto& state = objc::state_of<IconView>(*icon_view);
  const bool seen = static_cast<bool>(icon_view->window());
  const CGPoint centre = icon_view->convertRectToView(state.image_frame(), home_.window()).centre();
  const auto landed = objc::block([icon_view, carried](BOOL) {
    carried->removeFromSuperview();
    objc::state_of<IconView>(*icon_view).set_lifted(false);
  });
  const UIView flying = *carried;
  UIView::animateWithDuration(kSettling, objc::block([=] {
                                flying.setTransform(CGAffineTransform());
                                flying.setAlpha(seen ? 1 : 0);
                                if (seen) flying.setCenter(centre);
                              }),
                              landed);
}

}  // namespace host::springboard
