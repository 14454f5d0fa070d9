#include "host/activator/gesture/button_gestures.h"

#include <gmock/gmock.h>

#include "tests/support/host_test.h"

namespace host::test {
namespace {

using activator::ButtonGestures;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Button = ButtonGestures::Button;
using Press = ButtonGestures::Press;

class ButtonGesturesTest : public HostTest {
 protected:
  Press press(Button button) {
    buttons.down(button);
    return buttons.up(button);
  }

  std::vector<std::string> recognized;
  bool has_listener = true;
  ButtonGestures buttons{loop, [this](const char* event) {
                           recognized.emplace_back(event);
                           return has_listener;
                         }};
};

TEST_F(ButtonGesturesTest, AShortPressIsTheButtonsOwn) {
  buttons.down(Button::Home);
  advance(0.3);
  EXPECT_EQ(buttons.up(Button::Home), Press::Plain);
  advance(1);
  EXPECT_THAT(recognized, IsEmpty());
}

TEST_F(ButtonGesturesTest, AHoldOfHomeTakesThePress) {
  buttons.down(Button::Home);
  advance(0.7);
  EXPECT_THAT(recognized, ElementsAre("home-hold"));
  EXPECT_EQ(buttons.up(Button::Home), Press::Consumed);
  EXPECT_EQ(press(Button::Home), Press::Plain);
}

TEST_F(ButtonGesturesTest, AButtonThatIsDownAlreadyIsNotPressedAgain) {
  buttons.down(Button::Home);
  advance(0.5);
  buttons.down(Button::Home);
  advance(1);
  EXPECT_THAT(recognized, ElementsAre("home-hold"));
}

TEST_F(ButtonGesturesTest, AHoldWithoutAListenerIsAPress) {
  has_listener = false;
  buttons.down(Button::Home);
  advance(0.7);
  EXPECT_EQ(buttons.up(Button::Home), Press::Plain);
}

TEST_F(ButtonGesturesTest, TheLockButtonIsHeldLonger) {
  buttons.down(Button::Lock);
  advance(0.9);
  EXPECT_THAT(recognized, IsEmpty());
  advance(0.2);
  EXPECT_THAT(recognized, ElementsAre("lock-hold"));
  EXPECT_EQ(buttons.up(Button::Lock), Press::Consumed);
}

TEST_F(ButtonGesturesTest, VolumeButtonsThatAreDownTogetherAreAPair) {
  buttons.down(Button::VolumeUp);
  advance(0.5);
  buttons.down(Button::VolumeDown);
  buttons.up(Button::VolumeUp);
  buttons.up(Button::VolumeDown);
  EXPECT_THAT(recognized, ElementsAre("volume-both"));
}

TEST_F(ButtonGesturesTest, SimultaneousLightPressesAreAPairToo) {
  press(Button::VolumeDown);
  advance(0.1);
  press(Button::VolumeUp);
  EXPECT_THAT(recognized, ElementsAre("volume-both"));
}

TEST_F(ButtonGesturesTest, EachPressIsInOnePairOnly) {
  press(Button::VolumeDown);
  press(Button::VolumeUp);
  press(Button::VolumeDown);
  EXPECT_THAT(recognized, ElementsAre("volume-both"));
}

TEST_F(ButtonGesturesTest, AHeldButtonOfAPairMakesNoSecondPair) {
  buttons.down(Button::VolumeUp);
  press(Button::VolumeDown);
  press(Button::VolumeDown);
  EXPECT_THAT(recognized, ElementsAre("volume-both"));
}

TEST_F(ButtonGesturesTest, SuccessivePressesAreNotAPair) {
  press(Button::VolumeUp);
  advance(0.2);
  press(Button::VolumeDown);
  press(Button::VolumeDown);
  EXPECT_THAT(recognized, IsEmpty());
}

}  // namespace
}  // namespace host::test
