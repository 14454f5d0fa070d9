#include "host/screen/phone_body.h"

#include <gtest/gtest.h>

#include <vector>

#include "host/screen/phone_body_drawing.h"

namespace {

using namespace host::screen;

constexpr CGSize kTall{375, 667};
constexpr CGSize kShort{320, 568};
constexpr CGSize kTablet{768, 1024};

bool lies_inside(CGRect outer, CGRect inner) {
  return outer.min_x() <= inner.min_x() && outer.min_y() <= inner.min_y() &&
         outer.max_x() >= inner.max_x() && outer.max_y() >= inner.max_y();
}

TEST(PhoneBodies, HaveTheScreenInTheMiddleAndHomeBelowIt) {
  for (const CGSize size : {kTall, kShort, kTablet}) {
    const PhoneBody body(size);
    EXPECT_EQ(body.screen().size, size);
    EXPECT_TRUE(lies_inside(body.case_frame(), body.screen()));
    EXPECT_EQ(body.screen().centre().x, body.size().width / 2);
    const CGRect home = body.frame_of(Button::Home);
    EXPECT_EQ(home.centre().x, body.size().width / 2);
    EXPECT_GT(home.min_y(), body.screen().max_y());
    EXPECT_LT(home.max_y(), body.case_frame().max_y());
  }
}

TEST(PhoneBodies, SideButtonsProtrudeWithinTheWindow) {
  for (const CGSize size : {kTall, kShort, kTablet}) {
    const PhoneBody body(size);
    const CGRect whole{{0, 0}, body.size()};
    for (const Button button : PhoneBody::buttons()) {
      EXPECT_TRUE(lies_inside(whole, body.frame_of(button))) << static_cast<int>(button);
      EXPECT_EQ(lies_inside(body.case_frame(), body.frame_of(button)), button == Button::Home);
    }
  }
}

TEST(PhoneBodies, TallPhonesHaveTheirLockButtonAtTheSideOthersAtTheTop) {
  const CGRect side = PhoneBody(kTall).frame_of(Button::Lock);
  EXPECT_GT(side.size.height, side.size.width);
  EXPECT_GT(side.min_x(), PhoneBody(kTall).screen().max_x());
  for (const CGSize size : {kShort, kTablet}) {
    const CGRect top = PhoneBody(size).frame_of(Button::Lock);
    EXPECT_GT(top.size.width, top.size.height);
    EXPECT_LT(top.max_y(), PhoneBody(size).screen().min_y());
  }
}

TEST(PhoneBodies, EveryButtonIsFoundAtItsCentreAndNextToIt) {
  for (const CGSize size : {kTall, kShort, kTablet}) {
    const PhoneBody body(size);
    for (const Button button : PhoneBody::buttons())
      EXPECT_EQ(body.button_at(body.frame_of(button).centre()), button);
    const CGPoint up = body.frame_of(Button::VolumeUp).centre();
    EXPECT_EQ(body.button_at({up.x + 12, up.y}), Button::VolumeUp);
    const CGRect down = body.frame_of(Button::VolumeDown);
    EXPECT_EQ(body.button_at({up.x, down.min_y() - 3}), Button::VolumeDown);
  }
}

TEST(PhoneBodies, TheScreenAndTheGlassAreNotButtons) {
  const PhoneBody body(kTall);
  const CGRect screen = body.screen();
  EXPECT_EQ(body.button_at(screen.centre()), std::nullopt);
  EXPECT_EQ(body.button_at({screen.centre().x, screen.min_y() - 5}), std::nullopt);
  // The margin of a side button ends where the screen begins.
  const CGPoint up = body.frame_of(Button::VolumeUp).centre();
  EXPECT_EQ(body.button_at({screen.min_x() + 1, up.y}), std::nullopt);
  // Home is round.
  const CGRect home = body.frame_of(Button::Home);
  EXPECT_EQ(body.button_at({home.min_x() + 3, home.min_y() + 3}), std::nullopt);
}

TEST(PhoneBodies, FindTheNearestPointOnTheScreen) {
  const PhoneBody body(kTall);
  const CGPoint origin = body.screen().origin;
  EXPECT_EQ(body.nearest_on_screen({origin.x + 10, origin.y - 5}), (CGPoint{10, 0}));
  EXPECT_EQ(body.nearest_on_screen({origin.x + 400, origin.y + 700}), (CGPoint{374, 666}));
}

/// The centre pixel of a button, drawn at one pixel per point.
unsigned colour_of(const PhoneBody& body, Button button, bool pressed) {
  const auto width = static_cast<int>(body.size().width);
  const auto height = static_cast<int>(body.size().height);
  std::vector<unsigned> pixels(static_cast<std::size_t>(width * height));
  cairo_surface_t* surface =
      cairo_image_surface_create_for_data(reinterpret_cast<unsigned char*>(pixels.data()),
                                          CAIRO_FORMAT_ARGB32, width, height, width * 4);
  cairo_t* drawing = cairo_create(surface);
  draw_body(drawing, body, [=](Button each) { return pressed && each == button; });
  cairo_destroy(drawing);
  cairo_surface_destroy(surface);
  const CGRect frame = body.frame_of(button);
  // The protruding half is visible; the other half is below the body.
  const bool left = frame.max_x() < body.screen().min_x();
  const bool right = frame.min_x() > body.screen().max_x();
  const int x = static_cast<int>(left    ? frame.min_x() + 2
                                 : right ? frame.max_x() - 3
                                         : frame.centre().x);
  return pixels[static_cast<std::size_t>(static_cast<int>(frame.centre().y) * width + x)];
}

TEST(PhoneBodies, APressedButtonIsVisible) {
  const PhoneBody body(kTall);
  for (const Button button : PhoneBody::buttons())
    EXPECT_NE(colour_of(body, button, true), colour_of(body, button, false));
}

}  // namespace
