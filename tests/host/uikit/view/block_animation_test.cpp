#include <gmock/gmock.h>

#include "platform/QuartzCore/CABasicAnimation.h"
#include "tests/host/uikit/support/recording_view.h"

namespace host::test {
namespace {

using ::testing::ElementsAre;

class BlockAnimationTest : public UIKitTest {
 protected:
  BlockAnimationTest() : view(add_view({0, 0, 100, 100})) { advance(0); }

  /// Records the time since the test began, and whether the animation finished.
  auto note_end() {
    return objc::block([this](BOOL finished) {
      ends.push_back(clock.now() - start);
      finishes.push_back(finished == YES);
    });
  }
  double shown_x() { return view.layer().presentationLayer().position().x; }
  double shown_alpha() { return view.layer().presentationLayer().opacity(); }

  UIView view;
  double start = clock.now();
  std::vector<double> ends;
  std::vector<bool> finishes;
};

TEST_F(BlockAnimationTest, TheModelChangesAtOnceAndTheScreenFollows) {
  UIView::animateWithDuration(1.0, objc::block([this] { view.setFrame({100, 0, 100, 100}); }));
  EXPECT_EQ(view.frame(), CGRect(100, 0, 100, 100));
  advance(0.5);
  EXPECT_NEAR(shown_x(), 100, 0.5) << "half way, since the curve eases in and out";
  advance(0.6);
  EXPECT_EQ(shown_x(), 150);
}

TEST_F(BlockAnimationTest, CompletionIsCalledOnceWhenTheAnimationEnds) {
  UIView::animateWithDuration(0.5, objc::block([this] { view.setAlpha(0); }), note_end());
  advance(0.45);
  EXPECT_THAT(ends, ElementsAre());
  advance(3);
  ASSERT_EQ(ends.size(), 1u);
  EXPECT_NEAR(ends[0], 0.5, 1.0 / 60 + 1e-6);
  EXPECT_THAT(finishes, ElementsAre(true));
}

TEST_F(BlockAnimationTest, CompletionComesInTheNextTurnWhenThereIsNothingToAnimate) {
  UIView::animateWithDuration(0.5, objc::block([this] { view.setAlpha(1); }), note_end());
  EXPECT_THAT(ends, ElementsAre()) << "not within the call";
  advance(0);
  EXPECT_THAT(ends, ElementsAre(0.0));
  advance(2);
  EXPECT_THAT(finishes, ElementsAre(true));
}

TEST_F(BlockAnimationTest, WithoutDurationTheChangeIsImmediateAndCompletionComesInTheNextTurn) {
  UIView::animateWithDuration(0, objc::block([this] { view.setAlpha(0.5); }), note_end());
  EXPECT_FALSE(view.layer().animationKeys());
  advance(0);
  EXPECT_THAT(ends, ElementsAre(0.0));
}

TEST_F(BlockAnimationTest, SeveralChangesHaveOneCompletion) {
  const UIView other = add_view({0, 0, 10, 10});
  UIView::animateWithDuration(0.2, objc::block([this, other] {
                                view.setAlpha(0);
                                view.setFrame({9, 9, 9, 9});
                                other.setCenter({50, 50});
                              }),
                              note_end());
  advance(1);
  EXPECT_EQ(ends.size(), 1u);
}

TEST_F(BlockAnimationTest, AFadeFarFromSightHasNoAnimationButEndsLikeOne) {
  view.setClipsToBounds(YES);
  const auto at = [this](CGFloat y) {
    const UIView tile = UIView::alloc().initWithFrame({0, y, 100, 50}).autorelease();
    view.addSubview(tile);
    return tile;
  };
  const UIView seen = at(0);
  const UIView near = at(190);
  const UIView far = at(210);
  const auto is_animated = [](UIView tile) { return tile.layer().animationKeys().count() > 0; };
  UIView::animateWithDuration(0.5, objc::block([&] {
                                for (const UIView tile : {seen, near, far})
                                  tile.setAlpha(0.5);
                              }));
  EXPECT_TRUE(is_animated(seen));
  EXPECT_TRUE(is_animated(near));
  EXPECT_FALSE(is_animated(far));
  EXPECT_EQ(far.layer().presentationLayer().opacity(), 0.5f);
  advance(1);
  UIView::animateWithDuration(0.5, 0.25, 0, objc::block([&] { far.setAlpha(0); }), note_end());
  advance(0.7);
  EXPECT_THAT(ends, ElementsAre());
  advance(0.2);
  EXPECT_THAT(ends, ElementsAre(testing::DoubleNear(1.75, 1.0 / 60 + 1e-6)));
  EXPECT_THAT(finishes, ElementsAre(true));
}

TEST_F(BlockAnimationTest, FadesFarFromSightEndWithTheirOwnBlock) {
  view.setClipsToBounds(YES);
  UIView far[3];
  for (UIView& tile : far) {
    tile = UIView::alloc().initWithFrame({0, 300, 100, 50}).autorelease();
    view.addSubview(tile);
  }
  UIView::animateWithDuration(0.25, objc::block([&] {
                                far[0].setAlpha(0.5);
                                far[1].setAlpha(0.5);
                              }),
                              note_end());
  UIView::animateWithDuration(0.75, objc::block([&] {
                                far[0].setAlpha(0);
                                far[2].setAlpha(0);
                              }),
                              note_end());
  advance(2);
  EXPECT_THAT(ends, ElementsAre(testing::DoubleNear(0.25, 1.0 / 60 + 1e-6),
                                testing::DoubleNear(0.75, 1.0 / 60 + 1e-6)));
  EXPECT_EQ(far[0].alpha(), 0);
  EXPECT_EQ(far[1].alpha(), 0.5);
}

TEST_F(BlockAnimationTest, MovementsAddUp) {
  const auto linear = UIViewAnimationOptionCurveLinear;
  UIView::animateWithDuration(1.0, 0.0, linear, objc::block([this] {
                                view.setCenter({150, 50});
                              }),
                              note_end());
  advance(0.5);
  UIView::animateWithDuration(1.0, 0.0, linear, objc::block([this] {
                                view.setCenter({50, 50});
                              }),
                              note_end());
  EXPECT_NEAR(shown_x(), 100, 0.5) << "it does not jump when it turns back";
  advance(0.5);
  EXPECT_NEAR(shown_x(), 100, 1) << "the rest of the first way out and half the second way back";
  advance(0.6);
  EXPECT_EQ(shown_x(), 50);
  EXPECT_THAT(finishes, ElementsAre(true, true)) << "neither cut the other short";
}

TEST_F(BlockAnimationTest, FadesReplaceAndTheReplacedOneIsUnfinished) {
  UIView::animateWithDuration(1.0, objc::block([this] { view.setAlpha(0); }), note_end());
  advance(0.5);
  UIView::animateWithDuration(1.0, objc::block([this] { view.setAlpha(0.5); }), note_end());
  advance(0);
  EXPECT_THAT(finishes, ElementsAre(false));
  advance(2);
  EXPECT_THAT(finishes, ElementsAre(false, true));
}

TEST_F(BlockAnimationTest, BeginningFromTheCurrentStateDoesNotJump) {
  const auto linear = UIViewAnimationOptionCurveLinear;
  UIView::animateWithDuration(1.0, 0.0, linear, objc::block([this] { view.setAlpha(0); }), nullptr);
  advance(0.5);
  UIView::animateWithDuration(1.0, 0.0, linear | UIViewAnimationOptionBeginFromCurrentState,
                              objc::block([this] { view.setAlpha(1); }), nullptr);
  EXPECT_NEAR(shown_alpha(), 0.5, 0.02);
}

TEST_F(BlockAnimationTest, ADelayHoldsTheOldStateAndTheCompletion) {
  UIView::animateWithDuration(0.5, 0.5, UIViewAnimationOptionCurveLinear, objc::block([this] {
                                view.setCenter({150, 50});
                              }),
                              note_end());
  advance(0.4);
  EXPECT_EQ(shown_x(), 50);
  advance(0.35);
  EXPECT_NEAR(shown_x(), 100, 1);
  advance(1);
  ASSERT_EQ(ends.size(), 1u);
  EXPECT_NEAR(ends[0], 1.0, 1.0 / 60 + 1e-6);
}

TEST_F(BlockAnimationTest, AnInnerBlockTakesTheTimingOfTheOuterOne) {
  UIView::animateWithDuration(0.5, objc::block([this] {
                                UIView::animateWithDuration(
                                    3.0, objc::block([this] { view.setAlpha(0); }), note_end());
                              }));
  advance(0.6);
  EXPECT_EQ(ends.size(), 1u);
}

TEST_F(BlockAnimationTest, AnInnerBlockMayOverrideTheDuration) {
  UIView::animateWithDuration(0.5, objc::block([this] {
                                UIView::animateWithDuration(
                                    1.0, 0.0, UIViewAnimationOptionOverrideInheritedDuration,
                                    objc::block([this] { view.setAlpha(0); }), note_end());
                              }));
  advance(0.6);
  EXPECT_EQ(ends.size(), 0u);
  advance(0.6);
  EXPECT_EQ(ends.size(), 1u);
}

TEST_F(BlockAnimationTest, WithoutAnimationNothingIsAnimated) {
  UIView::animateWithDuration(
      1.0, objc::block([this] {
        UIView::performWithoutAnimation(objc::block([this] { view.setAlpha(0); }));
      }));
  EXPECT_FALSE(view.layer().animationKeys());
  UIView::setAnimationsEnabled(NO);
  UIView::animateWithDuration(1.0, objc::block([this] { view.setAlpha(1); }), note_end());
  UIView::setAnimationsEnabled(YES);
  EXPECT_FALSE(view.layer().animationKeys());
  advance(0);
  EXPECT_EQ(ends.size(), 1u);
}

TEST_F(BlockAnimationTest, OutsideOfBlocksViewsChangeAtOnce) {
  view.setAlpha(0);
  view.setCenter({9, 9});
  EXPECT_FALSE(view.layer().animationKeys());
}

TEST_F(BlockAnimationTest, AViewUnderAnimationTakesNoTouchesUnlessAllowed) {
  UIView::animateWithDuration(0.5, objc::block([this] { view.setCenter({60, 60}); }));
  EXPECT_EQ(window.hitTest({60, 60}, nil), window);
  advance(0.6);
  EXPECT_EQ(window.hitTest({60, 60}, nil), view);
  UIView::animateWithDuration(0.5, 0.0, UIViewAnimationOptionAllowUserInteraction,
                              objc::block([this] {
                                view.setCenter({200, 200});
                              }),
                              nullptr);
  EXPECT_EQ(window.hitTest({200, 200}, nil), view) << "where the model is, not where it is drawn";
}

TEST_F(BlockAnimationTest, LeavingTheScreenCutsAnAnimationShort) {
  UIView::animateWithDuration(0.5, objc::block([this] { view.setAlpha(0); }), note_end());
  advance(0.1);
  view.removeFromSuperview();
  advance(0);
  EXPECT_THAT(finishes, ElementsAre(false));
  advance(1);
  EXPECT_EQ(finishes.size(), 1u);
}

TEST_F(BlockAnimationTest, ASpringSwingsPastItsEndAndRestsThere) {
  UIView::animateWithDuration(0.5, 0.0, 0.4, 0.0, UIViewAnimationOptionCurveEaseInOut,
                              objc::block([this] {
                                view.setCenter({150, 50});
                              }),
                              note_end());
  double furthest = 0;
  for (int i = 0; i < 30; ++i) {
    advance(1.0 / 60);
    furthest = std::max(furthest, shown_x());
  }
  EXPECT_GT(furthest, 155);
  advance(0.1);
  EXPECT_EQ(shown_x(), 150);
  EXPECT_EQ(ends.size(), 1u);
}

TEST_F(BlockAnimationTest, AfterTheLastAnimationNoFramesAreRequested) {
  UIView::animateWithDuration(0.5, objc::block([this] { view.setAlpha(0); }));
  advance(0.1);
  EXPECT_TRUE(loop.wants_frames());
  advance(1);
  EXPECT_FALSE(loop.wants_frames());
}

}  // namespace
}  // namespace host::test
