#include "host/springboard/system/launch_screen.h"

#include "host/springboard/common/make_view.h"
#include "host/uikit/view/touch_hold.h"
#include "platform/UIKit/UIImageView.h"
#include "platform/UIKit/UILabel.h"

namespace host::springboard {
namespace {

constexpr double kScreenOpening = 0.4;
constexpr double kScreenClosing = 0.35;
constexpr double kLaunchFading = 0.3;
constexpr CGFloat kFailureGround = 0.13;
constexpr CGFloat kLaunchGround = 0.98;
constexpr CGFloat kTextAlpha = 0.55;
constexpr CGFloat kLaunchTitleSize = 22;
constexpr CGFloat kLaunchTextSize = 14;
constexpr CGFloat kLineHeight = 28;
constexpr CGFloat kTextGap = 4;
constexpr CGFloat kTextLineHeight = 20;
constexpr CGFloat kLaunchGap = 18;

void add_line(UIView screen, NSString text, CGFloat top, UIFont font, UIColor color) {
  auto label = make_view<UILabel>({0, top, screen.bounds().size.width, kLineHeight});
  label->setText(text);
  label->setFont(font);
  label->setTextColor(color);
  label->setTextAlignment(NSTextAlignmentCenter);
  screen.addSubview(*label);
}

}  // namespace

LaunchScreen::LaunchScreen(UIWindow window) : window_(window) {}

LaunchScreen::~LaunchScreen() {
  take_down();
}

void LaunchScreen::open(SBApplication application, UIImage image, CGRect from,
                        const Process& process) {
  take_down();
  from_ = from;
  build(application, image, process);
  const UIView screen = *screen_;
  screen.setTransform(transform_onto_icon());
  screen.setAlpha(0);
  // A second tap would hit the view below.
  const auto hold = std::make_shared<uikit::TouchHold>(window_);
  UIView::animateWithDuration(kScreenOpening, objc::block([=] {
                                screen.setTransform(CGAffineTransform());
                                screen.setAlpha(1);
                              }),
                              objc::block([hold](BOOL) { hold->end(); }));
}

void LaunchScreen::close() {
  if (is_open()) leave(transform_onto_icon(), kScreenClosing);
}

void LaunchScreen::fade() {
  if (is_open()) leave(CGAffineTransform(), kLaunchFading);
}

void LaunchScreen::leave(CGAffineTransform transform, double duration) {
  closing_ = true;
  if (hosted_) objc::state_of<ApplicationView>(*hosted_).cancel_fingers();
  const UIView screen = *screen_;
  const auto hold = std::make_shared<uikit::TouchHold>(window_);
  const auto gone =
      objc::block([this, hold, kept = screen_, life = std::weak_ptr<void>(life_)](BOOL) {
        hold->end();
        if (!life.expired() && kept.get() == screen_.get()) take_down();
      });
  UIView::animateWithDuration(duration, objc::block([=] {
                                screen.setTransform(transform);
                                screen.setAlpha(0);
                              }),
                              gone);
}

void LaunchScreen::frame_came() {
  if (hosted_) objc::state_of<ApplicationView>(*hosted_).show_picture();
}

void LaunchScreen::build(SBApplication application, UIImage image, const Process& process) {
  closing_ = false;
  screen_ = make_view<UIView>(window_.bounds());
  screen_->setBackgroundColor(UIColor::colorWithWhite(process ? kLaunchGround : kFailureGround, 1));
  screen_->setClipsToBounds(YES);
  const CGPoint middle = CGRect(window_.bounds()).centre();

  auto icon = objc::Ref<UIImageView>::adopt(UIImageView::alloc().initWithImage(image));
  const CGFloat icon_bottom = middle.y - kLaunchGap;
  icon->setCenter({middle.x, icon_bottom - icon->bounds().size.height / 2});
  screen_->addSubview(*icon);
  if (process) {
    hosted_ = ApplicationView::make(screen_->bounds(), process);
    screen_->addSubview(*hosted_);
  } else {
    add_texts(application.displayName(), icon_bottom + kLaunchGap);
  }
  window_.addSubview(*screen_);
}

void LaunchScreen::add_texts(NSString name, CGFloat top) const {
  add_line(*screen_, name, top, UIFont::fontWithName("HelveticaNeue-Light"_ns, kLaunchTitleSize),
           UIColor::whiteColor());
  CGFloat line_top = top + kLineHeight + kTextGap;
  for (const NSString line :
       {"Only its icon is on this phone."_ns, "Press the Home button to go back."_ns}) {
    add_line(*screen_, line, line_top, UIFont::fontWithName("HelveticaNeue"_ns, kLaunchTextSize),
             UIColor::colorWithWhite(1, kTextAlpha));
    line_top += kTextLineHeight;
  }
}

CGAffineTransform LaunchScreen::transform_onto_icon() const {
  const CGRect whole = window_.bounds();
  const CGPoint middle = whole.centre();
  const CGPoint to = from_.centre();
  return {from_.size.width / whole.size.width,
          0,
          0,
          from_.size.height / whole.size.height,
          to.x - middle.x,
          to.y - middle.y};
}

void LaunchScreen::take_down() {
  if (!screen_) return;
  if (hosted_) objc::state_of<ApplicationView>(*hosted_).cancel_fingers();
  hosted_.reset();
  screen_->removeFromSuperview();
  screen_.reset();
  closing_ = false;
}

}  // namespace host::springboard
