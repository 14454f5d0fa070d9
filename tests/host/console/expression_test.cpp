#include <gtest/gtest.h>

#include "host/console/evaluator.h"
#include "host/console/parser.h"
#include "host/console/print.h"
#include "objc/autorelease_pool.h"
#include "objc/class_builder.h"
#include "platform/CoreGraphics/CGGeometry.h"
#include "platform/Foundation/NSString.h"
#include "platform/Foundation/NSValue.h"

namespace {

using namespace host::console;

struct Lamp : objc::Bound<Lamp, "ConsoleTestLamp", NSObject> {};

/// An object with one method for every kind of type.
class LampImplementation : public objc::Implementation<LampImplementation, Lamp> {
 public:
  using Implementation::Implementation;

  CGRect frame() const { return frame_; }
  void set_frame(CGRect frame) { frame_ = frame; }
  BOOL is_on() const { return on_; }
  void set_on(BOOL on) { on_ = on; }
  float warmth() const { return warmth_; }
  void set_warmth(float warmth) { warmth_ = warmth; }
  signed char level() const { return -7; }
  short small() const { return -300; }
  unsigned wide() const { return 4'000'000'000u; }
  NSUInteger widest() const { return ~NSUInteger{0}; }
  double sum_of(signed char a, short b, int c, float d, double e) const {
    return a + b + c + d + e;
  }
  objc::Object echo(objc::Object object) const { return object; }
  objc::Sel selector(objc::Sel given) const { return given; }
  objc::Class class_given(objc::Class given) const { return given; }
  const char* c_text(const char* given) const { return given; }
  void* pointer(void* given) const { return given; }
  void* own_address() { return this; }
  void set_level(unsigned char level) { set_level_ = level; }
  int set_level_seen() const { return set_level_; }
  CGAffineTransform transform() const { return {1, 2, 3, 4, 5, 6}; }
  NSRange range() const { return {3, 4}; }
  void touch_nothing() {}

 private:
  CGRect frame_;
  BOOL on_ = NO;
  float warmth_ = 0;
  int set_level_ = 0;
};

using L = LampImplementation;

void make_lamp_class() {
  if (objc_getClass("ConsoleTestLamp")) return;
  objc::ClassBuilder("ConsoleTestLamp", "NSObject")
      .state<L>()
      .method<&L::frame>("frame")
      .method<&L::set_frame>("setFrame:")
      .method<&L::is_on>("isOn")
      .method<&L::set_on>("setOn:")
      .method<&L::warmth>("warmth")
      .method<&L::set_warmth>("setWarmth:")
      .method<&L::level>("level")
      .method<&L::small>("small")
      .method<&L::wide>("wide")
      .method<&L::widest>("widest")
      .method<&L::sum_of>("sum:of:many:different:types:")
      .method<&L::sum_of>("bare:::::")
      .method<&L::echo>("echo:")
      .method<&L::selector>("selector:")
      .method<&L::class_given>("classGiven:")
      .method<&L::c_text>("cText:")
      .method<&L::pointer>("pointer:")
      .method<&L::own_address>("ownAddress")
      .method<&L::set_level>("setLevel:")
      .method<&L::set_level_seen>("setLevelSeen")
      .method<&L::transform>("transform")
      .method<&L::range>("range")
      .method<&L::touch_nothing>("touchNothing")
      .finish();
}

Lamp shared_lamp;
double shared_brightness = 0.75;
float shared_delay = 0.1f;
BOOL shared_flag = NO;
int shared_state = 99;
CGRect shared_area(1, 2, 3.5, 4);

const ExportedGlobal kTable[] = {
    {"lamp", "@", &shared_lamp},       {"brightness", "d", &shared_brightness},
    {"delay", "f", &shared_delay},     {"flag", "c", &shared_flag},
    {"lastState", "i", &shared_state}, {"area", "{CGRect={CGPoint=dd}{CGSize=dd}}", &shared_area},
    {nullptr, nullptr, nullptr},
};

class Expressions : public testing::Test {
 protected:
  Expressions() {
    make_lamp_class();
    shared_lamp = Lamp::alloc().init();
    globals_.add_table(kTable);
  }
  ~Expressions() override {
    shared_lamp.release();
    shared_lamp = nil;
  }

  /// Returns what the console would print for the line.
  std::string print(std::string_view line) {
    Lexer lexer(line);
    const auto expression = parse_expression(lexer);
    if (!expression) return describe(expression.problem(), line);
    Evaluator evaluator(globals_);
    if (const auto problem = evaluator.check(*expression)) return describe(*problem, line);
    const auto value = evaluator.evaluate(*expression);
    return value ? text_of(*value) : describe(value.problem(), line);
  }

  objc::AutoreleasePool pool_;
  Globals globals_;
};

TEST_F(Expressions, LiteralsPrintAsTheyAreWritten) {
  EXPECT_EQ(print("YES"), "YES");
  EXPECT_EQ(print("NO"), "NO");
  EXPECT_EQ(print("nil"), "nil");
  EXPECT_EQ(print("3"), "3");
  EXPECT_EQ(print("-3.5"), "-3.5");
  EXPECT_EQ(print(".25"), "0.25");
  EXPECT_EQ(print("1e3"), "1000");
  EXPECT_EQ(print("9223372036854775807"), "9223372036854775807");
  EXPECT_EQ(print("{1, 2}"), "{1, 2}");
  EXPECT_EQ(print("{{0, 0}, {1, 2.5}}"), "{{0, 0}, {1, 2.5}}");
  EXPECT_EQ(print(R"(@"a \"quoted\" \\ word\n")"), R"("a \"quoted\" \\ word\n")");
  EXPECT_EQ(print("@\"Größe ✓\""), "\"Größe ✓\"");
  EXPECT_EQ(print("NSString"), "NSString");
}

TEST_F(Expressions, SharedGlobalsAreReadAtEachUse) {
  EXPECT_EQ(print("brightness"), "0.75");
  shared_brightness = 0.5;
  EXPECT_EQ(print("brightness"), "0.5");
  shared_brightness = 0.75;
  EXPECT_EQ(print("delay"), "0.1");
  EXPECT_EQ(print("flag"), "NO");
  EXPECT_EQ(print("lastState"), "99");
  EXPECT_EQ(print("area"), "{{1, 2}, {3.5, 4}}");
  EXPECT_TRUE(print("lamp").starts_with("<ConsoleTestLamp"));
}

TEST_F(Expressions, ANilGlobalPrintsNilAndReturnsNil) {
  const Lamp kept = std::exchange(shared_lamp, Lamp());
  EXPECT_EQ(print("lamp"), "nil");
  EXPECT_EQ(print("[lamp frame]"), "nil");
  shared_lamp = kept;
}

TEST_F(Expressions, StructuresArePassedAndReturned) {
  EXPECT_EQ(print("[lamp setFrame:{{1, 2}, {3.5, 4}}]"), "void");
  EXPECT_EQ(print("[lamp frame]"), "{{1, 2}, {3.5, 4}}");
  EXPECT_EQ(print("[lamp transform]"), "{1, 2, 3, 4, 5, 6}");
  EXPECT_EQ(print("[lamp range]"), "{3, 4}");
}

TEST_F(Expressions, NumbersTakeTheTypeOfTheirArgument) {
  EXPECT_EQ(print("[lamp sum:-1 of:-2 many:3 different:0.5 types:0.25]"), "0.75");
  EXPECT_EQ(print("[lamp bare:-1 :-2 :3 :0.5 :0.25]"), "0.75");
  EXPECT_EQ(print("[lamp setWarmth:0.1]"), "void");
  EXPECT_EQ(print("[lamp warmth]"), "0.1");
  EXPECT_EQ(print("[lamp setOn:YES]"), "void");
  EXPECT_EQ(print("[lamp isOn]"), "YES");
}

TEST_F(Expressions, IntegerResultsKeepTheirSignAndSize) {
  EXPECT_EQ(print("[lamp level]"), "-7");
  EXPECT_EQ(print("[lamp small]"), "-300");
  EXPECT_EQ(print("[lamp wide]"), "4000000000");
  EXPECT_EQ(print("[lamp widest]"), "18446744073709551615");
}

TEST_F(Expressions, ANumberGivenForAnObjectBecomesAnNSNumber) {
  EXPECT_EQ(print("[[lamp echo:3] class]"), print("[[NSNumber numberWithInteger:3] class]"));
  EXPECT_EQ(print("[lamp echo:3.5]"), "3.5");
  EXPECT_EQ(print("[lamp echo:YES]"), "YES");
  EXPECT_EQ(print("[[lamp echo:0.25] doubleValue]"), "0.25");
}

TEST_F(Expressions, SelectorsClassesTextsAndPointersPassThrough) {
  EXPECT_EQ(print("[lamp selector:@\"setFrame:\"]"), "\"setFrame:\"");
  EXPECT_EQ(print("[lamp respondsToSelector:@\"warmth\"]"), "YES");
  EXPECT_EQ(print("[lamp respondsToSelector:@\"coldness\"]"), "NO");
  EXPECT_EQ(print("[lamp classGiven:NSString]"), "NSString");
  EXPECT_EQ(print("[lamp classGiven:nil]"), "nil");
  EXPECT_EQ(print("[lamp cText:@\"plain\"]"), "\"plain\"");
  EXPECT_EQ(print("[lamp pointer:[lamp ownAddress]]"), print("[lamp ownAddress]"));
  EXPECT_EQ(print("[lamp pointer:nil]"), "nil");
  EXPECT_EQ(print("[lamp isKindOfClass:[NSObject class]]"), "YES");
}

TEST_F(Expressions, MessagesNestAndClassesAnswer) {
  EXPECT_EQ(print("[[@\"an owl\" stringByAppendingString:@\" at night\"] uppercaseString]"),
            "\"AN OWL AT NIGHT\"");
  EXPECT_EQ(print("[@\"an owl\" rangeOfString:[NSString stringWithUTF8String:@\"owl\"]]"),
            "{3, 3}");
}

TEST_F(Expressions, CollectionsPrintWhatTheyHold) {
  EXPECT_EQ(print("[@\"b a\" componentsSeparatedByString:@\" \"]"), "(\"b\", \"a\")");
  EXPECT_EQ(print("[NSArray array]"), "()");
  EXPECT_EQ(print("[NSDictionary dictionaryWithObject:3 forKey:@\"k\"]"), "{\"k\" = 3}");
}

TEST_F(Expressions, ErrorsNameTheirColumn) {
  EXPECT_EQ(print(""), "an expression cannot begin with the end of the line (column 1)");
  EXPECT_EQ(print("[lamp frame"), "expected ':' or ']', not the end of the line (column 12)");
  EXPECT_EQ(print("[lamp 3]"), "expected a message, not a number (column 7)");
  EXPECT_EQ(print("{1; 2}"), "an expression cannot begin with ';' (column 3)");
  EXPECT_EQ(print("{1 2}"), "expected ',' or '}', not a number (column 4)");
  EXPECT_EQ(print("@\"open"), "text is not closed (column 1)");
  EXPECT_EQ(print("@\"a\\q\""), "unknown escape in text (column 4)");
  EXPECT_EQ(print("12abc"), "not a number (column 1)");
  EXPECT_EQ(print("1.2.3"), "not a number (column 1)");
  EXPECT_EQ(print("  nowhere"), "unknown name: nowhere (column 3)");
  EXPECT_EQ(print("[lamp setFrame:]"), "an expression cannot begin with ']' (column 16)");
}

TEST_F(Expressions, ColumnsCountCharactersAndNotBytes) {
  EXPECT_EQ(print("{@\"Größe\", nowhere}"), "unknown name: nowhere (column 12)");
}

TEST_F(Expressions, ArgumentsThatDoNotFitAreRefusedAndNothingIsSent) {
  EXPECT_EQ(print("[lamp setLevel:7]"), "void");
  EXPECT_EQ(print("[lamp setLevel:256]"), "the number does not fit its type here (column 16)");
  EXPECT_EQ(print("[lamp setLevel:-1]"), "the number does not fit its type here (column 16)");
  EXPECT_EQ(print("[lamp setLevel:1.5]"), "a whole number is needed here (column 16)");
  EXPECT_EQ(print("[lamp setLevel:@\"7\"]"), "a number is needed here (column 16)");
  EXPECT_EQ(print("[lamp setLevelSeen]"), "7");
  EXPECT_EQ(print("[lamp setFrame:{1, 2, 3}]"), "CGRect needs 2 values in braces here (column 16)");
  EXPECT_EQ(print("[lamp setFrame:{{1, 2}, {3}}]"),
            "CGSize needs 2 values in braces here (column 16)");
  EXPECT_EQ(print("[lamp echo:{1, 2}]"), "an object is needed here (column 12)");
  EXPECT_EQ(print("[lamp classGiven:@\"NSString\"]"), "a class is needed here (column 18)");
  EXPECT_EQ(print("[lamp pointer:3]"), "a pointer is needed here (column 15)");
}

TEST_F(Expressions, UnknownSelectorsAreRefusedBeforeAnythingIsSent) {
  EXPECT_EQ(print("[lamp setOn:NO]"), "void");
  EXPECT_EQ(print("[[lamp setOn:YES] noClassHasThisOne]"),
            "no class implements noClassHasThisOne (column 19)");
  EXPECT_EQ(print("[lamp isOn]"), "NO");
  EXPECT_EQ(print("[lamp uppercaseString]"),
            "ConsoleTestLamp does not respond to uppercaseString (column 7)");
  EXPECT_EQ(print("[lamp setFrame]"), "no class implements setFrame (column 7)");
  EXPECT_EQ(print("[3 description]"), "only objects and classes receive messages (column 2)");
}

TEST_F(Expressions, MessagesThatTakeAnyNumberOfArgumentsAreRefusedBeforeAnythingIsSent) {
  EXPECT_EQ(print("[lamp setOn:NO]"), "void");
  EXPECT_EQ(print("[NSString stringWithFormat:@\"%@ %s\"]"),
            "stringWithFormat: takes any number of arguments, which the console cannot send "
            "(column 11)");
  EXPECT_EQ(print("[[[NSString alloc] initWithFormat:@\"%n\" locale:nil] length]"),
            "initWithFormat:locale: takes any number of arguments, which the console cannot send "
            "(column 20)");
  EXPECT_EQ(print("[NSArray arrayWithObjects:[lamp setOn:YES]]"),
            "arrayWithObjects: takes a list that ends with nil, and the console can send only the "
            "nil (column 10)");
  EXPECT_EQ(print("[lamp isOn]"), "NO");
  EXPECT_EQ(print("[NSException raise:@\"A\" format:@\"%@\"]"),
            "raise:format: takes any number of arguments, which the console cannot send (column "
            "14)");
}

TEST_F(Expressions, AListThatNilEndsAtOnceIsSent) {
  EXPECT_EQ(print("[NSArray arrayWithObjects:nil]"), "()");
}

TEST_F(Expressions, AnExceptionIsAProblemAndTheNextLineStillWorks) {
  EXPECT_EQ(print("[[NSArray array] objectAtIndex:3]"),
            "the message raised an exception (column 18)");
  EXPECT_EQ(print("[[NSArray array] objectAtIndex:3]"),
            "the message raised an exception (column 18)");
  EXPECT_EQ(print("[[NSArray array] count]"), "0");
}

TEST_F(Expressions, ExcessiveNestingIsRefused) {
  EXPECT_TRUE(print(std::string(100'000, '[')).starts_with("nested too deeply"));
  EXPECT_TRUE(print(std::string(100'000, '{')).starts_with("nested too deeply"));
}

TEST_F(Expressions, HalfALetterIsPrintedAsAReplacement) {
  EXPECT_EQ(print("[@\"a\xf0\x9f\x8e\xb5\" substringToIndex:2]"), "\"a\xef\xbf\xbd\"");
  EXPECT_EQ(print("[NSArray arrayWithObject:[@\"\xf0\x9f\x8e\xb5z\" substringFromIndex:1]]"),
            "(\"\xef\xbf\xbdz\")");
}

TEST_F(Expressions, HalfALetterIsPassedAsAReplacement) {
  EXPECT_EQ(print("[lamp cText:[@\"\xf0\x9f\x8e\xb5\" substringToIndex:1]]"), "\"\xef\xbf\xbd\"");
}

TEST_F(Expressions, TextThatIsNotUtf8IsRefused) {
  EXPECT_EQ(print("@\"\xff\xfe\""), "text is not UTF-8 (column 1)");
}

}  // namespace
