#include "host/foundation/binary_property_list.h"

#include <gmock/gmock.h>

#include <string>

#include "platform/Foundation/NSDictionary.h"
#include "tests/support/host_test.h"

namespace {

using host::foundation::binary_property_list;

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

/// A binary list of these objects, in the order of their references; the first is the root.
std::string list_of(std::initializer_list<std::string_view> objects) {
  std::string bytes = "bplist00";
  std::string table;
  for (const auto object : objects) {
    table += static_cast<char>(bytes.size());
    bytes += object;
  }
  const auto table_at = static_cast<char>(bytes.size());
  const auto word = [](std::size_t value) {
    return std::string(7, '\0') + static_cast<char>(value);
  };
  return bytes + table + std::string(6, '\0') + "\x01\x01" + word(objects.size()) + word(0) +
         word(static_cast<unsigned char>(table_at));
}

std::string description(objc::Object object) {
  return object ? objc::cast<NSObject>(object).description().UTF8String() : "nil";
}

struct BinaryPropertyLists : host::test::HostTest {
  static objc::Object entry(const char* key) {
    const auto all = objc::cast<NSDictionary>(binary_property_list(from_hex(kSample)));
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
  for (std::size_t length = 0; length < whole.size(); ++length)
    EXPECT_FALSE(binary_property_list(whole.substr(0, length))) << length;
}

TEST_F(BinaryPropertyLists, NoWrongByteCrashes) {
  const std::string whole = from_hex(kSample);
  for (std::size_t at = 0; at < whole.size(); ++at) {
    for (int bit = 0; bit < 8; ++bit) {
      std::string damaged = whole;
      damaged[at] = static_cast<char>(damaged[at] ^ (1 << bit));
      const objc::AutoreleasePool pool;
      description(binary_property_list(damaged));
    }
  }
}

TEST_F(BinaryPropertyLists, OneThatContainsItselfIsNil) {
  using namespace std::string_view_literals;
  EXPECT_EQ(description(binary_property_list(list_of({"\xA1\x01"sv, "\x09"sv}))), "(1)");
  EXPECT_FALSE(binary_property_list(list_of({"\xA1\x00"sv})));
  EXPECT_FALSE(binary_property_list(list_of({"\xA2\x00\x00"sv})));
}

TEST_F(BinaryPropertyLists, KeysMustBeStrings) {
  using namespace std::string_view_literals;
  EXPECT_EQ(description(binary_property_list(list_of({"\xD1\x01\x02"sv, "\x51k"sv, "\x08"sv}))),
            "{k = 0; }");
  EXPECT_FALSE(binary_property_list(list_of({"\xD1\x01\x02"sv, "\x09"sv, "\x08"sv})));
}

}  // namespace
