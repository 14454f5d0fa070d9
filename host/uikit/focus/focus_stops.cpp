#include "host/uikit/focus/focus_stops.h"

#include <algorithm>

#include "host/runtime/device_model.h"
#include "host/uikit/geometry/screen_space.h"
#include "host/uikit/touch/touch_input.h"
#include "host/uikit/view/view.h"
#include "platform/CoreGraphics/CGRect.h"
#include "platform/UIKit/UIControl.h"
#include "platform/UIKit/UITableView.h"
#include "platform/UIKit/UITapGestureRecognizer.h"

namespace host::uikit {
namespace {

std::vector<objc::Class>& focus_classes() {
  static std::vector<objc::Class> classes;
  return classes;
}

bool is_selectable(UITableViewCell cell) {
  if (cell.selectionStyle() == UITableViewCellSelectionStyleNone) return false;
  UIView table = cell.superview();
  while (table && !table.isKindOfClass(UITableView::cls()))
    table = table.superview();
  return objc::cast<UITableView>(table).allowsSelection();
}

bool has_tap(UIView view) {
  const auto& recognizers = objc::state_of<View>(view).recognizers();
  return std::any_of(recognizers.begin(), recognizers.end(), [](const auto& one) {
    return one->isEnabled() && one->isKindOfClass(UITapGestureRecognizer::cls());
  });
}

bool is_stop(UIView view) {
  if (view.isKindOfClass(UIControl::cls())) return objc::cast<UIControl>(view).isEnabled();
  if (view.isKindOfClass(UITableViewCell::cls()))
    return is_selectable(objc::cast<UITableViewCell>(view));
  if (has_tap(view)) return true;
  const auto& classes = focus_classes();
  return std::any_of(classes.begin(), classes.end(),
                     [view](objc::Class cls) { return view.isKindOfClass(cls); });
}

void collect(UIView view, CGRect seen, std::vector<FocusStop>& stops) {
  if (view.isHidden() || !view.isUserInteractionEnabled()) return;
  const CGRect place = place_in(view, nil);
  if (seen.contains(place.centre()) && is_stop(view) && is_in_sight(view))
    stops.push_back({objc::Ref<UIView>::retain(view), place});
  const bool clips = view.clipsToBounds();
  if (clips) seen = CGRectIntersection(seen, place);
  if (CGRectIsEmpty(seen)) return;
  const CGRect bounds = view.bounds();
  const auto parts = objc::state_of<View>(view).children();
  for (const auto& part : parts) {
    // Of thousands of albums only a few are in sight.
    if (!clips || CGRectIntersectsRect(part->frame(), bounds)) collect(part.get(), seen, stops);
  }
}

}  // namespace

void add_focus_class(objc::Class cls) {
  focus_classes().push_back(cls);
}

CGRect place_in(UIView view, UIView other) {
  return convert_rect(view, view.bounds(), other);
}

bool is_in_sight(UIView stop) {
  const auto centre = centre_on_screen(stop);
  if (!centre) return false;
  UIView hit = hit_of_pointer(*centre).view;
  while (hit && hit != stop && !is_stop(hit))
    hit = hit.superview();
  return hit == stop;
}

std::vector<FocusStop> stops_in_sight() {
  const CGRect screen{0, 0, current_device().width, current_device().height};
  std::vector<FocusStop> stops;
  for (const UIWindow window : visible_windows())
    collect(window, screen, stops);
  return stops;
}

}  // namespace host::uikit
