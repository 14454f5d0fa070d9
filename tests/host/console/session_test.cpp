#include "host/console/session.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "objc/class_builder.h"
#include "platform/Foundation/NSArray.h"
#include "tests/host/console/fake_phone.h"

namespace {

using namespace host::console;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::StartsWith;

int counter = 3;
const ExportedGlobal kTable[] = {{"counter", "i", &counter}, {nullptr, nullptr, nullptr}};

/// Raises an exception as soon as it is described or compared.
class Grump : public objc::Implementation<Grump, NSObject> {
 public:
  using Implementation::Implementation;

  NSString description() const { return raise<NSString>(); }
  BOOL is_equal(objc::Object) const { return raise<BOOL>(); }

 private:
  template <class T>
  static T raise() {
    NSArray::array().objectAtIndex(0);
    return T();
  }
};

void make_grump_class() {
  if (objc_getClass("ConsoleTestGrump")) return;
  objc::ClassBuilder("ConsoleTestGrump", "NSObject")
      .state<Grump>()
      .method<&Grump::description>("description")
      .method<&Grump::is_equal>("isEqual:")
      .finish();
}

constexpr const char* kRaised = "error: an object raised an exception when it was asked";

class Sessions : public testing::Test {
 protected:
  Sessions() { globals_.add_table(kTable); }
  std::string say(std::string_view line) { return session_.execute(line).line(); }

  FakePhone phone_;
  Globals globals_;
  Session session_{phone_, globals_};
};

TEST_F(Sessions, BlankLinesAndCommentsAreOkAndDoNothing) {
  EXPECT_EQ(say(""), "ok");
  EXPECT_EQ(say("   \t "), "ok");
  EXPECT_EQ(say("# a remark"), "ok");
  EXPECT_EQ(say("advance 1 # and a remark"), "ok");
  EXPECT_THAT(phone_.done, ElementsAre("advance 1"));
}

TEST_F(Sessions, AdvanceMovesTheClock) {
  EXPECT_EQ(say("advance 0.25"), "ok");
  EXPECT_EQ(say("advance -1"), "error: the clock advances by 0 to 86400 seconds (column 9)");
  EXPECT_EQ(say("advance 1e9"), "error: the clock advances by 0 to 86400 seconds (column 9)");
  EXPECT_EQ(say("advance"), "error: the number of seconds is missing (column 8)");
  EXPECT_EQ(say("advance nan"), "error: the number of seconds is missing (column 9)");
  EXPECT_EQ(say("advance 1 2"), "error: unexpected text: 2 (column 11)");
  EXPECT_THAT(phone_.done, ElementsAre("advance 0.25"));
}

TEST_F(Sessions, TapPressesHoldsAndReleases) {
  EXPECT_EQ(say("tap 10 20.5"), "ok");
  EXPECT_THAT(phone_.done, ElementsAre("began 10 20.5", "advance 0.05", "ended 10 20.5"));
}

TEST_F(Sessions, TapsAreRepeatedWithAPauseBetween) {
  EXPECT_EQ(say("tap 1 2 2"), "ok");
  EXPECT_THAT(phone_.done, ElementsAre("began 1 2", "advance 0.05", "ended 1 2", "advance 0.08",
                                       "began 1 2", "advance 0.05", "ended 1 2"));
  EXPECT_EQ(say("tap 1 2 0"), "error: the number of taps is 1 to 10 (column 9)");
  EXPECT_EQ(say("tap 1 2 1.5"), "error: the number of taps is 1 to 10 (column 9)");
}

TEST_F(Sessions, TapFindsTheCentreOfAView) {
  EXPECT_EQ(say("tap on @\"stands for a view\" 1"), "ok");
  EXPECT_THAT(phone_.done, ElementsAre("began 30 40", "advance 0.05", "ended 30 40"));
  EXPECT_EQ(say("tap on [NSArray array]"), "error: this is not a view on the screen (column 8)");
  EXPECT_EQ(say("tap on nil"), "error: this is not a view on the screen (column 8)");
  EXPECT_EQ(say("tap on nowhere"), "error: unknown name: nowhere (column 8)");
}

TEST_F(Sessions, TouchGoesThroughItsPhasesInOrder) {
  EXPECT_EQ(say("touch moved 1 2"), "error: no finger is on the screen (column 1)");
  EXPECT_EQ(say("touch began 1 2"), "ok");
  EXPECT_EQ(say("touch began 1 2"), "error: a finger is on the screen already (column 1)");
  EXPECT_EQ(say("tap 1 2"), "error: a finger is on the screen already (column 1)");
  EXPECT_EQ(say("drag 1 2 3 4 1"), "error: a finger is on the screen already (column 1)");
  EXPECT_EQ(say("touch moved 3 4"), "ok");
  EXPECT_EQ(say("touch cancelled 3 4"), "ok");
  EXPECT_EQ(say("touch ended 3 4"), "error: no finger is on the screen (column 1)");
  EXPECT_EQ(say("touch hovered 3 4"),
            "error: began, moved, ended or cancelled is missing (column 7)");
  EXPECT_THAT(phone_.done, ElementsAre("began 1 2", "moved 3 4", "cancelled 3 4"));
}

TEST_F(Sessions, AFingerThatIsDownGlidesOncePerFrame) {
  EXPECT_EQ(say("touch 2 began 0 0"), "ok");
  EXPECT_EQ(say("touch 2 moved 30 60 0.05"), "ok");
  EXPECT_EQ(say("touch 2 moved on @\"view\" 0"), "ok");
  EXPECT_THAT(phone_.done,
              ElementsAre("finger 2 began 0 0", "advance 0.01667", "finger 2 moved 10 20",
                          "advance 0.01667", "finger 2 moved 20 40", "advance 0.01667",
                          "finger 2 moved 30 60", "advance 0", "finger 2 moved 30 40"));
  EXPECT_EQ(say("touch 2 moved 1 2 61"), "error: a movement lasts 0 to 60 seconds (column 19)");
  EXPECT_EQ(say("touch 2 ended 1 2 3"), "error: unexpected text: 3 (column 19)");
  EXPECT_EQ(say("touch moved 1 2 3"), "error: no finger is on the screen (column 1)");
}

TEST_F(Sessions, FingersAreTouchedByTheirNumbers) {
  EXPECT_EQ(say("touch 2 began 1 2"), "ok");
  EXPECT_EQ(say("touch began 3 4"), "ok");
  EXPECT_EQ(say("touch 2 began 1 2"), "error: a finger is on the screen already (column 1)");
  EXPECT_EQ(say("touch 3 ended 1 2"), "error: no finger is on the screen (column 1)");
  EXPECT_EQ(say("touch 1 ended 3 4"), "ok");
  EXPECT_EQ(say("touch 2 ended 5 6"), "ok");
  for (const char* wrong : {"touch 0 began 1 2", "touch 6 began 1 2", "touch 1.5 began 1 2"})
    EXPECT_EQ(say(wrong), "error: fingers are numbered from 1 to 5 (column 7)") << wrong;
  EXPECT_THAT(phone_.done,
              ElementsAre("finger 2 began 1 2", "began 3 4", "ended 3 4", "finger 2 ended 5 6"));
}

TEST_F(Sessions, RestReportsWhatKeepsThePhoneBusy) {
  EXPECT_EQ(say("rest"), "ok");
  phone_.refusal = "the phone is locked";
  EXPECT_EQ(say("rest"), "error: the phone is locked");
  EXPECT_THAT(say("rest now"), StartsWith("error: unexpected text"));
}

TEST_F(Sessions, DragMovesOncePerFrameAtASteadySpeed) {
  EXPECT_EQ(say("drag 0 0 30 60 0.05"), "ok");
  EXPECT_THAT(phone_.done,
              ElementsAre("began 0 0", "advance 0.01667", "moved 10 20", "advance 0.01667",
                          "moved 20 40", "advance 0.01667", "moved 30 60", "ended 30 60"));
  EXPECT_NEAR(phone_.now, 0.05, 1e-12);
}

TEST_F(Sessions, DragAcceptsViewsAndPoints) {
  EXPECT_EQ(say("drag on @\"view\" 30 80 0"), "ok");
  EXPECT_THAT(phone_.done, ElementsAre("began 30 40", "advance 0", "moved 30 80", "ended 30 80"));
  EXPECT_EQ(say("drag 1 2 3"), "error: Y of a point is missing (column 11)");
  EXPECT_EQ(say("drag 1 2 3 4 61"), "error: a drag lasts 0 to 60 seconds (column 14)");
  EXPECT_EQ(say("drag 1 2 3 4"), "error: the number of seconds is missing (column 13)");
}

TEST_F(Sessions, TheWheelTurnsByNotchesOrByPoints) {
  EXPECT_EQ(say("wheel 10 20 0 -1"), "ok");
  EXPECT_EQ(say("wheel on @\"view\" 2.5 0 precise"), "ok");
  EXPECT_THAT(phone_.done,
              ElementsAre("wheel 10 20 by 0 -1 notches", "wheel 30 40 by 2.5 0 points"));
  EXPECT_EQ(say("wheel 10 20 1"), "error: how far the wheel turns is missing (column 14)");
  EXPECT_EQ(say("wheel 10 20 0 99999"), "error: a wheel turns by at most 10000 (column 15)");
  EXPECT_EQ(say("wheel 10 20 0 1 coarse"), "error: unexpected text: coarse (column 17)");
  phone_.refusal = "nothing there moves that way";
  EXPECT_EQ(say("wheel 10 20 0 1"), "error: nothing there moves that way");
}

TEST_F(Sessions, KeyboardTakesLiteralTextAndKnownKeys) {
  EXPECT_EQ(say("type  #1 hit & more  "), "ok");
  EXPECT_EQ(say("key return"), "ok");
  EXPECT_THAT(phone_.done, ElementsAre("type #1 hit & more", "key return"));
  EXPECT_EQ(say("type"), "error: a text to type is missing (column 5)");
  EXPECT_THAT(say("key f13"), StartsWith("error: a key is one of return, "));
}

TEST_F(Sessions, ButtonsArePressed) {
  EXPECT_EQ(say("button home"), "ok");
  EXPECT_EQ(say("button volume-down"), "ok");
  EXPECT_EQ(say("button home-touch"), "ok");
  EXPECT_THAT(phone_.done, ElementsAre("press 0", "press 4", "press 5"));
  EXPECT_THAT(say("button power"), StartsWith("error: home, home-double"));
}

TEST_F(Sessions, ButtonsAreHeldDown) {
  EXPECT_EQ(say("button lock down"), "ok");
  EXPECT_EQ(say("button lock up"), "ok");
  EXPECT_EQ(say("button lock sideways"), "error: unexpected text: sideways (column 13)");
  EXPECT_THAT(phone_.done, ElementsAre("push 2", "let go 2"));
}

TEST_F(Sessions, SystemEventsCarryTheirDetail) {
  EXPECT_EQ(say("system banner New mail"), "ok");
  EXPECT_EQ(say("system edit on"), "ok");
  EXPECT_EQ(say("system edit off"), "ok");
  EXPECT_EQ(say("system dock out com.apple.Music"), "ok");
  EXPECT_EQ(say("system control-centre"), "ok");
  EXPECT_THAT(phone_.done,
              ElementsAre(fmt::format("system {} New mail", int(SystemEvent::Banner)),
                          fmt::format("system {} ", int(SystemEvent::EditOn)),
                          fmt::format("system {} ", int(SystemEvent::EditOff)),
                          fmt::format("system {} com.apple.Music", int(SystemEvent::DockOut)),
                          fmt::format("system {} ", int(SystemEvent::ControlCentre))));
}

TEST_F(Sessions, SystemEventsThatAreIncompleteAreRefused) {
  EXPECT_EQ(say("system"), "error: a system event is missing (column 7)");
  EXPECT_EQ(say("system dance"), "error: a system event is missing (column 8)");
  EXPECT_EQ(say("system edit"), "error: a system event is missing (column 8)");
  EXPECT_EQ(say("system dock in"), "error: a bundle identifier is missing (column 15)");
  EXPECT_EQ(say("system lock now"), "error: unexpected text: now (column 13)");
  EXPECT_EQ(say("system banner"), "error: a text is missing (column 14)");
  EXPECT_THAT(phone_.done, IsEmpty());
}

TEST_F(Sessions, ARefusalOfThePhoneIsAnError) {
  phone_.refusal = "not available yet";
  EXPECT_EQ(say("gesture shake"), "error: not available yet");
  EXPECT_EQ(say("process Settings"), "error: not available yet");
  EXPECT_EQ(say("screenshot a.png"), "error: not available yet");
}

TEST_F(Sessions, PrintAnswersWithTheValue) {
  EXPECT_EQ(say("print counter"), "3");
  EXPECT_EQ(say("print [@\"a\" uppercaseString]"), "\"A\"");
  EXPECT_EQ(say("print counter counter"), "error: unexpected text: counter (column 15)");
  EXPECT_EQ(say("print"), "error: an expression cannot begin with the end of the line (column 6)");
  EXPECT_EQ(say("echo one  two"), "one  two");
}

TEST_F(Sessions, DescribeListsAClassAndWhatItInherits) {
  make_grump_class();
  const std::string listed = say("describe ConsoleTestGrump");
  EXPECT_THAT(listed, StartsWith("  ConsoleTestGrump : NSObject\n"));
  EXPECT_THAT(listed, HasSubstr("\n  - (id) description\n"));
  EXPECT_THAT(listed, HasSubstr("\n  - (BOOL) isEqual:(id)\n"));
  EXPECT_THAT(listed, HasSubstr("\n  + (id) allocWithZone:(void *)\n"));
  EXPECT_THAT(listed, MatchesRegex("(.|\n)*\n  inherited methods: NSObject [1-9][0-9]*\nok"));
  EXPECT_EQ(say("describe [[[ConsoleTestGrump alloc] init] autorelease]"), listed);
}

TEST_F(Sessions, OnlyObjectsAndClassesAreDescribedAndOnlyViewsHaveTrees) {
  EXPECT_EQ(say("describe counter"),
            "error: only objects and classes can be described (column 10)");
  EXPECT_EQ(say("describe nil"), "error: only objects and classes can be described (column 10)");
  EXPECT_EQ(say("describe NSString NSArray"), "error: unexpected text: NSArray (column 19)");
  EXPECT_EQ(say("tree @\"text\""), "error: this is not a view (column 6)");
  EXPECT_EQ(say("tree counter"), "error: this is not a view (column 6)");
}

TEST(Answers, ThatHaveSeveralLinesEndWithOk) {
  const std::string lines[] = {"one", "  below", "a\nb"};
  EXPECT_EQ(list_of(lines).line(), "  one\n    below\n  a\\nb\nok");
  EXPECT_EQ(list_of({}).line(), "ok");
}

TEST_F(Sessions, AListOfAnotherProcessStaysOne) {
  phone_.elsewhere = "  one\n    two\nok";
  EXPECT_EQ(say("tree"), phone_.elsewhere);
  EXPECT_EQ(session_.execute("tree").kind, Answer::Kind::List);
}

TEST_F(Sessions, AnObjectThatRaisesWhenItIsAskedIsAnError) {
  make_grump_class();
  EXPECT_EQ(say("print [[[ConsoleTestGrump alloc] init] autorelease]"), kRaised);
  EXPECT_EQ(say("expect [[[ConsoleTestGrump alloc] init] autorelease] == @\"a\""), kRaised);
  EXPECT_EQ(say("expect [[[ConsoleTestGrump alloc] init] autorelease] < 3"), kRaised);
  EXPECT_EQ(say("print 1"), "1");
}

TEST_F(Sessions, ExpectationsThatHoldAreOk) {
  EXPECT_EQ(say("expect counter == 3"), "ok");
  EXPECT_EQ(say("expect counter != 4"), "ok");
  EXPECT_EQ(say("expect counter<=3 # remark"), "ok");
  EXPECT_EQ(say("expect {1, 2} ~= {1.001, 2}"), "ok");
}

TEST_F(Sessions, ExpectationsThatFailShowBothValues) {
  EXPECT_EQ(say("expect counter == [@\"four\" length]"),
            "error: expected counter == [@\"four\" length], but 3 is not == 4");
  EXPECT_EQ(say("expect counter < @\"x\""),
            "error: 3 and \"x\" cannot be compared with < (column 16)");
  EXPECT_THAT(say("expect counter"), StartsWith("error: a comparison"));
  EXPECT_THAT(say("expect counter = 3"), StartsWith("error: a comparison"));
}

TEST_F(Sessions, ScreenshotsAreNamedPngFiles) {
  EXPECT_EQ(say("screenshot open panel.png"), "ok");
  EXPECT_THAT(phone_.done, ElementsAre("screenshot open panel.png"));
  EXPECT_EQ(say("screenshot panel.jpg"), "error: the name of a .png file is missing (column 12)");
}

TEST_F(Sessions, ComparisonsWithAPictureAnswerEqualOrWhatDiffers) {
  EXPECT_EQ(say("compare open panel.png"), "equal");
  EXPECT_THAT(phone_.done, ElementsAre("compare open panel.png"));
  EXPECT_EQ(say("compare"), "error: the name of a .png file is missing (column 8)");
  phone_.refusal = "3 pixels differ";
  EXPECT_EQ(say("compare a.png"), "error: 3 pixels differ");
}

TEST_F(Sessions, RecordNamesANewScriptOrEndsIt) {
  EXPECT_EQ(say("record my session.scn"), "ok");
  EXPECT_EQ(say("record off # done"), "ok");
  EXPECT_EQ(say("record"), "error: the name of a .scn file is missing, or off (column 7)");
  EXPECT_EQ(say("record off now"), "error: the name of a .scn file is missing, or off (column 8)");
  EXPECT_THAT(phone_.done, ElementsAre("record my session.scn", "recorded "));
}

TEST_F(Sessions, ThePhoneIsToldOfLinesThatNoHandCarriesOut) {
  EXPECT_EQ(say("system lock # now"), "ok");
  EXPECT_EQ(say("gesture shake"), "ok");
  EXPECT_EQ(say("button home"), "ok");
  phone_.refusal = "not available";
  say("gesture shake");
  say("system unlock");
  EXPECT_THAT(phone_.told, ElementsAre("system lock # now", "gesture shake"));
}

TEST_F(Sessions, QuitAsksForTheEnd) {
  EXPECT_EQ(session_.execute("quit").kind, Answer::Kind::Quit);
  EXPECT_EQ(session_.execute("quit now").kind, Answer::Kind::Error);
}

TEST_F(Sessions, UnknownCommandsAreErrorsWithTheirColumn) {
  EXPECT_EQ(say("  jump 3"), "error: unknown command: jump (column 3)");
  EXPECT_EQ(say("[counter]"), "error: unknown command: [counter] (column 1)");
}

}  // namespace
