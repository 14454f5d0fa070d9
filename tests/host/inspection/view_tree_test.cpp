#include "host/inspection/view_tree.h"

#include <gmock/gmock.h>

#include "objc/class_builder.h"
#include "platform/UIKit/UILabel.h"
#include "platform/UIKit/UITapGestureRecognizer.h"
#include "tests/host/uikit/support/uikit_test.h"

namespace host::test {
namespace {

using inspection::facts_of;
using inspection::text_of;
using inspection::tree_of;
using inspection::tree_of_windows;
using inspection::TreeLine;
using testing::ElementsAre;
using testing::SizeIs;

std::vector<std::string> written(const std::vector<TreeLine>& lines) {
  std::vector<std::string> texts;
  for (const TreeLine& line : lines)
    texts.push_back(std::to_string(line.depth) + " " + text_of(line));
  return texts;
}

/// A view that is its own subview.
class Serpent : public objc::Implementation<Serpent, UIView> {
 public:
  using Implementation::Implementation;

  NSArray subviews() const { return NSArray::arrayWithObjects(self, self); }
};

class ViewTrees : public UIKitTest {};

TEST_F(ViewTrees, ListAViewAndThoseBelowItFromBackToFront) {
  const UIView panel = add_view({10, 20, 100, 50.5});
  const UIView back = UIView::alloc().initWithFrame({0, 0, 5, 5}).autorelease();
  const UIView front = UIView::alloc().initWithFrame({1, 2, 3, 4}).autorelease();
  panel.addSubview(front);
  panel.insertSubview(back, 0);
  const UIView leaf = UIView::alloc().initWithFrame({-1, 0, 1, 1}).autorelease();
  back.addSubview(leaf);
  EXPECT_THAT(written(tree_of(panel)),
              ElementsAre("0 UIView {{10, 20}, {100, 50.5}}", "1 UIView {{0, 0}, {5, 5}}",
                          "2 UIView {{-1, 0}, {1, 1}}", "1 UIView {{1, 2}, {3, 4}}"));
  EXPECT_EQ(tree_of(panel)[2].view, leaf);
}

TEST_F(ViewTrees, TellWhatCannotBeSeenAndWhatTakesGestures) {
  const UIView view = add_view({0, 0, 5, 5});
  view.setHidden(YES);
  view.setAlpha(0.4);
  for (int i = 0; i < 2; ++i)
    view.addGestureRecognizer(UITapGestureRecognizer::alloc().init().autorelease());
  EXPECT_THAT(written(tree_of(view)),
              ElementsAre("0 UIView {{0, 0}, {5, 5}} hidden alpha 0.4 gestures "
                          "(UITapGestureRecognizer, UITapGestureRecognizer)"));
}

TEST_F(ViewTrees, TellWhereAViewIsOnTheScreenAndWhatALabelSays) {
  const UIView panel = add_view({10, 20, 100, 50});
  panel.setBounds({0, 30, 100, 50});
  panel.setClipsToBounds(YES);
  const UILabel label = UILabel::alloc().initWithFrame({5, 40, 60, 10}).autorelease();
  label.setText("Dear"_ns);
  panel.addSubview(label);
  EXPECT_TRUE(facts_of(panel).clips);
  EXPECT_EQ(facts_of(panel).text, "");
  const inspection::ViewFacts facts = facts_of(label);
  EXPECT_EQ(facts.frame, CGRect(5, 40, 60, 10));
  EXPECT_EQ(facts.on_screen, CGRect(15, 30, 60, 10));
  EXPECT_FALSE(facts.clips);
  EXPECT_EQ(facts.text, "Dear");
}

TEST_F(ViewTrees, OfTheWindowsLeaveOutHiddenOnes) {
  add_view({0, 0, 5, 5});
  EXPECT_THAT(written(tree_of_windows()),
              ElementsAre("0 UIWindow {{0, 0}, {375, 667}}", "1 UIView {{0, 0}, {5, 5}}"));
  window.setHidden(YES);
  EXPECT_THAT(tree_of_windows(), SizeIs(0));
}

TEST_F(ViewTrees, EndAlthoughAViewContainsItself) {
  if (!objc_getClass("TreeTestSerpent")) {
    objc::ClassBuilder("TreeTestSerpent", "UIView")
        .state<Serpent>()
        .method<&Serpent::subviews>("subviews")
        .finish();
  }
  const objc::Object cls(objc_getClass("TreeTestSerpent"));
  const auto serpent = objc::send<UIView>(objc::send<UIView>(cls, "alloc"_sel), "init"_sel);
  const auto lines = tree_of(serpent);
  ASSERT_THAT(lines, SizeIs(10'001));
  EXPECT_TRUE(lines.back().is_cut);
  EXPECT_EQ(text_of(lines.back()), "…");
  serpent.release();
}

}  // namespace
}  // namespace host::test
