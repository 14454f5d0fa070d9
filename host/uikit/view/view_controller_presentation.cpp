#include <memory>

#include "host/foundation/exception.h"
#include "host/uikit/view/touch_hold.h"
#include "host/uikit/view/view_controller.h"

namespace host::uikit {
namespace {

constexpr double kPresentationDuration = 0.4;

CGRect below(CGRect rect) {
  return {rect.origin.x, rect.max_y(), rect.size.width, rect.size.height};
}

// As a message: some controllers do not slide in from below.
void put_off_screen(UIViewController controller, CGRect place) {
  objc::send<>(controller, "_placeOffScreen:"_sel, place);
}
void put_on_screen(UIViewController controller, CGRect place) {
  objc::send<>(controller, "_placeOnScreen:"_sel, place);
}

/// Runs the changes, animated or at once, and then `done` in either case. Meanwhile no page in the
/// window takes touches: a second tap would reach one that is leaving, or one behind it.
template <class Changes, class Done>
void change(UIWindow window, BOOL animated, Changes changes, Done done) {
  if (!animated) {
    changes();
    return done();
  }
  const auto hold = window ? std::make_shared<TouchHold>(window) : nullptr;
  UIView::animateWithDuration(kPresentationDuration, objc::block(changes),
                              objc::block([hold, done](BOOL) {
                                if (hold) hold->end();
                                done();
                              }));
}

/// Returns whether the controller hides everything behind it. Controllers behind then disappear,
/// and appear again afterwards.
bool covers(UIViewController controller) {
  return controller.modalPresentationStyle() == UIModalPresentationFullScreen;
}

}  // namespace

/// Nested controllers leave presenting to the outermost one: the presented view covers all of it.
UIViewController ViewController::presenter() const {
  UIViewController outermost = self;
  while (const UIViewController parent = outermost.parentViewController())
    outermost = parent;
  return outermost;
}

UIViewController ViewController::presented() const {
  if (presented_ || !parent_) return presented_.get();
  return parent_.presentedViewController();
}

UIViewController ViewController::presenting() const {
  return presenting_ || !parent_ ? presenting_ : parent_.presentingViewController();
}

void ViewController::present(UIViewController controller, BOOL animated,
                             objc::Block<void()> completion) {
  if (!controller)
    foundation::raise("NSInvalidArgumentException"_ns,
                      "Application tried to present a nil modal view controller on target " +
                          foundation::plain_description(self) + ".");
  if (parent_) return presenter().presentViewController(controller, animated, completion);
  const UIWindow window = self.view().window();
  if (presented_ || !window) return;
  presented_.reset(controller);
  objc::state_of<ViewController>(controller).presenting_ = self;
  const UIView view = controller.view();
  const CGRect place = window.bounds();
  const bool hides_self = covers(controller);
  if (hides_self) self.viewWillDisappear(animated);
  controller.viewWillAppear(animated);
  if (animated) put_off_screen(controller, place);
  window.addSubview(view);
  change(
      window, animated, [controller, place] { put_on_screen(controller, place); },
      [this, behind = objc::Ref<UIViewController>::retain(self), kept = presented_, animated,
       hides_self, completion = objc::OwnedBlock<void()>(completion)] {
        // It may have been dismissed before it arrived.
        if (kept->presentingViewController() && presented_.get() == kept.get()) {
          kept->viewDidAppear(animated);
          if (hides_self) self.viewDidDisappear(animated);
        }
        completion.get()();
      });
}

void ViewController::dismiss(BOOL animated, objc::Block<void()> completion) {
  if (!presented_ && parent_) return parent_.dismissViewControllerAnimated(animated, completion);
  if (!presented_) return presenting_.dismissViewControllerAnimated(animated, completion);
  const auto leaving = std::exchange(presented_, {});
  objc::state_of<ViewController>(leaving.get()).presenting_ = nil;
  const UIWindow window = leaving->view().window();
  const CGRect place = leaving->view().frame();
  const bool hid_self = covers(leaving.get());
  leaving->viewWillDisappear(animated);
  if (hid_self) self.viewWillAppear(animated);
  change(
      window, animated, [leaving, place] { put_off_screen(leaving.get(), place); },
      [behind = objc::Ref<UIViewController>::retain(self), leaving, animated, hid_self,
       completion = objc::OwnedBlock<void()>(completion)] {
        objc::state_of<ViewController>(leaving.get()).end_presentation();
        leaving->view().removeFromSuperview();
        leaving->viewDidDisappear(animated);
        if (hid_self) behind->viewDidAppear(animated);
        completion.get()();
      });
}

void ViewController::end_presentation() {
  const auto leaving = std::exchange(presented_, {});
  if (!leaving) return;
  ViewController& controller = objc::state_of<ViewController>(leaving.get());
  controller.presenting_ = nil;
  controller.end_presentation();
  leaving->viewWillDisappear(NO);
  if (leaving->isViewLoaded()) leaving->view().removeFromSuperview();
  leaving->viewDidDisappear(NO);
}

void ViewController::place_off_screen(CGRect place) {
  self.view().setFrame(below(place));
}

void ViewController::place_on_screen(CGRect place) {
  self.view().setFrame(place);
}

void ViewController::present_modal(UIViewController controller, BOOL animated) {
  self.presentViewController(controller, animated, nullptr);
}
void ViewController::dismiss_modal(BOOL animated) {
  self.dismissViewControllerAnimated(animated, nullptr);
}

}  // namespace host::uikit
