#include "host/uikit/drawing/picture_file.h"

#include <fmt/format.h>
#include <unistd.h>

#include <string_view>

namespace host::uikit {
namespace {

std::optional<PictureFile> readable(const std::string& device_path, double scale) {
  // Through Foundation, which maps a path of the device to one of this machine.
  const char* path = NSString::stringWithUTF8String(device_path.c_str()).fileSystemRepresentation();
  if (!path || access(path, R_OK) != 0) return std::nullopt;
  return PictureFile{path, scale};
}

}  // namespace

std::optional<PictureFile> find_picture_file(NSString path, double screen_scale) {
  if (!path || !path.length()) return std::nullopt;
  const std::string stem = path.stringByDeletingPathExtension().UTF8String();
  const std::string given_extension = path.pathExtension().UTF8String();
  const std::string extension = given_extension.empty() ? "png" : given_extension;
  const std::string plain = stem + "." + extension;
  for (const int scale : {2, 3}) {
    if (std::string_view(stem).ends_with(fmt::format("@{}x", scale))) return readable(plain, scale);
  }
  for (int scale = static_cast<int>(screen_scale); scale > 1; --scale) {
    if (auto found = readable(fmt::format("{}@{}x.{}", stem, scale, extension), scale))
      return found;
  }
  return readable(plain, 1);
}

}  // namespace host::uikit
