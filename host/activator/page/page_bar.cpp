#include "host/activator/page/page_bar.h"

#include "host/activator/page/page_look.h"
#include "platform/UIKit/UIButton.h"
#include "platform/UIKit/UIColor.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UIScreen.h"

namespace host::activator {
namespace {

constexpr CGFloat kButtonWidth = 70;
constexpr CGFloat kFont = 17;
constexpr CGFloat kBarGrey = 248.0 / 255;
constexpr CGFloat kLineGrey = 178.0 / 255;

void add_title(UIView bar, NSString title, CGFloat width) {
  const UILabel label =
      UILabel::alloc().initWithFrame({kButtonWidth, kStatusBarHeight, width - 2 * kButtonWidth,
                                      kPageBarHeight - kStatusBarHeight});
  label.setFont(UIFont::boldSystemFontOfSize(kFont));
  label.setTextAlignment(NSTextAlignmentCenter);
  label.setAutoresizingMask(UIViewAutoresizingFlexibleWidth);
  label.setText(title);
  bar.addSubview(label);
  label.release();
}

void add_button(UIView bar, UIViewController page, objc::Sel close, CGFloat width) {
  const UIButton button = UIButton::buttonWithType(UIButtonTypeSystem);
  button.setFrame(
      {width - kButtonWidth, kStatusBarHeight, kButtonWidth, kPageBarHeight - kStatusBarHeight});
  button.setAutoresizingMask(UIViewAutoresizingFlexibleLeftMargin);
  button.setTitle("Done"_ns, UIControlStateNormal);
  button.titleLabel().setFont(UIFont::boldSystemFontOfSize(kFont));
  button.addTarget(page, close, UIControlEventTouchUpInside);
  bar.addSubview(button);
}

// The home screen's status bar is white, for wallpapers, and needs a darker background.
void add_status_ground(UIView bar, CGFloat width) {
  const UIView ground = UIView::alloc().initWithFrame({0, 0, width, kStatusBarHeight});
  ground.setBackgroundColor(caption_color());
  ground.setAutoresizingMask(UIViewAutoresizingFlexibleWidth);
  bar.addSubview(ground);
  ground.release();
}

void add_line(UIView bar, CGFloat width) {
  const CGFloat hairline = 1 / UIScreen::mainScreen().scale();
  const UIView line =
      UIView::alloc().initWithFrame({0, kPageBarHeight - hairline, width, hairline});
  line.setBackgroundColor(UIColor::colorWithWhite(kLineGrey, 1));
  line.setAutoresizingMask(UIViewAutoresizingFlexibleWidth);
  bar.addSubview(line);
  line.release();
}

}  // namespace

UIView make_page_bar(UIViewController page, NSString title, objc::Sel close, CGFloat width) {
  const auto bar = UIView::alloc().initWithFrame({0, 0, width, kPageBarHeight}).autorelease();
  bar.setBackgroundColor(UIColor::colorWithWhite(kBarGrey, 1));
  bar.setAutoresizingMask(UIViewAutoresizingFlexibleWidth);
  add_status_ground(bar, width);
  add_title(bar, title, width);
  add_button(bar, page, close, width);
  add_line(bar, width);
  return bar;
}

}  // namespace host::activator
