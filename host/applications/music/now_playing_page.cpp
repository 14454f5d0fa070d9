#include "host/applications/music/now_playing_page.h"

#include <fmt/format.h>

#include <algorithm>

#include "host/applications/music/library.h"
#include "host/applications/music/look.h"
#include "host/applications/program/player_remote.h"
#include "host/springboard/common/make_view.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/parts/surface_parts.h"

namespace host::music {

using application::PlayerRemote;

namespace {

constexpr double kTick = 0.5;
/// The height of the status bar and the navigation bar.
constexpr CGFloat kTop = 64;
/// The height that the controls need below the cover.
constexpr CGFloat kControls = 228;
constexpr CGFloat kTimeWidth = 44;
constexpr CGFloat kTimeHeight = 16;
constexpr CGFloat kScrubberHeight = 34;
constexpr CGFloat kPageTitleHeight = 24;
constexpr CGFloat kPageLineHeight = 20;
constexpr CGFloat kPageButton = 56;
constexpr CGFloat kButtonDistance = 96;
constexpr CGFloat kSpeaker = 26;
constexpr CGFloat kVolumeInset = 24;

NSString minutes(double seconds, const char* sign) {
  const int whole = static_cast<int>(std::max(seconds, 0.0));
  return springboard::to_ns(fmt::format("{}{}:{:02}", sign, whole / 60, whole % 60));
}

springboard::SliderColors slider_colors(UIColor filled) {
  return {objc::Ref<UIColor>::retain(filled),
          objc::Ref<UIColor>::retain(UIColor::colorWithWhite(0.78, 1))};
}

}  // namespace

NowPlayingPage::~NowPlayingPage() {
  run_time(false);
}

objc::Ref<MusicNowPlayingController> NowPlayingPage::make(const PlayerState& player) {
  auto made =
      objc::Ref<MusicNowPlayingController>::adopt(MusicNowPlayingController::alloc().init());
  objc::state_of<NowPlayingPage>(*made).player_ = &player;
  made->setTitle("Now Playing"_ns);
  made->setAutomaticallyAdjustsScrollViewInsets(NO);
  return made;
}

// The room that the cover leaves is divided among the four rows of controls.
void NowPlayingPage::view_did_load() {
  super("viewDidLoad"_sel);
  const CGSize size = self.view().bounds().size;
  self.view().setBackgroundColor(UIColor::whiteColor());
  const CGFloat cover = std::min(size.width, size.height - kTop - kControls);
  cover_ = springboard::make_view<UIImageView>({(size.width - cover) / 2, kTop, cover, cover});
  cover_->setContentMode(UIViewContentModeScaleAspectFit);
  self.view().addSubview(*cover_);
  const CGFloat top = kTop + cover;
  const CGFloat spare = std::max<CGFloat>(size.height - top - kControls, 0);
  add_scrubber(top + 4);
  add_texts(top + kScrubberHeight + 10 + spare * 0.2);
  add_transport(top + 128 + spare * 0.5);
  add_volume(top + 196 + spare * 0.8);
}

void NowPlayingPage::add_scrubber(CGFloat top) {
  const CGFloat width = self.view().bounds().size.width;
  const CGFloat time_top = top + (kScrubberHeight - kTimeHeight) / 2;
  const springboard::TextLook look{"HelveticaNeue"_ns, 11, second_line_color(),
                                   NSTextAlignmentRight};
  elapsed_ = springboard::add_label(self.view(), {4, time_top, kTimeWidth - 6, kTimeHeight}, look);
  springboard::TextLook right = look;
  right.alignment = NSTextAlignmentLeft;
  remaining_ = springboard::add_label(
      self.view(), {width - kTimeWidth + 2, time_top, kTimeWidth - 6, kTimeHeight}, right);
  scrubber_ = springboard::Slider::make(
      {kTimeWidth, top, width - 2 * kTimeWidth, kScrubberHeight}, slider_colors(accent_color()),
      [this](double part) { PlayerRemote::shared().seek(part * player_->duration()); });
  self.view().addSubview(*scrubber_);
}

void NowPlayingPage::add_texts(CGFloat top) {
  const CGFloat width = self.view().bounds().size.width - 2 * kMargin;
  title_ = springboard::add_label(self.view(), {kMargin, top, width, kPageTitleHeight},
                                  {"HelveticaNeue-Medium"_ns, 18, UIColor::blackColor()});
  line_ =
      springboard::add_label(self.view(), {kMargin, top + kPageTitleHeight, width, kPageLineHeight},
                             {"HelveticaNeue"_ns, 14, second_line_color()});
}

void NowPlayingPage::add_transport(CGFloat middle) {
  const CGFloat centre = self.view().bounds().size.width / 2;
  const auto add = [&](NSString name, CGFloat offset) {
    return springboard::add_glyph_button(
        self.view(), name,
        {centre + offset - kPageButton / 2, middle - kPageButton / 2, kPageButton, kPageButton},
        UIColor::blackColor());
  };
  const auto previous = add("surface-previous"_ns, -kButtonDistance);
  play_ = add("surface-play"_ns, 0);
  next_ = add("surface-next"_ns, kButtonDistance);
  actions_.on_press(*previous, [] { PlayerRemote::shared().previous(); });
  actions_.on_press(*play_, [] { PlayerRemote::shared().toggle(); });
  actions_.on_press(*next_, [] { PlayerRemote::shared().next(); });
}

void NowPlayingPage::add_volume(CGFloat middle) {
  const CGFloat width = self.view().bounds().size.width;
  const CGFloat top = middle - kScrubberHeight / 2;
  springboard::add_glyph(self.view(), "surface-speaker"_ns,
                         {kVolumeInset, top, kSpeaker, kScrubberHeight}, second_line_color());
  springboard::add_glyph(self.view(), "surface-speaker-loud"_ns,
                         {width - kVolumeInset - kSpeaker, top, kSpeaker, kScrubberHeight},
                         second_line_color());
  const CGFloat left = kVolumeInset + kSpeaker + 6;
  volume_ =
      springboard::Slider::make({left, top, width - 2 * left, kScrubberHeight},
                                slider_colors(UIColor::colorWithWhite(0.25, 1)),
                                [](double value) { PlayerRemote::shared().set_volume(value); });
  self.view().addSubview(*volume_);
}

void NowPlayingPage::view_will_appear(BOOL animated) {
  super("viewWillAppear:"_sel, animated);
  player_changed();
  run_time(true);
}

void NowPlayingPage::view_will_disappear(BOOL animated) {
  super("viewWillDisappear:"_sel, animated);
  run_time(false);
}

void NowPlayingPage::run_time(bool runs) {
  if (time_ && RunLoop::has_main()) RunLoop::main().remove_timer(*time_);
  time_.reset();
  if (!runs) return;
  RunLoop& loop = RunLoop::main();
  time_ = loop.add_timer(loop.now() + kTick, kTick, [this] { show_time(); });
}

void NowPlayingPage::player_changed() {
  if (!title_) return;
  if (shown_song_ != player_->song()) {
    shown_song_ = player_->song();
    const MPMediaItem song = player_->item();
    cover_->setImage(cover_of(song, cover_->bounds().size.width));
    title_->setText(title_of(song));
    line_->setText(line_of(song));
  }
  if (shown_playing_ != player_->is_playing()) {
    shown_playing_ = player_->is_playing();
    play_->setImage(springboard::glyph(*shown_playing_ ? "surface-pause"_ns : "surface-play"_ns),
                    UIControlStateNormal);
  }
  objc::state_of<springboard::Slider>(*volume_).show(player_->volume());
  show_time();
}

void NowPlayingPage::library_changed() {
  if (player_->item()) shown_song_.reset();
  player_changed();
}

void NowPlayingPage::show_time() const {
  const double duration = player_->duration();
  const double elapsed = player_->elapsed();
  springboard::show_text(*elapsed_, minutes(elapsed, ""));
  springboard::show_text(*remaining_, minutes(duration - elapsed, "-"));
  const double part = duration > 0 ? elapsed / duration : 0;
  objc::state_of<springboard::Slider>(*scrubber_).show(part);
}

void export_now_playing_page() {
  objc::ClassBuilder("MusicNowPlayingController", "UIViewController")
      .state<NowPlayingPage>()
      .method<&NowPlayingPage::view_did_load>("viewDidLoad")
      .method<&NowPlayingPage::view_will_appear>("viewWillAppear:")
      .method<&NowPlayingPage::view_will_disappear>("viewWillDisappear:")
      .method<&NowPlayingPage::title_label>("titleLabel")
      .method<&NowPlayingPage::play_button>("playButton")
      .method<&NowPlayingPage::next_button>("nextButton")
      .finish();
}

}  // namespace host::music
