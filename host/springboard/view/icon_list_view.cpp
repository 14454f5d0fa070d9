#include "host/springboard/view/icon_list_view.h"

#include "host/springboard/common/screen_grid.h"
#include "platform/SpringBoard/SBIconViewMap.h"
#include "platform/UIKit/UIWindow.h"

namespace host::springboard {
namespace {

/// The location that the list's class assigns to its icons.
int location_of(SBIconListView list) {
  return objc::send<int>(list, "iconLocation"_sel);
}

}  // namespace

void IconListView::show(NSArray icons, double duration) {
  icons_.reset(icons);
  const int location = location_of(self);
  NSUInteger index = 0;
  for (const SBIcon icon : icons_->of<SBIcon>()) {
    const SBIconView view = SBIconViewMap::homescreenMap().mappedIconViewForIcon(icon);
    if (!view) continue;
    const bool comes_from_elsewhere = view.superview() != self;
    const bool was_seen = static_cast<bool>(view.window());
    if (comes_from_elsewhere) take_over(view);
    view.setLocation(location);
    const bool flies = was_seen && static_cast<bool>(self.window());
    place(view, self.originForIconAtIndex(index++), flies ? duration : 0);
  }
}

void IconListView::take_over(SBIconView view) const {
  const bool both_seen = view.window() && self.window();
  const CGRect frame =
      both_seen ? view.superview().convertRectToView(view.frame(), self) : view.frame();
  self.addSubview(view);
  view.setFrame(frame);
}

void IconListView::place(SBIconView view, CGPoint origin, double duration) const {
  const CGRect frame(origin, screen_grid().icon_view_size());
  if (view.frame() == frame) return;
  if (duration <= 0) {
    view.setFrame(frame);
    return;
  }
  UIView::animateWithDuration(duration, 0, UIViewAnimationOptionAllowUserInteraction,
                              objc::block([=] { view.setFrame(frame); }),
                              objc::Block<void(BOOL)>());
}

CGPoint IconListView::origin_for_icon_at_index(NSUInteger index) const {
  return screen_grid().page_origin(index);
}

void export_icon_list_view() {
  objc::ClassBuilder("SBIconListView", "UIView")
      .state<IconListView>()
      .method<&IconListView::icons>("icons")
      .method<&IconListView::origin_for_icon_at_index>("originForIconAtIndex:")
      .method<&IconListView::location>("iconLocation")
      .finish();
}

}  // namespace host::springboard
