#include "settings/wizard/switcher.h"

#include "objc/block.h"
#include "objc/class_builder.h"
#include "objc/ref.h"
#include "platform/Foundation/NSValue.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "settings/pictures.h"
#include "settings/preferences.h"
#include "settings/texts.h"
#include "settings/wizard/row.h"

namespace sonavue {
namespace {

constexpr CGFloat kTrackFromRight = 75;
constexpr CGFloat kTrackWidth = 55;
constexpr CGFloat kTrackMargin = 5;
constexpr CGFloat kKnobInset = 0.1;
constexpr double kMove = 0.3;

UIView round_white_view(CGRect frame) {
  const UIView view = UIView::alloc().initWithFrame(frame);
  view.setBackgroundColor(UIColor::whiteColor());
  view.layer().setCornerRadius(frame.size.height / 2);
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
    const auto tap = UITapGestureRecognizer::alloc().initWithTarget(self, "animate"_sel);
    self.addGestureRecognizer(tap);
    tap.release();
    // Off is how it is drawn; on is where it goes from there.
    if (is_true(self.getValue())) self.animate();
  }

  objc::Object value() { return stored_value(key()); }
  void set_value() { store(NSNumber::numberWithBool(on_), key()); }

  void animate() {
    // It writes even when its page is gone by then.
    const auto switcher = objc::Ref<Switcher>::retain(self);
    UIView::animateWithDuration(kMove, 0, UIViewAnimationOptions{},
                                objc::block([switcher] { state(*switcher).move(); }),
                                objc::block([switcher](BOOL) { state(*switcher).arrive(); }));
  }

 private:
  static SwitcherState& state(Switcher switcher) { return objc::state_of<SwitcherState>(switcher); }

  NSString key() const { return getNotTranslated(self.layer().name()); }

  void add_track() {
    const CGSize size = self.frame().size;
    const UIView track = round_white_view(
        {size.width - kTrackFromRight, kTrackMargin, kTrackWidth, size.height - 2 * kTrackMargin});
    const CGFloat side = track.frame().size.height - 2 * kKnobInset;
    knob_ = round_white_view({kKnobInset, kKnobInset, side, side});
    track.addSubview(knob_);
    fill_ = UIView::alloc().initWithFrame({0, 0, side / 2, side});
    fill_.setBackgroundColor(pattern_color());
    track.addSubview(fill_);
    track.bringSubviewToFront(knob_);
    self.addSubview(track);
    fill_.release();
    knob_.release();
    track.release();
  }

  void move() const {
    const CGRect knob = knob_.frame();
    const CGSize fill = fill_.frame().size;
    const CGFloat x = on_ ? 0 : kTrackWidth - knob.size.width;
    knob_.setFrame({{x, knob.origin.y}, knob.size});
    fill_.setFrame({{}, {on_ ? knob.size.width / 2 : x + knob.size.width, fill.height}});
  }

  void arrive() {
    on_ = !on_;
    self.setValue();
  }

  // Both belong to the view.
  UIView knob_;
  UIView fill_;
  BOOL on_ = NO;
};

}  // namespace

void make_switcher() {
  objc::ClassBuilder("Switcher", "UIView")
      .state<SwitcherState>()
      .method<&SwitcherState::init>("initWithFrame:name:image:border:")
      .method<&SwitcherState::inizialize>("inizialize:image:border:")
      .method<&SwitcherState::value>("getValue")
      .method<&SwitcherState::set_value>("setValue")
      .method<&SwitcherState::animate>("animate")
      .finish();
}

}  // namespace sonavue
