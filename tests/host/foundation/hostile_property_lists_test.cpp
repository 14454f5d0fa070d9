#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSBundle.h"
#include "platform/Foundation/NSData.h"
#include "platform/Foundation/NSDictionary.h"
#include "platform/Foundation/NSURL.h"
#include "tests/support/caught_log.h"
#include "tests/support/host_test.h"
#include "tests/support/property_list_bytes.h"

// Every way in which Foundation reads a property list, and lists that are made to end or to stop
// any reader.

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

objc::Object class_named(const char* name) {
  return objc::Object(objc_getClass(name));
}

template <class... Values>
objc::Object initialised(const char* cls, objc::Sel selector, Values... values) {
  return objc::send<NSObject>(objc::send<objc::Object>(class_named(cls), "alloc"_sel), selector,
                              values...)
      .autorelease();
}

NSData data_of(NSString path) {
  return NSData::dataWithContentsOfFile(path);
}

NSString text_of(NSString path) {
  const NSData data = data_of(path);
  return objc::cast<NSString>(initialised("NSString", "initWithData:encoding:"_sel, data, 4U));
}

struct Entrance {
  const char* name;
  objc::Object (*read)(NSString path);

  friend std::ostream& operator<<(std::ostream& stream, const Entrance& entrance) {
    return stream << entrance.name;
  }
};

const Entrance kEntrances[] = {
    {"ADictionary",
     [](NSString path) -> objc::Object {
       return NSDictionary::dictionaryWithContentsOfFile(path);
     }},
    {"AnArray",
     [](NSString path) -> objc::Object { return NSArray::arrayWithContentsOfFile(path); }},
    {"AnInitialisedDictionary",
     [](NSString path) {
       return initialised("NSDictionary", "initWithContentsOfFile:"_sel, path);
     }},
    {"AMutableDictionary",
     [](NSString path) {
       return initialised("NSMutableDictionary", "initWithContentsOfFile:"_sel, path);
     }},
    {"AnInitialisedArray",
     [](NSString path) { return initialised("NSArray", "initWithContentsOfFile:"_sel, path); }},
    {"AMutableArray",
     [](NSString path) {
       return initialised("NSMutableArray", "initWithContentsOfFile:"_sel, path);
     }},
    {"AnAddress",
     [](NSString path) {
       const auto url =
           objc::send<objc::Object>(class_named("NSURL"), "fileURLWithPath:"_sel, path);
       return initialised("NSDictionary", "initWithContentsOfURL:"_sel, url);
     }},
    {"AnAddressOfAnArray",
     [](NSString path) {
       const auto url =
           objc::send<objc::Object>(class_named("NSURL"), "fileURLWithPath:"_sel, path);
       return initialised("NSArray", "initWithContentsOfURL:"_sel, url);
     }},
    {"TheSerialization",
     [](NSString path) {
       NSUInteger form = 0;
       objc::Id error = nullptr;
       return objc::send<objc::Object>(class_named("NSPropertyListSerialization"),
                                       "propertyListWithData:options:format:error:"_sel,
                                       data_of(path), NSUInteger{0}, &form, &error);
     }},
    {"TheOldSerialization",
     [](NSString path) {
       NSUInteger form = 0;
       objc::Id error = nullptr;
       return objc::send<objc::Object>(
           class_named("NSPropertyListSerialization"),
           "propertyListFromData:mutabilityOption:format:errorDescription:"_sel, data_of(path),
           NSUInteger{1}, &form, &error);
     }},
    {"AText",
     [](NSString path) { return objc::send<objc::Object>(text_of(path), "propertyList"_sel); }},
    {"ATableOfTexts",
     [](NSString path) {
       return objc::send<objc::Object>(text_of(path), "propertyListFromStringsFileFormat"_sel);
     }},
    {"ABundle",
     [](NSString path) -> objc::Object {
       const NSString folder = path.stringByDeletingLastPathComponent();
       return NSBundle::bundleWithPath(folder).infoDictionary().objectForKey("a"_ns);
     }},
};

struct HostilePropertyLists : host::test::HostTest, testing::WithParamInterface<Entrance> {
  HostilePropertyLists()
      : folder(fs::temp_directory_path() / ("hostile-" + std::to_string(getpid()) + ".bundle")) {
    fs::create_directories(folder);
  }
  ~HostilePropertyLists() override { fs::remove_all(folder); }

  /// What a reader that may raise makes of the bytes.
  objc::Object read(std::string_view bytes) const {
    const fs::path file = folder / "Info.plist";
    std::ofstream(file, std::ios::binary) << bytes;
    try {
      return GetParam().read(NSString::stringWithUTF8String(file.c_str()));
    } catch (...) {
      return nil;
    }
  }

  fs::path folder;
};

std::string times(int count, std::string_view text) {
  std::string all;
  for (int i = 0; i < count; ++i)
    all += text;
  return all;
}

constexpr int kDepth = 50'000;
constexpr const char* kXml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">";

TEST_P(HostilePropertyLists, WhatIsNotHostileIsRead) {
  const objc::Object dictionary = read("{a = {b = c; };}");
  EXPECT_TRUE(dictionary || read("(a)"));
}

TEST_P(HostilePropertyLists, NestedDeepInText) {
  EXPECT_FALSE(read("{a = " + times(kDepth, "(") + times(kDepth, ")") + ";}"));
  EXPECT_FALSE(read(times(kDepth, "{a = ") + times(kDepth, ";}")));
  EXPECT_FALSE(read(times(kDepth, "(")));
  EXPECT_FALSE(read("a = " + times(kDepth, "(") + times(kDepth, ")") + ";"));
}

TEST_P(HostilePropertyLists, NestedDeepInXml) {
  EXPECT_FALSE(read(kXml + times(kDepth, "<array>") + times(kDepth, "</array>") + "</plist>"));
  EXPECT_FALSE(read(kXml + times(kDepth, "<dict><key>a</key>") + "<true/>" +
                    times(kDepth, "</dict>") + "</plist>"));
  EXPECT_FALSE(read(kXml + times(kDepth, "<array>")));
}

TEST_P(HostilePropertyLists, DoublingInTheBinaryForm) {
  // Each array holds the next one twice.
  std::vector<std::string> arrays;
  for (int i = 1; i < 60; ++i)
    arrays.push_back({'\xA2', static_cast<char>(i), static_cast<char>(i)});
  arrays.push_back("\x09");
  EXPECT_FALSE(read(host::test::binary_list(arrays)));
}

TEST_P(HostilePropertyLists, TheDesktopsOwnBinaryForm) {
  EXPECT_FALSE(read(std::string("GNUstep archive") + std::string(64, '\xFF')));
}

struct HostileFiles : host::test::HostTest {};

TEST_F(HostileFiles, OfAnySizeAreRefusedByTheirAddress) {
  const fs::path file = fs::temp_directory_path() / ("huge-" + std::to_string(getpid()) + ".plist");
  std::ofstream(file) << "{a = b; }";
  // More than any memory holds.
  fs::resize_file(file, std::uintmax_t{1} << 40);
  const host::test::CaughtLog log;
  const NSURL address = NSURL::fileURLWithPath(NSString::stringWithUTF8String(file.c_str()));
  EXPECT_FALSE(initialised("NSDictionary", "initWithContentsOfURL:"_sel, address));
  EXPECT_FALSE(initialised("NSArray", "initWithContentsOfURL:"_sel, address));
  fs::remove(file);
}

TEST_F(HostileFiles, OfTextsLeaveTheKey) {
  const fs::path bundle =
      fs::temp_directory_path() / ("tables-" + std::to_string(getpid()) + ".bundle");
  for (const std::string& table :
       {times(kDepth, "("), "\"key\" = " + times(kDepth, "{a = "), "\"key"s}) {
    fs::create_directories(bundle / "en.lproj");
    std::ofstream(bundle / "en.lproj/Localizable.strings") << table;
    std::ofstream(bundle / "Localizable.strings") << table;
    const auto texts = NSBundle::bundleWithPath(NSString::stringWithUTF8String(bundle.c_str()));
    EXPECT_STREQ(texts.localizedStringForKey("key"_ns, nil, nil).UTF8String(), "key");
    fs::remove_all(bundle);
  }
}

INSTANTIATE_TEST_SUITE_P(ReadBy, HostilePropertyLists, testing::ValuesIn(kEntrances),
                         [](const auto& entrance) { return entrance.param.name; });

}  // namespace
