#pragma once

#include <optional>
#include <span>
#include <string>

namespace host::screen {

struct PixelRect {
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

/// Pixels of a whole screen, 32 bits each in the machine's byte order: alpha, red, green, blue,
/// premultiplied. Borrowed.
struct Picture {
  const unsigned char* pixels = nullptr;
  int width = 0;
  int height = 0;
  int stride = 0;  // in bytes
};

/// Where the phone's picture goes.
class Screen {
 public:
  virtual ~Screen() = default;

  /// Shows the picture, of which only the damaged parts have changed since the last time.
  virtual void show(const Picture& picture, std::span<const PixelRect> damage) = 0;
  /// Are pictures wanted as they come, and not only those that are asked for?
  virtual bool is_watched() const { return true; }
};

/// A screen that nobody looks at. Blind, it does not even want the pictures.
class Headless final : public Screen {
 public:
  explicit Headless(bool blind = false) : blind_(blind) {}

  void show(const Picture&, std::span<const PixelRect>) override {}
  bool is_watched() const override { return !blind_; }

 private:
  bool blind_;
};

/// Writes the picture to a file. Gives the reason when that failed.
std::optional<std::string> write_png(const Picture& picture, const std::string& file);

}  // namespace host::screen
