#include "host/uikit/view/view_controller.h"

#include "platform/UIKit/UIDevice.h"
#include "platform/UIKit/UINavigationController.h"

namespace host::uikit {
namespace {

constexpr NSUInteger kAllButUpsideDown = 26;
constexpr NSUInteger kAllOrientations = 30;

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

void ViewController::set_title(NSString title) {
  title_ = objc::Ref<NSString>::adopt(title.copy());
  if (navigation_item_) navigation_item_->setTitle(title);
}

UINavigationItem ViewController::navigation_item() {
  if (!navigation_item_)
    navigation_item_ =
        objc::Ref<UINavigationItem>::adopt(UINavigationItem::alloc().initWithTitle(self.title()));
  return navigation_item_.get();
}

UINavigationController ViewController::navigation_controller() const {
  for (UIViewController one = self; one; one = one.parentViewController()) {
    if (one.isKindOfClass(UINavigationController::cls()))
      return objc::cast<UINavigationController>(one);
  }
  return nil;
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
      .method<&Controller::should_autorotate_to>("shouldAutorotateToInterfaceOrientation:")
      .method<&Controller::preferred_orientation>("preferredInterfaceOrientationForPresentation")
      .method<&Controller::orientation>("interfaceOrientation")
      .method<&Controller::navigation_item>("navigationItem")
      .method<&Controller::navigation_controller>("navigationController")
      .method<&Controller::adjusts_insets>("automaticallyAdjustsScrollViewInsets")
      .method<&Controller::set_adjusts_insets>("setAutomaticallyAdjustsScrollViewInsets:")
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
