#pragma once

#include <optional>

#include "host/uikit/text/caret.h"
#include "host/uikit/text_layout/editable_text.h"
#include "host/uikit/text_layout/text_layout.h"
#include "objc/class_builder.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "platform/UIKit/UITextView.h"

namespace host::uikit {

/// Editable text of several lines, in a scroll view of any height. The visible part is drawn on a
/// canvas that moves along, so a long text costs no more memory than a short one. Lines are broken
/// again only when the text, its looks or the width have changed.
class TextView : public objc::Implementation<TextView, UITextView> {
 public:
  explicit TextView(UITextView owner) : Implementation(owner) {}

  UITextView init_with_frame(CGRect frame);

  // Contents and looks.
  NSString text() const { return text_.text(); }
  void set_text(NSString text);
  UIFont font() const { return font_.get(); }
  void set_font(UIFont font);
  UIColor text_color() const { return text_color_.get(); }
  void set_text_color(UIColor color);
  NSTextAlignment alignment() const { return alignment_; }
  void set_alignment(NSTextAlignment alignment);
  UIEdgeInsets text_container_inset() const { return inset_; }
  void set_text_container_inset(UIEdgeInsets inset);

  // Layout and drawing.
  void layout_subviews();
  CGSize size_that_fits(CGSize size);
  void scroll_range_to_visible(NSRange range);
  /// Draws the visible part onto the current context, whose origin is at `visible`'s.
  void draw_visible(CGRect visible);

  // Editing.
  BOOL is_editable() const { return editable_; }
  void set_editable(BOOL editable);
  BOOL can_become_first_responder() { return editable_; }
  BOOL become_first_responder();
  BOOL resign_first_responder();
  void handle_tap(UITapGestureRecognizer recognizer);
  BOOL has_text() const { return text_.length() > 0; }
  void insert_text(NSString text);
  void delete_backward();
  void set_marked_text(NSString text, NSRange selected);
  void unmark_text();
  /// Handles a key of the physical keyboard that moves the caret; returns NO for any other key.
  BOOL press_key(NSString name);

  const Caret& caret() const { return caret_; }
  CGRect caret_frame() const { return caret_.is_shown() ? caret_.frame() : CGRect(); }
  std::size_t caret_index() const { return text_.caret(); }

 private:
  enum class Motion { ToPrevious, ToNext, ToLineStart, ToLineEnd, Up, Down };

  const TextLayout& layout();
  double text_width();
  CGPoint text_origin() const;
  std::size_t byte_of(std::size_t index) const;
  std::size_t index_of_byte(std::size_t byte) const;
  LinePlaces line_of_caret() { return layout().line_of(byte_of(text_.caret())); }
  CGRect caret_rect(std::size_t index);
  std::size_t index_near(CGPoint point);
  void text_replaced();
  void looks_changed();
  void place_canvas();
  void show_caret();

  bool may_replace(NSRange range, NSString text);
  bool delegate_agrees(objc::Sel question);
  void tell_delegate(objc::Sel news);
  void text_edited();
  void caret_moved();
  void move_caret(Motion motion);
  void move_vertically(Motion direction);

  EditableText text_;
  objc::Ref<UIFont> font_;
  objc::Ref<UIColor> text_color_;
  objc::Ref<UIView> canvas_;
  Caret caret_;
  std::optional<TextLayout> layout_;
  double layout_width_ = 0;
  /// The target position of up and down while short lines on the way hold the caret back.
  std::optional<double> aimed_x_;
  UIEdgeInsets inset_;
  NSTextAlignment alignment_ = NSTextAlignmentNatural;
  bool caret_wants_sight_ = false;
  bool canvas_is_old_ = true;
  BOOL editable_ = YES;
  BOOL editing_ = NO;
};

/// Registers the class. Requires the classes of scroll views. Idempotent.
void export_text_view();

}  // namespace host::uikit
