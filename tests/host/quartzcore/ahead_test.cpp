#include "host/quartzcore/kinds/backdrop_layer.h"
#include "tests/host/quartzcore/compositor_fixture.h"

// What a panel that is closed will show of its cover is blurred before it opens.

namespace host::test {
namespace {

class AheadTest : public CompositorTest {
 public:
  AheadTest() : cover(layer_at({0, 0, 8, 8})), backdrop(CABackdropLayer::layer()) {
    cover.setMasksToBounds(YES);
    cover.setOpacity(0);
    root.addSublayer(cover);
    backdrop.setFrame({0, 0, 8, 8});
    cover.addSublayer(backdrop);
  }

  void prepare_ahead() {
    const CALayer roots[] = {root};
    compositor.prepare_ahead(roots, loop.now());
  }
  void fade_in() {
    for (int i = 1; i <= 4; ++i) {
      cover.setOpacity(0.25f * static_cast<float>(i));
      render();
    }
  }

  const CALayer cover;
  const CABackdropLayer backdrop;
};

TEST_F(AheadTest, NoFrameOfAFadeBlursACoverThatWasThereBefore) {
  render();
  cover.setContents(image_of_color(8, 8, kRed));
  prepare_ahead();
  ASSERT_EQ(compositor.blur_count(), 1u);
  fade_in();
  EXPECT_EQ(compositor.blur_count(), 1u);
  EXPECT_EQ(pixel(4, 4), kRed);
}

TEST_F(AheadTest, AnotherCoverBehindTheClosedPanelIsBlurredOnce) {
  cover.setContents(image_of_color(8, 8, kRed));
  prepare_ahead();
  fade_in();
  cover.setOpacity(0);
  render();
  cover.setContents(image_of_color(8, 8, kBlue));
  prepare_ahead();
  prepare_ahead();
  render();
  ASSERT_EQ(compositor.blur_count(), 2u);
  fade_in();
  EXPECT_EQ(compositor.blur_count(), 2u);
  EXPECT_EQ(pixel(4, 4), kBlue);
}

TEST_F(AheadTest, AnotherLookOrSizeBehindTheClosedPanelIsBlurredAhead) {
  cover.setContents(image_of_color(8, 8, kRed));
  prepare_ahead();
  objc::state_of<quartzcore::BackdropLayer>(backdrop).show({.tint = {0, 0, 0, 1}});
  prepare_ahead();
  EXPECT_EQ(compositor.blur_count(), 2u);
  backdrop.setFrame({0, 0, 4, 8});
  prepare_ahead();
  EXPECT_EQ(compositor.blur_count(), 3u);
  fade_in();
  EXPECT_EQ(compositor.blur_count(), 3u);
  EXPECT_EQ(pixel(2, 4), kBlack);
  EXPECT_EQ(pixel(6, 4), kRed);
}

TEST_F(AheadTest, APanelThatOpensAgainShowsWhatWasBlurredBefore) {
  cover.setContents(image_of_color(8, 8, kRed));
  fade_in();
  ASSERT_EQ(compositor.blur_count(), 1u);
  cover.setOpacity(0);
  render();
  fade_in();
  EXPECT_EQ(compositor.blur_count(), 1u);
  EXPECT_EQ(pixel(4, 4), kRed);
}

TEST_F(AheadTest, ABackdropWithoutAPictureOfItsOwnIsNotBlurredAhead) {
  prepare_ahead();
  EXPECT_EQ(compositor.blur_count(), 0u);
}

}  // namespace
}  // namespace host::test
