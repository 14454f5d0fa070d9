#pragma once

#include <optional>
#include <span>
#include <string>

#include "host/basics/pixel_rect.h"

namespace host::screen {

using host::PixelRect;

/// The pixels of a whole screen, 32 bits each in the machine's byte order: alpha, red, green, blue,
/// premultiplied. Not owned.
struct Picture {
  const unsigned char* pixels = nullptr;
  int width = 0;
  int height = 0;
  int stride = 0;  // in bytes
};

/// The destination of the phone's picture.
class Screen {
 public:
  virtual ~Screen() = default;

  /// Shows the picture. Only the parts in `damage` have changed since the last call.
  virtual void show(const Picture& picture, std::span<const PixelRect> damage) = 0;
  /// True when every new picture should be shown; false when pictures are drawn only on request.
  virtual bool is_watched() const { return true; }
  /// The pixels that it has for each point of the phone; none stands for those of the device.
  virtual std::optional<double> pixels_per_point() const { return std::nullopt; }
  /// True when the screen has lost what it was shown: the next picture is needed as a whole.
  virtual bool needs_everything() const { return false; }
};

/// An invisible screen. When blind, it does not even receive the pictures.
class Headless final : public Screen {
 public:
  explicit Headless(bool blind = false) : blind_(blind) {}

  void show(const Picture&, std::span<const PixelRect>) override {}
  bool is_watched() const override { return !blind_; }

 private:
  bool blind_;
};

/// Writes the picture to a file. Returns the reason on failure.
std::optional<std::string> write_png(const Picture& picture, const std::string& file);

}  // namespace host::screen
