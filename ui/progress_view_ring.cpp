#include "ui/progress_view_ring.h"

namespace sonavue {
namespace {

constexpr double kAnimationDuration = 0.3;
constexpr CGFloat kGreenOfSystemBlue = 122.0 / 255.0;
constexpr CGFloat kBackgroundWidthPerPoint = 0.025;
constexpr float kThinnestBackgroundWidth = 1.0f;
constexpr CGFloat kProgressWidthPerBackgroundWidth = 3;
constexpr CGFloat kFontSizePerPoint = 1.0 / 5.0;

// In single precision, so that the width matches that of looks that were made for this control.
CGFloat background_width_for(CGFloat width) {
  const auto scaled = static_cast<float>(width * kBackgroundWidthPerPoint);
  return scaled > kThinnestBackgroundWidth ? scaled : kThinnestBackgroundWidth;
}

// Setting the width that a layer already has would start an invisible animation.
void stroke_with(CAShapeLayer layer, CGFloat width) {
  if (layer.lineWidth() != width) layer.setLineWidth(width);
}

}  // namespace

M13ProgressViewRing ProgressViewRing::init() {
  const auto made = super<M13ProgressViewRing>("init"_sel);
  if (made) made.setup();
  return made;
}

M13ProgressViewRing ProgressViewRing::init_with_frame(CGRect frame) {
  const auto made = super<M13ProgressViewRing>("initWithFrame:"_sel, frame);
  if (made) made.setup();
  return made;
}

M13ProgressViewRing ProgressViewRing::init_with_coder(objc::Object coder) {
  const auto made = super<M13ProgressViewRing>("initWithCoder:"_sel, coder);
  if (made) made.setup();
  return made;
}

void ProgressViewRing::set_up() {
  // A view's `init` calls `initWithFrame:`, so this can run twice; a second set of layers would
  // hide the first.
  if (background_layer_) return;
  self.setBackgroundColor(UIColor::clearColor());
  fit_ring_widths(self.bounds().size.width);
  self.setAnimationDuration(kAnimationDuration);
  self.setPrimaryColor(UIColor::colorWithRed(0, kGreenOfSystemBlue, 1, 1));
  self.setSecondaryColor(self.primaryColor());
  percentage_formatter_ = objc::Ref<NSNumberFormatter>::adopt(NSNumberFormatter::alloc().init());
  percentage_formatter_->setNumberStyle(NSNumberFormatterPercentStyle);
  make_layers();
  make_percentage_label();
}

void ProgressViewRing::make_layers() {
  background_layer_.reset(CAShapeLayer::layer());
  background_layer_->setStrokeColor(self.secondaryColor().CGColor());
  background_layer_->setFillColor(UIColor::clearColor().CGColor());
  background_layer_->setLineCap("round"_ns);
  background_layer_->setLineWidth(background_ring_width_);
  self.layer().addSublayer(background_layer_.get());

  progress_layer_.reset(CAShapeLayer::layer());
  progress_layer_->setStrokeColor(self.primaryColor().CGColor());
  progress_layer_->setFillColor(nullptr);
  progress_layer_->setLineCap("butt"_ns);
  progress_layer_->setLineWidth(progress_ring_width_);
  self.layer().addSublayer(progress_layer_.get());

  icon_layer_.reset(CAShapeLayer::layer());
  icon_layer_->setFillColor(self.primaryColor().CGColor());
  icon_layer_->setFillRule("non-zero"_ns);
  self.layer().addSublayer(icon_layer_.get());
}

void ProgressViewRing::make_percentage_label() {
  percentage_label_ = objc::Ref<UILabel>::adopt(UILabel::alloc().initWithFrame(self.bounds()));
  percentage_label_->setTextAlignment(NSTextAlignmentCenter);
  percentage_label_->setContentMode(UIViewContentModeCenter);
  self.addSubview(percentage_label_.get());
}

void ProgressViewRing::set_primary_color(UIColor color) {
  super<>("setPrimaryColor:"_sel, color);
  progress_layer_->setStrokeColor(color.CGColor());
  icon_layer_->setFillColor(color.CGColor());
  self.setNeedsDisplay();
}

void ProgressViewRing::set_secondary_color(UIColor color) {
  super<>("setSecondaryColor:"_sel, color);
  background_layer_->setStrokeColor(color.CGColor());
  self.setNeedsDisplay();
}

// The flags are spelled "Overriden" because other code knows them by that name.
void ProgressViewRing::set_background_ring_width(CGFloat width) {
  background_ring_width_ = width;
  background_layer_->setLineWidth(width);
  background_ring_width_overriden_ = YES;
  self.setNeedsDisplay();
}

void ProgressViewRing::set_progress_ring_width(CGFloat width) {
  progress_ring_width_ = width;
  progress_layer_->setLineWidth(width);
  progress_ring_width_overriden_ = YES;
  self.setNeedsDisplay();
}

void ProgressViewRing::set_show_percentage(BOOL shows) {
  show_percentage_ = shows;
  // Look at where the label is, not at the previous flag: the label is in the ring from the start.
  const bool shown = static_cast<bool>(percentage_label_->superview());
  if (shows && !shown) {
    self.addSubview(percentage_label_.get());
  } else if (!shows && shown) {
    percentage_label_->removeFromSuperview();
  }
  self.setNeedsLayout();
}

void ProgressViewRing::set_frame(CGRect frame) {
  super<>("setFrame:"_sel, CGRect(frame.origin, {frame.size.width, frame.size.width}));
}

void ProgressViewRing::layout_subviews() {
  super<>("layoutSubviews"_sel);
  const CGRect bounds = self.bounds();
  background_layer_->setFrame(bounds);
  progress_layer_->setFrame(bounds);
  icon_layer_->setFrame(bounds);
  percentage_label_->setFrame(bounds);
  percentage_label_->setFont(UIFont::systemFontOfSize(bounds.size.width * kFontSizePerPoint));
  percentage_label_->setTextColor(self.primaryColor());
  fit_ring_widths(self.frame().size.width);
  self.setNeedsDisplay();
}

void ProgressViewRing::fit_ring_widths(CGFloat width) {
  if (!background_ring_width_overriden_) {
    background_ring_width_ = background_width_for(width);
    stroke_with(background_layer_.get(), background_ring_width_);
  }
  if (!progress_ring_width_overriden_) {
    progress_ring_width_ = background_ring_width_ * kProgressWidthPerBackgroundWidth;
    stroke_with(progress_layer_.get(), progress_ring_width_);
  }
}

}  // namespace sonavue
