#include <gmock/gmock.h>

#include "host/activator/event/event_kinds.h"
#include "platform/Activator/LAListenerListViewController.h"
#include "platform/Activator/LAListenerSettingsViewController.h"
#include "platform/UIKit/UITableView.h"
#include "tests/host/activator/support/service_test.h"

namespace host::test {
namespace {

constexpr NSInteger kShakeRow = 13;

class Pages : public ActivatorTest {
 protected:
  Pages() {
    root = UIViewController::alloc().init();
    window.setRootViewController(root);
    root.release();
  }

  template <class Page>
  Page show(Page page) {
    root.presentViewController(page, NO, nullptr);
    page.release();
    advance(0.1);
    return page;
  }
  LAListenerSettingsViewController show_listener(const char* name) {
    const auto page = LAListenerSettingsViewController::alloc().init();
    page.setListenerName(to_ns(name));
    return show(page);
  }
  static UITableView table(UIViewController page) {
    for (const UIView view : page.view().subviews().of<UIView>()) {
      if (view.isKindOfClass(UITableView::cls())) return objc::cast<UITableView>(view);
    }
    return nil;
  }
  void tap_row(UIViewController page, NSInteger row, NSInteger section) {
    const auto path = NSIndexPath::indexPathForRow(row, section);
    table(page).scrollToRowAtIndexPath(path, UITableViewScrollPositionMiddle, NO);
    advance(0.1);
    const UITableViewCell cell = table(page).cellForRowAtIndexPath(path);
    tap(cell.convertPointToView(cell.bounds().centre(), nil));
    advance(0.5);
  }
  bool is_checked(UIViewController page, NSInteger row, NSInteger section) {
    const auto path = NSIndexPath::indexPathForRow(row, section);
    return table(page).cellForRowAtIndexPath(path).accessoryType() ==
           UITableViewCellAccessoryCheckmark;
  }
  static bool shows(UIView view, NSString text) {
    if (view.isKindOfClass(UILabel::cls()) &&
        objc::cast<UILabel>(view).text().isEqualToString(text))
      return true;
    for (const UIView part : view.subviews().of<UIView>()) {
      if (shows(part, text)) return true;
    }
    return false;
  }

  UIViewController root;
};

TEST_F(Pages, AListenerHasASectionForEachOfItsModes) {
  script().on_question = [](const std::string& question) -> objc::Object {
    if (question == "modes") return NSArray::arrayWithObjects("lockscreen"_ns, "springboard"_ns);
    return question == "title" ? "Title"_ns : NSString();
  };
  add(answering_listener(), "a");
  loop.run_ready();
  const auto page = show_listener("a");
  EXPECT_EQ(table(page).numberOfSections(), 2);
  EXPECT_EQ(table(page).numberOfRowsInSection(0),
            static_cast<NSInteger>(activator::event_kinds().size()));
  EXPECT_TRUE(shows(page.view(), "Title"_ns));
  EXPECT_TRUE(shows(page.view(), "AT HOME SCREEN"_ns));
}

TEST_F(Pages, ATapAssignsTheEventAndAnotherUnassignsIt) {
  add(plain_listener(), "a");
  loop.run_ready();
  const auto page = show_listener("a");
  tap_row(page, kShakeRow, 0);
  EXPECT_TRUE(is_checked(page, kShakeRow, 0));
  send("shake");
  EXPECT_EQ(script().events.size(), 1u);
  tap_row(page, kShakeRow, 0);
  EXPECT_FALSE(is_checked(page, kShakeRow, 0));
  send("shake");
  EXPECT_EQ(script().events.size(), 1u);
}

TEST_F(Pages, AnUnknownListenerIsShownByNameAndCanBeAssigned) {
  const auto page = show_listener("org.example.absent");
  EXPECT_TRUE(shows(page.view(), "org.example.absent"_ns));
  EXPECT_EQ(table(page).numberOfSections(), 3);
  tap_row(page, kShakeRow, 0);
  EXPECT_TRUE(is_checked(page, kShakeRow, 0));
  add(plain_listener(), "org.example.absent");
  send("shake");
  EXPECT_EQ(script().events.size(), 1u);
}

TEST_F(Pages, AGuestsPageChangesTheHomeScreensAssignments) {
  add(plain_listener(), "a");
  loop.run_ready();
  start_again(Service::Role::Guest);
  tap_row(show_listener("a"), kShakeRow, 0);
  start_again();
  add(plain_listener(), "a");
  send("shake");
  EXPECT_EQ(script().events.size(), 1u);
}

TEST_F(Pages, AppearingShowsAssignmentsOfOtherProcesses) {
  const auto page = LAListenerSettingsViewController::alloc().init();
  page.setListenerName("a"_ns);
  page.view();
  activator::AssignmentStore().assign("slide-in-left", "springboard", "a");
  show(page);
  EXPECT_TRUE(is_checked(page, 0, 0));
}

TEST_F(Pages, TheNameMayComeAfterTheView) {
  const auto page = LAListenerSettingsViewController::alloc().init();
  page.view();
  show(page);
  page.setListenerName("late"_ns);
  EXPECT_TRUE(shows(page.view(), "late"_ns));
  EXPECT_STREQ(page.listenerName().UTF8String(), "late");
}

TEST_F(Pages, TheListHasARowForEachListenerAndOpensItsPage) {
  script().on_question = [](const std::string& question) -> objc::Object {
    return question == "title" ? "Zebra"_ns : NSString();
  };
  add(answering_listener(), "a");
  add(plain_listener(), "b");
  loop.run_ready();
  const auto list = show(LAListenerListViewController::alloc().init());
  ASSERT_EQ(table(list).numberOfRowsInSection(0), 2);
  const auto first = table(list).cellForRowAtIndexPath(NSIndexPath::indexPathForRow(0, 0));
  EXPECT_STREQ(first.textLabel().text().UTF8String(), "Zebra");
  EXPECT_TRUE(first.imageView().image());
  tap_row(list, 0, 0);
  advance(1);
  const auto opened = list.presentedViewController();
  ASSERT_TRUE(opened.isKindOfClass(LAListenerSettingsViewController::cls()));
  EXPECT_STREQ(objc::cast<LAListenerSettingsViewController>(opened).listenerName().UTF8String(),
               "a");
}

TEST_F(Pages, AnEmptyListSaysSo) {
  const auto list = show(LAListenerListViewController::alloc().init());
  EXPECT_EQ(table(list).numberOfRowsInSection(0), 0);
  EXPECT_TRUE(shows(list.view(), "No installed extension can be called by a gesture."_ns));
}

TEST_F(Pages, DoneClosesAPageThatStandsAlone) {
  show_listener("a");
  tap({340, 42});
  advance(1);
  EXPECT_FALSE(root.presentedViewController());
}

TEST_F(Pages, ANestedPageHasNoBar) {
  const auto page = LAListenerSettingsViewController::alloc().init();
  root.addChildViewController(page);
  page.release();
  root.view().addSubview(page.view());
  page.viewWillAppear(NO);
  EXPECT_EQ(page.view().subviews().count(), 1u);
  EXPECT_EQ(table(page).frame().origin.y, 20) << "the status bar is left free";
}

}  // namespace
}  // namespace host::test
