#pragma once

#include <optional>
#include <string>

#include "platform/Foundation/NSString.h"

namespace host::uikit {

/// A picture's file of this machine, and how many of its pixels make a point.
struct PictureFile {
  std::string path;
  double scale = 1;
};

/// The best variant of the picture for a screen of `screen_scale`: a path that names its scale
/// (`@2x`, `@3x`) means that file; otherwise the variants beside it are preferred, finest first.
/// A path without extension means a PNG. Nothing when no such file is there.
std::optional<PictureFile> find_picture_file(NSString path, double screen_scale);

/// Does the file begin as a picture does? Nothing is decoded.
bool is_picture_file(const std::string& path);

}  // namespace host::uikit
