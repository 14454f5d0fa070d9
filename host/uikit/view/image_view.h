#pragma once

#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIImageView.h"

namespace host::uikit {

/// Shows an image as its layer's contents. A template is shown as its shape in the tint colour,
/// drawn once for each pair of image and colour.
class ImageView : public objc::Implementation<ImageView, UIImageView> {
 public:
  explicit ImageView(UIImageView owner) : Implementation(owner) {}

  UIView init_with_frame(CGRect frame);
  UIImageView init_with_image(UIImage image);
  UIImage image() const { return image_.get(); }
  void set_image(UIImage image);
  UIImage highlighted_image() const { return highlighted_image_.get(); }
  void set_highlighted_image(UIImage image);
  BOOL is_highlighted() const { return highlighted_; }
  void set_highlighted(BOOL highlighted);
  void tint_color_did_change();
  CGSize size_that_fits(CGSize size);
  CGSize intrinsic_content_size();

 private:
  UIImage shown_image() const;
  void show();

  objc::Ref<UIImage> image_;
  objc::Ref<UIImage> highlighted_image_;
  BOOL highlighted_ = NO;
  // The tinted image, and the image and colour it was made from.
  objc::Ref<UIImage> tinted_;
  objc::Ref<UIImage> tinted_from_;
  objc::Ref<UIColor> tinted_in_;
};

/// Returns the shape of a template filled with the colour.
UIImage tinted_image(UIImage shape, UIColor color);

void export_image_view();

}  // namespace host::uikit
