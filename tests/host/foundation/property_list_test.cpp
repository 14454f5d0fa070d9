#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSDictionary.h"
#include "tests/support/host_test.h"

namespace {

struct PropertyListTest : host::test::HostTest {
  PropertyListTest()
      : file(std::filesystem::temp_directory_path() /
             ("property-list-test-" + std::to_string(getpid()) + ".plist")),
        path(NSString::stringWithUTF8String(file.c_str())) {}
  ~PropertyListTest() override { std::filesystem::remove(file); }

  std::string content() const {
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  std::filesystem::path file;
  NSString path;
};

constexpr const char* kTexts[] = {"plain", "più chiaro", "Ελληνικά", "日本語", "🎵", "<&>\"'"};

TEST_F(PropertyListTest, ADictionaryKeepsKeysAndValuesInEveryScript) {
  const auto written = NSMutableDictionary::dictionary();
  for (const char* text : kTexts) {
    const NSString string = NSString::stringWithUTF8String(text);
    written.setObject(string, string);
  }
  ASSERT_TRUE(written.writeToFile(path, YES));
  EXPECT_TRUE(NSDictionary::dictionaryWithContentsOfFile(path).isEqualToDictionary(written));
  EXPECT_NE(content().find("<string>più chiaro</string>"), std::string::npos) << content();
}

TEST_F(PropertyListTest, AnArrayKeepsThemToo) {
  const auto written = NSMutableArray::array();
  for (const char* text : kTexts)
    written.addObject(NSString::stringWithUTF8String(text));
  ASSERT_TRUE(written.writeToFile(path, NO));
  EXPECT_TRUE(NSArray::arrayWithContentsOfFile(path).isEqualToArray(written)) << content();
}

TEST_F(PropertyListTest, AMissingFolderIsAnError) {
  EXPECT_FALSE(NSArray::array().writeToFile("/nowhere/at/all.plist"_ns, YES));
}

}  // namespace
