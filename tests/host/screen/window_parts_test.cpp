#include <SDL.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

#include "host/screen/fingers.h"
#include "host/screen/letterbox.h"
#include "host/screen/screen.h"
#include "host/screen/wheel_units.h"

// What the window is made of, without a window.

namespace {

using namespace host::screen;

TEST(Letterbox, FillsAWindowOfTheSameShape) {
  const auto box = Letterbox::fit({375, 667}, {750, 1334});
  EXPECT_EQ(box.place, CGRect(0, 0, 750, 1334));
  EXPECT_EQ(box.point_at({375, 667}), (CGPoint{187.5, 333.5}));
}

TEST(Letterbox, IsCentredInAWiderOrHigherWindow) {
  EXPECT_EQ(Letterbox::fit({100, 200}, {300, 200}).place, CGRect(100, 0, 100, 200));
  EXPECT_EQ(Letterbox::fit({100, 200}, {100, 300}).place, CGRect(0, 50, 100, 200));
  EXPECT_EQ(Letterbox::fit({100, 200}, {300, 200}).point_at({90, 20}), (CGPoint{-10, 20}));
}

TEST(Fingers, KeepTheirNumberUntilTheyAreLifted) {
  Fingers fingers;
  EXPECT_EQ(fingers.number_of(900, TouchPhase::Began), 1);
  EXPECT_EQ(fingers.number_of(-7, TouchPhase::Began), 2);
  EXPECT_EQ(fingers.number_of(900, TouchPhase::Ended), 1);
  EXPECT_EQ(fingers.number_of(-7, TouchPhase::Moved), 2);
  EXPECT_EQ(fingers.number_of(5, TouchPhase::Began), 1);
  EXPECT_EQ(fingers.number_of(900, TouchPhase::Moved), std::nullopt);
}

TEST(Wheels, ReportsOfATouchpadMayHappenToBeWhole) {
  WheelUnits units;
  SDL_MouseWheelEvent event{};
  event.timestamp = 5000;
  event.preciseY = -0.5F;
  EXPECT_EQ(units.of(event, 2).by, (CGPoint{0, 2.5}));
  event.timestamp = 5900;
  event.y = -1;
  event.preciseY = -1;
  EXPECT_EQ(units.of(event, 2).kind, WheelKind::Precise);
  event.timestamp = 6100;
  EXPECT_EQ(units.of(event, 2).kind, WheelKind::Notched);
  EXPECT_EQ(units.of(event, 2).by, (CGPoint{0, 1}));
}

TEST(Screenshots, AreWrittenOrTheReasonIsReturned) {
  const std::array<unsigned, 4> pixels{0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF};
  const Picture picture{reinterpret_cast<const unsigned char*>(pixels.data()), 2, 2, 8};
  const auto problem = write_png(picture, "/dev/null/shot.png");
  ASSERT_TRUE(problem);
  EXPECT_THAT(*problem, testing::StartsWith("/dev/null/shot.png: "));
}

}  // namespace
