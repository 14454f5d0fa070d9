#include "host/social/composers/composer_card.h"

#include <string>

#include "platform/UIKit/UIScreen.h"

namespace host::social {
namespace {

constexpr CGFloat kCornerRadius = 7;
constexpr CGFloat kBarHeight = 44;
constexpr CGFloat kFooterHeight = 30;
constexpr CGFloat kCardMargin = 14;
constexpr CGFloat kButtonWidth = 88;
/// Lowers the title to the baseline of the buttons' titles, which are rounded to pixels separately.
constexpr CGFloat kTitleDrop = 0.5;
constexpr CGFloat kCountWidth = 64;
constexpr CGFloat kTextSize = 17;
constexpr CGFloat kFooterSize = 14;
/// The padding that a text view adds beside its lines.
constexpr CGFloat kTextViewPadding = 5;

UIColor tint() {
  return UIColor::colorWithRed(0, 0.478, 1, 1);
}
UIColor warning() {
  return UIColor::colorWithRed(0.86, 0.16, 0.12, 1);
}

/// A button with its title at the card's margin and a touch area as high as the bar.
objc::Ref<UIButton> make_button(NSString title, NSString font, CGRect frame,
                                UIControlContentHorizontalAlignment alignment) {
  const auto button = objc::Ref<UIButton>::adopt(UIButton::alloc().initWithFrame(frame));
  button->setContentHorizontalAlignment(alignment);
  const bool at_left = alignment == UIControlContentHorizontalAlignmentLeft;
  button->setContentEdgeInsets({0, at_left ? kCardMargin : 0, 0, at_left ? 0 : kCardMargin});
  button->titleLabel().setFont(UIFont::fontWithName(font, kTextSize));
  button->setTitle(title, UIControlStateNormal);
  button->setTitleColor(tint(), UIControlStateNormal);
  button->setTitleColor(tint().colorWithAlphaComponent(0.3), UIControlStateHighlighted);
  button->setTitleColor(UIColor::colorWithWhite(0.68, 1), UIControlStateDisabled);
  return button;
}

objc::Ref<UILabel> make_label(CGRect frame, NSString font, CGFloat size,
                              NSTextAlignment alignment) {
  const auto label = objc::Ref<UILabel>::adopt(UILabel::alloc().initWithFrame(frame));
  label->setFont(UIFont::fontWithName(font, size));
  label->setTextAlignment(alignment);
  return label;
}

}  // namespace

ComposerCard::ComposerCard(CGRect frame, NSString title)
    : view_(objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame(frame))) {
  view_->setBackgroundColor(UIColor::colorWithWhite(0.985, 1));
  view_->layer().setCornerRadius(kCornerRadius);
  view_->setClipsToBounds(YES);
  add_bar(title);
  add_text();
  add_footer();
}

void ComposerCard::add_bar(NSString title) {
  const CGFloat width = view_->bounds().size.width;
  const auto name = make_label({kButtonWidth, kTitleDrop, width - 2 * kButtonWidth, kBarHeight},
                               "HelveticaNeue-Medium"_ns, kTextSize, NSTextAlignmentCenter);
  name->setText(title);
  add(name.get());
  cancel_ = make_button("Cancel"_ns, "HelveticaNeue"_ns, {0, 0, kButtonWidth, kBarHeight},
                        UIControlContentHorizontalAlignmentLeft);
  cancel_->setTag(kCancelTag);
  add(cancel_.get());
  post_ = make_button("Post"_ns, "HelveticaNeue-Medium"_ns,
                      {width - kButtonWidth, 0, kButtonWidth, kBarHeight},
                      UIControlContentHorizontalAlignmentRight);
  post_->setTag(kPostTag);
  add(post_.get());
  const CGFloat hairline = 1 / UIScreen::mainScreen().scale();
  const auto line = objc::Ref<UIView>::adopt(
      UIView::alloc().initWithFrame({0, kBarHeight - hairline, width, hairline}));
  line->setBackgroundColor(UIColor::colorWithWhite(0.75, 1));
  add(line.get());
}

void ComposerCard::add_text() {
  const CGSize card = view_->bounds().size;
  text_ = objc::Ref<UITextView>::adopt(UITextView::alloc().initWithFrame(
      {0, kBarHeight, card.width, card.height - kBarHeight - kFooterHeight}));
  text_->setTag(kTextTag);
  text_->setFont(UIFont::fontWithName("HelveticaNeue"_ns, kTextSize));
  text_->setTintColor(tint());
  text_->setTextContainerInset(
      {9, kCardMargin - kTextViewPadding, 6, kCardMargin - kTextViewPadding});
  add(text_.get());
}

void ComposerCard::add_footer() {
  const CGSize card = view_->bounds().size;
  const CGFloat top = card.height - kFooterHeight - 2;
  count_ = make_label({card.width - kCardMargin - kCountWidth, top, kCountWidth, kFooterHeight},
                      "HelveticaNeue"_ns, kFooterSize, NSTextAlignmentRight);
  count_->setTag(kCountTag);
  add(count_.get());
  notice_ =
      make_label({kCardMargin, top, card.width - 2 * kCardMargin - kCountWidth, kFooterHeight},
                 "HelveticaNeue"_ns, kFooterSize, NSTextAlignmentLeft);
  notice_->setTag(kNoticeTag);
  notice_->setTextColor(warning());
  add(notice_.get());
}

void ComposerCard::show_characters_left(std::ptrdiff_t left) {
  count_->setText(NSString::stringWithUTF8String(std::to_string(left).c_str()));
  count_->setTextColor(left < 0 ? warning() : UIColor::colorWithWhite(0.5, 1));
}

void ComposerCard::show_notice(NSString notice) {
  notice_->setText(notice);
}

}  // namespace host::social
