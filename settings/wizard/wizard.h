#pragma once

#include "objc/ref.h"
#include "platform/Activator/LAListenerSettingsViewController.h"
#include "platform/UIKit/UIPageViewController.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "settings/pane/style_page.h"
#include "settings/wizard/welcome_page.h"

namespace sonavue {

/// The full-screen pages that lead through the settings: a welcome page, questions, and a tutorial.
/// It retains everything it makes until it ends.
class Wizard {
 public:
  /// `owner` is the target of every control and the source of the pages.
  explicit Wizard(styleController owner) : owner_(owner) {}
  Wizard(const Wizard&) = delete;
  Wizard& operator=(const Wizard&) = delete;

  /// The texts of the blurs; nil before the questions are shown.
  NSArray blurs() const { return blurs_; }

  void show_first_page();
  /// Runs a wave over the hint and repeats it until the questions are shown.
  void shimmer_label();
  void drag_first_page(UIPanGestureRecognizer pan);
  void show_setup();
  /// Inserts the gesture service's page before the question about it, unless it is there already,
  /// and shows it.
  void show_activator_page();
  void show_tutorial();
  void dismiss_intro();

  UIViewController page_before(UIViewController page) const;
  UIViewController page_after(UIViewController page) const;
  NSInteger presentation_count(UIPageViewController pages) const;

 private:
  void show_page(NSUInteger index) const;

  styleController owner_;
  WelcomePage welcome_;
  objc::Ref<UIViewController> main_;
  objc::Ref<UIPageViewController> controller_;
  objc::Ref<NSMutableArray> controllers_;
  objc::Ref<NSArray> blurs_;
  objc::Ref<LAListenerSettingsViewController> gesture_page_;
};

}  // namespace sonavue
