#include "settings/wizard/switcher.h"

#include "objc/block.h"
#include "objc/ref.h"
#include "platform/Foundation/NSValue.h"
#include "settings/pictures.h"
#include "settings/preferences.h"
#include "settings/texts.h"
#include "settings/wizard/row.h"
#include "tweak/preferences/preferences_file.h"
#include "ui/taps.h"

namespace sonavue {
namespace {

constexpr CGFloat kTrackFromRight = 75;
constexpr CGFloat kTrackWidth = 55;
constexpr CGFloat kTrackMargin = 5;
constexpr CGFloat kKnobInset = 0.1;
constexpr double kMove = 0.3;

objc::Ref<UIView> round_white_view(CGRect frame) {
  auto view = objc::adopt(UIView::alloc().initWithFrame(frame));
  view->setBackgroundColor(UIColor::whiteColor());
  view->layer().setCornerRadius(frame.size.height / 2);
  add_hairline(view);
  return view;
}

class SwitcherState : public objc::Implementation<SwitcherState, Switcher> {
 public:
  using Implementation::Implementation;

  Switcher init(CGRect frame, NSString name, UIImage image, BOOL border) {
    const auto made = super<Switcher>("initWithFrame:"_sel, frame);
    objc::send<>(made, "inizialize:image:border:"_sel, name, image, border);
    return made;
  }

  void inizialize(NSString name, UIImage image, BOOL border) {
    dress_as_row(self, name, image, border ? RowBorder::kHairline : RowBorder::kNone);
    add_track();
    add_tap(self, self, "animate"_sel);
    // It is drawn as off; if the setting is on, it moves there.
    if (is_true(self.getValue())) self.animate();
  }

  objc::Object value() { return stored_value(key()); }
  void set_value() { store(NSNumber::numberWithBool(on_), key()); }

  // The target is fixed at the start and taps during the movement are ignored, so that the switch
  // stores the state that it shows in the end.
  void animate() {
    if (is_moving_) return;
    is_moving_ = true;
    const BOOL target = !on_;
    // Retained, so that it stores its value even if its page is gone by then.
    const auto switcher = objc::Ref<Switcher>::retain(self);
    UIView::animateWithDuration(
        kMove, 0, UIViewAnimationOptions{},
        objc::block([switcher, target] { state(*switcher).move_to(target); }),
        objc::block([switcher, target](BOOL) { state(*switcher).arrive_at(target); }));
  }

 private:
  static SwitcherState& state(Switcher switcher) { return objc::state_of<SwitcherState>(switcher); }

  PreferenceKey key() const { return PreferenceKey(getNotTranslated(self.layer().name())); }

  void add_track() {
    const CGSize size = self.frame().size;
    const auto track = round_white_view(
        {size.width - kTrackFromRight, kTrackMargin, kTrackWidth, size.height - 2 * kTrackMargin});
    // Clips the square fill to the round track.
    track->layer().setMasksToBounds(YES);
    const CGFloat side = track->frame().size.height - 2 * kKnobInset;
    const auto knob = round_white_view({kKnobInset, kKnobInset, side, side});
    track->addSubview(knob);
    const auto fill = objc::adopt(UIView::alloc().initWithFrame({0, 0, side / 2, side}));
    fill->setBackgroundColor(pattern_color());
    track->addSubview(fill);
    track->bringSubviewToFront(knob);
    self.addSubview(track);
    knob_ = knob;
    fill_ = fill;
  }

  void move_to(BOOL on) const {
    const CGRect knob = knob_.frame();
    const CGSize fill = fill_.frame().size;
    const CGFloat x = on ? kTrackWidth - knob.size.width : 0;
    knob_.setFrame({{x, knob.origin.y}, knob.size});
    fill_.setFrame({{}, {on ? x + knob.size.width : knob.size.width / 2, fill.height}});
  }

  void arrive_at(BOOL on) {
    on_ = on;
    is_moving_ = false;
    self.setValue();
  }

  // Borrowed: the view owns both.
  UIView knob_;
  UIView fill_;
  BOOL on_ = NO;
  bool is_moving_ = false;
};

}  // namespace

void make_switcher() {
  objc::make_own_class<Switcher>([](objc::ClassBuilder& builder) {
    builder.state<SwitcherState>()
        .method<&SwitcherState::init>("initWithFrame:name:image:border:")
        .method<&SwitcherState::inizialize>("inizialize:image:border:")
        .method<&SwitcherState::value>("getValue")
        .method<&SwitcherState::set_value>("setValue")
        .method<&SwitcherState::animate>("animate");
  });
}

}  // namespace sonavue
