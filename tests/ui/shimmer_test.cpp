#include <gmock/gmock.h>

#include <optional>

#include "host/quartzcore/compositing/compositor.h"
#include "host/quartzcore/service/exports.h"
#include "host/quartzcore/service/layer_service.h"
#include "host/uikit/application/exports.h"
#include "host/uikit/drawing/exports.h"
#include "objc/ref.h"
#include "platform/CoreGraphics/CGColor.h"
#include "platform/Foundation/NSValue.h"
#include "platform/QuartzCore/CABasicAnimation.h"
#include "platform/QuartzCore/CAGradientLayer.h"
#include "tests/support/host_test.h"
#include "ui/UIViewShimmer.h"

namespace sonavue::test {
namespace {

using ::testing::ElementsAre;

class Shimmer : public host::test::HostTest {
 protected:
  Shimmer() {
    host::quartzcore::export_quartzcore();
    host::uikit::export_drawing();
    host::uikit::export_application();
    make_shimmer();
    service_.emplace(loop);
  }
  ~Shimmer() override { service_.reset(); }

  static UIView view(CGFloat width, CGFloat height) {
    return UIView::alloc().initWithFrame({10, 20, width, height}).autorelease();
  }
  static CAGradientLayer mask_of(UIView view) {
    return objc::cast<CAGradientLayer>(view.layer().mask());
  }
  static std::vector<double> numbers(objc::Object array) {
    std::vector<double> made;
    for (const NSNumber number : objc::cast<NSArray>(array).of<NSNumber>())
      made.push_back(number.doubleValue());
    return made;
  }

 private:
  std::optional<host::quartzcore::LayerService> service_;
};

TEST_F(Shimmer, MasksTheViewWithABandThreeTimesAsWide) {
  const UIView shimmering = view(100, 40);
  objc::send<>(shimmering, "startShimmering"_sel);
  const CAGradientLayer mask = mask_of(shimmering);
  ASSERT_TRUE(mask);
  EXPECT_EQ(mask.frame(), (CGRect{-100, 0, 300, 40}));
  EXPECT_EQ(mask.startPoint(), (CGPoint{0, 0.5}));
  EXPECT_EQ(mask.endPoint(), (CGPoint{2.5, 0.525}));
  EXPECT_THAT(numbers(mask.locations()), ElementsAre(0.4, 0.5, 0.6));
  std::vector<double> alphas;
  for (const objc::Object color : mask.colors().of<>())
    alphas.push_back(CGColorGetAlpha(reinterpret_cast<CGColorRef>(color.id())));
  EXPECT_THAT(alphas, ElementsAre(1, 0.1, 1));
}

TEST_F(Shimmer, TheBandRunsRepeatedly) {
  const UIView shimmering = view(100, 40);
  startShimmering(shimmering);
  const auto run = objc::cast<CABasicAnimation>(mask_of(shimmering).animationForKey("shimmer"_ns));
  ASSERT_TRUE(run);
  EXPECT_TRUE(run.keyPath().isEqualToString("locations"_ns));
  EXPECT_THAT(numbers(run.fromValue()), ElementsAre(0, 0.1, 0.2));
  EXPECT_THAT(numbers(run.toValue()), ElementsAre(0.8, 0.9, 1));
  EXPECT_EQ(run.duration(), 5);
}

TEST_F(Shimmer, TheBandIsFaintWhereItPasses) {
  const UIView shimmering = view(100, 40);
  shimmering.setFrame({0, 0, 100, 40});
  shimmering.setBackgroundColor(UIColor::whiteColor());
  startShimmering(shimmering);
  loop.run_ready();
  const auto middle_brightness = [&] {
    host::quartzcore::Compositor screen(100, 40, 1);
    const CALayer roots[] = {shimmering.layer()};
    screen.render(roots, clock.now());
    cairo_surface_t* pixels = screen.surface().get();
    cairo_surface_flush(pixels);
    const int stride = cairo_image_surface_get_stride(pixels);
    return cairo_image_surface_get_data(pixels)[20 * stride + 50 * 4];
  };
  // The centre of the band is over the centre of the view at an eighth of every run.
  advance(0.625);
  EXPECT_NEAR(middle_brightness(), 0.1 * 255, 6);
  advance(1);
  EXPECT_EQ(middle_brightness(), 255);
  advance(4 + 500 * 5);
  EXPECT_NEAR(middle_brightness(), 0.1 * 255, 6);
}

TEST_F(Shimmer, StoppedItShowsTheWholeView) {
  const UIView shimmering = view(100, 40);
  startShimmering(shimmering);
  objc::send<>(shimmering, "stopShimmering"_sel);
  EXPECT_FALSE(shimmering.layer().mask());
}

TEST_F(Shimmer, StartedAgainItHasANewMaskOfTheCurrentSize) {
  const UIView shimmering = view(100, 40);
  startShimmering(shimmering);
  const auto first = objc::Ref<CALayer>::retain(shimmering.layer().mask());
  shimmering.setFrame({0, 0, 50, 10});
  EXPECT_EQ(shimmering.layer().mask().frame(), (CGRect{-100, 0, 300, 40}));
  startShimmering(shimmering);
  EXPECT_NE(shimmering.layer().mask(), first.get());
  EXPECT_EQ(shimmering.layer().mask().frame(), (CGRect{-50, 0, 150, 10}));
}

TEST_F(Shimmer, AViewWithoutWidthHasAMaskWithoutWidth) {
  const UIView shimmering = view(0, 40);
  startShimmering(shimmering);
  EXPECT_EQ(mask_of(shimmering).frame().size.width, 0);
}

}  // namespace
}  // namespace sonavue::test
