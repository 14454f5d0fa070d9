#include "settings/wizard/wizard.h"

#include "objc/block.h"
#include "objc/ref.h"
#include "platform/UIKit/UIPageControl.h"
#include "platform/UIKit/UIScreen.h"
#include "settings/choices.h"
#include "settings/globals.h"
#include "settings/pane/gesture_page.h"
#include "settings/wizard/locked_view_controller.h"
#include "settings/wizard/question_pages.h"

namespace sonavue {
namespace {

constexpr double kSlide = 0.3;
constexpr double kWizardFade = 1.0;
// A pull to the left meets resistance: there is nothing on that side.
constexpr CGFloat kStiffness = 3;
// The gesture service's page is inserted before the question that led to it.
constexpr NSUInteger kGesturePageIndex = 5;

}  // namespace

void Wizard::show_first_page() {
  const CGRect bounds = UIScreen::mainScreen().bounds();
  main_ = objc::adopt(UIViewController(LockedUIViewController::alloc().init()));
  if (!main_) return;
  main_->view().setFrame(bounds);
  main_->view().setBackgroundColor(UIColor::whiteColor());
  const auto page = welcome_.build(main_->view().frame());
  main_->view().addSubview(page);
  objc::send<>(owner_, "shimmerLabel"_sel);
  settings::where.presentViewController(main_, YES, nullptr);
  const auto pan =
      objc::adopt(UIPanGestureRecognizer::alloc().initWithTarget(owner_, "spostaPrimo:"_sel));
  page->addGestureRecognizer(pan);
}

void Wizard::shimmer_label() {
  if (controller_ && controller_->view().alpha() == 1) return;
  const auto owner = objc::Ref<styleController>::retain(owner_);
  welcome_.wave(objc::block([owner](BOOL) { objc::send<>(*owner, "shimmerLabel"_sel); }));
}

void Wizard::drag_first_page(UIPanGestureRecognizer pan) {
  const UIView page = pan.view();
  const CGSize size = page.frame().size;
  const CGPoint location = pan.locationInView(main_->view());
  if (pan.state() == UIGestureRecognizerStateBegan) settings::startPoint = location;
  if (pan.state() != UIGestureRecognizerStateEnded) {
    settings::endPoint = location;
    const CGFloat distance = location.x - settings::startPoint.x;
    page.setFrame({distance < 0 ? distance / kStiffness : distance, 0, size.width, size.height});
    return;
  }
  if (page.frame().origin.x < size.width / 4) {
    UIView::animateWithDuration(kSlide, objc::block([page, size] {
                                  page.setFrame({0, 0, size.width, size.height});
                                }));
    return;
  }
  const auto owner = objc::Ref<styleController>::retain(owner_);
  UIView::animateWithDuration(kSlide, 0, UIViewAnimationOptions{}, objc::block([page, size] {
                                page.setFrame({size.width, 0, size.width, size.height});
                              }),
                              objc::block([this, owner](BOOL) {
                                welcome_.release_labels();
                                objc::send<>(*owner, "showSetup"_sel);
                              }));
}

void Wizard::show_setup() {
  const CGRect bounds = UIScreen::mainScreen().bounds();
  blurs_.reset(translated(blur_choices()));
  controllers_ = objc::adopt(NSMutableArray::alloc().init());
  add_question_pages(controllers_, bounds, owner_);
  gesture_page_ = make_gesture_page();
  gesture_page_->view().setBackgroundColor(UIColor::whiteColor());
  controller_ = objc::adopt(UIPageViewController::alloc().initWithTransitionStyle(
      UIPageViewControllerTransitionStyleScroll,
      UIPageViewControllerNavigationOrientationHorizontal, nil));
  const UIView view = controller_->view();
  view.setFrame(main_->view().frame());
  view.setBackgroundColor(UIColor::whiteColor());
  controller_->setDelegate(owner_);
  controller_->setDataSource(owner_);
  show_page(0);
  view.setAlpha(0);
  main_->view().addSubview(view);
  UIView::animateWithDuration(kWizardFade, objc::block([view] { view.setAlpha(1); }));
}

void Wizard::show_page(NSUInteger index) const {
  controller_->setViewControllers(NSArray::arrayWithObject(controllers_->objectAtIndex(index)),
                                  UIPageViewControllerNavigationDirectionForward, YES, nullptr);
}

void Wizard::show_activator_page() {
  if (!gesture_page_) return;
  if (!controllers_->containsObject(gesture_page_))
    controllers_->insertObject(gesture_page_, kGesturePageIndex);
  show_page(kGesturePageIndex);
}

void Wizard::show_tutorial() {
  const UIView view = controller_->view();
  const auto owner = objc::Ref<styleController>::retain(owner_);
  UIView::animateWithDuration(
      kWizardFade, objc::block([view] { view.setAlpha(0); }),
      objc::block([this, owner, view](BOOL) {
        controllers_->removeAllObjects();
        add_tutorial_pages(controllers_, UIScreen::mainScreen().bounds(), owner_);
        show_page(0);
        UIView::animateWithDuration(kWizardFade, objc::block([view] { view.setAlpha(1); }));
      }));
}

void Wizard::dismiss_intro() {
  settings::end_shown(main_);
  controller_.reset();
  blurs_.reset();
  main_.reset();
  controllers_.reset();
  gesture_page_.reset();
}

UIViewController Wizard::page_before(UIViewController page) const {
  const NSUInteger index = controllers_->indexOfObjectIdenticalTo(page);
  if (!controllers_ || index == NSNotFound || index == 0) return nil;
  return objc::cast<UIViewController>(controllers_->objectAtIndex(index - 1));
}

UIViewController Wizard::page_after(UIViewController page) const {
  const NSUInteger index = controllers_->indexOfObjectIdenticalTo(page);
  if (!controllers_ || index == NSNotFound || index + 1 >= controllers_->count()) return nil;
  return objc::cast<UIViewController>(controllers_->objectAtIndex(index + 1));
}

NSInteger Wizard::presentation_count(UIPageViewController pages) const {
  for (const UIView view : pages.view().subviews().of<UIView>()) {
    if (view.isKindOfClass(UIPageControl::cls())) view.setHidden(YES);
  }
  return static_cast<NSInteger>(controllers_->count());
}

}  // namespace sonavue
