#include "host/activator/gesture/edge_slide.h"

#include <gtest/gtest.h>

#include <string>

namespace host::test {
namespace {

using activator::EdgeSlide;

constexpr CGSize kScreen{375, 667};

/// Returns the event of a straight slide; "" while undecided, "-" for none.
std::string slide(CGPoint from, CGPoint to) {
  auto finger = EdgeSlide::begin(kScreen, from);
  if (!finger) return "-";
  const auto verdict = finger->move(to);
  if (verdict == EdgeSlide::Verdict::Undecided) return "";
  return verdict == EdgeSlide::Verdict::SlidIn ? finger->event() : "-";
}

TEST(EdgeSlides, ComeInOverEachEdge) {
  EXPECT_EQ(slide({0, 300}, {60, 310}), "slide-in-left");
  EXPECT_EQ(slide({374, 300}, {300, 290}), "slide-in-right");
  EXPECT_EQ(slide({180, 2}, {190, 60}), "slide-in-top");
  EXPECT_EQ(slide({180, 666}, {170, 600}), "slide-in-bottom");
}

TEST(EdgeSlides, ComeInOverEachCorner) {
  EXPECT_EQ(slide({2, 20}, {50, 60}), "slide-in-top-left");
  EXPECT_EQ(slide({370, 5}, {330, 40}), "slide-in-top-right");
  EXPECT_EQ(slide({5, 660}, {40, 620}), "slide-in-bottom-left");
  EXPECT_EQ(slide({374, 640}, {330, 600}), "slide-in-bottom-right");
}

TEST(EdgeSlides, PerpendicularFromACornerBelongToTheEdge) {
  EXPECT_EQ(slide({2, 5}, {60, 8}), "slide-in-left");
  EXPECT_EQ(slide({2, 5}, {5, 60}), "slide-in-top");
}

TEST(EdgeSlides, BeginAtTheEdge) {
  EXPECT_EQ(slide({16, 300}, {100, 300}), "-");
  EXPECT_EQ(slide({180, 651}, {180, 500}), "-");
  EXPECT_EQ(slide({16, 16}, {60, 60}), "-");
}

TEST(EdgeSlides, BelongToACornerOnlyNearIt) {
  EXPECT_EQ(slide({5, 50}, {50, 95}), "slide-in-top-left");
  EXPECT_EQ(slide({5, 51}, {50, 80}), "slide-in-left");
  EXPECT_EQ(slide({51, 5}, {80, 50}), "slide-in-top");
}

TEST(EdgeSlides, NeedAMinimumDistance) {
  EXPECT_EQ(slide({0, 300}, {39, 300}), "");
  EXPECT_EQ(slide({0, 300}, {40, 300}), "slide-in-left");
}

TEST(EdgeSlides, AlongTheEdgeAreNotRecognised) {
  EXPECT_EQ(slide({2, 300}, {10, 360}), "-");
  EXPECT_EQ(slide({2, 300}, {12, 240}), "-");
  EXPECT_EQ(slide({2, 30}, {3, 90}), "-");
  EXPECT_EQ(slide({180, 2}, {120, 12}), "-");
}

}  // namespace
}  // namespace host::test
