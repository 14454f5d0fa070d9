#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>

#include "tests/launcher_e2e/phone_test.h"

namespace {

using namespace launcher_e2e;

/// Libraries in Objective-C, compiled here with the headers that the phone writes.
class CompiledExtension : public PhoneTest {
 protected:
  CompiledExtension() {
    RunningPhone writer({"--headers", headers()});
    EXPECT_EQ(writer.wait_for_end(), 0) << writer.errors();
  }

  fs::path headers() const { return folder() / "headers"; }
  fs::path library() const { return folder() / "Guest.so"; }

  /// Compiles the text, which follows the import of UIKit's headers.
  void compile(const std::string& text) const {
    media_tests::write_bytes(
        folder() / "Guest.m",
        "#import <UIKit/UIKit.h>\n#import <objc/runtime.h>\n#import <substrate.h>\n" + text);
    const std::string line =
        "gcc -std=gnu11 -shared -fPIC -fobjc-exceptions "
        "-fconstant-string-class=NSConstantString -I /usr/include/GNUstep -I " +
        headers().string() + " " + (folder() / "Guest.m").string() + " -o " + library().string();
    ASSERT_EQ(std::system(line.c_str()), 0);
  }

  /// Makes the state of a class as large in the headers as on an older phone.
  void shrink(const std::string& cls) const {
    const fs::path file = headers() / "UIKit/UIKit.h";
    std::stringstream text;
    text << std::ifstream(file).rdbuf();
    const std::regex state(cls + "_\\[[0-9]+\\]");
    ASSERT_TRUE(std::regex_search(text.str(), state));
    media_tests::write_bytes(file, std::regex_replace(text.str(), state, cls + "_[1]"));
  }

  Arguments trying() const { return headless({"--console", "--extension", library()}); }
};

constexpr const char* kCounter = R"(
@interface Counter : UIView { int counts[8]; }
- (void)count;
- (int)last;
@end
@implementation Counter
- (void)count { for (int i = 0; i < 8; ++i) counts[i] += i; }
- (int)last { return counts[7]; }
@end
static Counter *counter;
@interface CounterStart : NSObject
@end
@implementation CounterStart
+ (id)counter {
  if (!counter) counter = [[Counter alloc] initWithFrame:(CGRect){{1, 2}, {3, 4}}];
  return counter;
}
@end
)";

TEST_F(CompiledExtension, ASubclassHasRoomOfItsOwn) {
  compile(kCounter);
  RunningPhone phone(trying());
  EXPECT_EQ(phone.ask("print [[CounterStart counter] count]"), "void");
  EXPECT_EQ(phone.ask("print [[CounterStart counter] last]"), "7");
  EXPECT_EQ(phone.ask("print [[CounterStart counter] frame]"), "{{1, 2}, {3, 4}}");
  EXPECT_EQ(phone.ask("print [[CounterStart counter] setTag:42]"), "void");
  EXPECT_EQ(phone.ask("print [[CounterStart counter] last]"), "7");
}

TEST_F(CompiledExtension, AnOlderOneWhoseVariablesWouldOverwriteStateIsLeftOut) {
  shrink("UIView");
  compile(kCounter);
  RunningPhone phone(trying());
  ASSERT_TRUE(phone.waits_for_error("loaded Sonavue2"));
  EXPECT_EQ(phone.count_of_errors_with("Guest cannot be loaded: its class Counter was compiled "
                                       "when the objects of UIView were smaller"),
            1)
      << phone.errors();
  EXPECT_EQ(phone.count_of_errors_with("Guest is left out: its class Counter was compiled"), 1);
  EXPECT_EQ(phone.count_of_errors_with("loaded Guest"), 0);
}

TEST_F(CompiledExtension, AnOlderOneWithoutVariablesRuns) {
  shrink("UIView");
  compile(R"(
@interface Plain : UIView
@end
@implementation Plain
+ (BOOL)hasRoom { return class_getInstanceSize(self) >= class_getInstanceSize([UIView class]); }
- (id)initWithFrame:(CGRect)frame { self = [super initWithFrame:frame]; [self setTag:42]; return self; }
@end
)");
  RunningPhone phone(trying());
  EXPECT_EQ(phone.ask("print [[[Plain alloc] init] tag]"), "42");
  EXPECT_EQ(phone.ask("expect [Plain hasRoom] == YES"), "ok");
  EXPECT_EQ(phone.count_of_errors_with("Guest"), 1) << phone.errors();
}

TEST_F(CompiledExtension, OneForAClassThatHasGoneIsLeftOut) {
  compile(R"(
@interface UIGone : UIView
@end
@interface Child : UIGone
@end
@implementation Child
@end
)");
  RunningPhone phone(trying());
  EXPECT_EQ(phone.ask("print isShow"), "NO");
  EXPECT_EQ(phone.count_of_errors_with("Guest"), 1) << phone.errors();
  EXPECT_EQ(phone.count_of_errors_with("Guest is left out: it needs the class UIGone, which this "
                                       "home screen does not have"),
            1);
}

TEST_F(CompiledExtension, AConstructorMayHookAndItsMessagesAreNamed) {
  compile(R"(
static int launches;
static void (*before)(id, SEL, id);
static void launched(id self, SEL selector, id application) { ++launches; before(self, selector, application); }
__attribute__((constructor)) static void start(void) {
  MSHookMessageEx(objc_getClass("SpringBoard"), @selector(applicationDidFinishLaunching:), (IMP)launched, (IMP *)&before);
  [[UIView alloc] initWithFrame:(CGRect){{0, 0}, {1, 1}}];
}
@interface Answers : NSObject
@end
@implementation Answers
+ (int)launches { return launches; }
@end
)");
  RunningPhone phone(trying());
  EXPECT_EQ(phone.ask("print [Answers launches]"), "1");
  EXPECT_EQ(phone.count_of_errors_with("Guest sends alloc from a constructor"), 1)
      << phone.errors();
}

TEST_F(CompiledExtension, AClassOfAnotherProcessIsNilAndALine) {
  media_tests::write_bytes(folder() / "Guest.plist",
                           "{ Filter = { Bundles = (\"com.apple.Preferences\"); }; }");
  compile(R"(
@interface SBIconController : NSObject
+ (id)sharedInstance;
@end
@interface Asker : NSObject
@end
@implementation Asker
+ (BOOL)finds { return [SBIconController sharedInstance] != nil; }
@end
)");
  RunningPhone phone(trying());
  for (const char* line : {"advance 1", "system open com.apple.Preferences", "advance 1",
                           "process Preferences", "expect [Asker finds] == NO"})
    ASSERT_EQ(phone.ask(line), "ok") << line;
  EXPECT_EQ(
      phone.count_of_errors_with("Guest sends messages to the class SBIconController, which this "
                                 "process does not have"),
      1)
      << phone.errors();
}

TEST_F(CompiledExtension, AMessageThatNothingAnswersIsNamedOnceForEachSelector) {
  compile(R"(
@interface NSObject (Unknown)
- (id)snapshotViewAfterScreenUpdates:(BOOL)after;
+ (id)shiny;
@end
@interface Sender : NSObject
@end
@implementation Sender
+ (int)send {
  int caught = 0;
  for (int i = 0; i < 2; ++i) {
    @try { [[[UIView alloc] init] snapshotViewAfterScreenUpdates:YES]; } @catch (id exception) { ++caught; }
    @try { [UIColor shiny]; } @catch (id exception) { ++caught; }
  }
  return caught;
}
@end
)");
  RunningPhone phone(trying());
  EXPECT_EQ(phone.ask("print [Sender send]"), "4") << "the exceptions are raised as on the phone";
  EXPECT_EQ(phone.count_of_errors_with(
                "Guest sent -[UIView snapshotViewAfterScreenUpdates:], which this home screen "
                "does not have"),
            1)
      << phone.errors();
  EXPECT_EQ(phone.count_of_errors_with("Guest sent +[UIColor shiny], which"), 1);
}

}  // namespace
