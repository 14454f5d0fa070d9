#include "settings/pane/root_page.h"

#include "objc/own_class.h"
#include "platform/Foundation/NSValue.h"
#include "platform/Preferences/PSListController.h"
#include "platform/Twitter/TWTweetComposeViewController.h"
#include "settings/globals.h"
#include "settings/pane/credits_page.h"
#include "settings/pane/header_cell.h"
#include "settings/pane/specifiers.h"
#include "settings/pane/style_page.h"
#include "settings/pictures.h"
#include "settings/preferences.h"
#include "settings/texts.h"
#include "tweak/preferences/preferences_file.h"

struct SonavueSettingsController
    : objc::Own<SonavueSettingsController, "SonavueSettingsController", PSListController> {};

namespace sonavue {
namespace {

NSArray make_specifiers(SonavueSettingsController self) {
  return NSArray::arrayWithObjects(
      group_with_header<HeaderCellForSonavue>(self), PSSpecifier::emptyGroupSpecifier(),
      with_icon(switch_row(self, "enable"_ns), "attivo"_ns), PSSpecifier::emptyGroupSpecifier(),
      with_icon(link_row(self, "configuration"_ns, styleController::cls()), "configurazione"_ns),
      PSSpecifier::emptyGroupSpecifier(),
      with_icon(link_row(self, "contacts"_ns, creatorsController::cls()), "contatti"_ns));
}

NSArray specifiers(SonavueSettingsController self) {
  if (!self.cached_specifiers()) self.setSpecifiers(make_specifiers(self));
  return self.cached_specifiers();
}

objc::Object get_value(SonavueSettingsController, PSSpecifier row) {
  return row_value(row);
}
void set_value(SonavueSettingsController, objc::Object value, PSSpecifier row) {
  store_row_value(value, row);
}

void tweet(SonavueSettingsController self) {
  const auto composer = objc::adopt(TWTweetComposeViewController::alloc().init());
  if (!composer) return;
  composer->setInitialText(Translator("tweet"_ns));
  self.presentModalViewController(composer, YES);
}

void add_share_button(SonavueSettingsController self) {
  const UIImage picture =
      imageFromFile("happy"_ns).imageWithRenderingMode(UIImageRenderingModeAlwaysTemplate);
  const auto button = objc::adopt(UIBarButtonItem::alloc().initWithImage(
      picture, UIBarButtonItemStyleBordered, self, "Tweet"_sel));
  button->setTintColor(pattern_color());
  self.navigationItem().setRightBarButtonItem(button);
}

/// Shows the wizard on the first visit only. Stored unannounced, since the home screen has nothing
/// to apply.
void show_wizard_the_first_time(SonavueSettingsController self) {
  if (!styleController::cls() || is_true(stored_value(preference::firstBoot()))) return;
  store_unannounced(NSNumber::numberWithBool(YES), preference::firstBoot());
  settings::set_where(self);
  // Never released: the wizard needs it until the application ends.
  styleController::alloc().init().showFirstPage();
}

void view_will_appear(SonavueSettingsController self, BOOL animated) {
  objc::send_super<>(self, SonavueSettingsController::cls(), "viewWillAppear:"_sel, animated);
  self.setTitle("Sonavue"_ns);
  add_share_button(self);
  show_wizard_the_first_time(self);
}

}  // namespace

void make_root_page() {
  objc::make_own_class<SonavueSettingsController>([](objc::ClassBuilder& builder) {
    builder.method<&specifiers>("specifiers")
        .method<&get_value>("getValue:")
        .method<&set_value>("setValue:forSpecifier:")
        .method<&tweet>("Tweet")
        .method<&view_will_appear>("viewWillAppear:");
  });
}

}  // namespace sonavue
