#include "host/home_screen/page_views.h"

#include <gmock/gmock.h>

#include "host/basics/codec.h"
#include "objc/class_builder.h"
#include "platform/UIKit/UILabel.h"
#include "tests/host/uikit/support/uikit_test.h"
#include "tests/support/caught_log.h"

namespace host::test {
namespace {

using launcher::PageViews;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

/// A view of an extension that fails when it is asked where it is.
class Coward : public objc::Implementation<Coward, UIView> {
 public:
  using Implementation::Implementation;

  CGRect frame() const { throw 1; }
};

struct PageViewLists : UIKitTest {
  /// Fails the test unless the rows are as many as they say.
  static std::vector<browser::ViewRow> rows_of(const browser::Views& views) {
    std::vector<browser::ViewRow> rows(views.count);
    Decoder decoder(views.rows);
    for (browser::ViewRow& row : rows)
      row.list(decoder);
    EXPECT_TRUE(decoder.is_whole());
    return rows;
  }

  PageViews views{nullptr};
};

TEST_F(PageViewLists, HaveARowForEachView) {
  const UILabel label = UILabel::alloc().initWithFrame({5, 40, 60, 10}).autorelease();
  label.setText("Dear"_ns);
  label.setHidden(YES);
  label.setAlpha(0.4);
  add_view({10, 20, 100, 50}).addSubview(label);
  const auto list = views.views();
  EXPECT_EQ(list.left_out, 0);
  const auto rows = rows_of(list);
  ASSERT_THAT(rows, SizeIs(3));
  EXPECT_EQ(rows[0].class_name, "UIWindow");
  EXPECT_EQ(rows[1].depth, 1);
  EXPECT_FALSE(rows[1].is_hidden);
  EXPECT_EQ(rows[2].depth, 2);
  EXPECT_EQ(rows[2].class_name, "UILabel");
  EXPECT_EQ(rows[2].text, "Dear");
  EXPECT_EQ(rows[2].frame, CGRect(5, 40, 60, 10));
  EXPECT_EQ(rows[2].place, CGRect(15, 60, 60, 10));
  EXPECT_TRUE(rows[2].is_hidden);
  EXPECT_EQ(rows[2].alpha, 0.4F);
}

TEST_F(PageViewLists, AreDescribedByTheirClasses) {
  add_view({0, 0, 5, 5});
  EXPECT_THAT(views.description(0), IsEmpty());
  views.views();
  EXPECT_THAT(views.description(0), StartsWith("UIWindow : UIView : UIResponder"));
  EXPECT_THAT(views.description(1), HasSubstr("\n- (CGRect) frame\n"));
  EXPECT_THAT(views.description(2), IsEmpty());
}

TEST_F(PageViewLists, SayHowManyAreLeftOut) {
  for (std::uint32_t i = 0; i < PageViews::kMostViews + 10; ++i)
    add_view({0, 0, 5, 5});
  const auto list = views.views();
  EXPECT_THAT(rows_of(list), SizeIs(PageViews::kMostViews));
  EXPECT_EQ(list.left_out, 11);  // The window is one, too.
}

TEST_F(PageViewLists, CutLongTextsBetweenLetters) {
  const UILabel label = UILabel::alloc().initWithFrame({0, 0, 5, 5}).autorelease();
  std::string text = "a";
  for (int i = 0; i < 1000; ++i)
    text += "ä";
  label.setText(NSString::stringWithUTF8String(text.c_str()));
  window.addSubview(label);
  EXPECT_EQ(rows_of(views.views())[1].text, text.substr(0, PageViews::kLongestText - 1) + "…");
}

TEST_F(PageViewLists, EndBeforeAViewThatRaises) {
  const CaughtLog log;
  if (!objc_getClass("PageTestCoward")) {
    objc::ClassBuilder("PageTestCoward", "UIView")
        .state<Coward>()
        .method<&Coward::frame>("frame")
        .finish();
  }
  add_view({0, 0, 5, 5});
  const objc::Object cls(objc_getClass("PageTestCoward"));
  const auto coward = objc::send<UIView>(objc::send<UIView>(cls, "alloc"_sel), "init"_sel);
  window.addSubview(coward);
  coward.release();
  EXPECT_THAT(rows_of(views.views()), SizeIs(2));
  EXPECT_THAT(rows_of(views.views()), SizeIs(2));
  EXPECT_EQ(log.text(),
            "warning: browser: a view raised an exception when the page asked for the views\n");
  coward.removeFromSuperview();
}

}  // namespace
}  // namespace host::test
