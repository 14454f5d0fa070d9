#include "host/springboard/surfaces/playback_view.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

#include "host/springboard/common/make_view.h"
#include "host/springboard/model/strings.h"
#include "host/springboard/parts/surface_parts.h"
#include "platform/SpringBoard/SBMediaController.h"

namespace host::springboard {
namespace {

constexpr double kLook = 0.5;
constexpr CGFloat kTimeWidth = 46;
constexpr CGFloat kTimeHeight = 16;
constexpr CGFloat kTimeSize = 11;
constexpr CGFloat kTimeLine = 3;
constexpr CGFloat kTitleTop = 20;
constexpr CGFloat kSongTitleHeight = 22;
constexpr CGFloat kSongTitleSize = 16;
constexpr CGFloat kLineSize = 13;
constexpr CGFloat kTransportTop = 66;
constexpr CGFloat kButton = 44;
constexpr CGFloat kButtonDistance = 78;
constexpr CGFloat kVolumeTop = 116;
constexpr CGFloat kVolumeHeight = 32;
constexpr CGFloat kSpeakerWidth = 26;
constexpr CGFloat kWeakAlpha = 0.55;
constexpr CGFloat kEmptyAlpha = 0.22;

NSString minutes(double seconds, const char* sign) {
  const int whole = static_cast<int>(seconds);
  return to_ns(fmt::format("{}{}:{:02}", sign, whole / 60, whole % 60));
}

}  // namespace

PlaybackView::PlaybackView(UIView parent, CGRect frame, Ink ink_of,
                           std::function<void(const NowPlaying&)> on_change)
    : ink_(ink_of), on_change_(std::move(on_change)), view_(make_view<UIView>(frame)) {
  parent.addSubview(*view_);
  const CGFloat width = frame.size.width;
  const SliderColors colors{objc::Ref<UIColor>::retain(ink(0.85)),
                            objc::Ref<UIColor>::retain(ink(kEmptyAlpha))};
  add_time(colors);
  title_ = add_label(*view_, {0, kTitleTop, width, kSongTitleHeight},
                     {"HelveticaNeue-Medium"_ns, kSongTitleSize, ink(1)});
  line_ = add_label(*view_, {0, kTitleTop + kSongTitleHeight, width, kSongTitleHeight - 2},
                    {"HelveticaNeue"_ns, kLineSize, ink(kWeakAlpha + 0.15)});
  add_transport();
  add_volume(colors);
}

PlaybackView::~PlaybackView() {
  stop_watching();
}

UIColor PlaybackView::ink(CGFloat alpha) const {
  return UIColor::colorWithWhite(ink_ == Ink::kDark ? 0 : 1, alpha);
}

void PlaybackView::add_time(const SliderColors& colors) {
  const CGFloat width = view_->bounds().size.width;
  const TextLook look{"HelveticaNeue"_ns, kTimeSize, ink(kWeakAlpha), NSTextAlignmentLeft};
  elapsed_ = add_label(*view_, {0, 0, kTimeWidth, kTimeHeight}, look);
  TextLook right = look;
  right.alignment = NSTextAlignmentRight;
  remaining_ = add_label(*view_, {width - kTimeWidth, 0, kTimeWidth, kTimeHeight}, right);
  const CGRect track{kTimeWidth, (kTimeHeight - kTimeLine) / 2, width - 2 * kTimeWidth, kTimeLine};
  const auto whole = add_plate(*view_, track, *colors.empty, kTimeLine / 2);
  elapsed_bar_ = add_plate(*whole, {0, 0, 0, kTimeLine}, *colors.filled, kTimeLine / 2);
}

void PlaybackView::add_transport() {
  const CGFloat middle = view_->bounds().size.width / 2;
  const auto at = [&](CGFloat offset) {
    return CGRect(middle + offset - kButton / 2, kTransportTop, kButton, kButton);
  };
  const SBMediaController media = SBMediaController::sharedInstance();
  const auto previous =
      add_glyph_button(*view_, "surface-previous"_ns, at(-kButtonDistance), ink(1));
  play_ = add_glyph_button(*view_, "surface-play"_ns, at(0), ink(1));
  const auto next = add_glyph_button(*view_, "surface-next"_ns, at(kButtonDistance), ink(1));
  const auto and_look = [this](auto act) {
    return [this, act] {
      act();
      update();
    };
  };
  actions_.on_press(*previous, and_look([media] { media.changeTrack(-1); }));
  actions_.on_press(*play_, and_look([media] { media.togglePlayPause(); }));
  actions_.on_press(*next, and_look([media] { media.changeTrack(1); }));
}

void PlaybackView::add_volume(const SliderColors& colors) {
  const CGFloat width = view_->bounds().size.width;
  add_glyph(*view_, "surface-speaker"_ns, {0, kVolumeTop, kSpeakerWidth, kVolumeHeight},
            ink(kWeakAlpha));
  add_glyph(*view_, "surface-speaker-loud"_ns,
            {width - kSpeakerWidth, kVolumeTop, kSpeakerWidth, kVolumeHeight}, ink(kWeakAlpha));
  const CGRect place{kSpeakerWidth + 4, kVolumeTop, width - 2 * kSpeakerWidth - 8, kVolumeHeight};
  volume_ = Slider::make(place, colors, [](double value) {
    SBMediaController::sharedInstance().setVolume(static_cast<float>(value));
  });
  view_->addSubview(*volume_);
}

void PlaybackView::start_watching() {
  if (timer_) return;
  update();
  RunLoop& loop = RunLoop::main();
  timer_ = loop.add_timer(loop.now() + kLook, kLook, [this] { update(); });
}

void PlaybackView::stop_watching() {
  if (timer_ && RunLoop::has_main()) RunLoop::main().remove_timer(*timer_);
  timer_.reset();
}

void PlaybackView::update() {
  const NowPlaying playing = reader_.read(RunLoop::main().now());
  show_text(*title_, playing.has_track ? *playing.title : "Not Playing"_ns);
  show_text(*line_, *playing.line);
  show_time(playing);
  if (playing.is_playing != shows_pause_) {
    shows_pause_ = playing.is_playing;
    play_->setImage(glyph(shows_pause_ ? "surface-pause"_ns : "surface-play"_ns),
                    UIControlStateNormal);
  }
  objc::state_of<Slider>(*volume_).show(SBMediaController::sharedInstance().volume());
  if (on_change_) on_change_(playing);
}

void PlaybackView::show_time(const NowPlaying& playing) {
  const bool is_known = playing.has_track && playing.duration > 0;
  show_text(*elapsed_, is_known ? minutes(playing.elapsed, "") : NSString());
  show_text(*remaining_, is_known ? minutes(playing.duration - playing.elapsed, "-") : NSString());
  const CGFloat whole = elapsed_bar_->superview().bounds().size.width;
  // Whole seconds, like the texts beside it.
  const CGFloat part = is_known ? std::floor(playing.elapsed) / playing.duration : 0;
  const CGRect frame{0, 0, whole * std::min<CGFloat>(part, 1), kTimeLine};
  if (!(CGRect(elapsed_bar_->frame()) == frame)) elapsed_bar_->setFrame(frame);
}

}  // namespace host::springboard
