#pragma once

#include "platform/UIKit/UIPageViewController.h"
#include "tests/settings/pages_test.h"

namespace sonavue::test {

/// The wizard over the style page, on a screen of 375 by 667 points.
class WizardPages : public PagesTest {
 protected:
  WizardPages() { write_dictionary(preferences(), switch_entry("firstBoot", true)); }

  void start() {
    open("styleController");
    tap_row("Guided setup");
    main = page.presentedViewController() ? page.presentedViewController()
                                          : stack.presentedViewController();
    ASSERT_TRUE(main);
    welcome = objc::cast<UIView>(main.view().subviews().objectAtIndex(0));
  }
  /// Drags the welcome page by `distance` points and rests there.
  void drag_welcome(CGFloat distance) {
    const CGPoint from = {150, 400};
    press(from);
    advance(0.05);
    move({from.x + 12, from.y});
    began = from.x + 12;
    glide({began, from.y}, {began + distance, from.y}, 0.3);
    advance(0.2);
  }
  void release_welcome(CGFloat distance) {
    lift({began + distance, 400});
    advance(1);
  }
  void start_questions() {
    start();
    drag_welcome(200);
    release_welcome(200);
    advance(2);
    find_questions();
  }
  void find_questions() {
    questions = objc::cast<UIPageViewController>(objc::send<objc::Object>(
        objc::cast<UIView>(main.view().subviews().lastObject()), "nextResponder"_sel));
    ASSERT_TRUE(questions.isKindOfClass(UIPageViewController::cls()));
  }
  UIViewController shown_page() const {
    return objc::cast<UIViewController>(questions.viewControllers().firstObject());
  }
  void next_page() { swipe(0.875, 0.125); }
  void page_back() { swipe(0.125, 0.875); }
  template <class T>
  T part(const char* class_name) const {
    for (const UIView each : shown_page().view().subviews().of<UIView>()) {
      if (each.isKindOfClass(objc_getClass(class_name))) return objc::cast<T>(each);
    }
    return T();
  }

  /// Swipes between two fractions of the screen's width.
  void swipe(CGFloat from, CGFloat to) {
    const CGFloat width = window.bounds().size.width;
    press({from * width, 250});
    glide({from * width, 250}, {to * width, 250}, 0.15);
    lift({to * width, 250});
    advance(1.5);
  }

  // The seconds from one wave of the hint to the next, when the last part has faded out and in.
  static constexpr double kWave = 12 * 0.08 + 2 * 0.8;

  UIViewController main;
  UIView welcome;
  UIPageViewController questions;
  CGFloat began = 0;
};

}  // namespace sonavue::test
