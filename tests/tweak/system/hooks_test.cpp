#include <dlfcn.h>

#include <cstdlib>
#include <memory>

#include "host/foundation/loader.h"
#include "platform/UIKit/UIScreen.h"
#include "tests/tweak/panel_test.h"

namespace host::test {
namespace {

class Hooks : public PanelTest {
 protected:
  /// Whether the method's code is in the extension's library.
  static bool is_ours(objc::Method method) {
    Dl_info info;
    const auto body = reinterpret_cast<void*>(method_getImplementation(method));
    return dladdr(body, &info) != 0 && std::string_view(info.dli_fname).ends_with("/Sonavue2.so");
  }
};

struct Added {
  const char* selector;
  const char* types;
};

// An object is @, a block @?, and a boolean one signed byte.
constexpr Added kAdded[] = {
    {"deviceNumber", "i@:"},
    {"tweet", "v@:"},
    {"zoomInAlbum:", "v@:@"},
    {"zoomOutAlbum:", "v@:@"},
    {"playSongInAlbum:", "v@:@"},
    {"presentBanner:", "v@:@"},
    {"showBanner", "v@:"},
    {"dismissBanner", "v@:"},
    {"textDidChange:", "v@:@"},
    {"textFieldDidBeginEditing:", "v@:@"},
    {"textFieldDidEndEditing:", "v@:@"},
    {"textFieldShouldReturn:", "c@:@"},
    {"showTable", "v@:"},
    {"dismisWithNoAction", "v@:"},
    {"gestureRecognizer:shouldReceiveTouch:", "c@:@@"},
    {"gestureRecognizer:shouldRecognizeSimultaneouslyWithGestureRecognizer:", "c@:@@"},
    {"playStop", "v@:"},
    {"playBackSong", "v@:"},
    {"playNextSong", "v@:"},
    {"change:", "v@:@"},
    {"changePreferences", "v@:"},
    {"changesPrefs", "v@:"},
    {"infoMusic", "v@:"},
    {"Loping1", "v@:"},
    {"sposta:", "v@:@"},
    {"sposta1:", "v@:@"},
    {"dismis:", "v@:@?"},
    {"present", "v@:"},
};
static_assert(std::size(kAdded) == 28);

TEST_F(Hooks, TwentyEightMethodsAreAddedToTheApplication) {
  for (const Added& added : kAdded) {
    EXPECT_FALSE(class_getInstanceMethod(SpringBoard::cls(), sel_registerName(added.selector)))
        << added.selector << " is the system's own";
  }
  load_extension();
  for (const Added& added : kAdded) {
    const auto method =
        class_getInstanceMethod(SpringBoard::cls(), sel_registerName(added.selector));
    ASSERT_TRUE(method) << added.selector;
    EXPECT_TRUE(is_ours(method)) << added.selector;
    EXPECT_TRUE(objc::same_encoding(method_getTypeEncoding(method), added.types))
        << added.selector << " is " << method_getTypeEncoding(method);
  }
}

// The runtime lists a class's methods from the last added one to the first.
TEST_F(Hooks, TheMethodsAreAddedInTheOrderOfTheTable) {
  load_extension();
  unsigned count = 0;
  const std::unique_ptr<objc::Method, decltype(&std::free)> methods(
      class_copyMethodList(SpringBoard::cls(), &count), &std::free);
  std::vector<std::string> added;
  for (unsigned i = count; i > 0; --i) {
    const objc::Method method = methods.get()[i - 1];
    const std::string name = sel_getName(method_getName(method));
    if (is_ours(method) && name != "applicationDidFinishLaunching:") added.push_back(name);
  }
  std::vector<std::string> expected;
  for (const Added& each : kAdded)
    expected.push_back(each.selector);
  EXPECT_EQ(added, expected);
}

struct Hooked {
  const char* class_name;
  const char* selector;
  enum { kOfObjects, kOfTheClass } kind = kOfObjects;
};

constexpr Hooked kHooked[] = {
    {"SpringBoard", "applicationDidFinishLaunching:"},
    {"SBIconView", "touchesBegan:withEvent:"},
    {"SBUIController", "clickedMenuButton"},
    {"SBUIController", "handleMenuDoubleTap"},
    {"SBBannerController", "_presentBannerForContext:reason:"},
    {"SBLockScreenViewController", "_handleDisplayTurnedOff"},
    {"SBLockScreenViewController", "prepareForUIUnlock"},
    {"SBNotificationCenterViewController", "hostWillPresent"},
    {"SBControlCenterContainerView", "controlCenterWillPresent"},
    {"SBReachabilityManager", "reachabilitySupported", Hooked::kOfTheClass},
    {"SBReachabilityManager", "_handleReachabilityDeactivated"},
    {"SBReachabilityManager", "_handleReachabilityActivated"},
    {"SBReachabilityManager", "_handleSignificantTimeChanged"},
    {"SBReachabilityManager", "_keepAliveTimerFired:"},
    {"SBMediaController", "_systemVolumeChanged:"},
    {"UIWindow", "_shouldCreateContextAsSecure"},
    {"MPMusicPlayerController", "_playbackStateDidChange:"},
};
static_assert(std::size(kHooked) == 17);

TEST_F(Hooks, SeventeenMethodsOfTheSystemAreReplaced) {
  const auto method_of = [](const Hooked& hooked) {
    const auto find =
        hooked.kind == Hooked::kOfTheClass ? class_getClassMethod : class_getInstanceMethod;
    return find(objc_getClass(hooked.class_name), sel_registerName(hooked.selector));
  };
  std::vector<std::string> types;
  for (const Hooked& hooked : kHooked) {
    ASSERT_TRUE(method_of(hooked)) << hooked.selector;
    EXPECT_FALSE(is_ours(method_of(hooked))) << hooked.selector;
    types.push_back(method_getTypeEncoding(method_of(hooked)));
  }
  load_extension();
  for (std::size_t i = 0; i < std::size(kHooked); ++i) {
    EXPECT_TRUE(is_ours(method_of(kHooked[i]))) << kHooked[i].selector;
    EXPECT_EQ(method_getTypeEncoding(method_of(kHooked[i])), types[i]) << kHooked[i].selector;
  }
}

TEST_F(Hooks, OnlyTheMediaAndTheScreenAreLookedUpAtLoadTime) {
  load_extension();
  EXPECT_EQ(global<SBMediaController>("mc"), SBMediaController::sharedInstance());
  EXPECT_EQ(global<MPMusicPlayerController>("musicPlayer"),
            MPMusicPlayerController::iPodMusicPlayer());
  EXPECT_EQ(global<CGRect>("rect"), UIScreen::mainScreen().bounds());
  ASSERT_TRUE(global<NSMutableArray>("result"));
  EXPECT_EQ(global<NSMutableArray>("result").count(), 0u);
  EXPECT_FALSE(global<SpringBoard>("Spring"));
  EXPECT_FALSE(view("window"));
  EXPECT_EQ(global<int>("lastState"), 99);
  EXPECT_TRUE(is("enabled"));
  EXPECT_TRUE(is("hide"));
  EXPECT_EQ(global<float>("max"), 60);
}

TEST_F(Hooks, ThePassThroughReturnsTheSystemsResult) {
  const BOOL before = objc::send<BOOL>(objc::Object(objc_getClass("SBReachabilityManager")),
                                       "reachabilitySupported"_sel);
  load_extension();
  EXPECT_EQ(objc::send<BOOL>(objc::Object(objc_getClass("SBReachabilityManager")),
                             "reachabilitySupported"_sel),
            before);
}

}  // namespace
}  // namespace host::test
