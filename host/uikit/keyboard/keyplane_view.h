#pragma once

#include <map>

#include "host/uikit/keyboard/key_view.h"
#include "host/uikit/keyboard/popup_view.h"
#include "host/uikit/keyboard_layout/keyboard_layout.h"
#include "objc/ref.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {

struct UIKBKeyplaneView : objc::Bound<UIKBKeyplaneView, "UIKBKeyplaneView", UIView> {};

/// Is told of the fingers on a keyboard; points are in the keyboard's coordinates.
class KeyplaneFingers {
 public:
  virtual ~KeyplaneFingers() = default;
  virtual void began(UITouch touch, CGPoint point) = 0;
  virtual void moved(UITouch touch, CGPoint point) = 0;
  virtual void ended(UITouch touch) = 0;
  virtual void cancelled(UITouch touch) = 0;
};

/// The picture of one plane of keys, drawn once, with the changes made by fingers on top.
class KeyplaneView : public objc::Implementation<KeyplaneView, UIKBKeyplaneView> {
 public:
  explicit KeyplaneView(UIKBKeyplaneView owner) : Implementation(owner) {}

  void set_up(const BoardMetrics& metrics, KeyplaneFingers* fingers);
  /// Shows these keys. Returns false, without redrawing, when they are shown already.
  bool show(KeyPlane plane, const KeyboardTraits& traits);

  const KeyboardLayout& layout() const { return layout_; }
  const BoardMetrics& metrics() const { return metrics_; }
  /// Returns where it is currently drawn, in the window.
  CGRect drawn_frame() const { return self.layer().presentationLayer().frame(); }
  /// How often the keys have been drawn.
  int drawings() const { return drawings_; }

  void set_state(std::size_t key, KeyState state);
  /// Shows a balloon with these letters, the first of them chosen; an empty list removes it.
  void show_popup(const PopupShape& shape, std::vector<std::string> letters);
  void hide_popup();
  PopupView* popup();

  void draw_rect(CGRect);
  void touches_began(NSSet touches, UIEvent event);
  void touches_moved(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);
  void touches_cancelled(NSSet touches, UIEvent event);

 private:
  BoardMetrics metrics_;
  KeyboardLayout layout_;
  const KeyboardLook* look_ = nullptr;
  KeyPlane plane_ = KeyPlane::Letters;
  KeyboardTraits traits_;
  KeyplaneFingers* fingers_ = nullptr;
  std::map<std::size_t, objc::Ref<UIKBKeyView>> changed_keys_;
  objc::Ref<UIKBKeyPopupView> popup_;
  int drawings_ = 0;
};

void export_keyplane_view();

}  // namespace host::uikit
