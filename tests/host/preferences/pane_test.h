#pragma once

#include <map>

#include "host/preferences/exports.h"
#include "host/uikit/drawing/exports.h"
#include "platform/Foundation/NSValue.h"
#include "platform/Preferences/PSListItemsController.h"
#include "platform/Preferences/PSSwitchTableCell.h"
#include "tests/host/uikit/support/page_test.h"

namespace host::test {

/// The values that the panes of the tests read and write.
inline std::map<std::string, objc::Ref<NSObject>>& stored() {
  static std::map<std::string, objc::Ref<NSObject>> values;
  return values;
}

inline int& times_made() {
  static int times = 0;
  return times;
}

/// A group's header with its own view class.
class TestHeader : public objc::Implementation<TestHeader, PSTableCell> {
 public:
  using Implementation::Implementation;

  PSTableCell init(PSSpecifier specifier) {
    if (!self.initWithStyle(UITableViewCellStyleDefault, "header"_ns, specifier)) return nil;
    self.setBackgroundColor(UIColor::clearColor());
    const auto label = UILabel::alloc().initWithFrame({0, 20, 375, 60}).autorelease();
    label.setText("Header"_ns);
    label.setTextAlignment(NSTextAlignmentCenter);
    self.addSubview(label);
    return self;
  }
  CGFloat height(CGFloat) { return 120; }
};

/// A pane with a row of every type.
class TestPane : public objc::Implementation<TestPane, PSListController> {
 public:
  using Implementation::Implementation;

  static PSSpecifier row(objc::Object target, NSString name, NSString kind, const char* detail) {
    return PSSpecifier::preferenceSpecifierNamed(
        name, target, "setValue:forSpecifier:"_sel, "getValue:"_sel,
        detail ? objc_getClass(detail) : nullptr, PSTableCell::cellTypeFromString(kind), nullptr);
  }

  NSArray specifiers() {
    if (const NSArray made = self.cached_specifiers()) return made;
    ++times_made();
    const auto head = PSSpecifier::preferenceSpecifierNamed(
        ""_ns, self, nullptr, nullptr, nullptr, PSTableCell::cellTypeFromString("PSGroupCell"_ns),
        nullptr);
    head.setProperty("TestPaneHeader"_ns, "headerCellClass"_ns);
    const auto foot = PSSpecifier::emptyGroupSpecifier();
    foot.setProperty("What the switch does, in a few words."_ns, "footerText"_ns);
    const auto list = row(self, "Colour"_ns, "PSLinkListCell"_ns, "PSListItemsController");
    list.setValues(NSArray::arrayWithObjects("red"_ns, "green"_ns, "blue"_ns),
                   NSArray::arrayWithObjects("Red"_ns, "Green"_ns, "Blue"_ns));
    const auto action = row(self, "Setup"_ns, "PSLinkCell"_ns, nullptr);
    action.set_action("act"_sel);
    const auto button = row(self, "Press"_ns, "PSButtonCell"_ns, nullptr);
    button.set_action("actOn:"_sel);
    self.setSpecifiers(
        NSArray::arrayWithObjects(head, foot, row(self, "Enabled"_ns, "PSSwitchCell"_ns, nullptr),
                                  PSSpecifier::groupSpecifierWithName("Looks"_ns), list,
                                  row(self, "More"_ns, "PSLinkCell"_ns, "TestPane"),
                                  PSSpecifier::emptyGroupSpecifier(), action, button));
    return self.cached_specifiers();
  }
  objc::Object value(PSSpecifier specifier) {
    const auto found = stored().find(specifier.name().UTF8String());
    return found == stored().end() ? objc::Object() : found->second.get();
  }
  void set_value(objc::Object value, PSSpecifier specifier) {
    const std::string name = specifier.name().UTF8String();
    UIKitTest::events().push_back("set " + name);
    if (!refuses_values())
      stored().insert_or_assign(name, objc::Ref<NSObject>::retain(objc::cast<NSObject>(value)));
  }
  void act() { UIKitTest::events().push_back("acted"); }
  void act_on(PSSpecifier specifier) {
    UIKitTest::events().push_back(std::string("acted on ") + specifier.name().UTF8String());
  }
  static bool& refuses_values() {
    static bool refuses = false;
    return refuses;
  }
};

/// Settings on the screen, with one pane on the navigation stack.
class PaneTest : public PageTest {
 public:
  PaneTest() {
    preferences::export_preferences();
    stored().clear();
    times_made() = 0;
    TestPane::refuses_values() = false;
    if (!objc_getClass("TestPane")) {
      objc::ClassBuilder("TestPaneHeader", "PSTableCell")
          .state<TestHeader>()
          .method<&TestHeader::init>("initWithSpecifier:")
          .method<&TestHeader::height>("preferredHeightForWidth:")
          .finish();
      objc::ClassBuilder("TestPane", "PSListController")
          .state<TestPane>()
          .method<&TestPane::specifiers>("specifiers")
          .method<&TestPane::value>("getValue:")
          .method<&TestPane::set_value>("setValue:forSpecifier:")
          .method<&TestPane::act>("act")
          .method<&TestPane::act_on>("actOn:")
          .finish();
    }
    pane = make("TestPane");
    pane.setTitle("Pane"_ns);
    navigation = UINavigationController::alloc().initWithRootViewController(pane).autorelease();
    window.setRootViewController(navigation);
    advance(0.1);
    told();
  }
  ~PaneTest() override { stored().clear(); }

  static PSListController make(const char* name) {
    const objc::Object cls(objc_getClass(name));
    return objc::send<PSListController>(objc::send<NSObject>(cls, "alloc"_sel), "init"_sel)
        .autorelease();
  }
  PSListController shown() { return objc::cast<PSListController>(navigation.topViewController()); }
  UITableViewCell cell(NSInteger row, NSInteger section) {
    return shown().table().cellForRowAtIndexPath(NSIndexPath::indexPathForRow(row, section));
  }
  void tap_row(NSInteger row, NSInteger section) {
    const auto path = NSIndexPath::indexPathForRow(row, section);
    shown().table().scrollToRowAtIndexPath(path, UITableViewScrollPositionMiddle, NO);
    advance(0.1);
    tap(cell(row, section).convertPointToView({60, 20}, nil));
    advance(1);
  }
  void tap_switch(NSInteger row, NSInteger section) {
    const UIView control = cell(row, section).accessoryView();
    tap(control.convertPointToView({25, 15}, nil));
    advance(1);
  }

  PSListController pane;
  UINavigationController navigation;
};

}  // namespace host::test
