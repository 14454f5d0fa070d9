#include "host/uikit/scroll/scroll_pan.h"

#include "host/uikit/scroll/scroll_view.h"
#include "objc/class_builder.h"
#include "platform/UIKit/UITouch.h"

namespace host::uikit {
namespace {

constexpr char kPanClassName[] = "UIScrollViewPanGestureRecognizer";

class ScrollPan : public objc::Implementation<ScrollPan, UIPanGestureRecognizer> {
 public:
  explicit ScrollPan(UIPanGestureRecognizer owner) : Implementation(owner) {}

  void touches_began(NSSet touches, UIEvent event) {
    super("touchesBegan:withEvent:"_sel, touches, event);
    const UIView view = self.view();
    if (!view || self.state() != UIGestureRecognizerStatePossible) return;
    const UIView touched = objc::cast<UITouch>(touches.anyObject()).view();
    if (objc::state_of<ScrollView>(view).finger_down(touched) == ScrollView::Caught::Moving)
      self.setState(UIGestureRecognizerStateBegan);
  }

  void reset() {
    super("reset"_sel);
    if (const UIView view = self.view()) objc::state_of<ScrollView>(view).finger_gone();
  }
};

}  // namespace

objc::Ref<UIPanGestureRecognizer> make_scroll_pan(UIScrollView view) {
  const objc::Object cls(objc_getClass(kPanClassName));
  const auto made = objc::send<UIPanGestureRecognizer>(cls, "alloc"_sel);
  return objc::Ref<UIPanGestureRecognizer>::adopt(made.initWithTarget(view, "handlePan:"_sel));
}

void export_scroll_pan() {
  objc::ClassBuilder(kPanClassName, "UIPanGestureRecognizer")
      .state<ScrollPan>()
      .method<&ScrollPan::touches_began>("touchesBegan:withEvent:")
      .method<&ScrollPan::reset>("reset")
      .finish();
}

}  // namespace host::uikit
