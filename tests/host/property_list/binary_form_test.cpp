#include <gmock/gmock.h>

#include <string>

#include "host/property_list/reader.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSDictionary.h"
#include "tests/support/host_test.h"
#include "tests/support/property_list_bytes.h"

namespace {

using host::property_list::read;
using host::test::binary_list;
using namespace std::string_literals;

objc::Object list_of(std::string_view bytes) {
  return read(bytes).list;
}

// {a: ü, b: two bytes, c: numbers and switches, d: a date, e: {f: twenty letters}, g: 🎵}, as
// another program wrote it.
constexpr std::string_view kSample =
    "62706c6973743030d60102030405060708091112155161516251635164516551676100fc420102a70a0b0c0d"
    "0e0f10100113fffffffffffffffe233ff8000000000000090811012c1200011170334022000000000000d113"
    "1451665f1014787878787878787878787878787878787878787862d83cdfb5081517191b1d1f2124272f313a"
    "434445484d56595b720000000000000101000000000000001600000000000000000000000000000077";

std::string from_hex(std::string_view digits) {
  std::string bytes;
  for (std::size_t i = 0; i < digits.size(); i += 2)
    bytes += static_cast<char>(std::stoi(std::string(digits.substr(i, 2)), nullptr, 16));
  return bytes;
}

std::string description(objc::Object object) {
  return object ? objc::cast<NSObject>(object).description().UTF8String() : "nil";
}

struct BinaryPropertyLists : host::test::HostTest {
  static objc::Object entry(const char* key) {
    const auto all = objc::cast<NSDictionary>(list_of(from_hex(kSample)));
    return all.objectForKey(NSString::stringWithUTF8String(key));
  }
};

TEST_F(BinaryPropertyLists, HoldEveryKindOfValue) {
  EXPECT_EQ(description(entry("a")), "ü");
  EXPECT_EQ(description(entry("b")), "<0102>");
  EXPECT_EQ(description(entry("c")), "(1, \"-2\", \"1.5\", 1, 0, 300, 70000)");
  EXPECT_THAT(description(entry("d")), testing::HasSubstr("2001-01-01 00:00:09"));
  EXPECT_EQ(description(objc::cast<NSDictionary>(entry("e")).objectForKey("f"_ns)),
            std::string(20, 'x'));
  EXPECT_EQ(description(entry("g")), "🎵");
}

TEST_F(BinaryPropertyLists, EveryTruncatedOneIsNil) {
  const std::string whole = from_hex(kSample);
  constexpr std::size_t kMark = 8;  // A part of it is a text.
  for (std::size_t length = kMark; length < whole.size(); ++length)
    EXPECT_FALSE(list_of(whole.substr(0, length))) << length;
}

TEST_F(BinaryPropertyLists, NoWrongByteCrashes) {
  const std::string whole = from_hex(kSample);
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (int bit = 0; bit < 8; ++bit) {
      std::string damaged = whole;
      damaged[at] = static_cast<char>(damaged[at] ^ (1 << bit));
      const objc::AutoreleasePool pool;
      description(list_of(damaged));
    }
  }
}

TEST_F(BinaryPropertyLists, OneThatContainsItselfIsNil) {
  EXPECT_EQ(description(list_of(binary_list({"\xA1\x01"s, "\x09"s}))), "(1)");
  EXPECT_FALSE(list_of(binary_list({"\xA1\x00"s})));
  EXPECT_FALSE(list_of(binary_list({"\xA2\x00\x00"s})));
}

TEST_F(BinaryPropertyLists, AnObjectWithTwoPlacesStaysOne) {
  const auto all =
      objc::cast<NSArray>(list_of(binary_list({"\xA2\x01\x01"s, "\xA1\x02"s, "\x51k"s})));
  ASSERT_EQ(all.count(), 2u);
  EXPECT_EQ(all.objectAtIndex(0), all.objectAtIndex(1));
}

TEST_F(BinaryPropertyLists, OneThatWouldGrowWithoutEndIsRefused) {
  // Each array holds the next one twice.
  std::vector<std::string> arrays;
  for (int i = 1; i < 60; ++i)
    arrays.push_back({'\xA2', static_cast<char>(i), static_cast<char>(i)});
  arrays.emplace_back("\x09");
  EXPECT_EQ(read(binary_list(arrays)).problem, "it holds more than 1048576 objects");
  arrays.erase(arrays.begin(), arrays.begin() + 45);
  for (std::size_t i = 0; i + 1 < arrays.size(); ++i)
    arrays[i] = {'\xA2', static_cast<char>(i + 1), static_cast<char>(i + 1)};
  EXPECT_TRUE(read(binary_list(arrays)).list);
}

TEST_F(BinaryPropertyLists, ALongTextWithManyPlacesIsRefused) {
  // 60,000 letters, 200 times in each of 200 arrays.
  std::vector<std::string> objects{"\xAF\x10\xC8"s, "\xAF\x10\xC8"s,
                                   "\x5F\x11\xEA\x60"s + std::string(60'000, 'x')};
  objects[0] += std::string(200, '\x01');
  objects[1] += std::string(200, '\x02');
  EXPECT_EQ(read(binary_list(objects)).problem, "it holds more than 1048576 objects");
}

TEST_F(BinaryPropertyLists, DepthCountsThroughSharedObjects) {
  // Three chains of 60 arrays. The first of each is reached from the root, and each chain ends in
  // the next.
  std::vector<std::string> objects{"\xA3\x79\x3D\x01"s};
  for (int i = 1; i <= 180; ++i)
    objects.push_back({'\xA1', static_cast<char>(i + 1)});
  objects.emplace_back("\x09");
  EXPECT_EQ(read(binary_list(objects)).problem, "it is nested deeper than 100 levels");
  EXPECT_TRUE(read(binary_list(objects)).exceeds_bounds);
}

TEST_F(BinaryPropertyLists, OverlappingContainersEndTheReading) {
  // 250 arrays of 65,535 references each, all in the same bytes.
  std::vector<std::string> objects{"\xAF\x10\xFA"s};
  for (int i = 1; i <= 250; ++i)
    objects[0] += static_cast<char>(i);
  for (int i = 1; i <= 250; ++i)
    objects.emplace_back("\xAF\x11\xFF\xFF"s);
  objects.back() += std::string(70'000, '\xFB');
  objects.emplace_back("\x09"s);
  EXPECT_FALSE(read(binary_list(objects)).list);
}

TEST_F(BinaryPropertyLists, KeysMustBeStrings) {
  EXPECT_EQ(description(list_of(binary_list({"\xD1\x01\x02"s, "\x51k"s, "\x08"s}))), "{k = 0; }");
  EXPECT_FALSE(list_of(binary_list({"\xD1\x01\x02"s, "\x09"s, "\x08"s})));
}

}  // namespace
