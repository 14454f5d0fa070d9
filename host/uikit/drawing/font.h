#pragma once

#include "host/uikit/drawing/font_face.h"
#include "objc/class_builder.h"
#include "platform/UIKit/UIFont.h"

namespace host::uikit {

class Font : public objc::Implementation<Font, UIFont> {
 public:
  explicit Font(UIFont owner) : Implementation(owner) {}

  UIFont with_size(CGFloat size) const;
  NSString font_name() const;
  NSString family_name() const;
  CGFloat point_size() const { return size_; }
  CGFloat ascender() const { return metrics_of(face_).ascender * size_; }
  CGFloat descender() const { return metrics_of(face_).descender * size_; }
  CGFloat cap_height() const { return metrics_of(face_).cap_height * size_; }
  CGFloat x_height() const { return metrics_of(face_).x_height * size_; }
  CGFloat leading() const { return 0; }
  CGFloat line_height() const;
  BOOL is_equal(objc::Object other) const;
  NSUInteger hash() const;
  NSString description() const;
  /// Fonts are immutable, so a copy is the font itself.
  UIFont copy_with_zone(void*) const;

  const FontFace& face() const { return face_; }
  void prepare(const FontFace& face, CGFloat size);

 private:
  FontFace face_ = system_face();
  CGFloat size_ = 0;
};

void export_font();

}  // namespace host::uikit
