#include "tweak/panel/song_page.h"

#include "objc/ref.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tweak/Sonavue2.h"
#include "tweak/appearance/blur_style.h"
#include "tweak/look/geometry.h"
#include "tweak/look/measures.h"
#include "tweak/motion/album_table_slide.h"
#include "ui/assets.h"

namespace sonavue {
namespace {

UIButton add_control(CGRect frame, UIImage picture, objc::Object target, objc::Sel action) {
  const auto button = objc::adopt(UIButton::alloc().initWithFrame(frame));
  button->setImage(picture, UIControlStateNormal);
  button->setTintColor(UIColor::whiteColor());
  button->addTarget(target, action, UIControlEventTouchUpInside);
  container.addSubview(button);
  return button;
}

UILabel add_text(CGFloat y, CGFloat size) {
  const auto label = objc::adopt(
      UILabel::alloc().initWithFrame({0, y, container1.frame().size.width, kTitleLine}));
  label->setTextAlignment(NSTextAlignmentCenter);
  label->setTextColor(UIColor::whiteColor());
  label->setFont(UIFont::fontWithName("HelveticaNeue"_ns, size));
  container1.addSubview(label);
  return label;
}

void make_ring(SpringBoard self) {
  const CGSize size = play.frame().size;
  const auto view =
      objc::adopt(M13ProgressViewRing::alloc().initWithFrame({0, 0, size.width, size.height}));
  ring = view;
  if (!view) return;
  view->setPrimaryColor(UIColor::whiteColor());
  view->setSecondaryColor(UIColor::whiteColor());
  view->setShowPercentage(NO);
  view->setUserInteractionEnabled(YES);
  // The ring covers the play button, so a tap on the ring has to act as a tap on the button.
  const auto tap =
      objc::adopt(UITapGestureRecognizer::alloc().initWithTarget(self, "playStop"_sel));
  tap->setNumberOfTapsRequired(1);
  view->addGestureRecognizer(tap);
  play.addSubview(view);
}

void lift(UIView view) {
  move_to_y(view, view.frame().origin.y - kLift);
}

void make_album_table_ground() {
  const auto ground =
      objc::adopt(_UIBackdropView::alloc().initWithFrame(art.bounds(), NO, initial_blur()));
  blurTable = ground;
  ground->setUserInteractionEnabled(YES);
  art.addSubview(ground);
  slide_album_table_aside();
}

}  // namespace

void make_artwork(SpringBoard self) {
  const CGFloat side = 2 * screen_width() / 3;
  const auto picture = objc::adopt(
      UIImageView::alloc().initWithFrame({screen_width() / 6, kArtworkTop, side, side}));
  art = picture;
  picture->setClipsToBounds(YES);
  picture->layer().setCornerRadius(kArtworkCorner);
  picture->layer().setBorderWidth(kArtworkBorder);
  picture->layer().setBorderColor(UIColor::whiteColor().CGColor());
  picture->setBackgroundColor(UIColor::colorWithWhite(0, 0.3));
  picture->setUserInteractionEnabled(YES);
  const auto taps =
      objc::adopt(UITapGestureRecognizer::alloc().initWithTarget(self, "showTable"_sel));
  taps->setNumberOfTapsRequired(2);
  picture->addGestureRecognizer(taps);
  make_album_table_ground();
  container.addSubview(picture);
}

void make_texts() {
  const auto texts = objc::adopt(UIView::alloc().initWithFrame(
      {0, art.frame().max_y() + kTextsGap, screen_width(), kTextsHeight}));
  container1 = texts;
  texts->setAlpha(0);
  title = add_text(0, kTitleSize);
  artist = add_text(kArtistTop, kArtistSize);
  container.addSubview(texts);
}

void make_transport(SpringBoard self) {
  const CGFloat below_texts = container1.frame().max_y();
  const CGRect artwork = art.frame();
  const CGFloat play_y = below_texts + kPlayGap;
  const CGFloat skip_y = below_texts + kSkipGap;
  play = add_control({(screen_width() - kPlaySide) / 2, play_y, kPlaySide, kPlaySide},
                     template_asset<"Play.png">(), self, "playStop"_sel);
  back = add_control({artwork.min_x(), skip_y, kSkipSize.width, kSkipSize.height},
                     template_asset<"indietro.png">(), self, "playBackSong"_sel);
  next = add_control({artwork.max_x() - kSkipSize.width, skip_y, kSkipSize.width, kSkipSize.height},
                     template_asset<"avanti.png">(), self, "playNextSong"_sel);
  for (const UIButton control : {play, back, next})
    lift(control);
  make_ring(self);
}

}  // namespace sonavue
