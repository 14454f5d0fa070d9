#include "host/foundation/foundation_log.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "platform/Foundation/NSData.h"
#include "platform/Foundation/NSLog.h"
#include "platform/Foundation/NSString.h"
#include "tests/support/caught_log.h"
#include "tests/support/host_test.h"

namespace {

using host::foundation::log_foundation_line;
using testing::HasSubstr;
using testing::IsEmpty;

struct FoundationLog : host::test::HostTest {
  std::string logged() { return log.take(); }

  host::test::CaughtLog log;
};

TEST_F(FoundationLog, AnExtensionsOutputIsALineOfTheLog) {
  host::foundation::take_foundation_log();
  NSLog("<Owl> %s"_ns.id(), "hoots");
  EXPECT_EQ(logged(), "info: <Owl> hoots\n");
  NSLog("<Owl> %s"_ns.id(), "hoots");
  EXPECT_EQ(logged(), "info: <Owl> hoots\n");
}

TEST_F(FoundationLog, OutputThatIsNoTextIsALineToo) {
  host::foundation::take_foundation_log();
  NSLog("<Owl> half a letter: %C."_ns.id(), 0xd83d);
  NSLog("<Owl> bytes: %s."_ns.id(), "\xff\xfe");
  EXPECT_EQ(std::ranges::count(logged(), '\n'), 2);
}

TEST_F(FoundationLog, ARepeatedlyUnreadableFileIsLoggedOnce) {
  host::foundation::take_foundation_log();
  for (int i = 0; i < 3; ++i)
    EXPECT_FALSE(NSData::dataWithContentsOfFile("/dev"_ns));
  const std::string text = logged();
  EXPECT_THAT(text, HasSubstr("warning: File "));
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1);
}

TEST_F(FoundationLog, DifferentComplaintsFromOnePlaceAreLoggedOnce) {
  log_foundation_line(
      "2026-01-01 10:00:00.000 Owl[1:1] File Owl.m: 7. In -[Owl hoot] a.tmp1 failed");
  EXPECT_EQ(logged(), "warning: File Owl.m: 7. In -[Owl hoot] a.tmp1 failed\n");
  log_foundation_line(
      "2026-01-01 10:00:01.000 Owl[1:1] File Owl.m: 7. In -[Owl hoot] a.tmp2 failed");
  EXPECT_THAT(logged(), IsEmpty());
  log_foundation_line("2026-01-01 10:00:01.000 Owl[1:1] File Owl.m: 8. In -[Owl hoot] is hoarse");
  EXPECT_EQ(logged(), "warning: File Owl.m: 8. In -[Owl hoot] is hoarse\n");
}

}  // namespace
