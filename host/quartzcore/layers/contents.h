#pragma once

#include <optional>
#include <string_view>

#include "host/quartzcore/drawing/image.h"
#include "objc/ref.h"
#include "platform/CoreGraphics/CGRect.h"
#include "platform/Foundation/NSString.h"

namespace host::quartzcore {

enum class Gravity {
  Resize,
  ResizeAspect,
  ResizeAspectFill,
  Center,
  Top,
  Bottom,
  Left,
  Right,
  TopLeft,
  TopRight,
  BottomLeft,
  BottomRight,
};

NSString name_of(Gravity gravity);
std::optional<Gravity> gravity_named(std::string_view name);

/// The `contents` of a layer, and how they are placed.
class Contents {
 public:
  Gravity gravity = Gravity::Resize;
  double scale = 1;
  /// The density of the screen for which the layer has drawn the image; 1 for an image that it was
  /// given.
  double density = 1;

  objc::Object object() const { return object_.get(); }
  /// Null when the object is not an image.
  const Image* image() const { return image_; }
  void show(objc::Object object);

  /// The frame of an image in the coordinates of a layer with these bounds.
  CGRect place_of(const Image& image, const CGRect& bounds) const;
  /// True when that frame may differ from the bounds.
  bool has_own_place() const { return gravity != Gravity::Resize; }

 private:
  objc::Ref<objc::Object> object_;
  const Image* image_ = nullptr;
};

}  // namespace host::quartzcore
