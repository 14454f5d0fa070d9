#pragma once

#include "platform/UIKit/UIImage.h"

// The extension's pictures.

namespace sonavue {

/// The path of a picture, as a constant string; `File` is its file name.
template <objc::FixedString File>
NSString asset_path() {
  constexpr auto path = objc::FixedString("/Library/Application Support/Sonavue/") + File;
  return operator""_ns<path>();
}

template <objc::FixedString File>
UIImage asset() {
  return UIImage::imageWithContentsOfFile(asset_path<File>());
}

/// The picture at `path`, to be drawn in the tint colour of its view.
inline UIImage template_image(NSString path) {
  return UIImage::imageWithContentsOfFile(path).imageWithRenderingMode(
      UIImageRenderingModeAlwaysTemplate);
}

template <objc::FixedString File>
UIImage template_asset() {
  return template_image(asset_path<File>());
}

}  // namespace sonavue
