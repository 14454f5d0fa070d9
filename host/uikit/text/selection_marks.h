#pragma once

#include "host/runtime/run_loop.h"
#include "host/uikit/text/effects_window.h"
#include "objc/ref.h"

namespace host::uikit {

enum class SelectionEnd { Start, End };

/// Is told of a finger that drags one end of a selection; points are in screen coordinates.
class SelectionDrag {
 public:
  virtual ~SelectionDrag() = default;
  virtual void selection_dragged(SelectionEnd end, CGPoint on_screen) = 0;
  /// `taps` is the tap count of the finger that lifted.
  virtual void selection_drag_ended(NSUInteger taps) = 0;
};

struct UISelectionGrabber : objc::Bound<UISelectionGrabber, "UISelectionGrabber", UIView> {};

/// A stem as tall as the line with a dot at its top or foot, and a touchable margin around it.
class Grabber : public objc::Implementation<Grabber, UISelectionGrabber> {
 public:
  explicit Grabber(UISelectionGrabber owner) : Implementation(owner) {}

  void set_up(SelectionEnd end, SelectionDrag* drag, UIColor tint);
  /// `edge` is the selection's edge in screen coordinates; its width is 0.
  void place(CGRect edge);
  void draw_rect(CGRect);
  void touches_moved(NSSet touches, UIEvent event);
  void touches_ended(NSSet touches, UIEvent event);

 private:
  SelectionEnd end_ = SelectionEnd::Start;
  SelectionDrag* drag_ = nullptr;
  objc::Ref<UIColor> tint_;
};

/// Shows selected text: a tinted veil in the field and a grabber at each end. Grabbers are in a
/// window above all others, since a field is no taller than its line, and follow the field wherever
/// it moves.
class SelectionMarks {
 public:
  SelectionMarks() = default;
  ~SelectionMarks() { hide(); }
  SelectionMarks(const SelectionMarks&) = delete;
  SelectionMarks& operator=(const SelectionMarks&) = delete;

  /// `selected` is the selected part of the line in `field`, of which only `visible` is in sight.
  void show(UIView field, CGRect selected, CGRect visible, UIColor tint, SelectionDrag* drag);
  void hide();
  bool is_shown() const { return static_cast<bool>(veil_); }
  CGRect frame() const { return veil_ ? veil_->frame() : CGRect(); }
  /// The point on the screen at which a finger takes hold of the grabber.
  CGPoint grabber_centre(SelectionEnd end) const;

 private:
  void make(SelectionDrag* drag, UIColor tint);
  void follow_field();

  objc::Ref<UIView> veil_;
  objc::Ref<UITextEffectsWindow> window_;
  objc::Ref<UISelectionGrabber> start_;
  objc::Ref<UISelectionGrabber> end_;
  UIView field_;
  CGRect selected_;
  CGRect visible_;
  RunLoop::Id observer_ = 0;
};

void export_selection_marks();

}  // namespace host::uikit
