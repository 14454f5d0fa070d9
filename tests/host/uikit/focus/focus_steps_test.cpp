#include "host/uikit/focus/focus_steps.h"

#include <gmock/gmock.h>

namespace host::test {
namespace {

using testing::ElementsAre;
using uikit::FocusStep;
using uikit::outermost_place;
using uikit::place_after;
using uikit::reading_order;

using Places = std::vector<CGRect>;

// Three columns of icons, and a wide row below them.
const Places kGrid{{120, 20, 60, 60},  {20, 20, 60, 60},   {220, 22, 60, 60}, {20, 120, 60, 60},
                   {120, 120, 60, 60}, {220, 120, 60, 60}, {0, 220, 300, 44}};

std::optional<std::size_t> from(std::size_t place, FocusStep step) {
  return place_after(kGrid[place], step, kGrid);
}

TEST(FocusSteps, ReadingGoesLineByLine) {
  EXPECT_THAT(reading_order(kGrid), ElementsAre(1, 0, 2, 3, 4, 5, 6));
  EXPECT_THAT(reading_order({}), ElementsAre());
}

TEST(FocusSteps, ALargePlaceIsInNoLineOfSmallOnesAboveOrBelowItsMiddle) {
  EXPECT_THAT(reading_order({{0, 0, 300, 600}, {200, 20, 40, 40}, {20, 500, 40, 40}}),
              ElementsAre(1, 0, 2));
}

TEST(FocusSteps, PlacesWithoutASizeAreReadToo) {
  EXPECT_THAT(reading_order({{50, 10, 0, 0}, {20, 10, 0, 0}, {0, 0, 10, 10}}),
              ElementsAre(2, 0, 1));
}

TEST(FocusSteps, NextAndPreviousFollowTheReadingUpToItsEnds) {
  EXPECT_EQ(from(1, FocusStep::Next), 0);
  EXPECT_EQ(from(2, FocusStep::Next), 3);
  EXPECT_EQ(from(6, FocusStep::Next), std::nullopt);
  EXPECT_EQ(from(3, FocusStep::Previous), 2);
  EXPECT_EQ(from(1, FocusStep::Previous), std::nullopt);
}

TEST(FocusSteps, ReadingGoesOnFromAPlaceThatIsNoLongerThere) {
  EXPECT_EQ(place_after({0, 90, 300, 20}, FocusStep::Next, kGrid), 3);
  EXPECT_EQ(place_after({0, 90, 300, 20}, FocusStep::Previous, kGrid), 2);
}

TEST(FocusSteps, ArrowsLeadToTheNeighbour) {
  EXPECT_EQ(from(0, FocusStep::Left), 1);
  EXPECT_EQ(from(0, FocusStep::Right), 2);
  EXPECT_EQ(from(2, FocusStep::Right), std::nullopt);
  EXPECT_EQ(from(2, FocusStep::Down), 5);
  EXPECT_EQ(from(4, FocusStep::Up), 0);
  EXPECT_EQ(from(5, FocusStep::Down), 6);
  EXPECT_EQ(from(6, FocusStep::Up), 4) << "the one over the middle";
}

TEST(FocusSteps, AnArrowDoesNotPreferWhatIsFarAside) {
  EXPECT_EQ(place_after({0, 0, 40, 40}, FocusStep::Down, {{300, 50, 40, 40}, {0, 200, 40, 40}}), 1);
}

TEST(FocusSteps, AnArrowLeavesWhatIsBesideAlone) {
  EXPECT_EQ(place_after({0, 0, 40, 40}, FocusStep::Down, {{50, 5, 40, 40}}), std::nullopt);
}

TEST(FocusSteps, LeftAndRightStayLevel) {
  const Places places{{200, 100, 40, 40}, {400, 30, 40, 40}};
  EXPECT_EQ(place_after({0, 0, 40, 40}, FocusStep::Right, places), 1);
  EXPECT_EQ(place_after({0, 200, 40, 40}, FocusStep::Right, places), std::nullopt);
  EXPECT_EQ(place_after({0, 200, 40, 40}, FocusStep::Up, places), 0);
}

TEST(FocusSteps, ReadingBeginsAtItsEnds) {
  EXPECT_EQ(outermost_place(FocusStep::Next, kGrid), 1);
  EXPECT_EQ(outermost_place(FocusStep::Down, kGrid), 1);
  EXPECT_EQ(outermost_place(FocusStep::Previous, kGrid), 6);
  EXPECT_EQ(outermost_place(FocusStep::Next, {}), std::nullopt);
}

}  // namespace
}  // namespace host::test
