#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tweak/library/album_table.h"
#include "tweak/look/geometry.h"
#include "tweak/look/pieces.h"
#include "tweak/motion/album_table_slide.h"

// The first page: artwork, texts, transport.

namespace sonavue {
namespace {

constexpr CGFloat kArtworkTop = 11;
constexpr CGFloat kArtworkCorner = 50.0;
constexpr CGFloat kArtworkBorder = 4.0;
constexpr CGFloat kTextsGap = 10;
constexpr CGFloat kTextsHeight = 45;
constexpr CGFloat kLineHeight = 20;
constexpr CGFloat kArtistTop = kLineHeight + 5;
constexpr CGFloat kTitleSize = 15.0;
constexpr CGFloat kArtistSize = 13.0;
constexpr CGFloat kPlaySide = 50;
constexpr CGSize kSkipSize{40, 30};
// The layout while nothing plays: the controls move up where the texts would be.
constexpr CGFloat kCompactLift = 45;

UIButton make_control(CGRect frame, NSString picture, objc::Object target, objc::Sel action) {
  const UIButton button = UIButton::alloc().initWithFrame(frame);
  button.setImage(template_image(picture), UIControlStateNormal);
  button.setTintColor(UIColor::whiteColor());
  button.addTarget(target, action, UIControlEventTouchUpInside);
  container.addSubview(button);
  button.release();
  return button;
}

UILabel make_text(CGFloat y, CGFloat size) {
  const UILabel label =
      UILabel::alloc().initWithFrame({0, y, container1.frame().size.width, kLineHeight});
  label.setTextAlignment(NSTextAlignmentCenter);
  label.setTextColor(UIColor::whiteColor());
  label.setFont(UIFont::fontWithName("HelveticaNeue"_ns, size));
  container1.addSubview(label);
  label.release();
  return label;
}

void make_ring(SpringBoard self) {
  const CGSize size = play.frame().size;
  ring = M13ProgressViewRing::alloc().initWithFrame({0, 0, size.width, size.height});
  if (!ring) return;
  ring.setPrimaryColor(UIColor::whiteColor());
  ring.setSecondaryColor(UIColor::whiteColor());
  ring.setShowPercentage(NO);
  ring.setUserInteractionEnabled(YES);
  // The ring lies over the button, so that a tap on it must be a tap on play.
  const auto tap = UITapGestureRecognizer::alloc().initWithTarget(self, "playStop"_sel);
  tap.setNumberOfTapsRequired(1);
  ring.addGestureRecognizer(tap);
  tap.release();
  play.addSubview(ring);
  ring.release();
}

void lift(UIView view) {
  move_to_y(view, view.frame().origin.y - kCompactLift);
}

}  // namespace

UIImage template_image(NSString path) {
  return UIImage::imageWithContentsOfFile(path).imageWithRenderingMode(
      UIImageRenderingModeAlwaysTemplate);
}

void make_artwork(SpringBoard self) {
  const CGFloat side = 2 * screen_width() / 3;
  art = UIImageView::alloc().initWithFrame({screen_width() / 6, kArtworkTop, side, side});
  art.setClipsToBounds(YES);
  art.layer().setCornerRadius(kArtworkCorner);
  art.layer().setBorderWidth(kArtworkBorder);
  art.layer().setBorderColor(UIColor::whiteColor().CGColor());
  art.setBackgroundColor(UIColor::colorWithWhite(0, 0.3));
  art.setUserInteractionEnabled(YES);
  const auto taps = UITapGestureRecognizer::alloc().initWithTarget(self, "showTable"_sel);
  taps.setNumberOfTapsRequired(2);
  art.addGestureRecognizer(taps);
  taps.release();

  blurTable = _UIBackdropView::alloc().initWithFrame(art.bounds(), NO, initial_blur());
  blurTable.setUserInteractionEnabled(YES);
  art.addSubview(blurTable);
  blurTable.release();
  slide_album_table_aside();

  container.addSubview(art);
  art.release();
}

void make_texts() {
  container1 = UIView::alloc().initWithFrame(
      {0, art.frame().max_y() + kTextsGap, screen_width(), kTextsHeight});
  container1.setAlpha(0);
  title = make_text(0, kTitleSize);
  artist = make_text(kArtistTop, kArtistSize);
  container.addSubview(container1);
  container1.release();
}

void make_transport(SpringBoard self) {
  const CGFloat below_texts = container1.frame().max_y();
  const CGRect artwork = art.frame();
  play = make_control({(screen_width() - kPlaySide) / 2, below_texts + 10, kPlaySide, kPlaySide},
                      "/Library/Application Support/Sonavue/Play.png"_ns, self, "playStop"_sel);
  back = make_control({artwork.min_x(), below_texts + 20, kSkipSize.width, kSkipSize.height},
                      "/Library/Application Support/Sonavue/indietro.png"_ns, self,
                      "playBackSong"_sel);
  next = make_control(
      {artwork.max_x() - kSkipSize.width, below_texts + 20, kSkipSize.width, kSkipSize.height},
      "/Library/Application Support/Sonavue/avanti.png"_ns, self, "playNextSong"_sel);
  for (const UIButton control : {play, back, next})
    lift(control);
  make_ring(self);
}

void make_album_table() {
  tablev = UITableView::alloc().initWithFrame(blurTable.bounds());
  tablev.setBackgroundColor(UIColor::clearColor());
  const auto source = MusicsAlbum::alloc().init();
  tablev.setDataSource(source);
  tablev.setDelegate(source);
  tablev.setSeparatorColor(UIColor::whiteColor());
  blurTable.addSubview(tablev);
  tablev.release();
}

}  // namespace sonavue
