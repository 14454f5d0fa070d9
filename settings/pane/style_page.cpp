#include "settings/pane/style_page.h"

#include "platform/UIKit/UIAlertView.h"
#include "platform/UIKit/UIPageViewController.h"
#include "platform/UIKit/UIPickerView.h"
#include "settings/choices.h"
#include "settings/globals.h"
#include "settings/pane/gesture_page.h"
#include "settings/pane/restart_question.h"
#include "settings/pane/specifiers.h"
#include "settings/pane/style_rows.h"
#include "settings/preferences.h"
#include "settings/texts.h"
#include "settings/wizard/locked_view_controller.h"
#include "settings/wizard/wizard.h"

namespace sonavue {
namespace {

class StylePage : public objc::Implementation<StylePage, styleController> {
 public:
  explicit StylePage(styleController owner) : Implementation(owner), wizard_(owner) {}

  NSArray specifiers() {
    settings::set_where(self);
    if (!self.cached_specifiers()) self.setSpecifiers(make_style_rows(self));
    return self.cached_specifiers();
  }
  objc::Object value(PSSpecifier row) { return row_value(row); }
  void set_value(objc::Object value, PSSpecifier row) {
    if (row.identifier().isEqualToString(Translator("apex"_ns))) {
      ask_for_restart(self, value);
    } else {
      store_row_value(value, row);
    }
  }
  void answered(UIAlertView, NSInteger button) { restart_answered(self, button); }
  void show_gesture_page() { present_gesture_page(self); }
  void dismiss() { self.dismissViewControllerAnimated(YES, nullptr); }

  // Data source and delegate of the wizard's wheel of blurs.
  NSInteger components(UIPickerView) { return 1; }
  NSInteger rows(UIPickerView, NSInteger) {
    return static_cast<NSInteger>(wizard_.blurs().count());
  }
  NSString row_title(UIPickerView, NSInteger row, NSInteger) {
    return objc::cast<NSString>(wizard_.blurs().objectAtIndex(static_cast<NSUInteger>(row)));
  }
  void row_chosen(UIPickerView, NSInteger row, NSInteger) {
    store(blur_choices().objectAtIndex(static_cast<NSUInteger>(row)), preference::blur());
  }

  void show_first_page() { wizard_.show_first_page(); }
  void shimmer_label() { wizard_.shimmer_label(); }
  void drag_first_page(UIPanGestureRecognizer pan) { wizard_.drag_first_page(pan); }
  void show_setup() { wizard_.show_setup(); }
  void show_activator_page() { wizard_.show_activator_page(); }
  void show_tutorial() { wizard_.show_tutorial(); }
  void dismiss_intro() { wizard_.dismiss_intro(); }

  UIViewController page_before(UIPageViewController, UIViewController page) {
    return wizard_.page_before(page);
  }
  UIViewController page_after(UIPageViewController, UIViewController page) {
    return wizard_.page_after(page);
  }
  NSInteger presentation_count(UIPageViewController pages) {
    return wizard_.presentation_count(pages);
  }
  NSInteger presentation_index(UIPageViewController) { return 0; }
  NSUInteger supported_orientations(UIPageViewController) { return kPortraitOnly; }

 private:
  Wizard wizard_;
};

}  // namespace

void make_style_page() {
  objc::make_own_class<styleController>([](objc::ClassBuilder& builder) {
    builder.state<StylePage>()
        .method<&StylePage::specifiers>("specifiers")
        .method<&StylePage::value>("getValue:")
        .method<&StylePage::set_value>("setValue:forSpecifier:")
        .method<&StylePage::answered>("alertView:clickedButtonAtIndex:")
        .method<&StylePage::show_gesture_page>("activatorr")
        .method<&StylePage::dismiss>("dismiss")
        .method<&StylePage::components>("numberOfComponentsInPickerView:")
        .method<&StylePage::rows>("pickerView:numberOfRowsInComponent:")
        .method<&StylePage::row_title>("pickerView:titleForRow:forComponent:")
        .method<&StylePage::row_chosen>("pickerView:didSelectRow:inComponent:")
        .method<&StylePage::show_first_page>("showFirstPage")
        .method<&StylePage::shimmer_label>("shimmerLabel")
        .method<&StylePage::drag_first_page>("spostaPrimo:")
        .method<&StylePage::show_setup>("showSetup")
        .method<&StylePage::show_activator_page>("showActivatorPage")
        .method<&StylePage::show_tutorial>("showTutorial")
        .method<&StylePage::dismiss_intro>("dismissIntro")
        .method<&StylePage::page_before>("pageViewController:viewControllerBeforeViewController:")
        .method<&StylePage::page_after>("pageViewController:viewControllerAfterViewController:")
        .method<&StylePage::presentation_count>("presentationCountForPageViewController:")
        .method<&StylePage::presentation_index>("presentationIndexForPageViewController:")
        .method<&StylePage::supported_orientations>(
            "pageViewControllerSupportedInterfaceOrientations:");
  });
}

}  // namespace sonavue
