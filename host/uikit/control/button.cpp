#include "host/uikit/control/button.h"

#include <algorithm>
#include <cmath>

namespace host::uikit {
namespace {

constexpr CGFloat kPressedAlpha = 0.5;
constexpr CGFloat kSystemPressedAlpha = 0.2;
constexpr CGFloat kDisabledButtonAlpha = 0.5;
constexpr CGFloat kSystemTitleSize = 15;
constexpr CGFloat kTitleSize = 18;
// The size of a button without content, large enough to be touched.
constexpr CGSize kEmptySize{30, 34};

CGRect inset(CGRect rect, const UIEdgeInsets& insets) {
  return {rect.origin.x + insets.left, rect.origin.y + insets.top,
          rect.size.width - insets.left - insets.right,
          rect.size.height - insets.top - insets.bottom};
}

UIImage as_template(UIImage image) {
  return image.renderingMode() == UIImageRenderingModeAutomatic
             ? image.imageWithRenderingMode(UIImageRenderingModeAlwaysTemplate)
             : image;
}

}  // namespace

UIButton Button::with_type(objc::Object cls, UIButtonType type) {
  const auto button = objc::send<UIButton>(cls, "alloc"_sel).initWithFrame({}).autorelease();
  objc::state_of<Button>(button).type_ = type;
  return button;
}

void Button::set_image(UIImage image, UIControlState state) {
  images_[state].reset(image);
  update();
}

void Button::set_background_image(UIImage image, UIControlState state) {
  background_images_[state].reset(image);
  if (!background_view_) {
    background_view_ =
        objc::Ref<UIImageView>::adopt(UIImageView::alloc().initWithFrame(self.bounds()));
    self.insertSubview(background_view_.get(), 0);
  }
  update();
}

void Button::set_title(NSString title, UIControlState state) {
  titles_[state].reset(title);
  update();
}

UIColor Button::title_color_for_state(UIControlState state) const {
  if (const UIColor color = found(title_colors_, state)) return color;
  return is_system() ? self.tintColor() : UIColor::whiteColor();
}

void Button::set_title_color(UIColor color, UIControlState state) {
  title_colors_[state].reset(color);
  update();
}

NSString Button::current_title() const {
  return self.titleForState(self.state());
}
UIColor Button::current_title_color() const {
  return self.titleColorForState(self.state());
}
UIImage Button::current_image() const {
  return self.imageForState(self.state());
}

UILabel Button::title_label() {
  if (!title_label_) {
    title_label_ = objc::Ref<UILabel>::adopt(UILabel::alloc().initWithFrame({}));
    title_label_->setFont(UIFont::systemFontOfSize(is_system() ? kSystemTitleSize : kTitleSize));
    title_label_->setLineBreakMode(NSLineBreakByTruncatingMiddle);
    self.addSubview(title_label_.get());
  }
  return title_label_.get();
}

UIImageView Button::image_view() {
  if (!image_view_) {
    image_view_ = objc::Ref<UIImageView>::adopt(UIImageView::alloc().initWithFrame({}));
    // The image keeps its size inside a larger button instead of being stretched.
    image_view_->setContentMode(UIViewContentModeScaleToFill);
    self.addSubview(image_view_.get());
  }
  return image_view_.get();
}

void Button::set_content_insets(UIEdgeInsets insets) {
  content_insets_ = insets;
  self.setNeedsLayout();
}
void Button::set_image_insets(UIEdgeInsets insets) {
  image_insets_ = insets;
  self.setNeedsLayout();
}
void Button::set_title_insets(UIEdgeInsets insets) {
  title_insets_ = insets;
  self.setNeedsLayout();
}

void Button::set_highlighted(BOOL highlighted) {
  if (self.isHighlighted() == highlighted) return;
  super<>("setHighlighted:"_sel, highlighted);
  update();
}

void Button::set_enabled(BOOL enabled) {
  super<>("setEnabled:"_sel, enabled);
  update();
}

void Button::set_selected(BOOL selected) {
  super<>("setSelected:"_sel, selected);
  update();
}

void Button::tint_color_did_change() {
  super<>("tintColorDidChange"_sel);
  update();
}

/// Shows the content for the current state.
void Button::update() {
  const UIImage image = self.currentImage();
  if (image || image_view_) self.imageView().setImage(is_system() ? as_template(image) : image);
  const NSString title = self.currentTitle();
  if (title || title_label_) {
    const UILabel label = self.titleLabel();
    label.setText(title);
    label.setTextColor(self.currentTitleColor());
  }
  if (background_view_) background_view_->setImage(self.backgroundImageForState(self.state()));
  update_dimming();
  self.setNeedsLayout();
}

/// A pressed or disabled button fades, unless it has its own content for that state.
void Button::update_dimming() {
  const bool pressed = self.isHighlighted();
  const bool has_own_image =
      images_.contains(pressed ? UIControlStateHighlighted : UIControlStateDisabled);
  CGFloat alpha = 1;
  if (!self.isEnabled() && adjusts_when_disabled_) alpha = kDisabledButtonAlpha;
  if (pressed && adjusts_when_highlighted_) {
    alpha = is_system() ? kSystemPressedAlpha : kPressedAlpha;
  }
  if (image_view_) image_view_->setAlpha(has_own_image ? 1 : alpha);
  if (title_label_ && is_system()) title_label_->setAlpha(alpha);
}

CGSize Button::title_size() {
  if (!self.currentTitle()) return {};
  return self.titleLabel().sizeThatFits({HUGE_VAL, HUGE_VAL});
}

CGFloat Button::content_left(CGRect content) {
  const CGFloat width = std::min(image_size().width + title_size().width, content.size.width);
  switch (self.contentHorizontalAlignment()) {
    case UIControlContentHorizontalAlignmentLeft:
    case UIControlContentHorizontalAlignmentFill:
      return content.min_x();
    case UIControlContentHorizontalAlignmentRight:
      return content.max_x() - width;
    case UIControlContentHorizontalAlignmentCenter:
      break;
  }
  return content.min_x() + (content.size.width - width) / 2;
}

CGRect Button::image_rect(CGRect content) {
  const CGRect room = inset(content, image_insets_);
  const CGSize wanted = image_size();
  // An image larger than the button is scaled down; a smaller one is not enlarged.
  const CGSize size{std::min(wanted.width, room.size.width),
                    std::min(wanted.height, room.size.height)};
  const CGFloat y = room.min_y() + (room.size.height - size.height) / 2;
  return {content_left(room), y, size.width, size.height};
}

CGRect Button::title_rect(CGRect content) {
  const CGRect room = inset(content, title_insets_);
  const CGFloat left = content_left(room) + std::min(image_size().width, room.size.width);
  const CGSize wanted = title_size();
  const CGSize size{std::min(wanted.width, std::max(room.max_x() - left, 0.0)),
                    std::min(wanted.height, room.size.height)};
  const CGFloat y = room.min_y() + (room.size.height - size.height) / 2;
  return {left, y, size.width, size.height};
}

void Button::layout_subviews() {
  super<>("layoutSubviews"_sel);
  const CGRect bounds = self.bounds();
  const CGRect content = inset(bounds, content_insets_);
  if (background_view_) background_view_->setFrame(bounds);
  if (image_view_) image_view_->setFrame(self.imageRectForContentRect(content));
  if (title_label_) title_label_->setFrame(self.titleRectForContentRect(content));
}

CGSize Button::size_that_fits(CGSize) {
  const CGSize image = image_size();
  const CGSize title = title_size();
  CGSize size{image.width + title.width, std::max(image.height, title.height)};
  if (size.width == 0 && size.height == 0) size = kEmptySize;
  return {size.width + content_insets_.left + content_insets_.right,
          size.height + content_insets_.top + content_insets_.bottom};
}

CGSize Button::intrinsic_content_size() {
  return self.sizeThatFits({HUGE_VAL, HUGE_VAL});
}

void export_button() {
  objc::ClassBuilder("UIButton", "UIControl")
      .state<Button>()
      .class_method<&Button::with_type>("buttonWithType:")
      .method<&Button::type>("buttonType")
      .method<&Button::image_for_state>("imageForState:")
      .method<&Button::set_image>("setImage:forState:")
      .method<&Button::background_image_for_state>("backgroundImageForState:")
      .method<&Button::set_background_image>("setBackgroundImage:forState:")
      .method<&Button::title_for_state>("titleForState:")
      .method<&Button::set_title>("setTitle:forState:")
      .method<&Button::title_color_for_state>("titleColorForState:")
      .method<&Button::set_title_color>("setTitleColor:forState:")
      .method<&Button::current_title>("currentTitle")
      .method<&Button::current_title_color>("currentTitleColor")
      .method<&Button::current_image>("currentImage")
      .method<&Button::title_label>("titleLabel")
      .method<&Button::image_view>("imageView")
      .method<&Button::adjusts_when_highlighted>("adjustsImageWhenHighlighted")
      .method<&Button::set_adjusts_when_highlighted>("setAdjustsImageWhenHighlighted:")
      .method<&Button::adjusts_when_disabled>("adjustsImageWhenDisabled")
      .method<&Button::set_adjusts_when_disabled>("setAdjustsImageWhenDisabled:")
      .method<&Button::content_insets>("contentEdgeInsets")
      .method<&Button::set_content_insets>("setContentEdgeInsets:")
      .method<&Button::image_insets>("imageEdgeInsets")
      .method<&Button::set_image_insets>("setImageEdgeInsets:")
      .method<&Button::title_insets>("titleEdgeInsets")
      .method<&Button::set_title_insets>("setTitleEdgeInsets:")
      .method<&Button::image_rect>("imageRectForContentRect:")
      .method<&Button::title_rect>("titleRectForContentRect:")
      .method<&Button::set_highlighted>("setHighlighted:")
      .method<&Button::set_enabled>("setEnabled:")
      .method<&Button::set_selected>("setSelected:")
      .method<&Button::tint_color_did_change>("tintColorDidChange")
      .method<&Button::layout_subviews>("layoutSubviews")
      .method<&Button::size_that_fits>("sizeThatFits:")
      .method<&Button::intrinsic_content_size>("intrinsicContentSize")
      .finish();
}

}  // namespace host::uikit
