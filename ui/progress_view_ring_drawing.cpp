#include "platform/Foundation/NSValue.h"
#include "platform/UIKit/UIBezierPath.h"
#include "ui/progress_view_ring.h"

namespace sonavue {
namespace {

constexpr double kPi = 3.14159265358979323846;
constexpr CGFloat kTwelveOClock = -kPi / 2;
constexpr CGFloat kFullCircleEnd = kTwelveOClock + 2 * kPi;
// The gap that makes the rotation visible.
constexpr CGFloat kGapBegin = 1.2 * kPi;

// Icons are drawn in units of this fraction of the ring's radius.
constexpr CGFloat kIconUnit = 0.3;
constexpr CGFloat kCheckMarkX = 0.46;
constexpr CGFloat kCheckMarkY = 1.02;
constexpr CGFloat kCrossUnits = 3;
// The sine and the cosine of 45 degrees.
constexpr CGFloat kDiagonal = 0.70710678118654752440;

constexpr CGPoint kCheckMark[] = {{0, 0}, {0, 2}, {3, 2}, {3, 1}, {1, 1}, {1, 0}};
constexpr CGPoint kCross[] = {{1, 0}, {2, 0}, {2, 1}, {3, 1}, {3, 2}, {2, 2},
                              {2, 3}, {1, 3}, {1, 2}, {0, 2}, {0, 1}, {1, 1}};

// The control is square, so one size is enough.
UIBezierPath ring_path(CGFloat size, CGFloat ring_width, CGFloat start, CGFloat end) {
  return UIBezierPath::bezierPathWithArcCenter({size / 2, size / 2}, (size - ring_width) / 2, start,
                                               end, YES);
}

template <std::size_t Count>
UIBezierPath polygon(const CGPoint (&corners)[Count], CGFloat unit) {
  const UIBezierPath path = UIBezierPath::bezierPath();
  path.moveToPoint({corners[0].x * unit, corners[0].y * unit});
  for (std::size_t i = 1; i < Count; ++i)
    path.addLineToPoint({corners[i].x * unit, corners[i].y * unit});
  path.closePath();
  return path;
}

// A song of length zero gives a progress of NaN, which cannot become an angle.
float drawable(float progress) {
  return __builtin_isfinite(progress) ? progress : 0;
}

}  // namespace

void ProgressViewRing::draw_rect(CGRect rect) {
  super<>("drawRect:"_sel, rect);
  self.drawBackground();
  self.drawIcon();
  self.drawProgress();
}

void ProgressViewRing::draw_background() {
  const CGFloat end = self.indeterminate() ? kGapBegin : kFullCircleEnd;
  const UIBezierPath path =
      ring_path(self.bounds().size.width, background_ring_width_, kTwelveOClock, end);
  // The path's width is only informative: the layer strokes with its own width.
  path.setLineWidth(progress_ring_width_);
  path.setLineCapStyle(kCGLineCapRound);
  background_layer_->setPath(path.CGPath());
}

void ProgressViewRing::draw_icon() {
  switch (drawn_action_) {
    case M13ProgressViewActionSuccess:
      return self.drawSuccess();
    case M13ProgressViewActionFailure:
      return self.drawFailure();
    default:
      icon_layer_->setPath(nullptr);
  }
}

void ProgressViewRing::draw_progress() {
  constexpr auto start = static_cast<float>(kTwelveOClock);
  constexpr auto turn = static_cast<float>(2 * kPi);
  const float progress = self.progress();
  const UIBezierPath path = ring_path(self.bounds().size.width, progress_ring_width_, start,
                                      start + drawable(progress) * turn);
  path.setLineCapStyle(kCGLineCapButt);
  path.setLineWidth(progress_ring_width_);
  progress_layer_->setPath(path.CGPath());
  percentage_label_->setText(
      percentage_formatter_->stringFromNumber(NSNumber::numberWithFloat(progress)));
}

void ProgressViewRing::draw_success() {
  const CGFloat radius = self.frame().size.width * 0.5;
  const UIBezierPath path = polygon(kCheckMark, radius * kIconUnit);
  path.applyTransform(
      {kDiagonal, -kDiagonal, kDiagonal, kDiagonal, kCheckMarkX * radius, kCheckMarkY * radius});
  icon_layer_->setPath(path.CGPath());
}

void ProgressViewRing::draw_failure() {
  const CGFloat radius = self.frame().size.width * 0.5;
  const CGFloat unit = radius * kIconUnit;
  const UIBezierPath path = polygon(kCross, unit);
  // Rotate it around its own centre, then move that to the ring's centre.
  const CGFloat middle = unit * kCrossUnits / 2;
  path.applyTransform({1, 0, 0, 1, -middle, -middle});
  path.applyTransform({kDiagonal, kDiagonal, -kDiagonal, kDiagonal, radius, radius});
  icon_layer_->setPath(path.CGPath());
}

}  // namespace sonavue
