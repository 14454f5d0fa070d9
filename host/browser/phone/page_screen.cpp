#include "host/browser/phone/page_screen.h"

#include <algorithm>
#include <utility>

namespace host::browser {
namespace {

using screen::PixelRect;

// With more parts than this, one around them all costs less.
constexpr std::size_t kMostParts = 4;
constexpr std::size_t kMostUnsharp = 16;
// A part of this many pixels is sent without loss at once.
constexpr long kFewPixels = 64 * 64;
// The rows of a resting part that are sent at a time: encoding more would hold up a frame.
constexpr int kBand = 48;
// In seconds, between two looks for parts that rest.
constexpr double kLook = 0.1;

}  // namespace

PageScreen::PageScreen(RunLoop& loop, double device_pixels_per_point, Send send)
    : loop_(loop), device_pixels_per_point_(device_pixels_per_point), send_(std::move(send)) {}

PageScreen::~PageScreen() {
  if (timer_) loop_.remove_timer(timer_);
}

void PageScreen::connect() {
  is_connected_ = true;
  is_visible_ = false;
  damage_.clear();
  unsharp_.clear();
  sent_ = shown_ = 0;
}

void PageScreen::take(const Shape& shape) {
  constexpr double kSmallest = 0.2;
  const double fitting = std::clamp(shape.pixels_per_point, kSmallest, device_pixels_per_point_);
  pixels_per_point_ = fitting;
  needs_everything_ |= shape.is_visible && !is_visible_;
  is_visible_ = shape.is_visible;
}

void PageScreen::take(const Shown& shown) {
  // Only what has been sent can be shown.
  if (shown.picture - shown_ > sent_ - shown_) return;
  shown_ = shown.picture;
  send_damage();
  sharpen();
}

void PageScreen::show(const screen::Picture& picture, std::span<const PixelRect> damage) {
  if (picture_ && picture_->width != picture.width) {
    damage_.clear();
    unsharp_.clear();
  }
  picture_ = picture;
  needs_everything_ = false;
  for (const PixelRect& part : damage)
    add_damage(part);
  send_damage();
}

void PageScreen::add_damage(const PixelRect& part) {
  for (PixelRect& known : damage_) {
    if (!intersects(known, part)) continue;
    known = united(known, part);
    return;
  }
  damage_.push_back(part);
  if (damage_.size() <= kMostParts) return;
  PixelRect all = damage_.front();
  for (const PixelRect& one : damage_)
    all = united(all, one);
  damage_ = {all};
}

void PageScreen::send_damage() {
  if (damage_.empty() || !may_send()) return;
  ++sent_;
  const auto parts = std::exchange(damage_, {});
  for (const PixelRect& part : parts) {
    const bool is_small = part.area() <= kFewPixels;
    if (!is_small) blur(part);
    send_part(part, is_small ? PartFormat::Png : PartFormat::Jpeg, &part == &parts.back());
  }
}

void PageScreen::send_part(const PixelRect& part, PartFormat format, bool is_last) {
  send_({sent_, is_last, picture_->width, picture_->height, part.x, part.y, format,
         format == PartFormat::Png ? png(*picture_, part) : encoder_.jpeg(*picture_, part)});
}

void PageScreen::blur(const PixelRect& part) {
  std::erase_if(unsharp_, [&part](const Unsharp& one) { return part.contains(one.part); });
  unsharp_.push_back({part, loop_.now()});
  if (unsharp_.size() > kMostUnsharp) {
    PixelRect all = part;
    for (const Unsharp& one : unsharp_)
      all = united(all, one.part);
    unsharp_ = {{all, loop_.now()}};
  }
  sharpen_later();
}

void PageScreen::sharpen_later() {
  if (timer_ || unsharp_.empty()) return;
  timer_ = loop_.add_timer(loop_.now() + kLook, 0, [this] {
    timer_ = 0;
    sharpen();
    sharpen_later();
  });
}

void PageScreen::sharpen() {
  if (!damage_.empty() || !may_send()) return;
  const auto resting = std::find_if(unsharp_.begin(), unsharp_.end(), [this](const auto& one) {
    return loop_.now() - one.since >= kRest;
  });
  if (resting == unsharp_.end()) return;
  PixelRect band = resting->part;
  band.height = std::min(band.height, kBand);
  resting->part.y += band.height;
  resting->part.height -= band.height;
  if (resting->part.height == 0) unsharp_.erase(resting);
  ++sent_;
  send_part(band, PartFormat::Png, true);
}

}  // namespace host::browser
