#pragma once

#include "objc/ref.h"
#include "platform/Activator/LAListenerSettingsViewController.h"
#include "platform/UIKit/UIPageViewController.h"
#include "platform/UIKit/UIPanGestureRecognizer.h"
#include "settings/pane/style_page.h"
#include "settings/wizard/welcome_page.h"

namespace sonavue {

/// The full-screen pages that lead through the settings: a welcome, questions, and a tutorial. What
/// it makes is kept until its end.
class Wizard {
 public:
  /// `owner` is the target of every control and the source of the pages.
  explicit Wizard(styleController owner) : owner_(owner) {}
  Wizard(const Wizard&) = delete;
  Wizard& operator=(const Wizard&) = delete;

  /// The blurs by their texts; nil before the questions.
  NSArray blurs() const { return blurs_; }

  void show_first_page();
  /// One wave over the hint, which begins anew at its end until the questions are there.
  void shimmer_label();
  void drag_first_page(UIPanGestureRecognizer pan);
  void show_setup();
  /// Puts the service's page before the question about it, once, and goes there.
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
