#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "host/browser/phone/messages.h"
#include "host/browser/phone/picture_encoder.h"
#include "host/runtime/run_loop.h"
#include "host/screen/screen.h"

namespace host::browser {

/// The phone's screen on a page. Changes are sent as JPEG; what then rests is sent once more as
/// PNG, piece by piece. While the page has not shown two pictures, changes are united and wait: a
/// slow page gets fewer pictures, and costs the phone nothing.
class PageScreen final : public screen::Screen {
 public:
  static constexpr std::uint32_t kMostInFlight = 2;
  /// The time in seconds after which a part counts as resting.
  static constexpr double kRest = 0.3;

  using Send = std::function<void(const Part&)>;

  PageScreen(RunLoop& loop, double device_pixels_per_point, Send send);
  ~PageScreen() override;

  void show(const screen::Picture& picture, std::span<const screen::PixelRect> damage) override;
  bool is_watched() const override { return is_connected_ && is_visible_; }
  bool needs_everything() const override { return needs_everything_; }
  std::optional<double> pixels_per_point() const override { return pixels_per_point_; }

  /// A new page has nothing yet, and is sent nothing before it has told its shape.
  void connect();
  void disconnect() { is_connected_ = false; }
  void take(const Shape& shape);
  void take(const Shown& shown);

 private:
  struct Unsharp {
    screen::PixelRect part;
    double since;
  };

  bool may_send() const { return is_connected_ && sent_ - shown_ < kMostInFlight; }
  void add_damage(const screen::PixelRect& part);
  void send_damage();
  void send_part(const screen::PixelRect& part, PartFormat format, bool is_last);
  void blur(const screen::PixelRect& part);
  void sharpen_later();
  void sharpen();

  RunLoop& loop_;
  const double device_pixels_per_point_;
  const Send send_;
  const PictureEncoder encoder_;
  std::optional<screen::Picture> picture_;
  std::optional<double> pixels_per_point_;
  bool is_connected_ = false;
  bool is_visible_ = false;
  bool needs_everything_ = false;
  std::vector<screen::PixelRect> damage_;
  std::vector<Unsharp> unsharp_;
  std::uint32_t sent_ = 0;
  std::uint32_t shown_ = 0;
  RunLoop::Id timer_ = 0;
};

}  // namespace host::browser
