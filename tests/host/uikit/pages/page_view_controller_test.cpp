#include "platform/UIKit/UIPageControl.h"
#include "platform/UIKit/UIPageViewController.h"
#include "tests/host/uikit/support/page_test.h"
#include "tests/host/uikit/support/recording_view.h"

namespace host::test {
namespace {

struct TestBook : objc::Bound<TestBook, "TestBook", NSObject> {};

/// A data source of pages in a changeable order, with or without dots.
class Book : public objc::Implementation<Book, TestBook> {
 public:
  using Implementation::Implementation;

  std::vector<UIViewController> pages;
  bool has_dots = false;
  bool hides_dots = false;

  BOOL responds_to(objc::Sel selector) {
    if (selector == "presentationCountForPageViewController:"_sel) return has_dots ? YES : NO;
    return super<BOOL>("respondsToSelector:"_sel, selector);
  }
  UIViewController before(UIPageViewController, UIViewController page) { return beside(page, -1); }
  UIViewController after(UIPageViewController, UIViewController page) { return beside(page, 1); }
  NSInteger count(UIPageViewController controller) {
    for (const UIView part : controller.view().subviews().of<UIView>())
      if (part.isKindOfClass(UIPageControl::cls())) part.setHidden(hides_dots ? YES : NO);
    return static_cast<NSInteger>(pages.size());
  }
  NSInteger index(UIPageViewController) { return 0; }
  void turned(UIPageViewController, BOOL, NSArray, BOOL completed) {
    UIKitTest::events().push_back(completed ? "turned" : "not turned");
  }

 private:
  UIViewController beside(UIViewController page, std::ptrdiff_t step) {
    const auto found = std::find(pages.begin(), pages.end(), page);
    if (found == pages.end()) return nil;
    const auto wanted = found - pages.begin() + step;
    return wanted >= 0 && wanted < std::ssize(pages) ? pages[static_cast<std::size_t>(wanted)]
                                                     : UIViewController();
  }
};

class PageViewTest : public PageTest {
 protected:
  PageViewTest() {
    if (!TestBook::cls()) {
      objc::ClassBuilder("TestBook", "NSObject")
          .state<Book>()
          .method<&Book::responds_to>("respondsToSelector:")
          .method<&Book::before>("pageViewController:viewControllerBeforeViewController:")
          .method<&Book::after>("pageViewController:viewControllerAfterViewController:")
          .method<&Book::count>("presentationCountForPageViewController:")
          .method<&Book::index>("presentationIndexForPageViewController:")
          .method<&Book::turned>(
              "pageViewController:didFinishAnimating:previousViewControllers:transitionCompleted:")
          .finish();
    }
    book = objc::Ref<TestBook>::adopt(TestBook::alloc().init());
    pages = UIPageViewController::alloc()
                .initWithTransitionStyle(UIPageViewControllerTransitionStyleScroll,
                                         UIPageViewControllerNavigationOrientationHorizontal, nil)
                .autorelease();
    for (const char* title : {"One", "Two", "Three"})
      state().pages.push_back(make_page(title));
  }
  ~PageViewTest() override {
    pages.setDataSource(nil);
    pages.setDelegate(nil);
    pages.view().removeFromSuperview();
  }
  static UIViewController make_page(const char* title) {
    const auto page = ToldPage::make(title);
    page.view().setBackgroundColor(UIColor::whiteColor());
    const auto label = UILabel::alloc().initWithFrame({0, 200, 375, 60}).autorelease();
    label.setText(page.title());
    label.setTextAlignment(NSTextAlignmentCenter);
    page.view().addSubview(label);
    return page;
  }
  Book& state() { return objc::state_of<Book>(book.get()); }
  UIViewController page(std::size_t index) { return state().pages[index]; }
  void show() {
    pages.setDataSource(book.get());
    pages.setDelegate(book.get());
    pages.setViewControllers(NSArray::arrayWithObject(page(0)),
                             UIPageViewControllerNavigationDirectionForward, YES, nullptr);
    // As extensions do it, without telling the controller.
    window.addSubview(pages.view());
    advance(0.1);
    told();
  }
  void swipe(CGFloat from, CGFloat to) {
    press({from, 300});
    glide({from, 300}, {to, 300}, 0.15);
    lift({to, 300});
    advance(2);
  }
  void turn_to(std::size_t index) {
    pages.setViewControllers(NSArray::arrayWithObject(page(index)),
                             UIPageViewControllerNavigationDirectionForward, YES, nullptr);
  }
  UIViewController shown() {
    return objc::cast<UIViewController>(pages.viewControllers().firstObject());
  }
  UIPageControl dots() {
    for (const UIView part : pages.view().subviews().of<UIView>())
      if (part.isKindOfClass(UIPageControl::cls())) return objc::cast<UIPageControl>(part);
    return nil;
  }

  objc::Ref<TestBook> book;
  UIPageViewController pages;
};

TEST_F(PageViewTest, TheShownPageFillsTheViewAndIsToldThatItAppears) {
  pages.setDataSource(book.get());
  pages.setViewControllers(NSArray::arrayWithObject(page(0)),
                           UIPageViewControllerNavigationDirectionForward, NO, nullptr);
  window.addSubview(pages.view());
  advance(0.1);
  EXPECT_EQ(told(), (Events{"One will appear", "One did appear"}));
  EXPECT_EQ(page(0).view().convertRectToView(page(0).view().bounds(), nil), kScreen);
  EXPECT_EQ(page(0).parentViewController(), pages);
}

TEST_F(PageViewTest, AFingerBringsTheNextAndThePreviousPage) {
  show();
  swipe(300, 60);
  EXPECT_EQ(shown(), page(1));
  EXPECT_EQ(told(), (Events{"One will disappear", "Two will appear", "One did disappear",
                            "Two did appear", "turned"}));
  EXPECT_FALSE(page(0).view().window());
  EXPECT_EQ(page(1).view().convertRectToView(page(1).view().bounds(), nil), kScreen);
  swipe(300, 60);
  EXPECT_EQ(shown(), page(2));
  swipe(60, 300);
  swipe(60, 300);
  EXPECT_EQ(shown(), page(0));
}

TEST_F(PageViewTest, BothPagesAreVisibleDuringADrag) {
  show();
  press({300, 300});
  glide({300, 300}, {120, 300}, 0.3);
  EXPECT_TRUE(page(1).view().window());
  EXPECT_TRUE(page(0).view().window());
  photograph("pages", clock.now());
  lift({120, 300});
  advance(2);
}

TEST_F(PageViewTest, AFingerThatTurnsBackTurnsNothing) {
  show();
  press({300, 300});
  glide({300, 300}, {230, 300}, 0.3);
  advance(0.3);
  lift({230, 300});
  advance(2);
  EXPECT_EQ(shown(), page(0));
  EXPECT_EQ(told(),
            (Events{"One will disappear", "Two will appear", "Two will disappear",
                    "One will appear", "Two did disappear", "One did appear", "not turned"}));
}

TEST_F(PageViewTest, BeyondTheEndsThePageSpringsBack) {
  show();
  press({60, 300});
  glide({60, 300}, {300, 300}, 0.15);
  const CGFloat pulled = page(0).view().convertPointToView({0, 0}, nil).x;
  EXPECT_GT(pulled, 10) << "it gives way";
  EXPECT_LT(pulled, 200) << "and not as far as the finger";
  lift({300, 300});
  advance(2);
  EXPECT_EQ(shown(), page(0));
  EXPECT_EQ(page(0).view().convertPointToView({0, 0}, nil).x, 0);
}

TEST_F(PageViewTest, TurningByProgramCallsItsCompletionAtTheEnd) {
  show();
  bool finished = false;
  pages.setViewControllers(NSArray::arrayWithObject(page(2)),
                           UIPageViewControllerNavigationDirectionForward, YES,
                           objc::block([&](BOOL done) { finished = done; }));
  EXPECT_FALSE(finished);
  advance(1);
  EXPECT_TRUE(finished);
  EXPECT_EQ(shown(), page(2));
  swipe(60, 300);
  EXPECT_EQ(shown(), page(1)) << "its neighbour, not the page that it came from";
}

TEST_F(PageViewTest, TurningByProgramCancelsTheFingerThatDragsAPage) {
  show();
  press({300, 300});
  glide({300, 300}, {200, 300}, 0.2);
  turn_to(2);
  glide({200, 300}, {280, 300}, 0.2);
  lift({280, 300});
  advance(2);
  EXPECT_EQ(shown(), page(2));
  EXPECT_EQ(page(2).view().convertRectToView(page(2).view().bounds(), nil), kScreen);
  swipe(60, 300);
  EXPECT_EQ(shown(), page(1)) << "fingers turn pages again";
}

TEST_F(PageViewTest, PagesTakeNoTouchesWhileTurnedByProgram) {
  state().has_dots = true;
  show();
  for (const UIViewController each : state().pages)
    each.view().addSubview(RecordingView::make("page", kScreen));
  told();
  turn_to(2);
  tap({200, 300});
  tap({350, 650});
  EXPECT_FALSE(std::count(events().begin(), events().end(), "page began"));
  EXPECT_EQ(dots().currentPage(), 0) << "nor do the dots";
  advance(1);
  told();
  tap({200, 300});
  EXPECT_EQ(told(), (Events{"page began", "page ended"}));
}

TEST_F(PageViewTest, AnInsertedPageIsFoundByTheNextSwipe) {
  show();
  state().pages.insert(state().pages.begin() + 1, make_page("New"));
  swipe(300, 60);
  EXPECT_STREQ(shown().title().UTF8String(), "New");
}

TEST_F(PageViewTest, DotsCountThePagesAndFollowThem) {
  state().has_dots = true;
  show();
  ASSERT_TRUE(dots());
  EXPECT_EQ(dots().numberOfPages(), 3);
  EXPECT_EQ(page(0).view().frame().size.height, 667 - 37);
  swipe(300, 60);
  EXPECT_EQ(dots().currentPage(), 1);
  tap({350, 650});
  advance(1);
  EXPECT_EQ(shown(), page(2));
  EXPECT_EQ(dots().currentPage(), 2);
}

TEST_F(PageViewTest, HiddenDotsTakeNoRoom) {
  state().has_dots = true;
  state().hides_dots = true;
  show();
  EXPECT_TRUE(dots().isHidden());
  EXPECT_EQ(page(0).view().frame().size.height, 667);
}

TEST_F(PageViewTest, WithoutCountsThereAreNoDots) {
  show();
  EXPECT_FALSE(dots());
}

}  // namespace
}  // namespace host::test
