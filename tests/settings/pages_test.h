#pragma once

#include "host/activator/service/service.h"
#include "host/process/device_images.h"
#include "host/social/delivery/configuration.h"
#include "host/uikit/application/application.h"
#include "platform/Preferences/PSListController.h"
#include "platform/Preferences/PSSwitchTableCell.h"
#include "settings/Settings.h"
#include "settings/globals.h"
#include "tests/host/uikit/support/page_test.h"
#include "tests/settings/settings_device.h"

namespace sonavue::test {

/// The shell commands that were requested. None is run.
inline std::vector<std::string>& shell_commands() {
  static std::vector<std::string> commands;
  return commands;
}

/// The settings' pages on a phone's screen, as the settings application shows them. The wizard
/// counts as already shown, unless a test resets that.
class PagesTest : public host::test::PageTest, public SettingsDevice {
 public:
  PagesTest() {
    fs::remove_all(pictures());
    fs::copy(SONAVUE_PICTURES, pictures(), fs::copy_options::recursive);
    constexpr std::string_view images[] = {host::process::kUIKit, host::process::kPreferences};
    host::process::start_program(images);
    host::activator::Service::restart(host::activator::Service::Role::Guest, nullptr);
    host::social::configure({});
    if (!objc_getClass("styleController")) make_settings_classes();
    if (!UIApplication::sharedApplication()) host::uikit::launch_application("UIApplication");
    shell_commands().clear();
    write_dictionary(preferences(), switch_entry("firstBoot", true));
  }
  ~PagesTest() override {
    window.setRootViewController(nil);
    advance(3);
    settings::set_where(nil);
  }

  /// Pushes a new page of that class, as the settings application would.
  PSListController open(const char* name) {
    const auto root = UIViewController::alloc().init().autorelease();
    stack = UINavigationController::alloc().initWithRootViewController(root).autorelease();
    window.setRootViewController(stack);
    advance(0.1);
    const objc::Object cls(objc_getClass(name));
    page = objc::send<PSListController>(objc::send<NSObject>(cls, "alloc"_sel), "init"_sel);
    stack.pushViewController(page, YES);
    page.release();
    advance(1);
    return page;
  }
  PSListController shown() const { return objc::cast<PSListController>(stack.topViewController()); }

  /// The row with that text on the visible page; nil if there is none.
  UITableViewCell row(std::string_view text) {
    const UITableView table = shown().table();
    for (NSInteger section = 0; section < table.numberOfSections(); ++section) {
      for (NSInteger index = 0; index < table.numberOfRowsInSection(section); ++index) {
        const auto path = NSIndexPath::indexPathForRow(index, section);
        table.scrollToRowAtIndexPath(path, UITableViewScrollPositionMiddle, NO);
        advance(0.05);
        const UITableViewCell cell = table.cellForRowAtIndexPath(path);
        if (cell.textLabel().text().UTF8String() == text) return cell;
      }
    }
    return nil;
  }
  static std::string detail(UITableViewCell cell) {
    const NSString text = cell.detailTextLabel().text();
    return text ? text.UTF8String() : "";
  }
  void tap_middle(UIView view) {
    tap(view.convertPointToView(view.bounds().centre(), nil));
    advance(1);
  }
  void tap_row(std::string_view text) {
    const UITableViewCell cell = row(text);
    ASSERT_TRUE(cell) << text;
    tap(cell.convertPointToView({60, 20}, nil));
    advance(1);
  }
  UISwitch switch_of(std::string_view text) {
    return objc::cast<PSSwitchTableCell>(row(text)).switch_control();
  }
  /// The first view inside `top` that shows the text.
  static UIView find(UIView top, std::string_view text) {
    if (top.isKindOfClass(UILabel::cls())) {
      const NSString shown = objc::cast<UILabel>(top).text();
      if (shown && shown.UTF8String() == text) return top;
    }
    for (const UIView part : top.subviews().of<UIView>()) {
      if (const UIView found = find(part, text)) return found;
    }
    return nil;
  }
  /// Whether a label, field or text view inside `top` shows the text.
  static bool says(UIView top, std::string_view text) {
    if (top.respondsToSelector("text"_sel)) {
      const auto said = objc::send<NSString>(top, "text"_sel);
      if (said && said.UTF8String() == text) return true;
    }
    for (const UIView part : top.subviews().of<UIView>()) {
      if (says(part, text)) return true;
    }
    return false;
  }
  static bool screen_says(std::string_view text) {
    for (const UIWindow each : UIApplication::sharedApplication().windows().of<UIWindow>()) {
      if (says(each, text)) return true;
    }
    return false;
  }
  bool tap_text(std::string_view text) {
    for (const UIWindow each : UIApplication::sharedApplication().windows().of<UIWindow>()) {
      if (const UIView found = find(each, text)) {
        tap_middle(found);
        return true;
      }
    }
    return false;
  }
  void photograph(const std::string& name) { host::test::photograph(name, clock.now()); }

  PSListController page;
  UINavigationController stack;
};

}  // namespace sonavue::test
