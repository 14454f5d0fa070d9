#include <gmock/gmock.h>

#include "host/property_list/reader.h"
#include "platform/Foundation/NSArray.h"
#include "platform/Foundation/NSValue.h"
#include "tests/host/property_list/described.h"
#include "tests/support/host_test.h"

namespace {

using host::property_list::Mutability;
using host::property_list::read;
using host::property_list::Reading;
using host::test::described;
using testing::HasSubstr;

Reading read_value(const std::string& xml) {
  return read(
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"a>b\">\n"
      "<plist version=\"1.0\">" +
      xml + "</plist>\n");
}

using XmlForm = host::test::HostTest;

TEST_F(XmlForm, HoldsEveryKindOfValue) {
  EXPECT_EQ(
      described(read_value("<dict><key>a</key><string>b</string>\n<!-- <x> -->"
                           "<key>c d</key><array><true/><false></false><dict/></array></dict>")),
      "{a = b; \"c d\" = (1, 0, {}); }");
  EXPECT_EQ(described(read_value("<array><integer> -2 </integer><integer>0x10</integer><integer>"
                                 "18446744073709551615</integer><real>1.5e1</real></array>")),
            "(\"-2\", 16, 18446744073709551615, 15)");
  EXPECT_EQ(described(read_value("<data>A Q\n\tI=</data>")), "<0102>");
  EXPECT_THAT(described(read_value("<date>2001-01-01T00:00:09Z</date>")),
              HasSubstr("2001-01-01 00:00:09"));
}

TEST_F(XmlForm, KeepsTextsToTheLetter) {
  EXPECT_EQ(
      described(read_value("<string>&lt;&#xfc;&#65;&amp;<![CDATA[<b>&]]><!-- c -->d</string>")),
      "<üA&<b>&d");
  const auto text = objc::cast<NSString>(read_value("<string> a\\U0041\n</string>").list);
  EXPECT_TRUE(text.isEqualToString(" a\\U0041\n"_ns)) << text.UTF8String();
}

TEST_F(XmlForm, SaysWhatIsDamaged) {
  const auto problem = [](const char* xml) { return read_value(xml).problem; };
  EXPECT_EQ(problem("<dict><key>a</key></dict>"), "it is damaged in line 3: a value is missing");
  EXPECT_EQ(problem("<dict><true/></dict>"), "it is damaged in line 3: a <key> is missing");
  EXPECT_EQ(problem("<string>a<b></string>"), "it is damaged in line 3: </string> is missing");
  EXPECT_EQ(problem("<string>&a;</string>"), "it is damaged in line 3: an unknown entity");
  EXPECT_EQ(problem("<integer>x</integer>"), "\"x\" is no integer");
  EXPECT_EQ(problem("<real>--1</real>"), "\"--1\" is no number");
  EXPECT_EQ(problem("<date>2001-02-30T00:00:00Z</date>"), "\"2001-02-30T00:00:00Z\" is no date");
  EXPECT_EQ(problem("<data>A*</data>"), "it is damaged in line 3: data that is not base64");
  EXPECT_EQ(problem("<array/><array/>"), "it is damaged in line 3: </plist> is missing");
  EXPECT_EQ(read("<plist><true/></plist> x").problem,
            "it is damaged in line 1: something follows the list");
  EXPECT_EQ(read("<plist><array>").problem, "it is damaged in line 1: it ends too early");
  EXPECT_EQ(read("<plist").problem, "it is damaged in line 1: a '>' is missing");
  for (const char* damaged :
       {"", "<array>a</array>", "<foo/>", "<integer>99999999999999999999</integer>",
        "<string>&#0;</string>", "<string>&#xD800;</string>", "</array>"})
    EXPECT_FALSE(read_value(damaged).list) << damaged;
}

TEST_F(XmlForm, KnowsNoEntitiesOfItsOwn) {
  EXPECT_FALSE(
      read("<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><string>&a;</string></plist>").list);
}

TEST_F(XmlForm, IsNestedOnlySoDeep) {
  const auto nested = [](int depth) {
    std::string xml = "<plist>";
    for (int i = 0; i < depth; ++i)
      xml += "<array>";
    for (int i = 0; i < depth; ++i)
      xml += "</array>";
    return read(xml + "</plist>");
  };
  EXPECT_TRUE(nested(100).list);
  EXPECT_EQ(nested(101).problem, "it is nested deeper than 100 levels");
}

TEST_F(XmlForm, HoldsOnlySoManyObjects) {
  std::string xml = "<plist><array>";
  for (std::size_t i = 0; i < (1 << 20); ++i)
    xml += "<true/>";
  EXPECT_EQ(read(xml + "</array></plist>").problem, "it holds more than 1048576 objects");
}

TEST_F(XmlForm, IsRefusedUnreadWhenItIsLarge) {
  std::string large = "<plist><string>";
  large.resize(33 << 20, 'a');
  const auto reading = read(large);
  EXPECT_EQ(reading.problem, "it is larger than 32 MB");
  EXPECT_TRUE(reading.exceeds_bounds);
}

TEST_F(XmlForm, IsAsMutableAsIsAskedFor) {
  constexpr std::string_view kList =
      "<plist><array><array><string>a</string></array></array></plist>";
  const auto inner = [&](Mutability mutability) {
    return objc::cast<NSArray>(objc::cast<NSArray>(read(kList, mutability).list).objectAtIndex(0));
  };
  const auto is = [](objc::Object object, const char* cls) {
    return objc::cast<NSObject>(object).isKindOfClass(objc_getClass(cls));
  };
  EXPECT_FALSE(is(inner(Mutability::kNone), "NSMutableArray"));
  EXPECT_TRUE(is(inner(Mutability::kContainers), "NSMutableArray"));
  EXPECT_FALSE(is(inner(Mutability::kContainers).objectAtIndex(0), "NSMutableString"));
  EXPECT_TRUE(is(inner(Mutability::kContainersAndLeaves).objectAtIndex(0), "NSMutableString"));
}

}  // namespace
