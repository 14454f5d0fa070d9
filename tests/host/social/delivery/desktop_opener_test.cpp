#include "host/social/delivery/desktop_opener.h"

#include <fcntl.h>

#include "tests/host/social/delivery/desktop.h"
#include "tests/support/host_test.h"

namespace {

using host::social::Desktop;
using host::social::desktop_of_environment;
using host::social::open_on_desktop;
using host::test::FakeDesktop;
using host::test::Variable;
using media_tests::CapturedLog;

class DesktopOpener : public host::test::HostTest {};

TEST_F(DesktopOpener, FindsADesktopByItsDisplay) {
  const Variable no_x11("DISPLAY", "");
  const Variable no_wayland("WAYLAND_DISPLAY", "");
  EXPECT_EQ(desktop_of_environment(), Desktop::Absent);
  {
    const Variable x11("DISPLAY", ":0");
    EXPECT_EQ(desktop_of_environment(), Desktop::Present);
  }
  const Variable wayland("WAYLAND_DISPLAY", "wayland-0");
  EXPECT_EQ(desktop_of_environment(), Desktop::Present);
}

TEST_F(DesktopOpener, PassesTheAddressAsOneArgumentWithoutAShell) {
  const FakeDesktop desktop;
  const std::string address = "https://example.org/?a='$(touch x)';`b` \"c\" & d\n*";
  EXPECT_EQ(open_on_desktop(address), std::nullopt);
  EXPECT_EQ(desktop.given(), "1|" + address + "|");
  desktop.let_end(loop);
}

TEST_F(DesktopOpener, LeavesNoProcessBehindAndIsSilentOnSuccess) {
  const FakeDesktop desktop;
  const CapturedLog log;
  bool failed = false;
  open_on_desktop("mailto:", [&] { failed = true; });
  desktop.given();
  desktop.let_end(loop);
  EXPECT_FALSE(failed);
  EXPECT_EQ(log.count(""), 0);
  EXPECT_EQ(waitpid(-1, nullptr, WNOHANG), -1) << "a child is still to be waited for";
}

TEST_F(DesktopOpener, ReportsAnOpenerThatFails) {
  const FakeDesktop desktop(3);
  const CapturedLog log;
  int failures = 0;
  open_on_desktop("mailto:", [&] { ++failures; });
  desktop.given();
  EXPECT_EQ(failures, 0) << "the call must not wait for it";
  desktop.let_end(loop);
  loop.run_ready();
  EXPECT_EQ(failures, 1);
  EXPECT_EQ(log.count("status 3"), 1);
}

TEST_F(DesktopOpener, ReportsAMissingOpener) {
  const media_tests::TemporaryFolder empty;
  const Variable path("PATH", empty.path());
  const auto problem = open_on_desktop("mailto:");
  ASSERT_TRUE(problem);
  EXPECT_NE(problem->find("xdg-open"), std::string::npos);
}

TEST_F(DesktopOpener, ReportsAnAddressThatIsTooLongForAnyProgram) {
  const FakeDesktop desktop;
  EXPECT_TRUE(open_on_desktop(std::string(10'000'000, 'x')));
}

}  // namespace
