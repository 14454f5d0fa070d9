#pragma once

#include <optional>
#include <string>

#include "platform/Foundation/NSString.h"

namespace host::uikit {

/// A picture's file on this machine, and its scale in pixels per point.
struct PictureFile {
  std::string path;
  double scale = 1;
};

/// Returns the best variant of the picture for a screen of `screen_scale`. A path that names its
/// scale (`@2x`, `@3x`) means exactly that file; otherwise variants beside it are preferred, finest
/// first. A path without an extension means a PNG. Returns nothing when no such file exists.
std::optional<PictureFile> find_picture_file(NSString path, double screen_scale);

}  // namespace host::uikit
