#pragma once

#include "host/uikit/text_layout/text_layout.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UILabel.h"

namespace host::uikit {

class Label : public objc::Implementation<Label, UILabel> {
 public:
  explicit Label(UILabel owner) : Implementation(owner) {}

  UILabel init_with_frame(CGRect frame);

  NSString text() const { return text_.get(); }
  void set_text(NSString text);
  NSAttributedString attributed_text() const;
  void set_attributed_text(NSAttributedString text);
  UIFont font() const { return font_.get(); }
  void set_font(UIFont font);
  UIColor text_color() const { return text_color_.get(); }
  void set_text_color(UIColor color);
  UIColor highlighted_text_color() const { return highlighted_text_color_.get(); }
  void set_highlighted_text_color(UIColor color);
  BOOL is_highlighted() const { return highlighted_; }
  void set_highlighted(BOOL highlighted) { change(highlighted_, highlighted); }
  BOOL is_enabled() const { return enabled_; }
  void set_enabled(BOOL enabled) { change(enabled_, enabled); }
  NSTextAlignment alignment() const { return alignment_; }
  void set_alignment(NSTextAlignment alignment) { change(alignment_, alignment); }
  NSLineBreakMode break_mode() const { return break_mode_; }
  void set_break_mode(NSLineBreakMode mode) { change(break_mode_, mode); }
  NSInteger number_of_lines() const { return lines_; }
  void set_number_of_lines(NSInteger lines) { change(lines_, lines); }
  BOOL adjusts_font_size() const { return adjusts_font_size_; }
  void set_adjusts_font_size(BOOL adjusts) { change(adjusts_font_size_, adjusts); }
  CGFloat minimum_scale() const { return minimum_scale_; }
  void set_minimum_scale(CGFloat factor) { change(minimum_scale_, factor); }

  CGSize size_that_fits(CGSize size);
  CGSize intrinsic_content_size();
  CGRect text_rect(CGRect bounds, NSInteger lines);
  void draw_rect(CGRect rect);
  void draw_text_in_rect(CGRect rect);

 private:
  template <class T>
  void change(T& value, T wanted) {
    if (value == wanted) return;
    value = wanted;
    self.setNeedsDisplay();
  }
  TextStyle base_style() const;
  StyledText styled(const TextFrame& frame) const;
  TextLayout layout_in(CGSize room, NSInteger lines) const;
  void override_attribute(NSString name, objc::Object value);

  objc::Ref<NSString> text_;
  objc::Ref<NSAttributedString> attributed_;
  objc::Ref<UIFont> font_;
  objc::Ref<UIColor> text_color_;
  objc::Ref<UIColor> highlighted_text_color_;
  NSTextAlignment alignment_ = NSTextAlignmentLeft;
  NSLineBreakMode break_mode_ = NSLineBreakByTruncatingTail;
  NSInteger lines_ = 1;
  CGFloat minimum_scale_ = 0;
  BOOL adjusts_font_size_ = NO;
  BOOL highlighted_ = NO;
  BOOL enabled_ = YES;
};

void export_label();

}  // namespace host::uikit
