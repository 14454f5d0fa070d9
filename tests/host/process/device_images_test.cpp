#include "host/process/device_images.h"

#include <dlfcn.h>

#include <algorithm>
#include <filesystem>
#include <set>

#include "host/foundation/device_paths.h"
#include "platform/Foundation/NSBundle.h"
#include "tests/support/host_test.h"

namespace host::test {
namespace {

namespace fs = std::filesystem;

struct Expected {
  std::string_view image;
  const char* cls;
};

constexpr Expected kOneOfEach[] = {
    {process::kQuartzCore, "CALayer"},
    {process::kUIKit, "UIView"},
    {process::kMediaPlayer, "MPMediaQuery"},
    {process::kMediaPlayerUI, "MPUNowPlayingController"},
    {process::kMessageUI, "MFMailComposeViewController"},
    {process::kTwitter, "TWTweetComposeViewController"},
    {process::kPreferences, "PSListController"},
    {process::kGestureService, "LAActivator"},
};

struct ProcessImages : HostTest {
  ProcessImages() { foundation::set_device_root(SONAVUE_STAGING); }
  ~ProcessImages() override { foundation::set_device_root(""); }

  static void expect_classes(const std::vector<std::string_view>& images) {
    for (const auto& [image, cls] : kOneOfEach) {
      const bool expected = std::find(images.begin(), images.end(), image) != images.end();
      EXPECT_EQ(objc_getClass(cls) != nullptr, expected) << cls;
    }
  }
};

TEST_F(ProcessImages, AProgramHasItsLinkedImagesAndTheirDependencies) {
  constexpr std::string_view images[] = {process::kPreferences};
  process::start_program(images);
  expect_classes({process::kQuartzCore, process::kUIKit, process::kPreferences});
}

TEST_F(ProcessImages, TheHomeScreenHasItsOwnClassesToo) {
  process::start_home_screen();
  expect_classes(
      {process::kQuartzCore, process::kUIKit, process::kMediaPlayer, process::kMediaPlayerUI});
  EXPECT_TRUE(objc_getClass("SpringBoard"));
  EXPECT_TRUE(objc_getClass("SBMediaController"));
}

TEST_F(ProcessImages, EveryImageIsLoadedByItsPath) {
  process::start_program({});
  expect_classes({});
  for (const auto& [image, cls] : kOneOfEach) {
    EXPECT_TRUE(dlopen(std::string(image).c_str(), RTLD_LAZY)) << image;
    EXPECT_TRUE(objc_getClass(cls)) << cls;
  }
}

TEST_F(ProcessImages, ABundleLoadsItsFramework) {
  process::start_program({});
  const auto bundle =
      NSBundle::bundleWithPath("/System/Library/PrivateFrameworks/Preferences.framework"_ns);
  EXPECT_TRUE(bundle.load());
  expect_classes({process::kQuartzCore, process::kUIKit, process::kPreferences});
}

TEST_F(ProcessImages, TheDeviceHasTheFolderOfEveryFrameworkAndOfNoOther) {
  std::set<std::string> folders;
  for (const char* kind : {"Frameworks", "PrivateFrameworks"})
    for (const auto& each :
         fs::directory_iterator(fs::path(SONAVUE_STAGING) / "System/Library" / kind))
      folders.insert(fs::relative(each.path(), SONAVUE_STAGING).string());
  for (const DeviceImage& image : process::device_images()) {
    const fs::path folder = fs::path(image.path).parent_path().relative_path();
    if (folder.extension() != ".framework" || *folder.begin() != "System") continue;
    EXPECT_EQ(folders.erase(folder.string()), 1u) << folder;
  }
  EXPECT_TRUE(folders.empty()) << *folders.begin();
}

}  // namespace
}  // namespace host::test
