#include <gmock/gmock.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSDate.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSPropertyListSerialization.h"
#include "platform/Foundation/NSValue.h"
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

NSString zero() {
  constexpr unichar kZero = 0;
  return objc::send<NSString>(objc::Object(objc_getClass("NSString")),
                              "stringWithCharacters:length:"_sel, &kZero, NSUInteger{1});
}

constexpr const char* kTexts[] = {"plain",  "più chiaro", "Ελληνικά",       "日本語", "🎵",
                                  "<&>\"'", "\\U0041",    "\x01\t\r\n\x7F", "",       " a "};

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

TEST_F(PropertyListTest, NumbersDatesAndBytesComeBackAsTheyWere) {
  const auto written = NSMutableArray::array();
  written.addObject(NSNumber::numberWithBool(YES));
  written.addObject(NSNumber::numberWithBool(NO));
  written.addObject(NSNumber::numberWithInteger(-5));
  written.addObject(NSNumber::numberWithUnsignedLongLong(~0ULL));
  written.addObject(NSNumber::numberWithDouble(0.1));
  written.addObject(NSNumber::numberWithDouble(-1e300));
  written.addObject(NSNumber::numberWithFloat(1.5F));
  written.addObject(NSData::dataWithBytes("a\0b\xFF", 4));
  written.addObject(NSData::data());
  written.addObject(NSDate::dateWithTimeIntervalSince1970(951782399));
  written.addObject(NSDate::dateWithTimeIntervalSince1970(-86401));
  written.addObject(NSArray::array());
  written.addObject(NSDictionary::dictionary());
  ASSERT_TRUE(written.writeToFile(path, YES));
  EXPECT_TRUE(NSArray::arrayWithContentsOfFile(path).isEqualToArray(written)) << content();
  EXPECT_THAT(content(), testing::HasSubstr("<date>2000-02-28T23:59:59Z</date>"));
  EXPECT_THAT(content(), testing::HasSubstr("<true/>"));
}

TEST_F(PropertyListTest, WhatHasNoLettersSpoilsNoFile) {
  const NSString halves[] = {"🎵a"_ns.substringFromIndex(1), "a🎵"_ns.substringToIndex(2),
                             "a"_ns.stringByAppendingString(zero())};
  for (const NSString half : halves)
    EXPECT_TRUE(half);
  ASSERT_TRUE(NSArray::arrayWithObjects(halves[0], halves[1], halves[2]).writeToFile(path, YES));
  EXPECT_TRUE(NSArray::arrayWithContentsOfFile(path).isEqualToArray(
      NSArray::arrayWithObjects("\uFFFDa"_ns, "a\uFFFD"_ns, "a"_ns)))
      << content();
}

TEST_F(PropertyListTest, WhatIsNoPropertyListIsNotWritten) {
  const auto itself = NSMutableArray::array();
  itself.addObject(itself);
  EXPECT_FALSE(itself.writeToFile(path, YES));
  itself.removeAllObjects();
  EXPECT_FALSE(NSArray::arrayWithObject(NSObject::alloc()).writeToFile(path, YES));
  const auto strange_key = NSDictionary::dictionaryWithObject("a"_ns, NSNumber::numberWithInt(1));
  EXPECT_FALSE(strange_key.writeToFile(path, YES));
  EXPECT_FALSE(std::filesystem::exists(file));
  for (const auto form : {NSPropertyListXMLFormat_v1_0, NSPropertyListBinaryFormat_v1_0}) {
    itself.addObject(itself);
    EXPECT_FALSE(NSPropertyListSerialization::dataFromPropertyList(itself, form, nullptr));
    itself.removeAllObjects();
  }
}

TEST_F(PropertyListTest, ABinaryListIsReadAsItWasWritten) {
  const auto written = NSDictionary::dictionaryWithObject(
      NSArray::arrayWithObjects("a"_ns, NSNumber::numberWithInt(5)), "ü"_ns);
  ASSERT_TRUE(NSPropertyListSerialization::dataFromPropertyList(
                  written, NSPropertyListBinaryFormat_v1_0, nullptr)
                  .writeToFile(path, YES));
  EXPECT_TRUE(NSDictionary::dictionaryWithContentsOfFile(path).isEqualToDictionary(written));
}

TEST_F(PropertyListTest, AMissingFolderIsAnError) {
  EXPECT_FALSE(NSArray::array().writeToFile("/nowhere/at/all.plist"_ns, YES));
}

}  // namespace
