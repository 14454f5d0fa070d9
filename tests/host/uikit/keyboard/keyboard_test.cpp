#include "host/uikit/keyboard/keyboard.h"

#include "host/uikit/text/key_input.h"
#include "tests/host/uikit/keyboard/keyboard_fixture.h"

namespace {

using namespace host;
using namespace host::uikit;

struct KeyboardKeys : host::test::KeyboardTest {
  const BoardMetrics& metrics() const { return keyboard().keys().metrics(); }
  ShiftState::Value shift() const { return keyboard().typing().shift(); }
  bool has_popup() const { return keyboard().keys().popup() != nullptr; }
};

TEST_F(KeyboardKeys, TypeIntoTheFirstResponder) {
  open();
  tap_keys({"l", "e", "t", " ", "i", "t"});
  EXPECT_EQ(text(), "let it");
}

TEST_F(KeyboardKeys, AreTypedWhenTheFingerLifts) {
  open();
  press(key("k"));
  EXPECT_EQ(text(), "");
  lift(key("k"));
  EXPECT_EQ(text(), "k");
}

TEST_F(KeyboardKeys, AFingerMaySlideToAnotherKeyBeforeItLifts) {
  open();
  press(key("k"));
  slide(key("j"));
  slide(key("h"));
  lift(key("h"));
  EXPECT_EQ(text(), "h");
}

TEST_F(KeyboardKeys, SlidingOntoAFunctionKeyTypesNothing) {
  open();
  field.setText("abc"_ns);
  press(key("m"));
  slide(key(KeyKind::Backspace));
  lift(key(KeyKind::Backspace));
  EXPECT_EQ(text(), "abc");
}

TEST_F(KeyboardKeys, ASecondFingerTypesWhatIsUnderTheFirst) {
  open();
  press(key("a"), 1);
  press(key("l"), 2);
  EXPECT_EQ(text(), "a");
  lift(key("a"), 1);
  lift(key("l"), 2);
  EXPECT_EQ(text(), "al");
}

TEST_F(KeyboardKeys, ACancelledTouchTypesNothing) {
  open();
  press(key("a"));
  input.cancelled(1, key("a"), clock.now());
  EXPECT_EQ(text(), "");
  EXPECT_FALSE(has_popup());
}

TEST_F(KeyboardKeys, ShiftAppliesToOneLetterAndLocksWhenPressedTwice) {
  open();
  tap(key(KeyKind::Shift));
  advance(1);
  tap_keys({"a", "b"});
  EXPECT_EQ(text(), "Ab");
  tap(key(KeyKind::Shift));
  tap(key(KeyKind::Shift));
  EXPECT_EQ(shift(), ShiftState::Value::Locked);
  tap_keys({"c", "d"});
  EXPECT_EQ(text(), "AbCD");
  advance(1);
  tap(key(KeyKind::Shift));
  tap(key("e"));
  EXPECT_EQ(text(), "AbCDe");
}

TEST_F(KeyboardKeys, ShiftCanBeHeldWithAnotherFinger) {
  open();
  press(key(KeyKind::Shift), 1);
  press(key("a"), 2);
  lift(key("a"), 2);
  press(key("b"), 2);
  lift(key("b"), 2);
  lift(key(KeyKind::Shift), 1);
  tap(key("c"));
  EXPECT_EQ(text(), "ABc");
}

TEST_F(KeyboardKeys, ASentenceBeginsWithACapitalWhenRequested) {
  field.setAutocapitalizationType(UITextAutocapitalizationTypeSentences);
  open();
  tap_keys({"y", "e", "s"});
  EXPECT_EQ(text(), "Yes");
  tap_keys({"123", "."});
  tap_keys({" ", "n", "o"});
  EXPECT_EQ(text(), "Yes. No");
}

TEST_F(KeyboardKeys, FollowWhatAPhysicalKeyboardTypes) {
  field.setAutocapitalizationType(UITextAutocapitalizationTypeSentences);
  open();
  EXPECT_EQ(shift(), ShiftState::Value::Once);
  type_text("a"_ns);
  EXPECT_EQ(shift(), ShiftState::Value::Off);
  press_key("backspace");
  EXPECT_EQ(shift(), ShiftState::Value::Once);
  tap_keys({"b", "c"});
  EXPECT_EQ(text(), "Bc");
}

TEST_F(KeyboardKeys, NothingIsCapitalizedUnlessRequested) {
  open();
  EXPECT_EQ(shift(), ShiftState::Value::Off);
  tap(key("y"));
  EXPECT_EQ(text(), "y");
}

TEST_F(KeyboardKeys, SwitchToDigitsAndSymbolsAndSpaceSwitchesBack) {
  open();
  tap_keys({"123", "4", "#+=", "€", "123", "2", " ", "q"});
  EXPECT_EQ(text(), "4€2 q");
}

TEST_F(KeyboardKeys, SlidingFromThePlaneKeyTypesOneSymbol) {
  open();
  press(key("123"));
  slide(key("7"));
  lift(key("7"));
  EXPECT_EQ(text(), "7");
  EXPECT_EQ(keyboard().typing().plane(), KeyPlane::Letters);
}

TEST_F(KeyboardKeys, BackspaceRepeatsAfterHalfASecondEveryTenth) {
  open();
  field.setText("0123456789"_ns);
  press(key(KeyKind::Backspace));
  EXPECT_EQ(text(), "012345678");
  advance(0.49);
  EXPECT_EQ(text(), "012345678");
  advance(0.02);
  EXPECT_EQ(text(), "01234567");
  advance(0.2);
  EXPECT_EQ(text(), "012345");
  lift(key(KeyKind::Backspace));
  advance(1);
  EXPECT_EQ(text(), "012345");
}

TEST_F(KeyboardKeys, BackspaceStopsWhenTheFingerSlidesAway) {
  open();
  field.setText("0123456789"_ns);
  press(key(KeyKind::Backspace));
  advance(0.55);
  slide(key("a"));
  advance(1);
  lift(key("a"));
  EXPECT_EQ(text(), "01234567");
}

TEST_F(KeyboardKeys, AHeldBackspaceEndsWithTheFieldThatItDeletesFrom) {
  open();
  field.setText("0123456789"_ns);
  press(key(KeyKind::Backspace));
  advance(0.6);
  field.resignFirstResponder();
  const std::string left = text();
  advance(2);
  EXPECT_EQ(text(), left);
}

TEST_F(KeyboardKeys, ReturnAsksTheFieldAsOnAPhysicalKeyboard) {
  open();
  field.setText("a"_ns);
  tap(key(KeyKind::Return));
  EXPECT_EQ(text(), "a");
}

TEST_F(KeyboardKeys, APressedLetterIsShownAboveTheFinger) {
  open();
  press(key("g"));
  ASSERT_TRUE(has_popup());
  EXPECT_LT(keyboard().keys().popup()->shape().head.max_y(),
            keyboard().keys().popup()->shape().key.min_y());
  lift(key("g"));
  EXPECT_FALSE(has_popup());
}

TEST_F(KeyboardKeys, PopupsStayWithinTheScreen) {
  open();
  for (const char* name : {"q", "p", "a", "l"}) {
    press(key(name));
    const CGRect head = keyboard().keys().popup()->shape().head;
    EXPECT_GE(head.min_x(), 0) << name;
    EXPECT_LE(head.max_x(), 375) << name;
    EXPECT_GE(on_screen(head.origin).y, 0);
    lift(key(name));
  }
}

TEST_F(KeyboardKeys, ALongPressOffersTheLettersAccents) {
  open();
  press(key("e"));
  advance(0.55);
  const PopupView& popup = *keyboard().keys().popup();
  ASSERT_EQ(popup.shape().count, 8U);
  // The second letter is to the right of the key.
  slide(on_screen(popup.shape().cell(2).centre()));
  lift(on_screen(popup.shape().cell(2).centre()));
  EXPECT_EQ(text(), "é");
}

TEST_F(KeyboardKeys, ALongPressThatChoosesNothingElseTypesTheLetter) {
  open();
  press(key("o"));
  advance(0.6);
  lift(key("o"));
  EXPECT_EQ(text(), "o");
}

TEST_F(KeyboardKeys, AccentsOfLettersNearTheEdgeStayOnTheScreen) {
  open();
  for (const char* name : {"a", "o", "e", "u", "i", "n", "c", "s"}) {
    press(key(name));
    advance(0.6);
    const PopupShape& shape = keyboard().keys().popup()->shape();
    EXPECT_GE(shape.head.min_x(), 0) << name;
    EXPECT_LE(shape.head.max_x(), 375) << name;
    EXPECT_TRUE(shape.cell(0).min_x() < shape.key.centre().x &&
                shape.key.centre().x < shape.cell(0).max_x())
        << name << ": the letter itself is above its key";
    input.cancelled(1, key(name), clock.now());
  }
}

TEST_F(KeyboardKeys, ShiftCapitalizesAccentsToo) {
  open();
  tap(key(KeyKind::Shift));
  advance(1);
  press(key("u"));
  advance(0.6);
  const CGPoint second = on_screen(keyboard().keys().popup()->shape().cell(2).centre());
  slide(second);
  lift(second);
  EXPECT_EQ(text(), "Ü");
}

TEST_F(KeyboardKeys, AreDrawnOnceForAllPresses) {
  open();
  paint();
  const int before = keyboard().keys().drawings();
  tap_keys({"a", "b", "c", " "});
  tap(key(KeyKind::Shift));
  tap(key(KeyKind::Backspace));
  paint();
  EXPECT_EQ(keyboard().keys().drawings(), before);
}

}  // namespace
