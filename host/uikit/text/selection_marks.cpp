#include "host/uikit/text/selection_marks.h"

#include <algorithm>
#include <cmath>

#include "host/quartzcore/drawing/color.h"
#include "host/runtime/on_pixel.h"
#include "host/uikit/drawing/graphics.h"
#include "host/uikit/geometry/screen_space.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {
namespace {

constexpr CGFloat kVeilAlpha = 0.2;
constexpr CGFloat kStem = 2;
constexpr CGFloat kDot = 11;
// The touchable margin of a grabber: away from the selection, towards it, and along its edge.
constexpr CGFloat kReachOut = 30;
constexpr CGFloat kReachIn = 8;
constexpr CGFloat kReachAlong = 18;
// Among the observers of a turn's end: after layout, before the screen is drawn.
constexpr int kTurnOrder = 150;

}  // namespace

void Grabber::set_up(SelectionEnd end, SelectionDrag* drag, UIColor tint) {
  end_ = end;
  drag_ = drag;
  tint_.reset(tint);
  self.setOpaque(NO);
}

void Grabber::place(CGRect edge) {
  const CGFloat left = end_ == SelectionEnd::Start ? kReachOut : kReachIn;
  const CGRect frame(on_pixel(edge.min_x()) - left, on_pixel(edge.min_y()) - kReachAlong,
                     kReachOut + kReachIn, std::round(edge.size.height) + 2 * kReachAlong);
  if (self.frame() == frame) return;
  const bool resized = self.frame().size != frame.size;
  self.setFrame(frame);
  if (resized) self.setNeedsDisplay();
}

void Grabber::draw_rect(CGRect) {
  cairo_t* drawing = current_drawing();
  if (!drawing) return;
  const bool is_start = end_ == SelectionEnd::Start;
  const CGFloat edge = is_start ? kReachOut : kReachIn;
  // Stems lie outside of the selection.
  const CGFloat left = is_start ? edge - kStem : edge;
  const CGFloat height = self.bounds().size.height - 2 * kReachAlong;
  quartzcore::set_source(drawing, quartzcore::rgba_of(tint_->CGColor()));
  cairo_rectangle(drawing, left, kReachAlong, kStem, height);
  cairo_fill(drawing);
  const CGFloat middle =
      is_start ? kReachAlong - kDot / 2 + 1 : kReachAlong + height + kDot / 2 - 1;
  cairo_arc(drawing, left + kStem / 2, middle, kDot / 2, 0, 2 * M_PI);
  cairo_fill(drawing);
}

void Grabber::touches_moved(NSSet touches, UIEvent) {
  const auto touch = objc::cast<UITouch>(touches.anyObject());
  if (drag_) drag_->selection_dragged(end_, to_screen(self, touch.locationInView(self)));
}

void Grabber::touches_ended(NSSet touches, UIEvent) {
  if (drag_) drag_->selection_drag_ended(objc::cast<UITouch>(touches.anyObject()).tapCount());
}

void SelectionMarks::make(SelectionDrag* drag, UIColor tint) {
  veil_ = objc::Ref<UIView>::adopt(UIView::alloc().init());
  veil_->setUserInteractionEnabled(NO);
  veil_->setBackgroundColor(tint.colorWithAlphaComponent(kVeilAlpha));
  window_ = objc::Ref<UITextEffectsWindow>::adopt(make_effects_window(kTextMenuWindowLevel));
  const auto add = [&](SelectionEnd end) {
    auto made = objc::Ref<UISelectionGrabber>::adopt(UISelectionGrabber::alloc().init());
    objc::state_of<Grabber>(made.get()).set_up(end, drag, tint);
    window_->addSubview(made.get());
    return made;
  };
  start_ = add(SelectionEnd::Start);
  end_ = add(SelectionEnd::End);
  window_->setHidden(NO);
  observer_ = RunLoop::main().add_turn_observer(kTurnOrder, [this] { follow_field(); });
}

void SelectionMarks::show(UIView field, CGRect selected, CGRect visible, UIColor tint,
                          SelectionDrag* drag) {
  if (!veil_) make(drag, tint);
  field_ = field;
  selected_ = selected;
  visible_ = visible;
  const CGFloat left = std::max(selected.min_x(), visible.min_x());
  const CGFloat right = std::min(selected.max_x(), visible.max_x());
  veil_->setFrame({left, selected.min_y(), std::max(0.0, right - left), selected.size.height});
  if (veil_->superview() != field) field.addSubview(veil_.get());
  follow_field();
}

void SelectionMarks::follow_field() {
  const auto place = [this](UISelectionGrabber grabber, CGFloat x) {
    // An end that is scrolled out of sight has no grabber.
    grabber.setHidden(x < visible_.min_x() - 1 || x > visible_.max_x() + 1);
    const CGRect edge(x, selected_.min_y(), 0, selected_.size.height);
    const CGPoint top = to_screen(field_, edge.origin);
    objc::state_of<Grabber>(grabber).place({top.x, top.y, 0, edge.size.height});
  };
  place(start_.get(), selected_.min_x());
  place(end_.get(), selected_.max_x());
}

CGPoint SelectionMarks::grabber_centre(SelectionEnd end) const {
  const auto& grabber = end == SelectionEnd::Start ? start_ : end_;
  return grabber ? grabber->frame().centre() : CGPoint();
}

void SelectionMarks::hide() {
  if (!veil_) return;
  if (RunLoop::has_main()) RunLoop::main().remove_turn_observer(observer_);
  veil_->removeFromSuperview();
  veil_.reset();
  for (auto* grabber : {&start_, &end_}) {
    objc::state_of<Grabber>(grabber->get()).set_up(SelectionEnd::Start, nullptr, nil);
    grabber->reset();
  }
  window_->setHidden(YES);
  window_.reset();
}

void export_selection_marks() {
  if (UISelectionGrabber::cls()) return;
  objc::ClassBuilder("UISelectionGrabber", "UIView")
      .state<Grabber>()
      .method<&Grabber::draw_rect>("drawRect:")
      .method<&Grabber::touches_moved>("touchesMoved:withEvent:")
      .method<&Grabber::touches_ended>("touchesEnded:withEvent:")
      .method<&Grabber::touches_ended>("touchesCancelled:withEvent:")
      .finish();
}

}  // namespace host::uikit
