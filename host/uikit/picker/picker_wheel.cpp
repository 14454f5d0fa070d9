#include "host/uikit/picker/picker_wheel.h"

#include "platform/CoreGraphics/CGAffineTransform.h"

namespace host::uikit {
namespace {

constexpr CGFloat kWheelFontSize = 22;
constexpr CGFloat kWheelMargin = 10;
/// The wheel shows slightly less than its front half.
constexpr double kSeenShare = 0.98;
constexpr CGFloat kFarAlpha = 0.42;
constexpr CGFloat kNarrowing = 0.1;

}  // namespace

PickerWheel::~PickerWheel() {
  self.setDelegate(nil);
}

objc::Ref<UIPickerWheel> PickerWheel::make(std::function<void(NSInteger)> on_choice) {
  const auto made = objc::Ref<UIPickerWheel>::adopt(
      objc::cast<UIPickerWheel>(UIPickerWheel::alloc().initWithFrame({})));
  objc::state_of<PickerWheel>(made.get()).on_choice_ = std::move(on_choice);
  return made;
}

UIView PickerWheel::init_with_frame(CGRect frame) {
  if (!super<UIView>("initWithFrame:"_sel, frame)) return nil;
  self.setShowsVerticalScrollIndicator(NO);
  self.setShowsHorizontalScrollIndicator(NO);
  self.setAlwaysBounceVertical(YES);
  self.setScrollsToTop(NO);
  self.setDelegate(self);
  const auto tap = UITapGestureRecognizer::alloc().initWithTarget(self, "_tapped:"_sel);
  self.addGestureRecognizer(tap);
  tap.release();
  return self;
}

void PickerWheel::load(Rows rows) {
  for (const auto& [row, label] : labels_)
    label->removeFromSuperview();
  labels_.clear();
  rows_ = std::move(rows);
  chosen_ = std::clamp<NSInteger>(chosen_, 0, std::max<NSInteger>(rows_.count - 1, 0));
  set_frame(self.frame());
}

void PickerWheel::forget_picker() {
  rows_.title = {};
  on_choice_ = {};
}

// The inset lets the first and the last row reach the middle.
void PickerWheel::set_frame(CGRect frame) {
  super<>("setFrame:"_sel, frame);
  const CGFloat edge = (frame.size.height - kPickerRow) / 2;
  self.setContentSize({frame.size.width, static_cast<CGFloat>(rows_.count) * kPickerRow});
  self.setContentInset({edge, 0, edge, 0});
  choose(chosen_, false);
  self.setNeedsLayout();
}

CGFloat PickerWheel::offset_of(NSInteger row) const {
  return static_cast<CGFloat>(row) * kPickerRow - self.contentInset().top;
}

NSInteger PickerWheel::row_near(CGFloat offset) const {
  const CGFloat row = std::round((offset + self.contentInset().top) / kPickerRow);
  return std::clamp(static_cast<NSInteger>(row), NSInteger{0},
                    std::max<NSInteger>(rows_.count - 1, 0));
}

WheelGeometry PickerWheel::geometry() const {
  return {self.bounds().size.height / 2 / kSeenShare};
}

void PickerWheel::choose(NSInteger row, bool animated) {
  if (rows_.count == 0) return;
  chosen_ = std::clamp<NSInteger>(row, 0, rows_.count - 1);
  self.setContentOffset({0, offset_of(chosen_)}, animated ? YES : NO);
}

void PickerWheel::layout_subviews() {
  super<>("layoutSubviews"_sel);
  const WheelGeometry wheel = geometry();
  const CGRect bounds = self.bounds();
  const double middle = bounds.min_y() + bounds.size.height / 2;
  const auto distance_of = [&](NSInteger row) {
    return (static_cast<double>(row) + 0.5) * kPickerRow - middle;
  };
  std::erase_if(labels_, [&](const auto& entry) {
    if (wheel.is_seen(distance_of(entry.first))) return false;
    entry.second->removeFromSuperview();
    return true;
  });
  const auto first = static_cast<NSInteger>(std::floor((middle - wheel.reach()) / kPickerRow));
  const auto last = static_cast<NSInteger>(std::ceil((middle + wheel.reach()) / kPickerRow));
  for (NSInteger row = std::max<NSInteger>(first, 0); row < std::min(last, rows_.count); ++row)
    if (wheel.is_seen(distance_of(row))) place(label_of(row), distance_of(row));
}

UILabel PickerWheel::label_of(NSInteger row) {
  if (const auto made = labels_.find(row); made != labels_.end()) return made->second.get();
  const CGFloat width = self.bounds().size.width - 2 * kWheelMargin;
  auto label = objc::Ref<UILabel>::adopt(
      UILabel::alloc().initWithFrame({kWheelMargin, 0, width, kPickerRow}));
  label->setFont(UIFont::systemFontOfSize(kWheelFontSize));
  label->setTextAlignment(NSTextAlignmentCenter);
  label->setText(rows_.title ? rows_.title(row) : NSString());
  self.addSubview(label.get());
  return labels_.emplace(row, std::move(label)).first->second.get();
}

void PickerWheel::place(UILabel label, double distance) const {
  const WheelGeometry wheel = geometry();
  const CGRect bounds = self.bounds();
  const double shortening = wheel.shortening(distance);
  const double from_middle = std::min(std::abs(distance) / kPickerRow, 1.0);
  label.setCenter(
      {bounds.size.width / 2, bounds.min_y() + bounds.size.height / 2 + wheel.height_of(distance)});
  label.setTransform(CGAffineTransformMakeScale(1 - (1 - shortening) * kNarrowing, shortening));
  // Rows outside of the middle are grey, and fade as the rim turns them away.
  label.setAlpha((1 - from_middle * (1 - kFarAlpha)) * shortening);
}

void PickerWheel::will_end_dragging(UIScrollView, CGPoint, CGPoint* target) {
  target->y = offset_of(row_near(target->y));
}

void PickerWheel::did_end_dragging(UIScrollView, BOOL decelerates) {
  if (!decelerates) settle();
}

void PickerWheel::did_end_decelerating(UIScrollView) {
  settle();
}

void PickerWheel::did_end_animation(UIScrollView) {
  settle();
}

// A row chosen by the program is already recorded: any other comes from a finger.
void PickerWheel::settle() {
  const NSInteger row = row_near(self.contentOffset().y);
  if (rows_.count == 0 || row == chosen_) return;
  chosen_ = row;
  if (on_choice_) on_choice_(row);
}

void PickerWheel::tapped(UITapGestureRecognizer tap) {
  const CGRect bounds = self.bounds();
  const double middle = bounds.min_y() + bounds.size.height / 2;
  const double distance = geometry().distance_at(tap.locationInView(self).y - middle);
  const auto row = static_cast<NSInteger>(std::floor((middle + distance) / kPickerRow));
  if (row < 0 || row >= rows_.count || row == chosen_) return;
  self.setContentOffset({0, offset_of(row)}, YES);
}

void export_picker_wheel() {
  objc::ClassBuilder("UIPickerWheel", "UIScrollView")
      .state<PickerWheel>()
      .method<&PickerWheel::init_with_frame>("initWithFrame:")
      .method<&PickerWheel::set_frame>("setFrame:")
      .method<&PickerWheel::layout_subviews>("layoutSubviews")
      .method<&PickerWheel::will_end_dragging>(
          "scrollViewWillEndDragging:withVelocity:targetContentOffset:")
      .method<&PickerWheel::did_end_dragging>("scrollViewDidEndDragging:willDecelerate:")
      .method<&PickerWheel::did_end_decelerating>("scrollViewDidEndDecelerating:")
      .method<&PickerWheel::did_end_animation>("scrollViewDidEndScrollingAnimation:")
      .method<&PickerWheel::tapped>("_tapped:")
      .finish();
}

}  // namespace host::uikit
