#include "host/uikit/view/view_controller.h"

#include "platform/UIKit/UIDevice.h"

namespace host::uikit {
namespace {

constexpr NSUInteger kAllButUpsideDown = 26;
constexpr NSUInteger kAllOrientations = 30;
constexpr double kPresentationDuration = 0.4;

CGRect below(CGRect rect) {
  return {rect.origin.x, rect.max_y(), rect.size.width, rect.size.height};
}

// By messages: there are controllers that come another way than from below.
void put_off_screen(UIViewController controller, CGRect place) {
  objc::send<>(controller, "_placeOffScreen:"_sel, place);
}
void put_on_screen(UIViewController controller, CGRect place) {
  objc::send<>(controller, "_placeOnScreen:"_sel, place);
}

/// Runs the changes as an animation, or at once; `done` afterwards in either case.
template <class Changes, class Done>
void change(BOOL animated, Changes changes, Done done) {
  if (animated) {
    UIView::animateWithDuration(kPresentationDuration, objc::block(changes),
                                objc::block([done](BOOL) { done(); }));
  } else {
    changes();
    done();
  }
}

}  // namespace

ViewController::~ViewController() {
  if (view_) objc::state_of<View>(view_.get()).set_controller(nil);
  for (const auto& child : children_)
    objc::state_of<ViewController>(child.get()).parent_ = nil;
  end_presentation();
}

UIView ViewController::view() {
  if (!view_) {
    self.loadView();
    if (view_) self.viewDidLoad();
  }
  return view_.get();
}

void ViewController::set_view(UIView view) {
  if (view_) objc::state_of<View>(view_.get()).set_controller(nil);
  view_.reset(view);
  if (view) objc::state_of<View>(view).set_controller(self);
}

void ViewController::load_view() {
  const UIView view = UIView::alloc().initWithFrame(UIScreen::mainScreen().bounds());
  view.setAutoresizingMask(UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight);
  self.setView(view);
  view.release();
}

UIResponder ViewController::next_responder() {
  if (view_ && view_->superview()) return view_->superview();
  return presenting_;
}

NSUInteger ViewController::supported_interface_orientations() {
  const bool tablet = UIDevice::currentDevice().userInterfaceIdiom() == UIUserInterfaceIdiomPad;
  return tablet ? kAllOrientations : kAllButUpsideDown;
}

NSArray ViewController::children() const {
  std::vector<objc::Object> objects;
  for (const auto& child : children_)
    objects.push_back(child.get());
  return NSArray::arrayWithObjects(objects.data(), objects.size());
}

void ViewController::add_child(UIViewController child) {
  if (!child || child.parentViewController() == self) return;
  const auto kept = objc::Ref<UIViewController>::retain(child);
  child.removeFromParentViewController();
  child.willMoveToParentViewController(self);
  children_.push_back(kept);
  objc::state_of<ViewController>(child).parent_ = self;
}

void ViewController::remove_from_parent() {
  if (!parent_) return;
  const auto kept = objc::Ref<UIViewController>::retain(self);
  auto& siblings = objc::state_of<ViewController>(parent_).children_;
  std::erase_if(siblings, [this](const auto& child) { return child.get() == self; });
  parent_ = nil;
  self.didMoveToParentViewController(nil);
}

void ViewController::present(UIViewController controller, BOOL animated,
                             objc::Block<void()> completion) {
  const UIWindow window = self.view().window();
  if (!controller || presented_ || !window) return;
  presented_.reset(controller);
  objc::state_of<ViewController>(controller).presenting_ = self;
  const UIView view = controller.view();
  const CGRect place = window.bounds();
  controller.viewWillAppear(animated);
  if (animated) put_off_screen(controller, place);
  window.addSubview(view);
  change(
      animated, [controller, place] { put_on_screen(controller, place); },
      [kept = presented_, animated, completion = objc::OwnedBlock<void()>(completion)] {
        // It may have been sent away again on its way.
        if (kept->presentingViewController()) kept->viewDidAppear(animated);
        completion.get()();
      });
}

void ViewController::dismiss(BOOL animated, objc::Block<void()> completion) {
  if (!presented_) return presenting_.dismissViewControllerAnimated(animated, completion);
  const auto leaving = std::exchange(presented_, {});
  objc::state_of<ViewController>(leaving.get()).presenting_ = nil;
  const CGRect place = leaving->view().frame();
  leaving->viewWillDisappear(animated);
  change(
      animated, [leaving, place] { put_off_screen(leaving.get(), place); },
      [leaving, animated, completion = objc::OwnedBlock<void()>(completion)] {
        objc::state_of<ViewController>(leaving.get()).end_presentation();
        leaving->view().removeFromSuperview();
        leaving->viewDidDisappear(animated);
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

void export_view_controller() {
  using Controller = ViewController;
  objc::ClassBuilder("UIViewController", "UIResponder")
      .state<Controller>()
      .method<&Controller::view>("view")
      .method<&Controller::set_view>("setView:")
      .method<&Controller::is_view_loaded>("isViewLoaded")
      .method<&Controller::load_view>("loadView")
      .method<&Controller::view_did_load>("viewDidLoad")
      .method<&Controller::view_will_appear>("viewWillAppear:")
      .method<&Controller::view_did_appear>("viewDidAppear:")
      .method<&Controller::view_will_disappear>("viewWillDisappear:")
      .method<&Controller::view_did_disappear>("viewDidDisappear:")
      .method<&Controller::view_will_layout_subviews>("viewWillLayoutSubviews")
      .method<&Controller::view_did_layout_subviews>("viewDidLayoutSubviews")
      .method<&Controller::next_responder>("nextResponder")
      .method<&Controller::title>("title")
      .method<&Controller::set_title>("setTitle:")
      .method<&Controller::should_autorotate>("shouldAutorotate")
      .method<&Controller::supported_interface_orientations>("supportedInterfaceOrientations")
      .method<&Controller::parent>("parentViewController")
      .method<&Controller::children>("childViewControllers")
      .method<&Controller::add_child>("addChildViewController:")
      .method<&Controller::remove_from_parent>("removeFromParentViewController")
      .method<&Controller::will_move_to_parent>("willMoveToParentViewController:")
      .method<&Controller::did_move_to_parent>("didMoveToParentViewController:")
      .method<&Controller::modal_presentation_style>("modalPresentationStyle")
      .method<&Controller::set_modal_presentation_style>("setModalPresentationStyle:")
      .method<&Controller::presented>("presentedViewController")
      .method<&Controller::presenting>("presentingViewController")
      .method<&Controller::present>("presentViewController:animated:completion:")
      .method<&Controller::dismiss>("dismissViewControllerAnimated:completion:")
      .method<&Controller::place_off_screen>("_placeOffScreen:")
      .method<&Controller::place_on_screen>("_placeOnScreen:")
      .method<&Controller::present_modal>("presentModalViewController:animated:")
      .method<&Controller::dismiss_modal>("dismissModalViewControllerAnimated:")
      .finish();
}

}  // namespace host::uikit
