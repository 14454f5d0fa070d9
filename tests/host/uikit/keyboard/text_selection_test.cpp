#include "host/uikit/text/clipboard.h"
#include "host/uikit/text/edit_menu.h"
#include "host/uikit/text/key_input.h"
#include "host/uikit/text/text_field.h"
#include "host/uikit/text_layout/words.h"
#include "platform/UIKit/UIPasteboard.h"
#include "tests/host/uikit/keyboard/keyboard_fixture.h"

namespace {

using namespace host;
using namespace host::uikit;

BOOL no_changes(NSObject, UITextField, NSRange, NSString) {
  return NO;
}

struct TextSelection : host::test::KeyboardTest {
  TextSelection() { clipboard().set_text(""); }
  ~TextSelection() override { hide_edit_menu(); }

  uikit::TextField& state() const { return objc::state_of<uikit::TextField>(field); }
  std::string selected() const {
    return field.text().substringWithRange(state().selection()).UTF8String();
  }
  void write(const char* text) {
    open();
    field.setText(NSString::stringWithUTF8String(text));
    field.layoutIfNeeded();
  }
  void press_keys(const std::vector<std::string>& names) {
    for (const std::string& name : names)
      EXPECT_TRUE(press_key(name)) << name;
  }
  /// Returns a point of the screen in the middle of the line, `x` points from the text's left.
  CGPoint in_field(double x) const { return {27 + x, 115}; }
  void tap_times(CGPoint point, int count) {
    for (int i = 0; i < count; ++i)
      KeyboardTest::tap(point);
  }
  static std::vector<std::string> menu() {
    std::vector<std::string> titles;
    if (!shown_edit_menu()) return titles;
    for (const EditMenuItem& item : shown_edit_menu()->items())
      titles.push_back(item.title);
    return titles;
  }
  void choose(const std::string& title) {
    const auto titles = menu();
    const auto found = std::find(titles.begin(), titles.end(), title);
    ASSERT_NE(found, titles.end()) << title;
    const auto item = static_cast<std::size_t>(found - titles.begin());
    KeyboardTest::tap(shown_edit_menu()->centre_of(item));
  }
};

using Titles = std::vector<std::string>;

TEST_F(TextSelection, ShiftAndArrowsSelectWholeCharacters) {
  write("ae\u0301\U0001F468\u200D\U0001F469\u200D\U0001F467!");
  press_keys({"shift-left"});
  EXPECT_EQ(selected(), "!");
  press_keys({"shift-left"});
  EXPECT_EQ(selected(), "\U0001F468\u200D\U0001F469\u200D\U0001F467!");
  press_keys({"shift-left"});
  EXPECT_EQ(selected(), "e\u0301\U0001F468\u200D\U0001F469\u200D\U0001F467!");
  press_keys({"shift-right"});
  EXPECT_EQ(selected(), "\U0001F468\u200D\U0001F469\u200D\U0001F467!");
}

TEST_F(TextSelection, AnArrowAlonePutsTheCaretAtTheSelectionsEnd) {
  write("abcd");
  press_keys({"left", "shift-left", "shift-left", "left"});
  type_text("1"_ns);
  EXPECT_EQ(text(), "a1bcd");
  press_keys({"shift-right", "shift-right", "right"});
  type_text("2"_ns);
  EXPECT_EQ(text(), "a1bc2d");
}

TEST_F(TextSelection, ControlAndArrowsMoveByWords) {
  write("let it be");
  press_keys({"control-left"});
  type_text("_"_ns);
  EXPECT_EQ(text(), "let it _be");
  press_keys({"home", "control-shift-right"});
  EXPECT_EQ(selected(), "let");
  press_keys({"control-shift-right"});
  EXPECT_EQ(selected(), "let it");
}

TEST_F(TextSelection, TypingReplacesTheSelection) {
  write("abc");
  press_keys({"control-a"});
  type_text("x"_ns);
  EXPECT_EQ(text(), "x");
  press_keys({"control-a", "backspace"});
  EXPECT_EQ(text(), "");
}

TEST_F(TextSelection, CutsCopiesAndPastesByTheKeyboard) {
  write("abc");
  press_keys({"shift-left", "control-x"});
  EXPECT_EQ(text(), "ab");
  EXPECT_STREQ(UIPasteboard::generalPasteboard().string().UTF8String(), "c");
  press_keys({"home", "control-v"});
  EXPECT_EQ(text(), "cab");
  press_keys({"control-a", "control-c", "end", "control-v"});
  EXPECT_EQ(text(), "cabcab");
}

TEST_F(TextSelection, PastedTextGoesOnOneLine) {
  write("");
  UIPasteboard::generalPasteboard().setString("one\ntwo"_ns);
  press_keys({"control-v"});
  EXPECT_EQ(text(), "one two");
}

TEST_F(TextSelection, ADelegateMayForbidCuttingAndPasting) {
  if (!objc_getClass("UnchangingDelegate")) {
    objc::ClassBuilder("UnchangingDelegate", "NSObject")
        .method<&no_changes>("textField:shouldChangeCharactersInRange:replacementString:")
        .finish();
  }
  const auto delegate = objc::Ref<NSObject>::adopt(objc::send<NSObject>(
      objc::send<NSObject>(objc::Object(objc_getClass("UnchangingDelegate")), "alloc"_sel),
      "init"_sel));
  write("abc");
  clipboard().set_text("kept");
  field.setDelegate(delegate.get());
  press_keys({"control-a", "control-x"});
  EXPECT_EQ(text(), "abc");
  EXPECT_EQ(clipboard().text(), "kept");
  press_keys({"control-v"});
  type_text("x"_ns);
  EXPECT_EQ(text(), "abc");
  field.setDelegate(nil);
}

TEST_F(TextSelection, ComposedTextReplacesTheSelectionUnlessItIsEmpty) {
  write("abc");
  press_keys({"control-a"});
  compose_text(""_ns, 0);
  EXPECT_EQ(selected(), "abc");
  compose_text("ni"_ns, 2);
  EXPECT_EQ(text(), "ni");
  compose_text(""_ns, 0);
  EXPECT_EQ(text(), "");
}

TEST_F(TextSelection, ADoubleTapSelectsTheWordAndShowsTheMenu) {
  write("let it be");
  tap_times(in_field(5), 2);
  EXPECT_EQ(selected(), "let");
  EXPECT_EQ(menu(), (Titles{"Cut", "Copy", "Select All"}));
  EXPECT_TRUE(state().marks().is_shown());
  EXPECT_FALSE(state().caret().is_shown());
}

TEST_F(TextSelection, ATripleTapSelectsEverything) {
  write("let it be");
  tap_times(in_field(5), 3);
  EXPECT_EQ(selected(), "let it be");
  EXPECT_EQ(menu(), (Titles{"Cut", "Copy"}));
}

TEST_F(TextSelection, ALongPressPutsTheCaretAndOffersToSelect) {
  write("let it be");
  press(in_field(100));
  advance(0.6);
  EXPECT_TRUE(menu().empty()) << "while the finger is down it only places the caret";
  slide(in_field(-5));
  EXPECT_EQ(state().selection().location, 0U);
  lift(in_field(-5));
  EXPECT_EQ(menu(), (Titles{"Select", "Select All"}));
  choose("Select");
  EXPECT_EQ(selected(), "let");
  EXPECT_EQ(menu(), (Titles{"Cut", "Copy", "Select All"}));
  choose("Cut");
  EXPECT_EQ(text(), " it be");
  EXPECT_TRUE(menu().empty());
}

TEST_F(TextSelection, ATapOnTheCaretOffersToPaste) {
  write("let");
  clipboard().set_text("me");
  KeyboardTest::tap(in_field(150));
  advance(1);
  EXPECT_EQ(menu(), (Titles{"Paste", "Select", "Select All"}));
  choose("Paste");
  EXPECT_EQ(text(), "letme");
}

TEST_F(TextSelection, TheMenuGoesWhenAFingerLandsElsewhere) {
  write("let it be");
  tap_times(in_field(5), 2);
  ASSERT_FALSE(menu().empty());
  KeyboardTest::tap(key("x"));
  EXPECT_TRUE(menu().empty());
  EXPECT_EQ(text(), "x it be") << "and the key is pressed all the same";
}

TEST_F(TextSelection, GrabbersAreDraggedAndDoNotPassEachOther) {
  write("let it be");
  tap_times(in_field(5), 2);
  advance(1);
  const CGPoint end = state().marks().grabber_centre(SelectionEnd::End);
  press({end.x + 5, end.y});
  slide(in_field(300));
  lift(in_field(300));
  EXPECT_EQ(selected(), "let it be");
  advance(1);
  const CGPoint start = state().marks().grabber_centre(SelectionEnd::Start);
  press({start.x - 5, start.y});
  slide(in_field(300));
  EXPECT_EQ(selected(), "e") << "one character stays";
  slide(in_field(0));
  EXPECT_EQ(selected(), "let it be");
  lift(in_field(0));
  EXPECT_FALSE(menu().empty());
}

TEST_F(TextSelection, GrabbersFollowTheField) {
  write("let it be");
  tap_times(in_field(5), 2);
  advance(0.1);
  const CGPoint before = state().marks().grabber_centre(SelectionEnd::Start);
  field.setFrame({20, 150, 335, 30});
  advance(0.1);
  const CGPoint after = state().marks().grabber_centre(SelectionEnd::Start);
  EXPECT_EQ(after.y, before.y + 50);
}

TEST_F(TextSelection, EndsWithEditing) {
  write("let it be");
  tap_times(in_field(5), 2);
  field.resignFirstResponder();
  EXPECT_FALSE(state().marks().is_shown());
  EXPECT_TRUE(menu().empty());
}

TEST_F(TextSelection, WordsAreFoundInAnyScript) {
  const auto word = [](const char* text, std::size_t index) {
    const NSString string = NSString::stringWithUTF8String(text);
    return std::string(string.substringWithRange(word_at(string, index)).UTF8String());
  };
  EXPECT_EQ(word("let it be", 4), "it");
  EXPECT_EQ(word("let it be", 6), "it") << "behind its last letter";
  EXPECT_EQ(word("été à Nîmes", 8), "Nîmes");
  EXPECT_EQ(word("привет мир", 2), "привет");
  EXPECT_EQ(word("\U0001F600\U0001F600 ok", 1), "\U0001F600");
  EXPECT_EQ(word("", 0), "");
  EXPECT_EQ(word("...", 1), ".");
}

TEST_F(TextSelection, SelectingBeyondTheTextSelectsToItsEnd) {
  write("a\U0001F600");
  state().select({1, 99});
  EXPECT_EQ(selected(), "\U0001F600");
  state().select({2, 0});
  EXPECT_EQ(state().selection().length % 2, 0U) << "no half of a pair";
  state().select({99, 99});
  EXPECT_EQ(selected(), "");
}

}  // namespace
