#include "host/uikit/keyboard/keyplane_view.h"

#include "host/uikit/drawing/graphics.h"

namespace host::uikit {
namespace {

UITouch only_touch(NSSet touches) {
  return objc::cast<UITouch>(touches.anyObject());
}

}  // namespace

void KeyplaneView::set_up(const BoardMetrics& metrics, KeyplaneFingers* fingers) {
  metrics_ = metrics;
  fingers_ = fingers;
  self.setMultipleTouchEnabled(YES);
  self.setOpaque(YES);
}

bool KeyplaneView::show(KeyPlane plane, const KeyboardTraits& traits) {
  if (look_ && plane == plane_ && traits == traits_) return false;
  hide_popup();
  for (const auto& [index, view] : changed_keys_)
    view->removeFromSuperview();
  changed_keys_.clear();
  plane_ = plane;
  traits_ = traits;
  look_ = &look_of(traits.appearance);
  layout_ = make_layout(metrics_, plane, traits);
  self.setNeedsDisplay();
  return true;
}

void KeyplaneView::set_state(std::size_t key, KeyState state) {
  const auto found = changed_keys_.find(key);
  if (state == KeyState::Resting) {
    if (found == changed_keys_.end()) return;
    found->second->removeFromSuperview();
    changed_keys_.erase(found);
    return;
  }
  auto& view = changed_keys_[key];
  if (!view) {
    view = objc::Ref<UIKBKeyView>::adopt(UIKBKeyView::alloc().init());
    self.addSubview(view.get());
  }
  KeyView& shown = objc::state_of<KeyView>(view.get());
  shown.metrics = &metrics_;
  shown.look = look_;
  shown.is_cell = layout_.is_number_pad;
  shown.show(layout_.keys[key], state);
}

void KeyplaneView::show_popup(const PopupShape& shape, std::vector<std::string> letters) {
  if (!popup_) {
    popup_ = objc::Ref<UIKBKeyPopupView>::adopt(UIKBKeyPopupView::alloc().init());
    self.addSubview(popup_.get());
  }
  self.bringSubviewToFront(popup_.get());
  PopupView& shown = *popup();
  shown.metrics = &metrics_;
  shown.look = look_;
  shown.show(shape, std::move(letters));
}

void KeyplaneView::hide_popup() {
  popup_->removeFromSuperview();
  popup_.reset();
}

PopupView* KeyplaneView::popup() {
  return popup_ ? &objc::state_of<PopupView>(popup_.get()) : nullptr;
}

void KeyplaneView::draw_rect(CGRect) {
  cairo_t* drawing = current_drawing();
  if (!drawing || !look_) return;
  ++drawings_;
  quartzcore::set_source(drawing, look_->ground);
  cairo_paint(drawing);
  const KeyPainter painter(drawing, metrics_, *look_);
  for (const Key& key : layout_.keys) {
    if (layout_.is_number_pad) {
      painter.paint_cell(key, KeyState::Resting);
    } else {
      painter.paint(key, KeyState::Resting);
    }
  }
}

void KeyplaneView::touches_began(NSSet touches, UIEvent) {
  const UITouch touch = only_touch(touches);
  if (fingers_) fingers_->began(touch, touch.locationInView(self));
}
void KeyplaneView::touches_moved(NSSet touches, UIEvent) {
  const UITouch touch = only_touch(touches);
  if (fingers_) fingers_->moved(touch, touch.locationInView(self));
}
void KeyplaneView::touches_ended(NSSet touches, UIEvent) {
  if (fingers_) fingers_->ended(only_touch(touches));
}
void KeyplaneView::touches_cancelled(NSSet touches, UIEvent) {
  if (fingers_) fingers_->cancelled(only_touch(touches));
}

void export_keyplane_view() {
  if (UIKBKeyplaneView::cls()) return;
  objc::ClassBuilder("UIKBKeyplaneView", "UIView")
      .state<KeyplaneView>()
      .method<&KeyplaneView::draw_rect>("drawRect:")
      .method<&KeyplaneView::touches_began>("touchesBegan:withEvent:")
      .method<&KeyplaneView::touches_moved>("touchesMoved:withEvent:")
      .method<&KeyplaneView::touches_ended>("touchesEnded:withEvent:")
      .method<&KeyplaneView::touches_cancelled>("touchesCancelled:withEvent:")
      .finish();
}

}  // namespace host::uikit
