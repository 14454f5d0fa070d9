#include "host/uikit/scroll/scroll_indicators.h"

#include <algorithm>

#include "host/runtime/on_pixel.h"
#include "platform/UIKit/UIColor.h"

namespace host::uikit {
namespace {

constexpr double kThickness = 2.5;
constexpr double kIndicatorMargin = 3.0;
constexpr double kShortest = 36.0;
/// Pushed beyond the end of the content, a bar shrinks no further than to a dot of this length.
constexpr double kShortestBeyond = 7.0;
constexpr double kFadeDelay = 0.5;
constexpr double kFadeDuration = 0.25;
/// In front of all content, whenever that is added.
constexpr double kInFront = 10000;

struct Span {
  double begin;
  double length;
};

/// Returns a bar's place on a track of `track` points.
Span span_on_track(double track, double view, double content, double offset, OffsetRange range) {
  const double whole = std::max(content, view);
  double length = std::clamp(track * view / whole, std::min(kShortest, track), track);
  const double travel = range.maximum - range.minimum;
  const double inside = range.clamp(offset);
  const double beyond = std::abs(offset - inside);
  length = std::max(std::min(kShortestBeyond, track), length - beyond);
  const double share = travel > 0 ? (inside - range.minimum) / travel : offset > inside ? 1 : 0;
  return {(track - length) * share, length};
}

UIColor color_of(UIScrollViewIndicatorStyle style) {
  if (style == UIScrollViewIndicatorStyleWhite) return UIColor::colorWithWhite(1, 0.5);
  return UIColor::colorWithWhite(0, style == UIScrollViewIndicatorStyleBlack ? 0.5 : 0.35);
}

}  // namespace

ScrollIndicators::~ScrollIndicators() {
  for (const auto& bar : {horizontal_, vertical_})
    bar->layer().removeFromSuperlayer();
}

void ScrollIndicators::set_style(UIScrollViewIndicatorStyle style) {
  style_ = style;
  for (const auto& bar : {horizontal_, vertical_})
    bar->setBackgroundColor(color_of(style));
}

UIView ScrollIndicators::bar(objc::Ref<UIView>& bar) {
  if (bar) return bar.get();
  bar = objc::Ref<UIView>::adopt(UIView::alloc().initWithFrame({}));
  bar->setBackgroundColor(color_of(style_));
  bar->layer().setCornerRadius(kThickness / 2);
  bar->layer().setZPosition(kInFront);
  bar->setAlpha(visible_ ? 1 : 0);
  view_.layer().addSublayer(bar->layer());
  return bar.get();
}

void ScrollIndicators::place_bar(objc::Ref<UIView>& kept, bool shown, CGRect frame) {
  if (!shown) {
    kept->setHidden(YES);
    return;
  }
  const UIView placed = bar(kept);
  placed.setHidden(NO);
  placed.setFrame(frame);
}

void ScrollIndicators::place(const ScrollGeometry& geometry, CGPoint offset, UIEdgeInsets insets,
                             Shown shown) {
  const double room = shown.horizontal && shown.vertical ? kThickness + kIndicatorMargin : 0;
  const CGSize view = geometry.view;
  const double width = view.width - insets.left - insets.right - 2 * kIndicatorMargin - room;
  const double height = view.height - insets.top - insets.bottom - 2 * kIndicatorMargin - room;
  const Span across = span_on_track(std::max(width, 0.0), view.width, geometry.content.width,
                                    offset.x, geometry.horizontal());
  const Span down = span_on_track(std::max(height, 0.0), view.height, geometry.content.height,
                                  offset.y, geometry.vertical());
  place_bar(horizontal_, shown.horizontal,
            {on_pixel(offset.x + insets.left + kIndicatorMargin + across.begin),
             on_pixel(offset.y + view.height - insets.bottom - kIndicatorMargin - kThickness),
             on_pixel(across.length), kThickness});
  place_bar(vertical_, shown.vertical,
            {on_pixel(offset.x + view.width - insets.right - kIndicatorMargin - kThickness),
             on_pixel(offset.y + insets.top + kIndicatorMargin + down.begin), kThickness,
             on_pixel(down.length)});
}

void ScrollIndicators::appear() {
  if (visible_) return;
  visible_ = true;
  UIView::performWithoutAnimation(objc::block([this] {
    for (const auto& bar : {horizontal_, vertical_}) {
      bar->layer().removeAnimationForKey("opacity"_ns);
      bar->setAlpha(1);
    }
  }));
}

void ScrollIndicators::fade() {
  if (!visible_) return;
  visible_ = false;
  for (const auto& bar : {horizontal_, vertical_}) {
    if (!bar || bar->isHidden()) continue;
    const UIView faded = bar.get();
    UIView::animateWithDuration(kFadeDuration, kFadeDelay,
                                UIViewAnimationOptionAllowUserInteraction,
                                objc::block([faded] { faded.setAlpha(0); }), nullptr);
  }
}

}  // namespace host::uikit
