#include "host/uikit/drawing/image.h"

#include <fmt/format.h>

#include "host/runtime/device_model.h"
#include "host/uikit/drawing/image_orientation.h"
#include "host/uikit/drawing/picture_file.h"
#include "host/uikit/drawing/picture_store.h"
#include "platform/Foundation/NSBundle.h"
#include "platform/UIKit/UIGraphics.h"

namespace host::uikit {

using quartzcore::CGImageObject;

namespace {

UIImage image_with_file(objc::Object, NSString path) {
  return UIImage::alloc().initWithContentsOfFile(path).autorelease();
}

UIImage image_with_data(objc::Object, NSData data) {
  return UIImage::alloc().initWithData(data).autorelease();
}

UIImage image_with_scaled_data(objc::Object, NSData data, CGFloat scale) {
  const UIImage image = UIImage::imageWithData(data);
  if (image) objc::state_of<Image>(image).set_scale(scale > 0 ? scale : 1);
  return image;
}

UIImage image_with_cg_image(objc::Object, CGImageRef image) {
  return UIImage::alloc().initWithCGImage(image).autorelease();
}

UIImage image_with_oriented_cg_image(objc::Object, CGImageRef image, CGFloat scale,
                                     UIImageOrientation orientation) {
  return UIImage::alloc().initWithCGImage(image, scale, orientation).autorelease();
}

UIImage image_named(objc::Object, NSString name) {
  // Named images are cached: the platform promises that repeated requests are cheap.
  static const NSMutableDictionary kept = NSMutableDictionary::alloc().init();
  if (!name) return nil;
  if (const auto known = objc::cast<UIImage>(kept.objectForKey(name))) return known;
  const NSString folder = NSBundle::mainBundle().resourcePath();
  const UIImage image =
      UIImage::imageWithContentsOfFile(folder.stringByAppendingPathComponent(name));
  if (image) kept.setObject(image, name);
  return image;
}

objc::Ref<CGImageObject> adopted(CGImageRef image) {
  return objc::Ref<CGImageObject>::adopt(objc::cast<CGImageObject>(quartzcore::object_of(image)));
}

}  // namespace

// A failed initializer releases its object and returns nil.
UIImage Image::refuse() {
  self.release();
  return nil;
}

UIImage Image::init_with_picture(const std::shared_ptr<quartzcore::EncodedImage>& picture) {
  if (!picture) return refuse();
  pixels_ = adopted(quartzcore::promise_image(picture));
  return self;
}

UIImage Image::init_with_file(NSString path) {
  const auto file = find_picture_file(path, current_device().scale);
  if (!file) return refuse();
  scale_ = file->scale;
  return init_with_picture(picture_of_file(file->path));
}

UIImage Image::init_with_data(NSData data) {
  const auto* bytes = static_cast<const char*>(data.bytes());
  if (!bytes) return refuse();
  return init_with_picture(
      quartzcore::EncodedImage::read({bytes, data.length()}, "a picture in memory"));
}

UIImage Image::init_with_cg_image(CGImageRef image) {
  return self.initWithCGImage(image, 1, UIImageOrientationUp);
}

UIImage Image::init_with_oriented_cg_image(CGImageRef image, CGFloat scale,
                                           UIImageOrientation orientation) {
  if (!image) return refuse();
  pixels_ = adopted(CGImageRetain(image));
  scale_ = scale > 0 ? scale : 1;
  orientation_ = orientation;
  return self;
}

CGSize Image::size() {
  const CGImageRef pixels = self.CGImage();
  if (!pixels) return {};
  const CGSize size{static_cast<double>(CGImageGetWidth(pixels)) / scale_,
                    static_cast<double>(CGImageGetHeight(pixels)) / scale_};
  return is_sideways(orientation_) ? CGSize{size.height, size.width} : size;
}

CGImageRef Image::cg_image() const {
  return reinterpret_cast<CGImageRef>(pixels_.get().id());
}

UIImage Image::with_rendering_mode(UIImageRenderingMode mode) const {
  const UIImage image = UIImage::alloc().init().autorelease();
  auto& state = objc::state_of<Image>(image);
  state.pixels_ = pixels_;
  state.scale_ = scale_;
  state.orientation_ = orientation_;
  state.rendering_mode_ = mode;
  return image;
}

NSString Image::description() {
  const CGSize extent = size();
  const std::string text =
      fmt::format("<UIImage {:g}x{:g} @{:g}x>", extent.width, extent.height, scale_);
  return NSString::stringWithUTF8String(text.c_str());
}

UIImage Image::copy_with_zone(void*) const {
  return self.retain();
}

void Image::draw_at_point(CGPoint point) {
  self.drawInRect(CGRect(point, self.size()));
}

void Image::draw_in_rect(CGRect rect) {
  self.drawInRect(rect, kCGBlendModeNormal, 1);
}

void Image::draw_blended(CGRect rect, CGBlendMode mode, CGFloat alpha) {
  const CGContextRef context = UIGraphicsGetCurrentContext();
  const CGImageRef pixels = self.CGImage();
  if (!context || !pixels) return;
  CGContextSaveGState(context);
  CGContextSetBlendMode(context, mode);
  CGContextSetAlpha(context, alpha);
  CGContextConcatCTM(context, turned_into(rect, orientation_));
  CGContextDrawImage(context, unturned(rect, orientation_), pixels);
  CGContextRestoreGState(context);
}

void export_image() {
  if (objc_getClass("UIImage")) return;
  objc::ClassBuilder("UIImage", "NSObject")
      .state<Image>()
      .class_method<&image_named>("imageNamed:")
      .class_method<&image_with_file>("imageWithContentsOfFile:")
      .class_method<&image_with_data>("imageWithData:")
      .class_method<&image_with_scaled_data>("imageWithData:scale:")
      .class_method<&image_with_cg_image>("imageWithCGImage:")
      .class_method<&image_with_oriented_cg_image>("imageWithCGImage:scale:orientation:")
      .method<&Image::init_with_file>("initWithContentsOfFile:")
      .method<&Image::init_with_data>("initWithData:")
      .method<&Image::init_with_cg_image>("initWithCGImage:")
      .method<&Image::init_with_oriented_cg_image>("initWithCGImage:scale:orientation:")
      .method<&Image::size>("size")
      .method<&Image::scale>("scale")
      .method<&Image::cg_image>("CGImage")
      .method<&Image::orientation>("imageOrientation")
      .method<&Image::rendering_mode>("renderingMode")
      .method<&Image::with_rendering_mode>("imageWithRenderingMode:")
      .method<&Image::description>("description")
      .method<&Image::copy_with_zone>("copyWithZone:")
      .method<&Image::draw_at_point>("drawAtPoint:")
      .method<&Image::draw_in_rect>("drawInRect:")
      .method<&Image::draw_blended>("drawInRect:blendMode:alpha:")
      .finish();
}

}  // namespace host::uikit
