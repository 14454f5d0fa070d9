#include "host/springboard/surfaces/control_centre_panel.h"

#include <algorithm>

#include "host/springboard/common/make_view.h"
#include "host/springboard/common/shared_instance.h"
#include "host/springboard/parts/surface_parts.h"
#include "host/springboard/surfaces/display.h"

namespace host::springboard {
namespace {

constexpr CGFloat kWidestControls = 480;
constexpr CGFloat kControlsMargin = 20;
constexpr CGFloat kSwitch = 52;
constexpr CGFloat kSwitchesTop = 26;
constexpr CGFloat kSwitchesHeight = 78;
constexpr CGFloat kBrightnessHeight = 50;
constexpr CGFloat kPlaybackPadding = 14;
constexpr CGFloat kTool = 56;
constexpr CGFloat kToolRadius = 11;
constexpr CGFloat kToolsHeight = 92;
// The glass extends below the screen, because the spring overshoots.
constexpr CGFloat kBelow = 160;
constexpr CGFloat kControlsShade = 0.35;
constexpr CGFloat kOff = 0.13;
constexpr CGFloat kControlsLineAlpha = 0.16;

}  // namespace

ControlCentrePanel::ControlCentrePanel(UIView container, const Callbacks& callbacks) {
  const CGSize screen = container.bounds().size;
  const CGFloat width = std::min(screen.width, kWidestControls);
  const CGFloat brightness_top = kSwitchesTop + kSwitchesHeight;
  const CGFloat playback_top = brightness_top + kBrightnessHeight;
  const CGFloat tools_top = playback_top + PlaybackView::kHeight + 2 * kPlaybackPadding;
  height_ = tools_top + kToolsHeight;

  shade_ = make_view<UIView>(container.bounds());
  shade_->setBackgroundColor(UIColor::blackColor());
  shade_->setAlpha(0);
  container.addSubview(*shade_);
  actions_.on_tap(*shade_, callbacks.dismiss);
  actions_.on_pan(*shade_, callbacks.pan);

  sheet_ = make_view<UIView>({0, screen.height, screen.width, height_ + kBelow});
  container.addSubview(*sheet_);
  add_backdrop(*sheet_, sheet_->bounds(), kMilkBackdrop);
  add_grabber(*sheet_, {screen.width / 2, kSwitchesTop / 2}, UIColor::colorWithWhite(0, 0.3));
  content_ = make_view<UIView>({(screen.width - width) / 2, 0, width, height_});
  sheet_->addSubview(*content_);

  add_switches(kSwitchesTop);
  add_line(brightness_top);
  add_brightness(brightness_top);
  add_line(playback_top);
  const CGRect playing{kControlsMargin, playback_top + kPlaybackPadding,
                       width - 2 * kControlsMargin, PlaybackView::kHeight};
  playback_.emplace(content(), playing, Ink::kDark);
  add_line(tools_top);
  add_tools(tools_top, callbacks.open);
  // A finger on a slider moves only the slider.
  actions_.on_pan(*sheet_, callbacks.pan, [](UITouch touch) {
    return !touch.view().isKindOfClass(SBSurfaceSlider::cls());
  });
}

ControlCentrePanel::~ControlCentrePanel() {
  sheet_->removeFromSuperview();
  shade_->removeFromSuperview();
}

void ControlCentrePanel::set_shade(CGFloat share) const {
  shade_->setAlpha(kControlsShade * share);
}

void ControlCentrePanel::add_line(CGFloat top) const {
  const CGFloat pixel = 1 / UIScreen::mainScreen().scale();
  add_plate(*sheet_, {0, top, sheet_->bounds().size.width, pixel},
            UIColor::colorWithWhite(0, kControlsLineAlpha));
}

void ControlCentrePanel::add_switches(CGFloat top) {
  const NSString names[] = {"surface-airplane"_ns, "surface-wifi"_ns, "surface-bluetooth"_ns,
                            "surface-moon"_ns, "surface-rotation-lock"_ns};
  const CGFloat width = content().bounds().size.width - 2 * kControlsMargin - kSwitch;
  for (int index = 0; index < 5; ++index) {
    const CGPoint centre{kControlsMargin + kSwitch / 2 + width * index / 4,
                         top + (kSwitchesHeight - 8) / 2};
    add_switch(names[index], centre, index == 1);
  }
}

void ControlCentrePanel::add_switch(NSString glyph_name, CGPoint centre, bool is_on) {
  const CGRect frame{centre.x - kSwitch / 2, centre.y - kSwitch / 2, kSwitch, kSwitch};
  const std::size_t index = switches_.size();
  Switch made;
  made.is_on = is_on;
  made.disc = add_plate(content(), frame, UIColor::blackColor(), kSwitch / 2);
  made.glyph = add_glyph(content(), glyph_name, frame, UIColor::blackColor());
  const auto button = make_view<UIButton>(frame);
  content().addSubview(*button);
  actions_.on_press(*button, [this, index] { flip(index); });
  show(made);
  switches_.push_back(std::move(made));
}

void ControlCentrePanel::flip(std::size_t index) {
  switches_[index].is_on = !switches_[index].is_on;
  show(switches_[index]);
}

void ControlCentrePanel::show(const Switch& shown) const {
  shown.disc->setBackgroundColor(shown.is_on ? UIColor::whiteColor()
                                             : UIColor::colorWithWhite(0, kOff));
  shown.glyph->setTintColor(UIColor::colorWithWhite(0, shown.is_on ? 0.9 : 0.75));
}

void ControlCentrePanel::add_brightness(CGFloat top) {
  const CGFloat width = content().bounds().size.width;
  const UIColor weak = UIColor::colorWithWhite(0, 0.55);
  constexpr CGFloat kSun = 26;
  add_glyph(content(), "surface-sun-small"_ns, {kControlsMargin, top, kSun, kBrightnessHeight},
            weak);
  add_glyph(content(), "surface-sun"_ns,
            {width - kControlsMargin - kSun, top, kSun, kBrightnessHeight}, weak);
  const CGFloat left = kControlsMargin + kSun + 6;
  const SliderColors colors{objc::Ref<UIColor>::retain(UIColor::colorWithWhite(0, 0.85)),
                            objc::Ref<UIColor>::retain(UIColor::colorWithWhite(0, 0.22))};
  brightness_ =
      Slider::make({left, top, width - 2 * left, kBrightnessHeight}, colors,
                   [](double value) { SharedPart<Display>::get().set_brightness(value); });
  objc::state_of<Slider>(*brightness_).show(SharedPart<Display>::get().brightness());
  content().addSubview(*brightness_);
}

void ControlCentrePanel::add_tools(CGFloat top, const std::function<void(NSString)>& open) {
  const struct {
    NSString glyph;
    NSString bundle;
  } tools[] = {
      {"surface-timer"_ns, "com.apple.mobiletimer"_ns},
      {"surface-calculator"_ns, "com.apple.calculator"_ns},
      {"surface-camera"_ns, "com.apple.camera"_ns},
  };
  const CGFloat part = (content().bounds().size.width - 2 * kControlsMargin) / 3;
  int index = 0;
  for (const auto& tool : tools) {
    const CGRect frame{kControlsMargin + part * index++ + (part - kTool) / 2,
                       top + (kToolsHeight - kTool) / 2, kTool, kTool};
    add_plate(content(), frame, UIColor::colorWithWhite(0, kOff), kToolRadius);
    const auto button =
        add_glyph_button(content(), tool.glyph, frame, UIColor::colorWithWhite(0, 0.85));
    actions_.on_press(*button, [open, bundle = tool.bundle] { open(bundle); });
  }
}

}  // namespace host::springboard
