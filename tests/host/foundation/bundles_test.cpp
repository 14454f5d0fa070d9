#include "host/foundation/bundles.h"

#include <dlfcn.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "host/foundation/device_paths.h"
#include "host/runtime/device_images.h"
#include "platform/Foundation/NSBundle.h"
#include "platform/Foundation/NSFileManager.h"
#include "tests/support/host_test.h"
#include "tests/support/raised.h"

extern "C" objc::Id NSHomeDirectory();

namespace {

namespace fs = std::filesystem;

constexpr const char* kBelow = "/System/Library/Frameworks/Below.framework/Below";
constexpr const char* kAbove = "/System/Library/Frameworks/Above.framework/Above";
constexpr const char* kBundle = "/System/Library/Frameworks/Bundle.framework";
constexpr const char* kBundleFile = "/System/Library/Frameworks/Bundle.framework/Bundle";

std::vector<std::string> loads;

constexpr std::string_view kNeeds[] = {kBelow};
constexpr host::DeviceImage kImages[] = {
    {kBelow, {}, [] { loads.push_back("below"); }},
    {kAbove, kNeeds, [] { loads.push_back("above"); }},
    {kBundleFile, {}, [] { loads.push_back("bundle"); }},
};

struct DeviceImages : host::test::HostTest {
  DeviceImages() : root(fs::temp_directory_path() / ("images-" + std::to_string(getpid()))) {
    fs::create_directories(root / fs::path(kBundle).relative_path());
    fs::create_directories(root / "Applications/Own.app");
    std::ofstream(root / "Applications/Own.app/Info.plist")
        << "{ CFBundleIdentifier = \"org.example.own\"; }";
    host::foundation::set_device_root(root.string());
    host::set_device_images(kImages);
    loads.clear();
  }
  ~DeviceImages() override {
    host::set_device_images({});
    host::foundation::set_main_bundle("");
    host::foundation::set_device_root("");
    fs::remove_all(root);
  }
  fs::path root;
};

TEST_F(DeviceImages, AreLoadedOnceAndAfterTheirDependencies) {
  EXPECT_TRUE(dlopen(kAbove, RTLD_LAZY));
  EXPECT_EQ(loads, (std::vector<std::string>{"below", "above"}));
  EXPECT_TRUE(dlopen(kAbove, RTLD_LAZY));
  EXPECT_TRUE(dlopen(kBelow, RTLD_LAZY));
  EXPECT_EQ(loads.size(), 2u);
}

TEST_F(DeviceImages, FailLikeAnyMissingFileWhenTheDeviceHasNone) {
  const char* missing = "/System/Library/Frameworks/Missing.framework/Missing";
  dlerror();
  EXPECT_FALSE(dlopen(missing, RTLD_LAZY));
  const char* problem = dlerror();
  ASSERT_TRUE(problem);
  EXPECT_NE(std::string(problem).find(missing), std::string::npos) << problem;
}

TEST_F(DeviceImages, LeaveOtherLibrariesToTheSystem) {
  EXPECT_TRUE(dlopen(nullptr, RTLD_LAZY));
  void* const libm = dlopen("libm.so.6", RTLD_LAZY);
  ASSERT_TRUE(libm);
  EXPECT_TRUE(dlsym(libm, "cos"));
  dlclose(libm);
}

TEST_F(DeviceImages, HaveTheSymbolsOfTheProgram) {
  void* const image = dlopen(kBelow, RTLD_LAZY);
  ASSERT_TRUE(image);
  EXPECT_TRUE(dlsym(image, "NSHomeDirectory"));
  EXPECT_EQ(dlclose(image), 0);
}

TEST_F(DeviceImages, AreLoadedWithTheirBundle) {
  const auto bundle = NSBundle::bundleWithPath(NSString::stringWithUTF8String(kBundle));
  ASSERT_TRUE(bundle);
  EXPECT_TRUE(bundle.load());
  EXPECT_EQ(loads, std::vector<std::string>{"bundle"});
}

TEST_F(DeviceImages, ABundleWithoutCodeIsNotLoaded) {
  const auto bundle = NSBundle::bundleWithPath("/Applications/Own.app"_ns);
  ASSERT_TRUE(bundle);
  EXPECT_FALSE(bundle.load());
}

TEST_F(DeviceImages, TheMainBundleIsTheProgramsOwn) {
  host::foundation::set_main_bundle("/Applications/Own.app");
  const auto bundle = NSBundle::mainBundle();
  EXPECT_STREQ(bundle.bundlePath().UTF8String(), "/Applications/Own.app");
  EXPECT_STREQ(bundle.bundleIdentifier().UTF8String(), "org.example.own");
  EXPECT_STREQ(bundle.resourcePath().UTF8String(), "/Applications/Own.app");
  EXPECT_STREQ(bundle.pathForResource("Info"_ns, "plist"_ns).UTF8String(),
               "/Applications/Own.app/Info.plist");
  EXPECT_FALSE(bundle.pathForResource("Missing"_ns, "plist"_ns));
}

TEST_F(DeviceImages, TheHomeIsTheDevices) {
  EXPECT_STREQ(objc::wrap<NSString>(NSHomeDirectory()).UTF8String(), "/var/mobile");
  const auto expanded =
      objc::send<NSString>("~/Media"_ns, sel_registerName("stringByExpandingTildeInPath"));
  EXPECT_STREQ(expanded.UTF8String(), "/var/mobile/Media");
}

TEST_F(DeviceImages, AnUnknownSelectorIsNamedWithItsClass) {
  const auto object = NSObject::alloc().init().autorelease();
  const auto of_object = host::test::raised_by(
      [&] { objc::send<>(object, sel_registerName("nowhere:"), objc::Object()); });
  ASSERT_TRUE(of_object);
  EXPECT_TRUE(of_object->starts_with("-[NSObject nowhere:]: unrecognized selector sent to "))
      << *of_object;
  const objc::Object cls(NSBundle::cls());
  const auto of_class =
      host::test::raised_by([&] { objc::send<>(cls, sel_registerName("nowhere")); });
  ASSERT_TRUE(of_class);
  EXPECT_TRUE(of_class->starts_with("+[NSBundle nowhere]: unrecognized selector sent to "))
      << *of_class;
}

}  // namespace
