#include "host/uikit/scroll/content_touch_delay.h"

#include "host/runtime/run_loop.h"
#include "objc/class_builder.h"

namespace host::uikit {
namespace {

constexpr char kDelayClassName[] = "UIScrollViewDelayedTouchesBeganGestureRecognizer";

class ContentTouchDelay : public objc::Implementation<ContentTouchDelay, UIGestureRecognizer> {
 public:
  explicit ContentTouchDelay(UIGestureRecognizer owner) : Implementation(owner) {}
  ~ContentTouchDelay() { stop_timer(); }

  void touches_began(NSSet touches, UIEvent event) {
    super("touchesBegan:withEvent:"_sel, touches, event);
    if (timer_) return;
    const double due = RunLoop::main().now() + kContentTouchDelay;
    timer_ = RunLoop::main().add_timer(due, 0, [this] {
      timer_ = 0;
      self.setState(UIGestureRecognizerStateFailed);
    });
  }

  void touches_ended(NSSet touches, UIEvent event) {
    super("touchesEnded:withEvent:"_sel, touches, event);
    self.setState(UIGestureRecognizerStateFailed);
  }

  void touches_cancelled(NSSet touches, UIEvent event) {
    super("touchesCancelled:withEvent:"_sel, touches, event);
    self.setState(UIGestureRecognizerStateFailed);
  }

  void reset() {
    super("reset"_sel);
    stop_timer();
  }

 private:
  void stop_timer() {
    if (timer_ && RunLoop::has_main()) RunLoop::main().remove_timer(timer_);
    timer_ = 0;
  }

  RunLoop::Id timer_ = 0;
};

}  // namespace

objc::Ref<UIGestureRecognizer> make_content_touch_delay(UIScrollView) {
  const objc::Object cls(objc_getClass(kDelayClassName));
  const auto made = objc::send<UIGestureRecognizer>(cls, "alloc"_sel);
  auto delay = objc::Ref<UIGestureRecognizer>::adopt(made.initWithTarget(nil, nullptr));
  delay->setDelaysTouchesBegan(YES);
  delay->setDelaysTouchesEnded(NO);
  delay->setCancelsTouchesInView(NO);
  return delay;
}

void export_content_touch_delay() {
  objc::ClassBuilder(kDelayClassName, "UIGestureRecognizer")
      .state<ContentTouchDelay>()
      .method<&ContentTouchDelay::touches_began>("touchesBegan:withEvent:")
      .method<&ContentTouchDelay::touches_ended>("touchesEnded:withEvent:")
      .method<&ContentTouchDelay::touches_cancelled>("touchesCancelled:withEvent:")
      .method<&ContentTouchDelay::reset>("reset")
      .finish();
}

}  // namespace host::uikit
