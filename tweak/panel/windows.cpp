#include "platform/SpringBoard/SBIcon.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tweak/look/geometry.h"
#include "tweak/look/pieces.h"

namespace sonavue {
namespace {

// Above the status bar and everything that the system puts there.
constexpr UIWindowLevel kPanelLevel = UIWindowLevelStatusBar + 527.0;
constexpr _UIBackdropViewStyle kInitialBlurStyle = 3900;

}  // namespace

_UIBackdropViewSettings initial_blur() {
  return _UIBackdropViewSettingsPasscodePaddle::settingsForStyle(kInitialBlurStyle);
}

void make_windows() {
  window = UIWindow::alloc().initWithFrame({0, 0, screen_width(), screen_height()});
  locationWindow = UIWindow::alloc().initWithFrame({0, 0, screen_width(), screen_height()});
  window.setBackgroundColor(UIColor::clearColor());
  window.setWindowLevel(kPanelLevel);
  // Shown from the start, with nothing in it to see; only an open panel takes touches.
  window.setUserInteractionEnabled(NO);
  window.setHidden(NO);
}

void make_backdrop() {
  const CGFloat side = screen_height();
  cover = UIImageView::alloc().initWithFrame({(screen_width() - side) / 2, 0, side, side});
  cover.setClipsToBounds(YES);
  cover.setUserInteractionEnabled(YES);
  cover.setAlpha(0);
  window.addSubview(cover);
  cover.release();

  main = _UIBackdropView::alloc().initWithFrame(cover.bounds(), NO, initial_blur());
  cover.addSubview(main);
  main.release();
}

void make_icon_twin(SpringBoard self) {
  music = UIView::alloc().init();
  music.setFrame(musicIcon.frame());
  music.setHidden(YES);
  const UIImage picture = musicIcon.icon().generateIconImage(SBIconImageFormatHomeScreen);
  const auto picture_view = UIImageView::alloc().initWithImage(picture);
  music.addSubview(picture_view);
  picture_view.release();

  const auto tap = UITapGestureRecognizer::alloc().initWithTarget(self, "tweet"_sel);
  tap.setNumberOfTapsRequired(1);
  music.addGestureRecognizer(tap);
  tap.release();
  window.addSubview(music);
  music.release();
}

void make_closing_gestures(SpringBoard self) {
  const auto tap = UITapGestureRecognizer::alloc().initWithTarget(self, "dismisWithNoAction"_sel);
  tap.setNumberOfTouchesRequired(1);
  tap.setDelegate(self);
  tap.setCancelsTouchesInView(YES);
  main.addGestureRecognizer(tap);
  tap.release();

  const auto pan = UIPanGestureRecognizer::alloc().initWithTarget(self, "sposta1:"_sel);
  pan.setDelegate(self);
  pan.setCancelsTouchesInView(YES);
  music.addGestureRecognizer(pan);
  pan.release();
}

}  // namespace sonavue
