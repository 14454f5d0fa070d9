#include "host/uikit/view/image_view.h"

#include "platform/CoreGraphics/CGContext.h"
#include "platform/UIKit/UIGraphics.h"

namespace host::uikit {

UIImage tinted_image(UIImage shape, UIColor color) {
  const CGSize size = shape.size();
  const CGRect whole{{0, 0}, size};
  UIGraphicsBeginImageContextWithOptions(size, NO, shape.scale());
  const CGContextRef context = UIGraphicsGetCurrentContext();
  shape.imageWithRenderingMode(UIImageRenderingModeAlwaysOriginal).drawInRect(whole);
  CGContextSetBlendMode(context, kCGBlendModeSourceIn);
  color.setFill();
  CGContextFillRect(context, whole);
  const UIImage tinted = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return tinted;
}

UIView ImageView::init_with_frame(CGRect frame) {
  if (!super<UIView>("initWithFrame:"_sel, frame)) return nil;
  // Images take no touches by default.
  self.setUserInteractionEnabled(NO);
  return self;
}

UIImageView ImageView::init_with_image(UIImage image) {
  if (!self.initWithFrame({{0, 0}, image.size()})) return nil;
  self.setImage(image);
  return self;
}

void ImageView::set_image(UIImage image) {
  if (image_.get() == image) return;
  image_.reset(image);
  show();
}

void ImageView::set_highlighted_image(UIImage image) {
  highlighted_image_.reset(image);
  show();
}

void ImageView::set_highlighted(BOOL highlighted) {
  if (highlighted_ == highlighted) return;
  highlighted_ = highlighted;
  if (highlighted_image_) show();
}

UIImage ImageView::shown_image() const {
  return highlighted_ && highlighted_image_ ? highlighted_image_.get() : image_.get();
}

void ImageView::tint_color_did_change() {
  super<>("tintColorDidChange"_sel);
  if (shown_image().renderingMode() == UIImageRenderingModeAlwaysTemplate) show();
}

void ImageView::show() {
  UIImage image = shown_image();
  if (image.renderingMode() == UIImageRenderingModeAlwaysTemplate) {
    const UIColor tint = self.tintColor();
    if (tinted_from_.get() != image || !tinted_in_ || !tinted_in_->isEqual(tint)) {
      tinted_.reset(tinted_image(image, tint));
      tinted_from_.reset(image);
      tinted_in_.reset(tint);
    }
    image = tinted_.get();
  }
  const CALayer layer = self.layer();
  if (image) layer.setContentsScale(image.scale());
  layer.setContents(image.CGImage());
}

CGSize ImageView::size_that_fits(CGSize) {
  return image_->size();
}
CGSize ImageView::intrinsic_content_size() {
  return image_->size();
}

void export_image_view() {
  objc::ClassBuilder("UIImageView", "UIView")
      .state<ImageView>()
      .method<&ImageView::init_with_frame>("initWithFrame:")
      .method<&ImageView::init_with_image>("initWithImage:")
      .method<&ImageView::image>("image")
      .method<&ImageView::set_image>("setImage:")
      .method<&ImageView::highlighted_image>("highlightedImage")
      .method<&ImageView::set_highlighted_image>("setHighlightedImage:")
      .method<&ImageView::is_highlighted>("isHighlighted")
      .method<&ImageView::set_highlighted>("setHighlighted:")
      .method<&ImageView::tint_color_did_change>("tintColorDidChange")
      .method<&ImageView::size_that_fits>("sizeThatFits:")
      .method<&ImageView::intrinsic_content_size>("intrinsicContentSize")
      .finish();
}

}  // namespace host::uikit
