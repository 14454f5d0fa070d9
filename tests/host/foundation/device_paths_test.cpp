#include "host/foundation/device_paths.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/Foundation/NSValue.h"
#include "tests/support/host_test.h"

namespace {

struct Dictionary : objc::Bound<Dictionary, "NSDictionary", NSObject> {
  static Dictionary with(objc::Object object, NSString key) {
    return call_class<"dictionaryWithObject:forKey:", Dictionary>(object, key);
  }
  static Dictionary from_file(NSString path) {
    return call_class<"dictionaryWithContentsOfFile:", Dictionary>(path);
  }
  BOOL write_to_file(NSString path) const {
    return call<"writeToFile:atomically:", BOOL>(path, YES);
  }
  NSNumber number(NSString key) const { return call<"objectForKey:", NSNumber>(key); }
};

struct DevicePathsTest : host::test::HostTest {
  DevicePathsTest()
      : root(std::filesystem::temp_directory_path() /
             ("device-paths-" + std::to_string(getpid()))) {
    std::filesystem::remove_all(root);
    std::filesystem::create_directories(root / "var/mobile/Library/Preferences");
    host::foundation::set_device_root(root.string());
  }
  ~DevicePathsTest() override {
    host::foundation::set_device_root("");
    std::filesystem::remove_all(root);
  }
  std::filesystem::path root;
};

TEST_F(DevicePathsTest, OnlyTheDevicesFoldersAreBelowTheRoot) {
  using host::foundation::path_on_device;
  using host::foundation::path_on_this_machine;
  EXPECT_EQ(path_on_device((root / "Library/Fonts").string()), "/Library/Fonts");
  EXPECT_EQ(path_on_device(root.string() + "2/Library"), root.string() + "2/Library");
  EXPECT_EQ(path_on_device("/usr/lib/x"), "/usr/lib/x");
  EXPECT_EQ(path_on_this_machine("/Library/Fonts"), (root / "Library/Fonts").string());
  EXPECT_EQ(path_on_this_machine("/var/mobile"), (root / "var/mobile").string());
  EXPECT_EQ(path_on_this_machine("/Libraryful"), "/Libraryful");
  EXPECT_EQ(path_on_this_machine("/var/log"), "/var/log");
  EXPECT_EQ(path_on_this_machine("relative/Library"), "relative/Library");
}

TEST_F(DevicePathsTest, PropertyListsAreWrittenIntoTheRootAsXmlAndReadBack) {
  const NSString path = "/var/mobile/Library/Preferences/some.plist"_ns;
  ASSERT_TRUE(Dictionary::with(NSNumber::numberWithBool(YES), "checked"_ns).write_to_file(path));
  std::ifstream file(root / "var/mobile/Library/Preferences/some.plist");
  const std::string text((std::istreambuf_iterator<char>(file)), {});
  EXPECT_NE(text.find("<key>checked</key>"), std::string::npos) << text;
  EXPECT_TRUE(Dictionary::from_file(path).number("checked"_ns).boolValue());
}

TEST_F(DevicePathsTest, MissingMalformedAndDirectoryFilesLoadAsNil) {
  EXPECT_FALSE(Dictionary::from_file("/var/mobile/missing.plist"_ns));
  std::ofstream(root / "var/mobile/broken.plist") << "<plist><dict><key>a";
  EXPECT_FALSE(Dictionary::from_file("/var/mobile/broken.plist"_ns));
  std::ofstream(root / "var/mobile/empty.plist").flush();
  EXPECT_FALSE(Dictionary::from_file("/var/mobile/empty.plist"_ns));
  std::filesystem::create_directory(root / "var/mobile/folder.plist");
  EXPECT_FALSE(Dictionary::from_file("/var/mobile/folder.plist"_ns));
}

}  // namespace
