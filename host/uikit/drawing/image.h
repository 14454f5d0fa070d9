#pragma once

#include "host/quartzcore/drawing/encoded_image.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/UIKit/UIImage.h"

namespace host::uikit {

class Image : public objc::Implementation<Image, UIImage> {
 public:
  explicit Image(UIImage owner) : Implementation(owner) {}

  UIImage init_with_file(NSString path);
  UIImage init_with_data(NSData data);
  UIImage init_with_cg_image(CGImageRef image);
  UIImage init_with_oriented_cg_image(CGImageRef image, CGFloat scale,
                                      UIImageOrientation orientation);

  CGSize size();
  CGFloat scale() const { return scale_; }
  CGImageRef cg_image() const;
  UIImageOrientation orientation() const { return orientation_; }
  UIImageRenderingMode rendering_mode() const { return rendering_mode_; }
  UIImage with_rendering_mode(UIImageRenderingMode mode) const;
  NSString description();
  /// Images are immutable, so a copy is the image itself.
  UIImage copy_with_zone(void*) const;

  void draw_at_point(CGPoint point);
  void draw_in_rect(CGRect rect);
  void draw_blended(CGRect rect, CGBlendMode mode, CGFloat alpha);

  void set_scale(double scale) { scale_ = scale; }

 private:
  UIImage refuse();

  UIImage init_with_picture(const std::shared_ptr<quartzcore::EncodedImage>& picture);

  objc::Ref<quartzcore::CGImageObject> pixels_;
  double scale_ = 1;
  UIImageOrientation orientation_ = UIImageOrientationUp;
  UIImageRenderingMode rendering_mode_ = UIImageRenderingModeAutomatic;
};

void export_image();

}  // namespace host::uikit
