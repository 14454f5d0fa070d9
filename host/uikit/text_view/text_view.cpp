#include "host/uikit/text_view/text_view.h"

namespace host::uikit {
namespace {

constexpr CGFloat kTextViewFontSize = 12;
constexpr CGFloat kStandardInset = 8;

/// Shows the visible part of a text view's text.
class TextCanvas : public objc::Implementation<TextCanvas, UIView> {
 public:
  using Implementation::Implementation;
  void draw_rect(CGRect) {
    if (const UIView owner = self.superview())
      objc::state_of<TextView>(owner).draw_visible(self.frame());
  }
};

UIView make_canvas() {
  const auto cls = objc::Object(objc_getClass("SonavueTextCanvas"));
  const UIView canvas = objc::send<UIView>(cls, "alloc"_sel).initWithFrame({});
  canvas.setOpaque(NO);
  canvas.setUserInteractionEnabled(NO);
  canvas.setContentMode(UIViewContentModeRedraw);
  return canvas;
}

}  // namespace

UITextView TextView::init_with_frame(CGRect frame) {
  font_.reset(UIFont::systemFontOfSize(kTextViewFontSize));
  text_color_.reset(UIColor::blackColor());
  inset_ = {kStandardInset, 0, kStandardInset, 0};
  canvas_ = objc::Ref<UIView>::adopt(make_canvas());
  if (!super<UIView>("initWithFrame:"_sel, frame)) return nil;
  self.setShowsHorizontalScrollIndicator(NO);
  self.addSubview(canvas_.get());
  const auto tap = objc::Ref<UITapGestureRecognizer>::adopt(
      UITapGestureRecognizer::alloc().initWithTarget(self, "handleTextTap:"_sel));
  self.addGestureRecognizer(tap.get());
  return self;
}

void TextView::set_text(NSString text) {
  text_.set(text);
  text_replaced();
}

void TextView::text_replaced() {
  aimed_x_.reset();
  caret_wants_sight_ = true;
  looks_changed();
}

void TextView::set_font(UIFont font) {
  font_.reset(font ? font : UIFont::systemFontOfSize(kTextViewFontSize));
  looks_changed();
}

void TextView::set_text_color(UIColor color) {
  text_color_.reset(color ? color : UIColor::blackColor());
  looks_changed();
}

void TextView::set_alignment(NSTextAlignment alignment) {
  alignment_ = alignment;
  looks_changed();
}

void TextView::set_text_container_inset(UIEdgeInsets inset) {
  inset_ = inset;
  looks_changed();
}

void TextView::looks_changed() {
  layout_.reset();
  canvas_is_old_ = true;
  self.setNeedsLayout();
}

void export_text_view() {
  if (UITextView::cls()) return;
  objc::ClassBuilder("SonavueTextCanvas", "UIView")
      .state<TextCanvas>()
      .method<&TextCanvas::draw_rect>("drawRect:")
      .finish();
  objc::ClassBuilder("UITextView", "UIScrollView")
      .state<TextView>()
      .method<&TextView::init_with_frame>("initWithFrame:")
      .method<&TextView::text>("text")
      .method<&TextView::set_text>("setText:")
      .method<&TextView::font>("font")
      .method<&TextView::set_font>("setFont:")
      .method<&TextView::text_color>("textColor")
      .method<&TextView::set_text_color>("setTextColor:")
      .method<&TextView::alignment>("textAlignment")
      .method<&TextView::set_alignment>("setTextAlignment:")
      .method<&TextView::text_container_inset>("textContainerInset")
      .method<&TextView::set_text_container_inset>("setTextContainerInset:")
      .method<&TextView::layout_subviews>("layoutSubviews")
      .method<&TextView::size_that_fits>("sizeThatFits:")
      .method<&TextView::scroll_range_to_visible>("scrollRangeToVisible:")
      .method<&TextView::is_editable>("isEditable")
      .method<&TextView::set_editable>("setEditable:")
      .method<&TextView::can_become_first_responder>("canBecomeFirstResponder")
      .method<&TextView::become_first_responder>("becomeFirstResponder")
      .method<&TextView::resign_first_responder>("resignFirstResponder")
      .method<&TextView::handle_tap>("handleTextTap:")
      .method<&TextView::has_text>("hasText")
      .method<&TextView::insert_text>("insertText:")
      .method<&TextView::delete_backward>("deleteBackward")
      .method<&TextView::set_marked_text>("setMarkedText:selectedRange:")
      .method<&TextView::unmark_text>("unmarkText")
      .method<&TextView::press_key>("_pressKey:")
      .method<&TextView::caret_frame>("_caretFrame")
      .finish();
}

}  // namespace host::uikit
