#include "platform/Foundation/NSURL.h"
#include "tests/support/host_test.h"

namespace {

struct Address {
  const char* text;
  const char* scheme;
  const char* host;
  const char* path;
  const char* query;
  const char* fragment;
};

class Addresses : public host::test::HostTest, public testing::WithParamInterface<Address> {
 protected:
  static NSURL address(const char* text) {
    return NSURL::URLWithString(NSString::stringWithUTF8String(text));
  }
  static std::string part(NSURL url, const char* name) {
    const auto text = objc::send<NSString>(url, sel_registerName(name));
    return text ? text.UTF8String() : "nil";
  }
};
using AddressTexts = Addresses;

TEST_P(Addresses, AreParsedAndKeepTheirText) {
  const Address& expected = GetParam();
  const NSURL url = address(expected.text);
  ASSERT_TRUE(url) << expected.text;
  EXPECT_EQ(part(url, "absoluteString"), expected.text);
  EXPECT_EQ(part(url, "relativeString"), expected.text);
  EXPECT_EQ(part(url, "description"), expected.text);
  EXPECT_EQ(part(url, "scheme"), expected.scheme);
  EXPECT_EQ(part(url, "host"), expected.host);
  EXPECT_EQ(part(url, "path"), expected.path);
  EXPECT_EQ(part(url, "query"), expected.query);
  EXPECT_EQ(part(url, "fragment"), expected.fragment);
}
INSTANTIATE_TEST_SUITE_P(
    WithoutAPath, Addresses,
    testing::Values(Address{"reader://user?name=x", "reader", "user", "", "name=x", "nil"},
                    Address{"reader://user#part", "reader", "user", "", "nil", "part"},
                    Address{"reader://user?name=x#part", "reader", "user", "", "name=x", "part"},
                    Address{"reader://user?list=a/b", "reader", "user", "", "list=a/b", "nil"},
                    Address{"reader://user#a/b?c", "reader", "user", "", "nil", "a/b?c"},
                    Address{"reader://?name=x", "reader", "", "", "name=x", "nil"},
                    Address{"https://example.org:80?q=a%20b", "https", "example.org", "", "q=a%20b",
                            "nil"},
                    Address{"https://example.org", "https", "example.org", "", "nil", "nil"}));
INSTANTIATE_TEST_SUITE_P(
    WithAPath, Addresses,
    testing::Values(Address{"reader:///user?name=x", "reader", "", "/user", "name=x", "nil"},
                    Address{"reader://user/?name=x", "reader", "user", "/", "name=x", "nil"},
                    Address{"https://example.org/a?to=b://c?d", "https", "example.org", "/a",
                            "to=b://c?d", "nil"}));
INSTANTIATE_TEST_SUITE_P(
    WithoutAHost, Addresses,
    testing::Values(Address{"reader:", "reader", "nil", "nil", "nil", "nil"},
                    Address{"reader:root=General", "reader", "nil", "nil", "nil", "nil"},
                    Address{"mailto:a@example.org?subject=Hello%20you", "mailto", "nil", "nil",
                            "nil", "nil"},
                    Address{"sms:+123456", "sms", "nil", "nil", "nil", "nil"},
                    Address{"sms:+123456?to=b://c?d", "sms", "nil", "nil", "to=b://c?d", "nil"},
                    Address{"sms:a@example.org&body=x", "sms", "nil", "nil", "nil", "nil"}));

TEST_F(AddressTexts, EqualOnesAreEqual) {
  const NSURL one = address("reader://user?name=x");
  EXPECT_TRUE(one.isEqual(address("reader://user?name=x")));
  EXPECT_FALSE(one.isEqual(address("reader://user?name=y")));
  EXPECT_FALSE(one.isEqual(address("reader://user/?name=x")));
}

TEST_F(AddressTexts, KeepTheirTextWhenItsOwnerChangesIt) {
  const auto text = objc::send<NSString>("reader://user?name="_ns, "mutableCopy"_sel).autorelease();
  const NSURL url = NSURL::URLWithString(text);
  objc::send<>(text, "appendString:"_sel, "x"_ns);
  EXPECT_EQ(part(url, "absoluteString"), "reader://user?name=");
}

TEST_F(AddressTexts, AreAbsoluteEvenWithABase) {
  const auto made = objc::send<NSURL>(objc::send<NSURL>(objc::Object(NSURL::cls()), "alloc"_sel),
                                      "initWithString:relativeToURL:"_sel,
                                      "reader://user?name=x"_ns, address("https://example.org/a/b"))
                        .autorelease();
  EXPECT_EQ(part(made, "absoluteString"), "reader://user?name=x");
  EXPECT_EQ(part(made, "host"), "user");
}

TEST_F(AddressTexts, AnInvalidAddressIsStillInvalid) {
  for (const char* text :
       {"reader://us er?name=x", "reader://user?name=x y", "re ader://user?x",
        "reader://user?name=ä", "reader://ü?name=x", "reader://üüüü?", "reader://user?%zz[]<>"})
    EXPECT_FALSE(address(text)) << text;
}

}  // namespace
