#include "tweak/panel/windows.h"

#include "objc/ref.h"
#include "platform/SpringBoard/SBIcon.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tweak/Sonavue2.h"
#include "tweak/appearance/blur_style.h"
#include "tweak/look/geometry.h"

namespace sonavue {
namespace {

// Above the status bar and everything that the system shows there.
constexpr UIWindowLevel kPanelLevel = UIWindowLevelStatusBar + 527.0;

}  // namespace

void make_windows() {
  window = UIWindow::alloc().initWithFrame({0, 0, screen_width(), screen_height()});
  locationWindow = UIWindow::alloc().initWithFrame({0, 0, screen_width(), screen_height()});
  window.setBackgroundColor(UIColor::clearColor());
  window.setWindowLevel(kPanelLevel);
  // Shown from the start, but empty. Only an open panel takes touches.
  window.setUserInteractionEnabled(NO);
  window.setHidden(NO);
}

void make_backdrop() {
  const CGFloat side = screen_height();
  const auto artwork =
      objc::adopt(UIImageView::alloc().initWithFrame({(screen_width() - side) / 2, 0, side, side}));
  cover = artwork;
  artwork->setClipsToBounds(YES);
  artwork->setUserInteractionEnabled(YES);
  artwork->setAlpha(0);
  window.addSubview(artwork);

  const auto blur =
      objc::adopt(_UIBackdropView::alloc().initWithFrame(cover.bounds(), NO, initial_blur()));
  main = blur;
  artwork->addSubview(blur);
}

void make_icon_twin(SpringBoard self) {
  const auto twin = objc::adopt(UIView::alloc().init());
  music = twin;
  twin->setFrame(musicIcon.frame());
  twin->setHidden(YES);
  const UIImage picture = musicIcon.icon().generateIconImage(SBIconImageFormatHomeScreen);
  const auto picture_view = objc::adopt(UIImageView::alloc().initWithImage(picture));
  twin->addSubview(picture_view);

  const auto tap = objc::adopt(UITapGestureRecognizer::alloc().initWithTarget(self, "tweet"_sel));
  tap->setNumberOfTapsRequired(1);
  twin->addGestureRecognizer(tap);
  window.addSubview(twin);
}

void make_closing_gestures(SpringBoard self) {
  const auto tap =
      objc::adopt(UITapGestureRecognizer::alloc().initWithTarget(self, "dismisWithNoAction"_sel));
  tap->setNumberOfTouchesRequired(1);
  tap->setDelegate(self);
  tap->setCancelsTouchesInView(YES);
  main.addGestureRecognizer(tap);

  const auto pan =
      objc::adopt(UIPanGestureRecognizer::alloc().initWithTarget(self, "sposta1:"_sel));
  pan->setDelegate(self);
  pan->setCancelsTouchesInView(YES);
  music.addGestureRecognizer(pan);
}

}  // namespace sonavue
