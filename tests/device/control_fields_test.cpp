#include "device/check/control_fields.h"

#include <fmt/core.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace sonavue::device {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Findings findings_in(const std::string& control) {
  Findings findings;
  check_control_fields(control, findings);
  return findings;
}

Findings findings_with_page(const std::string& page) {
  return findings_in(fmt::format(
      "Package: a\nHomepage: https://a.example/\nIcon: https://a.example/i.png\nDepiction: {}\n",
      page));
}

TEST(ControlFields, WebAddressesAreAccepted) {
  for (const char* page : {"http://a.example/index.html", "https://a.example:8080/~b/c_d-e/%20/",
                           "http://192.168.1.2/", "https://a"})
    EXPECT_THAT(findings_with_page(page), IsEmpty()) << page;
}

TEST(ControlFields, InvalidAddressesAreRejected) {
  for (const char* page : {"", "a.example/index.html", "ftp://a.example/", "file:///a", "https://",
                           "http:///index.html", "https:/a.example", "https://a.example/a b",
                           "https://a.example/\tb", "https://a.example/\r", "https://a.example/\"",
                           "https://a.example/<b>", "https://a.example/\xc3\xa9", "xhttps://a"})
    EXPECT_THAT(findings_with_page(page),
                ElementsAre(fmt::format("control: Depiction is not a valid address: `{}`", page)));
}

TEST(ControlFields, AnAddressWithALineBreakIsInvalid) {
  EXPECT_THAT(findings_with_page("https://a.example/\n b"),
              ElementsAre("control: Depiction is not a valid address: `https://a.example/\n b`"));
  EXPECT_THAT(findings_with_page("https://a.example/\nPre-Depends: b"),
              ElementsAre("control: unexpected field `Pre-Depends`"));
  EXPECT_THAT(findings_with_page("https://a.example/\nb"),
              ElementsAre("control: unexpected field `b`"));
}

TEST(ControlFields, AddressesComeTogether) {
  const char* some = "control: has only some of Depiction, Homepage and Icon";
  EXPECT_THAT(findings_in("Package: a\nDepiction: https://a.example/\n"), ElementsAre(some));
  EXPECT_THAT(findings_in("Icon: https://a.example/\nHomepage: https://a.example/\n"),
              ElementsAre(some));
  EXPECT_THAT(findings_in("Package: a\nDescription: b\n c: d\n"), IsEmpty());
}

}  // namespace
}  // namespace sonavue::device
